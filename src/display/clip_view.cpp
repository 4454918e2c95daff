#include "display/clip_view.h"

#include <algorithm>
#include <cmath>

namespace norvex {
namespace {

double sane(double length) {
  return std::isfinite(length) && length > 0 ? length : 0;
}

QSizeF sane(const QSizeF& size) {
  return {sane(size.width()), sane(size.height())};
}

/// Where `shown` points of the screen stand over a document of `whole` points.
double keptInside(double origin, double shown, double whole) {
  if (shown >= whole) return (whole - shown) / 2;
  return std::isnan(origin) ? 0 : std::clamp(origin, 0.0, whole - shown);
}

/// The nearest origin to `origin` that shows low … high, or its lower part where that is longer.
double revealing(double origin, double shown, double low, double high) {
  return std::min(std::max(origin, high - shown), low);
}

}  // namespace

QRectF ClipView::documentVisibleRect() const {
  return bounds_.intersected(QRectF(QPointF(0, 0), documentSize_));
}

void ClipView::moveTo(const QPointF& origin) {
  bounds_ = QRectF(keptInside(origin.x(), bounds_.width(), documentSize_.width()),
                   keptInside(origin.y(), bounds_.height(), documentSize_.height()), bounds_.width(),
                   bounds_.height());
}

void ClipView::setFrameSize(const QSizeF& size) {
  const double top = bounds_.y() + bounds_.height();
  frameSize_ = sane(size);
  bounds_.setSize(frameSize_ / scale_);
  moveTo({bounds_.x(), top - bounds_.height()});
}

void ClipView::setDocumentSize(const QSizeF& size) {
  const QSizeF grown = (sane(size) - documentSize_) / 2;
  documentSize_ = sane(size);
  moveTo(bounds_.topLeft() + QPointF(grown.width(), grown.height()));
}

void ClipView::setScale(double scale, const QPointF& anchor) {
  if (!std::isfinite(scale) || scale <= 0) return;
  const QPointF fixed = frameToDocument(anchor);
  scale_ = scale;
  bounds_.setSize(frameSize_ / scale);
  moveTo({fixed.x() - anchor.x() / scale, fixed.y() + anchor.y() / scale - bounds_.height()});
}

QPointF ClipView::scrollOffset() const {
  return {bounds_.x() * scale_, (documentSize_.height() - bounds_.y() - bounds_.height()) * scale_};
}

QSizeF ClipView::scrollRange() const {
  return {std::max(0.0, documentSize_.width() * scale_ - frameSize_.width()),
          std::max(0.0, documentSize_.height() * scale_ - frameSize_.height())};
}

void ClipView::setScrollOffset(const QPointF& offset) {
  moveTo({offset.x() / scale_, documentSize_.height() - bounds_.height() - offset.y() / scale_});
}

bool ClipView::scrollRectToVisible(const QRectF& rect) {
  const QPointF before = bounds_.topLeft();
  moveTo({revealing(before.x(), bounds_.width(), rect.x(), rect.x() + rect.width()),
          revealing(before.y(), bounds_.height(), rect.y(), rect.y() + rect.height())});
  return bounds_.x() != before.x() || bounds_.y() != before.y();
}

QTransform ClipView::documentToFrame() const {
  return QTransform(scale_, 0, 0, -scale_, -bounds_.x() * scale_, (bounds_.y() + bounds_.height()) * scale_);
}

QPointF ClipView::frameToDocument(const QPointF& point) const {
  return {bounds_.x() + point.x() / scale_, bounds_.y() + bounds_.height() - point.y() / scale_};
}

}  // namespace norvex
