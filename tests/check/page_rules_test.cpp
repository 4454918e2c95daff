// Rules about what is in a page, where a file for them would be too large or says too little.
#include "check/page_rules.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

PageContents pageOf(double width) {
  PageContents page;
  page.size = QSizeF(width, 100);
  return page;
}

UsedImage image(ImageColours colours, double dpi) {
  UsedImage one;
  one.name = "object 3";
  one.pixelsWide = one.pixelsHigh = 100;
  one.colours = colours;
  one.dpiX = one.dpiY = dpi;
  one.rect = QRectF(0, 0, 10, 10);
  return one;
}

}  // namespace

class PageRulesTest : public QObject {
  Q_OBJECT
 private slots:
  void anEmptyPageIsSound() { QVERIFY(pageFindings(pageOf(100), PictureKind::Pdf, {}).isEmpty()); }

  void withoutALimitNoImageIsTooCoarse() {
    PageContents page = pageOf(100);
    for (const ImageColours colours : {ImageColours::Colour, ImageColours::Grey, ImageColours::LineArt})
      page.images << image(colours, 1);
    QVERIFY(!hasFinding(pageFindings(page, PictureKind::Svg, {}), "image.resolution"));
  }

  void aColourSpaceMayBeNamedByItsKind() {
    PageContents page = pageOf(100);
    page.colorSpaces = {"DeviceCMYK", "ICCBased RGB", "ICCBased CMYK", "Separation Gold"};
    const auto told = [&](const QStringList& allowed) {
      ProfileLimits limits;
      limits.colourSpaces = allowed;
      QStringList names;
      for (const Finding& one : pageFindings(page, PictureKind::Pdf, limits))
        if (one.rule->identifier == "colour.space") names << one.object;
      return names;
    };
    QCOMPARE(told({}), QStringList());
    QCOMPARE(told({"DeviceCMYK", "ICCBased", "Separation"}), QStringList());
    QCOMPARE(told({"DeviceCMYK", "ICCBased CMYK", "Separation Silver"}),
             QStringList({"ICCBased RGB", "Separation Gold"}));
  }

  void whatWasNotLookedAtIsTold() {
    PageContents page = pageOf(100);
    page.complete = false;
    QVERIFY(hasFinding(pageFindings(page, PictureKind::Pdf, {}), "page.unread"));
  }

  void eachSortOfImageHasItsOwnLimit() {
    ProfileLimits limits;
    limits.colourDpi = 200;
    limits.greyDpi = 300;
    limits.lineArtDpi = 1200;
    for (const auto& [colours, limit] :
         {std::pair(ImageColours::Colour, 200.0), std::pair(ImageColours::Grey, 300.0),
          std::pair(ImageColours::LineArt, 1200.0)}) {
      PageContents page = pageOf(100);
      page.images = {image(colours, limit - 1)};
      const Findings findings = pageFindings(page, PictureKind::Eps, limits);
      QCOMPARE(findings.size(), 1);
      QCOMPARE(findings[0].object, "object 3");
      QCOMPARE(findings[0].rect, std::optional(QRectF(0, 0, 10, 10)));
      page.images = {image(colours, limit)};
      QVERIFY(pageFindings(page, PictureKind::Eps, limits).isEmpty());
    }
  }

  void thousandsOfImagesAreNotAllTold() {
    ProfileLimits limits;
    limits.colourDpi = 200;
    PageContents page = pageOf(100);
    page.images = QList<UsedImage>(500, image(ImageColours::Colour, 10));
    QCOMPARE(pageFindings(page, PictureKind::Pdf, limits).size(), 20);
  }

  void aLimitThatIsReachedExactlyIsKept() {
    ProfileLimits limits;
    limits.thinnestLine = 0.25;
    limits.totalInk = 300;
    PageContents page = pageOf(100);
    page.thinnestLine = Measured{0.25, {}};
    page.mostInk = Measured{300, {}};
    QVERIFY(pageFindings(page, PictureKind::Eps, limits).isEmpty());
    page.thinnestLine->value = 0.24;
    page.mostInk->value = 301;
    QCOMPARE(pageFindings(page, PictureKind::Eps, limits).size(), 2);
  }

  void aWidthFitsAColumnWithinTheTolerance() {
    ProfileLimits limits;
    limits.columns = {90, 190};
    limits.columnTolerance = 2;
    const double millimetre = 72 / 25.4;
    QVERIFY(widthFindings(91.9 * millimetre, limits).isEmpty());
    QVERIFY(widthFindings(188.1 * millimetre, limits).isEmpty());
    ProfileLimits just;  // as far off as it may be
    just.columns = {0};
    just.columnTolerance = 100 * (25.4 / 72);
    QVERIFY(widthFindings(100, just).isEmpty());
    const Findings found = widthFindings(93 * millimetre, limits);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().sentence, "the picture is 93.0 mm wide, columns are 90, 190 mm");
  }

  void coloursOfSvgAndFontsOfAnInterpretedProgramAreNoFindings() {
    PageContents page = pageOf(100);
    page.rgb = page.cmyk = QRectF(0, 0, 1, 1);
    page.fonts = {UsedFont{"Helvetica", "Type1", false, false, true}};
    QVERIFY(hasFinding(pageFindings(page, PictureKind::Pdf, {}), "fonts.not-embedded"));
    QVERIFY(!hasFinding(pageFindings(page, PictureKind::Eps, {}), "fonts.not-embedded"));
    QVERIFY(hasFinding(pageFindings(page, PictureKind::Eps, {}), "colour.rgb-in-cmyk"));
    QVERIFY(pageFindings(page, PictureKind::Svg, {}).isEmpty());
  }

  void blackTextKnocksOutOnlyWhereThereIsSomethingToPrintOver() {
    PageContents page = pageOf(100);
    page.blackKnocksOut = QRectF(0, 0, 1, 1);
    QVERIFY(pageFindings(page, PictureKind::Pdf, {}).isEmpty());
    page.cmyk = QRectF(0, 0, 1, 1);
    QVERIFY(hasFinding(pageFindings(page, PictureKind::Pdf, {}), "colour.black-knocks-out"));
  }
};

NORVEX_TEST(PageRulesTest)
#include "page_rules_test.moc"
