// A rectangle of an SVG picture as a document of its own: it must show what the whole picture shows there.
#include "worker/svg/svg_cut.h"

#include <QDir>
#include <QtMath>

#include <utility>

#include "kit/test_main.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using norvex::kit::drawn;
using norvex::kit::imageOf;
using norvex::kit::largestDifference;
using norvex::kit::OpenSvg;
using norvex::kit::svgOf;

namespace {

QByteArray testFile(const QString& name) {
  QFile file(QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/svg/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Result<EngineBytes> cut(OpenSvg& document, const QRectF& rect, double rotate) {
  SvgRequest request;
  request.pretty = false;
  request.rect = rect;
  request.rotate = rotate;
  return document->svg(request);
}

/// What the picture, turned clockwise, shows in a rectangle of its bounding box (y down), drawn by the engine
/// itself.
QImage expected(OpenSvg& document, const QRectF& rect, double rotate, double scale) {
  const QSizeF size = document->facts()->pageBounds.value(0).size();
  const double c = std::cos(rotate), s = std::sin(rotate);
  const double boxWidth = std::abs(c) * size.width() + std::abs(s) * size.height();
  const double boxHeight = std::abs(s) * size.width() + std::abs(c) * size.height();
  QTransform toDevice = QTransform(1, 0, 0, -1, 0, size.height());  // y down
  toDevice *= QTransform::fromTranslate(-size.width() / 2, -size.height() / 2);
  toDevice *= QTransform(c, s, -s, c, 0, 0);
  toDevice *= QTransform::fromTranslate(boxWidth / 2 - rect.x(), boxHeight / 2 - rect.y());
  toDevice *= QTransform::fromScale(scale, scale);
  RenderRequest request;
  request.pictureToDevice = toDevice;
  request.pixelSize = QSize(qRound(rect.width() * scale), qRound(rect.height() * scale));
  const Result<QImage> image = imageOf(document->render(request));
  if (!image) qWarning("%s", qPrintable(image.error().message));
  return image.ok() ? *image : QImage();
}

}  // namespace

class SvgCutTest : public QObject {
  Q_OBJECT
 private slots:
  void sizeAndViewBoxAreTheRectangle() {
    OpenSvg document(svgOf("width='200' height='100'", "<rect width='10' height='10'/>"));
    const QByteArray bytes = cut(document, QRectF(9, 21, 30.75, 42), 0)->bytes;
    QVERIFY(
        bytes.startsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"30.75pt\" "
                         "height=\"42pt\" viewBox=\"0 0 41 56\">"));
    OpenSvg again(bytes);
    QVERIFY(again.ok());
    QCOMPARE(again->facts()->pageBounds.value(0), QRectF(0, 0, 30.75, 42));
    QCOMPARE(*again->facts()->viewBox, QRectF(0, 0, 41, 56));
    QCOMPARE(again->facts()->fixedRatioX, std::optional<bool>(true));
  }

  // It follows what the document says itself, and nothing is added where that has no style.
  void aStyleOfTheRootIsKept() {
    const auto styles = [](const QByteArray& attributes) {
      OpenSvg document(svgOf("width='200' height='100' " + attributes, "<rect width='10' height='10'/>"));
      const QByteArray bytes = cut(document, QRectF(9, 21, 30, 42), 0)->bytes;
      return std::pair(bytes.count("style=\""), bytes.contains("style=\"fill:red;"));
    };
    QCOMPARE(styles({}), std::pair(qsizetype(0), false));
    QVERIFY(styles("style='fill:red'").second);
  }

  /// What is pasted elsewhere leaves the root behind: what is in it must have the right size without that.
  void whatIsInsideIsMeasuredInPixelsOfCss() {
    OpenSvg document(svgOf("width='200' height='100'", "<rect width='10' height='10'/>"));
    const QByteArray plain = cut(document, QRectF(9, 21, 30, 42), 0)->bytes;
    QVERIFY2(plain.contains(" x=\"0\" y=\"0\" width=\"200\" height=\"100\""), plain);
    QVERIFY(plain.contains("<rect width='10' height='10'/>"));
    const QByteArray turned = cut(document, QRectF(0, 0, 75, 150), M_PI / 2)->bytes;
    QVERIFY2(turned.contains("transform=\"matrix(0 1 -1 0 100 0)\""), turned);
  }

  /// As programs do that paste it: the elements in the root, without it.
  void whatIsInTheRootIsTheRectangleAndNoMore() {
    for (const QByteArray& style : {QByteArray(), QByteArray("<style>svg{opacity:0.5}</style>")}) {
      OpenSvg document(svgOf("width='200' height='100'", style + "<rect width='200' height='100'/>"));
      QByteArray inside = cut(document, QRectF(30, 15, 60, 30), 0)->bytes;
      inside = inside.sliced(inside.indexOf('>') + 1);
      inside.truncate(inside.lastIndexOf("</svg>"));
      OpenSvg pasted(svgOf("width='300' height='300'", inside));
      QVERIFY(pasted.ok());
      const QImage shown = *drawn(*pasted.result->get(), 4.0 / 3);
      QCOMPARE(shown.size(), QSize(300, 300));
      QRect painted;
      for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
          if (qAlpha(shown.pixel(x, y)) > 0) painted |= QRect(x, y, 1, 1);
      QCOMPARE(painted, QRect(0, 0, 80, 40));
    }
  }

  void withoutARectangleItIsTheWholePicture() {
    OpenSvg document(svgOf("width='200' height='100'", ""));
    SvgRequest request;
    request.pretty = false;
    OpenSvg again(document->svg(request)->bytes);
    QCOMPARE(again->facts()->pageBounds.value(0), QRectF(0, 0, 150, 75));
  }

  void theCutShowsWhatTheWholeShowsThere_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("degrees");
    const QStringList names = QDir(NORVEX_SOURCE_DIR "/tests/data/svg").entryList({"*.svg"}, QDir::Files);
    QVERIFY(names.size() >= 3);
    for (const QString& name : names) {
      const auto row = [&](const char* what, const QRectF& rect, double degrees) {
        QTest::addRow("%s: %s", qPrintable(name), what) << name << rect << degrees;
      };
      row("whole", QRectF(0, 0, 144, 36), 0);
      row("inside", QRectF(30, 10, 60, 25), 0);
      row("beyond the edges", QRectF(-20, -10, 260, 200), 0);
      row("a quarter turn", QRectF(0, 0, 36, 144), 90);
      row("half a turn", QRectF(10, 5, 100, 30), 180);
      row("an odd angle", QRectF(20, 20, 80, 60), 33);
      row("the other way", QRectF(0, 0, 150, 120), -20);
    }
  }
  void theCutShowsWhatTheWholeShowsThere() {
    QFETCH(QString, name);
    QFETCH(QRectF, rect);
    QFETCH(double, degrees);
    OpenSvg document(testFile(name));
    QVERIFY(document.ok());
    const Result<EngineBytes> part = cut(document, rect, qDegreesToRadians(degrees));
    QVERIFY(part);
    OpenSvg again(part->bytes);
    QVERIFY(again.ok());
    const QImage shown = *drawn(*again.result->get(), 2);
    const QImage whole = expected(document, rect, qDegreesToRadians(degrees), 2);
    QCOMPARE(shown.size(), whole.size());
    // Clips that are not on the pixel grid are rounded a little differently by the inner viewport.
    QVERIFY2(largestDifference(shown, whole) <= 12,
             qPrintable(QString::number(largestDifference(shown, whole))));
  }

