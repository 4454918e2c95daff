// The TIFF section of a binary EPS file, from the directory to the samples, and what Ghostscript writes of a
// page that it separates.
#include <algorithm>

#include "fuzz/targets.h"
#include "worker/postscript/psd_plates.h"
#include "worker/tiff/tiff_preview.h"

namespace norvex::fuzz {
namespace {

QByteArray number(quint32 value, int bytes) {
  QByteArray text;
  for (; bytes > 0; --bytes, value >>= 8) text += char(value);
  return text;
}

struct Field {
  quint32 tag, type, value;
  quint32 count = 1;
};

/// A little-endian TIFF of 4 × 3 pixels whose samples stand at its end.
QByteArray tiff(const QList<Field>& more, int bytesPerRow, quint32 compression = 1) {
  const QByteArray samples(bytesPerRow * 3, '\x5a');
  QList<Field> fields{{256, 3, 4}, {257, 3, 3}, {259, 3, compression}, {278, 3, 3}};
  fields += more;
  const auto directoryEnd = quint32(8 + 2 + 12 * (fields.size() + 2) + 4);
  fields += {{273, 4, directoryEnd}, {279, 4, quint32(samples.size())}};
  std::sort(fields.begin(), fields.end(), [](const Field& a, const Field& b) { return a.tag < b.tag; });
  QByteArray file = "II*" + QByteArray(1, '\0') + number(8, 4) + number(quint32(fields.size()), 2);
  for (const Field& field : fields)
    file += number(field.tag, 2) + number(field.type, 2) + number(field.count, 4) + number(field.value, 4);
  return file + number(0, 4) + samples;
}

bool tiffPreview(const QByteArray& bytes) {
  PictureLimits limits;
  limits.memoryMiB = 16;
  limits.megapixels = 0.5;
  const auto image = engine::decodeTiff(bytes, limits);
  if (!image) return false;
  require(image->isConsistent(), "the samples are as many as the image says");
  require(double(image->pixelsWide) * image->pixelsHigh <= 0.5e6, "the image is within its limit");
  return true;
}

QList<QByteArray> seeds() {
  return {tiff({{258, 3, 8}, {262, 3, 1}}, 4),
          tiff({{258, 3, 1}, {262, 3, 0}}, 1),
          tiff({{258, 3, 8}, {262, 3, 2}, {277, 3, 3}}, 12),
          tiff({{258, 3, 8}, {262, 3, 2}, {277, 3, 4}, {338, 3, 2}}, 16),
          tiff({{258, 3, 8}, {262, 3, 5}, {277, 3, 4}, {332, 3, 1}}, 16),
          tiff({{258, 3, 16}, {262, 3, 1}, {274, 3, 6}}, 8),
          tiff({{258, 3, 8}, {262, 3, 1}}, 4, 32773),
          tiff({{258, 3, 1}, {262, 3, 0}}, 4, 4)};
}

bool psdPlates(const QByteArray& bytes) {
  const auto page = engine::platesOfPsd(bytes);
  if (!page) return false;
  require(page->plates.size() == page->plateBytes() * page->inks.size(), "every plate is whole");
  require(decodePageInks(encodePageInks(*page)).ok(), "what was read can be told");
  return true;
}

/// In the other order of bytes.
QByteArray big(quint32 value, int bytes) {
  QByteArray text = number(value, bytes);
  std::reverse(text.begin(), text.end());
  return text;
}

QList<QByteArray> psdSeeds() {
  const auto psd = [](int channels, const QByteArray& resources) {
    return "8BPS" + big(1, 2) + big(0, 6) + big(quint32(channels), 2) + big(2, 4) + big(3, 4) + big(8, 2) +
           big(4, 2) + big(0, 4) + big(quint32(resources.size()), 4) + resources + big(0, 4) + big(0, 2) +
           QByteArray(6 * channels, 'x');
  };
  const QByteArray names = "8BIM" + big(1006, 2) + big(0, 2) + big(10, 4) + "\4Gold\4Blue";
  const QByteArray colours =
      "8BIM" + big(1007, 2) + big(0, 2) + big(14, 4) + big(2, 2) + QByteArray(12, '\x66');
  return {psd(4, {}), psd(6, names + colours), psd(5, colours + names)};
}

}  // namespace

QList<Target> tiffTargets() {
  return {{"tiff_preview", tiffPreview, seeds}, {"psd_plates", psdPlates, psdSeeds}};
}

}  // namespace norvex::fuzz
