#include "ui/export/export_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/localized_string.h"
#include "ui/export/export_options.h"
#include "ui/export/export_target.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/panel_body.h"
#include "ui/picture/zy_image_view.h"
#include "ui/style/quiet_text.h"

namespace norvex {

ExportDialog::ExportDialog(QWidget* window, const ExportOffer& offer, const ExportChoice& first)
    : QDialog(window),
      options_(new ExportOptions(offer, first, this)),
      target_(new ExportTarget(offer.folder, offer.name, this)),
      preview_(new ZyImageView(this)),
      expected_(new QLabel(this)),
      remarks_(new QLabel(this)) {
  setWindowTitle(localizedString("Export"));
  setWindowModality(Qt::WindowModal);
  auto* left = new QVBoxLayout;
  left->addWidget(options_);
  left->addStretch();
  auto* upper = new QHBoxLayout;
  upper->setSpacing(20);
  upper->addLayout(left);
  upper->addWidget(makePreview(), 1);
  auto* contents = new QWidget;
  auto* column = new QVBoxLayout(contents);
  column->setSpacing(14);
  column->addLayout(upper, 1);
  column->addWidget(target_);
  column->addWidget(remarks_);
  fillPanel(*this, contents, makeButtons())->stackWhereNarrow(*upper);
  remarks_->setTextFormat(Qt::PlainText);
  remarks_->setWordWrap(true);
  remarks_->setObjectName(QStringLiteral("exportRemarks"));
  remarks_->hide();
  target_->setFormat(options_->choice().format);
  connect(options_, &ExportOptions::changed, this, [this] {
    target_->setFormat(options_->choice().format);
    emit changed();
  });
  connect(target_, &ExportTarget::formatTyped, options_, &ExportOptions::setFormat);
  connect(target_, &ExportTarget::changed, this, &ExportDialog::validate);
  resize(sizeForTexts(*this, {680, 430}));
  validate();
  target_->nameField()->setFocus();
  target_->nameField()->setSelection(0, int(offer.name.size()));
}

QWidget* ExportDialog::makePreview() {
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  preview_->setAccessibleName(localizedString("Preview"));
  preview_->setMinimumSize(leastPreview(*this, {220, 160}));
  preview_->setImageFrameStyle(ZyImageView::GrayBezel);
  preview_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  expected_->setObjectName(QStringLiteral("exportExpected"));
  expected_->setAlignment(Qt::AlignCenter);
  makeQuiet(*expected_);
  column->addWidget(preview_, 1);
  column->addWidget(expected_);
  return side;
}

QWidget* ExportDialog::makeButtons() {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  export_ = buttons->addButton(localizedString("Export"), QDialogButtonBox::AcceptRole);
  export_->setObjectName(QStringLiteral("exportButton"));
  export_->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::chosen);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

ExportChoice ExportDialog::choice() const {
  return options_->choice();
}

void ExportDialog::takeTyped() {
  options_->takeTyped();
}

QString ExportDialog::path() const {
  return target_->path();
}

void ExportDialog::validate() {
  export_->setEnabled(!impossible_ && !target_->path().isEmpty());
}

void ExportDialog::showMaking() {
  impossible_ = false;
  expected_->setText(localizedString("Making a preview…"));
  validate();
}

void ExportDialog::showMade(const QImage& preview, qint64 bytes, const QStringList& remarks) {
  impossible_ = false;
  preview_->setImage(preview);
  expected_->setText(localizedString("File size: %1").arg(QLocale().formattedDataSize(bytes, 1)));
  remarks_->setText(remarks.join(u'\n'));
  remarks_->setVisible(!remarks.isEmpty());
  validate();
}

void ExportDialog::showProblem(const QString& sentence) {
  impossible_ = true;
  preview_->setImage({});
  expected_->setText(localizedString("Not possible"));
  remarks_->setText(sentence);
  remarks_->setVisible(!sentence.isEmpty());
  validate();
}

}  // namespace norvex
