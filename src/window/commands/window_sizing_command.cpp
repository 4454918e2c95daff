#include "window/commands/window_sizing_command.h"

#include <QApplication>
#include <QCursor>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QToolBar>
#include <QWindow>
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

/// With room for all of it in the screen's own pixels: one less, and there would be something to scroll.
QRect onScreen(const QRectF& rect, double ratio) {
  const int height = static_cast<int>(std::ceil(rect.height() - 1e-6));
  return {static_cast<int>(rect.x()), static_cast<int>(-rect.y()) - height,
          wholePixels(static_cast<int>(std::ceil(rect.width() - 1e-6)), ratio), wholePixels(height, ratio)};
}

QList<QRect> screenRects() {
  QList<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens << screen->availableGeometry();
  return screens;
}

QList<QPoint> takenPlaces(const QWidget* but) {
  QList<QPoint> taken;
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other != but && other->isVisible() && qobject_cast<const QMainWindow*>(other)) taken << other->pos();
  return taken;
}

constexpr int kRestMs = 250;
/// By which a window manager may set a window aside from where it was put; logical pixels, both ways
/// together.
constexpr int kSettles = 8;

/// True for a rectangle that takes all of the screen's height or width, or a quarter of it in a corner, as
/// window managers arrange windows side by side; logical pixels.
bool fillsPartOf(const QRect& screen, const QRect& taken) {
  constexpr int kBeside = 8;
  const auto near = [](int one, int other) { return std::abs(one - other) <= kBeside; };
  if (taken.width() >= screen.width() - kBeside || taken.height() >= screen.height() - kBeside) return true;
  return near(2 * taken.width(), screen.width()) && near(2 * taken.height(), screen.height()) &&
         (near(taken.left(), screen.left()) || near(taken.right(), screen.right())) &&
         (near(taken.top(), screen.top()) || near(taken.bottom(), screen.bottom()));
}

int limited(double length, double ratio) {
  return std::min(
      wholePixels(static_cast<int>(std::ceil(std::min(length, double(QWIDGETSIZE_MAX)) - 1e-6)), ratio),
      QWIDGETSIZE_MAX);
}

}  // namespace

