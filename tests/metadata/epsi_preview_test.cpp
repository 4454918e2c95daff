// Interchange previews: numbers, rows and the hexadecimal lines.
#include "metadata/epsi_preview.h"

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

class EpsiPreviewTest : public QObject {
  Q_OBJECT
 private slots:
  void eightByTwoPixelsOfOneBit() {
    const auto rep = epsiPreview(" 8 2 1 2\n%FF\n%00\n%%EndPreview\n");
    QVERIFY(rep);
    QCOMPARE(rep->pixelsWide, 8);
    QCOMPARE(rep->pixelsHigh, 2);
    QCOMPARE(rep->bitsPerSample, 1);
    QCOMPARE(rep->bitsPerPixel, 1);
    QCOMPARE(rep->samplesPerPixel, 1);
    QVERIFY(!rep->hasAlpha);
    QVERIFY(!rep->isPlanar);
    QCOMPARE(rep->colorSpaceName, "NSCalibratedWhiteColorSpace");
    QCOMPARE(rep->data, QByteArray("\x00\xFF", 2));
  }

  void numbersMayBeginWithZero() {
    const auto rep = epsiPreview(" 08 02 01 0\n%FF\n%00\n%%EndPreview\n");
    QVERIFY(rep);
    QCOMPARE(rep->pixelsWide, 8);
    QCOMPARE(rep->pixelsHigh, 2);
    QCOMPARE(rep->bitsPerPixel, 1);
  }

  void aPreviewOfGigabytesIsRefused() {
    const auto sentence = [](qint64 width, qint64 height) {
      const auto rep =
          epsiPreview(' ' + QByteArray::number(width) + ' ' + QByteArray::number(height) + " 1 1\n");
      return rep ? QString() : rep.error().message;
    };
    QCOMPARE(sentence(limits::maximumPreviewPixels / 8, 8), QString());
    QCOMPARE(sentence(limits::maximumPreviewPixels / 8, 9), QString("the embedded preview is too large"));
    QCOMPARE(sentence(limits::maximumPreviewPixels + 1, 1), QString("the embedded preview is too large"));
  }

  void bytesPerRow_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("bytes");
    QTest::newRow("one byte") << 8 << 1 << 1;
    QTest::newRow("a part of a byte") << 3 << 1 << 1;
    QTest::newRow("nine bits") << 9 << 1 << 2;
    QTest::newRow("one more than needed") << 4 << 4 << 3;
    QTest::newRow("two pixels of four bits") << 2 << 4 << 2;
    QTest::newRow("width is a multiple") << 16 << 4 << 8;
    QTest::newRow("depth is a multiple") << 5 << 8 << 5;
    QTest::newRow("thirteen of two bits") << 13 << 2 << 4;
  }
  void bytesPerRow() {
    QFETCH(int, width);
    QFETCH(int, depth);
    QFETCH(int, bytes);
    QCOMPARE(epsiBytesPerRow(width, depth), bytes);
    const QByteArray line = " " + QByteArray::number(width) + " 3 " + QByteArray::number(depth) + " 3\n";
    const auto rep = epsiPreview(line);
    QVERIFY(rep);
    QCOMPARE(rep->bytesPerRow, bytes);
    QCOMPARE(rep->data.size(), bytes * 3);
    QVERIFY(rep->isConsistent());
  }

  void theBytesRunOnAcrossRows() {
    // Rows of three bytes, lines of two: nothing is aligned again.
    const auto rep = epsiPreview("4 2 4 3\n%0102\n%0304\n%0506\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xFE\xFD\xFC\xFB\xFA\xF9"));
  }

  void numbersMayHaveTheirSign() {
    const auto rep = epsiPreview("+8 +2 1 +2\n%0102\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xFE\xFD"));
    QVERIFY(!epsiPreview("-8 2 1 2\n%0102\n%%EndPreview"));
  }

  void aBlankBehindThePercentSignIsSkipped() {
    const auto rep = epsiPreview("16 1 1 1\r\n% A5\r\n% 5a\r\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\x5A\xA5"));
  }

  void charactersThatAreNoDigits() {
    // First: counts 0. Second: leaves the byte at sixteen times the first.
    const auto rep = epsiPreview("8 3 1 3\n%xF\n%Fx\n%zz\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xF0\x0F\xFF"));
  }

  void anOddLineCountsItsLastDigitAsTheHighHalf() {
    const auto rep = epsiPreview("8 2 1 1\n%00F\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xFF\x0F"));
  }

  void tooManyBytesAreDropped() {
    const auto rep = epsiPreview("8 1 1 1\n%000000000000\n%11\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xFF"));
  }

  void missingBytesStayWhite() {
    const auto rep = epsiPreview("8 3 1 3\n%FF\n%%EndPreview\n%FF\n");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\x00\xFF\xFF", 3));
  }

  void numbersThatMakeNoBitmap_data() {
    QTest::addColumn<QByteArray>("numbers");
    for (const char* numbers :
         {"", "8", "8 2", "8 2 1", "8 2 1 x", "0 2 1 2", "8 0 1 2", "-8 2 1 2", "8 2 0 2", "8 2 3 2",
          "8 2 64 2", "99999999999999999999 1 1 1", "65536 65536 8 1", "1 200000000 1 1", "a b c d"})
      QTest::newRow(numbers[0] ? numbers : "none") << QByteArray(numbers);
  }
  void numbersThatMakeNoBitmap() {
    QFETCH(QByteArray, numbers);
    QVERIFY(!epsiPreview(numbers + "\n%FF\n%%EndPreview\n"));
  }

  void theNumberOfLinesIsNotUsed() {
    const auto rep = epsiPreview("8 2 1 777\n%00FF\n%%EndPreview");
    QVERIFY(rep);
    QCOMPARE(rep->data, QByteArray("\xFF\x00", 2));
  }
};

NORVEX_TEST(EpsiPreviewTest)
#include "epsi_preview_test.moc"
