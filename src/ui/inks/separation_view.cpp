#include "ui/inks/separation_view.h"

#include <QMouseEvent>
#include <QPainter>

namespace norvex {
namespace {

constexpr int kLeastHeight = 120, kUsualWidth = 300;
/// Of the width: what is higher is shown smaller, so that the list has its place.
constexpr double kUsualShare = 0.7, kLargestShare = 1.1;

}  // namespace

SeparationView::SeparationView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setMinimumHeight(kLeastHeight);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void SeparationView::setImage(const QImage& image) {
  image_ = image;
  updateGeometry();
  update();
}

QSize SeparationView::sizeHint() const {
  return {kUsualWidth, heightForWidth(kUsualWidth)};
}

int SeparationView::heightForWidth(int width) const {
  const double share = image_.isNull() ? kUsualShare : double(image_.height()) / image_.width();
  return qMax(kLeastHeight, qRound(width * qMin(share, kLargestShare)));
}

QRect SeparationView::imageRect() const {
  if (image_.isNull()) return {};
  QRect rect(QPoint(0, 0), image_.size().scaled(size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
  rect.moveCenter(this->rect().center());
  return rect;
}

void SeparationView::paintEvent(QPaintEvent*) {
  if (image_.isNull()) return;
  QPainter painter(this);
  const QRect place = imageRect();
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
  // Smaller by the mean of what it covers: hairlines of a plate stay to be seen.
  QImage shown = pixels.width() < image_.width()
                     ? image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     : image_;
  painter.drawImage(place, shown);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(place.adjusted(0, 0, -1, -1));
}

void SeparationView::mouseMoveEvent(QMouseEvent* event) {
  const QRect place = imageRect();
  if (!place.contains(event->position().toPoint())) {
    emit pointed({-1, -1});
    return;
  }
  // A point that is rounded into the image may lie half a pixel before its first one.
  const QPointF at = event->position() - place.topLeft();
  emit pointed({qMax(0, int(at.x() * image_.width() / place.width())),
                qMax(0, int(at.y() * image_.height() / place.height()))});
}

void SeparationView::leaveEvent(QEvent* event) {
  emit pointed({-1, -1});
  QWidget::leaveEvent(event);
}

}  // namespace norvex
