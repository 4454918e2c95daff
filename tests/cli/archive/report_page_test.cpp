// The page of a state, all of what is in it: counts, facts, failures, and pictures before and after.
#include "cli/archive/report_page.h"

#include <QDateTime>

#include "cli/archive/run_tally.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Behind the style, which says nothing.
QString bodyOf(const QByteArray& page) {
  return QString::fromUtf8(page).section(QStringLiteral("</style>\n"), 1);
}

QString partOf(const char* color, int count, const char* name) {
  return QStringLiteral("<li><i class=%1></i>%2 %3\n").arg(color).arg(count).arg(name);
}

}  // namespace

class ReportPageTest : public QObject {
  Q_OBJECT
 private slots:
  void aStateWithNothingSaysSo() {
    QCOMPARE(bodyOf(reportPage("state", {}, {})),
             QStringLiteral("<h1>state</h1>\n<p class=quiet>state</p>\n<p class=lead>There were no "
                            "files.</p>\n"));
  }

  void everyPartHasItsColourAndItsName() {
    StateSummary summary;
    summary.done = 4, summary.failed = 3, summary.setAside = 2, summary.begun = 1;
    QString body = bodyOf(reportPage("state", summary, {}));
    QVERIFY2(body.contains("<p class=lead>4 of 10 files done.</p>"), qPrintable(body));
    QVERIFY2(body.contains("<div class=bar><i class=done style=\"flex-grow:4\"></i><i class=failed "
                           "style=\"flex-grow:3\"></i><i class=aside style=\"flex-grow:2\"></i><i class=left "
                           "style=\"flex-grow:1\"></i></div>\n<ul class=key>\n" +
                           partOf("done", 4, "done") + partOf("failed", 3, "failed") +
                           partOf("aside", 2, "set aside: they made their picture process end") +
                           partOf("left", 1, "begun and not done") + "</ul>\n"),
             qPrintable(body));
    summary.rest = 5;
    body = bodyOf(reportPage("state", summary, {}));
    QVERIFY2(body.contains("4 of 14 files done."), qPrintable(body));
    QVERIFY2(body.contains(partOf("left", 5, "left")), qPrintable(body));
    QVERIFY(!body.contains("begun and not done"));
  }

  void whereAllIsDoneItIsToldInOneSentence() {
    StateSummary summary;
    summary.done = 1;
    QVERIFY(bodyOf(reportPage("s", summary, {})).contains("<p class=lead>The one file is done.</p>"));
    summary.done = 12345;
    QVERIFY(bodyOf(reportPage("s", summary, {})).contains("<p class=lead>All 12,345 files are done.</p>"));
    summary.done = 0, summary.failed = 1;
    QVERIFY(bodyOf(reportPage("s", summary, {})).contains("<p class=lead>0 of 1 file done.</p>"));
  }

  void onlyWhatIsKnownIsAFact() {
    StateSummary summary;
    summary.done = 1;
    QVERIFY(!bodyOf(reportPage("s", summary, {})).contains("<dl"));
    summary.filesASecond = 9.96, summary.seconds = 75, summary.memoryKiB = 1025;
    QString body = bodyOf(reportPage("s", summary, {}));
    QVERIFY2(body.contains("<dl class=facts>\n<div><dt>Files a second<dd>10.0</div>\n<div><dt>Work on all "
                           "files<dd>1 min 15 s</div>\n<div><dt>Memory of a picture, at most<dd>2 "
                           "MiB</div>\n</dl>\n"),
             qPrintable(body));
    summary.filesASecond = 10.4, summary.memoryKiB = 1024;
    body = bodyOf(reportPage("s", summary, {}));
    QVERIFY(body.contains("<dd>10</div>") && body.contains("<dd>1 MiB</div>"));
  }

