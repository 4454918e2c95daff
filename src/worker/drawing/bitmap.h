// Bitmap: what an engine draws into.
#pragma once

#include <QRect>
#include <QRgb>
#include <QSize>

#include <memory>

#include "base/result.h"

namespace norvex::engine {

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
  [[nodiscard]] int bytesPerRow() const { return width() * int(sizeof(QRgb)); }
  [[nodiscard]] qsizetype byteCount() const { return qsizetype(bytesPerRow()) * height(); }
  /// width() pixels. REQUIRES 0 <= y < height().
  [[nodiscard]] QRgb* row(int y) { return pixels_.get() + qsizetype(y) * width(); }
  [[nodiscard]] const QRgb* row(int y) const { return pixels_.get() + qsizetype(y) * width(); }
  /// The pixels within `part` as a bitmap of their own. REQUIRES that rect() contains it.
  [[nodiscard]] Result<Bitmap> copy(const QRect& part) const;

 private:
  QSize size_{0, 0};
  std::shared_ptr<QRgb[]> pixels_;
};

}  // namespace norvex::engine
