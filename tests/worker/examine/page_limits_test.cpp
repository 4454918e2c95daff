// Pages that reach a limit of an examination: it ends, says that it is not whole, and what was found counts.
#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/examine/ink_box.h"
#include "worker/examine/page_examination.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const QByteArray kPage("/MediaBox [0 0 200 100]");
const QByteArray kFont("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");

PageContents contentsOf(const QByteArray& pdf) {
  const Result<PageContents> contents = onlyPageContents(pdf, {});
  return contents ? *contents : PageContents();
}

PageContents drawn(const QByteArray& contents, const QByteArray& resources = {},
                   const QList<QByteArray>& more = {}) {
  return contentsOf(kit::onePage(contents, kPage + " /Resources << " + resources + " >>", more));
}

QByteArray packed(const QByteArray& data, const QByteArray& entries = {}) {
  return kit::stream(qCompress(data, 1).mid(4), "/Filter /FlateDecode " + entries);
}

QByteArray numbered(const char* before, qsizetype number, const char* after) {
  return before + QByteArray::number(number) + after;
}

/// Forms that show the next one; the last draws a line of a tenth of a point.
QList<QByteArray> chainOfForms(int length) {
  QList<QByteArray> forms;
  for (int i = 1; i <= length; ++i)
    forms << kit::stream(i < length ? "/F Do" : ".1 w 0 0 m 9 9 l S",
                         "/Type /XObject /Subtype /Form /BBox [0 0 50 50] /Resources << /XObject << /F " +
                             numbered("", i + 5, " 0 R >> >>"));
  return forms;
}

/// So many forms with resources of their own, the last of which hold a font.
PageContents formsWithResources(int count) {
  QByteArray names;
  QList<QByteArray> objects{kFont};
  for (int i = 0; i < count; ++i) {
    const QByteArray number = QByteArray::number(i + 1).rightJustified(6, '0');
    names += "/X" + number + numbered(" ", i + 6, " 0 R ");
    objects << kit::stream("", i + 1 < count ? "/Subtype /Form /Resources << >>"
                                             : "/Subtype /Form /Resources << /Font << /F 5 0 R >> >>");
  }
  return drawn("", "/XObject << " + names + ">>", objects);
}

QStringList claimsBehind(qsizetype blanks) {
  const QByteArray xmp = QByteArray(blanks, ' ') + "<pdfaid:part>2</pdfaid:part>";
  return contentsOf(kit::madePdf({"<< /Type /Catalog /Pages 2 0 R /Metadata 4 0 R >>",
                                  "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                                  "<< /Type /Page /Parent 2 0 R " + kPage + " >>",
                                  packed(xmp, "/Type /Metadata /Subtype /XML")}))
      .claims;
}

}  // namespace

class PageLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void contentsWithoutEndAreReadInPart() {
    QByteArray contents = ".1 w 0 0 m 9 9 l S ";
    contents += QByteArray(limits::maximumReadContents, ' ') + ".01 w 0 0 m 9 9 l S";
    const PageContents page = contentsOf(
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                      "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + kPage + " >>", packed(contents)}));
    QVERIFY(!page.complete);
    QCOMPARE(page.thinnestLine->value, 0.1);
  }

  void operatorsWithoutEndAreCarriedOutInPart() {
    const PageContents page = drawn(
        ".1 w 0 0 m 9 9 l S " + QByteArray("n ").repeated(limits::maximumOperators) + "0 w 0 0 m 9 9 l S");
    QVERIFY(!page.complete);
    QCOMPARE(page.thinnestLine->value, 0.1);
  }

  /// The pattern's name is what counts, and it comes last.
  void operandsWithoutOperatorAreNotKept() {
    const auto page = [](qsizetype numbers) {
      return drawn("/Pattern cs " + QByteArray("1 ").repeated(numbers) + "/P scn 0 0 50 50 re f",
                   "/Pattern << /P 5 0 R >>",
                   {kit::stream(".1 w 0 0 m 9 9 l S",
                                "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 9 9] /XStep 9 /YStep 9 "
                                "/Resources << >>")});
    };
    QVERIFY(page(limits::maximumOperands - 1).thinnestLine);
    QVERIFY(!page(limits::maximumOperands).thinnestLine);
  }

  void savedStatesHaveAnEnd() {
    const auto thinnest = [](qsizetype saved) {
      return drawn(QByteArray("q ").repeated(saved) + ".1 w q 9 w Q 0 0 m 9 9 l S").thinnestLine->value;
    };
    QCOMPARE(thinnest(limits::maximumSavedStates - 1), 0.1);
    QCOMPARE(thinnest(limits::maximumSavedStates), 1.0);  // what was saved last is what comes back
  }

  void formsWithinFormsHaveAnEnd() {
    const auto page = [](int depth) {
      return drawn("/F Do", "/XObject << /F 5 0 R >>", chainOfForms(depth));
    };
    QVERIFY(page(limits::maximumResourceDepth).complete);
    QVERIFY(page(limits::maximumResourceDepth).thinnestLine);
    QVERIFY(!page(limits::maximumResourceDepth + 1).complete);
  }

  void resourcesWithoutEndAreNotSearched() {
    QCOMPARE(formsWithResources(10).fonts.size(), 1);
    QCOMPARE(formsWithResources(limits::maximumResources + 1).fonts.size(), 0);
  }

  void moreImagesAreNotTold() {
    const PageContents page =
        drawn(QByteArray("BI /W 1 /H 1 /BPC 8 /CS /G ID a EI ").repeated(limits::maximumToldImages + 1));
    QCOMPARE(page.images.size(), limits::maximumToldImages);
  }

  void anImagesSideIsBelieved() {
    const auto width = [](qint64 side) {
      const PageContents page =
          drawn("72 0 0 72 0 0 cm /I Do", "/XObject << /I 5 0 R >>",
                {kit::stream("x", "/Subtype /Image /ColorSpace /DeviceGray /BitsPerComponent 8 /Height 1 " +
                                      numbered("/Width ", side, ""))});
      return page.images.isEmpty() ? 0 : page.images.first().pixelsWide;
    };
    QCOMPARE(width(limits::maximumImageSide), limits::maximumImageSide);
    QVERIFY(width(qint64(limits::maximumImageSide) + 1) <= 1);
  }

  void aLongPacketIsReadInPart() {
    QCOMPARE(claimsBehind(100), QStringList{"PDF/A-2"});
    QCOMPARE(claimsBehind(limits::maximumXmpBytes), QStringList());
  }

  void noBitmapIsTooLargeToLookForInk() {
    double most = 0;
    int looks = 0;
    const QRectF area(0, 0, 3'000, 1'000'000);
    const Result<DrawnInk> ink = findInk(area, 0, 1440, [&](const RenderRequest& request) {
      ++looks;
      most = std::max(most, double(request.pixelSize.width()) * request.pixelSize.height());
      Result<Bitmap> bitmap = Bitmap::create(request.pixelSize);
      if (bitmap) bitmap->row(0)[0] = bitmap->row(bitmap->height() - 1)[bitmap->width() - 1] = 0xff000000;
      return bitmap;
    });
    QVERIFY(ink.ok() && looks > 1);
    QVERIFY2(most <= limits::maximumInkPixels * 1.01, qPrintable(QString::number(most)));
    QVERIFY2(most > limits::maximumInkPixels * 0.9, qPrintable(QString::number(most)));
  }
};

NORVEX_TEST(PageLimitsTest)
#include "page_limits_test.moc"