  void theHeadNamesTheStateAndItsTimes() {
    StateSummary summary;
    const QDateTime begun(QDate(2024, 3, 5), QTime(14, 7)), last(QDate(2024, 3, 6), QTime(1, 2));
    summary.started = begun.toSecsSinceEpoch();
    summary.finished = last.toSecsSinceEpoch();
    QVERIFY(bodyOf(reportPage("/a/b <c>", summary, {}))
                .startsWith("<h1>b &lt;c&gt;</h1>\n<p class=quiet>/a/b &lt;c&gt; · begun 2024-03-05 14:07 · "
                            "last result 2024-03-06 01:02</p>\n"));
  }

  void failuresAreATable() {
    StateSummary summary;
    summary.failed = 1203;
    summary.failures = {{"the file is empty", 1200, "/in/a&b.eps"}, {"it is a folder", 1, "/in/c"}};
    QVERIFY(bodyOf(reportPage("s", summary, {}))
                .endsWith("<h2>Failures</h2>\n<table>\n<tr><th class=n>Files<th>Cause<th>For example\n"
                          "<tr><td class=n>1,200<td>the file is empty<td>/in/a&amp;b.eps\n"
                          "<tr><td class=n>1<td>it is a folder<td>/in/c\n</table>\n"
                          "<p class=quiet>2 files failed for causes that are less common; a report named "
                          ".jsonl tells of each.</p>\n"));
  }

  void aPictureThatChangedIsShownBeforeAndAfter() {
    QVERIFY(bodyOf(reportPage("s", {}, {{"/in/a.svg", 0.257, "abc", {}}}))
                .endsWith("<h2>What changed most</h2>\n<div class=sheet>\n<figure><div class=pair>"
                          "<div><img alt=\"\" src=\"data:image/png;base64,YWJj\">Before</div>"
                          "<div><b>no picture</b>After</div></div><figcaption>25.7 % became an image<br>"
                          "<span class=quiet>/in/a.svg</span></figcaption></figure>\n</div>\n"));
  }

  void aTallyNamesEveryVerdictAndCountsAllThatFailed() {
    RunTally tally(20, RunTally::Time{});
    QCOMPARE(tally.summary(), "there were no files");
    QCOMPARE(tally.progress(RunTally::Time{}), "0 of 20 files");
    int times = 0;
    for (const Verdict verdict : {Verdict::Done, Verdict::Unchanged, Verdict::KnownFailed, Verdict::Failed,
                                  Verdict::SetAside, Verdict::Unwritten, Verdict::PassedOver}) {
      FileResult result;
      result.verdict = verdict;
      ++times;
      for (int i = 0; i < (verdict == Verdict::SetAside ? 2 : 1); ++i) tally.count(result);
    }
    QCOMPARE(tally.told(), times + 1);
    QCOMPARE(tally.summary(),
             "1 done, 1 unchanged, 1 failed before, 1 failed, 2 set aside, 1 not written, 1 passed over");
    // Of what was worked on: neither known results nor what is passed over.
    QCOMPARE(tally.progress(RunTally::Time{} + std::chrono::seconds(1)),
             "8 of 20 files, 4 failed, 5.0 a second, 3 s left");
    QCOMPARE(int(tally.code()), int(ExitCode::Done));
    FileResult stopped;
    stopped.verdict = Verdict::Interrupted;
    stopped.code = ExitCode::Interrupted;
    tally.count(stopped);
    QVERIFY(tally.summary().contains(", 1 interrupted, "));
    QCOMPARE(int(tally.code()), int(ExitCode::Interrupted));
  }

  void theCodeIsThatOfAllOrThatSomeFailed() {
    FileResult result;
    RunTally tally(std::nullopt, RunTally::Time{});
    result.verdict = Verdict::Failed;
    result.code = ExitCode::CannotRead;
    tally.count(result);
    QCOMPARE(int(tally.code()), int(ExitCode::CannotRead));
    FileResult passed;
    passed.verdict = Verdict::PassedOver;
    tally.count(passed);
    QCOMPARE(int(tally.code()), int(ExitCode::CannotRead));
    tally.count(FileResult());
    QCOMPARE(int(tally.code()), int(ExitCode::SomeFailed));
  }
};

NORVEX_TEST(ReportPageTest)
#include "report_page_test.moc"
