// The part of a page that a window shows, as what is asked for of its inks.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

#include "picture/inks/separated_page.h"

namespace norvex {

/// The pixels that are shown, and those that they touch: `visible` in picture coordinates, of a page of
/// `size`, at so many pixels a point. Its pixels are those of the whole page at that resolution, which is
/// lower where a plate would have more pixels than one may. Nothing: nothing of the page is visible.
[[nodiscard]] std::optional<SeparationRequest> visiblePart(const QSizeF& size, const QRectF& visible,
                                                           double pixelsPerPoint);

/// The pixel of a part's plates that shows a point of the picture; it may lie outside of them. `part`: the
/// place of the plates; of the whole page, the page.
[[nodiscard]] QPoint pixelAt(const PageInks& inks, const QRectF& part, const QPointF& point);

}  // namespace norvex
