// Runs with a state: what is done is not done again, what is not true is, and nothing lies after a kill.
#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

#include <atomic>
#include <utility>

#include <sys/stat.h>
#include "base/file_name.h"
#include "cli/archive/archive_files.h"
#include "cli/archive/state/run_state.h"
#include "cli/archive/state/state_summary.h"

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

class Kept : public Archive {
 public:
  Kept() {
    service.setPrepare([](MemoryPictureProcess& process) {
      if (process.bytes() == "no picture")
        process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "it is no picture"});
    });
  }
  int run(const QStringList& more = {}) {
    return convertTree(QStringList{"--state", path("state"), "--json-lines"} + more);
  }
  /// Outcomes by file name.
  QString outcomeOf(const QString& name) const {
    for (const QJsonObject& line : lines())
      if (line.value("file").toString().endsWith('/' + name)) return line.value("outcome").toString();
    return {};
  }
};

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

  void reportsTellEveryEntryAndCannotBeCommandedByNames() {
    Kept kept;
    kept.put("in/<img src=x>\xFF.svg", "no picture");
    kept.put("in/b.svg");
    QCOMPARE(kept.run({"--report", kept.path("report.html")}), 1);
    const QByteArray page = kept.bytesAt("report.html");
    QVERIFY(page.startsWith("<!DOCTYPE html>"));
    QVERIFY(page.contains("&lt;img src=x&gt;\\xff.svg"));
    QVERIFY(!page.contains("<img src=x>"));
    QVERIFY(!page.contains("http://") && !page.contains("https://"));  // it needs no other file
    QCOMPARE(kept.go({"status", kept.path("state"), "--report", kept.path("report.jsonl")}), 0);
    const QList<QByteArray> lines = kept.bytesAt("report.jsonl").trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    const QJsonObject failed = QJsonDocument::fromJson(lines[0]).object();
    QCOMPARE(failed.value("outcome").toString(), "failed");
    QCOMPARE(QByteArray::fromBase64(failed.value("fileBytes").toString().toLatin1()),
             kept.at("in/<img src=x>\xFF.svg"));
    const QJsonObject done = QJsonDocument::fromJson(lines[1]).object();
    QCOMPARE(done.value("sha256").toString(), done.value("outputSha256").toString());
    QCOMPARE(done.value("sha256").toString().size(), 64);
    QVERIFY(!kept.filesBelow("").contains("report.jsonl.part"));
  }

  void noNameOrSentenceIsStructureOfTheReport() {
    Kept kept;
    const QList<QByteArray> names{"<script>alert(1)<",
                                  "\" onerror=\"x.svg",
                                  "' x='.svg",
                                  "--><b>.svg",
                                  "&lt;b&gt;&#60;i>.svg",
                                  "a\nb<br>\rc\t.svg",
                                  "\x1B[31m\x7F.svg",
                                  "\xFF\xFE<u>.svg",
                                  "\xC0\xBCimg>.svg",
                                  "\xE2\x80\xAEgvs.exe",
                                  "\xE2\x81\xA6<\xE2\x80\xA9.svg",
                                  "]]><![CDATA[.svg",
                                  "{{7*7}}${x}.svg"};
    for (const QByteArray& name : names) kept.put("in/" + name, "no picture");
    kept.service.setPrepare([](MemoryPictureProcess& process) {
      static std::atomic<int> number = 0;  // each its own cause, so that all are told
      process.fail(PictureCall::Facts,
                   {ErrorKind::NotParsable, QStringLiteral("<b>\"'&%1</table>").arg(++number)});
    });
    for (int first = 0; first < int(names.size()); first += 6) {  // the report has room for ten causes
      QByteArray some;
      for (const QByteArray& name : names.mid(first, 6)) some += kept.at("in/" + name) + '\0';
      kept.put("list", some);
      const QString state = kept.path(QString("state%1").arg(first)),
                    report = kept.path(QString("report%1.html").arg(first));
      QCOMPARE(kept.convert(
                   {"--files-from", kept.path("list"), "--null", "--state", state, "--report", report, "-q"}),
               3);
      const QByteArray page = kept.contents(QString("report%1.html").arg(first));
      QVERIFY(page.isValidUtf8());
      // Of all that begins with < nothing is but what the page is made of.
      static const QRegularExpression tag(QStringLiteral("<([^>]*)"));
      QSet<QString> tags;
      for (auto match = tag.globalMatch(QString::fromUtf8(page)); match.hasNext();)
        tags << match.next().captured(1);
      const QSet<QString> ours{"!DOCTYPE html",
                               "html lang=en",
                               "meta charset=utf-8",
                               "meta name=generator content=\"Norvex\"",
                               "title",
                               "/title",
                               "meta name=viewport content=\"width=device-width\"",
                               "style",
                               "/style",
                               "h1",
                               "/h1",
                               "table",
                               "/table",
                               "tr",
                               "td",
                               "td class=n",
                               "th",
                               "h2",
                               "/h2",
                               "p",
                               "/p"};
      QVERIFY2((tags - ours).isEmpty(), qPrintable((tags - ours).values().join('|')));
      const QString rows = QString::fromUtf8(page).section("<h2>Failures</h2>", 1);
      QCOMPARE(rows.count("<tr><td class=n>1<td>"), qsizetype(names.mid(first, 6).size()));
      for (const QChar c : rows)
        QVERIFY2(c == u'\n' || (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format),
                 qPrintable(QString::number(c.unicode(), 16)));
    }
  }

  void aReportIsRenewedAndOverwritesNothingElse() {
    Kept kept;
    kept.put("in/a.svg");
    const QString page = kept.path("r.html"), lines = kept.path("r.jsonl");
    for (const QString& report : {page, lines, page, lines}) QCOMPARE(kept.run({"--report", report}), 0);
    kept.put("mine.html", "<!DOCTYPE html>\n<p>mine"), kept.put("mine.jsonl", "{\"file\":1}\n");
    for (const QString& report : {kept.path("mine.html"), kept.path("mine.jsonl")}) {
      const QByteArray before = kept.bytesAt(QFileInfo(report).fileName().toUtf8());
      for (const QStringList& command :
           {QStringList{"status", kept.path("state")},
            QStringList{"info", kept.path("in/a.svg"), "--state", kept.path("other")}}) {
        QCOMPARE(kept.go(command + QStringList{"--report", report}), 4);
        QVERIFY(kept.console.messages.contains("exists already (--force overwrites it)"));
      }
      QCOMPARE(kept.bytesAt(QFileInfo(report).fileName().toUtf8()), before);
      QCOMPARE(kept.go({"status", kept.path("state"), "--report", report, "--force"}), 0);
      QVERIFY(kept.bytesAt(QFileInfo(report).fileName().toUtf8()) != before);
    }
    QVERIFY(!QFileInfo::exists(kept.path("other")));  // refused before the run
  }

  void aPipeIsNoReportAndNobodyWaitsForIt() {
    Kept kept;
    kept.put("in/a.svg");
    const QString pipe = kept.path("pipe.html");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(kept.run({"--report", pipe}), 4);
    QVERIFY(kept.console.messages.contains("pipe.html is no ordinary file"));
  }

  void theReportShowsWhatBecameAnImageBeforeAndAfter() {
    Kept kept;
    kept.put("in/a.pdf", emptyPdf({20, 10}));
    MemoryPicture picture;
    picture.report.regionsRasterised = 1;
    picture.report.rasterisedAreaShare = 0.25;
    kept.service.setPicture(picture);
    QCOMPARE(kept.go({"convert", "--recursive", kept.path("in"), "--to", kept.folder("out"), "--format",
                      "eps", "--state", kept.path("state"), "--report", kept.path("report.html")}),
             0);
    const QByteArray page = kept.bytesAt("report.html");
    QVERIFY2(page.contains("25.0 % became an image"), page.right(600).constData());
    QCOMPARE(page.count("data:image/png;base64,"), 2);
  }
};

NORVEX_TEST(StateTest)
#include "state_test.moc"
