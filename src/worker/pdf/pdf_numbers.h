// Numbers and matrices as PDF and PostScript text.
#pragma once

#include <QByteArray>

#include "base/affine_transform.h"

namespace norvex::engine {

/// The shortest decimal text within 10^-decimals: no exponent, no trailing zeros, no negative zero.
[[nodiscard]] QByteArray decimal(double value, int decimals = 4);

/// The six numbers of an affine matrix, blanks between them: the linear part with nine decimals (0.01 point
/// at the far end of the largest page), the offset with five.
[[nodiscard]] QByteArray matrixText(const AffineTransform& matrix);

}  // namespace norvex::engine
