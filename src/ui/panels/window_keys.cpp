#include "ui/panels/window_keys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QProgressDialog>

#include <utility>

namespace norvex {
namespace {

/// Of a document window's command; `usual` while there is no such window.
QList<QKeySequence> keysOf(const QString& command, const QKeySequence& usual) {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (const auto* action = window->findChild<QAction*>(command)) return action->shortcuts();
  return {usual};
}

}  // namespace

WindowKeys::WindowKeys(std::function<void()> quit, QObject* parent)
    : QObject(parent), quit_(std::move(quit)) {
  qApp->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  // A window that has the command was asked first: what arrives here is for one that has none, or is behind a
  // sheet.
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const QKeySequence pressed(key->keyCombination());
  const bool quits = keysOf(QStringLiteral("quitAction"), Qt::CTRL | Qt::Key_Q).contains(pressed);
  const bool closes = keysOf(QStringLiteral("closeAction"), Qt::CTRL | Qt::Key_W).contains(pressed);
  if (key->isAutoRepeat() || !(quits || closes)) return false;
  const QWidget* modal = QApplication::activeModalWidget();
  if (qobject_cast<QKeySequenceEdit*>(watched) || QApplication::activePopupWidget() ||
      qobject_cast<const QProgressDialog*>(modal))
    return false;
  QWidget* window = static_cast<QWidget*>(watched)->window();
  if (quits)
    QMetaObject::invokeMethod(this, quit_, Qt::QueuedConnection);
  else if (modal)
    return false;
  else
    QMetaObject::invokeMethod(window, &QWidget::close, Qt::QueuedConnection);
  return true;
}

}  // namespace norvex
