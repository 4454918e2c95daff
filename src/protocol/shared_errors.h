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

/// Of a document's process whose interpreter has ended under it. Another process may do better: it learns
/// before its confinement is complete that there is none, and starts one.
[[nodiscard]] inline Error interpreterLost() {
  return {ErrorKind::Died, QStringLiteral("the interpreter of PostScript has ended")};
}
/// True if the error is that.
[[nodiscard]] inline bool isInterpreterLost(const Error& error) {
  return error.kind == ErrorKind::Died && error.message == interpreterLost().message;
}

/// Of a process that was made for facts alone, for a document whose facts take what draws it.
[[nodiscard]] inline Error drawingNeeded() {
  return {ErrorKind::Unsupported, QStringLiteral("what is known of this picture has to be drawn")};
}
/// True if the error is that.
[[nodiscard]] inline bool isDrawingNeeded(const Error& error) {
  return error.kind == ErrorKind::Unsupported && error.message == drawingNeeded().message;
}

/// A warning among PictureFacts::warnings.
[[nodiscard]] inline QString damagedFile() {
  return QStringLiteral("the file is damaged; it was repaired as far as possible");
}

}  // namespace norvex
