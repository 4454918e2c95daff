// NorvexView: the picture, turned about its centre, with the selection over it.
#pragma once

#include <QByteArray>
#include <QMetaObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <Qt>

#include <memory>
#include <optional>

#include "display/page_header_footer.h"
#include "display/selection.h"
#include "picture/image_rep.h"

class QPainter;

namespace norvex {

class NorvexViewDelegate;
class ViewHost;

/// Where a drawing goes. The selection is drawn on screens only.
enum class DrawingDestination { Screen, Printer, Data };

/// The view's state and behaviour without a widget; a ViewHost shows it.
///
/// View coordinates: points, y up; after setRotate() the bounds are as large as the frame and centred on (0,
/// 0), the picture's centre. Rectangles are QRectF whose x and y are the lower-left corner. Main thread only,
/// except drawRect (other than to a screen), pageHeader, pageFooter, printJobTitle and the three …InsideRect
/// operations, which read what does not change while a print job or an export runs.
class NorvexView {
 public:
  static constexpr double unsetRotation =
      3.4028234663852886e38;  ///< differs from every angle that is asked for

  explicit NorvexView(const QRectF& frame = {});
  ~NorvexView();
  NorvexView(const NorvexView&) = delete;
  NorvexView& operator=(const NorvexView&) = delete;

  /// Takes every field back to its start: no picture, no title, no selection, not rotated yet. The
  /// constructor calls it.
  void awakeFromNib();

  // ---- what shows the view and who is told
  // -------------------------------------------------------------------------
  void setHost(ViewHost* host) {
    host_ = host;
  }  ///< not owned; without one nothing is displayed, all else works
  void setDelegate(NorvexViewDelegate* delegate);
  [[nodiscard]] bool delegateFlag() const { return delegateFlag_; }
  void setDelegateFlag(bool flag) { delegateFlag_ = flag; }

  // ---- fields
  // ------------------------------------------------------------------------------------------------------
  [[nodiscard]] const QString& title() const {
    return title_;
  }  ///< footer text; null: neither header nor footer
  void setTitle(const QString& title) { title_ = title; }
  [[nodiscard]] const QString& printJobTitle() const { return printJobTitle_; }
  void setPrintJobTitle(const QString& title) { printJobTitle_ = title; }
  [[nodiscard]] double rotate() const { return rotate_; }  ///< radians, counter-clockwise, 0 … 2π
  [[nodiscard]] double precisionX() const { return precisionX_; }
  [[nodiscard]] double precisionY() const { return precisionY_; }
  [[nodiscard]] const QRectF& selectRect() const { return selection_.rect(); }
  [[nodiscard]] const Selection& selection() const { return selection_; }
  [[nodiscard]] const QPointF& downPoint() const { return selection_.downPoint(); }
  [[nodiscard]] const QRectF& coordinateRect() const { return coordinateRect_; }
  void setCoordinateRect(const QRectF& rect) { coordinateRect_ = rect; }
  [[nodiscard]] double scaleX() const { return scaleX_; }
  [[nodiscard]] double scaleY() const { return scaleY_; }
  void setScaleX(double scale) { scaleX_ = scale; }
  void setScaleY(double scale) { scaleY_ = scale; }
  [[nodiscard]] const QSizeF& imageSize() const { return imageSize_; }  ///< unrotated, points
  /// The frame follows with the next setRotate(), be it to the angle that the view has already.
  void setImageSize(const QSizeF& size);
  [[nodiscard]] bool flippedCoordinate() const { return flippedCoordinate_; }
  void setFlippedCoordinate(bool flipped) { flippedCoordinate_ = flipped; }
  [[nodiscard]] const std::shared_ptr<NSImageRep>& imageRep() const { return imageRep_; }
  void setImageRep(std::shared_ptr<NSImageRep> imageRep);
  /// Right, up, left and down as the platform's function characters.
  [[nodiscard]] const QString& arrowKeysString() const { return arrowKeysString_; }
  /// Picture points of the selection's origin and of the corner opposite, as last drawn.
  [[nodiscard]] const QPointF& topLeft() const { return topLeft_; }
  [[nodiscard]] const QPointF& bottomRight() const { return bottomRight_; }

