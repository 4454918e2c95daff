#include "encoders/raster_codecs.h"

#include <QColorSpace>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTransform>

#include <cmath>
#include <utility>

#include "base/latin1_text.h"
#include "kit/test_main.h"
#include "picture/bitmap_image.h"
#include "types/type_identification.h"

using namespace norvex;

namespace {

/// A red, a half-transparent green and a clear pixel on each of two rows.
NSBitmapImageRep sample(bool alpha) {
  QImage image(3, 2, alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  for (int y = 0; y < 2; ++y) {
    image.setPixelColor(0, y, QColor(255, 0, 0));
    image.setPixelColor(1, y, alpha ? QColor(0, 200, 0, 128) : QColor(0, 200, 0));
    image.setPixelColor(2, y, alpha ? QColor(0, 0, 0, 0) : QColor(9, 9, 9));
  }
  return bitmapFromImage(image);
}

QByteArray sRGB() {
  return QColorSpace(QColorSpace::SRgb).iccProfile();
}

QByteArray encodeTiff(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(PictureFormat::Tiff, raster, properties);
}
QByteArray encodePng(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(PictureFormat::Png, raster, properties);
}
QByteArray encodeJpeg(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(PictureFormat::Jpeg, raster, properties);
}
QByteArray encodeGif(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(PictureFormat::Gif, raster, properties);
}

QByteArray encodeWebp(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(PictureFormat::Webp, raster, properties);
}

QImage webpAsDwebpReads(const QByteArray& bytes) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("a.webp"));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return {};
  file.close();
  QProcess::execute("dwebp", {"-quiet", file.fileName(), "-o", folder.filePath("a.png")});
  return QImage(folder.filePath("a.png"));
}

/// What another program says about the bytes.
QString say(const QByteArray& bytes, const QString& suffix, QStringList command) {
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("raster.") + suffix));
  if (!file.open(QIODevice::WriteOnly)) return {};
  file.write(bytes);
  file.close();
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  const QString program = command.takeFirst();
  process.start(program, command << file.fileName());
  process.waitForFinished();
  return QString::fromUtf8(process.readAll()) + QStringLiteral("exit %1").arg(process.exitCode());
}

/// An image with the samples that it has.
NSBitmapImageRep rasterOf(const QImage& image) {
  if (image.format() != QImage::Format_Grayscale8)
    return bitmapFromImage(image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                         : QImage::Format_RGB32));
  NSBitmapImageRep grey;
  grey.pixelsWide = image.width();
  grey.pixelsHigh = image.height();
  grey.colorSpaceName = latin1(NSCalibratedWhiteColorSpace);
  grey.bytesPerRow = int(image.bytesPerLine());
  grey.data = QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
  return grey;
}

}  // namespace

