#include "ui/panels/centred_window.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QMargins>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace norvex {
namespace {

/// Of what desktops draw around a window; how much it is this time is known only when it is shown.
constexpr QMargins kFrame(4, 32, 4, 6);

}  // namespace

void centreOver(QWidget& window, const QWidget* other) {
  const QScreen* screen = other ? other->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const QRect room = screen->availableGeometry().marginsRemoved(kFrame);
  QRect place(QPoint(0, 0), window.size().boundedTo(room.size()));
  place.moveCenter(other ? other->frameGeometry().center() : room.center());
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
  window.setGeometry(place);
}

QSize fittingScreen(const QWidget& window, const QSize& wanted) {
  const QScreen* screen = window.screen();
  return screen ? wanted.boundedTo(screen->availableGeometry().marginsRemoved(kFrame).size()) : wanted;
}

QSize sizeForTexts(const QWidget& window, const QSize& usual) {
  constexpr double kUsual = 14;  // logical pixels: 10.5 points
  const double larger = QFontInfo(window.font()).pixelSize() / kUsual;
  return larger > 1 ? fittingScreen(window, usual * larger) : usual;
}

}  // namespace norvex
