// Runs with a state: what is done is not done again, what is not true is, and nothing lies after a kill.
#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <atomic>
#include <utility>

#include "base/file_name.h"
#include "cli/archive/kept_archive.h"
#include "cli/archive/state/run_state.h"
#include "cli/archive/state/state_summary.h"

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

QByteArray hiddenNameOf(const QByteArray& name) {
  return '.' + name + ".0123456789abcdef";
}

RunEntry begun(const QByteArray& path, const QByteArray& output) {
  RunEntry entry;
  entry.path = path;
  entry.output = output;
  return entry;
}

}  // namespace

class StateTest : public QObject {
  Q_OBJECT
 private slots:
  void aSecondRunDoesOnlyWhatIsNewOrChanged() {
    Kept kept;
    kept.put("in/a.svg"), kept.put("in/b.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.told("outcome"), QStringList({"done", "done"}));
    const int opened = kept.service.openCount();
    kept.put("in/b.svg", svg("changed"));
    kept.put("in/c.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "unchanged");
    QCOMPARE(kept.outcomeOf("b.svg"), "done");
    QCOMPARE(kept.outcomeOf("c.svg"), "done");
    QCOMPARE(kept.service.openCount(), opened + 2);
    QCOMPARE(kept.bytesAt("out/b.svg"), svg("changed"));
  }

  void aFileWithAnotherTimeAndTheSameBytesIsNotDoneAgain() {
    Kept kept;
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "unchanged");
  }

  void aFailureIsTriedAgainWithOtherSettingsAndOnlyWithThem() {
    Kept kept;
    kept.put("in/a.svg", "no picture"), kept.put("in/b.svg");
    QCOMPARE(kept.run(), 1);
    kept.put("in/c.svg", "no picture");
    QCOMPARE(kept.run({"--retry-failed", "--page", "1"}), 1);
    QCOMPARE(kept.told("outcome").filter("failed").size(), 2);
    QCOMPARE(kept.outcomeOf("b.svg"), "done");  // its result was of other settings
    QCOMPARE(kept.run({"--page", "1"}), 1);
    QCOMPARE(kept.outcomeOf("a.svg"), "failed-before");
    QCOMPARE(kept.outcomeOf("b.svg"), "unchanged");
  }

  void aNameThatIsTooLongForItsResultIsAFailureAndNoReasonToEnd() {
    Kept kept;
    for (int i = 100; i < 140; ++i)  // as many as end a run where the disk is full
      kept.put("in/" + QByteArray::number(i) + QByteArray(249, 'n') + ".ai");
    kept.put("in/z.svg");
    QCOMPARE(kept.run(), 1);
    QCOMPARE(kept.outcomeOf("z.svg"), "done");
    QCOMPARE(kept.told("outcome").filter("failed").size(), 40);
    QVERIFY2(kept.console.messages.contains("File name too long"), qPrintable(kept.console.messages));
    QCOMPARE(kept.run(), 1);
    QCOMPARE(kept.told("outcome").filter("failed-before").size(), 40);
  }

  void otherSettingsDoItAgain() {
    Kept kept;
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.run({"--timeout", "60", "--jobs", "3", "--quiet"}), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "unchanged");  // nothing of the result follows from these
    QCOMPARE(kept.run({"--page", "1"}), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "done");
  }

