#include "ui/controls/zy_form.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

#include "ui/controls/fact_field.h"
#include "ui/style/quiet_text.h"

namespace norvex {

ZyForm::ZyForm(QWidget* parent) : QWidget(parent), layout_(new QGridLayout(this)) {
  layout_->setContentsMargins(0, 0, 0, 0);
  layout_->setHorizontalSpacing(10);
  layout_->setVerticalSpacing(4);
  layout_->setColumnStretch(1, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  addRow();
}

void ZyForm::addRow() {
  auto* title = new QLabel(this);
  title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  title->setTextFormat(Qt::PlainText);
  auto* entry = new FactField(this);
  title->setBuddy(entry);
  const int row = rowCount();
  layout_->addWidget(title, row, 0);
  layout_->addWidget(entry, row, 1);
  rows_.append({title, entry});
  makeQuiet(*title);
}

QStringList ZyForm::titles() const {
  QStringList all;
  for (const Row& row : rows_) all << row.title->text();
  return all;
}

void ZyForm::setTitles(const QStringList& titles) {
  while (rowCount() < titles.size()) addRow();
  while (rowCount() > std::max<qsizetype>(1, titles.size())) {
    const Row row = rows_.takeLast();
    delete row.title;
    delete row.entry;
  }
  for (int i = 0; i < titles.size(); ++i) setTitle(i, titles.at(i));
}

void ZyForm::setTitle(int index, const QString& title) {
  titleAtIndex(index)->setText(title);
  QString name = title;
  while (name.endsWith(QChar(':')) || name.endsWith(QChar(' '))) name.chop(1);
  cellAtIndex(index)->setAccessibleName(name);
}

void ZyForm::setText(int index, const QString& text) {
  QLineEdit* entry = cellAtIndex(index);
  entry->setText(text);
  entry->setCursorPosition(0);
  const bool isLong = text.size() > 24;
  entry->setToolTip(isLong ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : QString());
  // Otherwise the tip would be read out, markup and all.
  entry->setAccessibleDescription(isLong ? text : QString());
}

void ZyForm::setRowVisible(int index, bool visible) {
  titleAtIndex(index)->setVisible(visible);
  cellAtIndex(index)->setVisible(visible);
}

int ZyForm::widestTitle() const {
  int widest = 0;
  for (const Row& row : rows_) widest = std::max(widest, row.title->sizeHint().width());
  return widest;
}

void ZyForm::calcSize() {
  alignTitles({this});
}

void ZyForm::alignTitles(const QList<ZyForm*>& forms) {
  int widest = 0;
  for (const ZyForm* form : forms) widest = std::max(widest, form->widestTitle());
  for (const ZyForm* form : forms)
    for (const Row& row : form->rows_) row.title->setMinimumWidth(widest);
}

}  // namespace norvex
