// Opening and drawing SVG texts in tests.
#pragma once

#include <QByteArray>
#include <QImage>

#include <zlib.h>

#include <cmath>
#include <memory>

#include "worker/engine/engine.h"
#include "worker/every_engine/open_document.h"
#include "worker/kit/bitmap_images.h"

namespace norvex::kit {

/// An SVG document of the usual namespace with these attributes of the root and these contents.
inline QByteArray svgOf(const QByteArray& rootAttributes, const QByteArray& contents) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
         rootAttributes + ">" + contents + "</svg>";
}

/// The bytes as a gzip stream.
inline QByteArray gzipped(const QByteArray& plain) {
  z_stream stream{};
  deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
  QByteArray result(qsizetype(deflateBound(&stream, uLong(plain.size()))) + 32, Qt::Uninitialized);
  stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(plain.constData()));
  stream.avail_in = uInt(plain.size());
  stream.next_out = reinterpret_cast<Bytef*>(result.data());
  stream.avail_out = uInt(result.size());
  deflate(&stream, Z_FINISH);
  result.truncate(qsizetype(stream.total_out));
  deflateEnd(&stream);
  return result;
}

/// An opened document together with its context.
struct OpenSvg {
  explicit OpenSvg(const QByteArray& bytes) : result(engine::openSvg(bytes, context)) {}
  engine::DocumentEngine* operator->() { return result->get(); }
  [[nodiscard]] bool ok() const { return result.ok(); }

  engine::EngineContext context;
  Result<std::unique_ptr<engine::DocumentEngine>> result;
};

/// The whole picture, `scale` pixels a point, upright.
inline Result<QImage> drawn(engine::DocumentEngine& document, double scale) {
  const Result<PictureFacts> facts = document.facts();
  const QSizeF size = facts->pageBounds.value(0).size();
  RenderRequest request;
  request.pixelSize =
      QSize(int(std::ceil(size.width() * scale - 1e-6)), int(std::ceil(size.height() * scale - 1e-6)));
  request.pictureToDevice = QTransform(scale, 0, 0, -scale, 0, size.height() * scale);
  return imageOf(document.render(request));
}

/// The largest difference of any sample of two images of one size; 256: the sizes differ.
inline int largestDifference(const QImage& a, const QImage& b) {
  if (a.size() != b.size() || a.format() != b.format()) return 256;
  int largest = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int i = 0; i < 4 * a.width(); ++i)
      largest = std::max(largest, std::abs(int(a.constScanLine(y)[i]) - int(b.constScanLine(y)[i])));
  return largest;
}

}  // namespace norvex::kit
