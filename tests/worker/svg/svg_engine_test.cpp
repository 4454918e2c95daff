// SVG documents in the picture process: facts, drawing, PDF, compressed and broken ones.
#include <QtMath>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/engine/engine.h"
#include "worker/pages/pdf_engine.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using norvex::kit::drawn;
using norvex::kit::gzipped;
using norvex::kit::imageOf;
using norvex::kit::OpenSvg;
using norvex::kit::svgOf;

namespace {

const QByteArray kRedLeftTop = R"(<rect width="50" height="20" fill="#ff0000"/>)";

PictureFacts factsOf(const QByteArray& svg) {
  OpenSvg document(svg);
  if (!document.ok()) return {};
  return *document->facts();
}

}  // namespace

class SvgEngineTest : public QObject {
  Q_OBJECT
 private slots:
  void withoutARectangleTheSourceIsHandedOnByteForByte() {
    const QByteArray odd = "\xEF\xBB\xBF<?xml version='1.0'  encoding='utf-8'?>\r\n<!--a-->\t" +
                           svgOf("width='10' height='10'", "<rect\twidth='5' height='5'/>") +
                           "\n<!--b-->\n\n";
    SvgRequest request;
    request.pretty = false;
    OpenSvg plain(odd);
    QCOMPARE((*plain->svg(request)).bytes, odd);
    OpenSvg compressed(gzipped(odd));
    QCOMPARE((*compressed->svg(request)).bytes, odd);
    request.rotate = 1;  // turned, it is another document: the whole picture
    QVERIFY((*plain->svg(request)).bytes.contains("matrix("));
  }

