#include "window/commands/side_room.h"

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>

#include <algorithm>

#include "window/commands/window_parts.h"
#include "window/commands/window_sizing_command.h"

namespace norvex {

void SideRoom::show(QDockWidget& panel, bool shown) {
  QMainWindow& window = *parts_.mainWindow();
  if (panel.isVisibleTo(&window) == shown) return;
  sizing_.settleLayout();
  const QRect before = window.geometry();
  const int picture = window.centralWidget()->width();
  panel.setVisible(shown);
  if (!window.isVisible()) return giveUnseen(picture);
  window.layout()->activate();
  const bool comesBack = !shown && before.size() == grown_.size();
  // The panel takes half of the window at most.
  const int panelsShare = shown && fit_ ? 2 * panel.minimumSizeHint().width() : 0;
  give(comesBack ? pictureBefore_ : picture, std::max(window.minimumSizeHint().width(), panelsShare));
  sizing_.windowDidGrow(before.size());
  const bool goesBack = comesBack && before == grown_ && before_.size() == window.size();
  sizing_.put(goesBack ? before_ : window.geometry());
  if (!shown) return;
  before_ = before;
  grown_ = window.geometry();
  pictureBefore_ = picture;
}

void SideRoom::giveUnseen(int picture) {
  QMainWindow& window = *parts_.mainWindow();
  const QSize before = window.size();
  sizing_.settleLayout();
  // Larger than it may be: the rule bounds it when the picture is known.
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  window.resize(window.width() + picture - window.centralWidget()->width(), window.height());
  sizing_.windowDidGrow(before);
}

void SideRoom::give(int picture, int least) {
  QMainWindow& window = *parts_.mainWindow();
  sizing_.apply();
  if (window.isMaximized() || window.isFullScreen()) return;
  const int most = std::max(least, sizing_.most().width());
  // A wider window gives a panel more, up to the width it likes, and is bounded anew: it is done in steps.
  for (int step = 0; step < 3; ++step) {
    const int wanted = window.width() + picture - window.centralWidget()->width();
    window.resize(std::clamp(wanted, least, most), window.height());
    window.layout()->activate();
    if (fit_) fit_();
    sizing_.apply();
  }
}

}  // namespace norvex
