// NorvexRenderingView: a picture as it is printed, made for one print job.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <optional>

#include "display/page_header_footer.h"
#include "picture/image_rep.h"

class QPainter;

namespace norvex {

/// Coordinates: points, y up, origin at the frame's lower-left corner, where the picture's own origin lies
/// too. The fields are set before the job starts; drawRect, the page lines and the titles are then read from
/// any thread.
class NorvexRenderingView {
 public:
  /// `imageRep` is not owned and outlives the view; without one the pages are blank.
  NorvexRenderingView(const QRectF& frame, NSImageRep* imageRep) : frame_(frame), imageRep_(imageRep) {}

  [[nodiscard]] const QRectF& frame() const { return frame_; }
  [[nodiscard]] QRectF bounds() const { return {QPointF(0, 0), frame_.size()}; }
  [[nodiscard]] bool drawsBackground() const { return false; }
  [[nodiscard]] bool isOpaque() const { return false; }
  [[nodiscard]] bool knowsPageRange() const { return false; }

  [[nodiscard]] NSImageRep* imageRep() const { return imageRep_; }
  void setImageRep(NSImageRep* imageRep) { imageRep_ = imageRep; }
  [[nodiscard]] const QString& title() const { return title_; }
  void setTitle(const QString& title) { title_ = title; }
  [[nodiscard]] const QString& printJobTitle() const { return printJobTitle_; }
  void setPrintJobTitle(const QString& title) { printJobTitle_ = title; }

  /// Draws the picture at its natural size and nothing else. The painter maps view coordinates to the device.
  void drawRect(QPainter& painter, const QRectF& dirty) const;

  [[nodiscard]] std::optional<PageLine> pageHeader() const;
  [[nodiscard]] std::optional<PageLine> pageFooter() const;
  /// The drawing inside `rect` as one page of that size, as vectors. Blocks for the picture process.
  [[nodiscard]] Result<PictureBytes> composeInsideRect(VectorFormat format, const QRectF& rect,
                                                       const CancelToken& cancel = {}) const;
  /// The same as bytes; empty when there are none.
  [[nodiscard]] QByteArray dataWithPDFInsideRect(const QRectF& rect) const;
  [[nodiscard]] QByteArray dataWithEPSInsideRect(const QRectF& rect) const;

 private:
  QRectF frame_;
  NSImageRep* imageRep_;
  QString title_, printJobTitle_;
};

}  // namespace norvex
