#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <functional>

#include "kit/test_main.h"
#include "metadata/eps_bounding_box.h"
#include "worker/engine/engine.h"
#include "worker/eps_output/eps_writing.h"
#include "worker/eps_output/transparent_regions.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/made_type1.h"
#include "worker/pages/pdf_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::Converted;
using kit::difference;
using kit::drawn;
using kit::onePage;

namespace {

const QByteArray kHelvetica = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";

// A page of 200.5 × 100.25 points with a font /F, half opacity /H and more resources.
QByteArray page(const QByteArray& contents, const QByteArray& resources = {},
                const QList<QByteArray>& more = {}, const QByteArray& entries = {}) {
  return onePage(contents,
                 "/MediaBox [0 0 200.5 100.25] " + entries +
                     " /Resources << /Font << /F 5 0 R >> /ExtGState << /H << /ca 0.5 >> >> " + resources +
                     " >>",
                 QList<QByteArray>{kHelvetica} + more);
}

/// An image and its mask, which is opaque in one quarter.
QList<QByteArray> softImage(const QByteArray& mask) {
  return {kit::stream(QByteArray(3, '\x20'),
                      "/Type /XObject /Subtype /Image /Width 1 /Height 1 /BitsPerComponent 8 /ColorSpace "
                      "/DeviceRGB /SMask " +
                          mask),
          kit::stream(QByteArray("\x00\x80\xff\x40", 4),
                      "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 /ColorSpace "
                      "/DeviceGray")};
}

int lines(const QByteArray& text, const QByteArray& beginning) {
  int count = 0;
  for (const QByteArray& line : text.split('\n')) count += line.startsWith(beginning) ? 1 : 0;
  return count;
}

const QByteArray kVectors =
    "1 0 0 rg 10 10 30 30 re f 0 0 1 RG 3 w 60 10 m 190 60 l S BT /F 18 Tf 50 70 Td (Hello words) Tj ET ";
const QByteArray kTransparent = "q /H gs 0 0.6 0 rg 100 20 40 40 re f 0.9 0 0.9 rg 120 30 40 40 re f Q ";

}  // namespace

