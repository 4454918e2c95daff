// The boxes that an EPS header states.
#pragma once

#include <QByteArrayView>
#include <QRectF>

#include <optional>

namespace norvex {

/// Boxes in PostScript's default user space: points, origin at the lower-left corner, y up. Each is there
/// only when it has four finite numbers and a width and height above zero.
struct EpsBoundingBoxes {
  std::optional<QRectF> boundingBox;       ///< %%BoundingBox, whole or real numbers
  std::optional<QRectF> hiResBoundingBox;  ///< %%HiResBoundingBox
};

/// Reads the boxes of an EPS source, plain or binary. A comment counts at the start of a line only and before
/// %%EndComments; "(atend)" there sends the search to the last such line of the file. A header without the
/// comment falls back to the first one anywhere. Corners in the wrong order are put right. Thread-safe.
[[nodiscard]] EpsBoundingBoxes epsBoundingBoxes(QByteArrayView source);

/// The box in which a picture with these boxes is shown: %%BoundingBox, in its absence %%HiResBoundingBox
/// grown to whole points.
[[nodiscard]] std::optional<QRectF> epsPictureBox(const EpsBoundingBoxes& boxes);

}  // namespace norvex
