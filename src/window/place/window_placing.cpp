#include "window/place/window_placing.h"

#include <QApplication>
#include <QCursor>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

#include <cmath>
#include <cstdlib>

#include "window/place/window_frames.h"

namespace norvex {
namespace {

/// By which a window manager may set a window aside from where it was put, both ways together.
constexpr int kSettles = 8;
/// By which a size comes back from it rounded, both ways together.
constexpr int kRounded = 4;

QMargins told(const QWidget& window) {
  return window.isVisible() && window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
}

/// The other document windows that are on the screen.
QList<const QWidget*> others(const QWidget* but) {
  QList<const QWidget*> found;
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (other != but && other->isVisible() && qobject_cast<const QMainWindow*>(other)) found << other;
  return found;
}

}  // namespace

void WindowPlacing::setWindow(QMainWindow* window) {
  window_ = window;
}

bool WindowPlacing::isLarge() const {
  return window_->windowState() & (Qt::WindowFullScreen | Qt::WindowMaximized);
}

QMargins WindowPlacing::frame() const {
  const QMargins own = told(*window_);
  if (!own.isNull() || (settled_ && window_->isVisible() && !isLarge())) return own;
  for (const QWidget* other : others(window_))
    if (const QMargins its = told(*other); !its.isNull()) return its;
  return savedFrameMargins();
}

WindowRoom WindowPlacing::room() const {
  QMargins around = frame();
  // It is told in logical pixels, rounded.
  const double ratio = window_->devicePixelRatioF();
  if (!around.isNull() && std::abs(ratio - std::round(ratio)) > 1e-6) around += 1;
  return {roomOnScreens(), around};
}

void WindowPlacing::takePlace(const QPoint& corner) {
  wanted_ = corner;
  replaces_ = true;
}

void WindowPlacing::remember(const QPoint& frameCorner) {
  if (replaces_) return;
  const QMargins around = frame();
  wanted_ = frameCorner + QPoint(around.left(), around.top());
}

QRect WindowPlacing::placeFor(const QSize& size) const {
  QRect place(wanted_.value_or(QPoint()), size);
  const WindowRoom on = room();
  if (!wanted_) {
    const QScreen* screen =
        window_->isVisible() ? window_->screen() : QGuiApplication::screenAt(QCursor::pos());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (screen) place.moveCenter(roomOn(*screen).marginsRemoved(on.frame).center());
  }
  QList<QPoint> taken;
  if (!replaces_)
    for (const QWidget* other : others(window_)) taken << other->geometry().topLeft();
  return placedOnScreens(place, on, window_->minimumSize(), taken);
}

QRect WindowPlacing::onScreen(const QRect& contents) const {
  return placedOnScreens(contents, room(), window_->minimumSize());
}

QSize WindowPlacing::most() const {
  return roomOn(*window_->screen()).marginsRemoved(room().frame).size();
}

void WindowPlacing::give(const QRect& contents) {
  given_ = contents;
  // Of the contents: once the platform knows a window, move() would take this for their place, too.
  if (window_->geometry() != contents) window_->setGeometry(contents);
}

void WindowPlacing::noteSize() {
  if (given_) given_->setSize(window_->size());
}

bool WindowPlacing::wasGiven(const QSize& size) const {
  const auto off = [](int one, int other) { return std::abs(one - other); };
  return given_ && off(size.width(), given_->width()) + off(size.height(), given_->height()) <= kRounded;
}

bool WindowPlacing::isAsGiven() const {
  if (!given_) return false;
  if (!settled_) return true;  // nobody is as quick; until then the window manager may tell any place
  const QRect now = window_->geometry();
  return wasGiven(now.size()) && (now.topLeft() - given_->topLeft()).manhattanLength() <= kSettles;
}

void WindowPlacing::stay() {
  wanted_ = window_->geometry().topLeft();
  given_ = window_->geometry();
}

void WindowPlacing::settle() {
  if (!window_->isVisible() || isLarge()) return;
  const bool first = !settled_;
  settled_ = true;
  const QMargins around = told(*window_);
  // A slow window manager has not yet shown it, and drawn nothing around it; without one there is nothing.
  if (!around.isNull() || window_->windowHandle()->isExposed()) saveFrameMargins(around);
  if (first || isAsGiven()) keepOnScreen();
}

void WindowPlacing::keepOnScreen() {
  if (!window_->isVisible() || isLarge()) return;
  const QRect now = window_->geometry(), placed = onScreen(now);
  if (placed != now) give(placed);
}

QPoint WindowPlacing::cornerToHandOn() const {
  if (isLarge()) return wanted_.value_or(window_->normalGeometry().topLeft());
  return wanted_ && isAsGiven() ? *wanted_ : window_->geometry().topLeft();
}

}  // namespace norvex
