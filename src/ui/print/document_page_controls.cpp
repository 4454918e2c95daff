#include "ui/print/document_page_controls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>

#include "base/localized_string.h"

namespace norvex {
namespace {

QSpinBox* pageField(const QString& name, const QString& title, int count, int value) {
  auto* field = new QSpinBox;
  field->setObjectName(name);
  field->setAccessibleName(title);
  field->setRange(1, count);
  field->setValue(value);
  field->setKeyboardTracking(false);  // a number that is being typed is none yet
  return field;
}

}  // namespace

DocumentPageControls::DocumentPageControls(const PrintSource& source, const NSPrintInfo& info,
                                           QFormLayout* form, QObject* parent)
    : QObject(parent), which_(new QComboBox), range_(new QWidget) {
  const int count = int(source.pages.size()), shown = source.shownPage;
  which_->setObjectName(QStringLiteral("documentPages"));
  which_->addItem(localizedString("The shown page (%1)").arg(shown + 1), int(DocumentPages::Shown));
  which_->addItem(localizedString("All %1 pages").arg(std::max(count, source.pageCount)),
                  int(DocumentPages::All));
  which_->addItem(localizedString("Some pages"), int(DocumentPages::Range));
  which_->setCurrentIndex(which_->findData(int(info.documentPages())));
  const bool ranged = info.documentPages() == DocumentPages::Range;
  first_ = pageField(QStringLiteral("firstDocumentPage"), localizedString("First page"), count,
                     ranged ? info.firstDocumentPage() : shown + 1);
  last_ = pageField(QStringLiteral("lastDocumentPage"), localizedString("Last page"), count,
                    ranged ? info.lastDocumentPage() : count);
  auto* row = new QHBoxLayout(range_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel(localizedString("From page")));
  row->addWidget(first_);
  row->addWidget(new QLabel(localizedString("to")));
  row->addWidget(last_);
  row->addStretch();
  form->addRow(localizedString("Pa&ges:"), which_);
  form->addRow(QString(), range_);
  connect(which_, &QComboBox::currentIndexChanged, this, [this] {
    showRange();
    emit changed();
  });
  // Whoever moves one end past the other means both.
  connect(first_, &QSpinBox::valueChanged, this, [this](int page) {
    last_->setValue(std::max(page, last_->value()));
    emit changed();
  });
  connect(last_, &QSpinBox::valueChanged, this, [this](int page) {
    first_->setValue(std::min(page, first_->value()));
    emit changed();
  });
  showRange();
}

void DocumentPageControls::showRange() {
  range_->setEnabled(which_->currentData().toInt() == int(DocumentPages::Range));
}

void DocumentPageControls::applyTo(NSPrintInfo& info) const {
  const auto which = DocumentPages(which_->currentData().toInt());
  for (QSpinBox* field : {first_, last_}) field->interpretText();  // one may still be typed into
  if (which == DocumentPages::Range)
    info.setDocumentPageRange(first_->value(), last_->value());
  else
    info.setDocumentPages(which);
}

}  // namespace norvex
