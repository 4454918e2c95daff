// Numbers as font files hold them, one behind the other.
#pragma once

#include <QByteArray>

namespace norvex::engine {

class ByteWriter {
 public:
  /// The lowest `size` bytes of `value`, highest first. `size` 1 … 4.
  ByteWriter& put(int size, qint64 value) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) bytes.append(char(quint64(value) >> shift));
    return *this;
  }
  ByteWriter& put(const QByteArray& some) {
    bytes += some;
    return *this;
  }
  /// Zeros up to a multiple of four.
  ByteWriter& pad() {
    while (bytes.size() % 4 != 0) bytes.append('\0');
    return *this;
  }
  QByteArray bytes;
};

}  // namespace norvex::engine
