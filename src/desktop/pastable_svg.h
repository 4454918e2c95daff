// SVG for programs that paste it into a drawing of their own.
#pragma once

#include <QByteArray>

namespace norvex {

/// The same drawing in CSS pixels, without a scale between its box and its size: programs that paste the
/// elements of a drawing leave its root behind, and with it that scale and the properties that all inherit.
/// What is not such as this program's own writer makes it (points, a box at 0 0) is returned as it is.
[[nodiscard]] QByteArray pastableSvg(const QByteArray& svg);

}  // namespace norvex
