// A Job that goes over archives as well.
#pragma once

#include "cli/archive/archive_command.h"
#include "cli/job.h"

namespace norvex {

/// Apart from the other jobs, because it does their commands with each of its files and stands above them.
template <typename Base>
class ArchiveJob final : public Base {
 public:
  using Base::Base;

 private:
  ExitCode archive(const Arguments& arguments) override {
    return ArchiveCommand(this->console_, this->service_).start(arguments);
  }
};

}  // namespace norvex
