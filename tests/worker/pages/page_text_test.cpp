// The letters of a picture and their places, whichever engine opens it.
#include "protocol/page_text.h"

#include <QTemporaryDir>

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/every_engine/open_document.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;

namespace {

const QByteArray kFont("<< /Type /Font /Subtype /Type1 /BaseFont /Courier >>");

QByteArray pdfWith(const QByteArray& contents, const QByteArray& page = "/MediaBox [0 0 200 100]",
                   const QList<QByteArray>& more = {}) {
  return onePage(contents, page + " /Resources << /Font << /F 5 0 R >> >>", QList<QByteArray>{kFont} + more);
}

class PageTextTest : public QObject {
  Q_OBJECT

  QTemporaryDir scratch_;

  PageText textOf(PictureKind kind, const QByteArray& bytes) {
    EngineContext context;
    context.scratchFolder = scratch_.path();
    const auto engine = openDocument(kind, bytes, context);
    if (!engine) {
      qWarning("%s", qPrintable(engine.error().message));
      return {};
    }
    ExamineRequest request;
    request.what = Examination::Text;
    const auto answer = (*engine)->examine(request);
    if (!answer) qWarning("%s", qPrintable(answer.error().message));
    return answer ? decodePageText(answer->bytes).value() : PageText();
  }
  /// The box of all letters of `word`.
  static QRectF placeOf(const PageText& page, const QString& word) {
    const qsizetype at = page.text.indexOf(word);
    QRectF all;
    for (qsizetype i = at; at >= 0 && i < at + word.size(); ++i) all |= page.places[i];
    return all;
  }

 private slots:
  void lettersStandWhereTheyAreDrawn() {
    const PageText page = textOf(PictureKind::Pdf, pdfWith("BT /F 10 Tf 20 70 Td (Hello) Tj ET"));
    QCOMPARE(page.text.trimmed(), QString("Hello"));
    QCOMPARE(page.text.size(), page.places.size());
    const QRectF place = placeOf(page, "Hello");
    QVERIFY(qAbs(place.left() - 20) < 0.5);
    QVERIFY(qAbs(place.width() - 30) < 0.5);  // five letters of six tenths
    QVERIFY(place.top() < 70 && place.top() > 64 && place.bottom() > 76 && place.bottom() < 84);
  }

  void pagesThatAreTurnedScaledAndCroppedKeepThem() {
    const PageText turned = textOf(PictureKind::Pdf, pdfWith("BT /F 10 Tf 20 70 Td (Hello) Tj ET",
                                                             "/MediaBox [0 0 200 100] /Rotate 90"));
    // The line runs down the page, whose upper edge was its left one.
    const QRectF down = placeOf(turned, "Hello");
    QVERIFY2(qAbs(down.bottom() - 180) < 0.5 && qAbs(down.height() - 30) < 0.5,
             qPrintable(QStringLiteral("%1 %2").arg(down.bottom()).arg(down.height())));
    const QRectF large = placeOf(textOf(PictureKind::Pdf, pdfWith("BT /F 10 Tf 20 70 Td (Hello) Tj ET",
                                                                  "/MediaBox [0 0 200 100] /UserUnit 2")),
                                 "Hello");
    QVERIFY(qAbs(large.left() - 40) < 1 && qAbs(large.width() - 60) < 1);
    const QRectF cropped =
        placeOf(textOf(PictureKind::Pdf, pdfWith("BT /F 10 Tf 20 70 Td (Hello) Tj ET",
                                                 "/MediaBox [0 0 200 100] /CropBox [10 50 110 100]")),
                "Hello");
    QVERIFY(qAbs(cropped.left() - 10) < 0.5 && cropped.top() > 14 && cropped.bottom() < 34);
  }

  void postScriptAndSvgHaveTheirText() {
    const PageText eps = textOf(PictureKind::Eps,
                                "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 20 210 120\n%%EndComments\n"
                                "/Courier findfont 10 scalefont setfont 30 90 moveto (Hello) show\n%%EOF\n");
    QVERIFY(qAbs(placeOf(eps, "Hello").left() - 20) < 0.5);
    const PageText svg =
        textOf(PictureKind::Svg,
               "<svg xmlns='http://www.w3.org/2000/svg' width='200pt' height='100pt' viewBox='0 0 "
               "200 100'><text x='20' y='30' font-size='10'>Hello</text></svg>");
    const QRectF place = placeOf(svg, "Hello");
    QVERIFY(qAbs(place.left() - 20) < 2 && place.top() < 70 && place.bottom() > 74);
  }

