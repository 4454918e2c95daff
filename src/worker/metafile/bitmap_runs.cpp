#include "worker/metafile/bitmap_runs.h"

namespace norvex::engine {
namespace {

enum Escape { EndOfLine = 0, EndOfBitmap = 1, Move = 2 };

class Runs {
 public:
  Runs(QByteArrayView packed, int bits, QSize size, const std::function<void(int, int, int)>& pixel)
      : packed_(packed), bits_(bits), size_(size), pixel_(pixel) {}

  void read() {
    while (y_ < size_.height() && has(2)) {
      const int count = byte(), value = byte();
      if (count > 0)
        repeat(count, value);
      else if (value == EndOfLine)
        x_ = 0, ++y_;
      else if (value == EndOfBitmap)
        return;
      else if (value == Move && has(2))
        x_ += byte(), y_ += byte();
      else if (!list(value))
        return;
    }
  }

 private:
  [[nodiscard]] bool has(qsizetype bytes) const { return packed_.size() - at_ >= bytes; }
  int byte() { return quint8(packed_[at_++]); }
  /// Two pixels of four bits take a byte, the first its upper half.
  [[nodiscard]] int part(int byte, int pixel) const {
    return bits_ == 8 ? byte : pixel % 2 == 0 ? byte >> 4 : byte & 0xF;
  }
  [[nodiscard]] bool isInside() const { return x_ < size_.width() && y_ < size_.height(); }
  void put(int colour) {
    if (isInside()) pixel_(int(x_), int(y_), colour);
    ++x_;
  }
  void repeat(int count, int value) {
    const qint64 end = x_ + count;
    for (int i = 0; i < count && isInside(); ++i) put(part(value, i));
    x_ = end;
  }
  /// Pixels one by one, up to a whole word.
  bool list(int count) {
    const int bytes = bits_ == 8 ? count : (count + 1) / 2;
    if (!has(bytes)) return false;
    for (int i = 0; i < count; ++i) put(part(quint8(packed_[at_ + (bits_ == 8 ? i : i / 2)]), i));
    at_ += bytes + bytes % 2;
    return true;
  }

  QByteArrayView packed_;
  int bits_;
  QSize size_;
  const std::function<void(int, int, int)>& pixel_;
  qsizetype at_ = 0;
  qint64 x_ = 0, y_ = 0;  // a line need not end: its runs may add up to more than an int holds
};

}  // namespace

void readRuns(QByteArrayView packed, int bits, QSize size,
              const std::function<void(int x, int y, int colour)>& pixel) {
  Runs(packed, bits, size, pixel).read();
}

}  // namespace norvex::engine
