#include "window/viewing/sticky_fit.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QScopedValueRollback>

#include "base/localized_string.h"
#include "display/skt_zooming_scroll_view.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/followed_action.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

/// Of the factor: less room to spare is the rounding of the window to pixels, which would be followed for
/// ever.
constexpr double kSame = 0.004;
/// Of the factor: more than this too large, and there would be a scroll bar for a pixel.
constexpr double kHair = 1e-6;

}  // namespace

StickyFit::StickyFit(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

QAction* StickyFit::setUp(QAction& fit) {
  auto* width = new QAction(localizedString("Fit &Width"), parts_.mainWindow());
  width->setObjectName(QStringLiteral("fitWidthAction"));
  width->setShortcut(Qt::CTRL | Qt::Key_8);
  enableWith(*width, fit);
  connect(&fit, &QAction::triggered, this, [this] { keep(KeptFit::Whole); });
  connect(width, &QAction::triggered, this, [this] { keep(KeptFit::Width); });
  connect(parts_.zoomingScrollView(), &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, this,
          &StickyFit::zoomDidChange);
  parts_.scrollArea()->installEventFilter(this);
  return width;
}

double StickyFit::factor() const {
  const ZoomingScrollArea& area = *parts_.scrollArea();
  return kept_ == KeptFit::Whole ? area.fittingFactor() : area.fittingWidthFactor();
}

void StickyFit::keep(KeptFit kept) {
  kept_ = kept;
  fitAgain();
}

void StickyFit::zoomDidChange() {
  if (!fitting_) kept_ = KeptFit::Nothing;
}

void StickyFit::fitAgain() {
  if (kept_ == KeptFit::Nothing || fitting_ || !parts_.validateUserInterfaceItem()) return;
  const QScopedValueRollback<bool> fitting(fitting_, true);
  const double wanted = factor(), spare = wanted - parts_.zoomFactor();
  if (spare > kSame * wanted || spare < -kHair * wanted) parts_.zoomingScrollView()->zoomTo(wanted);
}

bool StickyFit::eventFilter(QObject* watched, QEvent* event) {
  // From the event loop: the scroll area lays itself out first.
  if (event->type() == QEvent::Resize)
    QMetaObject::invokeMethod(this, &StickyFit::fitAgain, Qt::QueuedConnection);
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
