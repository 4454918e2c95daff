#include "worker/engine/whole_page.h"

namespace norvex::engine {

ComposeRequest wholePage(int page, QSizeF shownSize, VectorFormat format) {
  ComposeRequest request;
  request.format = format;
  request.page = page;
  request.rect = QRectF(QPointF(-shownSize.width() / 2, -shownSize.height() / 2), shownSize);
  return request;
}

Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request, EngineContext& context) {
  Result<QByteArray> composed = composePdf(pdf, request);
  if (!composed) return composed.error();
  if (request.format == VectorFormat::Eps) return epsFromPdf(*composed, context);
  return EngineBytes{std::move(*composed), {}};
}

}  // namespace norvex::engine
