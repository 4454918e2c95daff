// What other systems put around a file, told and taken off.
#include "check/file_wrapping.h"

#include <QtEndian>

#include "kit/test_main.h"

using namespace norvex;

namespace {

constexpr int kHeader = 128;
const QByteArray kProgram("%!PS-Adobe-3.0 EPSF-3.0\nshowpage\n");

/// MacBinary: a header, the data fork padded to the next 128 bytes, the resource fork.
QByteArray macBinary(int nameLength, const QByteArray& data, const QByteArray& resource) {
  QByteArray file(kHeader, '\0');
  file[1] = char(nameLength);
  qToBigEndian(quint32(data.size()), file.data() + 83);
  qToBigEndian(quint32(resource.size()), file.data() + 87);
  file += data;
  if (resource.isEmpty()) return file;
  while (file.size() % kHeader != 0) file += '\0';
  return file + resource;
}

/// AppleSingle: a header, the place of the one fork at 30 and its length at 34, the data fork.
QByteArray appleSingle(const QByteArray& data) {
  QByteArray file("\x00\x05\x16\x00\x00\x02\x00\x00", 8);
  file += QByteArray(16, '\0') + QByteArray("\x00\x01\x00\x00\x00\x01\x00\x00\x00\x26", 10) +
          QByteArray(4, '\0') + data;
  qToBigEndian(quint32(data.size()), file.data() + 34);
  return file;
}

bool isWrapped(QByteArray file, qsizetype at, char byte) {
  file[at] = byte;
  return wrappedFile(file).has_value();
}

}  // namespace

class FileWrappingTest : public QObject {
  Q_OBJECT
 private slots:
  void bothForksOfAMacBinaryFileAreFound() {
    const QByteArray file = macBinary(5, kProgram, "resources");
    const auto wrapped = wrappedFile(file);
    QVERIFY(wrapped);
    QCOMPARE(wrapped->wrapping, "MacBinary");
    QCOMPARE(wrapped->dataFork, kProgram);
    QCOMPARE(wrapped->resourceFork, "resources");
  }

  /// As many headers as a small file has room for: each is looked at once, and none of them copies the rest.
  void wrappingsInWrappingsAreAllTakenOff() {
    constexpr int kTimes = 100'000;
    QByteArray headers(qsizetype(kTimes) * kHeader, '\0');
    for (int i = 0; i < kTimes; ++i) {
      char* const header = headers.data() + qsizetype(i) * kHeader;
      header[1] = 1;
      qToBigEndian(quint32((kTimes - i - 1) * kHeader + kProgram.size()), header + 83);
    }
    QCOMPARE(withoutWrapping(headers + kProgram), kProgram);
  }

  /// It would hold itself, and taking wrapping after wrapping off would never end.
  void aForkThatLiesOverItsHeaderIsNone() {
    const auto single = [](quint32 at) {
      QByteArray file = appleSingle(kProgram);
      qToBigEndian(at, file.data() + 30);
      qToBigEndian(quint32(file.size() - at), file.data() + 34);
      return file;
    };
    QCOMPARE(withoutWrapping(single(38)), kProgram);
    for (const quint32 at : {0, 8, 26, 37}) {
      QVERIFY2(!wrappedFile(single(at)), qPrintable(QString::number(at)));
      QCOMPARE(withoutWrapping(single(at)), single(at));
    }
  }

  void aForkThatEndsAtAFullBlockIsNotPadded() {
    const QByteArray data = kProgram.leftJustified(kHeader, ' ');
    const QByteArray file = macBinary(5, data, "resources");
    const auto wrapped = wrappedFile(file);
    QVERIFY(wrapped);
    QCOMPARE(wrapped->dataFork, data);
    QCOMPARE(wrapped->resourceFork, "resources");
  }

  void aMacBinaryNameHasOneTo63Characters() {
    for (const int length : {1, 63})
      QVERIFY2(wrappedFile(macBinary(length, kProgram, {})), qPrintable(QString::number(length)));
    for (const int length : {0, 64, 255})
      QVERIFY2(!wrappedFile(macBinary(length, kProgram, {})), qPrintable(QString::number(length)));
  }

  void theZerosOfAMacBinaryHeaderAreZeros() {
    const QByteArray file = macBinary(5, kProgram, {});
    QVERIFY(isWrapped(file, 0, 0));
    for (const int at : {0, 74, 82}) QVERIFY2(!isWrapped(file, at, 1), qPrintable(QString::number(at)));
  }

  void whatIsCutOffIsNotTakenForWrapped() {
    const QByteArray file = macBinary(5, kProgram, "resources");
    for (qsizetype size = 0; size < file.size(); ++size)
      QVERIFY2(!wrappedFile(file.first(size)), qPrintable(QString::number(size)));
    QVERIFY(!wrappedFile(macBinary(5, {}, "resources")));
  }
};

NORVEX_TEST(FileWrappingTest)
#include "file_wrapping_test.moc"
