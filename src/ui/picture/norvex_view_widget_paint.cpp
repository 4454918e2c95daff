// What the widget draws beneath and above its view.
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "display/picture_geometry.h"
#include "protocol/start_trace.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/page_edge.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/style/checkerboard.h"

namespace norvex {

QPolygonF NorvexViewWidget::pageInWidget() const {
  const QTransform toView = pictureToView(view_.imageSize(), view_.rotate());
  return (toView * placement()).map(QPolygonF(QRectF(QPointF(0, 0), view_.imageSize())));
}

void NorvexViewWidget::drawBackground(QPainter& painter, const QRect& dirty) {
  const QRectF view = viewInWidget();
  const bool fillsAll = background_.isValid() && !onCanvas_;
  painter.fillRect(dirty, fillsAll ? background_ : palette().color(QPalette::Window));
  if (view_.imageRep() && !view.contains(QRectF(rect()))) drawPageEdge(painter, pageInWidget(), palette());
  if (fillsAll) return;
  if (background_.isValid()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(background_);
    if (view_.imageRep()) painter.drawPolygon(pageInWidget());
    return;
  }
  painter.setBrushOrigin(view.topLeft());
  if (view_.imageRep()) drawCheckerboard(painter, view & QRectF(dirty), palette());
}

void NorvexViewWidget::setStandIns(const QList<PictureStandIn>& standIns) {
  if (standIns.isEmpty() && standIns_.isEmpty()) return;
  standIns_ = standIns;
  update();
}

QTransform NorvexViewWidget::pictureToDevice() const {
  const double ratio = devicePixelRatioF();
  return pictureToView(view_.imageSize(), view_.rotate()) * placement() * QTransform::fromScale(ratio, ratio);
}

// Smoothed: an image has more pixels than are shown, or fewer.
void NorvexViewWidget::drawStandIns(QPainter& painter) const {
  const QTransform toWidget = pictureToView(view_.imageSize(), view_.rotate()) * placement();
  painter.save();
  painter.resetTransform();
  QPainterPath page;
  page.addPolygon(pageInWidget());
  painter.setClipPath(page, Qt::IntersectClip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (const PictureStandIn& one : standIns_) {
    if (one.image.isNull() || one.place.isEmpty()) continue;
    const QTransform fromImage(one.place.width() / one.image.width(), 0, 0,
                               -one.place.height() / one.image.height(), one.place.x(),
                               one.place.y() + one.place.height());
    painter.setTransform(fromImage * toWidget);
    painter.drawImage(QPointF(0, 0), one.image);
  }
  painter.restore();
}

std::optional<SelectionHandles> NorvexViewWidget::handles() const {
  if (view_.selection().state() != Selection::State::Rectangle) return std::nullopt;
  const QRectF& selected = view_.selectRect();
  const QRectF device = QRectF(fromView(selected.topLeft()), fromView(selected.bottomRight())).normalized();
  const bool movable =
      selected.width() < view_.bounds().width() || selected.height() < view_.bounds().height();
  return SelectionHandles(device, QRectF(rect()), viewInWidget() & QRectF(rect()), font(),
                          sizeText(selected.size(), unit_) + u' ' + unitName(unit_), movable);
}

std::optional<Qt::Edges> NorvexViewWidget::handleAt(const QPointF& point) const {
  const auto shown = handles();
  return shown ? shown->at(point) : std::nullopt;
}

void NorvexViewWidget::drawSelectionAids(QPainter& painter) const {
  const auto shown = handles();
  if (!shown) return;
  if (dimsOutside_) {
    constexpr double kOutline = 2;  // with its halo
    const QRectF& selected = view_.selectRect();
    QPainterPath outside;
    outside.addRect(viewInWidget());
    outside.addRect(QRectF(fromView(selected.topLeft()), fromView(selected.bottomRight()))
                        .normalized()
                        .adjusted(-kOutline, -kOutline, kOutline, kOutline));
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(0.65F);
    painter.fillPath(outside, veil);
  }
  shown->draw(painter);
}

void NorvexViewWidget::paintEvent(QPaintEvent* event) {
  QElapsedTimer clock;
  clock.start();
  painting_ = true;
  QPainter painter(this);
  drawBackground(painter, event->rect());
  // The system clips to what is dirty; what is asked for of the picture is all that can be seen.
  painter.setClipRect(rect());
  if (area_) {
    const QTransform toClip = placement();
    painter.setTransform(toClip, true);
    const QRectF dirty = toClip.inverted().mapRect(QRectF(event->rect()));
    view_.drawRect(painter, dirty, DrawingDestination::Screen);
    if (!standIns_.isEmpty() && isFinite(pictureToDevice())) {
      drawStandIns(painter);
      painter.setTransform(pictureToView(view_.imageSize(), view_.rotate()) * toClip);
      if (view_.selectRect().width() > 0) view_.drawDraggedLine(painter, 0);
    }
    painter.resetTransform();
    drawSelectionAids(painter);
    traceStep("view painted");
  }
  if (area_ && area_->showsFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
  painting_ = false;
  emit drawn(static_cast<double>(clock.nsecsElapsed()) / 1e6);
}

}  // namespace norvex
