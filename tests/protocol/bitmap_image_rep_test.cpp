// A raster that says of itself more than it holds is not believed.
#include "protocol/bitmap_image_rep.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

NSBitmapImageRep raster(int bits, int samples, int rowBytes, qsizetype bytes) {
  NSBitmapImageRep rep;
  rep.pixelsWide = 3;
  rep.pixelsHigh = 2;
  rep.bitsPerSample = bits;
  rep.samplesPerPixel = samples;
  rep.bytesPerRow = rowBytes;
  rep.data = QByteArray(bytes, 0);
  return rep;
}

}  // namespace

class BitmapImageRepTest : public QObject {
  Q_OBJECT
 private slots:
  void theSamplesOfARowFitIntoItsBytes() {
    QVERIFY(raster(8, 1, 3, 6).isConsistent());
    QVERIFY(!raster(8, 1, 2, 6).isConsistent());
    QVERIFY(raster(1, 3, 2, 4).isConsistent());  // nine bits
    QVERIFY(!raster(1, 3, 1, 4).isConsistent());
    QVERIFY(raster(16, 4, 24, 48).isConsistent());
    QVERIFY(!raster(16, 4, 23, 48).isConsistent());
  }
  void everyRowIsThere() {
    QCOMPARE(raster(8, 1, 5, 10).bytesPerPlane(), 10);
    QVERIFY(raster(8, 1, 5, 10).isConsistent());
    QVERIFY(!raster(8, 1, 5, 9).isConsistent());
    NSBitmapImageRep planar = raster(8, 3, 3, 18);
    planar.isPlanar = true;
    QVERIFY(planar.isConsistent());
    planar.data.chop(1);
    QVERIFY(!planar.isConsistent());
  }
  void samplesAreOneTo32BitsLargeAndOneTo64AreAPixel() {
    for (const int bits : {1, 32}) QVERIFY(raster(bits, 1, 12, 24).isConsistent());
    for (const int bits : {-1, 0, 33}) QVERIFY(!raster(bits, 1, 13, 26).isConsistent());
    QVERIFY(raster(8, 64, 192, 384).isConsistent());
    for (const int samples : {-1, 0, 65}) QVERIFY(!raster(8, samples, 195, 390).isConsistent());
  }
  void aSideIsAtLeastOnePixel() {
    for (int NSBitmapImageRep::*const side :
         {&NSBitmapImageRep::pixelsWide, &NSBitmapImageRep::pixelsHigh, &NSBitmapImageRep::bytesPerRow}) {
      NSBitmapImageRep rep = raster(8, 1, 3, 6);
      rep.*side = 0;
      QVERIFY(!rep.isConsistent());
    }
    NSBitmapImageRep one = raster(8, 1, 1, 1);
    one.pixelsWide = one.pixelsHigh = 1;
    QVERIFY(one.isConsistent());
  }
};

NORVEX_TEST(BitmapImageRepTest)
#include "bitmap_image_rep_test.moc"
