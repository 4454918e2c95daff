// Ctrl-C and a polite kill while files are being worked on.
#pragma once

#include <atomic>
#include <thread>

#include "base/cancel_token.h"
#include "base/file_descriptor.h"

namespace norvex {

/// While an object lives, SIGINT and SIGTERM cancel its token instead of ending the program at once, so that
/// what is half done is dropped and said; a second signal ends the program. Main thread. An object that is
/// made while another lives, on any thread, hears what that one hears and must end before it.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  [[nodiscard]] const CancelToken& token() const { return token_; }

 private:
  CancelToken token_;
  FileDescriptor signalled_;
  std::atomic<bool> ended_ = false;
  std::thread listener_;
};

}  // namespace norvex
