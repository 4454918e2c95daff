#include "ui/panels/centred_window.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

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

QSize fittingScreen(const QWidget& window, const QSize& wanted) {
  const QScreen* screen = window.screen();
  return screen ? wanted.boundedTo(roomOn(*screen).marginsRemoved(usualFrame).size()) : wanted;
}

QSize sizeForTexts(const QWidget& window, const QSize& usual) {
  constexpr double kUsual = 14;  // logical pixels: 10.5 points
  const double larger = QFontInfo(window.font()).pixelSize() / kUsual;
  return larger > 1 ? fittingScreen(window, usual * larger) : usual;
}

}  // namespace norvex
