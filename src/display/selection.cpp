#include "display/selection.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace norvex {
namespace {

constexpr QSizeF startPointSize{1.0, 0.0};
/// A rectangle with both sides below this is taken for a slip of the hand.
constexpr double smallestSide = 3.0;
constexpr double smallestKeyedSide = 1.0;

bool isSize(const QRectF& rect, double width, double height) {
  return rect.width() == width && rect.height() == height;  // exact, unlike QSizeF's comparison
}

double kept(double value, double low, double high) {
  return value < low ? low : value > high ? high : value;
}

/// One side of a rectangle whose edges are pulled by `step`, of which `low` and `high` tell the held ones.
/// Beyond the opposite edge it goes on from there.
std::pair<double, double> pulled(double start, double length, double step, bool low, bool high, double least,
                                 double most) {
  if (low == high) {
    if (!low) return {start, length};
    return {kept(start + step, least, std::max(least, most - length)), length};
  }
  const double fixed = low ? start + length : start;
  const double moving = kept((low ? start : start + length) + step, least, most);
  const double shortest = std::min(smallestKeyedSide, length);
  const double made = std::max(std::abs(moving - fixed), shortest);
  return {moving < fixed ? std::max(least, fixed - made) : std::min(fixed, most - made), made};
}

}  // namespace

Selection::State Selection::state() const {
  if (!(rect_.width() > 0)) return State::None;
  return rect_.height() > 0 ? State::Rectangle : State::StartPoint;
}

void Selection::reset(const QPointF& point) {
  drag_ = Drag::None;
  downPoint_ = point;
  rect_ = QRectF(point, QSizeF(0, 0));
}

void Selection::press(const QRectF& bounds) {
  bounds_ = bounds;
  sawDrag_ = false;
  const bool startPlaced = !isSize(rect_, 0, 0) && rect_.height() == 0;
  drag_ = startPlaced ? Drag::Rectangle : Drag::StartPoint;
  if (!startPlaced) rect_.setSize(startPointSize);
}

bool Selection::hold(Qt::Edges edges, const QPointF& at, const QRectF& bounds) {
  if (state() != State::Rectangle || tracking()) return false;
  bounds_ = bounds;
  sawDrag_ = false;
  drag_ = Drag::Edges;
  held_ = edges;
  heldAt_ = at;
  heldFrom_ = rect_;
  return true;
}

void Selection::track(const QPointF& point, bool dragged) {
  if (!tracking() || std::isnan(point.x()) || std::isnan(point.y())) return;
  const QPointF inside(kept(point.x(), bounds_.x(), bounds_.x() + bounds_.width()),
                       kept(point.y(), bounds_.y(), bounds_.y() + bounds_.height()));
  sawDrag_ = sawDrag_ || dragged;
  if (drag_ == Drag::Edges)
    pullTo(point);
  else if (drag_ == Drag::StartPoint)
    placeStartPoint(inside);
  else
    stretchTo(inside);
}

Selection::Ending Selection::release() {
  const Drag ended = std::exchange(drag_, Drag::None);
  if (ended == Drag::None) return Ending::Done;
  if (ended == Drag::StartPoint || ended == Drag::Edges) return sawDrag_ ? Ending::Done : Ending::Clear;
  if (rect_.width() * rect_.height() == 0) {
    // The origin goes back as well: stretching to the left or downwards had moved it to the pointer.
    rect_ = QRectF(downPoint_, startPointSize);
    return Ending::Changed;
  }
  return rect_.width() < smallestSide && rect_.height() < smallestSide ? Ending::Clear : Ending::Done;
}

bool Selection::clear() {
  if (!(rect_.width() > 0)) return false;
  rect_.setSize(QSizeF(0, 0));
  return true;
}

bool Selection::clampInto(const QRectF& bounds) {
  bounds_ = bounds;
  if (!(rect_.width() > 0)) return false;
  const double right = bounds.x() + bounds.width(), top = bounds.y() + bounds.height();
  double x = kept(rect_.x(), bounds.x(), right), y = kept(rect_.y(), bounds.y(), top);
  double width = rect_.width(), height = rect_.height();
  if (height > 0) {
    if (x + width > right) width = right - x;
    if (y + height > top) height = top - y;
  }
  rect_ = QRectF(x, y, width, height);
  // A size without height means a start point, and the next drag stretches from there: it must not lie
  // outside.
  if (height == 0) downPoint_ = rect_.topLeft();
  return true;
}

bool Selection::moveBy(const QPointF& step, const QRectF& bounds) {
  if (state() != State::Rectangle || tracking()) return false;
  const QRectF before = rect_;
  rect_.moveTo(kept(before.x() + step.x(), bounds.x(), bounds.x() + bounds.width() - before.width()),
               kept(before.y() + step.y(), bounds.y(), bounds.y() + bounds.height() - before.height()));
  return rect_ != before;
}

bool Selection::resizeBy(const QPointF& step, const QRectF& bounds) {
  if (state() != State::Rectangle || tracking()) return false;
  const QRectF before = rect_;
  const double widest = bounds.x() + bounds.width() - before.x();
  const double highest = bounds.y() + bounds.height() - before.y();
  rect_.setWidth(kept(before.width() + step.x(), std::min(smallestKeyedSide, before.width()), widest));
  rect_.setHeight(kept(before.height() + step.y(), std::min(smallestKeyedSide, before.height()), highest));
  return rect_ != before;
}

void Selection::placeStartPoint(const QPointF& point) {
  downPoint_ = point;
  rect_.moveTo(point);
}

void Selection::stretchTo(const QPointF& point) {
  const double dx = point.x() - downPoint_.x(), dy = point.y() - downPoint_.y();
  rect_ = QRectF(std::min(downPoint_.x(), downPoint_.x() + dx), std::min(downPoint_.y(), downPoint_.y() + dy),
                 std::abs(dx), std::abs(dy));
}

void Selection::pullTo(const QPointF& point) {
  const QPointF step = point - heldAt_;
  const auto [x, width] = pulled(heldFrom_.x(), heldFrom_.width(), step.x(), held_ & Qt::LeftEdge,
                                 held_ & Qt::RightEdge, bounds_.x(), bounds_.x() + bounds_.width());
  const auto [y, height] = pulled(heldFrom_.y(), heldFrom_.height(), step.y(), held_ & Qt::BottomEdge,
                                  held_ & Qt::TopEdge, bounds_.y(), bounds_.y() + bounds_.height());
  rect_ = QRectF(x, y, width, height);
}

}  // namespace norvex
