#include "window/viewing/page_thumbnails.h"

#include <algorithm>

#include "base/background_work.h"
#include "ui/pages/page_strip.h"

namespace norvex {

PageThumbnails::PageThumbnails(PageStrip& strip, QObject* parent) : QObject(parent), strip_(strip) {
  connect(&strip_, &PageStrip::scrolled, this, &PageThumbnails::makeNext);
}

PageThumbnails::~PageThumbnails() {
  cancel_.cancel();
}

void PageThumbnails::setDocument(const std::shared_ptr<NSPDFImageRep>& page) {
  const bool same = document_ && page && document_->process() == page->process();
  document_ = page;
  if (same) return;
  cancel_.cancel();
  cancel_ = CancelToken();
  making_ = false;
  strip_.setCount(page && page->pageCount() > 1 ? page->readPageCount() : 0);
  makeNext();
}

void PageThumbnails::makeNext() {
  if (making_ || !document_ || !strip_.isVisible()) return;
  const int page = strip_.nextWanted();
  if (page < 0) return;
  const auto rep = document_->imageRepWithPage(page);
  if (!rep) {
    strip_.setThumbnail(page, {});
    return makeNext();
  }
  making_ = true;
  const QSizeF size = (*rep)->size();
  const double scale =
      PageStrip::side * strip_.devicePixelRatioF() / std::max({size.width(), size.height(), 1.0});
  workInBackground(
      this,
      [rep = *rep, scale, cancel = cancel_] {
        const auto image = rep->rasterImage(scale, RenderPurpose::Preview, cancel);
        return image ? *image : QImage();
      },
      [this, page, cancel = cancel_](const QImage& image) {
        if (cancel.cancelled()) return;
        making_ = false;
        strip_.setThumbnail(page, image);
        makeNext();
      });
}

}  // namespace norvex