  void aResultThatIsMissingOrDiffersIsMadeAgain() {
    Kept kept;
    kept.put("in/a.svg"), kept.put("in/b.svg");
    QCOMPARE(kept.run(), 0);
    QVERIFY(QFile::remove(kept.path("out/a.svg")));
    kept.put("out/b.svg", "half a resu");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.told("outcome"), QStringList({"done", "done"}));
    QCOMPARE(kept.bytesAt("out/a.svg"), svg("a picture"));
    QCOMPARE(kept.bytesAt("out/b.svg"), svg("a picture"));
  }

  void failuresAreTriedAgainOnlyWhenAsked() {
    Kept kept;
    kept.put("in/a.svg", "no picture");
    QVERIFY(kept.run() != 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "failed");
    const QString sentence = kept.lines().first().value("error").toString();
    QVERIFY(!sentence.isEmpty());
    QCOMPARE(kept.run(), 1);
    QCOMPARE(kept.outcomeOf("a.svg"), "failed-before");
    QCOMPARE(kept.lines().first().value("error").toString(), sentence);
    QVERIFY(kept.run({"--retry-failed"}) != 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "failed");
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "done");
  }

  void aFileThatWasNotThereIsLookedForAgain() {
    Kept kept;
    kept.put("list", kept.at("in/a.svg") + '\n');
    const QStringList arguments{"info",    "--files-from",     kept.path("list"),
                                "--state", kept.path("state"), "--json-lines"};
    QCOMPARE(kept.go(arguments), 3);
    kept.put("in/a.svg");
    QCOMPARE(kept.go(arguments), 0);
    QCOMPARE(kept.outcomeOf("a.svg"), "done");
  }

  void whatWasBegunIsDoneAgainAndItsLeftoversGo() {
    Kept kept;
    const QByteArray file = kept.put("in/a.svg");
    const QByteArray half = kept.put("out/a.svg", "what a killed run had written");
    kept.put("out/" + hiddenNameOf("a.svg"), "half");
    kept.put("out/" + hiddenNameOf("other.svg"), "somebody else's");
    kept.put("out/.a.svg.notrandom0000000");
    {
      const auto state = RunState::openForRun(kept.at("state"));
      QVERIFY(state.ok());
      QVERIFY((*state)->begin({begun(file, half)}).ok());
    }
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.bytesAt("out/a.svg"), svg("a picture"));
    QCOMPARE(kept.filesBelow("out"),
             QList<QByteArray>({".a.svg.notrandom0000000", hiddenNameOf("other.svg"), "a.svg"}));
  }

  void aFileOfSomebodyElseIsNotOverwrittenInAnyRun() {
    Kept kept;
    kept.put("in/a.svg");
    kept.put("out/a.svg", "mine");
    for (int i = 0; i < 2; ++i) {
      QCOMPARE(kept.run(), 4);
      QCOMPARE(kept.outcomeOf("a.svg"), "not-written");
      QCOMPARE(kept.bytesAt("out/a.svg"), "mine");
    }
    QCOMPARE(kept.run({"--force"}), 0);
    QCOMPARE(kept.bytesAt("out/a.svg"), svg("a picture"));
  }

  void anEntryIsBegunBeforeAnythingIsWritten() {
    Kept kept;
    const QByteArray file = kept.put("in/a.svg");
    std::atomic<int> seen = -1;
    kept.service.setPrepare([&](MemoryPictureProcess&) {
      const auto state = RunState::openToRead(kept.at("state"));
      const auto entry = state ? (*state)->find(file) : Result(std::optional<RunEntry>());
      seen = entry && *entry && (*entry)->output == kept.at("out/a.svg") ? int((*entry)->outcome) : -2;
    });
    QCOMPARE(kept.run(), 0);
    QCOMPARE(seen.load(), int(Outcome::Begun));
    const auto state = RunState::openToRead(kept.at("state"));
    const auto entry = (*state)->find(file);
    QCOMPARE(int((*entry)->outcome), int(Outcome::Done));
    QCOMPARE((*entry)->content.toHex(),
             QCryptographicHash::hash(svg("a picture"), QCryptographicHash::Sha256).toHex());
    QCOMPARE((*entry)->outputContent, (*entry)->content);
    QVERIFY((*entry)->seconds > 0);
  }

  void oneRunUsesAStateAtATime() {
    Kept kept;
    kept.put("in/a.svg");
    const auto other = RunState::openForRun(kept.at("state"));
    QVERIFY(other.ok());
    QCOMPARE(kept.run(), 4);
    QVERIFY(kept.console.messages.endsWith(": another run is using it\n"));
    QCOMPARE(kept.go({"status", kept.path("state")}), 0);  // others may look on
  }

  void whatIsNoStateIsRefused() {
    Kept kept;
    kept.put("in/a.svg");
    kept.put("state", "my notes, which must stay as they are, and are longer than a header");
    QCOMPARE(kept.run(), 4);
    QVERIFY(kept.bytesAt("state").startsWith("my notes"));
    QCOMPARE(kept.filesBelow("out"), QList<QByteArray>());
    QCOMPARE(kept.go({"status", kept.path("state")}), 3);
    QCOMPARE(kept.go({"status", kept.path("missing")}), 3);
    QVERIFY(kept.console.messages.endsWith(": there is no such state\n"));
    QVERIFY(!QFileInfo::exists(kept.path("missing")));
    QCOMPARE(kept.go({"status", kept.path("new"), "--merge", kept.path("missing")}), 3);
    QCOMPARE(kept.console.messages,
             QString("norvex: %1: there is no such state\n").arg(kept.path("missing")));
    QCOMPARE(kept.go({"status", kept.path("new"), "--merge", kept.path("state")}), 3);
    QVERIFY(kept.console.messages.endsWith("/state: it is no state of a run\n"));
    QVERIFY(!QFileInfo::exists(kept.path("new")));
  }

  void whatIsNoStateWasNotLeftByAKilledRun() {
    Kept kept;
    kept.put("state", "my notes, which must stay as they are, and are longer than a header");
    kept.put("state-wal", "notes of mine too");
    QCOMPARE(kept.go({"status", kept.path("state")}), 3);
    QVERIFY2(kept.console.messages.endsWith("/state: it is no state of a run\n"),
             qPrintable(kept.console.messages));
  }

  void aDatabaseOfAnotherProgramStaysAsItIs() {
    Kept kept;
    kept.put("in/a.svg");
    {
      auto notes = Database::open(kept.at("notes"), true);
      QVERIFY(notes && notes->run("CREATE TABLE notes (a); INSERT INTO notes VALUES ('mine')"));
    }
    const QByteArray before = kept.bytesAt("notes");
    QCOMPARE(kept.convertTree({"--state", kept.path("notes")}), 4);
    QVERIFY(kept.console.messages.endsWith("/notes: it is no state of a run\n"));
    QCOMPARE(kept.go({"status", kept.path("notes")}), 3);
    QCOMPARE(kept.go({"status", kept.path("new"), "--merge", kept.path("notes")}), 3);
    QCOMPARE(kept.bytesAt("notes"), before);
  }

  void aStateOfANewerVersionIsRefused() {
    Kept kept;
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    QVERIFY((*RunState::openForRun(kept.at("state")))->database().run("PRAGMA user_version = 2"));
    for (const int code : {kept.run(), kept.go({"status", kept.path("state")})}) {
      QVERIFY(code == 4 || code == 3);
      QVERIFY(kept.console.messages.endsWith("/state: a newer version of Norvex has written it\n"));
    }
  }

  void ofADamagedStateNothingIsCounted() {
    Kept kept;
    kept.put("in/a.svg");
    {
      const auto state = RunState::openForRun(kept.at("state"));
      QList<RunEntry> entries;
      for (int i = 0; i < 2000; ++i) {
        entries << begun("/archive/" + QByteArray::number(i), {});
        entries.last().outcome = Outcome::Done;
      }
      QVERIFY((*state)->finish(entries).ok());
    }
    QByteArray bytes = kept.bytesAt("state");
    QVERIFY(bytes.size() > 16 * 4096);
    std::fill(bytes.begin() + 8 * 4096, bytes.end() - 4096, '\x5A');
    kept.put("state", bytes);
    const QString report = kept.path("report.html");
    for (const QStringList& more : {QStringList(), QStringList{"--report", report}}) {
      QCOMPARE(kept.go(QStringList{"status", kept.path("state")} + more), 3);
      QVERIFY2(kept.console.messages.contains("/state: it is damaged ("), qPrintable(kept.console.messages));
      QCOMPARE(kept.console.output, QByteArray());
    }
    QVERIFY(!QFileInfo::exists(report));
    QCOMPARE(kept.go({"status", kept.path("new"), "--merge", kept.path("state")}), 3);
  }

  void theStatusTellsCountsAndTheCommonestFailuresWithAnExample() {
    Kept kept;
    for (const char* name : {"in/a.svg", "in/b.svg"}) kept.put(name);
    for (const char* name : {"in/c.svg", "in/d.svg"}) kept.put(name, "no picture");
    kept.put("in/e.svg", "");
    QCOMPARE(kept.run(), 1);
    QCOMPARE(kept.go({"status", kept.path("state"), "--json"}), 0);
    const QJsonObject status = QJsonDocument::fromJson(kept.console.output).object();
    QCOMPARE(status.value("done").toInt(), 2);
    QCOMPARE(status.value("failed").toInt(), 3);
    QCOMPARE(status.value("setAside").toInt(), 0);
    QCOMPARE(status.value("rest").toInt(), 0);
    const QJsonArray failures = status.value("failures").toArray();
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures[0].toObject().value("count").toInt(), 2);
    QCOMPARE(failures[0].toObject().value("example").toString(), kept.path("in/c.svg"));
    QCOMPARE(failures[1].toObject().value("sentence").toString(), "the file is empty");
    QCOMPARE(kept.go({"status", kept.path("state")}), 0);
    QVERIFY2(kept.console.output.startsWith(
                 "done:         2\nfailed:       3\nset aside:    0\nbegun:        0\nrest:         0\n"),
             kept.console.output.constData());
    QVERIFY(kept.console.output.contains("\n1 x the file is empty, for example "));
  }

  void aSentenceIsTheSameWithAndWithoutAResult() {
    Kept kept;
    kept.put("in/a.svg");
    kept.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "it is none: it has no end"});
    });
    QVERIFY(kept.run() != 0);
    QVERIFY(kept.go({"info", "--recursive", kept.path("in"), "--state", kept.path("other")}) != 0);
    for (const char* state : {"state", "other"}) {
      QCOMPARE(kept.go({"status", kept.path(state), "--json"}), 0);
      const QJsonArray failures =
          QJsonDocument::fromJson(kept.console.output).object().value("failures").toArray();
      QCOMPARE(failures[0].toObject().value("sentence").toString(), "it is none: it has no end");
    }
  }

  void theStatusTellsTheRateAndWhatIsLeft() {
    Kept kept;
    {
      const auto state = RunState::openForRun(kept.at("state"));
      QVERIFY((*state)->noteTotal(10).ok());
      const qint64 started = (*state)->database().number("SELECT started FROM run");
      QList<RunEntry> entries;
      for (const char* path : {"/a", "/b", "/c", "/d"}) {
        entries << begun(path, {});
        entries.last().outcome = entries.size() > 3 ? Outcome::SetAside : Outcome::Done;
        entries.last().finished = started + 2;
      }
      QVERIFY((*state)->finish(entries).ok());
    }
    QCOMPARE(kept.go({"status", kept.path("state"), "--json"}), 0);
    const QJsonObject status = QJsonDocument::fromJson(kept.console.output).object();
    QCOMPARE(status.value("rest").toInt(), 6);
    QCOMPARE(status.value("filesASecond").toDouble(), 2.0);
    QCOMPARE(kept.go({"status", kept.path("state")}), 0);
    QVERIFY(
        kept.console.output.contains("set aside:    1\nbegun:        0\nrest:         6\nrate:         "));
  }

  void aClockThatWentBackMakesNoRate() {
    Kept kept;
    {
      const auto state = RunState::openForRun(kept.at("state"));
      QVERIFY((*state)->noteTotal(2).ok());
      RunEntry entry = begun("/a", {});
      entry.outcome = Outcome::Done;
      entry.finished = (*state)->database().number("SELECT started FROM run") - 3600;
      QVERIFY((*state)->finish({entry}).ok());
    }
    QCOMPARE(kept.go({"status", kept.path("state"), "--json"}), 0);
    const QJsonObject status = QJsonDocument::fromJson(kept.console.output).object();
    QCOMPARE(status.value("done").toInt(), 1);
    QCOMPARE(status.value("rest").toInt(), 1);
    QVERIFY(!status.contains("filesASecond"));
  }

  void whatPartsHaveLeftIsAddedUpHoweverOftenTheyAreMerged() {
    Kept kept;
    const auto partOf = [&](const QByteArray& name, int total, int done) {
      const auto state = RunState::openForRun(kept.at(name));
      QVERIFY((*state)->noteTotal(total).ok());
      QList<RunEntry> entries;
      for (int i = 0; i < done; ++i) {
        entries << begun('/' + name + QByteArray::number(i), {});
        entries.last().outcome = Outcome::Done;
        entries.last().finished = 1 + i;
      }
      QVERIFY((*state)->finish(entries).ok());
    };
    partOf("one", 10, 4), partOf("two", 20, 20), partOf("three", 5, 2);
    const auto restWith = [&](const QStringList& parts) {
      QStringList arguments{"status", kept.path("all"), "--json"};
      for (const QString& part : parts) arguments << "--merge" << kept.path(part);
      if (kept.go(arguments) != 0) return -1;
      return QJsonDocument::fromJson(kept.console.output).object().value("rest").toInt(-2);
    };
    QCOMPARE(restWith({"one", "two", "three"}), 9);
    QCOMPARE(restWith({"three", "one"}), 9);
    partOf("three", 5, 5);
    QCOMPARE(restWith({"three"}), 6);
    QCOMPARE(restWith({}), 6);
    // Into the state of a run of its own.
    QCOMPARE(kept.go({"status", kept.path("one"), "--merge", kept.path("two"), "--json"}), 0);
    QCOMPARE(QJsonDocument::fromJson(kept.console.output).object().value("rest").toInt(), 6);
    // The next run over all knows by itself.
    QVERIFY((*RunState::openForRun(kept.at("all")))->noteTotal(30).ok());
    QCOMPARE(restWith({}), 1);
  }

  void statesOfPartsAreMergedIntoOne() {
    Kept kept;
    for (int i = 0; i < 20; ++i) kept.put("in/" + QByteArray::number(i) + ".svg");
    for (const char* part : {"1", "2"})
      QCOMPARE(
          kept.convertTree({"--state", kept.path(QString("part") + part), "--shard", QString(part) + "/2"}),
          0);
    QCOMPARE(
        kept.go({"status", kept.path("all"), "--merge", kept.path("part1"), kept.path("part2"), "--json"}),
        0);
    QCOMPARE(QJsonDocument::fromJson(kept.console.output).object().value("done").toInt(), 20);
    // A run over all finds nothing to do.
    QCOMPARE(kept.convertTree({"--state", kept.path("all"), "--json-lines"}), 0);
    QCOMPARE(kept.told("outcome"), QStringList(20, "unchanged"));
    QCOMPARE(kept.go({"status", kept.path("all"), "--merge", kept.put("x", "no state")}), 3);
  }

  void aStateThatIsBeingWrittenIsMergedAndNobodyWaits() {
    Kept kept;
    RunEntry done = begun("/a", {});
    done.outcome = Outcome::Done;
    const auto part = RunState::openForRun(kept.at("part"));
    QVERIFY(part && (*part)->finish({done}).ok());
    QVERIFY((*part)->database().run("BEGIN IMMEDIATE"));
    const auto all = RunState::openForRun(kept.at("all"));
    const auto merged = (*all)->merge(kept.at("part"));
    QVERIFY2(merged.ok(), merged.ok() ? "" : qPrintable(merged.error().message));
    QVERIFY((*part)->database().run("COMMIT"));
  }

  void aStateIsNotMergedIntoItself() {
    Kept kept;
    kept.put("in/a.svg");
    QCOMPARE(kept.run(), 0);
    QCOMPARE(kept.go({"status", kept.path("state"), "--merge", kept.path("./state")}), 4);
    QVERIFY2(kept.console.messages.endsWith(": a state is not merged into itself\n"),
             qPrintable(kept.console.messages));
  }

  void aStateThatIsTakenAwayEndsTheRun() {
    Kept kept;
    kept.put("in/a.svg");
    kept.service.setPrepare([&](MemoryPictureProcess&) { QFile::remove(kept.path("state")); });
    QCOMPARE(kept.run(), 4);
    QVERIFY2(kept.console.messages.contains("/state: it was removed, or another was put in its place"),
             qPrintable(kept.console.messages));
  }

  void aStateWhoseNameIsNoTextIsMerged() {
    Kept kept;
    RunEntry done = begun("/a", {});
    done.outcome = Outcome::Done;
    done.finished = 100;
    const QByteArray name = kept.at("part \xFF%41?x=\xE4");
    {
      const auto part = RunState::openForRun(name);
      QVERIFY(part && (*part)->finish({done}).ok());
    }
    const auto all = RunState::openForRun(kept.at("all"));
    QVERIFY(all.ok());
    const auto merged = (*all)->merge(name);
    QVERIFY2(merged.ok(), merged.ok() ? "" : qPrintable(merged.error().message));
    const auto entry = (*all)->find("/a");
    QVERIFY(entry && *entry);
    QCOMPARE(int((*entry)->outcome), int(Outcome::Done));
    QCOMPARE(kept.go({"status", kept.path("new"), "--merge", fileNameText(name), "--json"}), 0);
    QCOMPARE(QJsonDocument::fromJson(kept.console.output).object().value("done").toInt(), 1);
    QVERIFY(!kept.console.output.contains("filesASecond"));  // nobody knows when it was begun
  }

  void ofTwoStatesTheNewerEntryCounts() {
    Kept kept;
    RunEntry failed = begun("/a", {});
    failed.outcome = Outcome::Failed;
    failed.finished = 100;
    RunEntry done = failed;
    done.outcome = Outcome::Done;
    done.finished = 200;
    for (const auto& [name, entry] : {std::pair("one", failed), std::pair("two", done)}) {
      const auto state = RunState::openForRun(kept.at(name));
      QVERIFY((*state)->finish({entry}).ok());
    }
    for (const char* into : {"one", "two"}) {
      QCOMPARE(kept.go({"status", kept.path(into), "--merge",
                        kept.path(into == QByteArray("one") ? "two" : "one"), "--json"}),
               0);
      QCOMPARE(QJsonDocument::fromJson(kept.console.output).object().value("done").toInt(), 1);
    }
  }
};

NORVEX_TEST(StateTest)
#include "state_test.moc"
