#include "ui/export/export_target.h"

#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "base/latin1_text.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "base/state_folder.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/modal_dialog.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

/// True if a file of that name would be taken for one of `format`.
bool isNamedFor(const QString& name, PictureFormat format) {
  return hasName(rowOf(format).extensions, pathExtension(name).toStdString()) ||
         isSameName(writtenExtension(format), pathExtension(name).toStdString());
}

QString named(const QString& name, PictureFormat format) {
  if (name.isEmpty() || isNamedFor(name, format)) return name;
  // "Map 1.5" keeps its name: only what names a format is an extension to be replaced.
  const bool replaces = formatOfExtension(pathExtension(name).toStdString()).has_value();
  return (replaces ? pathWithoutExtension(name) : name) + u'.' + latin1(writtenExtension(format));
}

}  // namespace

ExportTarget::ExportTarget(const QString& folder, const QString& name, QWidget* parent)
    : QWidget(parent), folder_(folder), name_(new QLineEdit(name, this)), shownFolder_(new QLabel(this)) {
  name_->setObjectName(QStringLiteral("exportName"));
  auto* choose = new QPushButton(localizedString("Other Folder…"), this);
  choose->setAutoDefault(false);
  shownFolder_->setTextFormat(Qt::PlainText);
  shownFolder_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  makeQuiet(*shownFolder_);
  auto* nameTitle = new QLabel(localizedString("Name:"), this);
  nameTitle->setBuddy(name_);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(nameTitle, 0, 0);
  grid->addWidget(name_, 0, 1, 1, 2);
  grid->addWidget(shownFolder_, 1, 1);
  grid->addWidget(choose, 1, 2);
  grid->setColumnStretch(1, 1);
  connect(name_, &QLineEdit::textEdited, this, &ExportTarget::takeTyped);
  connect(name_, &QLineEdit::textChanged, this, &ExportTarget::changed);
  connect(choose, &QPushButton::clicked, this, &ExportTarget::chooseFolder);
  showFolder();
}

void ExportTarget::setFormat(PictureFormat format) {
  format_ = format;
  const QString name = named(name_->text(), format);
  if (name == name_->text()) return;
  const int at = name_->cursorPosition();
  name_->setText(name);
  name_->setCursorPosition(at);
}

QString ExportTarget::path() const {
  const QString name = name_->text().trimmed();
  return name.isEmpty() ? QString() : QDir(folder_).absoluteFilePath(named(name, format_));
}

void ExportTarget::takeTyped() {
  if (isNamedFor(name_->text(), format_)) return;
  if (const auto typed = formatOfExtension(pathExtension(name_->text()).toStdString()))
    emit formatTyped(*typed);
}

void ExportTarget::chooseFolder() {
  ModalDialog<QFileDialog> dialog(this, localizedString("Folder for the exported file"), folder_);
  dialog->setFileMode(QFileDialog::Directory);
  dialog->setOption(QFileDialog::ShowDirsOnly);
  dialog->setSupportedSchemes({QStringLiteral("file")});
  settleFileDialog(*dialog);
  if (!dialog.isAccepted()) return;
  folder_ = dialog->selectedFiles().value(0);
  showFolder();
  emit changed();
}

void ExportTarget::showFolder() {
  shownFolder_->setText(localizedString("in %1").arg(writtenFolder(folder_)));
  shownFolder_->setToolTip(folder_);
}

}  // namespace norvex
