#include "worker/drawing/bitmap.h"

#include <cstdlib>
#include <cstring>

namespace norvex::engine {

Result<Bitmap> Bitmap::create(QSize size) {
  Bitmap bitmap;
  bitmap.size_ = size;
  if (size.isEmpty()) return bitmap;
  // Paper that nothing is drawn on costs no memory this way.
  auto* pixels =
      static_cast<Argb32*>(std::calloc(size_t(size.width()) * size_t(size.height()), sizeof(Argb32)));
  if (pixels == nullptr)
    return Error{ErrorKind::Limit, QStringLiteral("there is not enough memory to draw the picture")};
  bitmap.pixels_ = std::shared_ptr<Argb32[]>(pixels, &std::free);
  return bitmap;
}

Result<Bitmap> Bitmap::copy(const QRect& part) const {
  Result<Bitmap> result = create(part.size());
  if (!result) return result;
  for (int y = 0; y < result->height(); ++y)
    std::memcpy(result->row(y), row(part.top() + y) + part.left(), size_t(result->bytesPerRow()));
  return result;
}

}  // namespace norvex::engine
