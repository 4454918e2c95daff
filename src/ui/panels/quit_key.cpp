#include "ui/panels/quit_key.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QProgressDialog>

#include <utility>

namespace norvex {
namespace {

QList<QKeySequence> keysOfQuit() {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (const auto* command = window->findChild<QAction*>(QStringLiteral("quitAction")))
      return command->shortcuts();
  return {Qt::CTRL | Qt::Key_Q};
}

}  // namespace

QuitKey::QuitKey(std::function<void()> quit, QObject* parent) : QObject(parent), quit_(std::move(quit)) {
  qApp->installEventFilter(this);
}

bool QuitKey::eventFilter(QObject* watched, QEvent* event) {
  // A window that has the command was asked first: what arrives here is for one that has none, or is behind a
  // sheet.
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->isAutoRepeat() || !keysOfQuit().contains(QKeySequence(key->keyCombination()))) return false;
  if (qobject_cast<QKeySequenceEdit*>(watched) || QApplication::activePopupWidget() ||
      qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
    return false;
  QMetaObject::invokeMethod(this, quit_, Qt::QueuedConnection);
  return true;
}

}  // namespace norvex
