// The preferences, from whichever window they are asked for.
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>

#include "application/document_application.h"
#include "base/localized_string.h"
#include "ui/panels/centred_window.h"

namespace norvex {

void DocumentApplication::showPreferences() {
  if (!preferencesPanel_)
    preferencesPanel_ = std::make_unique<PreferencesPanel>(preferences_ + historyPreferences());
  if (!preferencesPanel_->isVisible()) {
    preferencesPanel_->adjustSize();
    centreOver(*preferencesPanel_, QApplication::activeWindow());
  }
  preferencesPanel_->show();
  preferencesPanel_->raise();
  preferencesPanel_->activateWindow();
}

void DocumentApplication::addPreferences(QWidget* window) {
  auto* show = new QAction(localizedString("Pre&ferences…"), window);
  show->setObjectName(QStringLiteral("preferencesAction"));
  show->setShortcut(Qt::CTRL | Qt::Key_Comma);
  show->setMenuRole(QAction::PreferencesRole);
  connect(show, &QAction::triggered, this, &DocumentApplication::showPreferences);
  auto* menu = window->findChild<QMenu*>(QStringLiteral("editMenu"));
  if (!menu) return window->addAction(show);
  menu->addSeparator();
  menu->addAction(show);
}

QList<Preference> DocumentApplication::historyPreferences() {
  const QString files = localizedString("Files");
  return {{.group = files,
           .name = QStringLiteral("preferHistory"),
           .title = localizedString("R&emember files"),
           .hint = localizedString(
               "Recent files, and how their pictures were shown. Switching it off forgets all."),
           .read = [this] { return keeper_.isOn(); },
           .write = [this](const QVariant& on) { keeper_.setOn(on.toBool()); }},
          {.group = files,
           .name = QStringLiteral("clearHistory"),
           .title = localizedString("C&lear History"),
           .hint = localizedString("Forgets the recent files, and how their pictures were shown."),
           .act = [this] { keeper_.clear(); },
           .isPossible = [this] { return !recent_.urls().isEmpty(); }}};
}

}  // namespace norvex
