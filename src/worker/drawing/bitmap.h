// Bitmap: what an engine draws into.
#pragma once

#include <QRect>
#include <QSize>

#include <memory>

#include "base/result.h"

namespace norvex::engine {

/// A pixel 0xAARRGGBB, like QRgb, which is part of Qt Gui.
using Argb32 = quint32;
[[nodiscard]] inline int alpha(Argb32 pixel) {
  return int(pixel >> 24);
}
[[nodiscard]] inline int red(Argb32 pixel) {
  return int(pixel >> 16 & 0xFF);
}
[[nodiscard]] inline int green(Argb32 pixel) {
  return int(pixel >> 8 & 0xFF);
}
[[nodiscard]] inline int blue(Argb32 pixel) {
  return int(pixel & 0xFF);
}

/// Premultiplied ARGB32 in native byte order, rows top to bottom without padding. A value whose copies share
/// their pixels.
class Bitmap {
 public:
  /// Of no size.
  Bitmap() = default;
  /// All transparent. Fails with Limit when there is no memory for it. REQUIRES a size that is not negative.
  [[nodiscard]] static Result<Bitmap> create(QSize size);

  [[nodiscard]] QSize size() const { return size_; }
  [[nodiscard]] int width() const { return size_.width(); }
  [[nodiscard]] int height() const { return size_.height(); }
  [[nodiscard]] QRect rect() const { return {{0, 0}, size_}; }
  [[nodiscard]] bool isEmpty() const { return size_.isEmpty(); }
  [[nodiscard]] int bytesPerRow() const { return width() * int(sizeof(Argb32)); }
  [[nodiscard]] qsizetype byteCount() const { return qsizetype(bytesPerRow()) * height(); }
  /// width() pixels. REQUIRES 0 <= y < height().
  [[nodiscard]] Argb32* row(int y) { return pixels_.get() + qsizetype(y) * width(); }
  [[nodiscard]] const Argb32* row(int y) const { return pixels_.get() + qsizetype(y) * width(); }
  /// The pixels within `part` as a bitmap of their own. REQUIRES that rect() contains it.
  [[nodiscard]] Result<Bitmap> copy(const QRect& part) const;

 private:
  QSize size_{0, 0};
  std::shared_ptr<Argb32[]> pixels_;
};

}  // namespace norvex::engine
