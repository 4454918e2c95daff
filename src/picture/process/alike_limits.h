// When the limits of one picture process are those of another.
#pragma once

#include "protocol/worker_protocol.h"

namespace norvex {

/// True if a process that was begun with the one will do where the other is wanted.
[[nodiscard]] inline bool areAlike(const PictureLimits& a, const PictureLimits& b) {
  return a.seconds == b.seconds && a.memoryMiB == b.memoryMiB && a.megapixels == b.megapixels;
}

}  // namespace norvex
