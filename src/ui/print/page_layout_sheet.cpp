#include "ui/print/page_layout_sheet.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "base/localized_string.h"
#include "print/page_layout_options.h"
#include "print/pagination.h"
#include "ui/panels/panel_body.h"
#include "ui/print/page_layout_controls.h"
#include "ui/print/page_layout_preview.h"
#include "ui/print/zy_page_layout_accessory.h"

namespace norvex {
namespace {

/// Stands for a picture: the sheet belongs to the document, not to what will be printed of it.
const QSizeF kSample(320, 240);

/// One column of labels, whichever form they are in.
void alignLabels(const QWidget& sheet) {
  QWidgetList labels;
  int width = 0;
  for (QFormLayout* form : sheet.findChildren<QFormLayout*>())
    for (int row = 0; row < form->rowCount(); ++row)
      if (const QLayoutItem* label = form->itemAt(row, QFormLayout::LabelRole); label && label->widget()) {
        labels << label->widget();
        width = std::max(width, label->widget()->sizeHint().width());
      }
  for (QWidget* label : labels) label->setMinimumWidth(width);
}

}  // namespace

PageLayoutSheet::PageLayoutSheet(const NSPrintInfo& info, QWidget* window)
    : QDialog(window),
      info_(info),
      preview_(new PageLayoutPreview),
      halves_(new QHBoxLayout),
      column_(new QVBoxLayout) {
  setWindowTitle(localizedString("Page Setup"));
  setWindowModality(Qt::WindowModal);
  auto* contents = new QWidget;
  auto* box = new QVBoxLayout(contents);
  halves_->addWidget(preview_, 1);
  halves_->addLayout(column_);
  box->addLayout(halves_, 1);
  auto* form = new QFormLayout;
  controls_ = new PageLayoutControls(pageLayoutOptions, form, this);
  column_->addLayout(form);
  column_->addStretch(1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  body_ = fillPanel(*this, contents, buttons);
  body_->stackWhereNarrow(*halves_, true);
  ok_->setDefault(true);  // in the dialog, where Return finds it
  buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(controls_, &PageLayoutControls::changed, this, &PageLayoutSheet::takeChoices);
  controls_->setPrintInfo(info_);
  showPage();
}

void PageLayoutSheet::addAccessoryController(ZyPageLayoutAccessory* accessory) {
  accessories_ << accessory;
  column_->insertWidget(column_->count() - 1, accessory);
  alignLabels(*this);
  body_->stackWhereNarrow(*halves_, true);
  accessory->setPrintInfo(info_);
  connect(accessory, &ZyPageLayoutAccessory::changed, this, &PageLayoutSheet::takeChoices);
}

void PageLayoutSheet::takeChoices() {
  controls_->applyTo(info_);
  for (const ZyPageLayoutAccessory* accessory : accessories_) accessory->applyTo(info_);
  showPage();
}

void PageLayoutSheet::showPage() {
  const bool lines = info_.printsHeaderAndFooter();
  const Result<Pagination> pages = paginate(kSample, info_, lines, lines);
  ok_->setEnabled(pages.ok());
  if (pages) return preview_->setPage(*pages, 1);
  preview_->setProblem(localizedString("The margins leave no room on the paper."));
}

}  // namespace norvex
