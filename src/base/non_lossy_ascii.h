// Non-lossy ASCII: 7-bit ASCII in which every other character is written as a backslash escape.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace norvex {

/// `\\` is a backslash, `\ooo` (three octal digits up to 377) the character of that number, `\uXXXX` a UTF-16
/// code unit. A backslash that begins none of them stands for itself, so that PostScript and style sheets
/// with escapes of their own stay readable. A byte above 7F gives nothing.
[[nodiscard]] std::optional<QString> decodeNonLossyAscii(QByteArrayView bytes);

/// The other way, for every text: U+0080 to U+00FF as `\ooo`, what lies above as `\uXXXX`, a backslash
/// doubled.
[[nodiscard]] QByteArray encodeNonLossyAscii(QStringView text);

}  // namespace norvex
