// Operands of a page's contents as numbers.
#pragma once

#include <QRectF>

#include <qpdf/QPDFObjectHandle.hh>

#include <optional>
#include <vector>

#include "base/affine_transform.h"

namespace norvex::engine {

/// Those that are numbers, and finite, in their order.
[[nodiscard]] std::vector<double> numbersOf(const std::vector<QPDFObjectHandle>& operands);
/// Four numbers of an array as the rectangle between two corners; nothing: it is none.
[[nodiscard]] std::optional<QRectF> rectOf(QPDFObjectHandle array);
/// Six numbers of an array; the identity where it is none.
[[nodiscard]] AffineTransform matrixOf(QPDFObjectHandle array);
/// The dictionary of an inline image from what stood between BI and ID, with the full names of its keys.
[[nodiscard]] QPDFObjectHandle inlineImageOf(const std::vector<QPDFObjectHandle>& operands);

/// The factor by which lengths shrink most, or grow least.
[[nodiscard]] double leastScale(const AffineTransform& matrix);

}  // namespace norvex::engine