class RasterCodecsTest : public QObject {
  Q_OBJECT
 private slots:
  void everyRasterFormatOfTheTableHasItsOwnCodec_data() { rasterFormats(); }
  void everyRasterFormatOfTheTableHasItsOwnCodec() {
    QFETCH(PictureFormat, format);
    const QByteArray bytes = encodeRaster(format, sample(true), {});
    QCOMPARE(identifyType(bytes, {}).identifier(), typeOf(format).identifier());
  }
  void otherFormatsHaveNone() {
    for (const FormatRow& row : formatTable)
      if (!isRaster(row.id)) QVERIFY2(encodeRaster(row.id, sample(false), {}).isEmpty(), row.title);
  }
  void theProfileIsEmbedded_data() { rasterFormats(); }
  void theProfileIsEmbedded() {
    QFETCH(PictureFormat, format);
    const QString suffix = latin1(writtenExtension(format));
    const QStringList ask = {QStringLiteral("exiftool"), QStringLiteral("-icc_profile"),
                             QStringLiteral("-b")};
    const QString with = say(encodeRaster(format, sample(true), {72, sRGB()}), suffix, ask);
    QVERIFY2(with.contains(QStringLiteral("acsp")), qPrintable(with));
    const QByteArray bare = encodeRaster(format, sample(true), {72, {}});
    QVERIFY(!bare.isEmpty());
    QVERIFY(!say(bare, suffix, ask).contains(QStringLiteral("acsp")));
  }
  void layoutsThatNoCodecTakesGiveNothing() {
    NSBitmapImageRep grey = sample(false);
    grey.samplesPerPixel = 1;
    for (const FormatRow& row : formatTable)
      for (const NSBitmapImageRep& raster : {grey, NSBitmapImageRep()})
        QVERIFY2(encodeRaster(row.id, raster, {}).isEmpty(), row.title);
  }
  void tiffIsUncompressedWithAssociatedAlpha() {
    const QString said =
        say(encodeTiff(sample(true), {300, {}}), QStringLiteral("tiff"), {QStringLiteral("tiffinfo")});
    for (const char* text : {"Image Width: 3 Image Length: 2", "Resolution: 300, 300 pixels/inch",
                             "Compression Scheme: None", "Extra Samples: 1<assoc-alpha>", "exit 0"}) {
      QVERIFY2(said.contains(QLatin1String(text)), qPrintable(said));
    }
  }
  void tiffSamplesStayPremultiplied() {
    const NSBitmapImageRep raster = sample(true);
    QVERIFY(encodeTiff(raster, {}).contains(raster.data));
  }
  void pngIsNotInterlacedAndHasAResolution() {
    const QString said = say(encodePng(sample(true), {72, {}}), QStringLiteral("png"),
                             {QStringLiteral("pngcheck"), QStringLiteral("-v")});
    QVERIFY2(said.contains(QStringLiteral("non-interlaced")) && said.contains(QStringLiteral("2835x2835")) &&
                 said.endsWith(QStringLiteral("exit 0")),
             qPrintable(said));
  }
  void pngKeepsColoursAndOpacity() {
    const QImage back = QImage::fromData(encodePng(sample(true), {})).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(back.pixelColor(0, 0), QColor(255, 0, 0));
    QCOMPARE(back.pixelColor(1, 1).alpha(), 128);
    QVERIFY(std::abs(back.pixelColor(1, 1).green() - 200) <= 1);
    QCOMPARE(back.pixelColor(2, 0).alpha(), 0);
  }
  void pngKeepsRowsOfEverySort_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("alpha");
    for (const QSize size : {QSize(1, 1), QSize(1, 9), QSize(9, 1), QSize(40, 64)})
      for (const bool alpha : {false, true})
        QTest::addRow("%d x %d, alpha %d", size.width(), size.height(), alpha) << size << alpha;
  }
  void pngKeepsRowsOfEverySort() {
    QFETCH(QSize, size);
    QFETCH(bool, alpha);
    QRandomGenerator random(5);
    for (int round = 0; round < 20; ++round) {
      QImage image(size, alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
      for (int y = 0; y < size.height(); ++y) {
        const quint32 sort = random.bounded(4);  // clear or black, like the row above, one colour, any
        const QRgb colour = random.generate() | 0xff000000;
        for (int x = 0; x < size.width(); ++x)
          image.setPixel(x, y,
                         sort == 0             ? (alpha ? 0 : 0xff000000)
                         : sort == 1 && y != 0 ? image.pixel(x, y - 1)
                         : sort == 2           ? colour
                                               : random.generate() | 0xff000000);
      }
      const QImage back = QImage::fromData(encodePng(bitmapFromImage(image), {}));
      QCOMPARE(back.convertToFormat(image.format()), image);
    }
  }
  void pngPacksPhotographsAsDifferencesAndDrawingsAsTheyAre_data() {
    QTest::addColumn<bool>("photograph");
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(300, 200), QSize(131, 9), QSize(7, 400)}) {
      QTest::addRow("photograph, %d x %d", size.width(), size.height()) << true << size;
      QTest::addRow("drawing, %d x %d", size.width(), size.height()) << false << size;
    }
  }
  void pngPacksPhotographsAsDifferencesAndDrawingsAsTheyAre() {
    QFETCH(bool, photograph);
    QFETCH(QSize, size);
    QRandomGenerator random(11);
    for (const QImage::Format format :
         {QImage::Format_RGB888, QImage::Format_RGBA8888, QImage::Format_Grayscale8}) {
      QImage image(size, format);
      const QColor colours[] = {random.generate(), random.generate(), random.generate()};
      for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
          const double light = 110 + 70 * std::sin(x / 67.0) * std::cos(y / 83.0);
          const auto grain = [&](double value) { return int(value) + random.bounded(4); };
          const QColor soft(grain(light), grain(230 - light), grain(light / 2 + x / 4 % 60 + y / 8 % 40));
          image.setPixelColor(x, y, photograph ? soft : colours[(x / 3 * 7 + y / 5 * 3) % 3]);
        }
      const QByteArray png = encodePng(rasterOf(image), {});
      QCOMPARE(QImage::fromData(png).convertToFormat(format), image);
      const QByteArray asIs = qCompress(image.constBits(), int(image.sizeInBytes()), 9);
      QVERIFY2(png.size() < asIs.size() * (photograph ? 0.95 : 1.2) + 500,
               qPrintable(QStringLiteral("%1 bytes, as they are %2").arg(png.size()).arg(asIs.size())));
    }
  }
  void opaquePngHasNoAlpha() { QVERIFY(!QImage::fromData(encodePng(sample(false), {})).hasAlphaChannel()); }
  void jpegHasFullColourResolutionAndWhitePaper() {
    const QByteArray bytes = encodeJpeg(sample(true), {72, {}});
    const QString said =
        say(bytes, QStringLiteral("jpg"), {QStringLiteral("identify"), QStringLiteral("-verbose")});
    QVERIFY2(said.contains(QStringLiteral("sampling-factor: 1x1,1x1,1x1")), qPrintable(said));
    QVERIFY2(said.contains(QStringLiteral("Quality: 90")), qPrintable(said));
    QVERIFY2(said.contains(QStringLiteral("Resolution: 72x72")), qPrintable(said));
    const QColor clear = QImage::fromData(bytes).pixelColor(2, 0);
    QVERIFY2(clear.lightness() > 215, qPrintable(clear.name()));
  }
  void aJpegShowsEveryColourOverWhite() {
    QImage image(32, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(255, 0, 0));
    for (int y = 0; y < 16; ++y)
      for (int x = 16; x < 32; ++x) image.setPixelColor(x, y, QColor(0, 0, 255, 128));
    const QImage back = QImage::fromData(encodeJpeg(bitmapFromImage(image), {72, {}, 100}));
    QCOMPARE(back.size(), image.size());
    for (const auto& [at, wanted] :
         {std::pair(QPoint(4, 4), QColor(255, 0, 0)), std::pair(QPoint(28, 12), QColor(127, 127, 255))}) {
      const QColor seen = back.pixelColor(at);
      for (const int difference :
           {seen.red() - wanted.red(), seen.green() - wanted.green(), seen.blue() - wanted.blue()})
        QVERIFY2(std::abs(difference) <= 2, qPrintable(seen.name()));
    }
  }
  void transparencyIsLaidOverWhiteSampleBySample() {
    const uchar from[] = {100, 50, 25, 128, 0, 0, 0, 0, 7, 8, 9, 255, 200, 0, 0, 100};
    uchar rgb[12];
    overWhiteRow(from, rgb, 4, 3);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(rgb), 12).toHex(' '),
             QByteArray("e3 b1 98 ff ff ff 07 08 09 ff 9b 9b"));
    uchar grey[8];
    overWhiteRow(from, grey, 8, 1);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(grey), 8).toHex(' '),
             QByteArray("ff 98 ff ff fe 09 ff 9b"));
  }
  void aClearColourIsBlackAndNoneIsMoreThanFull() {
    QCOMPARE(unpremultiplied(100, 128), uchar(199));
    QCOMPARE(unpremultiplied(9, 0), uchar(0));
    QCOMPARE(unpremultiplied(9, 8), uchar(255));
    QCOMPARE(unpremultiplied(9, 255), uchar(9));
  }
  void noFormatIsAskedForMoreThanItHolds_data() { rasterFormats(); }
  void noFormatIsAskedForMoreThanItHolds() {
    QFETCH(PictureFormat, format);
    const auto side = largestSide(format);
    if (!side) return;
    QImage image(*side + 1, 1, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(encodeRaster(format, bitmapFromImage(image), {}).isEmpty());
    QVERIFY(encodeRaster(format, bitmapFromImage(image.transformed(QTransform(0, 1, -1, 0, 0, 0))), {})
                .isEmpty());
    QVERIFY(!encodeRaster(format, bitmapFromImage(image.copy(0, 0, *side, 1)), {}).isEmpty());
  }
  void aQualityBeyondAHundredGivesNoWebp() { QVERIFY(encodeWebp(sample(false), {72, {}, 101}).isEmpty()); }
  void lessQualityTakesLessRoom_data() {
    QTest::addColumn<PictureFormat>("format");
    for (const FormatRow& row : formatTable)
      if (row.quality != NoQuality) QTest::newRow(row.name.data()) << row.id;
  }
  void lessQualityTakesLessRoom() {
    QFETCH(PictureFormat, format);
    QRandomGenerator random(7);
    QImage image(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
      for (int x = 0; x < 64; ++x) image.setPixel(x, y, 0xff000000 | random.generate());
    const NSBitmapImageRep raster = bitmapFromImage(image);
    const auto sizeWith = [&](std::optional<int> quality) {
      return encodeRaster(format, raster, {72, {}, quality}).size();
    };
    QVERIFY(sizeWith(10) > 0);
    QVERIFY(sizeWith(10) < sizeWith(60) && sizeWith(60) < sizeWith(100));
    if (rowOf(format).quality > 0)
      QCOMPARE(encodeRaster(format, raster, {72, {}, rowOf(format).quality}),
               encodeRaster(format, raster, {72, {}, {}}));
    else
      QVERIFY(sizeWith({}) > sizeWith(90));
  }
  void greyInAPngKeepsItsTransparency() {
    NSBitmapImageRep grey;
    grey.pixelsWide = 4;
    grey.pixelsHigh = 1;
    grey.samplesPerPixel = 2;
    grey.bitsPerPixel = 16;
    grey.hasAlpha = true;
    grey.colorSpaceName = latin1(NSCalibratedWhiteColorSpace);
    grey.bytesPerRow = 8;
    grey.data = QByteArray::fromHex("20ff408010100000");
    const QImage read = QImage::fromData(encodePng(grey, {})).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(read.size(), QSize(4, 1));
    QCOMPARE(read.pixelColor(0, 0), QColor(0x20, 0x20, 0x20, 0xff));
    QCOMPARE(read.pixelColor(1, 0), QColor(0x80, 0x80, 0x80, 0x80));
    QCOMPARE(read.pixelColor(2, 0), QColor(0xff, 0xff, 0xff, 0x10));
    QCOMPARE(read.pixelColor(3, 0).alpha(), 0);
  }
  void gifKeepsTransparency() {
    const QByteArray bytes = encodeGif(sample(true), {72, {}});
    const QString said = say(bytes, QStringLiteral("gif"), {QStringLiteral("giftext")});
    QVERIFY2(said.contains(QStringLiteral("exit 0")) && said.contains(QStringLiteral("Transparency on")),
             qPrintable(said));
    const QString pixels = say(bytes, QStringLiteral("gif"),
                               {QStringLiteral("identify"), QStringLiteral("-format"),
                                QStringLiteral("%[pixel:p{0,0}] %[pixel:p{2,0}]")});
    QVERIFY2(pixels.contains(QStringLiteral("red")) || pixels.contains(QStringLiteral("255,0,0")),
             qPrintable(pixels));
    QVERIFY2(pixels.contains(QStringLiteral(",0)")), qPrintable(pixels));
  }
  void transparencyOfAGifIsAPattern_data() {
    QTest::addColumn<int>("alpha");
    QTest::addColumn<int>("seenOf64");
    QTest::newRow("clear") << 0 << 0;
    QTest::newRow("an eighth") << 32 << 8;
    QTest::newRow("a quarter") << 64 << 16;
    QTest::newRow("half") << 128 << 32;
    QTest::newRow("three quarters") << 192 << 48;
    QTest::newRow("opaque") << 255 << 64;
  }
  void transparencyOfAGifIsAPattern() {
    QFETCH(int, alpha);
    QFETCH(int, seenOf64);
    QImage image(64, 64, QImage::Format_ARGB32);
    image.fill(QColor(200, 40, 90, alpha));
    const QByteArray bytes =
        encodeGif(bitmapFromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied)), {});
    const QImage read = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(read.size(), image.size());
    // The same share in every square, not a heap here and a hole there.
    for (int top = 0; top < 64; top += 8)
      for (int left = 0; left < 64; left += 8) {
        int seen = 0;
        for (int y = top; y < top + 8; ++y)
          for (int x = left; x < left + 8; ++x) seen += read.pixelColor(x, y).alpha() == 255;
        QCOMPARE(seen, seenOf64);
      }
  }
  void coloursThatFadeInAGifAreNotMixedWithWhatIsNotSeen() {
    QImage image(120, 90, QImage::Format_ARGB32);
    for (int y = 0; y < 90; ++y)
      for (int x = 0; x < 120; ++x)
        image.setPixelColor(x, y, QColor(40 + x, 200 - y, (x * 7) % 256, (x * 2 + y) % 256));
    const QByteArray bytes =
        encodeGif(bitmapFromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied)), {});
    const QImage read = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(read.size(), image.size());
    double sum = 0;
    int seen = 0;
    for (int y = 0; y < 90; ++y) {
      for (int x = 0; x < 120; ++x) {
        const QColor before = image.pixelColor(x, y), after = read.pixelColor(x, y);
        QVERIFY(after.alpha() == 255 || (after.alpha() == 0 && before.alpha() < 255));
        // A colour that is hardly there has lost its exact value before it comes to the encoder.
        if (after.alpha() == 0 || before.alpha() < 64) continue;
        ++seen;
        sum += std::abs(before.red() - after.red()) + std::abs(before.green() - after.green()) +
               std::abs(before.blue() - after.blue());
      }
    }
    QVERIFY2(sum / seen / 3 < 8, qPrintable(QString::number(sum / seen / 3)));
  }
  void webpWithoutAQualityKeepsEveryPixel() {
    QRandomGenerator random(11);
    for (const bool alpha : {false, true}) {
      QImage image(37, 23, alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
      for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x) image.setPixel(x, y, 0xff000000 | random.generate());
      if (alpha) image.setPixelColor(3, 4, QColor(0, 200, 0, 128));
      if (alpha) image.setPixelColor(5, 6, Qt::transparent);
      const QByteArray bytes = encodeWebp(bitmapFromImage(image), {72, sRGB()});
      const QString said = say(bytes, "webp", {"webpinfo"});
      QVERIFY2(said.contains("Format: Lossless") && said.contains("Chunk ICCP") && said.endsWith("exit 0"),
               qPrintable(said));
      const QImage back = webpAsDwebpReads(bytes);
      QCOMPARE(back.size(), image.size());
      QCOMPARE(back.hasAlphaChannel(), alpha);
      for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x)
          if (qAlpha(image.pixel(x, y)) == 255) QCOMPARE(back.pixelColor(x, y), image.pixelColor(x, y));
      QCOMPARE(back.pixelColor(3, 4).alpha(), alpha ? 128 : 255);
      QCOMPARE(back.pixelColor(5, 6).alpha(), alpha ? 0 : 255);
    }
  }
  void webpWithAQualityIsLossyAndTransparentAllTheSame() {
    const QByteArray bytes = encodeWebp(sample(true), {72, {}, 80});
    const QString said = say(bytes, "webp", {"webpinfo"});
    QVERIFY2(said.contains("Format: Lossy") && said.endsWith("exit 0"), qPrintable(said));
    const QImage back = webpAsDwebpReads(bytes);
    QCOMPARE(back.pixelColor(0, 0).alpha(), 255);
    QCOMPARE(back.pixelColor(1, 1).alpha(), 128);
    QCOMPARE(back.pixelColor(2, 0).alpha(), 0);
  }
  void anOpaqueGifNamesNoTransparentColour() {
    const QString said =
        say(encodeGif(sample(false), {}), QStringLiteral("gif"), {QStringLiteral("giftext")});
    QVERIFY2(said.contains("Screen Size") && !said.contains("Transparency on"), qPrintable(said));
  }
  void aGifOfNothingIsTransparent() {
    QImage image(20, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QImage read = QImage::fromData(encodeGif(bitmapFromImage(image), {}));
    QCOMPARE(read.size(), image.size());
    QCOMPARE(read.pixelColor(7, 7).alpha(), 0);
  }
  void aGifOfThousandsOfColoursHas256() {
    QImage image(200, 200, QImage::Format_RGB32);
    for (int y = 0; y < 200; ++y) {
      for (int x = 0; x < 200; ++x) image.setPixelColor(x, y, QColor(x, y, (x * y) % 256));
    }
    const QByteArray bytes = encodeGif(bitmapFromImage(image), {});
    const QString said = say(bytes, QStringLiteral("gif"), {QStringLiteral("identify")});
    QVERIFY2(said.contains(QStringLiteral("200x200")) && said.contains(QStringLiteral("256c")),
             qPrintable(said));
  }

 private:
  static void rasterFormats() {
    QTest::addColumn<PictureFormat>("format");
    for (const FormatRow& row : formatTable)
      if (isRaster(row.id)) QTest::newRow(row.name.data()) << row.id;
  }
};

NORVEX_TEST(RasterCodecsTest)
#include "raster_codecs_test.moc"
