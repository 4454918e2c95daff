// The recipes for many machines, run by the real programs with two machines made of processes; one of them
// dies in the middle. Machines are process namespaces, which only root may make.
#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QThread>

#include <unistd.h>

#include <memory>
#include <utility>

#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

constexpr int kPictures = 400;

QString recipe(const QString& name) {
  return QStringLiteral(NORVEX_SOURCE_DIR "/docs/recipes/") + name;
}

/// Daemons are not always on the path of a user.
QString programNamed(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"}) : found;
}

QString missingOf(const QStringList& programs) {
  if (::geteuid() != 0) return QStringLiteral("machines of processes are made by root alone");
  for (const QString& program : programs)
    if (programNamed(program).isEmpty()) return program + QStringLiteral(" is not installed");
  return {};
}

quint16 freePort() {
  QTcpServer server;
  if (!server.listen(QHostAddress::LocalHost)) qFatal("no port");
  return server.serverPort();
}

/// Processes that die together, at the latest with the object.
class Machine {
 public:
  Machine(const QString& program, const QStringList& arguments, const QStringList& environment = {}) {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : environment)
      variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process_.setProcessEnvironment(variables);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start("unshare", QStringList{"--mount", "--pid", "--fork", "--mount-proc", "--kill-child",
                                          programNamed(program)} +
                                  arguments);
    if (!process_.waitForStarted()) qFatal("unshare is not there");
  }
  ~Machine() { die(); }
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  void die() {
    process_.kill();
    process_.waitForFinished();
  }
  [[nodiscard]] QByteArray said() { return process_.readAll().right(600); }

 private:
  QProcess process_;
};

/// Pictures, and what one run makes of them.
class Work {
 public:
  Work() {
    for (int i = 0; i < kPictures; ++i) {
      write(QStringLiteral("in/%1/%2.svg").arg(i % 9).arg(i),
            QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'><rect width='%1' "
                           "height='%2' fill='red'/></svg>")
                .arg(1 + i % 19)
                .arg(1 + i % 17)
                .toUtf8());
    }
    for (const char* name : {"alone", "out", "states"}) QDir(folder_.path()).mkdir(name);
    const Ran ran = kit::norvex(
        {"convert", "--recursive", path("in"), "--to", path("alone"), "--format", "png"}, {}, 600);
    if (ran.exitCode != 0) qFatal("%s", ran.err.constData());
  }

  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  QString write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write");
    return file.fileName();
  }
  [[nodiscard]] QMap<QString, QByteArray> results(const QString& name) const {
    QMap<QString, QByteArray> contents;
    QDirIterator it(path(name), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
      QFile file(it.next());
      if (file.open(QIODevice::ReadOnly))
        contents.insert(QDir(path(name)).relativeFilePath(file.fileName()), file.readAll());
    }
    return contents;
  }
  /// Waits until the work is in its middle.
  [[nodiscard]] bool isUnderWay(QProcess* running = nullptr) const {
    for (int i = 0; i < 3000; ++i) {
      if (results("out").size() > kPictures / 10) return true;
      if (running ? running->waitForFinished(50) : (QThread::msleep(50), false)) return false;
    }
    return false;
  }
  /// Empty, or what is wrong with the results.
  [[nodiscard]] QString complaint() const {
    const auto alone = results("alone"), out = results("out");
    if (alone.size() != kPictures) return QStringLiteral("the run to compare with is not complete");
    for (const QString& name : out.keys())
      if (!alone.contains(name)) return QStringLiteral("too much: ") + name;
    for (auto it = alone.begin(); it != alone.end(); ++it)
      if (out.value(it.key()) != it.value()) return QStringLiteral("missing or different: ") + it.key();
    return {};
  }
  [[nodiscard]] QByteArray statusOfStates() const {
    QStringList arguments{"status", path("states/all.state"), "--merge"};
    QDir states(path("states"));
    for (const QString& name : states.entryList({"[0-9]*.state"})) arguments << states.filePath(name);
    return kit::norvex(arguments).out;
  }

 private:
  QTemporaryDir folder_;
};

const QString kAllDone = QStringLiteral("done:         %1\nfailed:       0\n").arg(kPictures);

/// A host to log in at, on a port of its own.
std::unique_ptr<Machine> loginHost(const Work& work, const QString& name, quint16 port) {
  const QString config = work.write(
      name + "/sshd_config",
      QStringLiteral("Port %1\nListenAddress 127.0.0.1\nHostKey %2\nAuthorizedKeysFile %3\nStrictModes no\n"
                     "UsePAM no\nPermitRootLogin yes\nPidFile none\nMaxStartups 50\n")
          .arg(port)
          .arg(work.path("key"), work.path("key.pub"))
          .toUtf8());
  return std::make_unique<Machine>("sshd", QStringList{"-D", "-e", "-f", config});
}

