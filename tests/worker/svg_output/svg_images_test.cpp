// Images of a page, and what becomes one, in the SVG that is made of it.
#include <QBuffer>
#include <QImage>
#include <QList>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"

using namespace norvex;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kImage = "/Type /XObject /Subtype /Image /BitsPerComponent 8 ";

QByteArray page(const QByteArray& contents, const QByteArray& resources, const QList<QByteArray>& more) {
  return onePage(contents, "/MediaBox [0 0 200 100] /Resources << " + resources + " >>", more);
}

QByteArray jpegOf(const QImage& image) {
  QBuffer buffer;
  image.save(&buffer, "JPEG", 90);
  return buffer.data();
}

QImage shades(QSize size, QImage::Format format) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x) {
      const int shade = (x * 7 + y * 13) % 256;
      image.setPixel(x, y, qRgb(shade, shade, shade));
    }
  return image.convertToFormat(format);
}

/// The image that an SVG holds.
QImage held(const MadeSvg& made) {
  const qsizetype from = made.svg().indexOf("base64,") + 7;
  return QImage::fromData(QByteArray::fromBase64(made.svg().mid(from, made.svg().indexOf('"', from) - from)))
      .convertToFormat(QImage::Format_ARGB32);
}

/// An image of two by two pixels, drawn so large.
MadeSvg fourPixels(const QByteArray& size, const QByteArray& more = {}) {
  return MadeSvg(page("q " + size + " 0 0 cm /I Do Q", "/XObject << /I 5 0 R >>",
                      {stream("\xff\x10\x10\x10\xff\x10\x10\x10\xff\x80\x80\x10",
                              kImage + "/Width 2 /Height 2 /ColorSpace /DeviceRGB " + more)}));
}

}  // namespace

