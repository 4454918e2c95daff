// The one function through which the program `norvex` enters norvex-application.so or norvex-commands.so.
#pragma once

#include "picture/client/spawned_worker.h"

namespace norvex {

/// The picture process that runs already: one of the two, or none.
struct StartedPrograms {
  SpawnedWorker worker;
  SpawnedPicture picture;
};

/// Runs the window or the command line and gives the exit code. Takes over what was started.
using ApplicationEntry = int(int argc, char** argv, StartedPrograms* started);

inline constexpr char kApplicationEntry[] = "norvexApplication";
inline constexpr int kNotLoaded = 1;  ///< exit code: parts of the program are missing

}  // namespace norvex
