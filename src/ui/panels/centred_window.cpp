#include "ui/panels/centred_window.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

#include "ui/panels/window_place.h"

namespace norvex {

void centreOver(QWidget& window, const QWidget* other) {
  const QScreen* screen = other ? other->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  QRect place(QPoint(0, 0), window.size());
  place.moveCenter(other ? other->frameGeometry().center()
                         : roomOn(*screen).marginsRemoved(usualFrame).center());
  window.setGeometry(placedOnScreens(place, {{roomOn(*screen)}, usualFrame}));
}

void placeBeside(QWidget& window, const QWidget& other) {
  window.setGeometry(placedBeside(other.frameGeometry(), window.size(), roomOn(*other.screen())));
}

QSize fittingScreen(const QWidget& window, const QSize& wanted) {
  return wanted.boundedTo(roomOn(*window.screen()).marginsRemoved(usualFrame).size());
}

QSize sizeForTexts(const QWidget& window, const QSize& usual) {
  constexpr double kUsual = 14;  // logical pixels: 10.5 points
  const double larger = QFontInfo(window.font()).pixelSize() / kUsual;
  return fittingScreen(window, usual * std::max(1.0, larger));
}

QSize leastPreview(const QWidget& window, const QSize& usual) {
  const QSize room = roomOn(*window.screen()).size();
  return usual.boundedTo({room.width() / 3, room.height() / 2});
}

}  // namespace norvex