/// Two nodes and what rules them.
class SlurmCluster {
 public:
  explicit SlurmCluster(const Work& work) : work_(work) {
    QByteArray key(1024, 'k');
    const QString keyFile = work.write("munge.key", key);
    QFile::setPermissions(keyFile, QFile::ReadOwner);
    const auto in = [&](const char* name) { return work.path(name); };
    munge_ = std::make_unique<Machine>(
        "munged", QStringList{"-F", "-f", "--key-file=" + keyFile, "--socket=" + in("munge.socket"),
                              "--pid-file=" + in("munged.pid"), "--log-file=" + in("munged.log"),
                              "--seed-file=" + in("munged.seed")});
    config = work.write("slurm.conf", configuration().toUtf8());
    QDir(work.path(".")).mkdir("slurm-state");
    ruler_ = std::make_unique<Machine>("slurmctld", QStringList{"-D", "-f", config});
    one = std::make_unique<Machine>("slurmd", QStringList{"-D", "-N", "one", "-f", config});
    two = std::make_unique<Machine>("slurmd", QStringList{"-D", "-N", "two", "-f", config});
  }

  [[nodiscard]] Ran run(const QString& program, const QStringList& arguments,
                        const QStringList& environment = {}) const {
    return kit::run(program, arguments, {}, 60, QStringList{"SLURM_CONF=" + config} + environment);
  }
  /// Waits for a line of sinfo or squeue; the time is one that only a broken cluster needs.
  [[nodiscard]] bool comesTo(const QString& program, const QStringList& arguments,
                             const QByteArray& wanted) const {
    for (int i = 0; i < 600; ++i) {
      const Ran ran = run(program, arguments);
      if (ran.exitCode == 0 && ran.out.trimmed() == wanted) return true;
      QThread::msleep(400);
    }
    return false;
  }

  QString config;
  std::unique_ptr<Machine> one, two;

 private:
  [[nodiscard]] QString configuration() const {
    QFile name("/proc/sys/kernel/hostname");
    (void)name.open(QIODevice::ReadOnly);
    const QString host = QString::fromUtf8(name.readAll().trimmed());
    QString text = QStringLiteral(
        "ClusterName=norvex\nSlurmctldHost=@HOST(127.0.0.1)\nSlurmUser=root\nSlurmctldPort=@P1\n"
        "AuthType=auth/munge\nAuthInfo=socket=@DIR/munge.socket,cred_expire=5\n"
        "StateSaveLocation=@DIR/slurm-state\nSlurmdSpoolDir=@DIR/spool-%n\n"
        "SlurmctldPidFile=@DIR/slurmctld.pid\nSlurmdPidFile=@DIR/slurmd-%n.pid\n"
        "SlurmctldLogFile=@DIR/slurmctld.log\nSlurmdLogFile=@DIR/slurmd-%n.log\n"
        "ProctrackType=proctrack/pgid\nTaskPlugin=task/none\nSelectType=select/cons_tres\n"
        "SelectTypeParameters=CR_Core\nSwitchType=switch/none\nMpiDefault=none\nReturnToService=2\n"
        "SlurmdTimeout=10\nSlurmctldTimeout=10\nInactiveLimit=0\nKillWait=1\nJobRequeue=1\n"
        "NodeName=one NodeHostname=@HOST NodeAddr=127.0.0.1 Port=@P2 CPUs=1 State=UNKNOWN\n"
        "NodeName=two NodeHostname=@HOST NodeAddr=127.0.0.1 Port=@P3 CPUs=1 State=UNKNOWN\n"
        "PartitionName=all Nodes=one,two Default=YES State=UP MaxTime=INFINITE\n");
    for (const char* port : {"@P1", "@P2", "@P3"}) text.replace(port, QString::number(freePort()));
    return text.replace("@HOST", host).replace("@DIR", work_.path("."));
  }

  const Work& work_;
  std::unique_ptr<Machine> munge_, ruler_;
};

}  // namespace

