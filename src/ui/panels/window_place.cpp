#include "ui/panels/window_place.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace norvex {
namespace {

constexpr int kCascade = 24;
/// Between a window and another beside it.
constexpr int kGap = 8;
/// Beyond every desktop; what is kept in files may be anything, and is added up here.
constexpr int kFar = 1'000'000;

QRect bounded(const QRect& rect) {
  const auto within = [](int n) { return std::clamp(n, -kFar, kFar); };
  return {QPoint(within(rect.x()), within(rect.y())),
          QSize(std::clamp(rect.width(), 0, kFar), std::clamp(rect.height(), 0, kFar))};
}

QRect movedInto(QRect frame, const QRect& screen, const QSize& least) {
  frame.setSize(frame.size().boundedTo(screen.size().expandedTo(least)));
  const auto start = [](int wanted, int first, int room) {
    return std::max(first, std::min(wanted, first + room));
  };
  frame.moveLeft(start(frame.left(), screen.left(), screen.width() - frame.width()));
  frame.moveTop(start(frame.top(), screen.top(), screen.height() - frame.height()));
  return frame;
}

/// By how much one rectangle has to be moved and sized to be the other.
int difference(const QRect& a, const QRect& b) {
  return (a.topLeft() - b.topLeft()).manhattanLength() + std::abs(a.width() - b.width()) +
         std::abs(a.height() - b.height());
}

}  // namespace

QRect placedOnScreens(const QRect& contents, const WindowRoom& room, const QSize& least,
                      const QList<QPoint>& taken) {
  if (room.screens.isEmpty()) return contents;
  const QRect wanted = bounded(contents).marginsAdded(room.frame);
  const QSize smallest = least.expandedTo({0, 0}).grownBy(room.frame);
  QRect screen = room.screens.constFirst();
  QRect placed = movedInto(wanted, screen, smallest);
  for (const QRect& other : room.screens) {
    const QRect there = movedInto(wanted, other, smallest);
    if (difference(wanted, there) < difference(wanted, placed)) screen = other, placed = there;
  }
  const auto isTaken = [&] { return taken.contains(placed.marginsRemoved(room.frame).topLeft()); };
  for (qsizetype step = 0; step < taken.size() && isTaken(); ++step) {
    QRect next = movedInto(placed.translated(kCascade, kCascade), screen, smallest);
    // In the lower right corner there is no step: it begins at the upper left again.
    if (next == placed) next.moveTopLeft(screen.topLeft());
    placed = next;
  }
  return placed.marginsRemoved(room.frame);
}

QRect placedBeside(const QRect& other, const QSize& contents, const QRect& screen, const QMargins& frame) {
  const QSize size = contents.grownBy(frame);
  const int right = other.right() + 1 + kGap, left = other.left() - kGap - size.width();
  const bool fitsRight = right + size.width() <= screen.right() + 1;
  const int x = fitsRight ? right : left >= screen.left() ? left : screen.right() + 1 - size.width();
  return placedOnScreens(QRect(QPoint(x, other.top()), size).marginsRemoved(frame), {{screen}, frame});
}

QRect roomOn(const QScreen& screen) {
  const double ratio = screen.devicePixelRatio();
  const bool isWhole = std::abs(ratio - std::round(ratio)) < 1e-6;
  return isWhole ? screen.availableGeometry() : screen.availableGeometry().adjusted(0, 0, -1, -1);
}

QList<QRect> roomOnScreens() {
  QList<QRect> rooms;
  for (const QScreen* screen : QGuiApplication::screens()) rooms << roomOn(*screen);
  return rooms;
}

}  // namespace norvex
