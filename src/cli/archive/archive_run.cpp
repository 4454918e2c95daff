#include "cli/archive/archive_run.h"

#include <QScopeGuard>

#include <algorithm>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

#include "base/file_name.h"
#include "base/memory/unused_memory.h"
#include "cli/archive/file_work.h"
#include "cli/archive/result_line.h"
#include "cli/archive/standstill.h"
#include "cli/archive/work_feed.h"

namespace norvex {
namespace {

using Clock = std::chrono::steady_clock;

constexpr qsizetype kKeptAtOnce = 1024;  ///< results that are kept with one write to the disk
constexpr std::chrono::milliseconds kKeptAtLeastEvery{2000}, kKeptAtMostEvery{100};
constexpr int kPartOfTime = 10;  ///< keeping takes one part of so many, of the telling thread's time
constexpr std::chrono::milliseconds kShownEvery{200};
constexpr int kToldCollisions = 20;

}  // namespace

ArchiveRun::ArchiveRun(Console& console, PictureService& service, const ArchivePlan& plan,
                       const CancelToken& cancel, const RunSizes& sizes)
    : console_(console),
      service_(service),
      plan_(plan),
      cancel_(cancel),
      sizes_(sizes),
      // One more than are drawn at a time: another is being read or written meanwhile.
      places_({plan.jobs > 1 ? plan.jobs + 1 : 1, plan.memoryTotalMiB, sizes.slowAfter}),
      window_(!plan.unordered, sizes.window) {}

void ArchiveRun::message(const QByteArray& path, const QString& sentence) {
  console_.message(QStringLiteral("norvex: %1: %2").arg(fileNameText(path), sentence));
}

/// Goes through names that can be gone through again: counts them, and finds those whose results would meet.
ExitCode ArchiveRun::checkNames() {
  const auto names = plan_.names(cancel_);
  if (!names) {
    console_.message(QStringLiteral("norvex: ") + names.error().message);
    return ExitCode::CannotRead;
  }
  qint64 count = 0;
  int collisions = 0;
  while (const auto listed = (*names)->next()) {
    const auto* name = std::get_if<ListedName>(&*listed);
    if (!name || plan_.shard.byContent || plan_.isOurs(*name)) ++count;
    if (!name || !plan_.outputs) continue;
    const QByteArray output = plan_.outputs->outputOf(*name);
    const auto claimed = claims_->claim(output, name->path);
    if (!claimed) {
      message(output, claimed.error().message);
      return ExitCode::CannotWrite;
    }
    if (!*claimed) continue;
    if (++collisions <= kToldCollisions) message(name->path, collision(output, **claimed));
  }
  if (collisions > 0) {
    console_.message(collisions == 1
                         ? QStringLiteral("norvex: 1 name collides with another; nothing is written")
                         : QStringLiteral("norvex: %1 names collide; nothing is written").arg(collisions));
    return ExitCode::Usage;
  }
  if (cancel_.cancelled()) {  // how many there are is not known
    console_.message(QStringLiteral("norvex: interrupted; nothing is written"));
    return ExitCode::Interrupted;
  }
  if (!plan_.shard.byContent) total_ = count;
  return ExitCode::Done;
}

ExitCode ArchiveRun::openState() {
  if (plan_.state.isEmpty()) return ExitCode::Done;
  auto opened = RunState::openForRun(plan_.state);
  Result<void> noted = opened ? (*opened)->noteTotal(total_) : Result<void>(opened.error());
  if (!noted) {
    message(plan_.state, noted.error().message);
    return ExitCode::CannotWrite;
  }
  state_ = std::move(*opened);
  return ExitCode::Done;
}

ExitCode ArchiveRun::run() {
  if (plan_.outputs) {
    auto claims = OutputRegister::make();
    if (!claims) {
      message("-", claims.error().message);
      return ExitCode::CannotWrite;
    }
    claims_.emplace(std::move(*claims));
  }
  if (plan_.isRewindable()) {
    if (const ExitCode checked = checkNames(); checked != ExitCode::Done) return checked;
    claims_.reset();
  }
  if (const ExitCode opened = openState(); opened != ExitCode::Done) return opened;
  const auto names = plan_.names(ending_);
  if (!names) {
    console_.message(QStringLiteral("norvex: ") + names.error().message);
    return ExitCode::CannotRead;
  }
  const auto stop = [this] {
    ending_.cancel();
    window_.stop();
  };
  const CancelListener interrupted(cancel_, stop);
  giveBackLargeBlocks();
  const Standstill standstill;
  WorkFeed feed(plan_, state_.get(), claims_ ? &*claims_ : nullptr, window_,
                [this](const Error& error, const QByteArray& path) { breakOff(error, path); });
  std::vector<std::jthread> threads;
  threads.emplace_back([&] { feed.feed(**names); });
  // Twice as many as places: what takes long gives its place up and keeps its thread.
  for (int i = 0; i < 2 * (plan_.jobs + 1); ++i) threads.emplace_back([this] { work(); });
  // Before the threads: out of memory, where not all was told, they end all the same.
  const auto end = qScopeGuard(stop);
  return tell();
}

// ---- those that work -----------------------------------------------------------------------------------

void ArchiveRun::work() {
  const FileWork work(service_, plan_, places_, cancel_);
  while (auto task = window_.take()) window_.done(work.run(*task));
}

// ---- the thread that tells -----------------------------------------------------------------------------

ExitCode ArchiveRun::tell() {
  tally_.emplace(total_, Clock::now());
  lastKept_ = lastTold_ = Clock::now();
  while (!window_.isOver()) {
    if (const auto result = window_.next(kShownEvery); result && !tellOne(*result)) window_.stop();
    if (Clock::now() - lastKept_ >= keepEvery_ && !keepWhatWaits()) window_.stop();
    tellProgress();
  }
  (void)keepWhatWaits();
  console_.progress({});
  const std::lock_guard lock(breakMutex_);
  if (broken_) message(broken_->first, broken_->second.message);
  if (!plan_.quiet && !console_.isClosed())
    console_.message(
        QStringLiteral("norvex: %1%2")
            .arg(cancel_.cancelled() ? QStringLiteral("interrupted; ") : QString(), tally_->summary()));
  if (cancel_.cancelled()) return ExitCode::Interrupted;
  if (console_.isClosed()) return ExitCode::PipeClosed;
  return broken_ ? exitCodeOf(broken_->second) : tally_->code();
}

/// False: the run is to end.
bool ArchiveRun::tellOne(const FileResult& result) {
  tally_->count(result);
  const bool isAdvice = plan_.quiet && (result.code == ExitCode::Done);
  if (!isAdvice)
    for (const QString& line : result.messages.split(u'\n', Qt::SkipEmptyParts)) console_.message(line);
  if (result.code == ExitCode::Usage) {
    breakOff({ErrorKind::CannotWrite, QStringLiteral("the arguments are wrong")}, result.path);
    return false;
  }
  const bool kept = keep(result);
  const QByteArray text = plan_.jsonLines ? resultLine(result) : plan_.outputs ? QByteArray() : result.text;
  if (!text.isEmpty() && !console_.write(text)) {
    if (!console_.isClosed())
      breakOff({ErrorKind::CannotWrite, QStringLiteral("standard output cannot be written")}, "-");
    return false;
  }
  if (result.verdict != Verdict::Unwritten)
    brokenInARow_ = 0;
  else if (!result.isInTheWay)
    ++brokenInARow_;
  if (brokenInARow_ < sizes_.brokenInARow) return kept;
  breakOff(
      {ErrorKind::CannotWrite,
       QStringLiteral("%1 results in a row could not be made or written; the run ends").arg(brokenInARow_)},
      result.path);
  return false;
}

void ArchiveRun::tellProgress() {
  if (plan_.quiet) return;
  const auto now = Clock::now();
  const bool shown = console_.showsProgress();
  if (now - lastTold_ < (shown ? kShownEvery : sizes_.logEvery)) return;
  lastTold_ = now;
  const QString line = tally_->progress(now);
  if (shown)
    console_.progress(line);
  else
    console_.message(QStringLiteral("norvex: ") + line);
}

bool ArchiveRun::keep(const FileResult& result) {
  const bool isOutcome = result.verdict == Verdict::Done || result.verdict == Verdict::SetAside ||
                         (result.verdict == Verdict::Failed && !result.entry.path.isEmpty());
  if (state_ && isOutcome) unkept_ << result.entry;
  return unkept_.size() < kKeptAtOnce || keepWhatWaits();
}

bool ArchiveRun::keepWhatWaits() {
  const auto begun = lastKept_ = Clock::now();
  if (unkept_.isEmpty()) return true;  // always, without a state
  const Result<void> kept = state_->finish(std::exchange(unkept_, {}));
  lastKept_ = Clock::now();
  keepEvery_ =
      std::clamp<Clock::duration>((lastKept_ - begun) * kPartOfTime, kKeptAtMostEvery, kKeptAtLeastEvery);
  if (!kept) breakOff(kept.error(), plan_.state);
  return kept.ok();
}

void ArchiveRun::breakOff(const Error& error, const QByteArray& path) {
  {
    const std::lock_guard lock(breakMutex_);
    if (!broken_) broken_.emplace(path, error);
  }
  window_.stop();
}

}  // namespace norvex
