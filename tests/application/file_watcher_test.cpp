#include "application/file_watcher.h"

#include <QSaveFile>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "kit/test_main.h"
#include "picture/document_file.h"

using namespace norvex;

class FileWatcherTest : public QObject {
  Q_OBJECT

  static constexpr int kSettling = 40;
  static constexpr int kLongEnough = 20000;
  static constexpr int kQuiet = 400;
  std::unique_ptr<QTemporaryDir> folder_;
  QString path_;

  void write(const QByteArray& bytes) {
    QFile file(path_);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
  }
  /// A watcher that has taken note of what is there.
  std::unique_ptr<FileWatcher> watch() {
    auto watcher = std::make_unique<FileWatcher>(path_, kSettling);
    QTest::qWait(100);
    return watcher;
  }

 private slots:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    path_ = folder_->filePath("a.eps");
    write("%!PS-Adobe-3.0 EPSF-3.0\n");
  }

  void aChangeIsTold() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    write("%!PS-Adobe-3.0 EPSF-3.0\nshowpage\n");
    QVERIFY(changed.wait(kLongEnough));
    write("%!PS-Adobe-3.0 EPSF-3.0\nshowpage showpage\n");
    QVERIFY(changed.wait(kLongEnough));
    QCOMPARE(changed.size(), 2);
  }

  void aDeletedFileIsToldAndItsComingBackIsAChange() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    QSignalSpy gone(watcher.get(), &FileWatcher::fileDidDisappear);
    QVERIFY(QFile::remove(path_));
    QVERIFY(gone.wait(kLongEnough));
    write("%!PS-Adobe-3.0 EPSF-3.0\n");  // as it was
    QVERIFY(changed.wait(kLongEnough));
    QCOMPARE(gone.size(), 1);
  }

  void aFileThatIsReplacedByRenamingIsStillWatched() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    QSignalSpy gone(watcher.get(), &FileWatcher::fileDidDisappear);
    for (int i = 0; i < 3; ++i) {
      QSaveFile file(path_);
      QVERIFY(file.open(QIODevice::WriteOnly));
      file.write("%!PS " + QByteArray::number(i));
      QVERIFY(file.commit());
      QVERIFY(changed.wait(kLongEnough));
    }
    QVERIFY(gone.isEmpty());
    QCOMPARE(changed.size(), 3);
  }

  void aFileThatGoesAndComesBackIsTold() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    QVERIFY(QFile::remove(path_));
    QTest::qWait(kQuiet);
    QVERIFY(changed.isEmpty());
    write("%!PS other\n");
    QVERIFY(changed.wait(kLongEnough));
  }

  void theSameBytesAgainAreNoChange() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    write("%!PS-Adobe-3.0 EPSF-3.0\n");
    QTest::qWait(kQuiet);
    QVERIFY(changed.isEmpty());
  }

  void aHalfWrittenFileIsWaitedFor_data() {
    QTest::addColumn<QByteArray>("half");
    QTest::addColumn<QByteArray>("whole");
    QTest::newRow("emptied") << QByteArray("") << QByteArray("%!PS other");
    QTest::newRow("pdf") << QByteArray("%PDF-1.4\n1 0 obj")
                         << QByteArray("%PDF-1.4\n1 0 obj\nendobj\n%%EOF\n");
    // What a program that saves by appending leaves behind; the mark may be so far from the end.
    QTest::newRow("pdf that goes on")
        << "%PDF-1.4\n%%EOF" + QByteArray(1020, ' ') << "%PDF-1.4\n%%EOF" + QByteArray(1019, ' ');
    QTest::newRow("svg") << QByteArray("<svg><path d='M0") << QByteArray("<svg><path d='M0 0'/></svg>\n");
  }
  void aHalfWrittenFileIsWaitedFor() {
    QFETCH(QByteArray, half);
    QFETCH(QByteArray, whole);
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    write(half);
    QTest::qWait(kQuiet);
    QVERIFY(changed.isEmpty());
    write(whole);
    QVERIFY(changed.wait(kLongEnough));
  }

  void whatWasReadMeanwhileIsNoNews() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    write("%!PS new\n");
    watcher->acknowledge();
    QTest::qWait(kQuiet);
    QVERIFY(changed.isEmpty());
    write("%!PS newer\n");
    QVERIFY(changed.wait(kLongEnough));
  }

  // A window that reads a file again while a program goes on writing it would show the half of it for ever.
  void whatIsWrittenWhileItIsTakenNoteOfIsNews() {
    QSemaphore wasRead, mayEnd;
    FileWatcher watcher(path_, kSettling, [&](const QString& path) {
      const Result<QByteArray> bytes = readDocumentFile(path);
      wasRead.release();
      mayEnd.acquire();
      return bytes;
    });
    QSignalSpy changed(&watcher, &FileWatcher::fileDidChange);
    mayEnd.release();  // the note that it takes at first
    QTest::qWait(kQuiet);
    wasRead.acquire();
    watcher.acknowledge();
    wasRead.acquire();
    write("%!PS the other half\n");
    QTest::qWait(kQuiet);  // the change is seen, and what it is about is looked for after this look
    mayEnd.release(1000);
    QVERIFY(changed.wait(kLongEnough));
  }

  void anotherFileInTheFolderIsNoChange() {
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    QFile other(folder_->filePath("b.eps"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("%!PS");
    other.close();
    QTest::qWait(kQuiet);
    QVERIFY(changed.isEmpty());
  }

  void aMissingFileCanBeWatched() {
    QVERIFY(QFile::remove(path_));
    const auto watcher = watch();
    QSignalSpy changed(watcher.get(), &FileWatcher::fileDidChange);
    write("%!PS there now\n");
    QVERIFY(changed.wait(kLongEnough));
  }
};

NORVEX_TEST(FileWatcherTest)
#include "file_watcher_test.moc"
