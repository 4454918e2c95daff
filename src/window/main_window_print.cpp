// Printing from the document window: the rectangle that is selected or visible, the whole picture, the page
// layout.
#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "print/cups_spooler.h"
#include "ui/print/print_interaction.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"
#include "window/print_commands.h"

namespace norvex {

void MainWindowController::setPrintServices(const PrintServices& services) {
  printServices_ = services;
  if (document_) document_->setPrintServices(services);
}

void MainWindowController::setUpPrinting() {
  if (!printCommands_) {
    printCommands_ = std::make_unique<PrintCommands>();
    connect(printCommands_.get(), &PrintCommands::ended, this, [this](bool printed) {
      if (!printed) closesWhenDone_ = false;  // what failed can be tried again as long as there is a window
      closeIfDone();
    });
  }
  if (!printServices_.spooler) {
    static CupsSpooler spooler;
    printServices_.spooler = &spooler;
  }
  if (!printServices_.interaction) {
    ownPrintInteraction_ = std::make_unique<QtPrintInteraction>(*printServices_.spooler, window_, alerts_);
    printServices_.interaction = ownPrintInteraction_.get();
  }
  if (document_) document_->setPrintServices(printServices_);
}

void MainWindowController::connectPrinting() {
  setUpPrinting();
  connect(doPrintingToolbarItem, &QAction::triggered, this, [this] { doPrinting(doPrintingToolbarItem); });
  auto* pageLayout = new QAction(localizedString("Page Set&up…"), window_);
  pageLayout->setObjectName(QStringLiteral("pageLayoutAction"));
  pageLayout->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
  connect(pageLayout, &QAction::triggered, this, [this] {
    if (document_) document_->runPageLayout(this);
  });
  auto* print = new QAction(localizedString("&Print…"), window_);
  print->setObjectName(QStringLiteral("printAction"));
  print->setShortcut(QKeySequence::Print);
  connect(print, &QAction::triggered, this, [this] { printDocument(); });
  // What the toolbar's item does, for those who have no mouse.
  auto* printPart = new QAction(localizedString("Print Selected or Visible Pa&rt…"), window_);
  printPart->setObjectName(QStringLiteral("printPartAction"));
  printPart->setShortcut(Qt::CTRL | Qt::ALT | Qt::Key_P);
  connect(printPart, &QAction::triggered, this, [this, printPart] { doPrinting(printPart); });
  printPart->setEnabled(doPrintingToolbarItem->isEnabled());
  connect(doPrintingToolbarItem, &QAction::enabledChanged, printPart, &QAction::setEnabled);
  ui_->fileMenu->insertActions(ui_->closeAction, {pageLayout, print, printPart});
  ui_->fileMenu->insertSeparator(ui_->closeAction);
}

void MainWindowController::doPrinting(QObject* sender) {
  Q_UNUSED(sender)
  if (!document_ || !view()) return;
  setUpPrinting();
  QRectF rect = view()->visibleRect();
  const QRectF& selected = view()->selectRect();
  if (selected.width() > 0 && selected.height() > 0) rect = selected;
  printCommands_->printRectangle(*view(), rect, *document_, window_->windowTitle(), printServices_);
}

void MainWindowController::printDocument(QObject* sender) {
  Q_UNUSED(sender)
  if (!document_) return;
  setUpPrinting();
  printCommands_->run(document_->printOperationWithSettings({}));
}

}  // namespace norvex
