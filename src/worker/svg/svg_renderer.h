// librsvg's view of a document: loaded once, drawn as often as wanted.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <cairo.h>

#include <memory>

#include "base/result.h"
#include "worker/svg/inspection/svg_length.h"

namespace norvex::engine {

/// Loads nothing from outside the document: images in data: references work, files and network do not.
class SvgRenderer {
 public:
  /// `utf8` has passed inspectSvg(), which also says whether it needs the parser without its fixed bounds.
  /// Fails with NotParsable or Limit.
  static Result<std::unique_ptr<SvgRenderer>> create(const QByteArray& utf8, bool hugeParser);
  ~SvgRenderer();
  SvgRenderer(const SvgRenderer&) = delete;
  SvgRenderer& operator=(const SvgRenderer&) = delete;

  /// The root's geometry with width and height as rules of style sheets have them. `own`: by its attributes.
  [[nodiscard]] SvgGeometry styled(const SvgGeometry& own) const;

  /// The lower right corner of what is drawn, in pixels from the origin; 300 × 150 where that would move with
  /// the size of the picture, and empty where nothing is drawn.
  [[nodiscard]] QSizeF drawnExtent() const;

  /// Draws the document into the rectangle (0, 0, pixels) of the context's user space, y down, clipped to it.
  /// Fails with Unsupported or Limit.
  [[nodiscard]] Result<void> draw(cairo_t* context, const QSizeF& pixels) const;

  /// Whether in this program another thread can be told what is drawn (told_drawing.h): librsvg is bound to
  /// the functions of cairo, or to those that stand in for them, by whoever loaded it first.
  [[nodiscard]] static bool canBeTold();

 private:
  struct Handle;
  explicit SvgRenderer(std::unique_ptr<Handle> handle);
  [[nodiscard]] QSizeF extentWithin(const QSizeF& pixels) const;
  std::unique_ptr<Handle> handle_;
};

}  // namespace norvex::engine
