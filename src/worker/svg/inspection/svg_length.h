// Lengths, view boxes and the size of an SVG picture.
#pragma once

#include <QHash>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

namespace norvex::engine {

/// 96 of CSS's pixels, and 72 points, are an inch.
inline constexpr double pointsPerPixel = 0.75;
/// The size of an em where nothing else is said; the renderer's own default, pixels.
inline constexpr double defaultFontSize = 12.0;

struct SvgLength {
  double pixels = 0;   ///< an absolute length; not used for a percentage
  double percent = 0;  ///< 100: all of it
  bool isPercentage = false;
};

/// The number, as SVG writes them, that `text` begins with, which is taken away; it may be infinite. Nothing:
/// `text` begins with none, and stays.
[[nodiscard]] std::optional<double> takeSvgNumber(QStringView& text);

/// A number with px, pt, pc, mm, cm, in, em, ex, % or no unit (pixels), blanks around it allowed. Nothing:
/// not a length, or not finite.
[[nodiscard]] std::optional<SvgLength> parseSvgLength(const QString& text, double fontSize = defaultFontSize);

/// Four numbers, separated by blanks or commas. Nothing: fewer or more, not finite, or a negative size.
[[nodiscard]] std::optional<QRectF> parseViewBox(const QString& text);

/// The root element's own geometry.
struct SvgGeometry {
  std::optional<SvgLength> width, height;  ///< nothing: absent, or no length (SVG 1.1: "100%")
  std::optional<QRectF> viewBox;           ///< user units
  bool badWidth = false, badHeight = false,
       badViewBox = false;  ///< there, but not readable and so passed over
};
[[nodiscard]] SvgGeometry svgGeometry(const QHash<QString, QString>& rootAttributes);

/// The picture's size in pixels. A percentage, like an absent length, is a share of what the picture would
/// have by itself: the view box's size (in its proportion where the other side is absolute), without one the
/// extent of what is drawn (`drawn`, called only then), and 300 × 150 where nothing is drawn.
[[nodiscard]] QSizeF svgPixelSize(const SvgGeometry& geometry, const std::function<QSizeF()>& drawn);

}  // namespace norvex::engine
