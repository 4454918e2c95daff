#include "ui/panels/centred_window.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QMargins>
#include <QScreen>
#include <QWidget>

#include "ui/panels/window_place.h"

namespace norvex {
namespace {

/// Of what desktops draw around a window; how much it is this time is known only when it is shown.
constexpr QMargins kFrame(4, 32, 4, 6);

}  // namespace

void centreOver(QWidget& window, const QWidget* other) {
  const QScreen* screen = other ? other->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  QRect place(QPoint(0, 0), window.size());
  place.moveCenter(other ? other->frameGeometry().center() : roomOn(*screen).marginsRemoved(kFrame).center());
  window.setGeometry(placedOnScreens(place, {{roomOn(*screen)}, kFrame}));
}

QSize fittingScreen(const QWidget& window, const QSize& wanted) {
  const QScreen* screen = window.screen();
  return screen ? wanted.boundedTo(roomOn(*screen).marginsRemoved(kFrame).size()) : wanted;
}

QSize sizeForTexts(const QWidget& window, const QSize& usual) {
  constexpr double kUsual = 14;  // logical pixels: 10.5 points
  const double larger = QFontInfo(window.font()).pixelSize() / kUsual;
  return larger > 1 ? fittingScreen(window, usual * larger) : usual;
}

}  // namespace norvex
