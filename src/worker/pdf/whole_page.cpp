#include "worker/pdf/whole_page.h"

namespace norvex::engine {

ComposeRequest wholePage(int page, QSizeF shownSize, VectorFormat format) {
  ComposeRequest request;
  request.format = format;
  request.page = page;
  request.rect = QRectF(QPointF(-shownSize.width() / 2, -shownSize.height() / 2), shownSize);
  return request;
}

}  // namespace norvex::engine
