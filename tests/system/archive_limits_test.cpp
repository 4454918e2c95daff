// The built program over archives that are strange: names, files that are none, pictures that kill their
// process, more work than memory.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>

#include "base/file_descriptor.h"
#include "kit/process_watch.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "system/archive_tree.h"

using namespace norvex;
using namespace norvex::kit;
using namespace norvex::archives;

namespace {

/// PostScript that keeps its interpreter busy.
QByteArray busyEps(const char* rounds) {
  return QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 30 30\n%%EndComments\n0 1 ") + rounds +
         " {pop} for 0 0 9 9 rectfill showpage\n";
}

void put(const QByteArray& path, const QByteArray& bytes) {
  const FileDescriptor file(::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
  if (!file.valid() || ::write(file.get(), bytes.constData(), size_t(bytes.size())) != bytes.size())
    qFatal("cannot write");
}

bool bindSocket(const FileDescriptor& socket, const QByteArray& path) {
  sockaddr_un address{AF_UNIX, {}};
  if (path.size() >= qsizetype(sizeof address.sun_path)) return false;
  std::strcpy(address.sun_path, path.constData());
  return ::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
}

/// Runs the program as somebody who may not read what is closed, which root may.
Ran norvexWithoutRights(const QStringList& arguments) {
  if (::geteuid() != 0) return kit::norvex(arguments);
  return run("setpriv",
             QStringList{"--bounding-set=-dac_override,-dac_read_search", norvexProgram()} + arguments);
}

QMap<QString, int> outcomesOf(const QByteArray& lines) {
  QMap<QString, int> outcomes;
  for (const QByteArray& line : lines.split('\n'))
    if (!line.isEmpty()) ++outcomes[QJsonDocument::fromJson(line).object().value("outcome").toString()];
  return outcomes;
}

/// Picture processes and interpreters: whatever works below the program's own children.
QList<qint64> workingBelow(qint64 program) {
  QList<qint64> working;
  for (const qint64 child : childrenOf(program))
    for (const qint64 picture : childrenOf(child)) {
      working << picture;
      working += childrenOf(picture);
    }
  return working;
}

/// The picture processes of a run. One that is over, and only waits for somebody to hear of it, has no pages.
QSet<qint64> picturesOf(qint64 program) {
  const auto contents = [](qint64 process, const char* name) {
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  QSet<qint64> pictures;
  for (const qint64 child : childrenOf(program))
    for (const qint64 picture : childrenOf(child))
      if (contents(picture, "comm").startsWith("norvex-worker") &&
          !contents(picture, "statm").startsWith("0 "))
        pictures << picture;
  return pictures;
}

/// The most pictures that a run works on at a time: a process that has answered is there for a moment more,
/// so that those count which were there before, too.
qsizetype mostPictures(const QStringList& arguments) {
  QProcess run;
  run.start(norvexProgram(), arguments);
  qsizetype most = 0;
  QSet<qint64> before;
  while (!run.waitForFinished(20)) {
    const QSet<qint64> now = picturesOf(run.processId());
    most = std::max(most, (QSet<qint64>(now) & before).size());
    before = now;
  }
  return run.exitCode() == 0 ? most : -1;
}

}  // namespace

class ArchiveLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void whateverIsInATreeIsDoneOrToldAndCountedAndNothingIsFollowedOutOfIt() {
    if (::geteuid() == 0 && QStandardPaths::findExecutable("setpriv").isEmpty())
      QSKIP("setpriv is not installed");
    const QTemporaryDir folder;
    const QByteArray root = QFile::encodeName(folder.path()), in = root + "/in/";
    for (const char* name : {"/in", "/in/closed", "/outside", "/out"})
      QCOMPARE(::mkdir((root + name).constData(), 0755), 0);
    const QList<QByteArray> names{"line\nfeed", "bad\xFF\xE2\x82", QByteArray(251, 'l'), "-", "\x1B[31m"};
    for (const QByteArray& name : names) put(in + name + ".svg", svg(3));
    put(in + "closed/hidden.svg", svg(4));
    put(root + "/outside/secret.svg", svg(5));
    for (const auto& [target, name] :
         {std::pair("../outside", "out"), std::pair("../outside/secret.svg", "l.svg"), std::pair(".", "loop"),
          std::pair("self.svg", "self.svg")})
      QCOMPARE(::symlink(target, (in + name).constData()), 0);
    QCOMPARE(::mkfifo((in + "pipe.svg").constData(), 0600), 0);
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    QVERIFY(bindSocket(socket, in + "s.svg"));
    const bool hasDevice = ::mknod((in + "d.svg").constData(), S_IFCHR | 0600, makedev(1, 5)) == 0;
    QCOMPARE(::chmod((in + "closed").constData(), 0), 0);
    const Ran ran =
        norvexWithoutRights({"convert", "--recursive", folder.filePath("in"), "--to", folder.filePath("out"),
                             "--format", "png", "--state", folder.filePath("state"), "--json-lines"});
    ::chmod((in + "closed").constData(), 0755);
    QVERIFY2(ran.exitCode == 1, ran.err.constData());
    const int passedOver = hasDevice ? 7 : 6;
    QCOMPARE(outcomesOf(ran.out),
             (QMap<QString, int>{{"done", 5}, {"failed", 1}, {"passed-over", passedOver}}));
    QVERIFY(ran.out.contains("the folder cannot be read (Permission denied)"));
    QVERIFY2(ran.err.endsWith(
                 QStringLiteral("norvex: 5 done, 1 failed, %1 passed over\n").arg(passedOver).toUtf8()),
             ran.err.constData());
    QVERIFY(!ran.err.contains('\x1B'));
    for (const QByteArray& name : names)
      QVERIFY2(::access((root + "/out/" + name + ".png").constData(), R_OK) == 0, name.constData());
    const Ran told = kit::norvex({"status", folder.filePath("state"), "--json"});
    QCOMPARE(QJsonDocument::fromJson(told.out).object().value("done").toInt(), 5);
    for (const QByteArray& name : names) {  // what removes the folder does not find all of them
      ::unlink((in + name + ".svg").constData());
      ::unlink((root + "/out/" + name + ".png").constData());
    }
  }

  void aFileThatKillsItsProcessAgainIsSetAsideAndTheOthersAreDone() {
    const QTemporaryDir folder;
    write(folder.filePath("in/killer.eps"), busyEps("2000000000"));
    for (int i = 0; i < 5; ++i) write(folder.filePath(QStringLiteral("in/%1.svg").arg(i)), svg(i));
    QDir(folder.path()).mkdir("out");
    QProcess run;
    run.start(norvexProgram(),
              {"convert", "--recursive", folder.filePath("in"), "--to", folder.filePath("out"), "--format",
               "png", "--state", folder.filePath("state"), "--json-lines", "--unordered"});
    QByteArray lines;
    while (lines.count('\n') < 5 && run.waitForReadyRead(60'000)) lines += run.readAllStandardOutput();
    while (!run.waitForFinished(50))
      for (const qint64 picture : workingBelow(run.processId())) ::kill(pid_t(picture), SIGKILL);
    lines += run.readAllStandardOutput();
    QCOMPARE(outcomesOf(lines), (QMap<QString, int>{{"done", 5}, {"set-aside", 1}}));
    const QJsonObject status =
        QJsonDocument::fromJson(kit::norvex({"status", folder.filePath("state"), "--json"}).out).object();
    QCOMPARE(status.value("setAside").toInt(), 1);
    QVERIFY(status.value("failures")
                .toArray()
                .first()
                .toObject()
                .value("example")
                .toString()
                .endsWith("killer.eps"));
  }

  void noMorePicturesAreWorkedOnThanTheMemoryOfAllAllows() {
    const QTemporaryDir folder;
    for (int i = 0; i < 8; ++i)
      write(folder.filePath(QStringLiteral("in/%1.eps").arg(i)), busyEps("3000000") + eps(i));
    const auto most = [&](const char* out, const QStringList& bound) {
      QDir(folder.path()).mkdir(out);
      return mostPictures(QStringList{"convert", "--recursive", folder.filePath("in"), "--to",
                                      folder.filePath(out), "--format", "png", "--jobs", "6", "--memory",
                                      "256", "-q"} +
                          bound);
    };
    // PostScript counts twice: 1,024 are room for two.
    const qsizetype bounded = most("bounded", {"--memory-total", "1024"});
    QVERIFY2(bounded == 1 || bounded == 2, qPrintable(QString::number(bounded)));
    const qsizetype free = most("free", {});
    QVERIFY2(free > 2, qPrintable(QString::number(free)));
  }
};

NORVEX_TEST(ArchiveLimitsTest)
#include "archive_limits_test.moc"