  // ---- geometry
  // ----------------------------------------------------------------------------------------------------
  [[nodiscard]] const QRectF& frame() const {
    return frame_;
  }  ///< in the scroll view's document coordinates, y up
  [[nodiscard]] const QRectF& bounds() const { return bounds_; }
  [[nodiscard]] QRectF visibleRect() const;  ///< the host's answer; the bounds without a host
  void setFrameSize(const QSizeF& size);
  /// Turns the picture by `angle` radians; `clockwise` is the sense in which the angle was measured. The
  /// selection is cut back to the new bounds and reported again. The caller sizes the window afterwards.
  void setRotate(double angle, bool clockwise);

  // ---- drawing
  // -----------------------------------------------------------------------------------------------------
  /// Draws picture and selection. The painter's transform maps view coordinates to the device. Draws no
  /// background.
  void drawRect(QPainter& painter, const QRectF& dirty, DrawingDestination destination);
  [[nodiscard]] bool isOpaque() const { return false; }
  void resetCursorRects();

  // ---- selection
  // ---------------------------------------------------------------------------------------------------
  [[nodiscard]] bool acceptsFirstResponder() const { return false; }
  bool acceptsFirstMouse();
  /// The left button went down. What follows comes through mouseDragged and mouseUp, in view coordinates as
  /// they were before any scrolling that the event causes. False: the press is ignored, as will be what
  /// follows it.
  bool mouseDown();
  /// The left button went down on a handle that holds those edges of the selected rectangle. False: there is
  /// none, and what follows is ignored.
  bool mouseDownOnHandle(Qt::Edges edges, const QPointF& point);
  void mouseDragged(const QPointF& point);
  void mouseUp(const QPointF& point);
  /// A tick of ViewHost::setPeriodicEvents: once the pointer was dragged, counts as a drag while `point` lies
  /// outside the visible part. A press that is only held stays a click, however long it takes.
  void periodicEvent(const QPointF& point);
  /// The pointer was lost during a drag: the drag ends as if the button had been released where it was last
  /// seen.
  void endTracking();
  void clearSelectRect();
  void selectBounds();
  /// Draws the overlay in picture coordinates and refreshes topLeft and bottomRight. The number is not used.
  void drawDraggedLine(QPainter& painter, int unused);
  /// Tells the delegate what is selected.
  void infoSelectedArea();
  /// Arrow keys on an existing rectangle: moves it by `step` points, or moves its upper right corner. False:
  /// nothing changed, and nothing was displayed or told.
  bool moveSelection(const QPointF& step);
  bool resizeSelection(const QPointF& step);

  // ---- printing and vector output
  // ----------------------------------------------------------------------------------
  [[nodiscard]] bool knowsPageRange() const { return false; }
  [[nodiscard]] std::optional<PageLine> pageHeader() const;
  [[nodiscard]] std::optional<PageLine> pageFooter() const;
  /// The drawing inside `rect` (view coordinates) as one page of that size, as vectors. Blocks for the
  /// picture process.
  [[nodiscard]] Result<PictureBytes> composeInsideRect(VectorFormat format, const QRectF& rect,
                                                       const CancelToken& cancel = {}) const;
  /// The same as bytes; empty when there are none.
  [[nodiscard]] QByteArray dataWithPDFInsideRect(const QRectF& rect) const;
  [[nodiscard]] QByteArray dataWithEPSInsideRect(const QRectF& rect) const;

 private:
  void displayAndReport(const QRectF& rect);
  void trackEvent(const QPointF& point, bool dragged);
  void refreshCorners();

  QString title_, printJobTitle_;
  double rotate_ = unsetRotation;
  double precisionX_ = 0, precisionY_ = 0;
  Selection selection_;
  QRectF coordinateRect_;
  double scaleX_ = 1, scaleY_ = 1;
  QSizeF imageSize_{0, 0};
  bool imageSizeIsNew_ = false;  ///< set since the frame was last made for it
  QString arrowKeysString_;
  QPointF topLeft_, bottomRight_;
  NorvexViewDelegate* delegate_ = nullptr;
  ViewHost* host_ = nullptr;
  bool flippedCoordinate_ = false;
  bool delegateFlag_ = false;
  std::shared_ptr<NSImageRep> imageRep_;
  QMetaObject::Connection renderingArrived_, renderingFailed_;
  QRectF frame_, bounds_;
};

}  // namespace norvex