class EpsFromPdfTest : public QObject {
  Q_OBJECT
 private slots:
  void theHeaderHasEveryLineOnce() {
    const QByteArray eps = Converted(page(kVectors)).eps();
    QVERIFY(eps.startsWith(
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 201 101\n%%HiResBoundingBox: 0 0 200.5 100.25\n"));
    for (const char* line : {"%!", "%%BoundingBox:", "%%HiResBoundingBox:", "%%Title: ", "%%Creator: ",
                             "%%CreationDate: ", "%%For: ", "%%LanguageLevel: ", "%%EndComments", "%%EOF"})
      QCOMPARE(std::pair(QByteArray(line), lines(eps, line)), std::pair(QByteArray(line), 1));
    QVERIFY(!eps.contains("%%Copyright"));
    QVERIFY(eps.endsWith("%%EOF\n"));
  }

  void theHeadersBoxIsTheOneThatIsRead() {
    const EpsBoundingBoxes boxes = epsBoundingBoxes(Converted(page(kVectors)).eps());
    QCOMPARE(boxes.boundingBox, std::optional(QRectF(0, 0, 201, 101)));
    QCOMPARE(boxes.hiResBoundingBox, std::optional(QRectF(0, 0, 200.5, 100.25)));
  }

  void itIsSevenBitText() {
    const QByteArray eps =
        Converted(page("BT /F 18 Tf 10 10 Td (caf\\351 \x80\xff) Tj ET " + kTransparent)).eps();
    QVERIFY(!eps.isEmpty());
    QVERIFY(std::all_of(eps.begin(), eps.end(), [](char c) { return quint8(c) < 0x80 && c != '\0'; }));
  }

  void aFixedDateGivesFixedBytes() {
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    const QByteArray first = Converted(page(kVectors + kTransparent)).eps();
    const QByteArray second = Converted(page(kVectors + kTransparent)).eps();
    qunsetenv("SOURCE_DATE_EPOCH");
    QVERIFY(first.contains("%%CreationDate: 2023-11-14T22:13:20Z\n"));
    QCOMPARE(first, second);
  }

  // Drawn by gs and by Poppler: text and lines are smoothed differently, so the mean may differ a little; a
  // missing or moved part is far above the bound.
  void itLooksTheSame_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<int>("regions");
    QTest::newRow("vectors") << page(kVectors) << 0;
    QTest::newRow("transparent squares") << page(kVectors + kTransparent) << 1;
    QTest::newRow("two places") << page(kTransparent + "q /H gs 1 0 0 rg 10 10 20 20 re f Q") << 2;
    QTest::newRow("an empty page") << page("") << 0;
    QTest::newRow("turned") << page(kVectors, {}, {}, "/Rotate 90") << 0;
    QTest::newRow("cropped") << page(kVectors + kTransparent, {}, {}, "/CropBox [20 10 170 90]") << 1;
    QTest::newRow("turned and transparent") << page(kVectors + kTransparent, {}, {}, "/Rotate 270") << 1;
    QTest::newRow("a gradient") << page("q 10 10 150 60 re W n /S sh Q " + kVectors,
                                        "/Shading << /S << /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 "
                                        "0 200 0] /Function << /FunctionType 2 "
                                        "/Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >>")
                                << 0;
    QTest::newRow("a radial gradient")
        << page("q /S sh Q " + kVectors,
                "/Shading << /S << /ShadingType 3 /ColorSpace /DeviceRGB /Coords [60 50 10 120 50 40] "
                "/Extend [true false] "
                "/Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >>")
        << 0;
    QTest::newRow("a gradient between the same points")
        << page("q /S sh Q " + kVectors,
                "/Shading << /S << /ShadingType 2 /ColorSpace /DeviceRGB /Coords [60 50 60 50] /Extend "
                "[false false] "
                "/Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >>")
        << 0;
    QTest::newRow("a soft image") << page(kVectors + "q 60 0 0 60 100 20 cm /I Do Q",
                                          "/XObject << /I 6 0 R >>", softImage("7 0 R"))
                                  << 2;  // one of its quarters is opaque
    QTest::newRow("nothing transparent but an image")
        << onePage("q 60 0 0 60 100 20 cm /I Do Q",
                   "/MediaBox [0 0 200.5 100.25] /Resources << /XObject << /I 5 0 R >> >>",
                   softImage("6 0 R"))
        << 2;
    QTest::newRow("a blend mode") << page("1 0 0 rg 0 0 100 100 re f /M gs 0 1 1 rg 50 20 40 40 re f " +
                                              kVectors,
                                          "/ExtGState << /M << /BM /Multiply >> >>")
                                  << 1;
    QTest::newRow("a group without effect")
        << page(kVectors + "/G Do", "/XObject << /G 6 0 R >>",
                {kit::stream("0 0.5 0 rg 100 20 40 40 re f",
                             "/Type /XObject /Subtype /Form /BBox [0 0 200 100] "
                             "/Group << /S /Transparency /I true >>")})
        << 0;
    QTest::newRow("opacity that is never used") << page(kVectors + "/H gs") << 0;
  }
  void itLooksTheSame() {
    QFETCH(QByteArray, pdf);
    QFETCH(int, regions);
    Converted converted(pdf);
    QVERIFY2(!converted.eps().isEmpty(), qPrintable(converted.error().message));
    QCOMPARE(converted.report().regionsRasterised, regions);
    const double away = difference(converted.byGhostscript(), drawn(pdf));
    QVERIFY2(away < 3, qPrintable(QString::number(away)));
  }

  // From red above to blue below; PostScript has no JPEG 2000.
  void jpeg2000IsDeflated() {
    const QByteArray picture = QByteArray::fromBase64(
        "AAAADGpQICANCocKAAAAFGZ0eXBqcDIgAAAAAGpwMiAAAAAtanAyaAAAABZpaGRyAAAACAAAAAgAAwcHAAAAAAAPY29scgEAAAAA"
        "ABAAAADQanAy"
        "Y/9P/1EALwAAAAAACAAAAAgAAAAAAAAAAAAAAAgAAAAIAAAAAAAAAAAAAwcBAQcBAQcBAf9SAAwAAAABAQMEBAAB/"
        "1wADUBASEhQSEhQSEhQ/2QA"
        "JQABQ3JlYXRlZCBieSBPcGVuSlBFRyB2ZXJzaW9uIDIuNS4w/5AACgAAAAAATwAB/5PPtAgHX8+0CAK/"
        "34AQAw+Ap+AEAr+n4AQFb4Cj7QUACzxj"
        "sY+j7QQADBc154Ch9QOAA3/dUUIDp6H1AoAAz9VSP//Z");
    for (const qsizetype length : {picture.size(), picture.size() / 2, qsizetype(0)}) {
      const QByteArray pdf = page("q 80 0 0 80 60 10 cm /I Do Q", "/XObject << /I 6 0 R >>",
                                  {kit::stream(picture.left(length),
                                               "/Type /XObject /Subtype /Image /Width 8 /Height 8 "
                                               "/Filter /JPXDecode /ColorSpace /DeviceRGB "
                                               "/BitsPerComponent 8")});
      Converted converted(pdf);
      const QImage image = converted.byGhostscript();
      QVERIFY(!image.isNull());
      if (length < picture.size()) continue;
      QVERIFY(converted.eps().contains("/FlateDecode filter\n"));
      const QRgb above = image.pixel(200, 30);
      const QRgb below = image.pixel(200, 170);
      QVERIFY(qRed(above) > 230 && qBlue(above) < 30 && qRed(below) < 30 && qBlue(below) > 230);
    }
  }

  void onlyWhatIsTransparentIsAnImage() {
    Converted converted(page(kVectors + kTransparent));
    QCOMPARE(converted.report().regionsRasterised, 1);
    const double share =
        converted.report().rasterisedAreaShare;  // 60 × 50 points of 200.5 × 100.25 and an edge
    QVERIFY2(share > 0.14 && share < 0.22, qPrintable(QString::number(share)));
    QCOMPARE(converted.report().rasterisedDpi, 300.0);
    QVERIFY(converted.eps().contains("(Hello words)"));
    QCOMPARE(converted.eps().count(" image D flushfile"), 1);
  }

  /// Regions are cells of 8 pixels at 150 dpi, which are 16 of an image: none more for what is lost in
  /// counting, whether a region is drawn alone or cut out of what is drawn for several.
  void imagesAreWholePixelsOfTheirRegions() {
    const auto half = [](const QByteArray& square) {
      return onePage("/H gs 0 0.6 0 rg " + square + " re f",
                     "/MediaBox [0 0 200 96] /Resources << /ExtGState << /H << /ca 0.5 >> >> >>");
    };
    const QByteArray first = "39.9 59.1 35.4 16.2", second = "116.7 20.7 16.2 16.2";
    const QByteArray ofFirst = "\n38.4 57.6 translate 38.4 19.2 scale\n",
                     sizeOfFirst = "/Width 160 /Height 80 ";
    const QByteArray ofSecond = "\n115.2 19.2 translate 19.2 19.2 scale\n",
                     sizeOfSecond = "/Width 80 /Height 80 ";
    const QByteArray alone = Converted(half(first)).eps();
    QVERIFY(alone.contains(ofFirst) && alone.contains(sizeOfFirst) && !alone.contains(sizeOfSecond));
    const QByteArray both = Converted(half(first + " re f " + second)).eps();
    QVERIFY(both.contains(ofFirst) && both.contains(sizeOfFirst));
    QVERIFY(both.contains(ofSecond) && both.contains(sizeOfSecond));
  }

  void anImageHasAMaskWhereItLeavesPlacesUnpainted() {
    QVERIFY(Converted(page(kTransparent)).eps().contains("/ImageType 3"));
    const QByteArray onPaper = Converted(page("1 1 0.9 rg 0 0 201 101 re f " + kTransparent)).eps();
    QVERIFY(onPaper.contains("/ImageType 1") && !onPaper.contains("/ImageType 3"));
  }

  void withoutTransparencyThereIsNoImage() {
    Converted converted(page(kVectors));
    QCOMPARE(converted.report().regionsRasterised, 0);
    QCOMPARE(converted.report().rasterisedDpi, 0.0);
    QCOMPARE(converted.report().rasterisedAreaShare, 0.0);
    QVERIFY(converted.eps().contains("%%LanguageLevel: 3\n"));
    QVERIFY(!converted.eps().contains(" image D flushfile"));
  }

  void coloursStayWhatTheyAre() {
    const QByteArray eps =
        Converted(page("0.1 0.2 0.3 0.4 k 10 10 30 30 re f /Sp cs 0.7 scn 60 10 60 60 re f",
                       "/ColorSpace << /Sp [/Separation /Spot#20Green /DeviceCMYK << "
                       "/FunctionType 2 /Domain [0 1] /C0 [0 0 0 0] /C1 [1 0 1 0] /N 1 >> ] >>"))
            .eps();
    QVERIFY(eps.contains("[0.1 0.2 0.3 0.4] sc"));
    QVERIFY(eps.contains("[/Separation (Spot Green) /DeviceCMYK"));
    QVERIFY(eps.contains("[0.7] sc"));
  }

  void gradientsAreLeftToTheInterpreter() {
    const QByteArray eps =
        Converted(page("/S sh",
                       "/Shading << /S << /ShadingType 2 /ColorSpace /DeviceCMYK /Coords "
                       "[0 0 200 0] /Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0 0] "
                       "/C1 [0 1 0 0] /N 1 >> >> >>"))
            .eps();
    QVERIFY(
        eps.contains("<< /ColorSpace pdfFillCS /ShadingType 2 /Coords [0 0 200 0] /Extend [false false]"));
    QVERIFY(eps.size() < 20000);
  }

  void shownTextCannotPassForAComment() {
    const QByteArray eps = Converted(page("BT /F 18 Tf 10 10 Td (%%Copyright: mine) Tj ET")).eps();
    QVERIFY(!eps.isEmpty());
    QVERIFY(!eps.contains("%%Copyright"));
  }

  void anEmbeddedFontWithReturnsAsLineEndsStaysWhole() {
    const kit::Type1Parts made = kit::madeType1();
    const QByteArray clear = QByteArray(made.clear).replace('\n', '\r');
    const QByteArray font = "<< /Type /Font /Subtype /Type1 /BaseFont /Square /FontDescriptor 7 0 R >>";
    const QByteArray descriptor = "<< /Type /FontDescriptor /FontName /Square /Flags 4 /FontFile 8 0 R >>";
    const QByteArray file =
        kit::stream(clear + made.encrypted, "/Length1 " + QByteArray::number(clear.size()) + " /Length2 " +
                                                QByteArray::number(made.encrypted.size()) + " /Length3 0");
    const QByteArray eps =
        Converted(page("BT /G 18 Tf 50 70 Td (A) Tj ET", "/Font << /G 6 0 R >>", {font, descriptor, file}))
            .eps();
    QCOMPARE(eps.count("%!PS"), 1);
    QVERIFY(eps.contains("\n/FontName /Square def\n"));
    QVERIFY(eps.contains("\ncurrentdict end\ncurrentfile eexec\n"));
  }

  void whatIsPlacedInsideLeavesNothingBehind() {
    // Put on a page twice, with a mark between and a check that stacks and graphics state are as before.
    Converted converted(page(kVectors + kTransparent));
    QTemporaryDir folder;
    QFile file(folder.filePath("placed.eps"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(converted.eps());
    file.close();
    const QByteArray program =
        "/showpage {} def 42 countdictstack /depth exch def\n(" + QFile::encodeName(file.fileName()) +
        ") run\ncountdictstack depth eq { (dictionaries ) print } if 42 eq { (operands) print } if flush\n";
    QProcess gs;
    gs.start("gs", {"-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "--permit-file-read=" + folder.path() + "/",
                    "-sDEVICE=nullpage", "-"});
    QVERIFY(gs.waitForStarted());
    gs.write(program);
    gs.closeWriteChannel();
    QVERIFY(gs.waitForFinished(60000));
    QCOMPARE(gs.readAllStandardOutput(), QByteArray("dictionaries operands"));
  }

  void aRectangleOfATurnedPageBecomesEps() {
    EngineContext context;
    QTemporaryDir folder;
    context.scratchFolder = folder.path();
    auto engine = openPdf(page(kVectors + kTransparent), context);
    QVERIFY(engine.ok());
    ComposeRequest request;
    request.format = VectorFormat::Eps;
    request.rect = QRectF(-50, -30, 80.5, 60);
    request.rotate = 0.5;
    const auto eps = (*engine)->compose(request);
    QVERIFY2(eps.ok(), eps ? "" : qPrintable(eps.error().message));
    QVERIFY(eps->bytes.contains("%%HiResBoundingBox: 0 0 80.5 60\n"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 0);
  }

  void whatIsNoPdfIsAnError() {
    Converted converted("no PDF");
    QCOMPARE(converted.error().kind, ErrorKind::NotParsable);
  }

  void differencesAreGathered() {
    const Bitmap one = *Bitmap::create({100, 80});
    Bitmap other = *Bitmap::create(one.size());
    const auto mark = [&](int x, int y) { other.row(y)[x] = 0xff000000; };
    QVERIFY(differingRegions(one, other).isEmpty());
    mark(10, 10);
    mark(90, 70);
    const QList<QRect> two = differingRegions(one, other);
    QCOMPARE(two.size(), 2);
    QVERIFY(two[0].contains(10, 10) && two[1].contains(90, 70));
    QVERIFY(!two[0].intersects(two[1]));
    for (int i = 10; i < 70; ++i) mark(i, i);  // a diagonal bridges them
    QCOMPARE(differingRegions(one, other).size(), 2);
    QVERIFY(differingRegions(one, *Bitmap::create({1, 1})).isEmpty());
  }

  void whatHasACellBetweenStaysApart() {
    const auto regionsOf = [](QPoint first, QPoint second) {
      const Bitmap one = *Bitmap::create({24, 24});
      Bitmap other = *Bitmap::create(one.size());
      for (const QPoint& place : {first, second}) other.row(place.y())[place.x()] = 0xff000000;
      return differingRegions(one, other);
    };
    QCOMPARE(regionsOf({4, 4}, {20, 4}), (QList<QRect>{{0, 0, 8, 8}, {16, 0, 8, 8}}));
    QCOMPARE(regionsOf({4, 4}, {4, 20}), (QList<QRect>{{0, 0, 8, 8}, {0, 16, 8, 8}}));
    QCOMPARE(regionsOf({20, 4}, {4, 12}), (QList<QRect>{{16, 0, 8, 8}, {0, 8, 8, 8}}));
    QCOMPARE(regionsOf({12, 4}, {4, 12}), (QList<QRect>{{0, 0, 16, 16}}));
  }

  void regionsAreDisjointAndCoverEveryDifference() {
    const Bitmap one = *Bitmap::create({300, 200});
    Bitmap other = *Bitmap::create(one.size());
    quint32 seed = 12345;
    QList<QPoint> marks;
    for (int i = 0; i < 60; ++i) {
      seed = seed * 1664525u + 1013904223u;
      marks << QPoint(int(seed >> 8) % 300, int(seed >> 20) % 200);
      other.row(marks.last().y())[marks.last().x()] = 0x80808080;
    }
    const QList<QRect> regions = differingRegions(one, other);
    for (const QPoint& mark : marks)
      QCOMPARE(
          std::count_if(regions.begin(), regions.end(), [&](const QRect& r) { return r.contains(mark); }), 1);
    for (const QRect& region : regions) QVERIFY(one.rect().contains(region));
  }

  void whatIsNoRectangleBecomesSeveral() {
    // Much at the left and a line along the bottom, as in a diagram: its box is nearly all of the image.
    const Bitmap one = *Bitmap::create({640, 480});
    Bitmap other = *Bitmap::create(one.size());
    for (int y = 8; y < 470; ++y)
      for (int x = 8; x < (y < 440 ? 90 : 630); ++x) other.row(y)[x] = 0xff204080;
    const QList<QRect> regions = differingRegions(one, other);
    QVERIFY(regions.size() > 1);
    int area = 0;
    for (const QRect& region : regions) {
      area += region.width() * region.height();
      for (const QRect& another : regions) QVERIFY(region == another || !region.intersects(another));
    }
    QVERIFY2(area < 640 * 480 / 4, qPrintable(QString::number(area)));
    for (int y = 0; y < 480; ++y)
      for (int x = 0; x < 640; ++x)
        if (other.row(y)[x] != 0)
          QVERIFY(std::any_of(regions.begin(), regions.end(),
                              [&](const QRect& region) { return region.contains(x, y); }));
  }

  void whatNobodySeesIsNoDifference() {
    const Bitmap one = *Bitmap::create({24, 24});
    for (const int channel : {0, 8, 16, 24}) {
      Bitmap other = *Bitmap::create(one.size());
      other.row(12)[12] = Argb32(6) << channel;
      QVERIFY(differingRegions(one, other).isEmpty());
      other.row(12)[12] = Argb32(7) << channel;
      QCOMPARE(differingRegions(one, other), QList<QRect>{QRect(8, 8, 8, 8)});
    }
  }

  /// Two pixels beside a difference belong to it.
  void aSoftEdgeReachesIntoTheCellBesideIt() {
    const auto regionOf = [](QPoint place) {
      const Bitmap one = *Bitmap::create({40, 40});
      Bitmap other = *Bitmap::create(one.size());
      other.row(place.y())[place.x()] = 0xff000000;
      return differingRegions(one, other).value(0);
    };
    QCOMPARE(regionOf({10, 13}), QRect(8, 8, 8, 8));
    QCOMPARE(regionOf({9, 13}), QRect(0, 8, 16, 8));
    QCOMPARE(regionOf({13, 14}), QRect(8, 8, 8, 16));
    QCOMPARE(regionOf({0, 39}), QRect(0, 32, 8, 8));
  }

  /// An image more costs as much as 64 cells, and no more than an eighth of what there is may be given for
  /// it.
  void aRegionIsCutWhereMuchIsSpared() {
    const auto regionsOf = [](QSize cells, const std::function<bool(int, int)>& isIn) {
      const Bitmap one = *Bitmap::create(cells * 8);
      Bitmap other = *Bitmap::create(one.size());
      for (int y = 0; y < cells.height(); ++y)
        for (int x = 0; x < cells.width(); ++x)
          if (isIn(x, y)) other.row(y * 8 + 4)[x * 8 + 4] = 0xff000000;
      return differingRegions(one, other).size();
    };
    const auto corner = [](int x, int y) { return x == 0 || y == 0; };
    QCOMPARE(regionsOf({9, 9}, corner), 2);
    QCOMPARE(regionsOf({9, 8}, corner), 1);
    const auto butACorner = [](int x, int y) { return x >= 8 || y >= 8; };
    QCOMPARE(regionsOf({22, 22}, butACorner), 2);
    QCOMPARE(regionsOf({24, 24}, butACorner), 1);
  }

  /// A quarter of the pixels that a picture may have is for all images together.
  void imagesAreCoarserWhereTheyHaveTooManyPixels() {
    EngineContext context;
    context.limits.megapixels = 1;
    const QByteArray pdf =
        onePage("/H gs 0 0.6 0 rg 0 0 200 100 re f",
                "/MediaBox [0 0 200 100] /Resources << /ExtGState << /H << /ca 0.5 >> >> >>");
    const auto eps = epsFromPdf(pdf, context);
    QVERIFY(eps.ok());
    QCOMPARE(eps->report.rasterisedDpi, 72 * std::sqrt(250'000.0 / 20'000));
    QCOMPARE(eps->report.rasterisedAreaShare, 1.0);
    QVERIFY(eps->bytes.contains("/Width 708 /Height 354 "));
  }

  void base85() {
    QCOMPARE(ascii85(""), QByteArray("~>"));
    QCOMPARE(ascii85("Man "), QByteArray("9jqo^~>"));
    QCOMPARE(ascii85("Man sure."), QByteArray("9jqo^F*2M7/c~>"));
    QCOMPARE(ascii85(QByteArray(4, '\0')), QByteArray("z~>"));
    QCOMPARE(ascii85(QByteArray(3, '\0')), QByteArray("!!!!~>"));
  }
};

NORVEX_TEST(EpsFromPdfTest)
#include "eps_from_pdf_test.moc"
