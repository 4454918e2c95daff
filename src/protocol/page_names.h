// The names of what a page is made of: the answer to an examination of its own, because finding them takes
// reading all contents, which only those who show them need.
#pragma once

#include <QByteArray>
#include <QStringList>

#include "base/result.h"

namespace norvex {

/// Each once, in the order in which they are found.
struct PageNames {
  QStringList fonts, colorSpaces;  ///< as PictureFacts has them
};

[[nodiscard]] QByteArray encodePageNames(const PageNames& names);
/// Fails (Protocol) where the names cannot be true: wrong types, too many, too long.
[[nodiscard]] Result<PageNames> decodePageNames(const QByteArray& cbor);

}  // namespace norvex
