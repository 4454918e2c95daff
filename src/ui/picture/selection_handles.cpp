#include "ui/picture/selection_handles.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace norvex {
namespace {

// Logical pixels.
constexpr double kSide = 8;    // of a square
constexpr double kAway = 8;    // from the rectangle to the middle of a square
constexpr double kTarget = 5;  // from that middle: what counts as the square; ends 3 pixels off the outline
constexpr double kShortest = 34;  // side with a square in its middle
constexpr double kLabelGap = 15, kInset = 6, kGripWidth = 10;

constexpr Qt::Edges kLeft = Qt::LeftEdge, kRight = Qt::RightEdge, kTop = Qt::TopEdge,
                    kBottom = Qt::BottomEdge;
constexpr Qt::Edges kAll = kLeft | kRight | kTop | kBottom;
constexpr std::array<Qt::Edges, 8> kSquares{kLeft | kTop,     kTop,    kRight | kTop,   kRight,
                                            kRight | kBottom, kBottom, kLeft | kBottom, kLeft};

bool isCorner(Qt::Edges edges) {
  return (edges & (kLeft | kRight)) && (edges & (kTop | kBottom));
}

/// Of the edge that can be seen: a square in the middle of what is scrolled away is of no use.
double middle(double low, double high, double seenLow, double seenHigh) {
  return (std::max(low, seenLow) + std::min(high, seenHigh)) / 2;
}

QRectF onDevicePixels(const QRectF& rect, double ratio) {
  const auto snapped = [ratio](double value) { return std::round(value * ratio) / ratio; };
  return {snapped(rect.x()), snapped(rect.y()), snapped(rect.width()), snapped(rect.height())};
}

}  // namespace

SelectionHandles::SelectionHandles(const QRectF& selection, const QRectF& seen, const QRectF& labelRoom,
                                   const QFont& font, const QString& label, bool movable)
    : selection_(selection),
      seen_(seen),
      text_(label),
      movable_(movable),
      label_(labelArea(labelRoom, font)) {}

QRectF SelectionHandles::square(Qt::Edges edges) const {
  const bool corner = isCorner(edges);
  if (!corner && (edges & (kLeft | kRight) ? selection_.height() : selection_.width()) < kShortest) return {};
  QPointF at(middle(selection_.left(), selection_.right(), seen_.left(), seen_.right()),
             middle(selection_.top(), selection_.bottom(), seen_.top(), seen_.bottom()));
  if (edges & kLeft) at.setX(selection_.left() - kAway);
  if (edges & kRight) at.setX(selection_.right() + kAway);
  if (edges & kTop) at.setY(selection_.top() - kAway);
  if (edges & kBottom) at.setY(selection_.bottom() + kAway);
  // An edge that is scrolled away takes its squares along; one at the very border has them inside.
  const QRectF shown = seen_.adjusted(-2 * kAway, -2 * kAway, 2 * kAway, 2 * kAway);
  const QRectF room = seen_.adjusted(kSide / 2, kSide / 2, -kSide / 2, -kSide / 2);
  if (!shown.contains(at) || !(room.width() > 0 && room.height() > 0)) return {};
  at = {std::clamp(at.x(), room.left(), room.right()), std::clamp(at.y(), room.top(), room.bottom())};
  return {at.x() - kSide / 2, at.y() - kSide / 2, kSide, kSide};
}

std::optional<Qt::Edges> SelectionHandles::at(const QPointF& point) const {
  for (const Qt::Edges edges : kSquares) {
    const QRectF target = square(edges);
    const QPointF off = point - target.center();
    if (!target.isNull() && std::abs(off.x()) <= kTarget && std::abs(off.y()) <= kTarget) return edges;
  }
  if (movable_ && label_.contains(point)) return kAll;
  return std::nullopt;
}

QRectF SelectionHandles::labelArea(const QRectF& room, const QFont& font) const {
  const QFontMetricsF metrics(font);
  const double grip = movable_ ? kGripWidth : 0;
  const QSizeF size(metrics.horizontalAdvance(text_) + 2 * kInset + grip, metrics.height() + 4);
  if (size.width() > room.width() || size.height() > room.height()) return {};
  double x = selection_.right() - size.width(), y = selection_.bottom() + kLabelGap;
  if (y + size.height() > room.bottom())
    y = std::min(selection_.bottom(), room.bottom()) - kLabelGap - size.height();
  x = std::clamp(x, room.left(), room.right() - size.width());
  y = std::clamp(y, room.top(), room.bottom() - size.height());
  return {x, y, size.width(), size.height()};
}

void SelectionHandles::draw(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1;
  for (const Qt::Edges edges : kSquares) {
    const QRectF square = this->square(edges);
    if (square.isNull()) continue;
    const QRectF outer = onDevicePixels(square, ratio);
    painter.fillRect(outer.adjusted(-1, -1, 1, 1), QColor(255, 255, 255, 190));  // a halo, as the outline has
    painter.fillRect(outer, QColor(0, 0, 255));
    painter.fillRect(outer.adjusted(1, 1, -1, -1), Qt::white);
  }
  drawLabel(painter);
  painter.restore();
}

void SelectionHandles::drawLabel(QPainter& painter) const {
  if (label_.isNull()) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(20, 24, 32, 210));
  painter.drawRoundedRect(label_, 4, 4);
  QRectF text = label_;
  if (movable_) {
    painter.setBrush(QColor(255, 255, 255, 170));
    for (const double dx : {0.0, 4.0})
      for (const double dy : {-4.0, 0.0, 4.0})
        painter.drawEllipse(QPointF(label_.left() + kInset + 1 + dx, label_.center().y() + dy), 1.1, 1.1);
    text.setLeft(label_.left() + kGripWidth);
  }
  painter.setPen(Qt::white);
  painter.drawText(text, Qt::AlignCenter, text_);
}

Qt::CursorShape cursorOf(Qt::Edges edges) {
  if (edges == kAll) return Qt::SizeAllCursor;
  if (!isCorner(edges)) return edges & (kLeft | kRight) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
  const bool falling = bool(edges & kLeft) == bool(edges & kTop);
  return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

}  // namespace norvex
