// The document window's size.
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
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"
#include "window/window_frames.h"

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

void MainWindowController::settleLayout() const {
  // A hidden window does not lay its children out when it is resized, and the rule measures them.
  if (window_->isVisible()) return;
  window_->ensurePolished();
  window_->layout()->invalidate();
  window_->layout()->activate();
  if (QWidget* content = window_->centralWidget()) {
    content->layout()->invalidate();
    content->layout()->activate();
  }
}

WindowMeasures MainWindowController::windowMeasures() const {
  WindowMeasures measures;
  if (!window_) return measures;
  settleLayout();
  measures.frame = upright(window_->geometry());
  measures.minimum = window_->minimumSize();
  measures.visibleArea = scrollArea_->contentSize();
  const QWidget* content = window_->centralWidget();
  const int contentRectHeight =
      window_->height() - (ui_->menuBar->isVisibleTo(window_) ? ui_->menuBar->height() : 0);
  measures.toolbarHeight = toolbarHeight(ui_->toolbar->isVisibleTo(window_), contentRectHeight,
                                         content ? std::optional<double>(content->height()) : std::nullopt);
  return measures;
}

QSizeF MainWindowController::calcWindowMaxSize(const QSizeF& size) const {
  return windowMaxSize(windowMeasures(), size);
}

void MainWindowController::setWindowSize() {
  if (!window_) return;
  if (window_->isFullScreen()) {
    window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return;
  }
  const WindowMeasures measures = windowMeasures();
  const QSizeF viewSize = view() ? view()->frame().size() : QSizeF(0, 0);
  const WindowSize rule = windowSize(measures, viewSize, zoomFactor_);
  // This platform's maximum counts the toolbar, the rule's does not.
  window_->setMaximumSize(limited(rule.maximum.width()),
                          limited(rule.maximum.height() + measures.toolbarHeight));
  if (rule.frame == measures.frame || window_->isMaximized()) return;
  // Before the window is on the screen its place is the window manager's to choose.
  if (window_->isVisible())
    window_->setGeometry(onScreen(rule.frame));
  else
    window_->resize(onScreen(rule.frame).size());
}

void MainWindowController::windowStateDidChange(const QWindowStateChangeEvent& event) {
  // A full screen or a maximised window has the size it has; the rule is caught up with when that ends.
  const Qt::WindowStates large = Qt::WindowFullScreen | Qt::WindowMaximized;
  ui_->fullScreenAction->setChecked(window_->isFullScreen());
  if ((event.oldState() & large) && !(window_->windowState() & large)) setWindowSize();
}

void MainWindowController::restoreFrame() {
  const QRect frame = savedWindowFrame(kFrameName);
  if (!frame.isValid()) return;
  QList<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens << screen->availableGeometry();
  QList<QPoint> taken;
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other != window_ && other->isVisible() && qobject_cast<const QMainWindow*>(other))
      taken << other->pos();
  const QRect place = placedOnScreens(frame, screens, taken);
  window_->resize(place.size());
  window_->move(place.topLeft());
}

void MainWindowController::saveFrame() const {
  if (window_->isFullScreen() || window_->isMaximized()) return;
  saveWindowFrame(kFrameName, QRect(window_->pos(), window_->size()));
}

}  // namespace norvex
