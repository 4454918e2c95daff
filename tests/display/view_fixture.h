// What most tests of this folder need: a view in a memory host, a delegate that keeps what it is told, and a
// picture that draws at once.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <memory>

#include "display/memory_view_host.h"
#include "display/norvex_view.h"
#include "display/norvex_view_delegate.h"
#include "picture/image_rep.h"
#include "picture/process/memory_picture_service.h"

namespace norvex::kit {

/// Four quarters of plain colour: red at the lower left, green at the lower right, blue at the upper left,
/// white at the upper right.
class QuarteredImageRep final : public NSImageRep {
 public:
  explicit QuarteredImageRep(const QSizeF& size, PictureKind kind = PictureKind::Eps)
      : QuarteredImageRep(size, kind, std::make_shared<MemoryPictureProcess>(QByteArray(), MemoryPicture())) {
  }
  QuarteredImageRep(const QSizeF& size, PictureKind kind, std::shared_ptr<MemoryPictureProcess> process)
      : NSImageRep(kind, QByteArray(), process), memory(process), size_(size) {}

  [[nodiscard]] QSizeF size() const override { return size_; }
  void draw(QPainter& painter) override {
    ++drawings;
    if (dead) return;
    const double w = size_.width() / 2, h = size_.height() / 2;
    painter.fillRect(QRectF(0, 0, w, h), Qt::red);
    painter.fillRect(QRectF(w, 0, w, h), Qt::green);
    painter.fillRect(QRectF(0, h, w, h), Qt::blue);
    painter.fillRect(QRectF(w, h, w, h), Qt::white);
  }

  std::shared_ptr<MemoryPictureProcess> memory;
  int drawings = 0;
  bool dead = false;  ///< its process died: there is nothing to draw

 private:
  QSizeF size_;
};

/// Adds "report START|END|AREA" to the host's calls.
class RecordingDelegate final : public NorvexViewDelegate {
 public:
  explicit RecordingDelegate(QStringList* calls) : calls_(calls) {}

  [[nodiscard]] bool respondsToSelectedRangeStrings() const override { return responds; }
  [[nodiscard]] bool dialKnobClockwise() const override { return clockwise; }
  void norvexView(NorvexView&, const QString& start, const QString& end, const QString& area) override {
    last = {start, end, area};
    ++reports;
    *calls_ << QStringLiteral("report ") + last.join('|');
  }

  bool responds = true;
  bool clockwise = false;
  QStringList last;
  int reports = 0;

 private:
  QStringList* calls_;
};

/// A view of a 200 × 100 picture, rotated to 0, everything visible, one pixel a point.
struct ViewFixture {
  explicit ViewFixture(const QSizeF& size = QSizeF(200, 100), double pixelsPerPoint = 1)
      : scale(pixelsPerPoint) {
    rep = std::make_shared<QuarteredImageRep>(size);
    view.setHost(&host);
    view.setDelegate(&delegate);
    view.setImageRep(rep);
    view.setImageSize(size);
    view.setRotate(0, false);
    host.visible = view.bounds();
    host.paint = [this](const QRectF&) { paint(); };
    host.calls.clear();
  }

  /// Draws the whole view as on a screen, on black, and keeps the image.
  QImage paint(DrawingDestination destination = DrawingDestination::Screen) {
    const QRectF bounds = view.bounds();
    image =
        QImage((bounds.size() * scale).toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setTransform(
        QTransform(scale, 0, 0, -scale, -bounds.x() * scale, (bounds.y() + bounds.height()) * scale));
    view.drawRect(painter, bounds, destination);
    return image;
  }

  /// A drag from nowhere over `points`, released at the last one.
  void drag(const QList<QPointF>& points) {
    if (!view.mouseDown()) return;
    for (const QPointF& point : points) view.mouseDragged(point);
    view.mouseUp(points.last());
  }
  void click(const QPointF& point) {
    if (view.mouseDown()) view.mouseUp(point);
  }

  MemoryViewHost host;
  RecordingDelegate delegate{&host.calls};
  std::shared_ptr<QuarteredImageRep> rep;
  NorvexView view;
  double scale;
  QImage image;
};

}  // namespace norvex::kit
