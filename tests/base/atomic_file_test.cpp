#include "base/atomic_file.h"

#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

QStringList allIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

}  // namespace

class AtomicFileTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }

  void aNewFileHasTheBytesAndTheUsualPermissions() {
    const QString path = folder_->filePath(QStringLiteral("a.eps"));
    const mode_t mask = ::umask(0);
    ::umask(mask);
    QVERIFY(writeFileAtomically(path, "abc", IfExists::Fail));
    QCOMPARE(contentOf(path), QByteArray("abc"));
    struct stat status {};
    QCOMPARE(::stat(qPrintable(path), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0666 & ~mask);
    QCOMPARE(allIn(folder_->path()), QStringList{QStringLiteral("a.eps")});
  }
  void anExistingFileIsLeftAloneUnlessItIsToBeReplaced() {
    const QString path = folder_->filePath(QStringLiteral("a"));
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    const auto refused = writeFileAtomically(path, "new", IfExists::Fail);
    QVERIFY(!refused);
    QCOMPARE(refused.error().kind, ErrorKind::CannotWrite);
    QCOMPARE(refused.error().message, QStringLiteral("the file exists already"));
    QCOMPARE(contentOf(path), QByteArray("old"));
    QVERIFY(writeFileAtomically(path, "new", IfExists::Replace));
    QCOMPARE(contentOf(path), QByteArray("new"));
    QCOMPARE(allIn(folder_->path()).size(), 1);
  }
  void aReplacedFileKeepsItsPermissions() {
    const QString path = folder_->filePath(QStringLiteral("a"));
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    ::chmod(qPrintable(path), 0640);
    QVERIFY(writeFileAtomically(path, "new", IfExists::Replace));
    struct stat status {};
    ::stat(qPrintable(path), &status);
    QCOMPARE(status.st_mode & 0777, 0640u);
  }
  void aReadOnlyFileIsNotReplaced() {
    const QString path = folder_->filePath(QStringLiteral("a"));
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    ::chmod(qPrintable(path), 0444);
    const auto refused = writeFileAtomically(path, "new", IfExists::Replace);
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("the file is read-only"));
    QCOMPARE(contentOf(path), QByteArray("old"));
  }
  void aLinkStaysALink() {
    const QString path = folder_->filePath(QStringLiteral("a"));
    const QString link = folder_->filePath(QStringLiteral("link"));
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    QVERIFY(QFile::link(path, link));
    QVERIFY(isSameFile(path, link));
    QVERIFY(writeFileAtomically(link, "new", IfExists::Replace));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentOf(path), QByteArray("new"));
  }
  void aMissingFolderIsSaid() {
    const auto refused =
        writeFileAtomically(folder_->filePath(QStringLiteral("no/such/a")), "x", IfExists::Replace);
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("the folder to write to does not exist"));
  }
  void aFolderIsNotOverwritten() {
    const auto refused = writeFileAtomically(folder_->path(), "x", IfExists::Replace);
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("there is a folder of that name"));
  }
  void aPipeIsNotReplacedByAFile() {
    const QString path = folder_->filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    const auto refused = writeFileAtomically(path, "x", IfExists::Replace);
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("it is not an ordinary file"));
    struct stat status {};
    ::stat(qPrintable(path), &status);
    QVERIFY(S_ISFIFO(status.st_mode));
  }
  void aFullDiskLeavesTheOldFile() {
    const QString small = folder_->filePath(QStringLiteral("small"));
    QDir().mkpath(small);
    if (::mount("tmpfs", qPrintable(small), "tmpfs", 0, "size=64k") != 0)
      QSKIP("mounting is not permitted here");
    const QString path = small + QStringLiteral("/a");
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    const auto refused = writeFileAtomically(path, QByteArray(1 << 20, 'x'), IfExists::Replace);
    const QByteArray left = contentOf(path);
    const QStringList all = allIn(small);
    ::umount(qPrintable(small));
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("there is no space left to write to"));
    QCOMPARE(left, QByteArray("old"));
    QCOMPARE(all, QStringList{QStringLiteral("a")});
  }
  void aKilledWriterLeavesNothing() {
    const QString path = folder_->filePath(QStringLiteral("a"));
    QVERIFY(writeFileAtomically(path, "old", IfExists::Fail));
    const pid_t child = ::fork();
    if (child == 0) {  // the size limit kills the writer in the middle of its bytes
      const rlimit limit{1 << 16, 1 << 16};
      ::setrlimit(RLIMIT_FSIZE, &limit);
      ::signal(SIGXFSZ, SIG_DFL);
      const bool ok = bool(writeFileAtomically(path, QByteArray(1 << 20, 'x'), IfExists::Replace));
      ::_exit(ok ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(contentOf(path), QByteArray("old"));
    QCOMPARE(allIn(folder_->path()), QStringList{QStringLiteral("a")});
  }
  void whatAnInterruptedWriterLeftGoesAndNothingElse() {
    const QByteArray digits("0123456789abcdef");
    const QByteArray folder = QFile::encodeName(folder_->path());
    const QByteArrayList stay{"a.eps",
                              "a.eps." + digits,
                              ".a.eps",
                              ".a.eps-" + digits,
                              ".b.eps." + digits,
                              ".a.eps." + digits.left(15),
                              ".a.eps." + digits.toUpper(),
                              "." + digits};
    const QByteArray left = ".a.eps." + digits;
    for (const QByteArray& name : stay + QByteArrayList{left})
      QVERIFY(writeFileAtomically(folder_->path() + '/' + QString::fromLatin1(name), "x", IfExists::Fail));
    removeUnfinishedFiles(folder, {"a.eps"});
    for (const QByteArray& name : stay)
      QVERIFY2(QFileInfo::exists(folder_->path() + '/' + QString::fromLatin1(name)), name.constData());
    QVERIFY(!QFileInfo::exists(folder_->path() + '/' + QString::fromLatin1(left)));
    QCOMPARE(allIn(folder_->path()).size(), stay.size());
    removeUnfinishedFiles(folder + "/no/such", {"a.eps"});
  }
  void filesOfDifferentNamesAreNotTheSame() {
    const QString one = folder_->filePath(QStringLiteral("a")),
                  other = folder_->filePath(QStringLiteral("b"));
    QVERIFY(writeFileAtomically(one, "x", IfExists::Fail));
    QVERIFY(!isSameFile(one, other));
    QVERIFY(!isSameFile(other, one));
    QVERIFY(writeFileAtomically(other, "x", IfExists::Fail));
    QVERIFY(!isSameFile(one, other));
    QVERIFY(isSameFile(one, folder_->filePath(QStringLiteral("./a"))));
  }
  void filesThatDoNotExistAreNotTheSame() {
    QVERIFY(!isSameFile(folder_->filePath(QStringLiteral("x")), folder_->filePath(QStringLiteral("x"))));
  }

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

NORVEX_TEST(AtomicFileTest)
#include "atomic_file_test.moc"
