#include "cli/archive/run_tally.h"

#include <QStringList>

#include <algorithm>

#include "cli/archive/state/duration_text.h"

namespace norvex {
namespace {

constexpr std::chrono::seconds kStretch{20};

constexpr const char* words[] = {"done",      "unchanged",   "failed before", "failed",
                                 "set aside", "not written", "interrupted",   "passed over"};

}  // namespace

void RunTally::count(const FileResult& result) {
  ++counts_[size_t(result.verdict)];
  if (result.verdict == Verdict::PassedOver && result.code == ExitCode::Done) return;
  if (!firstCode_) firstCode_ = result.code;
  codesDiffer_ = codesDiffer_ || *firstCode_ != result.code;
}

qint64 RunTally::told() const {
  qint64 sum = 0;
  for (const qint64 count : counts_) sum += count;
  return sum;
}

qint64 RunTally::worked() const {
  return told() - of(Verdict::Unchanged) - of(Verdict::KnownFailed) - of(Verdict::PassedOver);
}

ExitCode RunTally::code() const {
  if (of(Verdict::Interrupted) > 0) return ExitCode::Interrupted;
  return codesDiffer_ ? ExitCode::SomeFailed : firstCode_.value_or(ExitCode::Done);
}

double RunTally::rate(Time now) {
  if (now - marks_[1].time >= kStretch) marks_ = {marks_[1], Mark{now, worked()}};
  const double seconds = std::chrono::duration<double>(now - marks_[0].time).count();
  return seconds > 0 ? double(worked() - marks_[0].worked) / seconds : 0;
}

QString RunTally::progress(Time now) {
  const double perSecond = rate(now);
  QString text = total_
                     ? QStringLiteral("%1 of %2 files").arg(told()).arg(std::max(*total_, told()))
                     : QStringLiteral("%1 %2").arg(told()).arg(QLatin1String(told() == 1 ? "file" : "files"));
  const qint64 failed = of(Verdict::Failed) + of(Verdict::SetAside) + of(Verdict::Unwritten);
  if (failed > 0) text += QStringLiteral(", %1 failed").arg(failed);
  if (perSecond > 0) text += QStringLiteral(", %1 a second").arg(perSecond, 0, 'f', perSecond < 10 ? 1 : 0);
  if (total_ && perSecond > 0 && *total_ > told())
    text += QStringLiteral(", %1 left").arg(durationText(double(*total_ - told()) / perSecond));
  return text;
}

QString RunTally::summary() const {
  QStringList parts;
  for (size_t i = 0; i < counts_.size(); ++i)
    if (counts_[i] > 0) parts << QStringLiteral("%1 %2").arg(counts_[i]).arg(QLatin1String(words[i]));
  return parts.isEmpty() ? QStringLiteral("there were no files") : parts.join(QStringLiteral(", "));
}

}  // namespace norvex
