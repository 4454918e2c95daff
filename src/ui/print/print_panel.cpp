#include "ui/print/print_panel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
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
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "base/localized_string.h"
#include "picture/localized_error.h"
#include "print/page_image.h"
#include "print/print_job.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/file_dialogs.h"
#include "ui/panels/modal_dialog.h"
#include "ui/panels/panel_body.h"
#include "ui/print/document_page_controls.h"
#include "ui/print/page_layout_controls.h"
#include "ui/print/page_layout_preview.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kSettleMs = 80;
constexpr int kRefreshMs = 5000;
constexpr QSize kSmallestPreview(330, 330);
const QString kSuffix = QStringLiteral("pdf");
const QString kFileItem = QStringLiteral("\n");  // no printer can be called that

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
      spooler_(spooler),
      info_(operation.printInfo()),
      source_(operation.view().printSource()),
      headerAndFooter_(new QCheckBox(localizedString("Hea&der and footer"))) {
  setWindowTitle(localizedString("Print “%1”").arg(source_.jobTitle));
  setWindowModality(Qt::WindowModal);
  const int options = operation.printPanel().options();
  auto* contents = new QWidget;
  auto* box = new QVBoxLayout(contents);
  auto* halves = new QHBoxLayout;
  if (options & NSPrintPanelShowsPreview) halves->addWidget(previewColumn(), 1);
  auto* form = new QFormLayout;
  addPrinter(form);
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
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, &PrintPanel::drawPage);
  connect(&refresh_, &QTimer::timeout, this, &PrintPanel::fetchPrinters);
  askForFile = [this](const QString& suggestion) { return chosenFile(this, suggestion); };
  mayReplace = [this](const QString& path) { return isToBeReplaced(this, path); };
  layout_->setPrintInfo(info_);
  refresh_.start(kRefreshMs);
  fetchPrinters();
  showState();
  takeChoices();
}

PrintPanel::~PrintPanel() {
  ending_.cancel();
  drawing_.wait();
  asking_.wait();
}

void PrintPanel::addPrinter(QFormLayout* form) {
  printer_ = new QComboBox;
  printer_->setObjectName(QStringLiteral("printer"));
  printer_->setAccessibleName(localizedString("Printer"));
  printer_->addItem(localizedString("Save as PDF file"), kFileItem);
  state_ = new QLabel;
  state_->setTextFormat(Qt::PlainText);  // a printer's name is no markup
  state_->setObjectName(QStringLiteral("printerState"));
  state_->setWordWrap(true);
  state_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  state_->installEventFilter(this);
  makeQuiet(*state_);
  form->addRow(localizedString("P&rinter:"), printer_);
  form->addRow(QString(), state_);
  connect(printer_, &QComboBox::activated, this, [this] {
    chosen_ = true;
    info_.setPrinterName(savesToFile() ? QString() : printer_->currentData().toString());
    showState();
  });
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

QWidget* PrintPanel::previewColumn() {
  auto* column = new QWidget;
  auto* box = new QVBoxLayout(column);
  box->setContentsMargins(0, 0, 0, 0);
  preview_ = new PageLayoutPreview;
  preview_->setMinimumSize(leastPreview(*this, kSmallestPreview));
  connect(preview_, &PageLayoutPreview::resized, &settle_, [this] { settle_.start(kSettleMs); });
  box->addWidget(preview_, 1);
  auto* row = new QHBoxLayout;
  previous_ = new QToolButton;
  next_ = new QToolButton;
  previous_->setArrowType(Qt::LeftArrow);
  next_->setArrowType(Qt::RightArrow);
  previous_->setAutoRaise(true);
  next_->setAutoRaise(true);
  previous_->setAccessibleName(localizedString("Previous page"));
  next_->setAccessibleName(localizedString("Next page"));
  previous_->setObjectName(QStringLiteral("previousPage"));
  next_->setObjectName(QStringLiteral("nextPage"));
  pageLabel_ = new QLabel;
  pageLabel_->setObjectName(QStringLiteral("pageLabel"));
  row->addStretch();
  row->addWidget(previous_);
  row->addWidget(pageLabel_);
  row->addWidget(next_);
  row->addStretch();
  box->addLayout(row);
  connect(previous_, &QToolButton::clicked, this, [this] { showPage(page_ - 1); });
  connect(next_, &QToolButton::clicked, this, [this] { showPage(page_ + 1); });
  return column;
}

void PrintPanel::fetchPrinters() {
  if (isAsking_ || printer_->view()->isVisible()) return;
  isAsking_ = true;
  asking_ = workInBackground(
      this, [spooler = &spooler_, cancel = ending_] { return spooler->printers(cancel); },
      [this](const Result<QList<Printer>>& printers) {
        isAsking_ = false;
        showPrinters(printers);
      });
}

void PrintPanel::showPrinters(const Result<QList<Printer>>& printers) {
  if (printer_->view()->isVisible()) return;  // nothing moves under the pointer of somebody who chooses
  const bool first = !printersKnown_;
  const QVariant chosen = printer_->currentData();
  printers_ = printers ? *printers : QList<Printer>();
  printersProblem_ = printers ? QString() : localizedError(printers.error()).sentence;
  printersKnown_ = true;
  const QString title = printer_->currentText();
  while (printer_->count() > 1) printer_->removeItem(0);
  int place = 0;
  for (const Printer& printer : printers_) printer_->insertItem(place++, printer.description, printer.name);
  int index = printer_->findData(first && !chosen_ ? firstChoice() : chosen.toString());
  if (index < 0 && !first) {  // nobody chose another one, so it stays until somebody does
    printer_->insertItem(0, title, chosen);
    index = 0;
  }
  printer_->setCurrentIndex(index < 0 ? printer_->count() - 1 : index);
  info_.setPrinterName(savesToFile() ? QString() : printer_->currentData().toString());
  showState();
}

QString PrintPanel::firstChoice() const {
  QString choice = printers_.isEmpty() ? QString() : printers_.first().name;
  for (const Printer& printer : printers_)
    if (printer.isDefault) choice = printer.name;
  for (const Printer& printer : printers_)
    if (printer.name == info_.printerName()) choice = printer.name;
  return choice;
}

bool PrintPanel::savesToFile() const {
  return printer_->currentData().toString() == kFileItem;
}

void PrintPanel::showState() {
  const bool file = savesToFile();
  const bool waiting =
      !printersKnown_ && !chosen_;  // Return shall not mean a file because the printers are slow
  print_->setText(file && !waiting ? localizedString("Sa&ve…") : localizedString("&Print"));
  if (copies_) copies_->setEnabled(waiting || !file);
  bool usable = file && !waiting;
  QString text = !printersKnown_               ? localizedString("Looking for printers…")
                 : !printersProblem_.isEmpty() ? printersProblem_
                 : !file                       ? localizedString("This printer is no longer there.")
                 : printers_.isEmpty()         ? localizedString("There is no printer.")
                                               : localizedString("The pages become a PDF file.");
  for (const Printer& printer : printers_)
    if (!file && printer.name == printer_->currentData().toString()) {
      text = stateText(printer);
      usable = printer.acceptsJobs;
    }
  state_->setText(text);
  showWholeState();
  print_->setEnabled(usable && pages_.has_value());
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
      each->setRange(1, std::max(1, pageCount()));
      if (wasLast || (each == lastPage_ && allPages_->isChecked())) each->setValue(each->maximum());
    }
    if (somePages_->isChecked())
      info_.setPageRange(firstPage_->value(), std::max(firstPage_->value(), lastPage_->value()));
    else
      info_.setPrintsAllPages();
  }
  showState();
  if (pages) return showPage(page_);
  if (preview_) preview_->setProblem(localizedError(pages.error()).sentence);
}

