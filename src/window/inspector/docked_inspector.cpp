#include "window/inspector/docked_inspector.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <utility>

#include "base/localized_string.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/followed_action.h"
#include "window/commands/inspector_command.h"
#include "window/commands/window_parts.h"
#include "window/place/window_frames.h"

namespace norvex {
namespace {

const QString kDocked = QStringLiteral("views/inspectorInWindow");
const QString kShown = QStringLiteral("views/inspectorPanel");
const QString kWidth = QStringLiteral("views/inspectorWidth");

}  // namespace

DockedInspector::DockedInspector(WindowParts& parts, InspectorCommand& inspector, WindowSizingCommand& sizing,
                                 QObject* parent)
    : QObject(parent), parts_(parts), inspector_(inspector), room_(parts, sizing) {
  room_.setFit([this] { fitPanel(); });
}

QAction* DockedInspector::setUp() {
  auto* action = new QAction(localizedString("Inspector in t&he Window"), parts_.mainWindow());
  action->setObjectName(QStringLiteral("inspectorInWindowAction"));
  action->setCheckable(true);
  action->setChecked(savedView(kDocked, false));
  connect(action, &QAction::toggled, this, [this](bool on) {
    saveView(kDocked, on);
    setDocked(on);
  });
  parts_.mainWindow()->installEventFilter(this);
  if (action->isChecked()) {
    dock();
    shown_ = savedView(kShown, true);
    dock_->setVisible(shown_);
  }
  return action;
}

QAction* DockedInspector::makeFocusAction() {
  auto* action = new QAction(localizedString("Go to Inspector or Pi&cture"), parts_.mainWindow());
  action->setObjectName(QStringLiteral("switchFocusAction"));
  action->setShortcut(Qt::Key_F6);
  connect(action, &QAction::triggered, this, &DockedInspector::switchFocus);
  enableWith(*action, *parts_.inspectorToolbarItem);
  return action;
}

void DockedInspector::setDocked(bool docked) {
  if (docked == isDocked()) return;
  if (docked) {
    dock();
    return setPanelShown(true);
  }
  const bool shown = parts_.inspectorWindow->isVisible();
  setPanelShown(false);
  release();
  if (shown) inspector_.toggle();
}

void DockedInspector::dock() {
  QMainWindow& window = *parts_.mainWindow();
  dock_ = new QDockWidget(localizedString("Inspector"), &window);
  dock_->setObjectName(QStringLiteral("inspectorDock"));
  dock_->setFeatures(QDockWidget::NoDockWidgetFeatures);
  dock_->setAllowedAreas(Qt::RightDockWidgetArea);
  dock_->setTitleBarWidget(new QWidget(dock_));  // its tabs say what it is
  parts_.inspectorWindow->hide();
  ownLeast_ = parts_.inspectorWindow->minimumSize();
  parts_.inspectorWindow->setMinimumHeight(0);  // the picture may be lower, and pages scroll
  dock_->setWidget(parts_.inspectorWindow);
  parts_.inspectorWindow->show();  // whenever the panel is
  dock_->hide();
  window.addDockWidget(Qt::RightDockWidgetArea, dock_);
  dock_->hide();
  wanted_ = savedViewLength(kWidth);
  inspector_.setPanel([this](bool shown) { setPanelShown(shown); });
}

void DockedInspector::release() {
  inspector_.setPanel(nullptr);
  parts_.inspectorWindow->hide();
  parts_.inspectorWindow->setMinimumSize(ownLeast_);
  parts_.inspectorWindow->setParent(parts_.mainWindow(), Qt::Tool);
  delete dock_;
}

void DockedInspector::setPanelShown(bool shown) {
  shown_ = shown;
  saveView(kShown, shown);
  if (dock_->isVisible() == shown) return;
  const bool hadFocus = parts_.inspectorWindow->isAncestorOf(QApplication::focusWidget());
  room_.show(*dock_, shown);
  if (!shown && hadFocus) parts_.scrollArea()->setFocus(Qt::OtherFocusReason);
}

void DockedInspector::fitPanel() {
  if (!dock_ || !dock_->isVisible()) return;
  QMainWindow& window = *parts_.mainWindow();
  const int least = dock_->minimumSizeHint().width(), half = window.width() / 2;
  const int own = wanted_ > 0 ? wanted_ : dock_->sizeHint().width();
  const int width = std::max(least, std::min(own, half));
  if (dock_->width() == width) return;
  window.resizeDocks({dock_}, {width}, Qt::Horizontal);
  window.layout()->activate();
}

void DockedInspector::keepWidth() {
  const int from = std::exchange(drawnFrom_, 0);
  if (!dock_ || !dock_->isVisible() || from == 0 || dock_->width() == from) return;
  wanted_ = dock_->width();
  saveViewLength(kWidth, wanted_);
  fitPanel();
}

void DockedInspector::switchFocus() {
  QWidget& inspector = *parts_.inspectorWindow;
  if (!inspector.isVisible()) return inspector_.toggle();
  QWidget* const now = QApplication::focusWidget();
  if (now && (now == &inspector || inspector.isAncestorOf(now))) {
    parts_.mainWindow()->activateWindow();
    return parts_.scrollArea()->setFocus(Qt::ShortcutFocusReason);
  }
  inspector.activateWindow();
  parts_.inspectorTabs->tabBar()->setFocus(Qt::ShortcutFocusReason);
}

bool DockedInspector::eventFilter(QObject* watched, QEvent* event) {
  // A full screen is the picture's alone.
  if (event->type() == QEvent::WindowStateChange && dock_)
    dock_->setVisible(!parts_.mainWindow()->isFullScreen() && shown_);
  // Queued: it is after the window has laid itself out, and after the edge is let go.
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
    QMetaObject::invokeMethod(this, &DockedInspector::fitPanel, Qt::QueuedConnection);
  if (event->type() == QEvent::MouseButtonPress && dock_ &&
      parts_.mainWindow()->isSeparator(static_cast<QMouseEvent*>(event)->position().toPoint()))
    drawnFrom_ = dock_->width();
  if (event->type() == QEvent::MouseButtonRelease)
    QMetaObject::invokeMethod(this, &DockedInspector::keepWidth, Qt::QueuedConnection);
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
