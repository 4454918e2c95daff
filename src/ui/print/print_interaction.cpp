#include "ui/print/print_interaction.h"

#include <QLabel>
#include <QProgressDialog>
#include <QTimer>

#include <limits>

#include "base/localized_string.h"
#include "picture/localized_error.h"
#include "ui/panels/alert_box.h"
#include "ui/panels/centred_window.h"
#include "ui/panels/modal_dialog.h"
#include "ui/print/page_layout_sheet.h"
#include "ui/print/print_panel.h"
#include "ui/print/zy_page_layout_accessory.h"

namespace norvex {
namespace {

constexpr int kQuickMs = 300;
constexpr int kProgressWidth = 360;

}  // namespace

QtPrintInteraction::QtPrintInteraction(PrintSpooler& spooler, QWidget* window, AlertPresenter* alerts)
    : spooler_(spooler), window_(window), alerts_(alerts) {}

QtPrintInteraction::~QtPrintInteraction() {
  for (const auto& dialog : progress_) delete dialog.data();
}

bool QtPrintInteraction::runPrintPanel(NSPrintOperation& operation) {
  return ModalDialog<PrintPanel>(operation, spooler_, window_).isAccepted();
}

void QtPrintInteraction::beginPageLayout(const NSPrintInfo& printInfo,
                                         std::function<void(const NSPrintInfo&, int)> end) {
  auto* sheet = new PageLayoutSheet(printInfo, window_);
  sheet->setAttribute(Qt::WA_DeleteOnClose);
  sheet->addAccessoryController(new ZyPageLayoutAccessory);
  sheet->adjustSize();
  centreOver(*sheet, window_);
  QObject::connect(sheet, &QDialog::finished, sheet,
                   [sheet, end](int code) { end(sheet->printInfo(), code == QDialog::Accepted ? 1 : 0); });
  sheet->open();
}

int QtPrintInteraction::preparationDidBegin(const QString& title, const CancelToken& cancel) {
  return showProgress(localizedString("Preparing “%1” for printing…").arg(title), cancel);
}

void QtPrintInteraction::preparationDidEnd(int number, const QString& title, const Result<void>& result) {
  jobDidEnd(number, title, result);
}

int QtPrintInteraction::jobDidBegin(const QString& title, const CancelToken& cancel) {
  return showProgress(localizedString("Printing “%1”…").arg(title), cancel);
}

int QtPrintInteraction::showProgress(const QString& text, const CancelToken& cancel) {
  auto* dialog = new QProgressDialog(QString(), localizedString("Cancel"), 0, 0, window_);
  dialog->setWindowTitle(localizedString("Printing"));
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);  // a file's name is no markup
  label->setAlignment(Qt::AlignCenter);
  dialog->setLabel(label);
  dialog->setMinimumWidth(kProgressWidth);
  // Its own patience does not count for a bar without an end.
  dialog->setMinimumDuration(std::numeric_limits<int>::max());
  QTimer::singleShot(kQuickMs, dialog, &QWidget::show);
  QObject::connect(dialog, &QProgressDialog::canceled, dialog, [cancel] { cancel.cancel(); });
  progress_.insert(++lastJob_, dialog);
  return lastJob_;
}

void QtPrintInteraction::jobDidAdvance(int job, const QString& title, int page, int pages) {
  QProgressDialog* const dialog = progress_.value(job);
  if (!dialog || pages < 2 || dialog->wasCanceled()) return;
  // All at once: a title may hold "%2".
  dialog->setLabelText(localizedString("Printing “%1”: page %2 of %3…")
                           .arg(title, QString::number(page), QString::number(pages)));
  dialog->setMaximum(pages);
  dialog->setValue(page - 1);
}

void QtPrintInteraction::jobDidEnd(int job, const QString& title, const Result<void>& result) {
  delete progress_.take(job).data();
  if (result || result.error().kind == ErrorKind::Cancelled) return;
  const ToldError told = localizedError(result.error());
  Alert alert;
  alert.messageText = localizedString("“%1” was not printed.").arg(title);
  alert.informativeText = told.sentence;
  alert.details = told.details;
  QtAlertPresenter own;
  (alerts_ ? *alerts_ : static_cast<AlertPresenter&>(own)).runModal(alert);
}

}  // namespace norvex
