#include "display/skt_zooming_scroll_view.h"

#include "display/norvex_view.h"
#include "display/zoom_factors.h"

namespace norvex {
namespace {

constexpr double leastBarRoom = 72.0;
constexpr QPointF outOfSight(-1000, -1000);
constexpr int wheelStep = 120;

/// From the document view's bounds coordinates to its frame's.
QPointF boundsToFrame(const NorvexView& view) {
  return view.frame().topLeft() - view.bounds().topLeft();
}

}  // namespace

void SKTZoomingScrollView::validateFactorPopUpButton() {
  if (!factorPopUpButton_) factorPopUpButton_ = std::make_unique<FactorPopUp>();
}

void SKTZoomingScrollView::setFactor(double factor) {
  factor_ = factor;
  emit zoomingScrollViewFactorDidChange();
  if (clipView_) clipView_->setScale(factor, anchor_.value_or(clipView_->frameCentre()));
}

void SKTZoomingScrollView::bind(const QByteArray& binding, QObject* toObject, const QByteArray& withKeyPath,
                                const QVariantMap&) {
  if (binding == factorBindingName) {
    validateFactorPopUpButton();
    factorPopUpButton_->bindSelectedObject(toObject, withKeyPath);
  }
  const auto link = std::make_shared<PropertyBinding>(toObject, withKeyPath);
  const auto follow = [this, binding](const QVariant& value) { setProperty(binding.constData(), value); };
  connect(link.get(), &PropertyBinding::valueDidChange, this, follow);
  bindings_.insert(binding, link);
  if (link->isValid()) follow(link->value());
}

void SKTZoomingScrollView::unbind(const QByteArray& binding) {
  bindings_.remove(binding);
  if (binding == factorBindingName && factorPopUpButton_) factorPopUpButton_->unbindSelectedObject();
}

TiledBar SKTZoomingScrollView::tile(const QRectF& horizontalBar, const QSizeF& popUp) {
  validateFactorPopUpButton();
  if (!(horizontalBar.width() - popUp.width() > leastBarRoom))
    return {horizontalBar, QRectF(outOfSight, popUp)};
  TiledBar tiled{horizontalBar, horizontalBar};
  tiled.popUp.setWidth(popUp.width());
  tiled.bar.setLeft(horizontalBar.left() + popUp.width());
  return tiled;
}

void SKTZoomingScrollView::setDocumentView(NorvexView* view) {
  documentView_ = view;
  if (!view) {
    clipView_.reset();
    return;
  }
  if (!clipView_) clipView_.emplace();
  documentFrameDidChange();
}

void SKTZoomingScrollView::documentFrameDidChange() {
  if (clipView_ && documentView_) clipView_->setDocumentSize(documentView_->frame().size());
}

QRectF SKTZoomingScrollView::documentViewVisibleRect() const {
  if (!clipView_ || !documentView_) return {};
  return clipView_->documentVisibleRect().translated(-boundsToFrame(*documentView_));
}

QTransform SKTZoomingScrollView::documentViewToClip() const {
  if (!clipView_ || !documentView_) return {};
  const QPointF shift = boundsToFrame(*documentView_);
  return QTransform::fromTranslate(shift.x(), shift.y()) * clipView_->documentToFrame();
}

QPointF SKTZoomingScrollView::clipToDocumentView(const QPointF& point) const {
  if (!clipView_ || !documentView_) return point;
  return clipView_->frameToDocument(point) - boundsToFrame(*documentView_);
}

void SKTZoomingScrollView::zoom(int steps, const std::optional<QPointF>& anchor) {
  const double factor = steppedZoomFactor(factor_, steps);
  if (factor != factor_) zoomTo(factor, anchor);
}

void SKTZoomingScrollView::zoomTo(double factor, const std::optional<QPointF>& anchor) {
  anchor_ = anchor;
  const auto link = bindings_.value(factorBindingName);
  if (!link || !link->setValue(factor)) setFactor(factor);
  anchor_.reset();
}

void SKTZoomingScrollView::wheelZoom(int angleDelta, const QPointF& anchor) {
  if ((angleDelta > 0) != (wheel_ > 0)) wheel_ = 0;  // turning back starts afresh
  wheel_ += angleDelta;
  const int steps = wheel_ / wheelStep;
  wheel_ -= steps * wheelStep;
  if (steps != 0) zoom(steps, anchor);
}

}  // namespace norvex
