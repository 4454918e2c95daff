#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;

namespace {

// A request for the whole page at `scale` pixels a point.
RenderRequest whole(QSizeF page, double scale = 1) {
  RenderRequest request;
  request.pixelSize = (page * scale).toSize();
  request.pictureToDevice = QTransform(scale, 0, 0, -scale, 0, page.height() * scale);
  return request;
}

QImage rendered(const QByteArray& pdf, const RenderRequest& request) {
  EngineContext context;
  auto engine = openPdf(pdf, context);
  if (!engine) return {};
  const auto image = kit::imageOf((*engine)->render(request));
  return image ? *image : QImage();
}

const QRgb kRed = qRgba(255, 0, 0, 255);
const QRgb kBlue = qRgba(0, 0, 255, 255);

// The lower-left quarter red, the upper-right quarter blue, the rest unpainted.
const QByteArray kQuarters = "1 0 0 rg 0 0 100 50 re f 0 0 1 rg 100 50 100 50 re f";

}  // namespace

class PdfRenderTest : public QObject {
  Q_OBJECT
 private slots:
  void unpaintedIsTransparent() {
    const QImage image = rendered(onePage(kQuarters), whole({200, 100}));
    QCOMPARE(image.size(), QSize(200, 100));
    QCOMPARE(image.pixel(50, 75), kRed);
    QCOMPARE(image.pixel(150, 25), kBlue);
    QCOMPARE(image.pixel(50, 25), 0u);
    QCOMPARE(image.pixel(150, 75), 0u);
  }

  void fontsThatAreNotInTheFileAreTold_data() {
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<bool>("missing");
    QTest::newRow("standard") << QByteArray("/Type1 /BaseFont /Helvetica-BoldOblique") << false;
    QTest::newRow("goes for a standard one") << QByteArray("/TrueType /BaseFont /Arial,Bold") << false;
    QTest::newRow("missing") << QByteArray("/Type1 /BaseFont /Nonesuch-Bold") << true;
    QTest::newRow("missing, with a description")
        << QByteArray(
               "/TrueType /BaseFont /ABCDEF+Nonesuch-Bold /FontDescriptor << /Type /FontDescriptor /FontName "
               "/Nonesuch-Bold >>")
        << true;
    QTest::newRow("in the file") << QByteArray(
                                        "/TrueType /BaseFont /Nonesuch-Bold /FontDescriptor << /Type "
                                        "/FontDescriptor /FontFile2 6 0 R >>")
                                 << false;
    QTest::newRow("made of parts, missing")
        << QByteArray(
               "/Type0 /BaseFont /Nonesuch-Bold /DescendantFonts [<< /Type /Font /Subtype /CIDFontType2 "
               "/BaseFont /Nonesuch-Bold >>]")
        << true;
    QTest::newRow("drawn by the file itself") << QByteArray("/Type3 /Name /Nonesuch-Bold") << false;
  }
  void fontsThatAreNotInTheFileAreTold() {
    QFETCH(QByteArray, font);
    QFETCH(bool, missing);
    const QByteArray pdf =
        onePage("0 0 10 10 re f", "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> >>",
                {"<< /Type /Font /Subtype " + font + " >>", kit::stream("true")});
    EngineContext context;
    auto engine = openPdf(pdf, context);
    QVERIFY(engine);
    const QStringList told =
        missing ? QStringList{"the font Nonesuch-Bold is missing, another stands in for it"} : QStringList();
    QVERIFY((*engine)->render(whole({200, 100})));
    QCOMPARE((*engine)->drawingRemarks(), QStringList());  // of pictures that are handed out alone
    RenderRequest request = whole({200, 100});
    request.purpose = RenderPurpose::Export;
    QVERIFY((*engine)->render(request));
    QCOMPARE((*engine)->drawingRemarks(), told);
    QCOMPARE((*engine)->compose({VectorFormat::Eps, 0, QRectF(-50, -50, 100, 100), 0})->report.warnings,
             told);
    QCOMPARE((*engine)->compose({VectorFormat::Pdf, 0, QRectF(-50, -50, 100, 100), 0})->report.warnings,
             QStringList());
  }

  void whiteThatIsPaintedIsWhite() {
    const QImage image = rendered(onePage("1 g 0 0 100 100 re f"), whole({200, 100}));
    QCOMPARE(image.pixel(50, 50), qRgba(255, 255, 255, 255));
    QCOMPARE(image.pixel(150, 50), 0u);
  }

