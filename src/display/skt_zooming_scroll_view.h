// SKTZoomingScrollView: the scroll view around the picture, with its zoom menu, as geometry and bindings; no
// widget.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QTransform>
#include <QVariantMap>

#include <memory>
#include <optional>

#include "display/clip_view.h"
#include "display/factor_pop_up.h"
#include "display/property_binding.h"

namespace norvex {

class NorvexView;

/// Name of the bindable value.
inline constexpr char factorBindingName[] = "factor";
/// Name of the notification, which is the signal of the same meaning below.
inline constexpr char ZoomingScrollViewFactorDidChange[] = "ZoomingScrollViewFactorDidChange";

/// Where the horizontal scroll bar and the pop-up at its left end go.
struct TiledBar {
  QRectF bar;
  QRectF popUp;  ///< at (-1000, -1000), out of sight, where the bar is too short for it
};

/// Main thread only.
class SKTZoomingScrollView final : public QObject {
  Q_OBJECT
  Q_PROPERTY(double factor READ factor WRITE setFactor)
 public:
  explicit SKTZoomingScrollView(QObject* parent = nullptr) : QObject(parent) {}

  /// Makes the pop-up unless it is there. tile() and bind() for "factor" call it.
  void validateFactorPopUpButton();
  /// Null before the pop-up was needed. Owned by the scroll view.
  [[nodiscard]] FactorPopUp* factorPopUpButton() const { return factorPopUpButton_.get(); }

  /// 0 until it is set for the first time.
  [[nodiscard]] double factor() const { return factor_; }
  /// Stores the factor, tells it, then rescales the clip view, around its centre or the pointer (see zoom()).
  void setFactor(double factor);

  /// Lets the property `binding` of this object follow the property `withKeyPath` of `toObject`. For "factor"
  /// the pop-up's selection is linked to it as well, which also writes it. There are no options. A second
  /// binding of a name takes the place of the first.
  void bind(const QByteArray& binding, QObject* toObject, const QByteArray& withKeyPath,
            const QVariantMap& options = {});
  void unbind(const QByteArray& binding);

  /// Divides the horizontal bar's rectangle between the bar and the pop-up of size `popUp`. The vertical bar
  /// has no accessories and stays as it is.
  [[nodiscard]] TiledBar tile(const QRectF& horizontalBar, const QSizeF& popUp);

  /// Shows `view` (not owned, its frame's origin at (0, 0)) in a clip view; null: there is no clip view.
  void setDocumentView(NorvexView* view);
  /// Null without a document view.
  [[nodiscard]] ClipView* clipView() { return clipView_ ? &*clipView_ : nullptr; }
  /// The document view's frame changed.
  void documentFrameDidChange();
  /// The visible part in the document view's own coordinates.
  [[nodiscard]] QRectF documentViewVisibleRect() const;
  /// The document view's coordinates to the clip view's frame coordinates (points, y down).
  [[nodiscard]] QTransform documentViewToClip() const;
  /// The other way, for one point.
  [[nodiscard]] QPointF clipToDocumentView(const QPointF& point) const;

  /// Goes `steps` items up or down the table, keeping what is under `anchor` (clip view's frame coordinates)
  /// in its place.
  void zoom(int steps, const std::optional<QPointF>& anchor = std::nullopt);
  /// Zooms to any factor, through the binding where there is one.
  void zoomTo(double factor, const std::optional<QPointF>& anchor = std::nullopt);
  /// A wheel turned with Ctrl held, in eighths of a degree; 120 of them are one step.
  void wheelZoom(int angleDelta, const QPointF& anchor);

 signals:
  void zoomingScrollViewFactorDidChange();

 private:
  std::unique_ptr<FactorPopUp> factorPopUpButton_;
  double factor_ = 0;
  QHash<QByteArray, std::shared_ptr<PropertyBinding>> bindings_;
  NorvexView* documentView_ = nullptr;
  std::optional<ClipView> clipView_;
  std::optional<QPointF> anchor_;
  int wheel_ = 0;
};

}  // namespace norvex
