#include "ui/print/page_layout_preview.h"

#include <QPainter>

#include <cmath>

#include "base/localized_string.h"

namespace norvex {
namespace {

constexpr double kBorder = 14;
const QColor kShadow(0, 0, 0, 40), kEdge(0, 0, 0, 90), kMargin(90, 140, 220), kLine(150, 150, 150);
const QColor kPicture(222, 232, 246), kPictureEdge(120, 150, 200);

/// Points of the sheet, y up → widget.
QTransform sheetToWidget(const QRectF& paper, const QSizeF& sheet) {
  const double scale = paper.width() / sheet.width();
  return QTransform(scale, 0, 0, -scale, paper.left(), paper.bottom());
}

}  // namespace

PageLayoutPreview::PageLayoutPreview(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAccessibleName(localizedString("Preview of the page"));
}

void PageLayoutPreview::setPage(const Pagination& pages, int page) {
  const bool otherPaper = pages.sheet != pages_.sheet;
  pages_ = pages;
  page_ = page;
  problem_.clear();
  setAccessibleDescription(localizedString("Page %1 of %2").arg(page).arg(pages.tiles.size()));
  update();
  if (otherPaper) {
    image_ = {};
    emit resized();
  }
}

void PageLayoutPreview::setProblem(const QString& sentence) {
  problem_ = sentence;
  setAccessibleDescription(sentence);
  update();
}

void PageLayoutPreview::setImage(const QImage& image) {
  image_ = image;
  update();
}

QRectF PageLayoutPreview::paperRect() const {
  const QRectF room = QRectF(rect()).adjusted(kBorder, kBorder, -kBorder, -kBorder);
  if (pages_.sheet.isEmpty() || room.isEmpty()) return {};
  const QSizeF size = pages_.sheet.scaled(room.size(), Qt::KeepAspectRatio);
  const QPointF corner = room.center() - QPointF(size.width() / 2, size.height() / 2);
  return QRectF(QPointF(std::round(corner.x()), std::round(corner.y())),
                QSizeF(std::round(size.width()), std::round(size.height())));
}

QSize PageLayoutPreview::paperPixels() const {
  return (paperRect().size() * devicePixelRatioF()).toSize();
}

void PageLayoutPreview::resizeEvent(QResizeEvent*) {
  emit resized();
}

void PageLayoutPreview::drawSketch(QPainter& painter, const QRectF& paper) const {
  const QTransform place = sheetToWidget(paper, pages_.sheet);
  const QRectF target = pages_.tiles.value(page_ - 1).target;
  if (!target.isEmpty()) {
    const QRectF drawn = place.mapRect(target);
    painter.fillRect(drawn, kPicture);
    painter.setPen(QPen(kPictureEdge, 0));
    painter.drawRect(drawn);
    painter.drawLine(drawn.topLeft(), drawn.bottomRight());
    painter.drawLine(drawn.topRight(), drawn.bottomLeft());
  }
  const auto line = [&](const std::optional<QRectF>& rect, bool atRight) {
    if (!rect) return;
    QRectF drawn = place.mapRect(*rect);
    drawn.setTop(drawn.center().y() - 1);
    drawn.setHeight(2);
    const double length = drawn.width() * 0.4;
    painter.fillRect(atRight ? QRectF(drawn.right() - length, drawn.top(), length, 2)
                             : QRectF(drawn.left(), drawn.top(), length, 2),
                     kLine);
  };
  line(pages_.header, true);
  line(pages_.footer, false);
}

void PageLayoutPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF paper = paperRect();
  if (!problem_.isEmpty() || paper.isEmpty()) {
    painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, problem_);
    return;
  }
  painter.fillRect(paper.translated(2, 3), kShadow);
  painter.fillRect(paper, Qt::white);
  if (image_.isNull())
    drawSketch(painter, paper);
  else
    painter.drawImage(paper, image_);
  painter.setPen(QPen(kMargin, 0, Qt::DashLine));
  const QRectF imageable = sheetToWidget(paper, pages_.sheet).mapRect(pages_.imageable);
  if (imageable.width() < paper.width() - 1 || imageable.height() < paper.height() - 1)
    painter.drawRect(imageable);
  painter.setPen(QPen(kEdge, 0));
  painter.drawRect(paper);
}

}  // namespace norvex
