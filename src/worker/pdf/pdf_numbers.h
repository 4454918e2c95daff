// Numbers and matrices as PDF and PostScript text.
#pragma once

#include <QByteArray>

#include "base/affine_transform.h"

namespace norvex::engine {

/// The shortest decimal text within 10^-decimals: no exponent, no trailing zeros, no negative zero.
[[nodiscard]] QByteArray decimal(double value, int decimals = 4);

/// The shortest decimal text with so many significant digits, with an exponent where that is shorter.
[[nodiscard]] QByteArray significant(double value, int digits = 9);

/// A number as PostScript reads it: with at most six decimals, none of them a trailing zero. What is no
/// number or out of a real's range becomes 0. A page may hold a hundred thousand of them: decimal() would
/// take longer than the rest.
void appendNumber(QByteArray& text, double number);

/// The six numbers of an affine matrix, blanks between them: the linear part with nine decimals (0.01 point
/// at the far end of the largest page), the offset with five.
[[nodiscard]] QByteArray matrixText(const AffineTransform& matrix);

}  // namespace norvex::engine
