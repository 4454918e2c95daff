#include "worker/metafile/device_bitmap.h"

#include <QList>

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "protocol/limits.h"
#include "worker/metafile/bitmap_runs.h"
#include "worker/metafile/metafile_records.h"

namespace norvex::engine {
namespace {

constexpr Argb32 kWhite = 0xFFFFFFFF;
constexpr quint32 kCoreHeader = 12, kInfoHeader = 40;
constexpr quint32 kPlain = 0, kRuns8 = 1, kRuns4 = 2;

struct Header {
  int width = 0, height = 0;
  bool isTopDown = false;
  int bits = 0;
  quint32 compression = 0;
  qsizetype paletteStart = 0;
  int colours = 0;
  int paletteEntry = 4;  ///< bytes
};

Error damaged() {
  return {ErrorKind::NotParsable, QStringLiteral("a bitmap in the Windows metafile is damaged")};
}

Result<Header> readHeader(QByteArrayView bytes) {
  MetafileWords words(bytes);
  const quint32 size = words.doubleWord();
  Header header;
  if (size == kCoreHeader) {
    header.width = words.unsignedWord(), header.height = words.unsignedWord();
    words.unsignedWord();
    header.bits = words.unsignedWord();
    header.paletteEntry = 3;
    header.colours = header.bits <= 8 ? 1 << header.bits : 0;
  } else if (size >= kInfoHeader) {
    header.width = int(words.doubleWord());
    const int height = int(words.doubleWord());
    if (height == std::numeric_limits<int>::min()) return damaged();
    header.height = std::abs(height), header.isTopDown = height < 0;
    words.unsignedWord();
    header.bits = words.unsignedWord();
    header.compression = words.doubleWord();
    for (int i = 0; i < 3; ++i) words.doubleWord();
    const quint32 used = words.doubleWord();
    header.colours = header.bits > 8 ? int(std::min<quint32>(used, 256))
                                     : int(used == 0 ? 1u << header.bits : std::min<quint32>(used, 256));
  }
  header.paletteStart = qsizetype(size);
  if (words.isShort() || header.width <= 0 || header.height <= 0 || header.width > limits::maximumSide ||
      header.height > limits::maximumSide || header.paletteStart > bytes.size())
    return damaged();
  return header;
}

QList<Argb32> readPalette(QByteArrayView bytes, const Header& header) {
  QList<Argb32> palette;
  for (int i = 0; i < header.colours; ++i) {
    const qsizetype at = header.paletteStart + qsizetype(i) * header.paletteEntry;
    if (at + 3 > bytes.size()) break;
    const auto part = [&](qsizetype n) { return Argb32(quint8(bytes[at + n])); };
    palette << (0xFF000000 | part(2) << 16 | part(1) << 8 | part(0));
  }
  return palette;
}

Argb32 pixelOf(QByteArrayView row, int x, int bits, const QList<Argb32>& palette) {
  if (bits >= 24) {
    const qsizetype at = qsizetype(x) * (bits / 8);
    const auto part = [&](qsizetype n) { return Argb32(quint8(row[at + n])); };
    return 0xFF000000 | part(2) << 16 | part(1) << 8 | part(0);
  }
  const int perByte = 8 / bits;
  const int shift = 8 - bits * (x % perByte + 1);
  const int index = (quint8(row[x / perByte]) >> shift) & ((1 << bits) - 1);
  return index < palette.size() ? palette[index] : kWhite;
}

Error unknownKind() {
  return {ErrorKind::Unsupported,
          QStringLiteral("a bitmap in the Windows metafile is of a kind that is not drawn")};
}

qsizetype samplesStart(const Header& header) {
  return header.paletteStart + qsizetype(header.colours) * header.paletteEntry;
}

// What no run tells is the palette's first colour: few runs may stand for many pixels.
Result<Bitmap> bitmapOfRuns(QByteArrayView bytes, const Header& header) {
  const QByteArrayView packed = bytes.sliced(std::min(samplesStart(header), bytes.size()));
  const qint64 pixels = qint64(header.width) * header.height;
  if (header.isTopDown || pixels > limits::maximumPreviewPixels) return damaged();
  const QList<Argb32> palette = readPalette(bytes, header);
  const auto colourOf = [&](int index) { return index < palette.size() ? palette[index] : kWhite; };
  Result<Bitmap> bitmap = Bitmap::create({header.width, header.height});
  if (!bitmap) return bitmap.error();
  for (int y = 0; y < header.height; ++y) std::fill_n(bitmap->row(y), header.width, colourOf(0));
  readRuns(packed, header.bits, bitmap->size(),
           [&](int x, int y, int index) { bitmap->row(header.height - 1 - y)[x] = colourOf(index); });
  return bitmap;
}

}  // namespace

Result<Bitmap> deviceBitmap(QByteArrayView bytes) {
  const Result<Header> header = readHeader(bytes);
  if (!header) return header.error();
  const int bits = header->bits;
  if ((header->compression == kRuns8 && bits == 8) || (header->compression == kRuns4 && bits == 4))
    return bitmapOfRuns(bytes, *header);
  if (header->compression != kPlain || (bits != 1 && bits != 4 && bits != 8 && bits != 24 && bits != 32))
    return unknownKind();
  const QList<Argb32> palette = readPalette(bytes, *header);
  const qsizetype rowBytes = (qsizetype(header->width) * bits + 31) / 32 * 4;
  const qsizetype start = samplesStart(*header);
  if (start + rowBytes * header->height > bytes.size()) return damaged();  // before memory is taken for it
  Result<Bitmap> bitmap = Bitmap::create({header->width, header->height});
  if (!bitmap) return bitmap.error();
  for (int y = 0; y < header->height; ++y) {
    Argb32* target = bitmap->row(header->isTopDown ? y : header->height - 1 - y);
    const qsizetype at = start + y * rowBytes;
    const QByteArrayView row = bytes.sliced(at, rowBytes);
    for (int x = 0; x < header->width; ++x) target[x] = pixelOf(row, x, bits, palette);
  }
  return bitmap;
}

}  // namespace norvex::engine
