#include "platform/qt/print_interaction.h"

#include <QProgressDialog>

#include "platform/localized_string.h"
#include "platform/qt/alert.h"
#include "platform/qt/page_layout_sheet.h"
#include "platform/qt/print_panel.h"
#include "platform/qt/zy_page_layout_accessory.h"

namespace norvex {
namespace {

constexpr int kQuickMs = 300;

}  // namespace

QtPrintInteraction::QtPrintInteraction(PrintSpooler& spooler, QWidget* window, AlertPresenter* alerts)
    : spooler_(spooler), window_(window), alerts_(alerts) {}

QtPrintInteraction::~QtPrintInteraction() {
  for (const auto& dialog : progress_) delete dialog.data();
}

bool QtPrintInteraction::runPrintPanel(NSPrintOperation& operation) {
  PrintPanel panel(operation, spooler_, window_);
  return panel.exec() == QDialog::Accepted;
}

void QtPrintInteraction::beginPageLayout(const NSPrintInfo& printInfo, std::function<void(const NSPrintInfo&, int)> end) {
  auto* sheet = new PageLayoutSheet(printInfo, window_);
  sheet->setAttribute(Qt::WA_DeleteOnClose);
  sheet->addAccessoryController(new ZyPageLayoutAccessory);
  QObject::connect(sheet, &QDialog::finished, sheet, [sheet, end](int code) { end(sheet->printInfo(), code == QDialog::Accepted ? 1 : 0); });
  sheet->open();
}

void QtPrintInteraction::jobDidBegin(const QString& title, const CancelToken& cancel) {
  auto* dialog = new QProgressDialog(localizedString("Printing “%1”…").arg(title), localizedString("Cancel"), 0, 0, window_);
  dialog->setWindowTitle(localizedString("Print"));
  dialog->setMinimumDuration(kQuickMs);
  dialog->setAutoClose(false);
  QObject::connect(dialog, &QProgressDialog::canceled, dialog, [cancel] { cancel.cancel(); });
  progress_.insert(title, dialog);
}

void QtPrintInteraction::jobDidEnd(const QString& title, const Result<void>& result) {
  if (const auto dialog = progress_.take(title)) {
    dialog->disconnect();
    dialog->hide();
    dialog->deleteLater();
  }
  if (result || result.error().kind == ErrorKind::Cancelled) return;
  const QString& message = result.error().message;
  Alert alert;
  alert.messageText = localizedString("“%1” was not printed.").arg(title);
  alert.informativeText = message.isEmpty() ? QString() : message.at(0).toUpper() + message.mid(1) + u'.';
  QtAlertPresenter own;
  (alerts_ ? *alerts_ : static_cast<AlertPresenter&>(own)).runModal(alert);
}

}  // namespace norvex