void WindowSizingCommand::settleLayout() const {
  if (parts_.mainWindow()->isVisible()) return;
  parts_.mainWindow()->ensurePolished();
  parts_.mainWindow()->layout()->invalidate();
  parts_.mainWindow()->layout()->activate();
  if (QWidget* content = parts_.mainWindow()->centralWidget()) {
    // What has come into a bar at its edges: of itself that is heard later.
    for (QWidget* bar : content->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
      if (bar->layout()) bar->layout()->activate();
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
  found.visibleArea = parts_.scrollArea()->roomWithoutBar();
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
  if (!parts_.mainWindow() || held_) return;
  if (parts_.mainWindow()->isFullScreen()) {
    parts_.mainWindow()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return;
  }
  if (!windowFitsPicture()) {
    parts_.mainWindow()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return;
  }
  const QRect before = parts_.mainWindow()->geometry();
  WindowMeasures found = measures();
  const QSizeF viewSize = parts_.view() ? parts_.view()->frame().size() : QSizeF(0, 0);
  // A window that is too low for the picture is never made higher, and has its scroll bar beside it.
  countsBar_ = needsBar();
  if (countsBar_) found.visibleArea.rwidth() -= ZoomingScrollArea::barExtent();
  const WindowSize rule = windowSize(found, viewSize, parts_.zoomFactor());
  // This platform's maximum counts the toolbar, the rule's does not.
  const double ratio = parts_.mainWindow()->devicePixelRatioF();
  const QSize most(limited(rule.maximum.width(), ratio),
                   limited(rule.maximum.height() + found.toolbarHeight, ratio));
  keepsTile_ = isTiled();
  // A maximum that is less than the size would take the size along.
  parts_.mainWindow()->setMaximumSize(keepsTile_ ? most.expandedTo(before.size()) : most);
  leaveRoomToTheUser();
  if (rule.frame == found.frame || parts_.mainWindow()->isMaximized() || keepsTile_) return;
  const QRect frame = onScreen(rule.frame, ratio);
  if (before.size() != own_) chosen_ = before.size() - besidePicture();
  own_ = frame.size();
  // Before the window is on the screen its place is the window manager's to choose.
  if (!parts_.mainWindow()->isVisible())
    parts_.mainWindow()->resize(frame.size());
  else
    parts_.mainWindow()->setGeometry(awaits_ ? placeOfLatePicture(before, frame.size()) : frame);
}

void WindowSizingCommand::release() {
  held_ = false;
  apply();
  if (!parts_.scrollArea() || parts_.mainWindow()->isVisible()) return;
  // What is not seen hears of its size when it is shown; a copy may be made before.
  settleLayout();
  parts_.scrollArea()->setScrollOffset(parts_.scrollArea()->scrollOffset());
}

QRect WindowSizingCommand::placeOfLatePicture(const QRect& before, const QSize& size) {
  const QMargins around = savedFrameMargins();
  const bool isUntouched = placed_ && before.size() == placed_->size() &&
                           (before.topLeft() - placed_->topLeft()).manhattanLength() <= kSettles;
  if (!isUntouched)
    return placedOnScreens(QRect(before.topLeft(), size).marginsAdded(around), screenRects())
        .marginsRemoved(around);
  // The same picture may be measured again, at another zoom.
  placed_ = placeFor(size, around);
  return *placed_;
}

void WindowSizingCommand::windowStateDidChange(const QWindowStateChangeEvent& event) {
  // A full screen or a maximised window has the size it has; the rule is caught up with when that ends.
  const Qt::WindowStates large = Qt::WindowFullScreen | Qt::WindowMaximized;
  if (!(event.oldState() & large) || (parts_.mainWindow()->windowState() & large)) return;
  // The window manager gives it its old size first, which the rule is to start from.
  QTimer::singleShot(kRestMs, parts_.mainWindow(), [this] { shrinkWhenAtRest(); });
}

void WindowSizingCommand::leaveRoomToTheUser() const {
  // A window manager neither maximises nor tiles what must not be larger.
  constexpr int kNoBound = (1 << 24) - 1;
  if (QWindow* handle = parts_.mainWindow()->windowHandle()) handle->setMaximumSize({kNoBound, kNoBound});
}

bool WindowSizingCommand::isTiled() const {
  const QMainWindow& window = *parts_.mainWindow();
  // What was put there by the program itself, on a small screen, is no tile.
  const bool isOwn = window.size() == own_ || (placed_ && window.size() == placed_->size());
  if (!window.isVisible() || !window.screen() || isOwn) return false;
  return fillsPartOf(window.screen()->availableGeometry(), window.frameGeometry());
}

bool WindowSizingCommand::needsBar() const {
  if (!parts_.scrollArea()) return false;
  const double height = parts_.view() ? parts_.view()->frame().height() * parts_.zoomFactor() : 0;
  return height > parts_.scrollArea()->roomWithoutBar().height() + 1e-6;
}

void WindowSizingCommand::windowDidResize() {
  const QMainWindow& window = *parts_.mainWindow();
  const QSize most = window.maximumSize();
  const bool isOutdated = (keepsTile_ && !isTiled()) || countsBar_ != needsBar();
  const bool isTooLarge = window.width() > most.width() || window.height() > most.height();
  if (!window.isVisible() || !(isOutdated || isTooLarge)) return;
  // An edge that is being pulled comes back when it is let go.
  QTimer::singleShot(kRestMs, parts_.mainWindow(), [this, resize = ++resizes_] {
    if (resize == resizes_) shrinkWhenAtRest();
  });
}

void WindowSizingCommand::shrinkWhenAtRest() {
  QMainWindow& window = *parts_.mainWindow();
  if (window.isMaximized() || window.isFullScreen() || isTiled()) return;
  const QSize pulled = window.size(), most = pulled.boundedTo(window.maximumSize());
  if (most == pulled) return apply();
  chosen_ = pulled - besidePicture();
  if (countsBar_ != needsBar()) return apply();  // which is about another maximum
  own_ = most;
  window.resize(most);
}

QSize WindowSizingCommand::besidePicture() const {
  settleLayout();
  const QMainWindow& window = *parts_.mainWindow();
  return {window.centralWidget() ? window.centralWidget()->x() : 0, 0};
}

void WindowSizingCommand::windowDidGrow(const QSize& before) {
  const QMainWindow& window = *parts_.mainWindow();
  if (own_ == before) own_ = window.size();
  if (placed_ && placed_->size() == before) placed_ = window.geometry();
}

void WindowSizingCommand::place() {
  QMainWindow& window = *parts_.mainWindow();
  window.winId();  // with bounds of the platform's from now on
  leaveRoomToTheUser();
  awaits_ = !parts_.validateUserInterfaceItem();
  placed_ = placeFor(window.size(), savedFrameMargins());
  if (own_ == window.size()) own_ = placed_->size();
  // Of the contents: once the platform knows a window, move() would take this for their place, too.
  window.setGeometry(*placed_);
}

QRect WindowSizingCommand::placeFor(const QSize& size, const QMargins& around) const {
  const QMainWindow& window = *parts_.mainWindow();
  QRect frame(restored_.value_or(window.pos()), size.grownBy(around));
  if (!restored_) {
    const QScreen* screen = window.isVisible() ? window.screen() : QGuiApplication::screenAt(QCursor::pos());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return frame.marginsRemoved(around);
    frame.moveCenter(screen->availableGeometry().center());
  }
  // What surrounds the others may differ from the guess; their contents stand where they were put.
  const QPoint corner(around.left(), around.top());
  QList<QPoint> taken = takenPlaces(&window);
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other != &window && other->isVisible() && qobject_cast<const QMainWindow*>(other))
      taken << other->geometry().topLeft() - corner;
  return placedOnScreens(frame, screenRects(), taken).marginsRemoved(around);
}

void WindowSizingCommand::firstPictureIsShown() {
  if (parts_.validateUserInterfaceItem()) awaits_ = false;
}

void WindowSizingCommand::restoreFrame() {
  const QRect frame = savedWindowFrame(kFrameName);
  chosen_ = own_ = parts_.mainWindow()->size();
  if (!frame.isValid()) return;
  chosen_ = frame.size();
  const QRect place = placedOnScreens(frame, screenRects(), takenPlaces(parts_.mainWindow()));
  parts_.mainWindow()->resize(own_ = place.size());
  parts_.mainWindow()->move(place.topLeft());
  restored_ = place.topLeft();
}

void WindowSizingCommand::saveFrame() const {
  const QMainWindow& window = *parts_.mainWindow();
  if (window.isFullScreen() || window.isMaximized()) return;
  // What the rule made of the window for one picture is no choice for the next.
  const QSize size = own_.isValid() && window.size() == own_ ? chosen_ : window.size() - besidePicture();
  saveWindowFrame(kFrameName, QRect(window.pos(), size));
  const QRect outside = window.frameGeometry(), inside = window.geometry();
  saveFrameMargins({inside.left() - outside.left(), inside.top() - outside.top(),
                    outside.right() - inside.right(), outside.bottom() - inside.bottom()});
}

}  // namespace norvex
