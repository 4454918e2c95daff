// The printing half of Document: its settings, the page-layout sheet, and the print operation of its window's
// view.
#include <QPointer>
#include <QSettings>

#include "base/background_work.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "document/print_settings.h"
#include "document/print_titles.h"
#include "print/page_layout_options.h"
#include "print/print_spooler.h"
#include "print/printable_view.h"

namespace norvex {
namespace {

constexpr int kConfirmed = 1;

}  // namespace

void Document::setPrintServices(const PrintServices& services) {
  printServices_ = services;
  printServices_.pictures = &service_;
}

void Document::runPageLayout(QObject* sender) {
  Q_UNUSED(sender)
  if (!printServices_.interaction || printerSearch_) return;
  // Settings that name no printer cannot lose one.
  if (printInfo_.printerName().isEmpty()) return openPageLayout(printInfo_);
  if (!printServices_.spooler) return openPageLayout(NSPrintInfo::sharedPrintInfo());
  printerSearch_.emplace();
  const int preparation = printServices_.interaction->preparationDidBegin(displayName(), *printerSearch_);
  workInBackground(
      this,
      [spooler = printServices_.spooler, name = printInfo_.printerName(), cancel = *printerSearch_] {
        return printerNamed(*spooler, name, cancel);
      },
      [this, preparation](const Result<Printer>& printer) { takePrinter(preparation, printer); });
}

void Document::takePrinter(int preparation, const Result<Printer>& printer) {
  const bool cancelled = printerSearch_->cancelled();
  printerSearch_.reset();
  printServices_.interaction->preparationDidEnd(preparation, displayName(), {});
  if (!cancelled) openPageLayout(printer ? printInfo_ : NSPrintInfo::sharedPrintInfo());
}

void Document::openPageLayout(const NSPrintInfo& info) {
  printServices_.interaction->beginPageLayout(
      info, [self = QPointer<Document>(this)](const NSPrintInfo& pageLayout, int returnCode) {
        if (self) self->pageLayoutDidEnd(pageLayout, returnCode);
      });
}

void Document::pageLayoutDidEnd(const NSPrintInfo& pageLayout, int returnCode, void* contextInfo) {
  Q_UNUSED(contextInfo)
  if (returnCode != kConfirmed) return;
  setPrintInfo(pageLayout);
  QSettings userDefaults;
  rememberPrintInfo(userDefaults, pageLayout);
}

std::unique_ptr<NSPrintOperation> Document::printOperationWithSettings(const QVariantMap& settings,
                                                                       DocumentError* error) {
  Q_UNUSED(error)
  NorvexView* const view = windowController_ ? windowController_->imageView() : nullptr;
  if (!view) return nullptr;
  auto operation = NSPrintOperation::printOperationWithView(std::make_unique<PrintableNorvexView>(*view),
                                                            printInfo_, printServices_);
  view->setPrintJobTitle(norvex::printJobTitle(fileURL_, displayName()));
  view->setTitle(printPageTitle(fileURL_, displayName()));
  NSPrintPanel& panel = operation->printPanel();
  panel.setOptions(panel.options() | pageLayoutOptions);
  operation->setCanSpawnSeparateThread(true);
  operation->printInfo().addEntries(settings);
  return operation;
}

}  // namespace norvex