  void linesEndWithLineFeedsThatHaveNoPlace() {
    const PageText page =
        textOf(PictureKind::Pdf, pdfWith("BT /F 10 Tf 20 70 Td (one) Tj 0 -20 Td (two) Tj ET"));
    const qsizetype feed = page.text.indexOf(u'\n');
    QVERIFY(feed > 0 && page.text.indexOf("two") > feed);
    QVERIFY(page.places[feed].isEmpty());
  }

  void aMarkOfByteOrderInFrontShiftsNoPlace() {
    // The font says that its "A" is that mark.
    const QByteArray map =
        "/CIDInit /ProcSet findresource begin begincmap 1 begincodespacerange <00> <FF> endcodespacerange "
        "1 beginbfchar <41> <FEFF> endbfchar endcmap end\n";
    const PageText page = textOf(
        PictureKind::Pdf,
        onePage("BT /F 10 Tf 20 70 Td (AHello) Tj ET",
                "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> >>",
                {"<< /Type /Font /Subtype /Type1 /BaseFont /Courier /ToUnicode 6 0 R >>",
                 "<< /Length " + QByteArray::number(map.size()) + " >>\nstream\n" + map + "endstream"}));
    QCOMPARE(page.text.size(), page.places.size());
    QVERIFY2(qAbs(placeOf(page, "Hello").left() - 26) < 0.5, qPrintable(page.text));
    QCOMPARE(page.text.trimmed(), QString("Hello"));  // nobody sees the mark
  }

  void linksAreToldWithTheirAddress() {
    const PageText page =
        textOf(PictureKind::Pdf,
               pdfWith("", "/MediaBox [0 0 200 100] /Annots [6 0 R 7 0 R]",
                       {"<< /Type /Annot /Subtype /Link /Rect [10 20 60 40] /A << /S /URI /URI "
                        "(https://example.org/?a=1) "
                        ">> >>",
                        "<< /Type /Annot /Subtype /Link /Rect [10 60 60 80] /Dest [3 0 R /Fit] >>"}));
    QCOMPARE(page.links.size(), 2);
    QStringList told;
    for (const PageLink& link : page.links)
      told << QStringLiteral("%1 %2 %3").arg(link.address).arg(link.page).arg(link.rect.y());
    told.sort();
    QCOMPARE(told, QStringList({" 0 60", "https://example.org/?a=1 -1 20"}));
  }

  void linksToPagesThatAreNotThereLeadNowhere() {
    const auto linksTo = [this](const QByteArray& page) {
      return textOf(PictureKind::Pdf, pdfWith("", "/MediaBox [0 0 200 100] /Annots [6 0 R]",
                                              {"<< /Type /Annot /Subtype /Link /Rect [10 20 60 40] /Dest [" +
                                               page + " /Fit] >>"}))
          .links.size();
    };
    QCOMPARE(linksTo("0"), 1);
    QCOMPARE(linksTo("1"), 0);
    QCOMPARE(linksTo("70000"), 0);
  }

  void linksFarOutsideLeadNowhere() {
    const auto linksIn = [this](const QByteArray& rect) {
      return textOf(PictureKind::Pdf, pdfWith("", "/MediaBox [0 0 200 100] /Annots [6 0 R]",
                                              {"<< /Type /Annot /Subtype /Link /Rect [" + rect +
                                               "] /A << /S /URI /URI (https://example.org/) >> >>"}))
          .links.size();
    };
    QCOMPARE(linksIn("10 20 60 40"), 1);
    for (const char* far : {"10 20 1e30 40", "10 20 60 1e30", "10 -1e30 60 40", "-1e30 20 60 40"})
      QCOMPARE(linksIn(far), 0);
  }
};

}  // namespace

NORVEX_TEST(PageTextTest)
#include "page_text_test.moc"
