#include "encoders/monoclome_bitmap.h"

#include <lcms2.h>

#include <cmath>

#include "encoders/grey_conversion.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

NSBitmapImageRep raster(int width, int height, int samples, const char* space, const QByteArray& data) {
  NSBitmapImageRep rep;
  rep.pixelsWide = width;
  rep.pixelsHigh = height;
  rep.samplesPerPixel = samples;
  rep.bitsPerPixel = samples * 8;
  rep.bytesPerRow = width * samples;
  rep.colorSpaceName = QLatin1String(space);
  rep.data = data;
  return rep;
}

/// The grey bytes of one row of pixels.
QByteArray greyOf(int samples, const char* space, std::initializer_list<int> bytes) {
  QByteArray data;
  for (const int byte : bytes) data += static_cast<char>(byte);
  const auto grey = monoclomeBitmap(raster(static_cast<int>(data.size()) / samples, 1, samples, space, data));
  return grey ? grey->data : QByteArray("nothing");
}

int greyOfRGB(int r, int g, int b) {
  return static_cast<uchar>(greyOf(3, NSCalibratedRGBColorSpace, {r, g, b}).at(0));
}

const char* const RGB = NSCalibratedRGBColorSpace;
const char* const CMYK = NSDeviceCMYKColorSpace;

}  // namespace

