// The most memory that the picture processes of a piece of work take.
#pragma once

#include <QtGlobal>

namespace norvex {

/// While an object lives, whoever ends a picture process on its thread tells it first. One a thread at a
/// time.
class PeakMemory {
 public:
  PeakMemory();
  ~PeakMemory();
  PeakMemory(const PeakMemory&) = delete;
  PeakMemory& operator=(const PeakMemory&) = delete;

  /// Null where nobody wants to know.
  [[nodiscard]] static PeakMemory* ofThisThread();
  /// Looks at a process that still lives.
  void note(qint64 processId);
  /// The most resident memory that any of them had; 0: none was seen.
  [[nodiscard]] qint64 kib() const { return kib_; }

 private:
  qint64 kib_ = 0;
};

}  // namespace norvex
