// Reading a document: all of its bytes, or a reason.
#include "picture/document_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "kit/test_main.h"

using namespace norvex;

class DocumentFileTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  QString write(const QString& name, const QByteArray& bytes) {
    const QString path = folder_.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write a test file");
    return path;
  }

 private slots:
  void allBytesAreRead() {
    for (const int size : {1, 4096, (1 << 20) - 1, 1 << 20, (1 << 20) + 1, 3000000}) {
      QByteArray bytes(size, 'x');
      bytes[size / 2] = '\0';
      const auto read = readDocumentFile(write("file", bytes));
      QVERIFY(read);
      QCOMPARE(*read, bytes);
    }
  }

  /// The end is found by one byte more than the file tells, not by room for another piece.
  void aFileTakesAboutAsMuchMemoryAsItHas() {
    const auto read = readDocumentFile(write("file", QByteArray(3'500'000, 'x')));
    QVERIFY(read);
    QVERIFY2(read->capacity() < 4'500'000, qPrintable(QString::number(read->capacity())));
  }

  void anEmptyFileIsPresentButEmpty() {
    const auto read = readDocumentFile(write("empty", {}));
    QVERIFY(read);
    QVERIFY(read->isEmpty());
    QVERIFY(!read->isNull());
  }

  void namesWithBlanksAndOtherLettersWork() {
    QCOMPARE(*readDocumentFile(write(QStringLiteral("日本 ü.eps"), "abc")), QByteArray("abc"));
  }

  void whatIsMissingSaysSo() {
    const auto read = readDocumentFile(folder_.filePath("missing"));
    QCOMPARE(read.error().kind, ErrorKind::CannotRead);
    QCOMPARE(read.error().message, QStringLiteral("No such file or directory"));
    QCOMPARE(readDocumentFile({}).error().kind, ErrorKind::CannotRead);
    QCOMPARE(readDocumentFile(write("file", "x") + "/below").error().message,
             QStringLiteral("Not a directory"));
  }

  void whatIsNotPermittedSaysSo() {
    if (::geteuid() == 0) QSKIP("root may read everything");
    const QString path = write("secret", "x");
    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0) == 0);
    QCOMPARE(readDocumentFile(path).error().message, QStringLiteral("Permission denied"));
  }

  void foldersPipesDevicesAndSocketsAreRefusedWithoutWaiting() {
    QCOMPARE(readDocumentFile(folder_.path()).error().message, QStringLiteral("it is a folder"));
    const QByteArray pipe = QFile::encodeName(folder_.filePath("pipe"));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QCOMPARE(readDocumentFile(QFile::decodeName(pipe)).error().message,
             QStringLiteral("it is a pipe, not an ordinary file"));
    QCOMPARE(readDocumentFile("/dev/zero").error().message,
             QStringLiteral("it is a device, not an ordinary file"));
    QCOMPARE(readDocumentFile("/dev/null").error().kind, ErrorKind::CannotRead);
  }

  void aFileOverTheLimitIsRefusedAndOneAtTheLimitIsNot() {
    const QString path = write("file", QByteArray(1000, 'x'));
    QVERIFY(readDocumentFile(path, 1000));
    const auto read = readDocumentFile(path, 999);
    QCOMPARE(read.error().kind, ErrorKind::Limit);
    // Sparse: refused by its size, not by reading it.
    const QString sparse = write("sparse", "x");
    QVERIFY(QFile(sparse).resize(limits::maximumDocumentBytes + 1));
    QCOMPARE(readDocumentFile(sparse).error().kind, ErrorKind::Limit);
    QCOMPARE(readDocumentFile(sparse).error().message, QStringLiteral("it is larger than 512 MiB"));
  }

  void filesThatTellNoSizeAreRead() {
    const auto read = readDocumentFile("/proc/self/status");
    QVERIFY(read);
    QVERIFY(read->contains("Name:"));
  }

  void aFileThatGrowsIsNeverReadInHalf() {
    const QString path = write("growing", QByteArray(200000, 'a'));
    std::atomic<bool> stop = false;
    std::thread writer([&] {
      const QByteArray name = QFile::encodeName(path);
      while (!stop) {  // each state is whole: one letter, changed by truncation and one write
        for (const char letter : {'b', 'c'}) {
          const QByteArray bytes(100000 + 50000 * (letter - 'a'), letter);
          const int fd = ::open(name.constData(), O_WRONLY | O_TRUNC | O_CLOEXEC);
          if (fd < 0) continue;
          if (::write(fd, bytes.constData(), size_t(bytes.size())) < 0) stop = true;
          ::close(fd);
        }
      }
    });
    int good = 0;
    int refused = 0;
    for (int i = 0; i < 200; ++i) {
      const auto read = readDocumentFile(path);
      if (!read) {
        ++refused;
        QCOMPARE(read.error().message, QStringLiteral("it is being changed by another program"));
      } else {
        ++good;
        QCOMPARE(read->count(read->isEmpty() ? 'b' : read->at(0)), read->size());
      }
    }
    stop = true;
    writer.join();
    QCOMPARE(good + refused, 200);
  }

  void aStreamIsReadToItsEnd() {
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const QByteArray sent(300000, 'p');
    std::thread writer([&] {
      qsizetype done = 0;
      while (done < sent.size())
        done += ::write(ends[1], sent.constData() + done, size_t(sent.size() - done));
      ::close(ends[1]);
    });
    const auto read = readDocumentStream(ends[0]);
    writer.join();
    ::close(ends[0]);
    QVERIFY(read);
    QCOMPARE(*read, sent);
  }

  void aStreamOverTheLimitIsRefused() {
    const QString path = write("file", QByteArray(1000, 'x'));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(readDocumentStream(file.handle(), {}, 999).error().kind, ErrorKind::Limit);
    QVERIFY(file.seek(0));
    QCOMPARE(readDocumentStream(file.handle(), {}, 1000)->size(), 1000);
    const int zero = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
    QCOMPARE(readDocumentStream(zero, {}, 1 << 20).error().kind, ErrorKind::Limit);
    ::close(zero);
  }

  void waitingForAStreamEndsWithTheCancelToken() {
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    CancelToken cancel;
    std::thread canceller([&] { cancel.cancel(); });
    QCOMPARE(readDocumentStream(ends[0], cancel).error().kind, ErrorKind::Cancelled);
    canceller.join();
    ::close(ends[0]);
    ::close(ends[1]);
  }

  void aStreamThatIsNoneIsAnError() {
    QCOMPARE(readDocumentStream(-1).error().message, QStringLiteral("Bad file descriptor"));
    const int here = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(readDocumentStream(here).error().message, QStringLiteral("it is a folder"));
    ::close(here);
  }
};

NORVEX_TEST(DocumentFileTest)
#include "document_file_test.moc"
