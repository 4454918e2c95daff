// What an examination says of pages written by hand.
#include "worker/examine/page_examination.h"

#include <QSet>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const QByteArray kPage("/MediaBox [0 0 200 100]");

PageContents contentsOf(const QByteArray& pdf) {
  const Result<PageContents> contents = onlyPageContents(pdf, {});
  return contents ? *contents : PageContents();
}

PageContents drawn(const QByteArray& contents, const QByteArray& resources = {},
                   const QList<QByteArray>& more = {}) {
  return contentsOf(kit::onePage(contents, kPage + " /Resources << " + resources + " >>", more));
}

QByteArray image(const QByteArray& entries) {
  return kit::stream("x", "/Type /XObject /Subtype /Image " + entries);
}

}  // namespace

class PageExaminationTest : public QObject {
  Q_OBJECT
 private slots:
  void anImageIsMeasuredAsItIsPlaced() {
    const PageContents page =
        drawn("q 36 0 0 72 10 20 cm /I Do Q", "/XObject << /I 5 0 R >>",
              {image("/Width 150 /Height 150 /ColorSpace /DeviceCMYK /BitsPerComponent 8")});
    QCOMPARE(page.images.size(), 1);
    QCOMPARE(page.images[0].dpiX, 300.0);
    QCOMPARE(page.images[0].dpiY, 150.0);
    QCOMPARE(page.images[0].rect, QRectF(10, 20, 36, 72));
    QCOMPARE(page.images[0].colours, ImageColours::Colour);
    QCOMPARE(page.images[0].name, "object 5");
    QVERIFY(page.cmyk && !page.rgb);
  }

  void imagesAreLineArtGreyOrColour() {
    const auto coloursOf = [](const QByteArray& entries) {
      const PageContents page = drawn("72 0 0 72 0 0 cm /I Do", "/XObject << /I 5 0 R >>",
                                      {image("/Width 9 /Height 9 " + entries)});
      return page.images.isEmpty() ? 0 : int(page.images[0].colours);
    };
    QCOMPARE(coloursOf("/ImageMask true"), int(ImageColours::LineArt));
    QCOMPARE(coloursOf("/ColorSpace /DeviceGray /BitsPerComponent 1"), int(ImageColours::LineArt));
    QCOMPARE(coloursOf("/ColorSpace [/CalGray << >>] /BitsPerComponent 8"), int(ImageColours::Grey));
    QCOMPARE(coloursOf("/ColorSpace [/Indexed /DeviceRGB 1 <000000FFFFFF>] /BitsPerComponent 8"),
             int(ImageColours::Colour));
  }

  void anInlineImageIsOneToo() {
    const PageContents page = drawn("q 72 0 0 72 0 0 cm BI /W 2 /H 3 /BPC 8 /CS /G ID abcdef EI Q");
    QCOMPARE(page.images.size(), 1);
    QCOMPARE(page.images[0].pixelsHigh, 3);
    QCOMPARE(page.images[0].name, "inline");
    QCOMPARE(page.images[0].colours, ImageColours::Grey);
  }

  void aTurnedImageHasItsResolution() {
    const PageContents page =
        drawn("0 36 -36 0 50 0 cm /I Do", "/XObject << /I 5 0 R >>",
              {image("/Width 50 /Height 50 /ColorSpace /DeviceGray /BitsPerComponent 8")});
    QCOMPARE(page.images[0].dpiX, 100.0);
    QCOMPARE(page.images[0].rect, QRectF(14, 0, 36, 36));
  }

  void formsAreFollowedWithTheirMatrices() {
    const PageContents page =
        drawn("2 0 0 2 0 0 cm /F Do", "/XObject << /F 5 0 R >>",
              {kit::stream("0.1 w 0 0 m 10 0 l S",
                           "/Type /XObject /Subtype /Form /BBox [0 0 50 50] /Matrix [5 0 0 5 0 0]")});
    QVERIFY(page.thinnestLine.has_value());
    QCOMPARE(page.thinnestLine->value, 1.0);
  }

  void aFormThatShowsItselfEnds() {
    const PageContents page = drawn(
        "/F Do", "/XObject << /F 5 0 R >>",
        {kit::stream(
            "/F Do /F Do",
            "/Type /XObject /Subtype /Form /BBox [0 0 50 50] /Resources << /XObject << /F 5 0 R >> >>")});
    QVERIFY(!page.complete);
  }

  void theThinnestLineIsToldWithItsPlace() {
    const PageContents page = drawn("2 w 10 10 m 20 10 l S .3 w 50 50 m 60 50 l S 1 w 0 0 5 5 re S");
    QCOMPARE(page.thinnestLine->value, 0.3);
    QCOMPARE(page.thinnestLine->rect.center(), QPointF(55, 50));
  }

  void whatTheClipLeavesNothingOfIsNotThere() {
    const PageContents page =
        drawn("q 0 0 5 5 re W n .1 w 50 50 m 60 50 l S 1 0 0 rg 50 50 9 9 re f Q 2 w 1 1 m 4 4 l S");
    QCOMPARE(page.thinnestLine->value, 2.0);
    QVERIFY(!page.rgb);
  }

  void coloursAreThoseThatAreUsed() {
    QVERIFY(!drawn("1 0 0 rg 0 0 0 1 k 0 0 9 9 re f").rgb);
    QVERIFY(drawn("1 0 0 RG 0 0 9 9 re S").rgb);
    QVERIFY(drawn("/C cs .1 .2 .3 sc 0 0 9 9 re f", "/ColorSpace << /C [/ICCBased 5 0 R] >>",
                  {kit::stream("", "/N 3")})
                .rgb);
    QVERIFY(drawn("/DeviceCMYK cs 0 0 9 9 re f").cmyk);
  }

