#include "worker/confinement/scratch_watch.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>

#include "base/file_descriptor.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

class ScratchWatchTest : public QObject {
  Q_OBJECT
 private slots:
  void someFilesAreNothingToSpeakOf() {
    const QTemporaryDir folder;
    makeFiles(folder, 10);
    QVERIFY(ScratchWatch(folder.path()).look().ok());
    QVERIFY(ScratchWatch(QString()).look().ok());
  }

  void tooManyFilesAreALimit() {
    const QTemporaryDir folder;
    makeFiles(folder, limits::maximumScratchFiles);
    QVERIFY(ScratchWatch(folder.path()).look().ok());
    makeFiles(folder, limits::maximumScratchFiles + 1);
    const Result<void> looked = ScratchWatch(folder.path()).look();
    QVERIFY(!looked);
    QCOMPARE(looked.error().kind, ErrorKind::Limit);
  }

  /// Before the total is there: what is written until the next look has room below it.
  void tooManyBytesAreALimit() {
    const QTemporaryDir folder;
    const qint64 half = (limits::maximumScratchBytes - ScratchWatch::kBetweenLooks) / 2;
    for (const char* name : {"/a", "/b"}) {
      const QByteArray path = QFile::encodeName(folder.path()) + name;
      const FileDescriptor file(::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
      QVERIFY(ScratchWatch(folder.path()).look().ok());
      if (::fallocate(file.get(), 0, 0, half + 4096) != 0) QSKIP("there is no room for such files");
    }
    QCOMPARE(ScratchWatch(folder.path()).look().error().kind, ErrorKind::Limit);
  }

  void aHugeFileWithNothingInItTakesNoRoom() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("a"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(2 * limits::maximumScratchBytes));
    QVERIFY(ScratchWatch(folder.path()).look().ok());
  }

 private:
  static void makeFiles(const QTemporaryDir& folder, int count) {
    for (int i = 0; i < count; ++i)
      if (!QFile(folder.filePath(QString::number(i))).open(QIODevice::WriteOnly))
        qFatal("no files can be made");
  }
};

NORVEX_TEST(ScratchWatchTest)
#include "scratch_watch_test.moc"
