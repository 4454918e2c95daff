#include "display/norvex_view.h"

#include <QPainter>

#include <iterator>
#include <utility>

#include "display/norvex_view_delegate.h"
#include "display/picture_geometry.h"
#include "display/selection_overlay.h"
#include "display/selection_report.h"
#include "display/view_compose.h"
#include "display/view_host.h"

namespace norvex {
namespace {

constexpr double pointsPerMetre = 2834.6456692913384;
constexpr char16_t arrowKeys[] = {0xF703, 0xF700, 0xF702, 0xF701};  // right, up, left, down

}  // namespace

NorvexView::NorvexView(const QRectF& frame) : frame_(frame), bounds_(QPointF(0, 0), frame.size()) {
  awakeFromNib();
}

NorvexView::~NorvexView() {
  QObject::disconnect(renderingArrived_);
  QObject::disconnect(renderingFailed_);
}

void NorvexView::awakeFromNib() {
  setImageRep(nullptr);
  title_ = QString();
  precisionX_ = precisionY_ = pointsPerMetre;
  scaleX_ = scaleY_ = 1.0;
  rotate_ = unsetRotation;
  arrowKeysString_ = QString::fromUtf16(arrowKeys, std::size(arrowKeys));
  selection_.reset(frame_.topLeft() + QPointF(frame_.width() * 0.5, frame_.height() * 0.5));
}

void NorvexView::setDelegate(NorvexViewDelegate* delegate) {
  delegate_ = delegate;
  delegateFlag_ = delegate && delegate->respondsToSelectedRangeStrings();
}

void NorvexView::setImageRep(std::shared_ptr<NSImageRep> imageRep) {
  QObject::disconnect(renderingArrived_);
  QObject::disconnect(renderingFailed_);
  imageRep_ = std::move(imageRep);
  if (!imageRep_) return;
  const auto redraw = [this] {
    if (host_) host_->setNeedsDisplay();
  };
  renderingArrived_ = QObject::connect(imageRep_.get(), &NSImageRep::renderingArrived, redraw);
  // What stood in for the picture is gone.
  renderingFailed_ = QObject::connect(imageRep_.get(), &NSImageRep::renderingFailed, redraw);
}

void NorvexView::setImageSize(const QSizeF& size) {
  // Exact, unlike QSizeF's comparison.
  if (size.width() != imageSize_.width() || size.height() != imageSize_.height()) imageSizeIsNew_ = true;
  imageSize_ = size;
}

QRectF NorvexView::visibleRect() const {
  return host_ ? host_->visibleRect() : bounds_;
}

void NorvexView::setFrameSize(const QSizeF& size) {
  frame_.setSize(size);
  bounds_.setSize(size);
  if (host_) host_->frameDidChange();
}

void NorvexView::setRotate(double angle, bool clockwise) {
  if (clockwise != flippedCoordinate_) angle = twoPi - angle;
  // A picture that was read again may have another size at the same angle.
  if (rotate_ == angle && !imageSizeIsNew_) return;
  imageSizeIsNew_ = false;
  rotate_ = normalizedAngle(angle);
  const QSizeF size = rotatedBoundingSize(imageSize_, rotate_);
  frame_.setSize(size);
  bounds_ = QRectF(QPointF(-0.5 * size.width(), -0.5 * size.height()), size);
  if (host_) host_->frameDidChange();
  if (selection_.clampInto(bounds_)) displayAndReport(bounds_);
}

void NorvexView::drawRect(QPainter& painter, const QRectF&, DrawingDestination destination) {
  const QTransform placement = pictureToView(imageSize_, rotate_);
  if (!isFinite(placement)) return;
  painter.save();
  painter.setTransform(placement, true);
  if (imageRep_) imageRep_->draw(painter);
  if (destination == DrawingDestination::Screen && selectRect().width() > 0) drawDraggedLine(painter, 2);
  painter.restore();
}

void NorvexView::resetCursorRects() {
  const QRectF visible = visibleRect();
  if (host_ && !visible.isEmpty()) host_->addCrosshairCursorRect(visible);
}

bool NorvexView::acceptsFirstMouse() {
  return host_ && host_->makeFirstResponder();
}

bool NorvexView::mouseDown() {
  if (!imageRep_ || !host_ || !host_->makeFirstResponder()) return false;
  selection_.press(bounds_);
  host_->setPeriodicEvents(true);
  return true;
}

bool NorvexView::mouseDownOnHandle(Qt::Edges edges, const QPointF& point) {
  if (!imageRep_ || !host_ || !host_->makeFirstResponder()) return false;
  if (!selection_.hold(edges, point, bounds_)) return false;
  host_->setPeriodicEvents(true);
  return true;
}

void NorvexView::mouseDragged(const QPointF& point) {
  if (selection_.tracking()) trackEvent(point, true);
}

void NorvexView::mouseUp(const QPointF& point) {
  if (!selection_.tracking()) return;
  trackEvent(point, false);
  endTracking();
}

void NorvexView::endTracking() {
  if (!selection_.tracking()) return;
  const Selection::Ending ending = selection_.release();
  if (host_) host_->setPeriodicEvents(false);
  if (ending == Selection::Ending::Clear) clearSelectRect();
  if (ending == Selection::Ending::Changed) displayAndReport(visibleRect());
}

void NorvexView::periodicEvent(const QPointF& point) {
  if (!selection_.tracking() || !selection_.sawDrag()) return;
  if (!visibleRect().contains(point)) trackEvent(point, true);
}

void NorvexView::trackEvent(const QPointF& point, bool dragged) {
  if (host_) host_->autoscroll(point);
  selection_.track(point, dragged);
  displayAndReport(visibleRect());
}

void NorvexView::clearSelectRect() {
  if (selection_.clear()) displayAndReport(visibleRect());
}

void NorvexView::selectBounds() {
  selection_.select(bounds_);
  displayAndReport(visibleRect());
}

bool NorvexView::moveSelection(const QPointF& step) {
  if (!selection_.moveBy(step, bounds_)) return false;
  if (host_) host_->scrollRectToVisible(selectRect());
  displayAndReport(visibleRect());
  return true;
}

bool NorvexView::resizeSelection(const QPointF& step) {
  if (!selection_.resizeBy(step, bounds_)) return false;
  if (host_) host_->scrollRectToVisible(selectRect());
  displayAndReport(visibleRect());
  return true;
}

/// Every change of selection or rotation ends here: the drawing first, so that the corners that are told are
/// those that are seen.
void NorvexView::displayAndReport(const QRectF& rect) {
  if (host_) host_->displayRect(rect);
  if (selectRect().width() > 0)
    refreshCorners();  // a hidden window draws nothing but is told the truth all the same
  infoSelectedArea();
}

void NorvexView::refreshCorners() {
  const QRectF& rect = selectRect();
  topLeft_ = viewToPicture(rect.topLeft(), imageSize_, rotate_);
  if (rect.height() > 0) bottomRight_ = viewToPicture(rect.bottomRight(), imageSize_, rotate_);
}

void NorvexView::drawDraggedLine(QPainter& painter, int) {
  const QRectF& rect = selectRect();
  if (rect.width() == 0 && rect.height() == 0) return;
  refreshCorners();
  const OverlayFrame frame{viewToPicture(bounds_.topLeft(), imageSize_, rotate_),
                           viewToPicture(bounds_.bottomRight(), imageSize_, rotate_)};
  if (rect.height() > 0)
    drawSelectionOutline(painter, frame, topLeft_, bottomRight_);
  else
    drawSelectionCrosshair(painter, frame, topLeft_);
}

void NorvexView::infoSelectedArea() {
  if (!delegateFlag_ || !delegate_) return;
  const SelectionReport report = delegate_->dialKnobClockwise() == flippedCoordinate_
                                     ? selectionReport(selectRect(), topLeft_, bottomRight_)
                                     : flippedSelectionReport(selectRect(), imageSize_, rotate_);
  delegate_->norvexView(*this, report.start, report.end, report.area);
}

std::optional<PageLine> NorvexView::pageHeader() const {
  return norvex::pageHeader(title_, QDateTime::currentDateTime());
}

std::optional<PageLine> NorvexView::pageFooter() const {
  return norvex::pageFooter(title_);
}

Result<PictureBytes> NorvexView::composeInsideRect(VectorFormat format, const QRectF& rect,
                                                   const CancelToken& cancel) const {
  const QPointF centre(imageSize_.width() * 0.5, imageSize_.height() * 0.5);
  return composeView(imageRep_.get(), {centre, rotate_}, format, rect, cancel);
}

QByteArray NorvexView::dataWithPDFInsideRect(const QRectF& rect) const {
  const auto made = composeInsideRect(VectorFormat::Pdf, rect);
  return made ? made->bytes : QByteArray();
}

QByteArray NorvexView::dataWithEPSInsideRect(const QRectF& rect) const {
  const auto made = composeInsideRect(VectorFormat::Eps, rect);
  return made ? made->bytes : QByteArray();
}

}  // namespace norvex
