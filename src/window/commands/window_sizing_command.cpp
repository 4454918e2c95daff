#include "window/commands/window_sizing_command.h"

#include <QApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QToolBar>
#include <QWindowStateChangeEvent>

#include "display/norvex_view.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_frames.h"
#include "window/commands/window_parts.h"

namespace norvex {

namespace {

const QString kFrameName = QStringLiteral("MainWindowController");

/// y down on the screen, y up in the rule.
QRectF upright(const QRect& rect) {
  return {double(rect.x()), double(-(rect.y() + rect.height())), double(rect.width()), double(rect.height())};
}

QRect onScreen(const QRectF& rect) {
  const int height = static_cast<int>(std::ceil(rect.height() - 1e-6));
  return {static_cast<int>(rect.x()), static_cast<int>(-rect.y()) - height,
          static_cast<int>(std::ceil(rect.width() - 1e-6)), height};
}

int limited(double length) {
  return static_cast<int>(std::ceil(std::min(length, double(QWIDGETSIZE_MAX)) - 1e-6));
}

}  // namespace

void WindowSizingCommand::settleLayout() const {
  // A hidden window does not lay its children out when it is resized, and the rule measures them.
  if (parts_.mainWindow()->isVisible()) return;
  parts_.mainWindow()->ensurePolished();
  parts_.mainWindow()->layout()->invalidate();
  parts_.mainWindow()->layout()->activate();
  if (QWidget* content = parts_.mainWindow()->centralWidget()) {
    content->layout()->invalidate();
    content->layout()->activate();
  }
}

WindowMeasures WindowSizingCommand::measures() const {
  WindowMeasures found;
  if (!parts_.mainWindow()) return found;
  settleLayout();
  found.frame = upright(parts_.mainWindow()->geometry());
  found.minimum = parts_.mainWindow()->minimumSize();
  found.visibleArea = parts_.scrollArea()->contentSize();
  const QWidget* content = parts_.mainWindow()->centralWidget();
  const int contentRectHeight =
      parts_.mainWindow()->height() -
      (parts_.menuBar->isVisibleTo(parts_.mainWindow()) ? parts_.menuBar->height() : 0);
  found.toolbarHeight = toolbarHeight(parts_.toolbar->isVisibleTo(parts_.mainWindow()), contentRectHeight,
                                      content ? std::optional<double>(content->height()) : std::nullopt);
  return found;
}

QSizeF WindowSizingCommand::maxSize(const QSizeF& size) const {
  return windowMaxSize(measures(), size);
}

void WindowSizingCommand::apply() {
  if (!parts_.mainWindow()) return;
  if (parts_.mainWindow()->isFullScreen()) {
    parts_.mainWindow()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return;
  }
  const WindowMeasures found = measures();
  const QSizeF viewSize = parts_.view() ? parts_.view()->frame().size() : QSizeF(0, 0);
  const WindowSize rule = windowSize(found, viewSize, parts_.zoomFactor());
  // This platform's maximum counts the toolbar, the rule's does not.
  parts_.mainWindow()->setMaximumSize(limited(rule.maximum.width()),
                                      limited(rule.maximum.height() + found.toolbarHeight));
  if (rule.frame == found.frame || parts_.mainWindow()->isMaximized()) return;
  // Before the window is on the screen its place is the window manager's to choose.
  if (parts_.mainWindow()->isVisible())
    parts_.mainWindow()->setGeometry(onScreen(rule.frame));
  else
    parts_.mainWindow()->resize(onScreen(rule.frame).size());
}

void WindowSizingCommand::windowStateDidChange(const QWindowStateChangeEvent& event) {
  // A full screen or a maximised window has the size it has; the rule is caught up with when that ends.
  const Qt::WindowStates large = Qt::WindowFullScreen | Qt::WindowMaximized;
  if ((event.oldState() & large) && !(parts_.mainWindow()->windowState() & large)) apply();
}

void WindowSizingCommand::restoreFrame() {
  const QRect frame = savedWindowFrame(kFrameName);
  if (!frame.isValid()) return;
  QList<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens << screen->availableGeometry();
  QList<QPoint> taken;
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other != parts_.mainWindow() && other->isVisible() && qobject_cast<const QMainWindow*>(other))
      taken << other->pos();
  const QRect place = placedOnScreens(frame, screens, taken);
  parts_.mainWindow()->resize(place.size());
  parts_.mainWindow()->move(place.topLeft());
}

void WindowSizingCommand::saveFrame() const {
  if (parts_.mainWindow()->isFullScreen() || parts_.mainWindow()->isMaximized()) return;
  saveWindowFrame(kFrameName, QRect(parts_.mainWindow()->pos(), parts_.mainWindow()->size()));
}

}  // namespace norvex
