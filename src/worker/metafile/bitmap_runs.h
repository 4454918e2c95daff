// Bitmaps that are packed as runs of pixels (RLE4 and RLE8 of Windows).
#pragma once

#include <QByteArrayView>
#include <QSize>

#include <functional>

namespace norvex::engine {

/// Tells each pixel that `packed` holds: its column, its row from the bottom, its place in the palette.
/// `bits`: 4 or 8 a pixel. Pixels outside of `size` are passed over; damage ends it.
void readRuns(QByteArrayView packed, int bits, QSize size,
              const std::function<void(int x, int y, int colour)>& pixel);

}  // namespace norvex::engine
