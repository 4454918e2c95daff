#include "window/reading/taken_key.h"

#include <QKeyEvent>

namespace norvex {

bool takesKey(QEvent& event, Qt::Key key) {
  if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) return false;
  const auto& pressed = static_cast<const QKeyEvent&>(event);
  if (pressed.key() != key || (pressed.modifiers() & ~Qt::ShiftModifier) != Qt::NoModifier) return false;
  event.accept();
  return true;
}

bool takesCopy(QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) return false;
  if (!static_cast<QKeyEvent&>(event).matches(QKeySequence::Copy)) return false;
  event.accept();
  return true;
}

}  // namespace norvex
