// By what compressed bytes are known.
#pragma once

#include <QByteArrayView>

namespace norvex {

/// True if they begin as a gzip stream does (RFC 1952).
[[nodiscard]] inline bool isGzip(QByteArrayView bytes) {
  return bytes.startsWith("\x1f\x8b");
}

}  // namespace norvex
