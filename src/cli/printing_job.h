// A Job that prints as well.
#pragma once

#include "cli/job.h"

namespace norvex {

/// Apart from Job, so that a program which does not print need not load what printing takes.
class PrintingJob : public Job {
 public:
  using Job::Job;

 protected:
  ExitCode print(const Arguments& arguments) override;
};

}  // namespace norvex