void PrintPanel::showPage(int page) {
  if (!preview_ || !pages_) return;
  page_ = std::clamp(page, 1, pageCount());
  const SheetPlace place = pages_->placeOf(page_ - 1);
  preview_->setPage(pages_->pages().at(place.page).pagination, int(place.tile) + 1);
  pageLabel_->setText(localizedString("%1 of %2").arg(page_).arg(pageCount()));
  previous_->setEnabled(page_ > 1);
  next_->setEnabled(page_ < pageCount());
  settle_.start(kSettleMs);
}

void PrintPanel::drawPage() {
  if (!preview_ || !pages_) return;
  if (isDrawing_) {
    drawAgain_ = true;
    return;
  }
  const QSize pixels = preview_->paperPixels();
  if (pixels.isEmpty()) return;
  const JobPage& page = pages_->pages().at(pages_->placeOf(page_ - 1).page);
  PageImageRequest request{source_, info_, page.number == pictureNumber_ ? picture_ : QByteArray(), page_ - 1,
                           pixels};
  isDrawing_ = true;
  drawing_ = workInBackground(
      this,
      [request, page, pictures = operation_.services().pictures, cancel = ending_]() mutable -> Drawn {
        if (request.picture.isEmpty()) {
          const Result<QByteArray> picture = pictureOf(page.drawing, cancel);
          if (!picture) return {{}, page.number, {}, localizedError(picture.error()).sentence};
          request.picture = *picture;
        }
        const Result<QImage> image = pageImage(request, *pictures, cancel);
        if (!image) return {request.picture, page.number, {}, localizedError(image.error()).sentence};
        return {request.picture, page.number, *image, {}};
      },
      [this](const Drawn& drawn) { takeDrawing(drawn); });
}

void PrintPanel::takeDrawing(const Drawn& drawn) {
  isDrawing_ = false;
  picture_ = drawn.picture;
  pictureNumber_ = drawn.number;
  if (std::exchange(drawAgain_, false)) return drawPage();
  if (drawn.problem.isEmpty())
    preview_->setImage(drawn.image);
  else
    preview_->setProblem(drawn.problem);
}

/// The panel is as high as its lines were before the sentence was known; one that wraps makes it higher.
void PrintPanel::showWholeState() {
  if (isVisible()) state_->setMinimumHeight(state_->heightForWidth(state_->width()));
}

bool PrintPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == state_ && event->type() == QEvent::Resize) showWholeState();
  return QDialog::eventFilter(watched, event);
}

void PrintPanel::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && state_) makeQuiet(*state_);
}

void PrintPanel::accept() {
  takeChoices();  // a mnemonic presses the button while a number is still typed
  if (!pages_) return;
  info_.setJobSavingPath(QString());
  if (savesToFile()) {
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
