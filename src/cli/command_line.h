// The program without a window.
#pragma once

#include "cli/job.h"

namespace norvex {

/// True if the arguments ask for the command line; otherwise main opens a window. Looks at the first argument
/// alone, and whether it is a file; needs nothing to be initialised.
[[nodiscard]] bool isCommandLine(int argc, char** argv);

/// Runs the job to its end and returns the exit code. Needs no display and no application object (it makes a
/// QCoreApplication of its own when there is none). Diagnostics go to the system log.
int runCommandLine(int argc, char** argv, Job& job);

}  // namespace norvex
