// Errors that are told on both sides of the line, or in several places on one, in the same words.
#pragma once

#include "base/result.h"

namespace norvex {

[[nodiscard]] inline Error workCancelled() {
  return {ErrorKind::Cancelled, QStringLiteral("the work on the picture was cancelled")};
}

/// Of a picture process whose answer contradicts itself, the request or the limits.
[[nodiscard]] inline Error untrueAnswer() {
  return {ErrorKind::Protocol, QStringLiteral("the picture process gave an answer that cannot be true")};
}

/// A warning among PictureFacts::warnings.
[[nodiscard]] inline QString damagedFile() {
  return QStringLiteral("the file is damaged; it was repaired as far as possible");
}

}  // namespace norvex