class SvgImagesTest : public QObject {
  Q_OBJECT
 private slots:
  // They are no mixture with what is beside them: opaque, or nothing at all.
  void pixelsOfShadingsHaveTheirColourUpToTheEdge_data() {
    QTest::addColumn<QByteArray>("shading");
    const QByteArray colour("\xff\x80\0", 3), space = "/ColorSpace /DeviceRGB ";
    QTest::newRow("circles") << "<< /ShadingType 3 " + space +
                                    "/Coords [50 50 10 150 50 30] /Function << /FunctionType 2 /Domain [0 1] "
                                    "/C0 [1 0.50196 0] /C1 [1 0.50196 0] /N 1 >> >>";
    const QByteArray mesh =
        space + "/BitsPerCoordinate 8 /BitsPerComponent 8 /BitsPerFlag 8 /Decode [0 200 0 100 0 1 0 1 0 1]";
    QTest::newRow("triangles") << stream(QByteArray("\0\x10\x20", 3) + colour + QByteArray("\0\xf1\x33", 3) +
                                             colour + QByteArray("\0\x77\xe5", 3) + colour,
                                         "/ShadingType 4 " + mesh);
    QTest::newRow("patches") << stream(QByteArray("\0\x20\x20\x10\x60\x30\xa0\x28\xe0\x60\xf0\xa0\xd0\xe0\xe0"
                                                  "\xf0\xa0\xd0\x60\xe0\x20\xa0\x10\x60\x30",
                                                  25) +
                                           colour.repeated(4),
                                       "/ShadingType 6 " + mesh);
  }
  void pixelsOfShadingsHaveTheirColourUpToTheEdge() {
    QFETCH(QByteArray, shading);
    const QImage image = held(MadeSvg(page("/S sh", "/Shading << /S 5 0 R >>", {shading})));
    QVERIFY(!image.isNull());
    int clear = 0, full = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, y);
        ++(colour.alpha() == 0 ? clear : full);
        if (colour.alpha() > 0) QCOMPARE(colour.rgba(), qRgb(255, 128, 0));  // opaque
      }
    QVERIFY(clear > 100 && full > 100);
  }

  void imagesOfWideRowsAreThereRowByRowAndWiderOnesAreTold() {
    const auto ofNoise = [](int width, int samples, const QByteArray& more) {
      QByteArray noise(qsizetype(width) * samples * 2, '\0');  // of which nothing can be packed
      quint32 seed = 4711;
      for (char& byte : noise) byte = char((seed = seed * 1664525u + 1013904223u) >> 24);
      return stream(noise, kImage + "/Width " + QByteArray::number(width) + " /Height 2 " + more);
    };
    const auto made = [&](int width) {
      return MadeSvg(page("q 200 0 0 100 0 0 cm /I Do Q", "/XObject << /I 5 0 R >>",
                          {ofNoise(width, 3, "/ColorSpace /DeviceRGB /SMask 6 0 R"),
                           ofNoise(width, 1, "/ColorSpace /DeviceGray")}));
    };
    const MadeSvg wide = made(950'000), wider = made(1'000'001);
    QVERIFY(!wide.error() && !wider.error());
    QCOMPARE(wide.count("<image"), 2);
    QCOMPARE(wide.count("<use"), 1);
    QCOMPARE(wide.report().warnings, QStringList());
    QCOMPARE(wider.count("<image"), 0);
    QCOMPARE(wider.report().warnings, QStringList{"an image with more pixels than are granted was left out"});
  }

  // Readers smooth what is enlarged: pixels that are seen as squares are there often enough to stay some.
  void pixelsSeenAsSquaresAreRepeated() {
    QCOMPARE(held(fourPixels("100 0 0 100")).size(), QSize(500, 500));
    QCOMPARE(held(fourPixels("100 0 0 100", "/Interpolate true")).size(), QSize(2, 2));
    QCOMPARE(held(fourPixels("4 0 0 4")).size(), QSize(2, 2));    // two points a side: none is seen
    QCOMPARE(held(fourPixels("100 0 0 3")).size(), QSize(2, 2));  // nor where it is thin one way
    QCOMPARE(held(fourPixels("4.1 0 0 4.1")).size(), QSize(500, 500));
  }

  void aGreyJpegStaysTheOriginal() {
    const QByteArray jpeg = jpegOf(shades({32, 16}, QImage::Format_Grayscale8));
    const auto made = [&](const QByteArray& more) {
      return MadeSvg(
          page("q 64 0 0 32 0 0 cm /I Do Q", "/XObject << /I 5 0 R >>",
               {stream(jpeg,
                       kImage + "/Width 32 /Height 16 /Filter /DCTDecode /ColorSpace /DeviceGray " + more)}));
    };
    QCOMPARE(made({}).count("data:image/jpeg;base64,"), 1);
    QCOMPARE(made("/Decode [1 0]").count("data:image/jpeg"), 0);
  }

  void theMaskOfAJpegIsStretchedOverIt() {
    const QByteArray jpeg = jpegOf(shades({32, 16}, QImage::Format_RGB32));
    const MadeSvg made(page(
        "q 64 0 0 32 0 0 cm /I Do Q", "/XObject << /I 5 0 R >>",
        {stream(jpeg, kImage + "/Width 32 /Height 16 /Filter /DCTDecode /ColorSpace /DeviceRGB /SMask 6 0 R"),
         stream(QByteArray(64, '\x60'), kImage + "/Width 8 /Height 8 /ColorSpace /DeviceGray")}));
    QCOMPARE(made.count("data:image/jpeg;base64,"), 1);
    QVERIFY2(made.svg().contains(
                 "width=\"32\" height=\"16\"><g transform=\"matrix(4 0 0 2 0 0)\"><image width=\"8\" "
                 "height=\"8\""),
             made.svg().left(1500));
  }

  // Each pixel has the colour of its middle; 150 of them are an inch.
  void aFunctionOfThePlaceBecomesPixels() {
    const MadeSvg made(
        page("/S sh",
             "/Shading << /S << /ShadingType 1 /ColorSpace /DeviceRGB /Domain [0 1 0 1] /Matrix "
             "[1.9 0 0 0.9 10 10] /Function 5 0 R >> >>",
             {stream("{ 0 }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]")}));
    QCOMPARE(made.count("<path"), 0);
    const QImage pixels = held(made);
    QCOMPARE(pixels.size(), QSize(4, 2));
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < 4; ++x)
        QCOMPARE(pixels.pixel(x, y),
                 qRgb(int(std::lround((x + 0.5) / 4 * 255)), int(std::lround((y + 0.5) / 2 * 255)), 0));
    QVERIFY(std::abs(made.report().rasterisedDpi - 72 * std::sqrt(4 / 1.9 * 2 / 0.9)) < 0.01);
  }
};

NORVEX_TEST(SvgImagesTest)
#include "svg_images_test.moc"
