#include "ui/print/print_panel.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

#include "base/localized_string.h"
#include "picture/localized_error.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/modal_dialog.h"
#include "ui/panels/panel_body.h"
#include "ui/print/document_page_controls.h"
#include "ui/print/page_layout_controls.h"
#include "ui/print/printer_choice.h"
#include "ui/print/sheet_preview.h"

namespace norvex {
namespace {

const QString kSuffix = QStringLiteral("pdf");

/// Beside the picture, under its name; a file that is there, the picture itself above all, is not suggested.
QString suggestedFile(const QWidget* window, const QString& title) {
  const QString name = title + u'.' + kSuffix;
  if (!window || window->windowFilePath().isEmpty()) return name;
  const QDir folder = QFileInfo(window->windowFilePath()).dir();
  QString file = folder.filePath(name);
  for (int number = 2; QFileInfo::exists(file); ++number)
    file = folder.filePath(title + u'-' + QString::number(number) + u'.' + kSuffix);
  return file;
}

/// Empty when nobody wants one.
QString chosenFile(QWidget* panel, const QString& suggestion) {
  ModalDialog<QFileDialog> dialog(panel, localizedString("Save the pages as PDF"), QString(),
                                  localizedString("PDF") + QStringLiteral(" (*.pdf)"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(kSuffix);
  dialog->selectFile(suggestion);
  settleFileDialog(*dialog);
  return dialog.isAccepted() ? dialog->selectedFiles().value(0) : QString();
}

bool isToBeReplaced(QWidget* panel, const QString& path) {
  ModalDialog<QMessageBox> question(
      QMessageBox::Question, panel->windowTitle(),
      localizedString("“%1” exists already. Do you want to replace it?").arg(QFileInfo(path).fileName()),
      QMessageBox::Yes | QMessageBox::No, panel);
  question->setTextFormat(Qt::PlainText);
  return question.isAnswered() && question->result() == QMessageBox::Yes;
}

}  // namespace

PrintPanel::PrintPanel(NSPrintOperation& operation, PrintSpooler& spooler, QWidget* window)
    : QDialog(window),
      operation_(operation),
      info_(operation.printInfo()),
      source_(operation.view().printSource()),
      headerAndFooter_(new QCheckBox(localizedString("Hea&der and footer"))) {
  setWindowTitle(localizedString("Print “%1”").arg(source_.jobTitle));
  setWindowModality(Qt::WindowModal);
  const int options = operation.printPanel().options();
  auto* contents = new QWidget;
  auto* box = new QVBoxLayout(contents);
  auto* halves = new QHBoxLayout;
  if (options & NSPrintPanelShowsPreview) {
    preview_ = new SheetPreview(source_, *operation.services().pictures, ending_, *this);
    halves->addWidget(preview_, 1);
  }
  auto* form = new QFormLayout;
  printer_ = new PrinterChoice(spooler, info_.printerName(), ending_, form, this);
  if (options & NSPrintPanelShowsCopies) addCopies(form);
  if (options & NSPrintPanelShowsPageRange) addPages(form);
  layout_ = new PageLayoutControls(options, form, this);
  headerAndFooter_->setObjectName(QStringLiteral("headerAndFooter"));
  headerAndFooter_->setChecked(info_.printsHeaderAndFooter());
  form->addRow(QString(), headerAndFooter_);
  auto* choices = new QVBoxLayout;
  choices->addLayout(form);
  choices->addStretch(1);
  halves->addLayout(choices);
  box->addLayout(halves, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  print_ = buttons->addButton(localizedString("&Print"), QDialogButtonBox::AcceptRole);
  print_->setObjectName(QStringLiteral("print"));
  fillPanel(*this, contents, buttons)->stackWhereNarrow(*halves, true);
  // Only in the dialog does it become the one button for Return; Cancel shall not stand in while it is
  // disabled.
  print_->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &PrintPanel::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(layout_, &PageLayoutControls::changed, this, &PrintPanel::takeChoices);
  connect(headerAndFooter_, &QCheckBox::clicked, this, &PrintPanel::takeChoices);
  connect(printer_, &PrinterChoice::changed, this, &PrintPanel::takePrinter);
  askForFile = [this](const QString& suggestion) { return chosenFile(this, suggestion); };
  mayReplace = [this](const QString& path) { return isToBeReplaced(this, path); };
  layout_->setPrintInfo(info_);
  takeChoices();
}

PrintPanel::~PrintPanel() {
  ending_.cancel();  // all at once: each part waits for its own
}

void PrintPanel::addCopies(QFormLayout* form) {
  copies_ = new QSpinBox;
  copies_->setObjectName(QStringLiteral("copies"));
  copies_->setRange(1, NSPrintInfo::largestCopies);
  copies_->setValue(info_.copies());
  connect(copies_, &QSpinBox::valueChanged, this, &PrintPanel::takeChoices);
  form->addRow(localizedString("&Copies:"), copies_);
}

void PrintPanel::addPages(QFormLayout* form) {
  if (source_.pages.size() > 1) {
    documentPages_ = new DocumentPageControls(source_, info_, form, this);
    connect(documentPages_, &DocumentPageControls::changed, this, &PrintPanel::takeChoices);
  }
  allPages_ = new QRadioButton(localizedString("&All"));
  somePages_ = new QRadioButton(localizedString("Fro&m"));
  firstPage_ = new QSpinBox;
  lastPage_ = new QSpinBox;
  allPages_->setObjectName(QStringLiteral("allPages"));
  somePages_->setObjectName(QStringLiteral("somePages"));
  firstPage_->setObjectName(QStringLiteral("firstPage"));
  lastPage_->setObjectName(QStringLiteral("lastPage"));
  firstPage_->setAccessibleName(localizedString("First page"));
  lastPage_->setAccessibleName(localizedString("Last page"));
  (info_.printsAllPages() ? allPages_ : somePages_)->setChecked(true);
  auto* range = new QWidget;
  auto* row = new QHBoxLayout(range);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* each : std::initializer_list<QWidget*>{allPages_, somePages_, firstPage_,
                                                       new QLabel(localizedString("to")), lastPage_})
    row->addWidget(each);
  row->addStretch();
  for (QRadioButton* each : {allPages_, somePages_})
    connect(each, &QRadioButton::clicked, this, &PrintPanel::takeChoices);
  for (QSpinBox* each : {firstPage_, lastPage_})
    connect(each, &QSpinBox::valueChanged, this, [this] {
      somePages_->setChecked(true);
      takeChoices();
    });
  form->addRow(documentPages_ ? localizedString("Sheets:") : localizedString("Pages:"), range);
}

void PrintPanel::takeChoices() {
  layout_->applyTo(info_);
  info_.setPrintsHeaderAndFooter(headerAndFooter_->isChecked());
  if (copies_) info_.setCopies(copies_->value());
  if (documentPages_) documentPages_->applyTo(info_);
  const Result<JobPages> pages = JobPages::of(source_, info_);
  pages_ = pages ? std::optional(*pages) : std::nullopt;
  if (allPages_) {
    for (QSpinBox* each : {firstPage_, lastPage_}) {
      const QSignalBlocker quiet(each);
      const bool wasLast = each == lastPage_ && each->value() == each->maximum();
      each->setRange(1, std::max(1, sheetCount()));
      if (wasLast || (each == lastPage_ && allPages_->isChecked())) each->setValue(each->maximum());
    }
    if (somePages_->isChecked())
      info_.setPageRange(firstPage_->value(), std::max(firstPage_->value(), lastPage_->value()));
    else
      info_.setPrintsAllPages();
  }
  showButton();
  if (!preview_) return;
  if (pages)
    preview_->setPages(*pages, info_);
  else
    preview_->setProblem(localizedError(pages.error()).sentence);
}

void PrintPanel::takePrinter() {
  if (!printer_->isOpen()) info_.setPrinterName(printer_->printerName());
  showButton();
}

void PrintPanel::showButton() {
  const bool saves = printer_->savesToFile() && !printer_->isOpen();
  print_->setText(saves ? localizedString("Sa&ve…") : localizedString("&Print"));
  print_->setEnabled(printer_->isUsable() && pages_.has_value());
  if (copies_) copies_->setEnabled(!saves);
}

void PrintPanel::accept() {
  takeChoices();  // a mnemonic presses the button while a number is still typed
  if (!pages_) return;
  info_.setJobSavingPath(QString());
  if (printer_->savesToFile()) {
    const QString path = askForFile(suggestedFile(parentWidget(), source_.jobTitle));
    if (path.isEmpty()) return;
    // Whatever was typed, a PDF is called one; and the question about another file's name says nothing here.
    const bool isCalledPdf = path.endsWith(u'.' + kSuffix, Qt::CaseInsensitive);
    const QString target = isCalledPdf ? path : path + u'.' + kSuffix;
    if (!isCalledPdf && QFileInfo::exists(target) && !mayReplace(target)) return;
    info_.setJobSavingPath(target);
  }
  operation_.printInfo() = info_;
  QDialog::accept();
}

}  // namespace norvex
