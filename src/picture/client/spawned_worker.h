// The programs that draw pictures as the system knows them, started with nothing but the C library.
#pragma once

#include <sys/types.h>

#include <string>

#include "base/file_descriptor.h"
#include "protocol/picture_needs.h"

namespace norvex {

/// A running norvex-worker and our end of the connection to it. It ends when the connection is closed; it is
/// our child and must be waited for. pid 0: there is none.
struct SpawnedWorker {
  pid_t pid = 0;
  FileDescriptor pidfd;  ///< readable once it has ended
  FileDescriptor control;
  std::string scratchRoot;  ///< a folder of its own, for us to remove after its end
};

/// A running norvex-picture-…. It ends when its line is closed; it is our child and must be waited for. pid
/// 0: there is none.
struct SpawnedPicture {
  pid_t pid = 0;
  FileDescriptor pidfd;
  FileDescriptor
      line;  ///< to the process, which serves one document, with PictureLimits as they are by default
  PictureNeeds needs = 0;  ///< what it can do
};

/// Further guesses about the pictures of a run.
struct WorkerOutlook {
  bool postScript = false;  ///< an interpreter of PostScript is needed
  bool pdfInks = false;     ///< … and one that reads PDF
  bool window = false;      ///< nothing is asked for until one has come up
  bool lone = false;        ///< there is one picture: nothing is made ready for others
};

/// Starts `program` without waiting until it is ready. Free of Qt, because it runs before Qt is even loaded:
/// linking the program and linking the application then go on side by side. pid 0 when it could not be
/// started. `expected`: what its pictures will probably need, to be loaded at once; 0: nobody knows.
[[nodiscard]] SpawnedWorker spawnWorker(const std::string& program, PictureNeeds expected = 0,
                                        WorkerOutlook outlook = {});

/// Starts `program`, a norvex-picture-… that offers `needs`, likewise.
[[nodiscard]] SpawnedPicture spawnPicture(const std::string& program, PictureNeeds needs);

/// A part of the application: the file `name` beside the running program, or in ../libexec/norvex seen from
/// there; the first one when neither exists. No environment variable can change it: whoever controls the
/// environment of a program that opens untrusted files would otherwise choose what confines them.
[[nodiscard]] std::string partOfProgram(const std::string& name);

}  // namespace norvex