class MonoclomeBitmapTest : public QObject {
  Q_OBJECT
 private slots:
  void theResultHasOneSampleAndNoPadding() {
    const auto grey = monoclomeBitmap(raster(3, 2, 3, RGB, QByteArray(18, '\xFF')));
    QVERIFY(grey);
    QCOMPARE(grey->pixelsWide, 3);
    QCOMPARE(grey->pixelsHigh, 2);
    QCOMPARE(grey->samplesPerPixel, 1);
    QCOMPARE(grey->bytesPerRow, 3);
    QCOMPARE(grey->colorSpaceName, QLatin1String(NSCalibratedWhiteColorSpace));
    QVERIFY(!grey->hasAlpha && !grey->isPlanar);
    QCOMPARE(grey->data, QByteArray(6, '\xFF'));
  }
  void oneSampleIsTakenAsItIs() {
    QCOMPARE(greyOf(1, NSCalibratedWhiteColorSpace, {0, 7, 255}), QByteArray("\x00\x07\xFF", 3));
  }
  void greyAndAlphaLieOverWhiteModulo256() {
    QCOMPARE(greyOf(2, NSCalibratedWhiteColorSpace, {10, 255, 10, 100, 200, 100}),
             QByteArray("\x0A\xA5\x63", 3));  // 10; 10 + 155; 200 + 155 − 256
  }
  void neutralColoursKeepTheirValue() {
    for (int v = 0; v < 256; ++v) QCOMPARE(greyOfRGB(v, v, v), v);
  }
  void primariesWeighAsTheirLuminance() {
    // Y of the adapted primaries is about 0.24, 0.68 and 0.08; to the power 1/1.8.
    QVERIFY(std::abs(greyOfRGB(255, 0, 0) - 115) <= 4);
    QVERIFY(std::abs(greyOfRGB(0, 255, 0) - 205) <= 4);
    QVERIFY(std::abs(greyOfRGB(0, 0, 255) - 63) <= 6);
  }
  void rgbAndAlphaLieOverWhiteModulo256() {
    QCOMPARE(greyOf(4, RGB, {0, 0, 0, 0}), QByteArray("\xFF"));
    QCOMPARE(greyOf(4, RGB, {50, 50, 50, 155}), QByteArray("\x96"));     // 50 + 100
    QCOMPARE(greyOf(4, RGB, {200, 200, 200, 155}), QByteArray("\x2C"));  // 300 − 256
  }
  void paperIsWhiteAndBlackInkIsBlack() {
    QCOMPARE(greyOf(4, CMYK, {0, 0, 0, 0}), QByteArray("\xFF"));
    QCOMPARE(greyOf(4, CMYK, {0, 0, 0, 255}), QByteArray(1, '\0'));
    QCOMPARE(greyOf(4, CMYK, {255, 255, 255, 255}), QByteArray(1, '\0'));
  }
  void moreInkIsDarker() {
    int last = 256;
    for (int ink = 0; ink < 256; ink += 15) {
      const int grey = static_cast<uchar>(greyOf(4, CMYK, {0, 0, 0, ink}).at(0));
      QVERIFY(grey < last);
      last = grey;
    }
  }
  void inkAndAlphaRaiseModulo256() {
    QCOMPARE(greyOf(5, CMYK, {0, 0, 0, 0, 255}), QByteArray("\xFF"));
    QCOMPARE(greyOf(5, CMYK, {1, 1, 1, 1, 0}), QByteArray("\xFF"));  // 1 + 255 wraps to no ink
    QCOMPARE(greyOf(5, CMYK, {0, 0, 0, 0, 0}), QByteArray(1, '\0'));
  }
  void aFifthSampleBesideRGBIsIgnored() {
    QCOMPARE(greyOf(5, RGB, {50, 50, 50, 155, 7}), greyOf(4, RGB, {50, 50, 50, 155}));
  }
  void threeInksAreAlwaysBlack() { QCOMPARE(greyOf(3, CMYK, {0, 0, 0, 90, 0, 0}), QByteArray(2, '\0')); }
  void sixSamplesAreWhiteOrBlack() {
    QCOMPARE(greyOf(6, RGB, {1, 2, 3, 4, 5, 6}), QByteArray("\xFF"));
    QCOMPARE(greyOf(6, CMYK, {1, 2, 3, 4, 5, 6}), QByteArray(1, '\0'));
  }
  void aPlanarSourceIsNotFilled() {
    NSBitmapImageRep source = raster(2, 2, 3, RGB, QByteArray(12, '\x11'));
    source.isPlanar = true;
    source.bytesPerRow = 2;
    const auto grey = monoclomeBitmap(source);
    QVERIFY(grey);
    QCOMPARE(grey->data.size(), 4);
    QVERIFY(!grey->data.contains('\x11'));
  }
  void otherDepthsAreNotFilled() {
    NSBitmapImageRep source = raster(2, 2, 3, RGB, QByteArray(24, '\x11'));
    source.bitsPerSample = 16;
    source.bytesPerRow = 12;
    const auto grey = monoclomeBitmap(source);
    QVERIFY(grey);
    QCOMPARE(grey->bitsPerSample, 16);
    QVERIFY(!grey->data.contains('\x11'));
  }
  void rowsOfOtherDepthsHaveRoomForAByteAPixel() {
    for (const auto& [bits, rowBytes] : {std::pair(1, 9), std::pair(4, 9), {8, 9}, {16, 18}}) {
      NSBitmapImageRep source = raster(9, 2, 3, RGB, QByteArray(108, '\x11'));
      source.bitsPerSample = bits;
      source.bitsPerPixel = 3 * bits;
      source.bytesPerRow = 54;
      const auto grey = monoclomeBitmap(source);
      QVERIFY(grey);
      QCOMPARE(grey->bytesPerRow, rowBytes);
      QCOMPARE(grey->data.size(), 2 * rowBytes);
    }
  }
  void rowPaddingIsTakenForPixelsAndNothingIsWrittenBeyond() {
    NSBitmapImageRep source =
        raster(2, 2, 1, NSCalibratedWhiteColorSpace, QByteArray("\x01\x02\x03\x04\x05\x06", 6));
    source.bytesPerRow = 3;
    const auto grey = monoclomeBitmap(source);
    QVERIFY(grey);
    QCOMPARE(grey->data, QByteArray("\x01\x02\x03\x04", 4));
  }
  void impossibleNumbersGiveNothing() { QVERIFY(!monoclomeBitmap(raster(4, 4, 3, RGB, "short"))); }
};

NORVEX_TEST(MonoclomeBitmapTest)
#include "monoclome_bitmap_test.moc"
