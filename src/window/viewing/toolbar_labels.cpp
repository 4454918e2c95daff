#include "window/viewing/toolbar_labels.h"

#include <QAction>
#include <QEvent>
#include <QToolBar>
#include <QToolButton>

#include <utility>

namespace norvex {

ToolbarLabels::ToolbarLabels(QToolBar& bar, QList<QAction*> labelled, QObject* parent)
    : QObject(parent), bar_(bar), labelled_(std::move(labelled)) {
  bar_.installEventFilter(this);
  for (QAction* action : labelled_) connect(action, &QAction::changed, this, &ToolbarLabels::fit);
}

void ToolbarLabels::setLabelled(bool labelled) {
  const auto style = labelled ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly;
  for (QAction* action : labelled_)
    if (auto* button = qobject_cast<QToolButton*>(bar_.widgetForAction(action)))
      if (button->toolButtonStyle() != style) button->setToolButtonStyle(style);
}

void ToolbarLabels::fit() {
  int lacking = 0;  // what labels would add to the bar as it is
  for (QAction* action : labelled_) {
    auto* button = qobject_cast<QToolButton*>(bar_.widgetForAction(action));
    if (!button || button->toolButtonStyle() != Qt::ToolButtonIconOnly) continue;
    const int bare = button->sizeHint().width();
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    lacking += button->sizeHint().width() - bare;
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  }
  setLabelled(bar_.sizeHint().width() + lacking <= bar_.width());
}

bool ToolbarLabels::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show) fit();
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
