// CanvasDevice: pixels of Ghostscript's that somebody else looks at while a program draws them.
#pragma once

#include <cstddef>

#include "protocol/interpreter_request.h"

namespace norvex {

/// What the device `display` asks whoever uses the library for: its pixels lie in the file at standard
/// output, as CanvasHeader has it. A page that is finished stays, and the program waits there to be ended.
/// One in a process; single-threaded.
class CanvasDevice {
 public:
  CanvasDevice() = default;
  CanvasDevice(const CanvasDevice&) = delete;
  CanvasDevice& operator=(const CanvasDevice&) = delete;
  ~CanvasDevice() = default;

  /// Serves the instance of Ghostscript from now on; before it is initialised.
  void serve(void* instance);

 private:
  struct Calls;
  void tell(const CanvasHeader& header) const;
  void* allocate(size_t size);
  void release();

  CanvasHeader coming_;
  void* memory_ = nullptr;  ///< the file from its beginning
  size_t size_ = 0;
};

}  // namespace norvex
