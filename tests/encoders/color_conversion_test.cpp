// Pixels for a press and in grey, as other programs read them.
#include "encoders/color_conversion.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

#include "encoders/raster_codecs.h"
#include "kit/test_main.h"
#include "picture/bitmap_image.h"

using namespace norvex;

namespace {

NSBitmapImageRep rasterOf(const QList<QColor>& colors) {
  const bool alpha =
      std::any_of(colors.begin(), colors.end(), [](const QColor& each) { return each.alpha() < 255; });
  QImage image(int(colors.size()), 1, alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  for (int x = 0; x < image.width(); ++x) image.setPixelColor(x, 0, colors.at(x));
  return bitmapFromImage(image);
}

int sample(const ColoredRaster& made, int x, int at) {
  return uchar(made.raster.data.at(x * made.raster.samplesPerPixel + at));
}

QByteArray fileOf(PictureFormat format, OutputColor color, const QList<QColor>& colors) {
  const auto made = inColor(color, rasterOf(colors), format != PictureFormat::Jpeg);
  return made ? encodeRaster(format, made->raster,
                             {.dpi = 300, .iccProfile = made->iccProfile, .quality = 100})
              : QByteArray();
}

/// What ImageMagick, which we did not write, says about the bytes.
QString identified(const QByteArray& bytes, const QString& format) {
  QProcess identify;
  identify.start("identify", {"-format", format, "-"});
  identify.write(bytes);
  identify.closeWriteChannel();
  return identify.waitForFinished(20000) ? QString::fromUtf8(identify.readAllStandardOutput()) : QString();
}

/// The first pixel as ImageMagick shows it on a screen, by the profiles.
QColor seen(const QByteArray& bytes, const QString& format) {
  QProcess convert;
  convert.start("convert", {format + ":-", "-profile", "/usr/share/color/icc/ghostscript/srgb.icc", "-depth",
                            "8", "-crop", "1x1+4+4", "RGB:-"});
  convert.write(bytes);
  convert.closeWriteChannel();
  if (!convert.waitForFinished(20000)) return {};
  const QByteArray rgb = convert.readAllStandardOutput();
  return rgb.size() == 3 ? QColor(uchar(rgb[0]), uchar(rgb[1]), uchar(rgb[2])) : QColor();
}

const QColor kOlive(130, 120, 80);

}  // namespace

class ColorConversionTest : public QObject {
  Q_OBJECT
 private slots:
  void neutralPixelsKeepTheirValuesInGrey() {
    QList<QColor> greys;
    for (int level = 0; level < 256; ++level) greys << QColor(level, level, level);
    const auto made = inColor(OutputColor::Grey, rasterOf(greys), true);
    QVERIFY(made);
    QCOMPARE(made->raster.samplesPerPixel, 1);
    for (int level = 0; level < 256; ++level) QVERIFY(std::abs(sample(*made, level, 0) - level) <= 1);
  }

  void paperHasNoInkAndBlackIsBlack() {
    const auto made = inColor(OutputColor::Cmyk, rasterOf({Qt::white, Qt::black, Qt::red}), false);
    QVERIFY(made);
    for (int ink = 0; ink < 4; ++ink) QCOMPARE(sample(*made, 0, ink), 0);
    QVERIFY(sample(*made, 1, 3) > 200);
    QVERIFY2(sample(*made, 2, 0) < 40 && sample(*made, 2, 1) > 200 && sample(*made, 2, 2) > 200, "red");
    QVERIFY(!made->iccProfile.isEmpty());
  }

  void transparencyStaysInGreyAndIsPaperInInk() {
    const NSBitmapImageRep half = rasterOf({QColor(0, 0, 0, 128), QColor(0, 0, 0, 0)});
    const auto grey = inColor(OutputColor::Grey, half, true);
    QVERIFY(grey && grey->raster.hasAlpha);
    QCOMPARE(sample(*grey, 0, 1), 128);
    QCOMPARE(sample(*grey, 1, 1), 0);
    const auto flat = inColor(OutputColor::Grey, half, false);
    QVERIFY(flat && !flat->raster.hasAlpha);
    QVERIFY(std::abs(sample(*flat, 0, 0) - 127) <= 2);
    QCOMPARE(sample(*flat, 1, 0), 255);
    const auto inks = inColor(OutputColor::Cmyk, half, true);
    QVERIFY(inks && !inks->raster.hasAlpha);
    for (int ink = 0; ink < 4; ++ink) QCOMPARE(sample(*inks, 1, ink), 0);
  }

