#include "cli/archive/state/state_summary.h"

#include <QJsonArray>

#include <algorithm>

#include "base/file_name.h"
#include "cli/archive/state/duration_text.h"
#include "cli/archive/state/run_entry.h"
#include "cli/files/console.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

/// These return false for a damaged state.
bool readCounts(Database& state, StateSummary& summary) {
  Statement rows = state.prepare(
      "SELECT outcome, count(*), sum(seconds), max(memory), max(finished) FROM entry GROUP BY outcome");
  while (rows.step()) {
    const qint64 count = rows.number(1);
    switch (Outcome(rows.number(0))) {
      case Outcome::Begun:
        summary.begun = count;
        break;
      case Outcome::Done:
        summary.done = count;
        break;
      case Outcome::Failed:
        summary.failed = count;
        break;
      case Outcome::SetAside:
        summary.setAside = count;
        break;
    }
    summary.seconds += rows.real(2);
    summary.memoryKiB = std::max(summary.memoryKiB, rows.number(3));
    if (rows.number(4) > 0) summary.finished = std::max(summary.finished.value_or(0), rows.number(4));
  }
  return !rows.failed();
}

bool readRun(Database& state, StateSummary& summary) {
  Statement run = state.prepare("SELECT started, total, total IS NULL FROM run ORDER BY rowid DESC LIMIT 1");
  if (!run.step()) return !run.failed();
  summary.started = run.number(0);
  if (run.number(2) == 0)
    summary.rest = std::max<qint64>(0, run.number(1) - summary.done - summary.failed - summary.setAside);
  return true;
}

/// Of a state that others were merged into: see RunState::merge().
bool readRuns(Database& state, StateSummary& summary) {
  Statement runs = state.prepare("SELECT min(started), sum(rest), count(*) - count(rest) FROM merged");
  if (!runs.step()) return false;
  if (runs.number(0) > 0) summary.started = runs.number(0);  // 0: of none of them
  if (runs.number(2) == 0) summary.rest = runs.number(1);
  return true;
}

bool readRate(Database& state, StateSummary& summary) {
  if (!summary.started) return true;
  Statement since =
      state.prepare("SELECT count(*), max(finished) FROM entry WHERE outcome <> 0 AND finished >= ?");
  if (!since.bind(0, *summary.started).step()) return false;
  const qint64 seconds = since.number(1) - *summary.started;
  if (since.number(0) > 0)
    summary.filesASecond = double(since.number(0)) / double(std::max<qint64>(seconds, 1));
  return true;
}

bool readFailures(Database& state, StateSummary& summary) {
  Statement failures = state.prepare(
      "SELECT sentence, count(*) AS often, min(path) FROM entry WHERE outcome <> 1 AND outcome <> 0"
      " GROUP BY sentence ORDER BY often DESC, sentence LIMIT 10");
  while (failures.step()) summary.failures.append({failures.text(0), failures.number(1), failures.bytes(2)});
  return !failures.failed();
}

}  // namespace

Result<StateSummary> summaryOf(Database& state) {
  StateSummary summary;
  const bool isSum = state.number("SELECT count(*) FROM sqlite_schema WHERE name = 'merged'") > 0;
  const bool isRead = readCounts(state, summary) &&
                      (isSum ? readRuns(state, summary) : readRun(state, summary)) &&
                      readRate(state, summary) && readFailures(state, summary);
  if (!isRead) return state.error();
  return summary;
}

QString summaryText(const StateSummary& summary) {
  QString text;
  const auto line = [&](const char* name, const QString& value) {
    text += QStringLiteral("%1 %2\n").arg(QLatin1String(name), -13).arg(value);
  };
  line("done:", QString::number(summary.done));
  line("failed:", QString::number(summary.failed));
  line("set aside:", QString::number(summary.setAside));
  line("begun:", QString::number(summary.begun));
  if (summary.rest) line("rest:", QString::number(*summary.rest));
  if (summary.filesASecond > 0)
    line("rate:", QStringLiteral("%1 files a second").arg(summary.filesASecond, 0, 'f', 1));
  line("work:", summary.seconds < 60 ? QStringLiteral("%1 s").arg(summary.seconds, 0, 'f', 1)
                                     : durationText(summary.seconds));
  if (summary.memoryKiB > 0)
    line("memory:", QStringLiteral("%1 MiB at most").arg((summary.memoryKiB + 1023) / 1024));
  if (!summary.failures.isEmpty()) text += u'\n';
  for (const StateSummary::Failure& failure : summary.failures)
    text += QStringLiteral("%1 x %2, for example %3\n")
                .arg(QString::number(failure.count), visible(failure.sentence),
                     visible(fileNameText(failure.example)));
  return text;
}

QJsonObject summaryObject(const StateSummary& summary) {
  QJsonObject object{{"done", summary.done},
                     {"failed", summary.failed},
                     {"setAside", summary.setAside},
                     {"begun", summary.begun},
                     {"seconds", summary.seconds}};
  if (summary.rest) object.insert(u"rest", *summary.rest);
  if (summary.filesASecond > 0) object.insert(u"filesASecond", summary.filesASecond);
  if (summary.memoryKiB > 0) object.insert(u"memoryKiB", summary.memoryKiB);
  QJsonArray failures;
  for (const StateSummary::Failure& failure : summary.failures) {
    QJsonObject told{{"sentence", failure.sentence}, {"count", failure.count}};
    insertName(told, QStringLiteral("example"), fileNameText(failure.example));
    failures.append(told);
  }
  object.insert(u"failures", failures);
  return object;
}

}  // namespace norvex
