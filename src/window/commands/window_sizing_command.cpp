#include "window/commands/window_sizing_command.h"

#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include <cmath>
#include <utility>

#include "display/norvex_view.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"
#include "window/place/window_frames.h"

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

constexpr int kRestMs = 250;
/// When the last of what a window manager does to a new window is done, though it be slow.
constexpr int kSettledMs = 4 * kRestMs;
/// Of a length, in logical pixels: what comes back from a window manager is rounded, and nobody chooses so
/// little.
constexpr int kSame = 2;

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
  if (!parts_.mainWindow() || held_ || restores_) return;
  QMainWindow& window = *parts_.mainWindow();
  if (window.isFullScreen() || !windowFitsPicture())
    return window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  const QRect before = window.geometry();
  WindowMeasures found = measures();
  const QSizeF viewSize = parts_.view() ? parts_.view()->frame().size() : QSizeF(0, 0);
  // A window that is too low for the picture is never made higher, and has its scroll bar beside it.
  countsBar_ = needsBar();
  if (countsBar_) found.visibleArea.rwidth() -= ZoomingScrollArea::barExtent();
  const WindowSize rule = windowSize(found, viewSize, parts_.zoomFactor());
  // This platform's maximum counts the toolbar, the rule's does not.
  const double ratio = window.devicePixelRatioF();
  const QSize most(limited(rule.maximum.width(), ratio),
                   limited(rule.maximum.height() + found.toolbarHeight, ratio));
  keepsTile_ = isTiled();
  const bool awaits = awaits_ && placing_.isAsGiven();
  // A maximum that is less than the size would take the size along.
  window.setMaximumSize(keepsTile_ ? most.expandedTo(before.size()) : most);
  leaveRoomToTheUser();
  if (rule.frame == found.frame || window.isMaximized() || keepsTile_) return;
  QRect frame = onScreen(rule.frame, ratio);
  frame.setSize(frame.size().boundedTo(before.size()));
  if (!isOwn(before.size())) chosen_ = before.size() - besidePicture();
  own_ = frame.size();
  // Before the window is on the screen its place is the window manager's to choose.
  if (!window.isVisible()) return window.resize(frame.size());
  placing_.give(awaits    ? placing_.placeFor(frame.size())
                : awaits_ ? placing_.onScreen(QRect(before.topLeft(), frame.size()))
                          : placing_.onScreen(frame));
  if (!awaits) placing_.stay();
}

bool WindowSizingCommand::isOwn(const QSize& size) const {
  return std::abs(size.width() - own_.width()) <= kSame && std::abs(size.height() - own_.height()) <= kSame;
}

void WindowSizingCommand::release() {
  held_ = false;
  apply();
  if (!parts_.scrollArea() || parts_.mainWindow()->isVisible()) return;
  // What is not seen hears of its size when it is shown; a copy may be made before.
  settleLayout();
  parts_.scrollArea()->setScrollOffset(parts_.scrollArea()->scrollOffset());
}

void WindowSizingCommand::windowStateDidChange(const QWindowStateChangeEvent& event) {
  // A full screen or a maximised window has the size it has; the rule is caught up with when that ends.
  const Qt::WindowStates large = Qt::WindowFullScreen | Qt::WindowMaximized;
  QMainWindow& window = *parts_.mainWindow();
  const bool was = event.oldState() & large, is = window.windowState() & large;
  if (is && !was) wasOwn_ = isOwn(window.size()) || isOwn(window.normalGeometry().size());
  if (is || !was) return;
  // The window manager gives it its old size first, which the rule is to start from.
  restores_ = true;
  QTimer::singleShot(kRestMs, &window, [this] {
    restores_ = false;
    // Whatever has come back of a size that was nobody's choice is none either.
    const QMainWindow& back = *parts_.mainWindow();
    const bool isBack = !fillsPartOf(back.screen()->availableGeometry(), back.frameGeometry());
    if (wasOwn_ && isBack) own_ = back.size();
    shrinkWhenAtRest();
    settle();
  });
}

