// How far the paths of an SVG document reach, roughly.
#pragma once

#include <QByteArray>

namespace norvex::engine {

/// The mean height of the paths, in units of their own coordinates, from what stands in the first megabytes
/// of the text: transforms, style sheets and other shapes are passed over. 0 where there are no paths, or as
/// many texts as paths. Only good for guessing how long something takes.
[[nodiscard]] double meanPathHeight(const QByteArray& utf8);

}  // namespace norvex::engine
