#include "application/recent_thumbnails.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

#include "application/start_panel.h"
#include "base/background_work.h"
#include "picture/document_file.h"
#include "picture/open_picture.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

constexpr int kSeconds = 5;

}  // namespace

QImage thumbnailOf(PictureService& service, const QUrl& url, int side, const CancelToken& cancel) {
  const auto bytes = readDocumentFile(url.toLocalFile());
  if (!bytes || cancel.cancelled()) return {};
  const QString type = identifyType(*bytes, url.fileName()).identifier();
  PictureLimits limits;
  limits.seconds = kSeconds;
  const auto opened = openPicture(service, {*bytes, type, url}, limits, cancel);
  if (!opened) return {};
  const QSizeF size = (*opened)->size();
  const double scale = side / std::max(size.width(), size.height());
  const auto image = (*opened)->rasterImage(scale, RenderPurpose::Preview, cancel);
  (*opened)->moveToThread(QCoreApplication::instance()->thread());  // threads of a pool deliver no events
  return image ? *image : QImage();
}

RecentThumbnails::RecentThumbnails(PictureService& service, StartPanel& panel, QObject* parent)
    : QObject(parent), service_(service), panel_(panel) {
  panel_.installEventFilter(this);
  connect(&panel_, &StartPanel::recentDidChange, this, &RecentThumbnails::makeNext);
}

RecentThumbnails::~RecentThumbnails() {
  cancel_.cancel();
}

void RecentThumbnails::makeNext() {
  if (making_ || !panel_.isVisible()) return;
  const QList<QUrl> all = panel_.recentWithoutThumbnail();
  const auto next =
      std::find_if(all.cbegin(), all.cend(), [this](const QUrl& url) { return !tried_.contains(url); });
  if (next == all.cend()) return;
  making_ = true;
  tried_ << *next;
  workInBackground(
      this,
      [&service = service_, url = *next, cancel = cancel_] {
        return thumbnailOf(service, url, side, cancel);
      },
      [this, url = *next, cancel = cancel_](const QImage& image) {
        if (image.isNull() && cancel.cancelled()) tried_.remove(url);
        take(url, image);
      });
}

void RecentThumbnails::take(const QUrl& url, const QImage& image) {
  making_ = false;
  if (!image.isNull()) panel_.setThumbnail(url, image);
  makeNext();
}

bool RecentThumbnails::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    cancel_ = CancelToken();
    makeNext();
  }
  // A document is being opened: it shall not wait for pictures that nobody sees any more.
  if (event->type() == QEvent::Hide) cancel_.cancel();
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
