#include "ui/print/printer_choice.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>
#include <utility>

#include "base/localized_string.h"
#include "picture/localized_error.h"
#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

constexpr int kRefreshMs = 5000;
const QString kFileItem = QStringLiteral("\n");  // no printer can be called that

}  // namespace

PrinterChoice::PrinterChoice(PrintSpooler& spooler, QString wanted, const CancelToken& ending,
                             QFormLayout* form, QDialog* panel)
    : QObject(panel),
      spooler_(spooler),
      wanted_(std::move(wanted)),
      ending_(ending),
      panel_(panel),
      printer_(new QComboBox),
      state_(new QLabel) {
  printer_->setObjectName(QStringLiteral("printer"));
  printer_->setAccessibleName(localizedString("Printer"));
  printer_->addItem(localizedString("Save as PDF file"), kFileItem);
  state_->setTextFormat(Qt::PlainText);  // a printer's name is no markup
  state_->setObjectName(QStringLiteral("printerState"));
  state_->setWordWrap(true);
  state_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  state_->installEventFilter(this);
  makeQuiet(*state_);
  form->addRow(localizedString("P&rinter:"), printer_);
  form->addRow(QString(), state_);
  connect(printer_, &QComboBox::activated, this, [this] {
    isChosen_ = true;
    showState();
  });
  connect(&refresh_, &QTimer::timeout, this, &PrinterChoice::fetchPrinters);
  refresh_.start(kRefreshMs);
  fetchPrinters();
  showState();
}

PrinterChoice::~PrinterChoice() {
  ending_.cancel();
  asking_.wait();
}

void PrinterChoice::fetchPrinters() {
  if (isAsking_ || printer_->view()->isVisible()) return;
  isAsking_ = true;
  asking_ = workInBackground(
      this, [spooler = &spooler_, cancel = ending_] { return spooler->printers(cancel); },
      [this](const Result<QList<Printer>>& printers) {
        isAsking_ = false;
        takePrinters(printers);
      });
}

void PrinterChoice::takePrinters(const Result<QList<Printer>>& printers) {
  if (printer_->view()->isVisible()) return;  // nothing moves under the pointer of somebody who chooses
  printers_ = printers ? *printers : QList<Printer>();
  problem_ = printers ? QString() : localizedError(printers.error()).sentence;
  listPrinters();
  areKnown_ = true;
  showState();
}

void PrinterChoice::listPrinters() {
  const QVariant chosen = printer_->currentData();
  const QString title = printer_->currentText();
  while (printer_->count() > 1) printer_->removeItem(0);
  int place = 0;
  for (const Printer& printer : printers_) printer_->insertItem(place++, printer.description, printer.name);
  int index = printer_->findData(isOpen() ? firstChoice() : chosen.toString());
  if (index < 0 && areKnown_) {  // nobody chose another one, so it stays until somebody does
    printer_->insertItem(0, title, chosen);
    index = 0;
  }
  printer_->setCurrentIndex(index < 0 ? printer_->count() - 1 : index);
}

QString PrinterChoice::firstChoice() const {
  QString choice = printers_.isEmpty() ? QString() : printers_.first().name;
  for (const Printer& printer : printers_)
    if (printer.isDefault) choice = printer.name;
  for (const Printer& printer : printers_)
    if (printer.name == wanted_) choice = printer.name;
  return choice;
}

bool PrinterChoice::savesToFile() const {
  return printer_->currentData().toString() == kFileItem;
}

QString PrinterChoice::printerName() const {
  return savesToFile() ? QString() : printer_->currentData().toString();
}

const Printer* PrinterChoice::chosenPrinter() const {
  const auto found = std::find_if(printers_.begin(), printers_.end(), [this](const Printer& printer) {
    return printer.name == printer_->currentData().toString();
  });
  return found == printers_.end() ? nullptr : &*found;
}

bool PrinterChoice::isUsable() const {
  if (isOpen()) return false;  // Return shall not mean a file because the printers are slow
  const Printer* const printer = chosenPrinter();
  return printer ? printer->acceptsJobs : savesToFile();
}

QString PrinterChoice::sentence() const {
  if (const Printer* const printer = chosenPrinter()) return stateText(*printer);
  if (!areKnown_) return localizedString("Looking for printers…");
  if (!problem_.isEmpty()) return problem_;
  if (!savesToFile()) return localizedString("This printer is no longer there.");
  return printers_.isEmpty() ? localizedString("There is no printer.")
                             : localizedString("The pages become a PDF file.");
}

void PrinterChoice::showState() {
  state_->setText(sentence());
  showWholeState();
  emit changed();
}

/// The panel is as high as its lines were before the sentence was known; one that wraps makes it higher.
void PrinterChoice::showWholeState() {
  if (panel_->isVisible()) state_->setMinimumHeight(state_->heightForWidth(state_->width()));
}

bool PrinterChoice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == state_ && event->type() == QEvent::Resize) showWholeState();
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
