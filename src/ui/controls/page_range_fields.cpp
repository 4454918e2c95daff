#include "ui/controls/page_range_fields.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

#include "base/localized_string.h"

namespace norvex {

PageRangeFields::PageRangeFields(int count, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  first_ = addField(QStringLiteral("firstPage"), localizedString("First page"), count);
  row->addWidget(new QLabel(localizedString("to"), this));
  last_ = addField(QStringLiteral("lastPage"), localizedString("Last page"), count);
  row->addStretch();
  connect(first_, &QSpinBox::valueChanged, this, [this](int page) {
    const QSignalBlocker once(last_);
    last_->setValue(std::max(page, last_->value()));
    emit changed();
  });
  connect(last_, &QSpinBox::valueChanged, this, [this](int page) {
    const QSignalBlocker once(first_);
    first_->setValue(std::min(page, first_->value()));
    emit changed();
  });
}

QSpinBox* PageRangeFields::addField(const QString& name, const QString& title, int count) {
  auto* field = new QSpinBox(this);
  field->setObjectName(name);
  field->setAccessibleName(title);
  field->setRange(1, count);
  field->setKeyboardTracking(false);  // a number that is being typed is none yet
  layout()->addWidget(field);
  return field;
}

void PageRangeFields::setPages(int first, int last) {
  const QSignalBlocker quiet(first_);
  const QSignalBlocker too(last_);
  first_->setValue(first);
  last_->setValue(last);
}

int PageRangeFields::first() const {
  return first_->value();
}

int PageRangeFields::last() const {
  return last_->value();
}

void PageRangeFields::takeTyped() {
  for (QSpinBox* field : {first_, last_}) field->interpretText();
}

}  // namespace norvex
