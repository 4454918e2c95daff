#include "ui/picture/picture_mark.h"

#include <QEvent>
#include <QPainter>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>

#include "display/norvex_view.h"
#include "display/picture_geometry.h"
#include "ui/picture/norvex_view_widget.h"

namespace norvex {
namespace {

// Logical pixels.
constexpr double kAround = 5;    ///< between a place and its frame
constexpr double kLeast = 18;    ///< a side of the frame around a dot or a hairline
constexpr double kContext = 24;  ///< that is seen around a place which was scrolled to

PictureMark* markOf(const NorvexViewWidget& widget) {
  return widget.findChild<PictureMark*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

PictureMark::PictureMark(NorvexViewWidget& widget) : QWidget(&widget), widget_(widget) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  end_.setSingleShot(true);
  end_.setInterval(shownMs);
  connect(&end_, &QTimer::timeout, this, &QWidget::hide);
  widget.installEventFilter(this);
}

void PictureMark::show(NorvexViewWidget& widget, const QRectF& rect) {
  const NorvexView& view = widget.view();
  if (!isFinite(rect) || !view.imageRep()) return;
  const QRectF place = rect.normalized();
  const QPointF right = widget.fromView({1, 0}) - widget.fromView({0, 0});
  const double context = kContext / std::max(1e-6, std::hypot(right.x(), right.y()));
  const QRectF seen = pictureToView(view.imageSize(), view.rotate()).mapRect(place);
  widget.scrollRectToVisible(seen.adjusted(-context, -context, context, context) & view.bounds());
  PictureMark* mark = markOf(widget);
  if (!mark) mark = new PictureMark(widget);
  mark->rect_ = place;
  mark->setGeometry(widget.rect());
  mark->QWidget::show();
  mark->raise();
  mark->update();
  mark->end_.start();
}

void PictureMark::hide(NorvexViewWidget& widget) {
  if (PictureMark* mark = markOf(widget)) mark->QWidget::hide();
}

QPolygonF PictureMark::frame() const {
  const NorvexView& view = widget_.view();
  const QTransform toView = pictureToView(view.imageSize(), view.rotate());
  const auto shown = [&](const QPointF& point) { return widget_.fromView(toView.map(point)); };
  // Along the sides of the place, which are turned with the picture.
  const QPointF right = shown({1, 0}) - shown({0, 0}), up = shown({0, 1}) - shown({0, 0});
  const double zoom = std::max(1e-6, std::hypot(right.x(), right.y()));
  const QPointF across = right / zoom * std::max(rect_.width() * zoom + 2 * kAround, kLeast) / 2;
  const QPointF along = up / zoom * std::max(rect_.height() * zoom + 2 * kAround, kLeast) / 2;
  const QPointF centre = shown(rect_.center());
  return QPolygonF{
      {centre - across - along, centre + across - along, centre + across + along, centre - across + along}};
}

void PictureMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPolygonF around = frame();
  // Seen on light and on dark art.
  painter.setPen(QPen(QColor(255, 255, 255, 230), 5, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  painter.drawPolygon(around);
  painter.setPen(QPen(QColor(214, 40, 57), 2.2, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  painter.drawPolygon(around);
}

bool PictureMark::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(widget_.rect());
  if (event->type() == QEvent::MouseButtonPress) QWidget::hide();
  return QWidget::eventFilter(watched, event);
}

}  // namespace norvex
