#include "window/commands/side_room.h"

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>

#include "window/commands/window_parts.h"
#include "window/commands/window_sizing_command.h"

namespace norvex {

void SideRoom::show(QDockWidget& panel, bool shown) {
  QMainWindow& window = *parts_.mainWindow();
  if (panel.isVisibleTo(&window) == shown) return;
  sizing_.settleLayout();
  const QRect before(window.pos(), window.size());
  const int picture = window.centralWidget()->width();
  panel.setVisible(shown);
  if (!window.isVisible()) return giveUnseen(picture);
  window.layout()->activate();
  const bool comesBack = !shown && before.size() == grown_.size();
  // The panel takes half of the window at most.
  const int panelsShare = shown && fit_ ? 2 * panel.minimumSizeHint().width() : 0;
  give(comesBack ? pictureBefore_ : picture, std::max(window.minimumSizeHint().width(), panelsShare));
  if (comesBack && before.topLeft() == grown_.topLeft() && before_.size() == window.size())
    window.move(before_.topLeft());
  sizing_.windowDidGrow(before.size());
  if (!shown) return;
  before_ = before;
  grown_ = QRect(window.pos(), window.size());
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
  const QRect screen = window.screen()->availableGeometry();
  const int around = window.frameGeometry().width() - window.width();
  // A wider window gives a panel more, up to the width it likes, and is bounded anew: it is done in steps.
  for (int step = 0; step < 3; ++step) {
    const int wanted = window.width() + picture - window.centralWidget()->width();
    window.resize(std::clamp(wanted, least, std::max(least, screen.width() - around)), window.height());
    window.layout()->activate();
    if (fit_) fit_();
    sizing_.apply();
  }
  const int beyond = window.x() + window.width() + around - 1 - screen.right();
  if (beyond > 0) window.move(std::max(screen.left(), window.x() - beyond), window.y());
}

}  // namespace norvex
