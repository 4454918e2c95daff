#include "window/selection_commands.h"

#include <QMenu>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "ui/picture/zooming_scroll_area.h"

namespace norvex {

struct SelectionCommands::Direction {
  const char* moveTitle;
  const char* resizeTitle;
  Qt::Key key;
  QPointF unit;
};

namespace {

constexpr double kSmallStep = 1, kLargeStep = 10;  // points

}  // namespace

SelectionCommands::SelectionCommands(QMenu& menu, QAction* before, NorvexView& view, ZoomingScrollArea& area,
                                     QObject* parent)
    : QObject(parent), view_(view), area_(area) {
  addMenu(menu, before, Deed::Move);
  addMenu(menu, before, Deed::Resize);
  selectionDidChange();
}

void SelectionCommands::addMenu(QMenu& menu, QAction* before, Deed deed) {
  static const Direction directions[] = {
      {"Left by %1 pt", "Narrower by %1 pt", Qt::Key_Left, {-1, 0}},
      {"Right by %1 pt", "Wider by %1 pt", Qt::Key_Right, {1, 0}},
      {"Up by %1 pt", "Higher by %1 pt", Qt::Key_Up, {0, 1}},
      {"Down by %1 pt", "Lower by %1 pt", Qt::Key_Down, {0, -1}},
  };
  auto* made = new QMenu(localizedString(deed == Deed::Move ? "Move Selection" : "Resize Selection"), &menu);
  made->menuAction()->setObjectName(deed == Deed::Move ? QStringLiteral("moveSelectionMenu")
                                                       : QStringLiteral("resizeSelectionMenu"));
  menu.insertMenu(before, made);
  for (const double points : {kSmallStep, kLargeStep}) {
    for (const Direction& direction : directions) addCommand(*made, deed, direction, points);
    if (points == kSmallStep) made->addSeparator();
  }
}

void SelectionCommands::addCommand(QMenu& menu, Deed deed, const Direction& direction, double points) {
  const char* title = deed == Deed::Move ? direction.moveTitle : direction.resizeTitle;
  QAction* command = menu.addAction(localizedString(title).arg(points));
  command->setObjectName(QStringLiteral("%1Selection%2By%3Action")
                             .arg(deed == Deed::Move ? QStringLiteral("move") : QStringLiteral("resize"),
                                  QKeySequence(direction.key).toString(QKeySequence::PortableText))
                             .arg(points));
  Qt::KeyboardModifiers modifiers = points == kSmallStep ? Qt::NoModifier : Qt::ShiftModifier;
  if (deed == Deed::Resize) modifiers |= Qt::ControlModifier;
  command->setShortcut(QKeyCombination(modifiers, direction.key));
  // Lists and text fields of the window need the arrow keys themselves.
  command->setShortcutContext(Qt::WidgetShortcut);
  area_.addAction(command);
  const QPointF step = direction.unit * points;
  connect(command, &QAction::triggered, this, [this, deed, step] {
    if (deed == Deed::Move)
      view_.moveSelection(step);
    else
      view_.resizeSelection(step);
  });
  commands_ << command;
}

void SelectionCommands::selectionDidChange() {
  const bool rectangle = view_.selection().state() == Selection::State::Rectangle;
  for (QAction* command : commands_) command->setEnabled(rectangle);
}

}  // namespace norvex
