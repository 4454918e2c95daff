#include "window/commands/closing_command.h"

#include <QPointer>
#include <QTimer>

#include <utility>

#include "base/localized_string.h"
#include "desktop/alert.h"
#include "window/commands/printing_command.h"
#include "window/commands/save_as_command.h"
#include "window/commands/window_parts.h"

namespace norvex {

ClosingCommand::ClosingCommand(WindowParts& parts, const SaveAsCommand& saving, PrintingCommand& printing)
    : parts_(parts), saving_(saving), printing_(printing) {}

bool ClosingCommand::wouldLoseWork() const {
  return saving_.isSaving() || parts_.work().isUnderWay(WindowWork::Kind::Writing) || printing_.isPrinting();
}

bool ClosingCommand::closesLater() {
  if (!wouldLoseWork()) {
    // What showed the print panel runs until the panel is answered, and the window goes after that.
    closesWhenDone_ = printing_.isAsking();
    return closesWhenDone_;
  }
  if (asking_) return true;
  enum Answer { WhenFinished, StopIt, KeepOpen };
  Alert question;
  question.style = AlertStyle::Informational;
  question.messageText = printing_.isPrinting() ? localizedString("The picture is still being printed.")
                                                : localizedString("A file is still being written.");
  question.informativeText = parts_.mainWindow()->windowTitle();
  question.buttons = {localizedString("Close When Finished"), localizedString("Stop and Close"),
                      localizedString("Keep Open")};
  question.willShow = [this](std::function<void()> dismiss) { dismiss_ = std::move(dismiss); };
  const QPointer<ClosingCommand> self(this);
  int answer = WhenFinished;
  failed_ = answered_ = false;
  asking_ = true;
  if (parts_.alerts()) answer = parts_.alerts()->runModal(question);
  if (!self) return true;
  asking_ = false;
  dismiss_ = {};
  if (answered_ && answer == -1) answer = failed_ ? KeepOpen : WhenFinished;
  closesWhenDone_ = answer == WhenFinished || answer == StopIt;
  if (answer == StopIt) {
    parts_.work().cancelAll();
    printing_.cancelAll();
  }
  return !closesWhenDone_ || wouldLoseWork();  // it may have ended while the question was on the screen
}

void ClosingCommand::stay() {
  closesWhenDone_ = false;
  failed_ = true;
}

void ClosingCommand::closeIfDone() {
  if (wouldLoseWork() || printing_.isAsking()) return;
  if (asking_ && dismiss_ && !std::exchange(answered_, true)) dismiss_();
  if (!closesWhenDone_ || asking_) return;
  QTimer::singleShot(0, this, [this] {
    if (closesWhenDone_ && parts_.mainWindow()) parts_.mainWindow()->close();
  });
}

}  // namespace norvex
