// Closing the window: at once, or when what is being written or printed has ended.
#include <QMainWindow>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>

#include "base/localized_string.h"
#include "desktop/alert.h"
#include "document/document.h"
#include "window/main_window_controller.h"
#include "window/print_commands.h"

namespace norvex {

bool MainWindowController::wouldLoseWork() const {
  return saving_ || work_.isUnderWay(WindowWork::Kind::Writing) ||
         (printCommands_ && printCommands_->isPrinting());
}

void MainWindowController::stopEverything() {
  work_.cancelAll();
  if (printCommands_) printCommands_->cancelAll();
}

bool MainWindowController::closesLater() {
  if (!wouldLoseWork()) return false;
  if (askingToClose_) return true;
  enum Answer { WhenFinished, StopIt, KeepOpen };
  Alert question;
  question.style = AlertStyle::Informational;
  question.messageText = printCommands_ && printCommands_->isPrinting()
                             ? localizedString("The picture is still being printed.")
                             : localizedString("A file is still being written.");
  question.informativeText = window_->windowTitle();
  question.buttons = {localizedString("Close When Finished"), localizedString("Stop and Close"),
                      localizedString("Keep Open")};
  const QPointer<MainWindowController> self(this);
  int answer = WhenFinished;
  if (alerts_) {
    const QScopedValueRollback<bool> asking(askingToClose_, true);
    answer = alerts_->runModal(question);
  }
  if (!self) return true;
  closesWhenDone_ = answer == WhenFinished || answer == StopIt;
  if (answer == StopIt) stopEverything();
  return !closesWhenDone_ || wouldLoseWork();  // it may have ended while the question was on the screen
}

void MainWindowController::closeIfDone() {
  if (!closesWhenDone_ || askingToClose_ || wouldLoseWork()) return;
  QTimer::singleShot(0, this, [this] {
    if (closesWhenDone_ && window_) window_->close();
  });
}

void MainWindowController::closing() {
  saveFrame();
  stopReading();
  stopCopying();
  stopEverything();
  inspectorWindow->hide();
  // The document destroys this controller; that must wait until the window has finished closing.
  if (shouldCloseDocument_ && document_)
    QTimer::singleShot(0, document_.data(), [document = document_.data()] { document->close(); });
}

}  // namespace norvex
