// What is known of an SVG document without drawing it.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <functional>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/inspection/svg_length.h"
#include "worker/svg/svg_text.h"

namespace norvex::engine {

/// A document that was read and looked into.
struct SvgReading {
  QByteArray source;  ///< as it stands, not compressed
  SvgText text;
  SvgInspection inspection;
  SvgGeometry geometry;
};

/// `bytes` may be compressed. Fails as its steps do.
[[nodiscard]] Result<SvgReading> readSvg(const QByteArray& bytes);

/// The picture's size in pixels. `drawn`: the lower right corner of what is drawn, asked for where nothing
/// else tells the size. Fails as that does, with Unsupported for a picture without a size and with Limit.
[[nodiscard]] Result<QSizeF> measuredSvg(const SvgGeometry& geometry,
                                         const std::function<Result<QSizeF>()>& drawn);

/// `pixels`: the picture's size.
[[nodiscard]] PictureFacts svgFacts(const SvgReading& read, QSizeF pixels);

}  // namespace norvex::engine
