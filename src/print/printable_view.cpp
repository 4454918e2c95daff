#include "print/printable_view.h"

#include <QDateTime>

#include "display/picture_geometry.h"
#include "display/view_compose.h"

namespace norvex {

PrintSource PrintableNorvexView::printSource() const {
  const double rotate = view_.rotate() == NorvexView::unsetRotation ? 0 : view_.rotate();
  const QSizeF size = rotatedBoundingSize(view_.imageSize(), rotate);
  PrintSource source;
  source.size = size;
  source.jobTitle = view_.printJobTitle();
  source.header = [title = view_.title()] { return norvex::pageHeader(title, QDateTime::currentDateTime()); };
  source.footer = [title = view_.title()] { return norvex::pageFooter(title); };
  if (!view_.imageRep()) return source;
  const QPointF centre(view_.imageSize().width() * 0.5, view_.imageSize().height() * 0.5);
  const QRectF bounds(QPointF(-0.5 * size.width(), -0.5 * size.height()), size);
  source.picture = [rep = view_.imageRep(), centre, rotate, bounds](const CancelToken& cancel) {
    return composeView(rep.get(), {centre, rotate}, VectorFormat::Pdf, bounds, cancel);
  };
  return source;
}

PrintSource PrintableRenderingView::printSource() const {
  PrintSource source;
  source.size = view_->bounds().size();
  source.jobTitle = view_->printJobTitle();
  source.header = [view = view_] { return view->pageHeader(); };
  source.footer = [view = view_] { return view->pageFooter(); };
  if (!view_->imageRep()) return source;
  source.picture = [view = view_, rep = imageRep_](const CancelToken& cancel) {
    return view->composeInsideRect(VectorFormat::Pdf, view->bounds(), cancel);
  };
  return source;
}

}  // namespace norvex
