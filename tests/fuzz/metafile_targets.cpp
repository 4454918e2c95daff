// The Windows metafile section of a binary EPS file.
#include "fuzz/targets.h"
#include "worker/kit/made_metafile.h"
#include "worker/metafile/bitmap_runs.h"
#include "worker/metafile/metafile_preview.h"

namespace norvex::fuzz {
namespace {

bool metafilePreview(const QByteArray& bytes) {
  PictureLimits limits;
  limits.memoryMiB = 16;
  limits.megapixels = 0.5;
  const auto image = engine::decodeMetafile(bytes, limits);
  if (!image) return false;
  require(image->isConsistent(), "the samples are as many as the image says");
  require(double(image->pixelsWide) * image->pixelsHigh <= 0.5e6, "the image is within its limit");
  return true;
}

QList<QByteArray> seeds() {
  using kit::metafileRecord;
  const QByteArray objects =
      metafileRecord(0x2FC, {0, 255, 0, 0}) + metafileRecord(0x2FA, {1, 2, 0, 0, 255}) +
      metafileRecord(0x2FB, {-9, 0, 0, 0, 700, 0, 0, 0, 0}, "Arial\n") + metafileRecord(0x12D, {0}) +
      metafileRecord(0x12D, {1}) + metafileRecord(0x12D, {2});
  const QByteArray shapes = metafileRecord(0x41B, {20, 30, 5, 10}) +
                            metafileRecord(0x81A, {1, 9, 3, 20, 25, 30, 5, 10}) +
                            metafileRecord(0x538, {2, 3, 3, 0, 0, 9, 0, 9, 9, 1, 1, 3, 1, 3, 3}) +
                            metafileRecord(0x1E, {}) + metafileRecord(0x416, {20, 20, 0, 0}) +
                            metafileRecord(0x521, {2, 0x4848, 2, 2}) + metafileRecord(0x127, {0xFFFF});
  const QByteArray bitmap = kit::words({40, 0, 2, 0, 2, 0, 1, 4, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0}) +
                            QByteArray::fromHex(
                                "00ff0000ff00000010000000"
                                "01000000");
  const QByteArray picture = metafileRecord(0xF43, {0x20, 0xCC, 0, 2, 2, 0, 0, 20, 20, 5, 10}, bitmap);
  // Runs beyond the right edge, single pixels, a move, and a line that does not end.
  const QByteArray ofRuns = kit::words({40, 0, 4, 0, 3, 0, 1, 8, 1, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0}) +
                            QByteArray::fromHex(
                                "00ff0000ff000000"
                                "ff010000"
                                "000301000100"
                                "00020201") +
                            QByteArray::fromHex("ff01").repeated(40);
  const QByteArray runs = metafileRecord(0xF43, {0x20, 0xCC, 0, 3, 4, 0, 0, 20, 20, 5, 10}, ofRuns);
  return {kit::madeMetafile(objects + shapes), kit::madeMetafile(picture), kit::madeMetafile(runs),
          kit::placeableMetafile(objects + picture)};
}

/// The first byte tells how many bits a pixel has, the next two how many pixels a row has and how many rows.
bool bitmapRuns(const QByteArray& bytes) {
  if (bytes.size() < 3) return false;
  const int bits = (bytes[0] & 1) != 0 ? 8 : 4;
  const QSize size{quint8(bytes[1]), quint8(bytes[2])};
  bool isAny = false;
  engine::readRuns(QByteArrayView(bytes).sliced(3), bits, size, [&](int x, int y, int colour) {
    require(x >= 0 && x < size.width() && y >= 0 && y < size.height(), "every pixel is inside");
    require(colour >= 0 && colour < 1 << bits, "every colour has a place in the palette");
    isAny = true;
  });
  return isAny;
}

QList<QByteArray> runsSeeds() {
  const QByteArray runs = QByteArray::fromHex(
      "ff010000"
      "000301000100"
      "00020201"
      "04120001");
  return {QByteArray::fromHex("010803") + runs, QByteArray::fromHex("000803") + runs};
}

}  // namespace

QList<Target> metafileTargets() {
  return {{"metafile_preview", metafilePreview, seeds}, {"bitmap_runs", bitmapRuns, runsSeeds, 1000}};
}

}  // namespace norvex::fuzz