  void programsThatDoNotCutAtViewportsCutAtAPath() {
    const QByteArray square = "<rect id='norvex-cut' width='96' height='96' fill='#f00'/>";
    OpenSvg document(svgOf("width='96' height='96'", square));
    QByteArray bytes = cut(document, QRectF(12, 12, 24, 24), 0)->bytes;
    QVERIFY2(bytes.contains("<clipPath id=\"norvex-cut2\">"), bytes.constData());
    // Such a program in short: the viewports do not end what is in them.
    QVERIFY(bytes.contains("overflow=\"hidden\""));
    bytes.replace("overflow=\"hidden\"", "overflow=\"visible\"");
    bytes.replace(" viewBox=\"0 0 32 32\"", " viewBox=\"0 0 64 64\"");
    OpenSvg again(bytes);
    const QImage shown = *drawn(*again.result->get(), 1);
    QCOMPARE(shown.pixel(shown.width() / 4, shown.height() / 4), 0xffff0000u);
    QCOMPARE(shown.pixel(shown.width() * 3 / 4, shown.height() * 3 / 4), 0u);
  }

  void whatIsOutsideThePictureStaysEmpty() {
    OpenSvg document(svgOf("width='96' height='96' style='overflow:visible'",
                           "<rect x='-200' y='-200' width='999' "
                           "height='999' fill='#f00'/>"));
    OpenSvg again(cut(document, QRectF(-10, -10, 92, 92), 0)->bytes);
    const QImage shown = *drawn(*again.result->get(), 1);
    QCOMPARE(shown.pixel(5, 5), 0u);
    QCOMPARE(shown.pixel(87, 50), 0u);
    QCOMPARE(shown.pixel(50, 50), 0xffff0000u);
  }

  void styleRulesForTheRootTakeHoldOnce() {
    OpenSvg document(
        svgOf("width='96' height='96'",
              "<style>svg{opacity:0.5} g{opacity:0.5} svg > g{fill:#00f}</style><g><rect width='96' "
              "height='96'/></g><rect width='10' height='10'/>"));
    for (const double degrees : {0.0, 90.0}) {
      OpenSvg again(cut(document, QRectF(0, 0, 72, 72), qDegreesToRadians(degrees))->bytes);
      const QImage shown = *drawn(*again.result->get(), 1);
      const QImage whole = expected(document, QRectF(0, 0, 72, 72), qDegreesToRadians(degrees), 1);
      QCOMPARE(largestDifference(shown, whole), 0);
    }
  }

  void whatIsAroundTheRootStays() {
    OpenSvg document("<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY c '#f00'>]><!--a-->" +
                     svgOf("width='10' height='10'", "<rect fill='&c;'/>") + "<!--b-->");
    const QByteArray bytes = cut(document, QRectF(0, 0, 5, 5), 0)->bytes;
    QVERIFY(bytes.startsWith("<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY c '#f00'>]><!--a--><svg "));
    QVERIFY(bytes.contains("<rect fill='&c;'/>"));
    QVERIFY(bytes.endsWith("</svg><!--b-->"));
  }

  void anEmptyRootIsCutToo() {
    OpenSvg document("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'/>");
    QVERIFY(OpenSvg(cut(document, QRectF(0, 0, 5, 5), 1)->bytes).ok());
  }

  void impossibleRectanglesAreRefused() {
    OpenSvg document(svgOf("width='10' height='10'", ""));
    for (const QRectF& rect :
         {QRectF(0, 0, 0, 10), QRectF(0, 0, 10, -1), QRectF(0, 0, qQNaN(), 1), QRectF(1e9, 0, 1, 1)})
      QCOMPARE(cut(document, rect, 0).error().kind, ErrorKind::Protocol);
    QCOMPARE(cut(document, QRectF(0, 0, 1, 1), qInf()).error().kind, ErrorKind::Protocol);
  }
};

NORVEX_TEST(SvgCutTest)
#include "svg_cut_test.moc"
