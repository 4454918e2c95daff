#include "display/norvex_rendering_view.h"

#include <QPainter>

#include "display/view_compose.h"

namespace norvex {

void NorvexRenderingView::drawRect(QPainter& painter, const QRectF&) const {
  if (imageRep_) imageRep_->draw(painter);
}

std::optional<PageLine> NorvexRenderingView::pageHeader() const {
  return norvex::pageHeader(title(), QDateTime::currentDateTime());
}

std::optional<PageLine> NorvexRenderingView::pageFooter() const {
  return norvex::pageFooter(title());
}

Result<PictureBytes> NorvexRenderingView::composeInsideRect(VectorFormat format, const QRectF& rect,
                                                            const CancelToken& cancel) const {
  return composeView(imageRep_, {}, format, rect, cancel);
}

QByteArray NorvexRenderingView::dataWithPDFInsideRect(const QRectF& rect) const {
  const auto made = composeInsideRect(VectorFormat::Pdf, rect);
  return made ? made->bytes : QByteArray();
}

QByteArray NorvexRenderingView::dataWithEPSInsideRect(const QRectF& rect) const {
  const auto made = composeInsideRect(VectorFormat::Eps, rect);
  return made ? made->bytes : QByteArray();
}

}  // namespace norvex
