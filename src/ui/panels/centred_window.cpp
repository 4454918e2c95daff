#include "ui/panels/centred_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace norvex {

void centreOver(QWidget& window, const QWidget* other) {
  const QScreen* screen = other ? other->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const QRect room = screen->availableGeometry();
  QRect place(QPoint(0, 0), window.size().boundedTo(room.size()));
  place.moveCenter(other ? other->frameGeometry().center() : room.center());
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
  window.setGeometry(place);
}

}  // namespace norvex
