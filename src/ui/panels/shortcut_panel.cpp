#include "ui/panels/shortcut_panel.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/panels/centred_window.h"

namespace norvex {

namespace {

const QString kName = QStringLiteral("shortcutPanel");

/// A menu text as it is read: without the marks of mnemonics and without the dots of commands that ask first.
QString plain(QString text) {
  text.replace(QStringLiteral("&&"), QStringLiteral("\u0001")).remove(u'&').replace(u'\u0001', u'&');
  while (text.endsWith(u'\u2026')) text.chop(1);
  return text;
}

QString keysOf(const QAction& action) {
  QStringList keys;
  for (const QKeySequence& each : action.shortcuts()) keys << each.toString(QKeySequence::NativeText);
  return keys.join(QStringLiteral(",  "));
}

void addCommands(QTreeWidgetItem& group, const QMenu& menu, const QString& before) {
  for (const QAction* action : menu.actions()) {
    if (const QMenu* more = action->menu())
      addCommands(group, *more, plain(action->text()) + QStringLiteral(": "));
    else if (!action->isSeparator() && !action->shortcuts().isEmpty())
      new QTreeWidgetItem(&group, {before + plain(action->text()), keysOf(*action)});
  }
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

/// Shows the rows that hold every word of `text`, and the groups of which any is left.
void filterRows(const QTreeWidget& list, const QString& text) {
  const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  for (int i = 0; i < list.topLevelItemCount(); ++i) {
    QTreeWidgetItem* group = list.topLevelItem(i);
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

QTreeWidget* commandList(QWidget* parent, const QMenuBar& menus) {
  auto* list = new QTreeWidget(parent);
  list->setAccessibleName(localizedString("Commands and their keys"));
  list->setColumnCount(2);
  list->setHeaderLabels({localizedString("Command"), localizedString("Keys")});
  list->setRootIsDecorated(false);
  list->setFrameShape(QFrame::NoFrame);
  for (const QAction* action : menus.actions()) {
    if (!action->menu()) continue;
    QTreeWidgetItem* group = addGroup(list, plain(action->text()));
    addCommands(*group, *action->menu(), {});
    group->setExpanded(true);
  }
  addGestures(list);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  list->header()->setStretchLastSection(false);
  list->setCurrentItem(list->topLevelItem(0));
  return list;
}

}  // namespace

void showShortcutPanel(QWidget& parent, const QMenuBar& menus) {
  auto* panel = parent.findChild<QDialog*>(kName, Qt::FindDirectChildrenOnly);
  if (!panel) {
    panel = new QDialog(&parent);
    panel->setObjectName(kName);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(localizedString("Keyboard Shortcuts"));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 10);
    auto* search = new QLineEdit(panel);
    search->setObjectName(QStringLiteral("shortcutSearch"));
    search->setPlaceholderText(localizedString("Search commands and keys"));
    search->setAccessibleName(localizedString("Search commands and keys"));
    search->setClearButtonEnabled(true);
    auto* margin = new QVBoxLayout;
    margin->setContentsMargins(10, 10, 10, 0);
    margin->addWidget(search);
    column->addLayout(margin);
    QTreeWidget* list = commandList(panel, menus);
    column->addWidget(list, 1);
    QObject::connect(search, &QLineEdit::textChanged, list,
                     [list](const QString& text) { filterRows(*list, text); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, panel);
    buttons->setContentsMargins(10, 0, 10, 0);
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, panel, &QDialog::close);
    panel->resize(fittingScreen(*panel, {520, 620}));
  }
  panel->show();
  panel->raise();
  panel->activateWindow();
}

}  // namespace norvex
