// The finds of an interpreter of page contents, gathered.
#pragma once

#include <QRectF>

#include <optional>
#include <set>
#include <string>

#include "protocol/page_contents.h"
#include "worker/examine/graphics_state.h"

namespace norvex::engine {

enum class PaintKind { Fill, Stroke, Text };

/// Takes what is painted one after the other, and keeps the extremes.
class PageFindings {
 public:
  /// `box`: of the page, picture coordinates.
  PageFindings(PageContents& contents, const QRectF& box) : contents_(contents), box_(box) {}

  /// `rect`: picture coordinates, what is painted without the clip. Nothing happens where the clip leaves
  /// nothing of it.
  void paint(PaintKind kind, const GraphicsState& state, const PaintState& how, const QRectF& rect);
  void line(const GraphicsState& state, double width, const QRectF& rect);
  void text(const GraphicsState& state, double size, const QRectF& rect);
  /// Names of the fonts in which text is shown, as resources have them.
  [[nodiscard]] const std::set<std::string>& fonts() const { return fonts_; }
  void font(const std::string& name) { fonts_.insert(name); }
  void image(const GraphicsState& state, UsedImage image, const ColourSpace& space, bool isTransparent);
  /// A shading or a pattern in these colours.
  void shading(const GraphicsState& state, ColourModel model, const QRectF& rect);

 private:
  /// The part that the clip leaves; nothing: none.
  [[nodiscard]] std::optional<QRectF> shown(const GraphicsState& state, const QRectF& rect) const;
  void noteModel(ColourModel model, const QRectF& where);

  PageContents& contents_;
  const QRectF box_;
  std::set<std::string> fonts_;
};

}  // namespace norvex::engine