  /// As a turned picture of several tiles has them: each edge alone would let a quarter through.
  void tilesThatMeetAslantShowNoSeam() {
    const auto tile = [](const QByteArray& box) {
      return "q 0.8 0.6 -0.6 0.8 100 50 cm " + box + " re W n 1 0 0 rg -50 -50 100 100 re f Q ";
    };
    const QImage image =
        rendered(onePage(tile("-30 -30 30.3 60") + tile("0.3 -30 30 60")), whole({200, 100}));
    for (int along = -25; along <= 25; ++along) {  // the line where they meet
      const int alpha = qAlpha(image.pixel(int(100.24 - 0.6 * along), int(49.82 - 0.8 * along)));
      QVERIFY2(alpha > 250, qPrintable(QString::number(alpha)));
    }
    QCOMPARE(image.pixel(0, 0), 0u);
  }

  void outsideThePageIsTransparent() {
    RenderRequest request = whole({200, 100});
    request.pixelSize = QSize(300, 200);
    request.pictureToDevice = QTransform(1, 0, 0, -1, 50, 150);
    const QImage image = rendered(onePage("1 0 0 rg -500 -500 2000 2000 re f"), request);
    QCOMPARE(image.pixel(100, 100), kRed);
    for (const QPoint outside : {QPoint(49, 100), QPoint(250, 100), QPoint(100, 49), QPoint(100, 150)})
      QCOMPARE(image.pixel(outside), 0u);
    for (const QPoint inside : {QPoint(50, 100), QPoint(249, 100), QPoint(100, 50), QPoint(100, 149)})
      QCOMPARE(image.pixel(inside), kRed);
  }

  void theCropBoxIsThePage() {
    const QByteArray pdf = onePage(kQuarters, "/MediaBox [0 0 200 100] /CropBox [100 50 150 90]");
    const QImage image = rendered(pdf, whole({50, 40}));
    QCOMPARE(image.size(), QSize(50, 40));
    QCOMPARE(image.pixel(0, 0), kBlue);
    QCOMPARE(image.pixel(49, 39), kBlue);
  }

  void aCropBoxThatReachesBeyondThePaperEndsWithIt_data() {
    QTest::addColumn<QByteArray>("crop");
    QTest::addColumn<QSize>("size");
    QTest::newRow("below") << QByteArray("0 -50 200 80") << QSize(200, 80);
    QTest::newRow("above") << QByteArray("0 20 200 300") << QSize(200, 80);
    QTest::newRow("at the left") << QByteArray("-50 0 150 100") << QSize(150, 100);
    QTest::newRow("at the right") << QByteArray("50 0 300 100") << QSize(150, 100);
    QTest::newRow("on all sides") << QByteArray("-10 -10 500 500") << QSize(200, 100);
  }
  void aCropBoxThatReachesBeyondThePaperEndsWithIt() {
    QFETCH(QByteArray, crop);
    QFETCH(QSize, size);
    // Where the quarters meet is seen at its own place, neither moved nor stretched.
    const QImage image =
        rendered(onePage(kQuarters, "/MediaBox [0 0 200 100] /CropBox [" + crop + "]"), whole(size));
    const int left = std::max(0, crop.split(' ')[0].toInt());
    const int top = std::min(100, crop.split(' ')[3].toInt());
    const QPoint meet(100 - left, top - 50);
    QCOMPARE(image.pixel(meet + QPoint(-1, 0)), kRed);
    QCOMPARE(image.pixel(meet + QPoint(0, -1)), kBlue);
    QCOMPARE(image.pixel(meet), 0u);
    QCOMPARE(image.pixel(meet + QPoint(-1, -1)), 0u);
  }

  void theMatrixIsExact() {
    // Ten times enlarged around the border between the quarters: picture point (100, 50) is at pixel (10,
    // 10).
    RenderRequest request;
    request.pixelSize = QSize(20, 20);
    request.pictureToDevice = QTransform(10, 0, 0, -10, 10 - 1000, 10 + 500);
    const QImage image = rendered(onePage(kQuarters), request);
    QCOMPARE(image.pixel(9, 10), kRed);
    QCOMPARE(image.pixel(10, 9), kBlue);
    QCOMPARE(image.pixel(9, 9), 0u);
    QCOMPARE(image.pixel(10, 10), 0u);
  }

  void aTurnedRequestTurnsThePicture() {
    // 90° counter-clockwise: the picture's lower-left corner goes to the lower right.
    RenderRequest request;
    request.pixelSize = QSize(100, 200);
    request.pictureToDevice = QTransform(0, -1, -1, 0, 100, 200);
    const QImage image = rendered(onePage(kQuarters), request);
    QCOMPARE(image.pixel(75, 150), kRed);
    QCOMPARE(image.pixel(25, 50), kBlue);
    QCOMPARE(image.pixel(25, 150), 0u);
  }