void WindowSizingCommand::leaveRoomToTheUser() const {
  // A window manager neither maximises nor tiles what must not be larger.
  constexpr int kNoBound = (1 << 24) - 1;
  if (QWindow* handle = parts_.mainWindow()->windowHandle()) handle->setMaximumSize({kNoBound, kNoBound});
}

bool WindowSizingCommand::isTiled() const {
  const QMainWindow& window = *parts_.mainWindow();
  // What was put there by the program itself, on a small screen, is no tile.
  if (!window.isVisible() || !window.screen() || isOwn(window.size()) || placing_.wasGiven(window.size()))
    return false;
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
  if (!isOwn(pulled)) chosen_ = pulled - besidePicture();
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
  if (isOwn(before)) own_ = parts_.mainWindow()->size();
  if (placing_.wasGiven(before)) placing_.noteSize();
}

void WindowSizingCommand::put(const QRect& contents) {
  const QMainWindow& window = *parts_.mainWindow();
  const bool own = isOwn(window.size());
  const QRect place = placing_.onScreen(contents);
  if (place != window.geometry()) placing_.give(place);
  if (own) own_ = window.size();
}

void WindowSizingCommand::place() {
  QMainWindow& window = *parts_.mainWindow();
  window.winId();  // with bounds of the platform's from now on
  leaveRoomToTheUser();
  hadPicture_ = parts_.validateUserInterfaceItem();
  const bool own = isOwn(window.size());
  placing_.appears();
  placing_.give(placing_.placeFor(window.size()));
  if (own) own_ = window.size();
  for (const int after : {kRestMs, kSettledMs}) QTimer::singleShot(after, &window, [this] { settle(); });
}

void WindowSizingCommand::settle() {
  const QMainWindow& window = *parts_.mainWindow();
  const bool own = isOwn(window.size());
  placing_.settle();
  if (own) own_ = window.size();
}

void WindowSizingCommand::pictureComes() {
  QMainWindow& window = *parts_.mainWindow();
  if (std::exchange(hadPicture_, true) || !window.isVisible() || !isOwn(window.size())) return;
  if (window.isMaximized() || window.isFullScreen() || isTiled() || !windowFitsPicture()) return;
  const QSize begins = (chosen_ + besidePicture()).boundedTo(placing_.most());
  if (isOwn(begins)) return;
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  placing_.give(placing_.isAsGiven() ? placing_.placeFor(begins)
                                     : placing_.onScreen(QRect(window.geometry().topLeft(), begins)));
  own_ = window.size();
}

void WindowSizingCommand::firstPictureIsShown(bool follows) {
  if (!parts_.validateUserInterfaceItem()) return;
  if (!follows) awaits_ = false;
  if (awaits_) QTimer::singleShot(kSettledMs, parts_.mainWindow(), [this] { awaits_ = false; });
}

void WindowSizingCommand::restoreFrame() {
  QMainWindow& window = *parts_.mainWindow();
  placing_.setWindow(&window);
  const QRect frame = savedWindowFrame(kFrameName);
  chosen_ = frame.isValid() ? frame.size() : window.size();
  if (frame.isValid()) placing_.remember(frame.topLeft());
  const QRect place = placing_.placeFor(chosen_);
  window.resize(own_ = place.size());
  const QMargins around = placing_.frame();
  if (frame.isValid()) window.move(place.topLeft() - QPoint(around.left(), around.top()));
}

void WindowSizingCommand::saveFrame() const {
  const QMainWindow& window = *parts_.mainWindow();
  if (window.isFullScreen() || window.isMaximized()) return;
  // What the rule made of the window for one picture is no choice for the next.
  const QSize size = own_.isValid() && isOwn(window.size()) ? chosen_ : window.size() - besidePicture();
  const QMargins around = placing_.frame();
  saveWindowFrame(kFrameName, QRect(window.geometry().topLeft() - QPoint(around.left(), around.top()), size));
  saveFrameMargins(around);
}

}  // namespace norvex