  void otherProgramsReadTheColoursThatWereWritten_data() {
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("color");
    QTest::addColumn<QString>("space");
    QTest::newRow("TIFF CMYK") << int(PictureFormat::Tiff) << int(OutputColor::Cmyk) << "CMYK";
    QTest::newRow("JPEG CMYK") << int(PictureFormat::Jpeg) << int(OutputColor::Cmyk) << "CMYK";
    QTest::newRow("TIFF grey") << int(PictureFormat::Tiff) << int(OutputColor::Grey) << "Gray";
    QTest::newRow("JPEG grey") << int(PictureFormat::Jpeg) << int(OutputColor::Grey) << "Gray";
    QTest::newRow("PNG grey") << int(PictureFormat::Png) << int(OutputColor::Grey) << "Gray";
  }
  void otherProgramsReadTheColoursThatWereWritten() {
    QFETCH(int, format);
    QFETCH(int, color);
    QFETCH(QString, space);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(kOlive);
    const auto made = inColor(OutputColor(color), bitmapFromImage(image), true);
    QVERIFY(made);
    const QByteArray bytes = encodeRaster(PictureFormat(format), made->raster,
                                          {.dpi = 300, .iccProfile = made->iccProfile, .quality = 100});
    QCOMPARE(identified(bytes, "%[colorspace]"), space);
    const QColor shown =
        seen(bytes, QString::fromLatin1(rowOf(PictureFormat(format)).name.data(),
                                        qsizetype(rowOf(PictureFormat(format)).name.size())));
    QVERIFY(shown.isValid());
    const QColor expected =
        OutputColor(color) == OutputColor::Cmyk ? kOlive : QColor(shown.red(), shown.red(), shown.red());
    const int apart = std::abs(shown.red() - expected.red()) + std::abs(shown.green() - expected.green()) +
                      std::abs(shown.blue() - expected.blue());
    QVERIFY2(apart < 24, qPrintable(shown.name()));
    if (OutputColor(color) == OutputColor::Grey) QVERIFY(shown.red() > 100 && shown.red() < 135);
  }

  void aFormatThatDoesNotHoldThemIsNotWritten() {
    QVERIFY(fileOf(PictureFormat::Png, OutputColor::Cmyk, {kOlive}).isEmpty());
    QVERIFY(fileOf(PictureFormat::Gif, OutputColor::Grey, {kOlive}).isEmpty());
    QVERIFY(fileOf(PictureFormat::Webp, OutputColor::Cmyk, {kOlive}).isEmpty());
  }

  void pixelsOfAnotherLayoutAreRefused() {
    NSBitmapImageRep planar = rasterOf({kOlive});
    planar.isPlanar = true;
    for (const OutputColor color : {OutputColor::Rgb, OutputColor::Grey, OutputColor::Cmyk}) {
      const auto made = inColor(color, planar, true);
      QVERIFY(!made);
      QCOMPARE(made.error().kind, ErrorKind::Unsupported);
      QCOMPARE(made.error().message, QStringLiteral("these pixels cannot be converted"));
    }
  }

  void everyNameIsThatOfItsColor() {
    for (const OutputColor each : {OutputColor::Rgb, OutputColor::Grey, OutputColor::Cmyk})
      QCOMPARE(outputColorNamed(nameOf(each)), std::optional(each));
    QVERIFY(!outputColorNamed("lab"));
    QVERIFY(!holdsColor(PictureFormat::Pdf, OutputColor::Rgb));
  }
};

NORVEX_TEST(ColorConversionTest)
#include "color_conversion_test.moc"
