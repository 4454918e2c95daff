// How far a run is, and how fast it goes.
#pragma once

#include <QString>

#include <array>
#include <chrono>
#include <optional>

#include "cli/archive/file_result.h"

namespace norvex {

/// Counts results and tells of them. The time is the caller's.
class RunTally {
 public:
  using Time = std::chrono::steady_clock::time_point;
  RunTally(std::optional<qint64> total, Time begun) : total_(total), marks_{Mark{begun, 0}, Mark{begun, 0}} {}

  void count(const FileResult& result);
  [[nodiscard]] qint64 of(Verdict verdict) const { return counts_[size_t(verdict)]; }
  /// All that were told.
  [[nodiscard]] qint64 told() const;
  /// As ExitCode has it for a run over several files.
  [[nodiscard]] ExitCode code() const;

  /// "1200 of 5000 files, 3 failed, 310 a second, 13 s left": of what was worked on in the last seconds.
  [[nodiscard]] QString progress(Time now);
  /// "1190 done, 7 failed, 3 passed over": what is not nought.
  [[nodiscard]] QString summary() const;

 private:
  struct Mark {
    Time time;
    qint64 worked;
  };
  [[nodiscard]] qint64 worked() const;
  [[nodiscard]] double rate(Time now);

  const std::optional<qint64> total_;
  std::array<qint64, size_t(Verdict::PassedOver) + 1> counts_{};
  std::array<Mark, 2> marks_;  ///< where the stretch that the rate is of begins, and where the next one will
  std::optional<ExitCode> firstCode_;
  bool codesDiffer_ = false;
};

}  // namespace norvex
