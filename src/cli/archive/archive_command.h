// A command over an archive, and `norvex status`.
#pragma once

#include <optional>

#include "cli/job.h"

namespace norvex {

/// See Job. Main thread.
class ArchiveCommand final : public Job {
 public:
  using Job::Job;
  ExitCode start(const Arguments& arguments);

 private:
  ExitCode status(const Arguments& arguments);
  [[nodiscard]] std::optional<Error> reportRefusal(const QString& report, bool force) const;
  ExitCode writeReport(const QByteArray& state, const QByteArray& report);
};

}  // namespace norvex
