// PDF documents that reach a limit: what lies behind it is passed over, or a sentence names it.
#include <utility>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/engine/engine.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/told_of_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/pdf_dictionaries.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;
using kit::factsOf;
using kit::madePdf;
using kit::namesOf;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kBox("/MediaBox [0 0 200 100]");

/// A catalogue whose page tree names one page again and again.
QByteArray withPages(int count) {
  return madePdf({"<< /Type /Catalog /Pages 2 0 R >>",
                  "<< /Type /Pages /Count " + QByteArray::number(count) + " /Kids [" +
                      QByteArray("3 0 R ").repeated(count) + "] >>",
                  "<< /Type /Page /Parent 2 0 R " + kBox + " >>"});
}

/// Forms or patterns within one another, the innermost of which has a font. `kind`: what they say of
/// themselves; `list`: where resources name them.
QStringList fontsBelow(int depth, const QByteArray& kind, const QByteArray& list) {
  const auto naming = [&](int number) { return list + " << /X " + QByteArray::number(number) + " 0 R >>"; };
  QList<QByteArray> streams{"<< /Type /Font /BaseFont /Deep >>"};
  for (int i = 1; i <= depth; ++i)
    streams << stream("", kind + " /Resources << " +
                              (i < depth ? naming(i + 6) : QByteArray("/Font << /A 5 0 R >>")) + " >>");
  return namesOf(onePage("", kBox + " /Resources << " + naming(6) + " >>", streams)).fonts;
}

/// Graphics states by the thousand before a form with a font.
QStringList fontsBehind(int states) {
  QByteArray many;
  for (int i = 0; i < states; ++i) many += "/C" + QByteArray::number(i) + " /DeviceGray ";
  return namesOf(onePage("",
                         kBox + " /Resources << /ColorSpace << " + many + " >> /XObject << /F 6 0 R >> >>",
                         {"<< /Type /Font /BaseFont /Late >>",
                          stream("", "/Subtype /Form /Resources << /Font << /A 5 0 R >> >>")}))
      .fonts;
}

/// How many dictionaries with /Here are found within arrays or others, each within the next.
int dictionariesIn(int depth, const QByteArray& begin = "[", const QByteArray& end = "]") {
  const QByteArray pdf = onePage(
      "", kBox, {begin.repeated(depth - 1) + "<< /Here true >>" + end.repeated(depth - 1)}, "/Extra 5 0 R");
  auto file = PdfFile::open(pdf);
  int found = 0;
  if (file)
    visitDictionaries((*file)->qpdf(),
                      [&](QPDFObjectHandle dictionary) { found += dictionary.hasKey("/Here"); });
  return found;
}

qsizetype noticesIn(qsizetype bytes) {
  const QByteArray notice =
      "BT /F1 8 Tf 10 80 Td (This file was saved) Tj 0 -12 Td (without PDF Content.) Tj ET";
  const QByteArray entries =
      " /Resources << /Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> /PieceInfo "
      "<< "
      "/Illustrator << /LastModified (D:2020) >> >>";
  return factsOf(onePage(notice.leftJustified(bytes, ' '), kBox + entries))->warnings.size();
}

}  // namespace

class PdfLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void pagesHaveAnEnd() {
    QCOMPARE((*PdfFile::open(withPages(3)))->pageCount(), 3);
    const auto file = PdfFile::open(withPages(limits::maximumPages + 1));
    QVERIFY(!file.ok());
    QCOMPARE(file.error().kind, ErrorKind::Limit);
    QCOMPARE(file.error().message,
             QStringLiteral("the document has more than %1 pages").arg(limits::maximumPages));
  }

  void contentsAreSearchedForColoursUpToALength() {
    const auto colours = [](qsizetype blanks) {
      return namesOf(onePage("0 g" + QByteArray(blanks, ' ') + "1 0 0 rg", kBox)).colorSpaces;
    };
    QCOMPARE(colours(9), (QStringList{"DeviceGray", "DeviceRGB"}));
    QCOMPARE(colours(limits::maximumColourScan), QStringList{"DeviceGray"});
  }

  void resourcesWithinResourcesHaveAnEnd() {
    for (const auto& [kind, list] :
         {std::pair("/Subtype /Form", "/XObject"), std::pair("/PatternType 1", "/Pattern")}) {
      QCOMPARE(fontsBelow(limits::maximumResourceDepth, kind, list), QStringList{"Deep"});
      QCOMPARE(fontsBelow(limits::maximumResourceDepth + 1, kind, list), QStringList());
    }
  }

  void theInksOfASpaceAreNamedUpToANumber() {
    QByteArray inks;
    for (int i = 1; i <= 33; ++i) inks += " /I" + QByteArray::number(i);
    const QStringList spaces = namesOf(onePage("",
                                               kBox + " /Resources << /ColorSpace << /N [/DeviceN [" + inks +
                                                   "] /DeviceCMYK 5 0 R] >> >>",
                                               {"<< /FunctionType 2 >>"}))
                                   .colorSpaces;
    QCOMPARE(spaces.size(), 1);
    QVERIFY2(spaces.first().endsWith(", I32"), qPrintable(spaces.first()));
  }

  void resourcesWithoutEndAreNotSearched() {
    QCOMPARE(fontsBehind(10), QStringList{"Late"});
    QCOMPARE(fontsBehind(limits::maximumResources), QStringList());
  }

  void objectsWithinObjectsHaveAnEnd() {
    QCOMPARE(dictionariesIn(limits::maximumObjectDepth), 1);
    QCOMPARE(dictionariesIn(limits::maximumObjectDepth + 2), 0);
    QCOMPARE(dictionariesIn(limits::maximumObjectDepth, "<< /D ", " >>"), 1);
    QCOMPARE(dictionariesIn(limits::maximumObjectDepth + 2, "<< /D ", " >>"), 0);
  }

  void aTextOfTheInformationIsCut() {
    const auto length = [](int letters) {
      return factsOf(onePage("", kBox, {"<< /Title (" + QByteArray(letters, 'x') + ") >>"}, "/Info 5 0 R"))
          ->attributes.value(QStringLiteral("Title"))
          .size();
    };
    QCOMPARE(length(limits::maximumInformationLength), limits::maximumInformationLength);
    QCOMPARE(length(limits::maximumInformationLength + 1), limits::maximumInformationLength);
  }

  void aNoticeIsShort() {
    QCOMPARE(noticesIn(limits::maximumNoticeBytes), 1);
    QCOMPARE(noticesIn(limits::maximumNoticeBytes + 1), 0);
  }

  void anAnnotationOfAHugePageIsDrawnAllTheSame() {
    const QByteArray side = QByteArray::number(limits::maximumAnnotationSheet, 'f', 0);
    EngineContext context;
    auto engine =
        openPdf(onePage("", "/MediaBox [0 0 " + side + ' ' + side +
                                "] /Annots [<< /Type /Annot /Subtype /Square /Rect [10 10 7010 7010] /C [1 "
                                "0 0] /IC [1 0 0] /F 4 >>]"),
                context);
    QVERIFY(engine.ok());
    ComposeRequest request;
    request.rect =
        QRectF(-limits::maximumAnnotationSheet / 2, -limits::maximumAnnotationSheet / 2, 9999, 9999);
    const auto made = (*engine)->compose(request);
    QVERIFY2(made, made ? "" : qPrintable(made.error().message));
    auto again = openPdf(made->bytes, context);
    RenderRequest drawing;
    drawing.pixelSize = QSize(10, 10);
    drawing.pictureToDevice = AffineTransform(0.001, 0, 0, -0.001, 0, 10);
    const auto image = (*again)->render(drawing);
    QVERIFY(image.ok());
    QCOMPARE(image->row(5)[5], 0xffff0000u);
    QCOMPARE(image->row(0)[9], 0u);
  }
};

NORVEX_TEST(PdfLimitsTest)
#include "pdf_limits_test.moc"
