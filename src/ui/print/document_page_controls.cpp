#include "ui/print/document_page_controls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/controls/page_range_fields.h"

namespace norvex {

DocumentPageControls::DocumentPageControls(const PrintSource& source, const NSPrintInfo& info,
                                           QFormLayout* form, QObject* parent)
    : QObject(parent),
      which_(new QComboBox),
      range_(new QWidget),
      pages_(new PageRangeFields(int(source.pages.size()))) {
  const int count = int(source.pages.size()), shown = source.shownPage;
  which_->setObjectName(QStringLiteral("documentPages"));
  which_->addItem(localizedString("The shown page (%1)").arg(shown + 1), int(DocumentPages::Shown));
  which_->addItem(localizedString("All %1 pages").arg(std::max(count, source.pageCount)),
                  int(DocumentPages::All));
  which_->addItem(localizedString("Some pages"), int(DocumentPages::Range));
  which_->setCurrentIndex(which_->findData(int(info.documentPages())));
  if (info.documentPages() == DocumentPages::Range)
    pages_->setPages(info.firstDocumentPage(), info.lastDocumentPage());
  else
    pages_->setPages(shown + 1, count);
  auto* row = new QHBoxLayout(range_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel(localizedString("From page")));
  row->addWidget(pages_);
  form->addRow(localizedString("Pa&ges:"), which_);
  form->addRow(QString(), range_);
  connect(which_, &QComboBox::currentIndexChanged, this, [this] {
    showRange();
    emit changed();
  });
  connect(pages_, &PageRangeFields::changed, this, &DocumentPageControls::changed);
  showRange();
}

void DocumentPageControls::showRange() {
  range_->setEnabled(which_->currentData().toInt() == int(DocumentPages::Range));
}

void DocumentPageControls::applyTo(NSPrintInfo& info) const {
  const auto which = DocumentPages(which_->currentData().toInt());
  pages_->takeTyped();
  if (which == DocumentPages::Range)
    info.setDocumentPageRange(pages_->first(), pages_->last());
  else
    info.setDocumentPages(which);
}

}  // namespace norvex
