// The one function through which the program `norvex` enters its application, norvex-application.so.
#pragma once

#include "platform/picture/spawned_worker.h"

namespace norvex {

/// Runs the window or the command line and gives the exit code. Takes the picture process out of `worker`.
using ApplicationEntry = int(int argc, char** argv, SpawnedWorker* worker);

inline constexpr char kApplicationEntry[] = "norvexApplication";
inline constexpr int kNotLoaded = 1;  ///< exit code: parts of the program are missing

}  // namespace norvex
