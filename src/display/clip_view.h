// ClipView: the window onto a document view, scaled and scrolled.
//
// Frame coordinates: points of the screen, origin at the clip view's upper left corner, y down.
// Document coordinates: points of the picture, origin at the document view's lower-left corner, y up.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace norvex {

/// Keeps the document inside: it is scrolled no further than its edges, and centred on an axis on which all
/// of it is visible. Sizes that are negative or not finite count as 0.
class ClipView {
 public:
  [[nodiscard]] const QSizeF& documentSize() const { return documentSize_; }
  [[nodiscard]] double scale() const { return scale_; }
  /// The visible part of the document plane: the frame's size divided by the scale.
  [[nodiscard]] const QRectF& bounds() const { return bounds_; }
  /// The same without what lies outside the document.
  [[nodiscard]] QRectF documentVisibleRect() const;

  /// Keeps the upper left corner.
  void setFrameSize(const QSizeF& size);
  /// Keeps what is shown in its place relative to the document's centre.
  void setDocumentSize(const QSizeF& size);
  /// Keeps the document point under `anchor` (frame coordinates). Ignores what is not a positive, finite
  /// number.
  void setScale(double scale, const QPointF& anchor);
  [[nodiscard]] QPointF frameCentre() const { return {frameSize_.width() / 2, frameSize_.height() / 2}; }

  /// How far the frame's upper left corner is scrolled from the document's, in frame points; 0 …
  /// scrollRange() for a document that is larger than the frame, negative for one that is centred.
  [[nodiscard]] QPointF scrollOffset() const;
  [[nodiscard]] QSizeF scrollRange() const;
  void setScrollOffset(const QPointF& offset);
  /// Scrolls as little as it takes to show `rect` (document coordinates), or as much of it as has room.
  /// Returns whether anything moved.
  bool scrollRectToVisible(const QRectF& rect);
  bool autoscroll(const QPointF& point) { return scrollRectToVisible(QRectF(point, QSizeF(0, 0))); }

  [[nodiscard]] QTransform documentToFrame() const;
  [[nodiscard]] QPointF frameToDocument(const QPointF& point) const;

 private:
  void moveTo(const QPointF& origin);

  QSizeF frameSize_{0, 0};
  QSizeF documentSize_{0, 0};
  QRectF bounds_;
  double scale_ = 1;
};

}  // namespace norvex
