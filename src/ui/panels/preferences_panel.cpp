#include "ui/panels/preferences_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

#include "base/localized_string.h"
#include "ui/panels/own_shortcuts.h"
#include "ui/panels/panel_body.h"

namespace norvex {
namespace {

/// As a screen reader says it.
QString plain(const QString& title) {
  QString said = plainTitle(title);
  while (said.endsWith(u':') || said.endsWith(u'\uff1a')) said.chop(1);
  return said;
}

QLabel* makeHeading(const QString& text, QWidget* parent) {
  auto* heading = new QLabel(text, parent);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  return heading;
}

}  // namespace

PreferencesPanel::PreferencesPanel(QList<Preference> preferences, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("PreferencesPanel"));
  setWindowTitle(localizedString("Preferences"));
  auto* contents = new QWidget;
  auto* column = new QVBoxLayout(contents);
  column->setSpacing(8);
  QStringList groups;
  for (const Preference& each : preferences)
    if (!groups.contains(each.group)) groups << each.group;
  for (const QString& group : std::as_const(groups)) {
    if (group != groups.constFirst()) column->addSpacing(10);
    column->addWidget(makeHeading(group, this));
    auto* form = new QFormLayout;
    form->setContentsMargins(12, 0, 0, 0);
    form->setVerticalSpacing(8);
    column->addLayout(form);
    for (const Preference& each : std::as_const(preferences))
      if (each.group == group) addRow(*form, each);
  }
  column->addStretch();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  fillPanel(*this, contents, buttons);
  refresh();
  if (!rows_.isEmpty()) rows_.constFirst().control->setFocus();
}

void PreferencesPanel::addRow(QFormLayout& group, const Preference& preference) {
  QWidget* control = makeControl(preference);
  control->setObjectName(preference.name);
  control->setToolTip(preference.hint);
  control->setAccessibleName(plain(preference.title));
  control->setAccessibleDescription(preference.hint);
  if (preference.options.isEmpty())
    group.addRow(control);
  else
    group.addRow(preference.title, control);
  rows_ << Row{preference, control};
}

QWidget* PreferencesPanel::makeControl(const Preference& preference) {
  if (preference.act) {
    auto* button = new QPushButton(preference.title, this);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(button, &QPushButton::clicked, this, [this, act = preference.act] {
      act();
      refresh();
    });
    return button;
  }
  if (preference.options.isEmpty()) {
    auto* box = new QCheckBox(preference.title, this);
    connect(box, &QCheckBox::toggled, this, [this, write = preference.write](bool on) {
      write(on);
      refresh();
    });
    return box;
  }
  auto* list = new QComboBox(this);
  for (const Preference::Option& each : preference.options) list->addItem(each.title, each.value);
  connect(list, &QComboBox::activated, this,
          [list, write = preference.write] { write(list->currentData()); });
  return list;
}

void PreferencesPanel::refresh() {
  for (const Row& row : std::as_const(rows_)) {
    const QSignalBlocker quiet(row.control);
    if (row.preference.isPossible) row.control->setEnabled(row.preference.isPossible());
    if (!row.preference.read) continue;
    const QVariant now = row.preference.read();
    if (auto* box = qobject_cast<QCheckBox*>(row.control)) box->setChecked(now.toBool());
    if (auto* list = qobject_cast<QComboBox*>(row.control)) list->setCurrentIndex(list->findData(now));
  }
}

void PreferencesPanel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) refresh();
  QDialog::changeEvent(event);
}

void PreferencesPanel::showEvent(QShowEvent* event) {
  refresh();
  QDialog::showEvent(event);
}

}  // namespace norvex
