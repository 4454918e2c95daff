#include "ui/panels/tool_tip_keys.h"

#include <QAction>
#include <QHelpEvent>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

namespace norvex {

ToolTipKeys::ToolTipKeys(QToolBar& toolbar) : QObject(&toolbar) {
  for (QToolButton* button : toolbar.findChildren<QToolButton*>()) button->installEventFilter(this);
}

bool ToolTipKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ToolTip) return false;
  auto* button = static_cast<QToolButton*>(watched);
  const QAction* command = button->defaultAction();
  if (!command || command->shortcut().isEmpty() || button->toolTip().isEmpty()) return false;
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                     QStringLiteral("%1 (%2)").arg(button->toolTip(),
                                                   command->shortcut().toString(QKeySequence::NativeText)),
                     button);
  return true;
}

}  // namespace norvex
