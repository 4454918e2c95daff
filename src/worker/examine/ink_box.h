// The rectangle that a picture really inks, found in its pixels.
#pragma once

#include <QRectF>

#include <functional>

#include "base/result.h"
#include "protocol/page_contents.h"
#include "protocol/worker_protocol.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

/// Draws what a request asks for, unpainted pixels transparent.
using DrawPart = std::function<Result<Bitmap>(const RenderRequest& request)>;

/// Looks at `area` (picture coordinates) coarsely, then along the four edges of what was found, with pixels
/// of `dpi` at most. Ink is never larger than what the coarse look finds, and as sharp as `accuracy` says.
/// Where the fine pixels near an edge are empty, the coarse ones spread ink: a second strip further within is
/// drawn. `page`: of the requests. Fails as `draw` does.
[[nodiscard]] Result<DrawnInk> findInk(const QRectF& area, int page, double dpi, const DrawPart& draw);

/// The smallest rectangle around pixels that are neither transparent nor white; empty without any. With
/// `white`, around those that are not transparent.
[[nodiscard]] QRect inkedPixels(const Bitmap& bitmap, bool white = false);

}  // namespace norvex::engine
