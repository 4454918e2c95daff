#include "window/viewing/full_screen.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolBar>

#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

constexpr int kEdge = 2, kBelow = 48;  // logical pixels

}  // namespace

FullScreen::FullScreen(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

void FullScreen::setUp(QAction& deselect) {
  deselect_ = &deselect;
  escape_ = new QShortcut(Qt::Key_Escape, parts_.mainWindow());
  escape_->setEnabled(false);
  connect(escape_, &QShortcut::activated, this, [this] { set(false); });
  connect(deselect_, &QAction::changed, this, &FullScreen::validate);
  parts_.mainWindow()->installEventFilter(this);
  parts_.viewWidget()->installEventFilter(this);
}

void FullScreen::set(bool on) {
  QMainWindow& window = *parts_.mainWindow();
  if (on == window.isFullScreen()) return;
  if (!on) return wasMaximized_ ? window.showMaximized() : window.showNormal();
  wasMaximized_ = window.isMaximized();
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  window.showFullScreen();
}

void FullScreen::follow() {
  const bool on = parts_.mainWindow()->isFullScreen();
  if (on == on_) return;
  on_ = on;
  validate();
  showBars(!on);
  if (auto* bar = parts_.mainWindow()->findChild<QWidget*>(QStringLiteral("bottomBar"))) bar->setVisible(!on);
  parts_.scrollArea()->setBare(on);
}

void FullScreen::validate() {
  const bool deselects =
      deselect_->isEnabled() && deselect_->shortcuts().contains(QKeySequence(Qt::Key_Escape));
  escape_->setEnabled(on_ && !deselects);
}

void FullScreen::showBars(bool shown) {
  // A menu bar that is hidden would take its shortcuts with it.
  parts_.menuBar->setMaximumHeight(shown ? QWIDGETSIZE_MAX : 0);
  parts_.toolbar->setVisible(shown);
}

bool FullScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && watched == parts_.mainWindow()) follow();
  if (on_ && event->type() == QEvent::MouseMove && watched == parts_.viewWidget()) {
    const auto* move = static_cast<QMouseEvent*>(event);
    const double y = parts_.mainWindow()->mapFromGlobal(move->globalPosition()).y();
    const bool shown = parts_.toolbar->isVisible();
    if (!shown && y <= kEdge && move->buttons() == Qt::NoButton) showBars(true);
    if (shown && y > parts_.toolbar->geometry().bottom() + kBelow) showBars(false);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
