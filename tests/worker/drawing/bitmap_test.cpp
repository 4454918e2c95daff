#include "worker/drawing/bitmap.h"

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

class BitmapTest : public QObject {
  Q_OBJECT
 private slots:
  void isClearWhenItIsMade() {
    const Bitmap bitmap = *Bitmap::create({7, 5});
    QCOMPARE(bitmap.size(), QSize(7, 5));
    QCOMPARE(bitmap.rect(), QRect(0, 0, 7, 5));
    QCOMPARE(bitmap.bytesPerRow(), 28);
    QCOMPARE(bitmap.byteCount(), 140);
    for (int y = 0; y < 5; ++y)
      for (int x = 0; x < 7; ++x) QCOMPARE(bitmap.row(y)[x], 0u);
  }

  void ofNoSizeIsEmpty() {
    QVERIFY(Bitmap().isEmpty());
    QVERIFY(Bitmap::create({0, 3})->isEmpty());
    QCOMPARE(Bitmap::create({0, 3})->byteCount(), 0);
  }

  void copiesShareTheirPixelsAPartDoesNot() {
    Bitmap bitmap = *Bitmap::create({4, 3});
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 4; ++x) bitmap.row(y)[x] = QRgb(10 * y + x);
    Bitmap same = bitmap;
    same.row(2)[3] = 99;
    QCOMPARE(bitmap.row(2)[3], 99u);
    Bitmap part = *bitmap.copy(QRect(1, 1, 2, 2));
    QCOMPARE(part.size(), QSize(2, 2));
    QCOMPARE(part.row(0)[0], 11u);
    QCOMPARE(part.row(1)[1], 22u);
    part.row(0)[0] = 0;
    QCOMPARE(bitmap.row(1)[1], 11u);
  }

  void withoutMemoryThereIsALimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("a sanitizer ends the program instead");
#endif
    const auto bitmap = Bitmap::create({2'000'000'000, 2'000'000'000});
    QVERIFY(!bitmap);
    QCOMPARE(bitmap.error().kind, ErrorKind::Limit);
  }
};

NORVEX_TEST(BitmapTest)
#include "bitmap_test.moc"