class RecipesTest : public QObject {
  Q_OBJECT
 private slots:
  void gnuParallelOverTwoHostsOfWhichOneDies() {
    if (const QString missing = missingOf({"parallel", "sshd", "ssh", "ssh-keygen", "unshare"});
        !missing.isEmpty())
      QSKIP(qPrintable(missing));
    const Work work;
    QDir().mkpath("/run/sshd");  // where the server wants to be rootless
    QCOMPARE(run("ssh-keygen", {"-q", "-t", "ed25519", "-N", "", "-f", work.path("key")}).exitCode, 0);
    const quint16 first = freePort(), second = freePort();
    QString config;
    for (const auto& [name, port] : {std::pair("one", first), std::pair("two", second)})
      config += QStringLiteral(
                    "Host %1\nHostName 127.0.0.1\nPort %2\nUser root\nIdentityFile %3\nIdentitiesOnly yes\n"
                    "UserKnownHostsFile /dev/null\nStrictHostKeyChecking no\nLogLevel ERROR\n")
                    .arg(QLatin1String(name))
                    .arg(port)
                    .arg(work.path("key"));
    const QString ssh = "ssh -F " + work.write("ssh_config", config.toUtf8());
    const QString logins = work.write("logins", "1/one\n1/two\n");
    const auto one = loginHost(work, "one", first), two = loginHost(work, "two", second);

    QProcess recipeRun;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("NORVEX", norvexProgram());
    variables.insert("SSH", ssh);
    variables.insert("PARALLEL_HOME", work.path("parallel"));
    recipeRun.setProcessEnvironment(variables);
    recipeRun.start(recipe("archive-parallel"),
                    {logins, work.path("in"), work.path("out"), "png", work.path("states"), "6"});
    QVERIFY2(work.isUnderWay(&recipeRun), (recipeRun.readAllStandardError() + one->said()).constData());
    two->die();
    QVERIFY(recipeRun.waitForFinished(300'000));
    QVERIFY2(recipeRun.exitCode() == 0, recipeRun.readAllStandardError().constData());
    QCOMPARE(work.complaint(), QString());
    QVERIFY(QString::fromUtf8(recipeRun.readAllStandardOutput()).startsWith(kAllDone));
  }

  void aSlurmArrayOnTwoNodesOfWhichOneDies() {
    if (const QString missing = missingOf({"slurmctld", "slurmd", "munged", "sbatch", "sinfo", "unshare"});
        !missing.isEmpty())
      QSKIP(qPrintable(missing));
    const Work work;
    SlurmCluster cluster(work);
    QVERIFY2(cluster.comesTo("sinfo", {"-h", "-o", "%D %T"}, "2 idle"),
             (cluster.run("sinfo", {}).out + cluster.one->said()).constData());
    const Ran queued = cluster.run("sbatch",
                                   {"--array=1-6", "--chdir=" + work.path("."),
                                    "--output=" + work.path("job-%a.log"), recipe("archive.sbatch")},
                                   {"IN=" + work.path("in"), "OUT=" + work.path("out"), "FORMAT=png",
                                    "STATES=" + work.path("states"), "NORVEX=" + norvexProgram()});
    QVERIFY2(queued.exitCode == 0, queued.err.constData());
    QVERIFY(work.isUnderWay());
    cluster.two->die();
    QVERIFY2(cluster.comesTo("squeue", {"-h"}, ""), cluster.run("squeue", {}).out.constData());
    QCOMPARE(work.complaint(), QString());
    const QByteArray status = work.statusOfStates();
    QVERIFY2(QString::fromUtf8(status).startsWith(kAllDone), status.constData());
  }

  void daskOnTwoWorkersOfWhichOneDies() {
    if (const QString missing = missingOf({"dask-scheduler", "dask-worker", "unshare"}); !missing.isEmpty())
      QSKIP(qPrintable(missing));
    const Work work;
    const QString address = QStringLiteral("tcp://127.0.0.1:%1").arg(freePort());
    Machine scheduler("dask-scheduler",
                      {"--host", "127.0.0.1", "--port", address.section(u':', -1), "--no-dashboard"});
    const auto worker = [&](const char* name) {
      return std::make_unique<Machine>(
          "dask-worker",
          QStringList{address, "--nthreads", "1", "--no-dashboard", "--no-nanny", "--host", "127.0.0.1",
                      "--name", name, "--local-directory", work.path(name)},
          QStringList{"NORVEX=" + norvexProgram()});
    };
    const auto one = worker("one"), two = worker("two");
    QByteArray names;
    for (const QString& name : work.results("in").keys()) names += work.path("in/" + name).toUtf8() + '\0';
    QProcess script;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("NORVEX", norvexProgram());
    script.setProcessEnvironment(variables);
    script.start(recipe("archive_dask.py"), {address, work.path("in"), work.path("out"), "png"});
    script.write(names);
    script.closeWriteChannel();
    QVERIFY2(work.isUnderWay(&script), (script.readAllStandardError() + one->said()).constData());
    two->die();
    QVERIFY(script.waitForFinished(300'000));
    QVERIFY2(script.exitCode() == 0, script.readAllStandardError().right(2000).constData());
    QCOMPARE(work.complaint(), QString());
    QCOMPARE(script.readAllStandardOutput().count("\"outcome\":\"done\""), kPictures);
  }
};

NORVEX_TEST(RecipesTest)
#include "recipes_test.moc"
