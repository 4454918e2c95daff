#include "window/viewing/page_thumbnails.h"

#include <QCoreApplication>
#include <QPointer>
#include <QtConcurrent>

#include <algorithm>

#include "base/waiting_threads.h"
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
  strip_.setCount(page && page->pageCount() > 1 ? int(page->facts().pageBounds.size()) : 0);
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
  QPointer<PageThumbnails> self(this);
  QtConcurrent::run(&waitingThreads(), [rep = *rep, scale, cancel = cancel_] {
    const auto image = rep->rasterImage(scale, RenderPurpose::Preview, cancel);
    return image ? *image : QImage();
  }).then(qApp, [self, page, cancel = cancel_](const QImage& image) {
    if (!self || cancel.cancelled()) return;
    self->making_ = false;
    self->strip_.setThumbnail(page, image);
    self->makeNext();
  });
}

}  // namespace norvex