  void aLongDocumentIsTheSameWithOneAndWithTwoProcessors() {
    QByteArray curves;
    for (int i = 0; curves.size() < 300'000; ++i) {
      const auto place = [i](int part) {
        return QByteArray::number((i * 37 + i * part * 11 + part * 53) % 200);
      };
      curves += "<path fill='none' stroke='#" + QByteArray::number(100 + i % 899) + "' d='M" + place(1) +
                " " + place(2) + "C" + place(3) + " " + place(4) + " " + place(5) + " " + place(6) + " " +
                place(7) + " " + place(8) + "'/>\n";
    }
    const QByteArray gradient =
        "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient>"
        "<circle cx='100' cy='100' r='77.7' fill='url(#g)' opacity='1'/>";
    const QByteArray clipped =
        "<clipPath id='c'><circle cx='90' cy='90' r='80.3'/></clipPath><g clip-path='url(#c)' "
        "stroke-width='3' "
        "transform='rotate(9)'>" +
        curves.left(curves.indexOf("<path", 60'000)) + "</g><svg x='20' y='60.5' width='90' height='99'>" +
        curves.left(curves.indexOf("<path", 30'000)) + "</svg>";
    const QByteArray text = "<text x='5' y='120' font-size='60'>Text</text>";  // not told to another thread
    for (const QByteArray& contents :
         {curves, QByteArray(curves + gradient), QByteArray(curves + clipped + curves),
          QByteArray(curves + text + curves)}) {
      OpenSvg one(svgOf("width='200' height='200'", contents)),
          two(svgOf("width='200' height='200'", contents));
      two.context.processors = 2;
      for (const double scale : {1.0, 1.37}) {
        const Result<QImage> whole = drawn(**one.result, scale), halves = drawn(**two.result, scale);
        QVERIFY(whole && halves);
        QCOMPARE(*whole, *halves);
      }
    }
  }

  void fontsAreThoseNamedForTexts() {
    const PictureFacts facts = factsOf(
        svgOf("width='10' height='10' font-family=\"Arial, 'Open  Sans', inherit\"",
              "<style><![CDATA[ /* font-family: Old; */ text { fill: red; font-family: \"Gentium, Book\" } "
              ".a{font:italic "
              "bold 12px/1.5 Lato, serif} .b{font:inherit;font-size:3px;font-variant:normal}]]></style>"
              "<path style='font-family:Unused'/><g style='fill:red;font-family:Fira Sans !important'><text "
              "style='font:small-caps 10pt Georgia'>x<tspan font-family='arial'>y</tspan></text></g>"));
    QCOMPARE(facts.fonts,
             (QStringList{"Arial", "Open Sans", "Gentium, Book", "Lato", "serif", "Fira Sans", "Georgia"}));
    QCOMPARE(facts.colorSpaces, QStringList{"sRGB"});
    // Of hostile ones the time grows with the length, not with its square.
    const QByteArray digits(1 << 20, '1');
    const PictureFacts hostile = factsOf(svgOf("width='10' height='10' font='" + digits + "'",
                                               "<style>" + QByteArray("/*").repeated(1 << 19) +
                                                   "</style><text style='font:" + digits + " A'>x</text>"));
    QVERIFY(hostile.fonts.isEmpty() && !hostile.pageBounds.isEmpty());
    for (const char* other : {"<rect width='5' height='5'/>", "<flowRoot><flowPara>x</flowPara></flowRoot>"})
      QVERIFY(factsOf(svgOf("width='10' height='10' font-family='Arial'", other)).fonts.isEmpty());
  }

  void boundsArePoints() {
    // 96 pixels are an inch, and an inch is 72 points.
    QCOMPARE(factsOf(svgOf("width='200' height='100'", "")).pageBounds.value(0), QRectF(0, 0, 150, 75));
    QCOMPARE(factsOf(svgOf("width='200pt' height='1in'", "")).pageBounds.value(0), QRectF(0, 0, 200, 72));
    QCOMPARE(factsOf(svgOf("viewBox='5 6 40 20'", "")).pageBounds.value(0), QRectF(0, 0, 30, 15));
    QCOMPARE(factsOf(svgOf("", "<rect x='10' y='20' width='30' height='40'/>")).pageBounds.value(0),
             QRectF(0, 0, 30, 45));
    QCOMPARE(factsOf(svgOf("", "")).pageBounds.value(0), QRectF(0, 0, 225, 112.5));
    const QByteArray rule = "<style>/*;width:1px*/svg{width:200pt; height:1in} rect{stroke-width:3}</style>";
    QCOMPARE(factsOf(svgOf("viewBox='0 0 40 20'", rule)).pageBounds.value(0), QRectF(0, 0, 200, 72));
    QCOMPARE(factsOf(svgOf("width='33.3mm' height='0.7in'", "<style>rect{width:9px}</style>")).pageBounds,
             factsOf(svgOf("width='33.3mm' height='0.7in'", "")).pageBounds);
    const QRectF common(0, 0, 225, 112.5);  // what is laid out by it fills no other one
    QCOMPARE(factsOf(svgOf("", "<rect x='10%' y='10%' width='80%' height='80%'/>")).pageBounds.value(0),
             common);
    QCOMPARE(
        factsOf(svgOf("", "<svg viewBox='0 0 9 9'><rect width='9' height='9'/></svg>")).pageBounds.value(0),
        common);
    QCOMPARE(
        factsOf(svgOf("", "<rect width='100%' height='100%'/><rect x='390' y='190' width='10' height='10'/>"))
            .pageBounds.value(0),
        QRectF(0, 0, 300, 150));
  }

  void theViewBoxIsInUserUnits() {
    QCOMPARE(*factsOf(svgOf("viewBox='5 6 40 20' width='10'", "")).viewBox, QRectF(5, 6, 40, 20));
    QVERIFY(!factsOf(svgOf("width='10' height='10'", "")).viewBox);
  }

  void aFixedRatioIsAnAbsoluteLength() {
    const PictureFacts mixed = factsOf(svgOf("width='10' height='100%' viewBox='0 0 1 1'", ""));
    QCOMPARE(mixed.fixedRatioX, std::optional<bool>(true));
    QCOMPARE(mixed.fixedRatioY, std::optional<bool>(false));
    const PictureFacts none = factsOf(svgOf("viewBox='0 0 1 1'", ""));
    QVERIFY(!none.fixedRatioX && !none.fixedRatioY);
  }

  void titleAndDescriptionAreTheRootsOwn() {
    const QByteArray svg = "<!DOCTYPE svg [<!ENTITY who 'Ada &amp; Eve'>]>" +
                           svgOf("width='1' height='1'",
                                 "<g><title>inner</title></g><title>\n  By &who;,\n twice "
                                 "</title><title>second</title><desc>\n a\n b </desc>");
    const PictureFacts facts = factsOf(svg);
    QCOMPARE(facts.title, QStringLiteral("By Ada & Eve, twice"));
    QCOMPARE(facts.description, QStringLiteral("a\n b"));
    const PictureFacts none = factsOf(svgOf("width='1' height='1'", "<g><title>inner</title></g>"));
    QVERIFY(none.title.isNull());
    QVERIFY(none.description.isNull());
    const PictureFacts empty = factsOf(svgOf("width='1' height='1'", "<title/>"));
    QVERIFY(empty.title.isEmpty() && !empty.title.isNull());
  }

  void warningsAreSentences() {
    const PictureFacts facts =
        factsOf(svgOf("width='wide' viewBox='0 0 1 1'",
                      "<image href='http://example.org/a.png'/><script>1</script><set/>"));
    QCOMPARE(facts.warnings.size(), 4);
    for (const QString& warning : facts.warnings)
      QVERIFY(warning.startsWith("the document") && !warning.endsWith('.'));
    QVERIFY(factsOf(svgOf("width='1' height='1'", kRedLeftTop)).warnings.isEmpty());
  }

  void picturePointsAreMeasuredFromTheLowerLeftCorner() {
    // 100 × 50 pixels are 75 × 37.5 points; the red is at the upper left, 37.5 × 15 points.
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    RenderRequest request;
    request.pixelSize = QSize(75, 38);
    request.pictureToDevice = QTransform();  // y up: row 0 shows the bottom of the picture
    const QImage image = imageOf(*document->render(request));
    QCOMPARE(image.size(), QSize(75, 38));
    QCOMPARE(image.pixel(10, 30), 0xffff0000u);
    QCOMPARE(image.pixel(10, 15), 0u);
    QCOMPARE(image.pixel(50, 30), 0u);
  }

  void whatIsNotPaintedStaysTransparent() {
    OpenSvg document(
        svgOf("width='100' height='50'", "<rect x='-50' width='1000' height='20' fill='#0000ff'/>"));
    RenderRequest request;  // the picture in the middle of a larger image
    request.pixelSize = QSize(200, 150);
    request.pictureToDevice = QTransform(4.0 / 3, 0, 0, -4.0 / 3, 50, 100);
    const QImage image = imageOf(*document->render(request));
    QCOMPARE(image.pixel(50, 50), 0xff0000ffu);
    QCOMPARE(image.pixel(149, 69), 0xff0000ffu);
    for (const QPoint& outside :
         {QPoint(49, 60), QPoint(150, 60), QPoint(100, 49), QPoint(100, 71), QPoint(0, 0)})
      QCOMPARE(image.pixel(outside), 0u);
  }

  void aTurnedMatrixIsExact() {
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    RenderRequest request;  // a quarter turn clockwise: (x, y) → (y, x) with y up becomes right
    request.pixelSize = QSize(50, 100);
    request.pictureToDevice = QTransform(0, 4.0 / 3, 4.0 / 3, 0, 0, 0);
    const QImage image = imageOf(*document->render(request));
    QCOMPARE(image.pixel(49, 0), 0xffff0000u);
    QCOMPARE(image.pixel(31, 49), 0xffff0000u);
    QCOMPARE(image.pixel(29, 10), 0u);
    QCOMPARE(image.pixel(40, 51), 0u);
  }

  void layersAreRightAtEveryAngle_data() {
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("a group") << QByteArray("<g opacity='0.5'><rect width='96' height='96' fill='#f00'/></g>");
    QTest::newRow("in a style") << QByteArray(
        "<g style='/**/opacity:0.5'><rect width='96' height='96' fill='#f00'/></g>");
    QTest::newRow("a clip in units of what it clips") << QByteArray(
        "<clipPath id='c' clipPathUnits='objectBoundingBox'><path d='M0 0h1v1H0'/></clipPath>"
        "<path d='M0 0h96v96H0' fill='#f00' fill-opacity='0.5' clip-path='url(#c)'/>");
  }
  void layersAreRightAtEveryAngle() {
    QFETCH(QByteArray, contents);
    OpenSvg document(svgOf("width='96' height='96'", contents));
    for (int degrees = 0; degrees < 360; degrees += 15) {
      RenderRequest request;
      request.pixelSize = QSize(120, 120);
      request.pictureToDevice = QTransform::fromTranslate(-36, -36) * QTransform().rotate(degrees) *
                                QTransform::fromScale(1, -1) * QTransform::fromTranslate(60, 60);
      const Result<QImage> image = imageOf(document->render(request));
      QVERIFY2(image, qPrintable(QString::number(degrees)));
      const AffineTransform back = request.pictureToDevice.inverted();
      for (int y = 0; y < 120; y += 3) {
        for (int x = 0; x < 120; x += 3) {
          const QPointF at = back.map(QPointF(x + 0.5, y + 0.5));
          if (QRectF(2, 2, 68, 68).contains(at)) QVERIFY(std::abs(qAlpha(image->pixel(x, y)) - 128) <= 1);
          if (!QRectF(-2, -2, 76, 76).contains(at)) QCOMPARE(image->pixel(x, y), 0u);
        }
      }
    }
  }

  void aFilterIsDrawnHoweverLargeThePicture() {
    OpenSvg document(svgOf("width='2000' height='2000'",
                           "<filter id='f'><feOffset dx='0' dy='0'/></filter>"
                           "<rect width='1000' height='2000' filter='url(#f)' fill='#00f'/>"));
    RenderRequest request;  // 64 times as large: 128000 pixels a side, of which the middle is asked for
    request.pixelSize = QSize(100, 100);
    const double scale = 64 * 4.0 / 3;
    request.pictureToDevice = QTransform(scale, 0, 0, -scale, 50 - 750 * scale, 50 + 750 * scale);
    const Result<QImage> image = imageOf(document->render(request));
    QVERIFY2(image, image ? "" : qPrintable(image.error().message));
    QCOMPARE(image->pixel(45, 50), 0xff0000ffu);
    QCOMPARE(image->pixel(54, 50), 0u);
  }

  void tooLargeImagesAreRefused() {
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    RenderRequest request;
    request.pixelSize = QSize(20'000, 20'000);
    QCOMPARE(document->render(request).error().kind, ErrorKind::Limit);
    request.pixelSize = QSize(70'000, 1);
    QCOMPARE(document->render(request).error().kind, ErrorKind::Limit);
    request.pixelSize = QSize(0, 10);
    QCOMPARE(document->render(request).error().kind, ErrorKind::Protocol);
    request.pixelSize = QSize(10, 10);
    request.pictureToDevice = QTransform(qInf(), 0, 0, 1, 0, 0);
    QCOMPARE(document->render(request).error().kind, ErrorKind::Protocol);
    QVERIFY(drawn(*document.result->get(), 1).ok());  // the document is still usable
  }

  void sidesBeyondCairosOwnAreDrawnInTiles() {
    OpenSvg document(svgOf("width='40000' height='2'", "<rect width='40000' height='2' fill='#00ff00'/>"));
    const Result<QImage> image = drawn(*document.result->get(), 4.0 / 3);
    QVERIFY(image);
    QCOMPARE(image->size(), QSize(40'000, 2));
    for (const int x : {0, 32'766, 32'767, 39'999}) QCOMPARE(image->pixel(x, 0), 0xff00ff00u);
  }

  void anotherPageIsRefused() {
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    RenderRequest request;
    request.page = 1;
    request.pixelSize = QSize(10, 10);
    QCOMPARE(document->render(request).error().kind, ErrorKind::Protocol);
    QCOMPARE(document->pdf({1}).error().kind, ErrorKind::Protocol);
  }

  void aCancelledRequestDoesNothing() {
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    document.context.cancel.cancel();
    QCOMPARE(document->pdf({}).error().kind, ErrorKind::Cancelled);
  }

  void thePdfIsAsLargeAsThePictureAndAlwaysTheSame() {
    const QByteArray svg = svgOf("width='100' height='50'", kRedLeftTop);
    OpenSvg document(svg);
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    QVERIFY(pdf->bytes.startsWith("%PDF-"));
    QVERIFY(pdf->bytes.contains("/MediaBox [ 0 0 75 37.5 ]"));
    QVERIFY(!pdf->bytes.contains("CreationDate"));
    QVERIFY(!pdf->bytes.contains("cairo"));
    QCOMPARE(pdf->report.regionsRasterised, 0);
    QTest::qWait(1100);  // a second later
    OpenSvg again(svg);
    QCOMPARE(again->pdf({})->bytes, pdf->bytes);
  }

  void thePdfShowsThePicture() {
    const QByteArray svg = svgOf("width='100' height='50'", kRedLeftTop +
                                                                "<rect x='60' y='30' width='40' height='20' "
                                                                "fill='url(#p)'/><pattern id='p' width='10' "
                                                                "height='10' patternUnits='userSpaceOnUse'>"
                                                                "<rect width='5' height='10'/></pattern>");
    OpenSvg document(svg);
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    EngineContext context;
    const auto page = openPdf(pdf->bytes, context);
    QVERIFY(page);
    const QImage shown = *drawn(**page, 4);
    const QImage expected = *drawn(*document.result->get(), 4);
    QCOMPARE(shown.size(), QSize(300, 150));
    for (const QPoint& at : {QPoint(20, 20), QPoint(148, 58), QPoint(152, 20), QPoint(20, 62),
                             QPoint(187, 120), QPoint(203, 120), QPoint(290, 140)})
      QCOMPARE(shown.pixel(at), expected.pixel(at));
    QCOMPARE(shown.pixel(187, 120), 0xff000000u);
  }

  void effectsInThePdfAreCounted() {
    OpenSvg document(svgOf("width='100' height='50'",
                           "<filter id='f'><feGaussianBlur stdDeviation='3'/></filter>"
                           "<rect x='20' y='10' width='50' height='20' filter='url(#f)'/>"));
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    QCOMPARE(pdf->report.regionsRasterised, 1);
    QCOMPARE(pdf->report.rasterisedDpi, 300.0);
    QVERIFY(!pdf->report.warnings.isEmpty());
  }

  void effectsInAPartOfThePdfAreCountedWithTheirResolution() {
    OpenSvg document(svgOf("width='100' height='50'",
                           "<filter id='f'><feGaussianBlur stdDeviation='3'/></filter>"
                           "<rect x='20' y='10' width='50' height='20' filter='url(#f)'/>"));
    const Result<EngineBytes> part = document->compose({VectorFormat::Pdf, 0, QRectF(-20, -10, 40, 20), 0});
    QVERIFY(part);
    QCOMPARE(part->report.regionsRasterised, 1);
    QCOMPARE(part->report.rasterisedDpi, 300.0);
  }

  // The renderer cuts a radius at ten units of what it draws on.
  void aFilterThatThickensKeepsItsRadiusInThePdf_data() {
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("dpi");
    QTest::newRow("small") << QByteArray("width='100' height='100'") << 2.0 << 300.0;
    QTest::newRow("large") << QByteArray("width='100' height='100'") << 8.0 << 120.0;
    QTest::newRow("in a view box") << QByteArray("width='200' height='200' viewBox='0 0 100 100'") << 4.0
                                   << 120.0;
    QTest::newRow("too large at any resolution") << QByteArray("width='100' height='100'") << 40.0 << 72.0;
  }
  void aFilterThatThickensKeepsItsRadiusInThePdf() {
    QFETCH(QByteArray, root);
    QFETCH(double, radius);
    QFETCH(double, dpi);
    OpenSvg document(svgOf(root,
                           "<filter id='f' x='-100%' width='300%' y='0' height='100%'><feMorphology "
                           "operator='dilate' radius='" +
                               QByteArray::number(radius) +
                               "'/></filter>"
                               "<rect x='40' y='20' width='20' height='60' filter='url(#f)'/>"));
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    QCOMPARE(pdf->report.rasterisedDpi, dpi);
    if (dpi == 72) return;
    EngineContext context;
    const auto page = openPdf(pdf->bytes, context);
    QVERIFY(page);
    const QImage shown = *drawn(**page, 4);
    const double scale = shown.width() / 100.0;
    const auto isBlack = [&](double x) {
      return qAlpha(shown.pixel(int(x * scale), shown.height() / 2)) > 200;
    };
    QVERIFY(isBlack(40 - radius + 0.7) && isBlack(60 + radius - 0.7));
    QVERIFY(!isBlack(40 - radius - 0.7) && !isBlack(60 + radius + 0.7));
  }

  void aMissingFontIsToldOnceItIsDrawn_data() {
    QTest::addColumn<QString>("families");
    QTest::addColumn<bool>("missing");
    QTest::newRow("missing") << "Nonesuch Sans" << true;
    QTest::newRow("missing before a generic one") << "Nonesuch Sans, sans-serif" << true;
    QTest::newRow("generic") << "serif" << false;
    QTest::newRow("inherited") << "inherit" << false;
  }
  void aMissingFontIsToldOnceItIsDrawn() {
    QFETCH(QString, families);
    QFETCH(bool, missing);
    OpenSvg document(svgOf("width='100' height='50'", "<text x='5' y='20' font-family='" + families.toUtf8() +
                                                          "'>words</text>"
                                                          "<text x='5' y='40' font-family='" +
                                                          families.toLower().toUtf8() + "'>more</text>"));
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    const QString begin = QStringLiteral("the font Nonesuch Sans is missing, ");
    QCOMPARE(pdf->report.warnings.size(), missing ? 1 : 0);
    QCOMPARE(document->drawingRemarks(), pdf->report.warnings);
    if (missing)
      QVERIFY2(pdf->report.warnings.first().startsWith(begin), qPrintable(pdf->report.warnings.first()));
  }

  void composingGivesTheRectangle() {
    OpenSvg document(svgOf("width='100' height='50'", kRedLeftTop));
    ComposeRequest request;
    request.rect = QRectF(-37.5, 3.75, 37.5, 15);  // exactly the red
    const Result<EngineBytes> pdf = document->compose(request);
    QVERIFY(pdf);
    EngineContext context;
    const auto page = openPdf(pdf->bytes, context);
    QVERIFY(page);
    const QImage shown = *drawn(**page, 2);
    QCOMPARE(shown.size(), QSize(75, 30));
    QCOMPARE(shown.pixel(2, 2), 0xffff0000u);
    QCOMPARE(shown.pixel(72, 27), 0xffff0000u);
  }

  void broken_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* name, const QByteArray& bytes, ErrorKind kind = ErrorKind::NotParsable) {
      QTest::newRow(name) << bytes << int(kind);
    };
    row("empty", "");
    row("no XML", "hello");
    row("other XML", "<html/>");
    row("another namespace", "<svg xmlns='http://example.org/'/>");
    row("cut off", "<svg xmlns='http://www.w3.org/2000/svg'><g>");
    row("not UTF-8", "<svg xmlns='http://www.w3.org/2000/svg'><title>\xff\xfe</title></svg>");
    row("unknown encoding",
        "<?xml version='1.0' encoding='klingon'?><svg xmlns='http://www.w3.org/2000/svg'/>");
    row("a gzip header alone", QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\x03", 10));
    row("no extent", svgOf("width='0' height='10'", ""), ErrorKind::Unsupported);
    row("beyond all points", svgOf("width='1e9' height='10'", ""), ErrorKind::Limit);
    row("null bytes", QByteArray(100, '\0'));
    row("half a character of UTF-16", QByteArray("\xff\xfe<\0s", 5));
  }
  void broken() {
    QFETCH(QByteArray, bytes);
    QFETCH(int, kind);
    const OpenSvg document(bytes);
    QVERIFY(!document.ok());
    QCOMPARE(int(document.result.error().kind), kind);
    QVERIFY(!document.result.error().message.isEmpty());
    QVERIFY(!document.result.error().message.endsWith('.'));
  }

  void documentsWithoutTheNamespaceAreDrawn() {
    OpenSvg document("<svg width='100' height='50'>" + kRedLeftTop + "</svg>");
    QVERIFY(document.ok());
    QCOMPARE(drawn(*document.result->get(), 4.0 / 3)->pixel(5, 5), 0xffff0000u);
  }
};

NORVEX_TEST(SvgEngineTest)
#include "svg_engine_test.moc"
