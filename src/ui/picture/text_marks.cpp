#include "ui/picture/text_marks.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

#include <utility>

#include "display/norvex_view.h"
#include "display/picture_geometry.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

namespace norvex {
namespace {

/// Logical pixels that are shown beside what is revealed; below it a bar may lie over the picture.
constexpr double kMargin = 24, kBelow = 72;

const QColor kFound(255, 214, 0, 110);
const QColor kCurrent(255, 122, 0, 105);
const QColor kCurrentEdge(150, 60, 0);
const QColor kSelected(40, 110, 230, 90);

}  // namespace

TextMarks::TextMarks(NorvexViewWidget& view) : QWidget(&view), view_(view) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setMouseTracking(true);
  view.installEventFilter(this);
  hide();
}

void TextMarks::setFound(const QList<QRectF>& found, const QList<QRectF>& current) {
  found_ = found;
  current_ = current;
  follow();
}

void TextMarks::setSelected(const QList<QRectF>& selected) {
  selected_ = selected;
  follow();
}

void TextMarks::setSelecting(bool on) {
  selecting_ = on;
  setAttribute(Qt::WA_TransparentForMouseEvents, !on);
  passes_ = false;
  shape_ = Qt::IBeamCursor;
  showCursor();
  follow();
}

void TextMarks::setShape(Qt::CursorShape shape) {
  shape_ = shape;
  showCursor();
}

void TextMarks::showCursor() {
  if (selecting_ && !pans())
    setCursor(shape_);
  else
    unsetCursor();  // the view's
}

bool TextMarks::pans() const {
  for (const QWidget* above = view_.parentWidget(); above; above = above->parentWidget())
    if (const auto* area = qobject_cast<const ZoomingScrollArea*>(above)) return area->holdsSpace();
  return false;
}

void TextMarks::follow() {
  setGeometry(view_.rect());
  setVisible(selecting_ || !found_.isEmpty() || !current_.isEmpty() || !selected_.isEmpty());
  raise();
  update();
}

QPolygonF TextMarks::onScreen(const QRectF& rect) const {
  const NorvexView& view = view_.view();
  QPolygonF points = pictureToView(view.imageSize(), view.rotate()).map(QPolygonF(rect));
  for (QPointF& point : points) point = view_.fromView(point);
  return points;
}

QPointF TextMarks::inPicture(const QPointF& point) const {
  const NorvexView& view = view_.view();
  return viewToPicture(view_.toView(point), view.imageSize(), view.rotate());
}

void TextMarks::reveal(const QRectF& rect) {
  const NorvexView& view = view_.view();
  const QPointF room = view_.toView(QPointF(kMargin, 0)) - view_.toView(QPointF(0, kBelow));
  view_.scrollRectToVisible(pictureToView(view.imageSize(), view.rotate())
                                .mapRect(rect)
                                .adjusted(-room.x(), -room.y(), room.x(), room.x()));
}

QRect TextMarks::placeOf(const QRectF& rect) const {
  const QRect place = onScreen(rect).boundingRect().toAlignedRect();
  return {mapToGlobal(place.topLeft()), place.size()};
}

bool TextMarks::event(QEvent* event) {
  // Without one of its own it would be the view's, which is about other drags.
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void TextMarks::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto fill = [&](const QList<QRectF>& rects, const QColor& color, const QPen& edge) {
    painter.setBrush(color);
    painter.setPen(edge);
    for (const QRectF& rect : rects) painter.drawPolygon(onScreen(rect.adjusted(-0.5, -0.5, 0.5, 0.5)));
  };
  fill(found_, kFound, Qt::NoPen);
  fill(current_, kCurrent, QPen(kCurrentEdge, 1));
  fill(selected_, kSelected, Qt::NoPen);
}

void TextMarks::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) passes_ = pans();
  if (event->button() != Qt::LeftButton || passes_) return event->ignore();
  emit pressed(inPicture(event->position()));
}

void TextMarks::mouseMoveEvent(QMouseEvent* event) {
  if (passes_ || (event->buttons() == Qt::NoButton && pans())) return event->ignore();
  const QPointF point = inPicture(event->position());
  if (event->buttons() & Qt::LeftButton) {
    emit dragged(point);
    return;
  }
  emit hovered(point);
  event->ignore();
}

void TextMarks::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || std::exchange(passes_, false)) return event->ignore();
  emit released(inPicture(event->position()));
}

bool TextMarks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(view_.rect());
  if (event->type() == QEvent::CursorChange) showCursor();
  return QWidget::eventFilter(watched, event);
}

}  // namespace norvex
