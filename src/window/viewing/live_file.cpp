#include "window/viewing/live_file.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>

#include <utility>

#include "display/norvex_view.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"
#include "window/viewing/pages_command.h"
#include "window/viewing/selection_history.h"
#include "window/viewing/sticky_fit.h"
#include "window/viewing/view_choices.h"

namespace norvex {
LiveFile::LiveFile(WindowParts& parts, PagesCommand& pages, StickyFit& fit, QObject* parent)
    : QObject(parent), parts_(parts), pages_(pages), fit_(fit) {}

QAction* LiveFile::makeAction() {
  return ViewChoices::shared().makeAction(ViewChoices::ReloadByItself, "Reload Changed Files b&y Itself",
                                          "reloadByItselfAction", parts_.mainWindow());
}

bool LiveFile::reloadsByItself() const {
  if (!ViewChoices::shared().isOn(ViewChoices::ReloadByItself) || !parts_.validateUserInterfaceItem())
    return false;
  if (!parts_.mainWindow()->isVisible()) return false;
  using Kind = WindowWork::Kind;
  const WindowWork& work = parts_.work();
  const bool works =
      work.isUnderWay(Kind::Reading) || work.isUnderWay(Kind::Copying) || work.isUnderWay(Kind::Writing);
  const bool busy = works || parts_.view()->selection().tracking() || QApplication::activeModalWidget() ||
                    !parts_.mainWindow()->isEnabled();
  return !busy;
}

void LiveFile::reloadInPlace(const std::function<void()>& reload) {
  if (parts_.validateUserInterfaceItem())
    place_ = Place{pages_.shown(), parts_.dialKnob()->degreeValue(),    parts_.zoomFactor(),
                   fit_.kept(),    parts_.scrollArea()->scrollOffset(), parts_.view()->selectRect()};
  reload();
}

void LiveFile::documentDidChange() {
  const std::optional<Place> place = std::exchange(place_, std::nullopt);
  if (!place || !parts_.validateUserInterfaceItem()) return;
  pages_.show(place->page);
  parts_.dialKnob()->turnTo(place->degrees);
  parts_.zoomingScrollView()->zoomTo(place->zoom);
  fit_.keep(place->fit);
  parts_.scrollArea()->setScrollOffset(place->offset);
  if (!place->selected.isEmpty()) selectRectangle(*parts_.view(), place->selected);
}

}  // namespace norvex
