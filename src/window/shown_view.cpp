#include "window/shown_view.h"

#include <utility>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "display/skt_zooming_scroll_view.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_sizing_command.h"
#include "window/main_window_controller.h"
#include "window/viewing/pages_command.h"
#include "window/viewing/sticky_fit.h"

namespace norvex {

void ShownView::reset() {
  MainWindowController& c = controller_;
  // The page numbers take room at the window's foot, which the rule measures.
  if (auto* pages = c.findChild<PagesCommand*>()) pages->documentDidChange();
  c.rotateField()->setDoubleValue(0.0);
  c.rotateChange(0.0);
  c.viewWidget()->setToolTip(localizedString("Selection is determined by dragging the mouse twice."));
  if (!std::exchange(followsFactor_, true)) {
    // While the factor changes the clip is still scaled as before; the rule needs the factor alone.
    QObject::connect(c.zoomingScrollView(), &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, &c,
                     &MainWindowController::setWindowSize);
  }
  c.setZoomFactor(1.0);
  c.setWindowSize();
  c.zoomingScrollView()->bind(factorBindingName, &c, "zoomFactor");
  c.scrollArea()->scrollToTop();
  // The same angle and size report nothing, and the fields that tell a selection were emptied.
  if (!c.view()->selectRect().isEmpty()) c.view()->infoSelectedArea();
}

void ShownView::takeFirst() {
  const std::optional<PictureView> first = std::exchange(first_, std::nullopt);
  if (!first || !controller_.validateUserInterfaceItem()) return;
  controller_.dialKnob()->turnTo(first->degrees);
  if (first->fit == KeptFit::Nothing) controller_.zoomingScrollView()->zoomTo(first->zoom);
  if (auto* pages = controller_.findChild<PagesCommand*>()) pages->show(first->page);
  if (first->fit == KeptFit::Nothing) return;
  sizing_.settleLayout();
  controller_.findChild<StickyFit*>()->keep(first->fit);
}

std::optional<PictureView> ShownView::now() const {
  const MainWindowController& c = controller_;
  if (!c.validateUserInterfaceItem()) return std::nullopt;
  return PictureView{c.zoomFactor(), c.dialKnob()->degreeValue(), c.view()->imageRep()->page(),
                     c.findChild<StickyFit*>()->kept()};
}

}  // namespace norvex
