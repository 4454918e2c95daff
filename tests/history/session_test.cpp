#include "history/session.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <csignal>
#include <functional>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Runs `work` in a child, which then ends without any tidying up, by `signal` where one is given.
void inAChild(const std::function<void()>& work, int signal = SIGKILL) {
  const pid_t child = ::fork();
  if (child == 0) {
    for (const int each : {SIGTERM, SIGINT, SIGHUP, SIGSEGV}) ::signal(each, SIG_DFL);  // not the test's own
    work();
    ::raise(signal);
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
}

}  // namespace

class SessionTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> root_;
  QString folder() const { return root_->filePath("a/b"); }
  QStringList files() const { return QDir(folder()).entryList(QDir::Files); }
  void writeSession(const QByteArray& text) const {
    QFile file(folder() + "/1.session");
    if (!QDir().mkpath(folder()) || !file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
      qFatal("cannot write test data");
  }

 private slots:
  void init() { root_ = std::make_unique<QTemporaryDir>(); }

  void aCrashLeavesWhatWasOpenAndWhatWasUsedLast() {
    inAChild([this] {
      auto* session = new Session(folder());
      for (const char* path : {"/a.eps", "/b.eps", "/c.eps"}) session->opened(path);
      session->closed("/b.eps");
      session->used("/a.eps");
    });
    const QList<LeftSession> left = Session::takeLeft(folder());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().files, QStringList({"/a.eps", "/c.eps"}));
    QCOMPARE(left.first().last, QString("/a.eps"));
  }

  void withoutTheLastTheOneBeforeIsTheLast() {
    inAChild([this] {
      auto* session = new Session(folder());
      for (const char* path : {"/a.eps", "/b.eps", "/c.eps"}) session->opened(path);
      session->closed("/c.eps");
    });
    QCOMPARE(Session::takeLeft(folder()).value(0).last, QString("/b.eps"));
    inAChild([this] {
      auto* session = new Session(folder());
      for (const char* path : {"/a.eps", "/b.eps"}) session->opened(path);
      session->closed("/a.eps");
    });
    QCOMPARE(Session::takeLeft(folder()).value(0).last, QString("/b.eps"));
  }

  void aHundredFilesOfASessionAreOpenedAgain() {
    QJsonArray paths;
    for (int i = 0; i < 101; ++i) paths << QString("/%1.eps").arg(i);
    writeSession(QJsonDocument(QJsonObject{{"files", paths}}).toJson());
    const QList<LeftSession> left = Session::takeLeft(folder());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().files.size(), 100);
    QCOMPARE(left.first().files.last(), QString("/99.eps"));
  }

  void aFileOfMoreThanAMebibyteIsNoSession() {
    const QByteArray text = "{\"files\":[\"/a.eps\"]}";
    writeSession(text + QByteArray((1 << 20) - text.size(), ' '));
    QCOMPARE(Session::takeLeft(folder()).size(), 1);
    writeSession(text + QByteArray((1 << 20) + 1 - text.size(), ' '));
    QVERIFY(Session::takeLeft(folder()).isEmpty());
  }

  void aSignalThatIsIgnoredEndsNoSession() {
    inAChild([this] {
      ::signal(SIGHUP, SIG_IGN);  // as nohup does
      (new Session(folder()))->opened("/a.eps");
      ::raise(SIGHUP);
    });
    QCOMPARE(files().size(), 1);
  }

  void itIsOfferedOnce() {
    inAChild([this] { (new Session(folder()))->opened("/a.eps"); }, SIGSEGV);
    QCOMPARE(Session::takeLeft(folder()).size(), 1);
    QVERIFY(Session::takeLeft(folder()).isEmpty());
    QVERIFY(files().isEmpty());
  }

  void anEndThatWasAskedForIsNoCrash_data() {
    QTest::addColumn<int>("signal");
    QTest::newRow("TERM") << SIGTERM;
    QTest::newRow("INT") << SIGINT;
    QTest::newRow("HUP") << SIGHUP;
  }
  void anEndThatWasAskedForIsNoCrash() {
    QFETCH(int, signal);
    inAChild([this] { (new Session(folder()))->opened("/a.eps"); }, signal);
    QVERIFY(files().isEmpty());
  }

  void anOrdinaryEndLeavesNothing() {
    {
      Session session(folder());
      session.opened("/a.eps");
      QCOMPARE(files().size(), 1);
    }
    QVERIFY(files().isEmpty());
  }

  void whatARunningProgramHasOpenIsNotTaken() {
    Session session(folder());
    session.opened("/a.eps");
    int ends[2];
    QVERIFY(::pipe(ends) == 0);
    inAChild([&] {
      const char count = char(Session::takeLeft(folder()).size());
      (void)!::write(ends[1], &count, 1);
    });
    char count = -1;
    QVERIFY(::read(ends[0], &count, 1) == 1);
    QCOMPARE(int(count), 0);
    QCOMPARE(files().size(), 1);
  }

  void withoutADocumentNothingIsWritten() {
    const Session session(folder());
    QVERIFY(!QDir(folder()).exists());
  }

  void stoppedItKeepsNothing() {
    Session session(folder());
    session.opened("/a.eps");
    session.stop();
    session.opened("/b.eps");
    QVERIFY(files().isEmpty());
  }

  void rubbishIsPassedOver() {
    for (const char* text : {"", "no json", "{\"files\":7}", "{\"files\":[\"relative.eps\"]}"}) {
      writeSession(text);
      QVERIFY(Session::takeLeft(folder()).isEmpty());
    }
  }
};

NORVEX_TEST(SessionTest)
#include "session_test.moc"
