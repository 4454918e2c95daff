#include "history/session.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <csignal>
#include <memory>

#include "kit/test_main.h"
#include "kit/test_programs.h"

using namespace norvex;

namespace {

/// A program with a session in a folder, which does with files what it is told and then ends by a signal,
/// without any tidying up.
int endBySignal(const QStringList& arguments) {
  for (const int each : {SIGTERM, SIGINT, SIGHUP}) ::signal(each, SIG_DFL);  // whatever was inherited
  if (arguments.contains("ignore hangups")) ::signal(SIGHUP, SIG_IGN);       // as nohup does
  auto* const session = new Session(arguments.at(0));
  for (const QString& step : arguments.mid(2)) {
    const QString path = step.section(u' ', 1);
    if (step.startsWith(u"opened")) session->opened(path);
    if (step.startsWith(u"closed")) session->closed(path);
    if (step.startsWith(u"used")) session->used(path);
    if (step == u"stop") session->stop();
    if (step == u"start") session->start();
    if (step == u"hang up") ::raise(SIGHUP);
  }
  ::raise(arguments.at(1).toInt());
  return 0;
}
const bool ending = kit::registerProgram("end-by-signal", endBySignal);

/// A program that takes what was left in a folder. It ends with how many those were.
int takeLeft(const QStringList& arguments) {
  return int(Session::takeLeft(arguments.at(0)).size());
}
const bool taking = kit::registerProgram("take-left", takeLeft);

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
  /// Whether a program that did these steps ended by the signal.
  bool endsBySignal(const QStringList& steps, int signal) const {
    return kit::runProgram("end-by-signal", QStringList{folder(), QString::number(signal)} + steps).crashed;
  }

 private slots:
  void init() { root_ = std::make_unique<QTemporaryDir>(); }

  void aCrashLeavesWhatWasOpenAndWhatWasUsedLast() {
    QVERIFY(endsBySignal({"opened /a.eps", "opened /b.eps", "opened /c.eps", "closed /b.eps", "used /a.eps"},
                         SIGKILL));
    const QList<LeftSession> left = Session::takeLeft(folder());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().files, QStringList({"/a.eps", "/c.eps"}));
    QCOMPARE(left.first().last, QString("/a.eps"));
    QVERIFY(endsBySignal({"opened /a.eps", "used /another.eps"}, SIGKILL));
    QCOMPARE(Session::takeLeft(folder()).value(0).last, QString("/a.eps"));
  }

  void withoutTheLastTheOneBeforeIsTheLast() {
    const QStringList three{"opened /a.eps", "opened /b.eps", "opened /c.eps", "closed /c.eps"};
    QVERIFY(endsBySignal(three, SIGKILL));
    QCOMPARE(Session::takeLeft(folder()).value(0).last, QString("/b.eps"));
    QVERIFY(endsBySignal({"opened /a.eps", "opened /b.eps", "closed /a.eps"}, SIGKILL));
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
    QVERIFY(endsBySignal({"ignore hangups", "opened /a.eps", "hang up"}, SIGKILL));
    QCOMPARE(files().size(), 1);
  }

  void itIsOfferedOnce() {
    QVERIFY(endsBySignal({"opened /a.eps"}, SIGABRT));
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
    QVERIFY(endsBySignal({"opened /a.eps"}, signal));
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
    const kit::Ran other = kit::runProgram("take-left", {folder()});
    QVERIFY(!other.crashed);
    QCOMPARE(other.exitCode, 0);
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

  void startedAgainItKeepsWhatIsOpenThen() {
    QVERIFY(endsBySignal({"opened /a.eps", "stop", "opened /b.eps", "start"}, SIGKILL));
    QCOMPARE(Session::takeLeft(folder()).value(0).files, QStringList({"/a.eps", "/b.eps"}));
    QVERIFY(endsBySignal({"opened /a.eps", "stop", "closed /a.eps", "start"}, SIGKILL));
    QVERIFY(files().isEmpty());
    QVERIFY(endsBySignal({"opened /a.eps", "stop", "start", "opened /b.eps"}, SIGKILL));
    QCOMPARE(Session::takeLeft(folder()).value(0).files, QStringList({"/a.eps", "/b.eps"}));
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
