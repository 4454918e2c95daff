// ProgramWatch: what a program has drawn by now, while it runs.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QSizeF>

#include <functional>
#include <memory>

#include "worker/drawing/bitmap.h"
#include "worker/engine/engine.h"
#include "worker/postscript/ghostscript.h"
#include "worker/postscript/program_feed.h"

namespace norvex::engine {

/// The pixels in the file of an InterpreterDevice::Canvas, on white; of no size: there are none yet, all of
/// them are white, or what is told of them cannot be true, for a document may have taken the interpreter
/// over.
[[nodiscard]] Bitmap bitmapOfCanvas(int file, const PictureLimits& limits);

/// An interpreter can only be ended, and the PDF that it writes is none before its end. So a program that
/// takes long is run a second time beside the first, by another interpreter, which draws pixels into memory
/// that can be looked at whenever somebody has waited enough. What the first one writes knows nothing of it.
/// Single-threaded.
class ProgramWatch {
 public:
  /// Milliseconds before the second run begins: most programs have ended by then.
  static constexpr qint64 patience = 2000;

  /// `size`: of the page, points.
  explicit ProgramWatch(QSizeF size) : size_(size) { running_.start(); }

  /// Entries for setpagedevice besides the page's size.
  [[nodiscard]] QByteArray deviceParameters() const;
  /// The program as an interpreter for InterpreterDevice::Canvas reads it; asked for once it is needed.
  void setProgram(std::function<QList<QByteArray>()> pieces) { pieces_ = std::move(pieces); }
  /// To be called again and again while the first run lasts. Never waits. True: there is a second run, which
  /// reads the program.
  bool look(const EngineContext& context);
  /// What has been drawn by now, as bitmapOfCanvas().
  [[nodiscard]] Bitmap drawn(const PictureLimits& limits) const;

 private:
  QSizeF size_;
  QElapsedTimer running_;
  std::function<QList<QByteArray>()> pieces_;
  bool begun_ = false;
  std::shared_ptr<GhostscriptChild> child_;
};

}  // namespace norvex::engine
