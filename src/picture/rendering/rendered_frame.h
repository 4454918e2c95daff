// RenderedFrame: which layer fills which pixels of one frame.
#pragma once

#include <QList>
#include <QRect>
#include <QRegion>
#include <QSizeF>
#include <QTransform>

#include "picture/rendering/rendered_layer.h"

class QPainter;

namespace norvex {

/// From front to back it is decided who fills what, then it is painted from back to front: along their edges
/// the layers overlap by a pixel instead of leaving one open. Device pixels, y down. The layers must outlive
/// it. One thread at a time.
class RenderedFrame {
 public:
  RenderedFrame(const QTransform& pictureToDevice, const QRect& visibleDeviceRect, const QSizeF& pictureSize);

  /// Puts a layer behind those that were added; pixel for pixel where it fits the view, otherwise scaled or
  /// turned. Does nothing when it shows nothing that is still open.
  void add(const RenderedLayer& layer);
  /// How many scaled or turned layers there are.
  [[nodiscard]] int standIns() const { return int(parts_.size()) - exact_; }
  /// How many pixels scaled or turned layers fill.
  [[nodiscard]] qint64 standInPixels() const { return standInPixels_; }

  /// The painter's transform is the identity on device pixels.
  void paint(QPainter& painter, Sampling sampling = Sampling::Smooth) const;

 private:
  struct Part {
    const RenderedLayer* layer;
    bool exact;
    QRegion region;
  };
  QTransform transform_;
  QSizeF size_;
  QRegion open_;  ///< where something behind may be painted
  /// Where something must be. What is thinner than two pixels at the picture's own edge does not count: it
  /// would cost the drawing of a whole layer.
  QRegion missing_;
  QList<Part> parts_;
  int exact_ = 0;
  qint64 standInPixels_ = 0;
};

}  // namespace norvex
