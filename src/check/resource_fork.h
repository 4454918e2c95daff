// The resource fork of a Macintosh file, in which an EPS file keeps its preview there.
#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace norvex {

/// The size of the first picture (resource type PICT) in a resource fork, in its own points of 1/72 inch.
/// Nothing: there is none, or what the fork says of it cannot be true. Thread-safe.
[[nodiscard]] std::optional<QSize> pictureInResources(QByteArrayView fork);

}  // namespace norvex
