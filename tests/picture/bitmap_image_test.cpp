// NSBitmapImageRep: sane numbers, and pictures of every layout that can be shown.
#include "picture/bitmap_image.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

NSBitmapImageRep rep(int wide, int high, int bits, int samples, const char* space, const QByteArray& data) {
  NSBitmapImageRep result;
  result.pixelsWide = wide;
  result.pixelsHigh = high;
  result.bitsPerSample = bits;
  result.samplesPerPixel = samples;
  result.bitsPerPixel = bits * samples;
  result.bytesPerRow = (wide * samples * bits + 7) / 8;
  result.colorSpaceName = QLatin1String(space);
  result.data = data;
  return result;
}

}  // namespace

class BitmapImageTest : public QObject {
  Q_OBJECT
 private slots:
  void greysOfEveryDepthAreShown() {
    QCOMPARE(toImage(rep(2, 1, 8, 1, NSCalibratedWhiteColorSpace, QByteArray("\x00\x80", 2))).pixel(1, 0),
             qRgb(128, 128, 128));
    const QImage one = toImage(rep(3, 2, 1, 1, NSCalibratedWhiteColorSpace, QByteArray("\xA0\x40", 2)));
    QCOMPARE(one.pixel(0, 0), qRgb(255, 255, 255));
    QCOMPARE(one.pixel(1, 0), qRgb(0, 0, 0));
    QCOMPARE(one.pixel(2, 0), qRgb(255, 255, 255));
    QCOMPARE(one.pixel(1, 1), qRgb(255, 255, 255));
    QCOMPARE(toImage(rep(2, 1, 4, 1, NSCalibratedWhiteColorSpace, QByteArray("\x3F", 1))).pixel(0, 0),
             qRgb(51, 51, 51));
    QCOMPARE(toImage(rep(4, 1, 2, 1, NSCalibratedWhiteColorSpace, QByteArray("\x1B", 1))).pixel(2, 0),
             qRgb(170, 170, 170));
  }

  void coloursAreShown() {
    QCOMPARE(toImage(rep(1, 1, 8, 3, NSCalibratedRGBColorSpace, "\x01\x02\x03")).pixel(0, 0), qRgb(1, 2, 3));
    QCOMPARE(toImage(rep(1, 1, 8, 4, NSDeviceCMYKColorSpace, QByteArray("\xFF\x00\x00\x00", 4))).pixel(0, 0),
             qRgb(0, 255, 255));
    NSBitmapImageRep translucent =
        rep(1, 1, 8, 4, NSCalibratedRGBColorSpace, QByteArray("\x40\x00\x00\x80", 4));
    translucent.hasAlpha = true;
    const QImage image = toImage(translucent);
    QCOMPARE(reinterpret_cast<const QRgb*>(image.constScanLine(0))[0], qRgba(64, 0, 0, 128));
  }

  void numbersThatDoNotFitAreFoundAndNeverShown() {
    const NSBitmapImageRep good = rep(4, 4, 8, 3, NSCalibratedRGBColorSpace, QByteArray(48, 'x'));
    QVERIFY(good.isConsistent());
    const auto broken = [&](auto change) {
      NSBitmapImageRep bad = good;
      change(bad);
      return !bad.isConsistent() && toImage(bad).isNull();
    };
    QVERIFY(broken([](auto& bad) { bad.data.chop(1); }));
    QVERIFY(broken([](auto& bad) { bad.pixelsWide = 0; }));
    QVERIFY(broken([](auto& bad) { bad.pixelsHigh = -1; }));
    QVERIFY(broken([](auto& bad) { bad.bytesPerRow = 11; }));
    QVERIFY(broken([](auto& bad) { bad.pixelsWide = 2'000'000'000; }));
    QVERIFY(broken([](auto& bad) { bad.pixelsHigh = 2'000'000'000; }));
    QVERIFY(broken([](auto& bad) { bad.bitsPerSample = 0; }));
    QVERIFY(broken([](auto& bad) { bad.samplesPerPixel = 1'000'000; }));
    QVERIFY(broken([](auto& bad) { bad.isPlanar = true, bad.bytesPerRow = 12; }));
  }

  void layoutsThatCannotBeShownGiveNoImage() {
    NSBitmapImageRep planar = rep(2, 2, 8, 3, NSCalibratedRGBColorSpace, QByteArray(12, 'x'));
    planar.isPlanar = true;
    planar.bytesPerRow = 2;
    QVERIFY(planar.isConsistent());
    QVERIFY(toImage(planar).isNull());
    QVERIFY(toImage(rep(1, 1, 16, 3, NSCalibratedRGBColorSpace, QByteArray(6, 'x'))).isNull());
  }

  void rowsWithPaddingAreShown() {
    NSBitmapImageRep padded = rep(1, 2, 8, 1, NSCalibratedWhiteColorSpace, QByteArray("\x01zzz\x02zzz", 8));
    padded.bytesPerRow = 4;
    QCOMPARE(toImage(padded).pixel(0, 1), qRgb(2, 2, 2));
  }

  void anImageGoesThereAndBack() {
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
      QImage image(5, 3, format);
      for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
          image.setPixel(x, y, qRgba(x * 20, y * 30, 7, format == QImage::Format_RGB32 ? 255 : 200));
      const NSBitmapImageRep made = bitmapFromImage(image);
      QVERIFY(made.isConsistent());
      QCOMPARE(made.hasAlpha, image.hasAlphaChannel());
      QCOMPARE(made.samplesPerPixel, image.hasAlphaChannel() ? 4 : 3);
      QCOMPARE(toImage(made), image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    QVERIFY(!bitmapFromImage({}).isConsistent());
  }
};

NORVEX_TEST(BitmapImageTest)
#include "bitmap_image_test.moc"
