// Numbers of a process's answer that agree with what was asked and with the memory that came, and those that
// do not.
#include "picture/client/worker_answers.h"

#include "kit/test_main.h"
#include "protocol/sealed_memory.h"

using namespace norvex;

namespace {

FileDescriptor memoryOf(qsizetype size) {
  auto sealed = SealedMemory::seal(QByteArray(size, '\x5A'));
  return sealed ? std::move(*sealed) : FileDescriptor();
}

PreviewReply preview(int bits, int bytesPerRow) {
  PreviewReply reply;
  reply.pixelsWide = 5;
  reply.pixelsHigh = 3;
  reply.bitsPerSample = bits;
  reply.samplesPerPixel = 3;
  reply.bytesPerRow = bytesPerRow;
  reply.colorSpaceName = QLatin1String(NSCalibratedRGBColorSpace);
  return reply;
}

constexpr PictureLimits kLimits{1, 1, 1};

}  // namespace

class WorkerAnswersTest : public QObject {
  Q_OBJECT
 private slots:
  void aPreviewHasSamplesOfWholeSizesAndRowsWithoutGaps_data() {
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("bytesPerRow");
    QTest::addColumn<bool>("right");
    QTest::newRow("1 bit") << 1 << 2 << true;
    QTest::newRow("2 bits") << 2 << 4 << true;
    QTest::newRow("4 bits") << 4 << 8 << true;
    QTest::newRow("8 bits") << 8 << 15 << true;
    QTest::newRow("16 bits") << 16 << 30 << true;
    QTest::newRow("no bits") << 0 << 0 << false;
    for (const int bits : {3, 5, 7, 9, 15, 17, 32})
      QTest::addRow("%d bits", bits) << bits << (15 * bits + 7) / 8 << false;
    QTest::newRow("a byte too much in each row") << 8 << 16 << false;
    QTest::newRow("a byte too little in each row") << 8 << 14 << false;
  }
  void aPreviewHasSamplesOfWholeSizesAndRowsWithoutGaps() {
    QFETCH(int, bits);
    QFETCH(int, bytesPerRow);
    QFETCH(bool, right);
    const auto bitmap = bitmapFrom({preview(bits, bytesPerRow), memoryOf(3 * bytesPerRow)}, kLimits);
    QCOMPARE(bitmap.ok(), right);
    if (!right) {
      QCOMPARE(bitmap.error().kind, ErrorKind::Protocol);
      return;
    }
    QCOMPARE(bitmap->bitsPerSample, bits);
    QCOMPARE(bitmap->bitsPerPixel, 3 * bits);
    QCOMPARE(bitmap->bytesPerRow, bytesPerRow);
    QCOMPARE(bitmap->data, QByteArray(3 * bytesPerRow, '\x5A'));
  }

  void aPreviewsMemoryIsExactlyItsRows() {
    for (const int more : {-1, 1, 4096})
      QCOMPARE(bitmapFrom({preview(8, 15), memoryOf(45 + more)}, kLimits).error().kind, ErrorKind::Protocol);
    QCOMPARE(bitmapFrom({preview(8, 15), FileDescriptor()}, kLimits).error().kind, ErrorKind::Protocol);
  }

  void aPreviewHasNoMorePixelsThanAllowed() {
    PreviewReply wide;
    wide.pixelsWide = wide.bytesPerRow = 1000;
    wide.pixelsHigh = 1000;
    wide.colorSpaceName = QLatin1String(NSCalibratedWhiteColorSpace);
    QVERIFY(bitmapFrom({wide, memoryOf(1'000'000)}, kLimits).ok());
    ++wide.pixelsHigh;
    QCOMPARE(bitmapFrom({wide, memoryOf(1'001'000)}, kLimits).error().kind, ErrorKind::Protocol);
  }

  void bytesMayFillTheMemoryThatIsAllowedAndNoMore() {
    const auto bytes = bytesFrom({BytesReply{2, 0.5, 150, {"a\nb"}}, memoryOf(1 << 20)}, kLimits);
    QVERIFY(bytes.ok());
    QCOMPARE(bytes->bytes.size(), 1 << 20);
    QCOMPARE(bytes->report.regionsRasterised, 2);
    QCOMPARE(bytes->report.warnings, QStringList{"a b"});
    QCOMPARE(bytesFrom({BytesReply{}, memoryOf((1 << 20) + 1)}, kLimits).error().kind, ErrorKind::Protocol);
  }

  void anImageHasTheSizeThatWasAskedFor() {
    QStringList remarks;
    const auto image = imageFrom({BitmapReply{{5, 3}, 20, {"a\tb"}}, memoryOf(60)}, {5, 3}, remarks);
    QVERIFY(image.ok());
    QCOMPARE(image->size(), QSize(5, 3));
    QCOMPARE(image->pixel(4, 2), 0x5A5A5A5Au);
    QCOMPARE(remarks, QStringList{"a b"});
    QVERIFY(!imageFrom({BitmapReply{{5, 3}, 20, {}}, memoryOf(60)}, {3, 5}, remarks).ok());
    QVERIFY(!imageFrom({BitmapReply{{5, 3}, 24, {}}, memoryOf(72)}, {5, 3}, remarks).ok());
    QVERIFY(!imageFrom({BitmapReply{{5, 3}, 20, {}}, memoryOf(61)}, {5, 3}, remarks).ok());
  }

  void factsCarryNoLineBreaks() {
    PictureFacts told;
    told.warnings = told.fonts = told.colorSpaces = {"a\nb"};
    told.stoppedBy = QStringLiteral("c\x1B\x64");
    const auto facts = factsFrom({told, FileDescriptor()});
    QVERIFY(facts.ok());
    QCOMPARE(facts->warnings + facts->fonts + facts->colorSpaces, (QStringList{"a b", "a b", "a b"}));
    QCOMPARE(facts->stoppedBy, QStringLiteral("c d"));
    QCOMPARE(factsFrom({told, memoryOf(1)}).error().kind, ErrorKind::Protocol);
  }

  void anErrorIsHandedOn() {
    const auto facts = factsFrom({Error{ErrorKind::Encrypted, QStringLiteral("why")}, FileDescriptor()});
    QCOMPARE(facts.error().kind, ErrorKind::Encrypted);
    QCOMPARE(facts.error().message, QStringLiteral("why"));
  }
};

NORVEX_TEST(WorkerAnswersTest)
#include "worker_answers_test.moc"
