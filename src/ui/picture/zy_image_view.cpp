#include "ui/picture/zy_image_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "base/background_work.h"
#include "picture/image_rep.h"
#include "ui/style/checkerboard.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

constexpr double kMargin = 8;

}  // namespace

ZyImageView::ZyImageView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

ZyImageView::~ZyImageView() {
  cancel_.cancel();
}

void ZyImageView::setUseBackgroundColor(bool use) {
  useBackground_ = use;
  update();
}

void ZyImageView::setBackgroundColor(const QColor& color) {
  background_ = color;
  update();
}

void ZyImageView::setCompositingOperation(int operation) {
  operation_ = operation;
  update();
}

void ZyImageView::setImageFrameStyle(int style) {
  frameStyle_ = style;
  update();
}

void ZyImageView::setImage(const QImage& image) {
  cancel_.cancel();
  rep_.reset();
  image_ = image;
  update();
}

void ZyImageView::setImageRep(const std::shared_ptr<NSImageRep>& rep) {
  setImage({});
  rep_ = rep;
  renderRep();
}

QRectF ZyImageView::fitted(QSizeF size) const {
  const QRectF area = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  if (size.isEmpty() || area.isEmpty()) return {};
  const double scale = std::min(area.width() / size.width(), area.height() / size.height());
  const QSizeF shown = size * scale;
  return {area.center() - QPointF(shown.width() / 2, shown.height() / 2), shown};
}

void ZyImageView::renderRep() {
  cancel_.cancel();
  if (!rep_) return;
  const QSizeF size = rep_->size();
  const double scale = fitted(size).width() * devicePixelRatioF() / size.width();
  if (!(scale > 0)) return;
  cancel_ = CancelToken();
  workInBackground(
      this,
      [rep = rep_, scale, cancel = cancel_] {
        // It may come before the picture itself, and then it is what runs a program that may be stopped.
        return rep->rasterImage(scale, RenderPurpose::View, cancel);
      },
      [this, cancel = cancel_](const Result<QImage>& result) {
        // The document window tells what went wrong with the picture.
        if (cancel.cancelled() || !result) return;
        image_ = *result;
        update();
      });
}

void ZyImageView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (rep_) renderRep();
}

void ZyImageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  QPainterPath outline;
  outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
  painter.setClipPath(outline);
  if (useBackground_)
    painter.fillRect(rect(), background_);
  else
    drawCheckerboard(painter, rect(), palette());
  if (!image_.isNull()) {
    if (operation_ == Copy) painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(fitted(rep_ ? rep_->size() : QSizeF(image_.size())), image_);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  painter.setClipping(false);
  QColor line = palette().color(QPalette::WindowText);
  line.setAlphaF(frameStyle_ == GrayBezel ? 0.25f : 0.12f);
  painter.setPen(line);
  painter.drawPath(outline);
}

}  // namespace norvex