  void thePagesOwnRotationIsShown_data() {
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPoint>("red");
    QTest::addColumn<QPoint>("blue");
    QTest::newRow("90") << 90 << QSizeF(100, 200) << QPoint(25, 50) << QPoint(75, 150);
    QTest::newRow("180") << 180 << QSizeF(200, 100) << QPoint(150, 25) << QPoint(50, 75);
    QTest::newRow("270") << 270 << QSizeF(100, 200) << QPoint(75, 150) << QPoint(25, 50);
  }
  void thePagesOwnRotationIsShown() {
    QFETCH(int, degrees);
    QFETCH(QSizeF, size);
    QFETCH(QPoint, red);
    QFETCH(QPoint, blue);
    const QByteArray page = "/MediaBox [0 0 200 100] /Rotate " + QByteArray::number(degrees);
    const QImage image = rendered(onePage(kQuarters, page), whole(size));
    QCOMPARE(image.pixel(red), kRed);
    QCOMPARE(image.pixel(blue), kBlue);
  }

  void aUserUnitEnlargesThePage() {
    const QImage image =
        rendered(onePage(kQuarters, "/MediaBox [0 0 200 100] /UserUnit 2"), whole({400, 200}));
    QCOMPARE(image.pixel(199, 101), kRed);
    QCOMPARE(image.pixel(201, 98), kBlue);
  }

  void transparencyStays() {
    const QByteArray page = "/MediaBox [0 0 200 100] /Resources << /ExtGState << /H << /ca 0.5 >> >> >>";
    const QImage image = rendered(onePage("/H gs 1 0 0 rg 0 0 200 100 re f", page), whole({200, 100}));
    QVERIFY(std::abs(qAlpha(image.pixel(100, 50)) - 128) <= 1);
  }

  void linksHaveNoFrameAndNotesAreSeen() {
    const QByteArray page = "/MediaBox [0 0 200 100] /Annots [5 0 R 6 0 R]";
    const QByteArray pdf =
        onePage("0 1 0 rg 0 0 10 10 re f", page,
                {"<< /Type /Annot /Subtype /Link /Rect [50 20 150 80] /Border [0 0 4] >>",
                 "<< /Type /Annot /Subtype /Square /Rect [160 20 190 80] /F 4 /C [1 0 0] /IC [1 0 0] >>"});
    EngineContext context;
    const auto engine = openPdf(pdf, context);
    QVERIFY(engine);
    for (int again = 0; again < 2; ++again) {
      const auto image = kit::imageOf((*engine)->render(whole({200, 100})));
      QVERIFY(image);
      QCOMPARE(image->pixel(5, 95), qRgb(0, 255, 0));
      QCOMPARE(image->pixel(175, 50), kRed);
      for (int x = 40; x < 155; ++x) QCOMPARE(image->pixel(x, 50), 0u);
    }
  }

  void anotherPageIsDrawnOnRequest() {
    const QByteArray pdf =
        kit::madePdf({"<< /Type /Catalog /Pages 2 0 R >>",
                      "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 /MediaBox [0 0 9 9] >>",
                      "<< /Type /Page /Parent 2 0 R >>", "<< /Type /Page /Parent 2 0 R /Contents 5 0 R >>",
                      kit::stream("1 0 0 rg 0 0 9 9 re f")});
    RenderRequest request = whole({9, 9});
    QCOMPARE(rendered(pdf, request).pixel(4, 4), 0u);
    request.page = 1;
    QCOMPARE(rendered(pdf, request).pixel(4, 4), kRed);
  }

  void thereIsNoSuchPage() {
    EngineContext context;
    auto engine = openPdf(onePage(""), context);
    QVERIFY(engine.ok());
    for (const int page : {-1, 1, 99}) {
      RenderRequest request = whole({200, 100});
      request.page = page;
      const auto image = kit::imageOf((*engine)->render(request));
      QVERIFY(!image.ok());
      QCOMPARE(image.error().kind, ErrorKind::Unsupported);
    }
    QVERIFY((*engine)->render(whole({200, 100})).ok());  // a failure leaves the document usable
  }

  void tooManyPixelsAreALimit() {
    EngineContext context;
    context.limits.megapixels = 1;
    auto engine = openPdf(onePage(""), context);
    RenderRequest request = whole({200, 100});
    request.pixelSize = QSize(1001, 1000);
    const auto image = kit::imageOf((*engine)->render(request));
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Limit);
  }

  void onlySvgIsGivenAsSvg() {
    EngineContext context;
    auto engine = openPdf(onePage(""), context);
    const auto svg = (*engine)->svg({});
    QVERIFY(!svg.ok());
    QCOMPARE(svg.error().kind, ErrorKind::Unsupported);
  }
};

NORVEX_TEST(PdfRenderTest)
#include "pdf_render_test.moc"
