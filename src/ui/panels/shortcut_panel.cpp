#include "ui/panels/shortcut_panel.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/localized_string.h"

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

QTreeWidget* commandList(QWidget* parent, const QMenuBar& menus) {
  auto* list = new QTreeWidget(parent);
  list->setAccessibleName(localizedString("Commands and their keys"));
  list->setColumnCount(2);
  list->setHeaderLabels({localizedString("Command"), localizedString("Keys")});
  list->setRootIsDecorated(false);
  list->setFrameShape(QFrame::NoFrame);
  for (const QAction* action : menus.actions()) {
    if (!action->menu()) continue;
    auto* group = new QTreeWidgetItem(list, {plain(action->text())});
    QFont strong = list->font();
    strong.setBold(true);
    group->setFont(0, strong);
    addCommands(*group, *action->menu(), {});
    group->setExpanded(true);
  }
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
    column->addWidget(commandList(panel, menus), 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, panel);
    buttons->setContentsMargins(10, 0, 10, 0);
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, panel, &QDialog::close);
    panel->resize(520, 620);
  }
  panel->show();
  panel->raise();
  panel->activateWindow();
}

}  // namespace norvex