  void inksOfAColourAddUp() {
    QCOMPARE(drawn("1 .5 .5 0 k 0 0 9 9 re f .1 .1 .1 .1 k 0 0 9 9 re f").mostInk->value, 200.0);
    QCOMPARE(drawn(".25 g 0 0 9 9 re f").mostInk->value, 75.0);
    const QByteArray registration = "/ColorSpace << /C [/Separation /All /DeviceCMYK 5 0 R] >>";
    QCOMPARE(drawn("/C cs 1 scn 0 0 9 9 re f", registration,
                   {"<< /FunctionType 2 /N 1 /Domain [0 1] /C0 [0 0 0 0] /C1 [1 1 1 1] >>"})
                 .mostInk->value,
             400.0);
  }

  void spotInksAreNamedAndProcessInksAreNot() {
    const QByteArray function = "<< /FunctionType 2 /N 1 /Domain [0 1] /C0 [0 0 0 0] /C1 [1 1 1 1] >>";
    const PageContents page = drawn("",
                                    "/ColorSpace << /A [/Separation /Gold /DeviceCMYK 5 0 R] /B [/DeviceN "
                                    "[/Cyan /Silver] /DeviceCMYK 5 0 R] >>",
                                    {function});
    QCOMPARE(QSet<QString>(page.spotInks.begin(), page.spotInks.end()), QSet<QString>({"Gold", "Silver"}));
  }

  void theSizeOfTextIsThatOnThePage() {
    const QByteArray resources = "/Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >>";
    QCOMPARE(drawn("BT /F 12 Tf 10 10 Td (a) Tj ET", resources).smallestText->value, 12.0);
    QCOMPARE(drawn("BT /F 1 Tf 0 9 -9 0 50 10 Tm (a) Tj ET", resources).smallestText->value, 9.0);
    QCOMPARE(drawn(".5 0 0 .5 0 0 cm BT /F 12 Tf [(a) 20 (b)] TJ ET", resources).smallestText->value, 6.0);
    QVERIFY(!drawn("BT /F 12 Tf 3 Tr (a) Tj ET", resources).smallestText);
    QVERIFY(!drawn("BT /F 12 Tf () Tj ET", resources).smallestText);
  }

  void fontsAreToldWithWhatBecomesOfThem() {
    const PageContents page = drawn("BT /A 9 Tf (a) Tj /C 9 Tf ET",
                                    "/Font << /A << /Type /Font /Subtype /TrueType /BaseFont /ABCDEF+Own "
                                    "/FontDescriptor << /FontFile2 5 0 R >> >> "
                                    "/B << /Type /Font /Subtype /Type0 /BaseFont /Whole /DescendantFonts [<< "
                                    "/FontDescriptor << /FontFile3 5 0 R >> >>] >> "
                                    "/C << /Type /Font /Subtype /Type1 /BaseFont /Courier >> >>",
                                    {kit::stream("x")});
    QCOMPARE(page.fonts.size(), 3);
    QCOMPARE(page.fonts[0].name, "Own");
    QVERIFY(page.fonts[0].embedded && page.fonts[0].subset);
    QVERIFY(page.fonts[1].embedded && !page.fonts[1].subset);
    QVERIFY(!page.fonts[2].embedded);
    QVERIFY(page.fonts[0].used && !page.fonts[1].used && !page.fonts[2].used);
  }

  void aPageThatIsTurnedIsToldAsItIsShown() {
    const PageContents page =
        contentsOf(kit::onePage("0 0 0 1 k 10 0 20 5 re f", "/MediaBox [0 0 200 100] /Rotate 90"));
    QCOMPARE(page.size, QSizeF(100, 200));
    QCOMPARE(*page.cmyk, QRectF(0, 170, 5, 20));
  }

  void damageLeavesWhatWasFoundBefore() {
    const PageContents page = drawn("1 0 0 rg 0 0 9 9 re f (((");
    QVERIFY(page.rgb);
    QVERIFY(drawn("q q Q Q Q Q 1e400 0 0 1 0 0 cm /Nothing Do /No gs 1 w S B ( ) Tj sh").images.isEmpty());
  }

  void aCancelledExaminationSaysThatItIsNotWhole() {
    const CancelToken cancel;
    cancel.cancel();
    const Result<PageContents> page = onlyPageContents(kit::onePage("1 w 0 0 m 9 9 l S"), cancel);
    QVERIFY(page.ok());
    QVERIFY(!page->complete);
  }

  void claimsAreReadFromTheXmpPacketToo() {
    const QByteArray pdf = kit::madePdf(
        {"<< /Type /Catalog /Pages 2 0 R /Metadata 4 0 R /OutputIntents [<< /OutputConditionIdentifier "
         "(FOGRA39) >>] >>",
         "<< /Type /Pages /Kids [3 0 R] /Count 1 >>", "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] >>",
         kit::stream("<x:xmpmeta><rdf:Description pdfaid:part='2' "
                     "pdfaid:conformance='B'/><pdfxid:GTS_PDFXVersion>PDF/X-4</pdfxid:GTS_PDFXVersion>")});
    const PageContents page = contentsOf(pdf);
    QCOMPARE(page.claims, QStringList({"PDF/X-4", "PDF/A-2b"}));
    QCOMPARE(page.outputIntents, QStringList{"FOGRA39"});
  }
};

NORVEX_TEST(PageExaminationTest)
#include "page_examination_test.moc"
