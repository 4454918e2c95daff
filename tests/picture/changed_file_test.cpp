// A file that another program changes while it is read. This program's own read() stands before that of the C
// library, so that the change comes at the one moment that matters.
#include <QFile>
#include <QTemporaryDir>

#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "kit/test_main.h"
#include "picture/document_file.h"

using namespace norvex;

namespace {

/// What happens when bytes of a file have been read, before anything else is asked of it.
std::function<void()> afterBytes;

}  // namespace

extern "C" ssize_t read(int descriptor, void* bytes, size_t size) {
  const long got = ::syscall(SYS_read, descriptor, bytes, size);
  if (got > 0 && afterBytes) afterBytes();
  return got;
}

class ChangedFileTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  QString path_ = folder_.filePath("file");

  /// Over what was there, as old as `time` says: the clock of a file system may stand still for a while.
  void overwrite(const QByteArray& bytes, const timespec& time) {
    const int file = ::open(QFile::encodeName(path_).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const timespec both[] = {time, time};
    if (::pwrite(file, bytes.constData(), size_t(bytes.size()), 0) != bytes.size() ||
        ::futimens(file, both) != 0 || ::close(file) != 0)
      qFatal("cannot write a test file");
  }

  /// Reads the file, of letters "a", which are overwritten with the next letter after each of the first
  /// reads.
  Result<QByteArray> readWhileChanged(int changes, int& reads) {
    overwrite(QByteArray(1000, 'a'), {1000, 0});
    reads = 0;
    afterBytes = [&] {
      if (++reads <= changes) overwrite(QByteArray(1000, char('a' + reads)), {1000 + reads, 0});
    };
    Result<QByteArray> read = readDocumentFile(path_);
    afterBytes = nullptr;
    return read;
  }

 private slots:
  void cleanup() { afterBytes = nullptr; }

  void aFileIsReadUntilItStaysAsItIs() {
    int reads = 0;
    QCOMPARE(readWhileChanged(0, reads).value(), QByteArray(1000, 'a'));
    QCOMPARE(reads, 1);
    QCOMPARE(readWhileChanged(1, reads).value(), QByteArray(1000, 'b'));
    QCOMPARE(reads, 2);
    QCOMPARE(readWhileChanged(2, reads).value(), QByteArray(1000, 'c'));
    QCOMPARE(reads, 3);
  }

  void afterThreeChangesItIsRefused() {
    int reads = 0;
    const Result<QByteArray> read = readWhileChanged(3, reads);
    QVERIFY(!read);
    QCOMPARE(read.error().kind, ErrorKind::CannotRead);
    QCOMPARE(read.error().message, QStringLiteral("it is being changed by another program"));
    QCOMPARE(reads, 3);
  }

  /// Of the same length, and within one second.
  void aChangeIsToldByAFractionOfASecond() {
    overwrite(QByteArray(1000, 'a'), {1000, 1});
    afterBytes = [this] {
      afterBytes = nullptr;
      overwrite(QByteArray(1000, 'b'), {1000, 2});
    };
    QCOMPARE(readDocumentFile(path_).value(), QByteArray(1000, 'b'));
  }

  /// By a program that sets the time back, as some do that copy files.
  void aChangeIsToldByTheLength() {
    overwrite(QByteArray(1000, 'a'), {1000, 0});
    afterBytes = [this] {
      afterBytes = nullptr;
      overwrite(QByteArray(2000, 'b'), {1000, 0});
    };
    QCOMPARE(readDocumentFile(path_).value(), QByteArray(2000, 'b'));
  }
};

NORVEX_TEST(ChangedFileTest)
#include "changed_file_test.moc"
