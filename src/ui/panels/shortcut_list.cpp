#include "ui/panels/shortcut_list.h"

#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/panels/own_shortcuts.h"

namespace norvex {
namespace {

constexpr int kCommandRole = Qt::UserRole;

QString keysOf(const QAction& action) {
  QStringList keys;
  for (const QKeySequence& each : action.shortcuts()) keys << each.toString(QKeySequence::NativeText);
  return keys.join(QStringLiteral(",  "));
}

/// Commands that have keys, and those that can be given some. `name`: "%1", or what a menu within a menu puts
/// before it.
void addCommands(QTreeWidgetItem& group, const QMenu& menu, const QString& name) {
  for (QAction* action : menu.actions()) {
    if (const QMenu* more = action->menu()) {
      addCommands(group, *more, localizedString("%1: %2").arg(plainTitle(action->text()), name));
    } else if (!action->isSeparator() &&
               (OwnShortcuts::mayChange(*action) || !action->shortcuts().isEmpty())) {
      auto* row = new QTreeWidgetItem(&group, {name.arg(plainTitle(action->text()))});
      row->setData(0, kCommandRole, QVariant::fromValue(QPointer<QAction>(action)));
    }
  }
}

QAction* commandOf(const QTreeWidgetItem& row) {
  return row.data(0, kCommandRole).value<QPointer<QAction>>();
}

QTreeWidgetItem* addGroup(QTreeWidget* list, const QString& title) {
  auto* group = new QTreeWidgetItem(list, {title});
  QFont strong = list->font();
  strong.setBold(true);
  group->setFont(0, strong);
  return group;
}

/// Keys that no menu shows.
void addGestures(QTreeWidget* list) {
  struct Gesture {
    const char* what;
    const char* how;
  };
  static constexpr Gesture gestures[] = {
      {"Place the first corner of a selection", "Drag"},
      {"Draw the selection from there", "Drag again"},
      {"Size the selection", "Drag a square beside it"},
      {"Move the selection", "Drag its size"},
      {"Take the selection to another program", "Ctrl + Drag"},
      {"Zoom at the pointer", "Ctrl + Wheel"},
      {"Move the picture", "Wheel"},
      {"Commands for the picture", "Right button"},
  };
  QTreeWidgetItem* group = addGroup(list, localizedString("With the mouse"));
  for (const Gesture& each : gestures)
    new QTreeWidgetItem(group, {localizedString(each.what), localizedString(each.how)});
  group->setExpanded(true);
}

}  // namespace

ShortcutList::ShortcutList(QWidget* parent, const QMenuBar& menus) : QTreeWidget(parent) {
  setAccessibleName(localizedString("Commands and their keys"));
  setColumnCount(2);
  setHeaderLabels({localizedString("Command"), localizedString("Keys")});
  setRootIsDecorated(false);
  setFrameShape(QFrame::NoFrame);
  for (const QAction* action : menus.actions()) {
    if (!action->menu()) continue;
    QTreeWidgetItem* group = addGroup(this, plainTitle(action->text()));
    addCommands(*group, *action->menu(), QStringLiteral("%1"));
    group->setExpanded(true);
  }
  addGestures(this);
  showKeys();
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  setCurrentItem(topLevelItem(0));
}

int ShortcutList::wholeWidth() const {
  return sizeHintForColumn(0) + sizeHintForColumn(1) + verticalScrollBar()->sizeHint().width() +
         2 * frameWidth();
}

QAction* ShortcutList::command() const {
  return currentItem() ? commandOf(*currentItem()) : nullptr;
}

void ShortcutList::showKeys() {
  for (int i = 0; i < topLevelItemCount(); ++i)
    for (int row = 0; row < topLevelItem(i)->childCount(); ++row) {
      QTreeWidgetItem* item = topLevelItem(i)->child(row);
      const QAction* action = commandOf(*item);
      if (!action) continue;
      QFont shown = font();
      shown.setBold(OwnShortcuts::shared().isOwn(*action));
      item->setText(1, keysOf(*action));
      item->setFont(1, shown);
    }
}

void ShortcutList::filter(const QString& text) {
  const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem* group = topLevelItem(i);
    bool any = false;
    for (int row = 0; row < group->childCount(); ++row) {
      QTreeWidgetItem* item = group->child(row);
      const QString both = group->text(0) + u' ' + item->text(0) + u' ' + item->text(1);
      const bool holds = std::all_of(words.begin(), words.end(), [&both](const QString& word) {
        return both.contains(word, Qt::CaseInsensitive);
      });
      item->setHidden(!holds);
      any = any || holds;
    }
    group->setHidden(!any);
  }
}

}  // namespace norvex
