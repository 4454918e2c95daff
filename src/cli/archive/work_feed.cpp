#include "cli/archive/work_feed.h"

#include <utility>
#include <variant>
#include <vector>

#include "base/file_name.h"
#include "cli/archive/file_work.h"

namespace norvex {
namespace {

constexpr qsizetype kBegunAtOnce = 128;  ///< files that are begun with one write to the disk

FileResult passedOver(const PassedOver& listed, qint64 number) {
  FileResult result;
  result.number = number;
  result.verdict = listed.isFailure ? Verdict::Failed : Verdict::PassedOver;
  result.code = listed.isFailure ? ExitCode::CannotRead : ExitCode::Done;
  result.path = listed.path;
  result.sentence = listed.reason;
  result.messages = QStringLiteral("norvex: %1: %2%3\n")
                        .arg(visible(fileNameText(listed.path)), listed.reason,
                             listed.isFailure ? QString() : QStringLiteral("; passed over"));
  return result;
}

FileResult refused(const FileTask& task, Verdict verdict, ExitCode code, const QString& sentence) {
  FileResult result;
  result.number = task.number;
  result.verdict = verdict;
  result.code = code;
  result.path = task.name.path;
  result.sentence = sentence;
  if (!sentence.isEmpty())
    result.messages = QStringLiteral("norvex: %1: %2\n").arg(visible(fileNameText(task.name.path)), sentence);
  return result;
}

}  // namespace

WorkFeed::WorkFeed(const ArchivePlan& plan, RunState* state, OutputRegister* claims, WorkWindow& window,
                   BreakOff breakOff)
    : plan_(plan), state_(state), claims_(claims), window_(window), breakOff_(std::move(breakOff)) {}

void WorkFeed::feed(NameSource& names) {
  while (feedSome(names)) continue;
  window_.close();
}

/// As many names as are there without waiting, begun with one write to the disk. False at the end.
bool WorkFeed::feedSome(NameSource& names) {
  std::vector<std::variant<FileTask, FileResult>> some;
  QList<RunEntry> begun;
  bool more = true;
  while (some.size() < kBegunAtOnce && (some.empty() || !names.wouldWait())) {
    const auto listed = names.next();
    if (!listed) more = false;
    if (!listed) break;
    const auto* name = std::get_if<ListedName>(&*listed);
    if (!name) {
      some.emplace_back(passedOver(std::get<PassedOver>(*listed), ++number_));
      continue;
    }
    if (!plan_.isOurs(*name)) continue;
    FileTask task{++number_, *name, plan_.outputs ? plan_.outputs->outputOf(*name) : QByteArray(), false};
    if (auto known = knownBefore(task)) {
      some.emplace_back(std::move(*known));
      continue;
    }
    // What is there and is not ours will be refused, and must not become ours by being begun.
    const bool isFree =
        task.replace || plan_.arguments.has(Option::Force) || task.output.isEmpty() || !stampOf(task.output);
    if (state_ && isFree) begun << begunEntry(plan_, task);
    some.emplace_back(std::move(task));
  }
  if (state_) {
    if (const auto written = state_->begin(begun); !written) {
      breakOff_(written.error(), plan_.state);
      return false;
    }
  }
  for (auto& one : some) {
    auto* task = std::get_if<FileTask>(&one);
    const bool wanted =
        task ? window_.put(std::move(*task)) : window_.putResult(std::move(std::get<FileResult>(one)));
    if (!wanted) return false;
  }
  return more;
}

/// The results that can be told without work. May find that the output is ours.
std::optional<FileResult> WorkFeed::knownBefore(FileTask& task) {
  if (claims_) {
    const auto claimed = claims_->claim(task.output, task.name.path);
    if (!claimed) return refused(task, Verdict::Unwritten, ExitCode::CannotWrite, claimed.error().message);
    if (*claimed) {
      FileResult result =
          refused(task, Verdict::Unwritten, ExitCode::CannotWrite, collision(task.output, **claimed));
      result.isInTheWay = true;
      return result;
    }
  }
  return state_ ? stateAnswer(task) : std::nullopt;
}

std::optional<FileResult> WorkFeed::stateAnswer(FileTask& task) {
  const RunEntry wanted = begunEntry(plan_, task);
  const auto found = state_->find(wanted.path);
  if (!found) {
    breakOff_(found.error(), plan_.state);
    return refused(task, Verdict::Interrupted, ExitCode::Interrupted, {});
  }
  if (!*found) return std::nullopt;
  const RunEntry& entry = **found;
  const bool isOurOutput = !wanted.output.isNull() && entry.output == wanted.output;
  task.replace = isOurOutput;
  if (entry.outcome == Outcome::Begun || entry.settings != wanted.settings) return std::nullopt;
  const auto stamp = stampOf(task.name.path);
  if (!stamp) return std::nullopt;
  const bool isSameFile = *stamp == entry.stamp ||
                          (stamp->size == entry.stamp.size && contentHash(task.name.path) == entry.content);
  if (!isSameFile) return std::nullopt;
  if (entry.outcome != Outcome::Done) {
    if (plan_.retryFailed) return std::nullopt;
    return refused(task, Verdict::KnownFailed, ExitCode::SomeFailed, entry.sentence);
  }
  if (wanted.output.isNull()) return refused(task, Verdict::Unchanged, ExitCode::Done, {});
  const auto output = stampOf(task.output);
  const bool isThere = isOurOutput && output &&
                       (*output == entry.outputStamp || contentHash(task.output) == entry.outputContent);
  if (!isThere) return std::nullopt;
  return refused(task, Verdict::Unchanged, ExitCode::Done, {});
}

}  // namespace norvex
