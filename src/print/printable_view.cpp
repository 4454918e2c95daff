#include "print/printable_view.h"

#include <QDateTime>

#include "display/picture_geometry.h"
#include "display/view_compose.h"
#include "picture/pdf_image_rep.h"

namespace norvex {
namespace {

/// Of a picture of this size turned about its centre.
struct Turned {
  QPointF centre;
  double rotate;
  QRectF bounds;  ///< in view coordinates
};

Turned turned(const QSizeF& picture, double rotate) {
  const QSizeF size = rotatedBoundingSize(picture, rotate);
  return {QPointF(picture.width() * 0.5, picture.height() * 0.5), rotate,
          QRectF(QPointF(-0.5 * size.width(), -0.5 * size.height()), size)};
}

Result<PictureBytes> composed(NSImageRep* rep, const Turned& as, const CancelToken& cancel) {
  return composeView(rep, {as.centre, as.rotate}, VectorFormat::Pdf, as.bounds, cancel);
}

QList<PrintPage> pagesOf(const std::shared_ptr<NSPDFImageRep>& document, double rotate) {
  QList<PrintPage> pages;
  const QList<QRectF> all = document->facts().pageBounds;
  for (int number = 0; number < document->readPageCount(); ++number) {
    const Turned as = turned(all.at(number).size(), rotate);
    pages << PrintPage{as.bounds.size(),
                       [document, number, as](const CancelToken& cancel) -> Result<PictureBytes> {
                         const auto page = document->imageRepWithPage(number);
                         return page ? composed(page->get(), as, cancel) : Result<PictureBytes>(page.error());
                       }};
  }
  return pages;
}

}  // namespace

PrintSource PrintableNorvexView::printSource() const {
  const double rotate = view_.rotate() == NorvexView::unsetRotation ? 0 : view_.rotate();
  const Turned as = turned(view_.imageSize(), rotate);
  PrintSource source;
  source.shown.size = as.bounds.size();
  source.jobTitle = view_.printJobTitle();
  source.header = [title = view_.title()] { return norvex::pageHeader(title, QDateTime::currentDateTime()); };
  source.footer = [title = view_.title()] { return norvex::pageFooter(title); };
  if (!view_.imageRep()) return source;
  source.shown.picture = [rep = view_.imageRep(), as](const CancelToken& cancel) {
    return composed(rep.get(), as, cancel);
  };
  const auto document = std::dynamic_pointer_cast<NSPDFImageRep>(view_.imageRep());
  if (!document || document->pageCount() < 2) return source;
  source.pages = pagesOf(document, rotate);
  source.shownPage = document->page();
  source.pageCount = document->pageCount();
  return source;
}

PrintSource PrintableRenderingView::printSource() const {
  PrintSource source;
  source.shown.size = view_->bounds().size();
  source.jobTitle = view_->printJobTitle();
  source.header = [view = view_] { return view->pageHeader(); };
  source.footer = [view = view_] { return view->pageFooter(); };
  if (!view_->imageRep()) return source;
  source.shown.picture = [view = view_, rep = imageRep_](const CancelToken& cancel) {
    return view->composeInsideRect(VectorFormat::Pdf, view->bounds(), cancel);
  };
  return source;
}

}  // namespace norvex
