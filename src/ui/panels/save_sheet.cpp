#include "ui/panels/save_sheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

#include "base/localized_string.h"
#include "base/path_extension.h"
#include "base/state_folder.h"
#include "types/type_description.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/modal_dialog.h"

namespace norvex {
namespace {

QString filterOf(const QString& title, const QList<UTType>& types) {
  QStringList extensions;
  for (const UTType& type : types) extensions << type.preferredFilenameExtension();
  return nameFilter(title, extensions);
}

QUrl startOf(const SavePanelSettings& settings) {
  for (const QUrl& url : {settings.directoryURL, settings.ownDirectoryURL})
    if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir()) return url;
  return QUrl::fromLocalFile(picturesFolder());
}

constexpr QSize kSize(720, 640);

}  // namespace

SaveSheet::SaveSheet(QWidget* window, SavePanelSettings settings)
    : QFileDialog(window), settings_(std::move(settings)), accessory_(settings_.accessoryView) {
  // The platform's own dialog has no room for an accessory view.
  setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
  setWindowModality(Qt::WindowModal);
  setAcceptMode(QFileDialog::AcceptSave);
  setFileMode(QFileDialog::AnyFile);
  setWindowTitle(settings_.title);
  setDirectoryUrl(startOf(settings_));
  arrange();
  settleFileDialog(*this, kSize);
  selectFile(settings_.nameFieldStringValue);
  showName();
}

SaveSheet::~SaveSheet() {
  if (!accessory_) return;
  accessory_->hide();
  accessory_->setParent(accessoryParent_);
}

void SaveSheet::arrange() {
  name_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (name_) connect(name_, &QLineEdit::textEdited, this, &SaveSheet::takeTyped);
  hideExtension_ = new QCheckBox(localizedString("Hide extension"), this);
  hideExtension_->setObjectName(QStringLiteral("hideExtension"));
  hideExtension_->setChecked(settings_.extensionHidden);
  hideExtension_->setVisible(settings_.canSelectHiddenExtension);
  connect(hideExtension_, &QCheckBox::toggled, this, &SaveSheet::showName);
  if (settings_.selectedContentType >= 0) {
    addTypeList();
  } else {
    if (!settings_.allowsOtherFileTypes && !settings_.allowedContentTypes.isEmpty())
      setNameFilter(filterOf(localizedString("Pictures"), settings_.allowedContentTypes));
    for (const char* unused : {"fileTypeLabel", "fileTypeCombo"})
      if (auto* widget = findChild<QWidget*>(QString::fromLatin1(unused))) widget->hide();
  }
  addAccessory();
  const QList<QComboBox*> lists = accessory_ ? accessory_->findChildren<QComboBox*>() : QList<QComboBox*>();
  for (QComboBox* list : lists) connect(list, &QComboBox::currentIndexChanged, this, &SaveSheet::showName);
}

void SaveSheet::addTypeList() {
  QStringList filters;
  for (const UTType& type : settings_.allowedContentTypes)
    filters << filterOf(localizedDescription(type), {type});
  setNameFilters(filters);
  selectNameFilter(filters.value(settings_.selectedContentType));
  connect(this, &QFileDialog::filterSelected, this, [this, filters](const QString& chosen) {
    settings_.selectedContentType = int(filters.indexOf(chosen));
    showName();
  });
}

void SaveSheet::addAccessory() {
  auto* below = new QWidget(this);
  below->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);  // what is left over is the files'
  auto* column = new QVBoxLayout(below);
  column->setContentsMargins(0, 6, 0, 0);
  if (!settings_.message.isEmpty()) {
    auto* message = new QLabel(settings_.message, below);
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    column->addWidget(message);
  }
  if (accessory_) {
    accessoryParent_ = accessory_->parentWidget();
    column->addWidget(accessory_);
    accessory_->show();
  }
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (grid) grid->addWidget(below, grid->rowCount(), 0, 1, -1);
  const int types = grid ? grid->indexOf(findChild<QWidget*>(QStringLiteral("fileTypeCombo"))) : -1;
  if (types < 0 || settings_.selectedContentType >= 0) return column->addWidget(hideExtension_);
  // Beneath the name that it is about, in the row of a list that is not there: low screens have none to
  // spare.
  int row = 0, first = 0, rows = 0, columns = 0;
  grid->getItemPosition(types, &row, &first, &rows, &columns);
  grid->addWidget(hideExtension_, row, first, rows, columns);
  if (name_) setTabOrder(name_, hideExtension_);
}

bool SaveSheet::isAllowedExtension(const QString& extension) const {
  const auto type = UTType::typeWithFilenameExtension(extension);
  return type && settings_.allowedContentTypes.contains(*type);
}

QUrl SaveSheet::typedURL() const {
  QString path = selectedFiles().value(0);
  // "Map 1.5" names no type: with such a name the extension of the first type goes after it.
  if (!settings_.allowsOtherFileTypes && !settings_.allowedContentTypes.isEmpty() &&
      !pathExtension(path).isEmpty() && !isAllowedExtension(pathExtension(path)))
    path += u'.' + settings_.allowedContentTypes.first().preferredFilenameExtension();
  return QUrl::fromLocalFile(path);
}

SavePanelAnswer SaveSheet::answer() const {
  return {false, typedURL(), settings_.selectedContentType};
}

QUrl SaveSheet::target() const {
  return settings_.target ? settings_.target(typedURL(), settings_.selectedContentType) : typedURL();
}

void SaveSheet::takeTyped(const QString& name) {
  const QString extension = pathExtension(name);
  if (!isAllowedExtension(extension)) return;
  const UTType type = *UTType::typeWithFilenameExtension(extension);
  const QScopedValueRollback<bool> typing(typing_, true);  // the name is the user's
  if (settings_.typed) settings_.typed(type);
  const qsizetype row = settings_.allowedContentTypes.indexOf(type);
  if (settings_.selectedContentType < 0 || row == settings_.selectedContentType) return;
  const int cursor = name_->cursorPosition();
  selectNameFilter(nameFilters().value(row));  // which gives the name the extension that it likes best
  settings_.selectedContentType = int(row);
  name_->setText(name);
  name_->setCursorPosition(cursor);
}

void SaveSheet::showName() {
  if (typing_) return;
  if (!name_ || !settings_.canSelectHiddenExtension || name_->text().isEmpty()) return;
  if (!hideExtension_->isChecked()) return name_->setText(target().fileName());
  if (isAllowedExtension(pathExtension(name_->text()))) name_->setText(pathWithoutExtension(name_->text()));
}

bool SaveSheet::mayReplace(const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  ModalDialog<QMessageBox> question(this);
  question->setIcon(QMessageBox::Warning);
  question->setTextFormat(Qt::PlainText);
  question->setText(localizedString("“%1” exists already.").arg(QFileInfo(path).fileName()));
  question->setInformativeText(localizedString("What it holds will be lost."));
  QPushButton* replace = question->addButton(localizedString("Replace"), QMessageBox::DestructiveRole);
  question->setDefaultButton(question->addButton(QMessageBox::Cancel));
  return question.isAnswered() && question->clickedButton() == replace;
}

void SaveSheet::accept() {
  const QString typed = selectedFiles().value(0);
  // A folder is gone into; anything else is where the file will be.
  if (!name_ || name_->text().isEmpty() || QFileInfo(typed).isDir()) return QFileDialog::accept();
  if (mayReplace(target().toLocalFile())) QFileDialog::accept();
}

}  // namespace norvex
