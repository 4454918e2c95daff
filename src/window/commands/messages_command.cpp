#include "window/commands/messages_command.h"

#include <QTimer>

#include <utility>

#include "base/localized_string.h"
#include "base/sentence.h"
#include "desktop/alert.h"
#include "display/norvex_view.h"
#include "picture/process/stoppable_process.h"
#include "picture/told_error.h"
#include "picture/web_image_rep.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/commands/window_parts.h"

namespace norvex {

namespace {

constexpr int kStoppedEndsMs = 50;

/// An error's message as a sentence of its own.
QString sentence(const Error& error) {
  const QString text = asSentence(toldError(error).sentence);
  return text.isEmpty() ? localizedString("The picture cannot be shown.") : text;
}

QString details(const Error& error) {
  return toldError(error).details;
}

}  // namespace

void MessagesCommand::watchPicture(std::shared_ptr<StoppableProcess> process) {
  process_ = std::move(process);
  NSImageRep* rep = parts_.view()->imageRep().get();
  if (!rep) return;
  connect(rep, &NSImageRep::renderingFailed, this, &MessagesCommand::showProblem, Qt::UniqueConnection);
  connect(rep, &NSImageRep::renderingArrived, this, &MessagesCommand::followRendering, Qt::UniqueConnection);
}

void MessagesCommand::followRendering() {
  emit drawingChanged();
  const NSImageRep* rep = parts_.view()->imageRep().get();
  if (parts_.work().isUnderWay())
    parts_.loadingCard()->begin(parts_.work().text());
  else if (rep && rep->isRendering())
    parts_.loadingCard()->begin(localizedString("Drawing…"));
  else
    parts_.loadingCard()->end();
}

void MessagesCommand::showProblem(const Error& error) {
  followRendering();
  const bool again = parts_.validateUserInterfaceItem();
  action_ = nullptr;
  if (again) action_ = [this] { retryDrawing(); };
  parts_.messageBar()->showMessage(MessageBar::Kind::Warning, sentence(error),
                                   again ? localizedString("Try Again") : QString(), details(error));
}

void MessagesCommand::openingWasStopped() {
  followRendering();
  action_ = [this] { emit openingChosen(); };
  parts_.messageBar()->showMessage(MessageBar::Kind::Warning,
                                   sentence({ErrorKind::Cancelled, localizedString("Opening was stopped")}),
                                   localizedString("Try Again"));
}

void MessagesCommand::retryDrawing() {
  NSImageRep* rep = parts_.view()->imageRep().get();
  if (!rep) return;
  if (process_) process_->resume();
  rep->retryRendering();
  parts_.viewWidget()->update();
  // What was stopped may end only now, and would count as this try's failure.
  QTimer::singleShot(kStoppedEndsMs, rep, [this, rep] {
    if (parts_.view()->imageRep().get() != rep) return;
    const auto error = rep->renderingError();
    if ((error && StoppableProcess::meansStopped(*error)) || (process_ && process_->isStopping()))
      retryDrawing();
  });
}

void MessagesCommand::stopDrawing() {
  // A rendering that is cancelled tells nothing by itself, and the next one may never be asked for.
  if (process_) process_->stop();
  showProblem({ErrorKind::TimedOut, localizedString("The drawing was stopped")});
  parts_.loadingCard()->end();
}

void MessagesCommand::actionChosen() {
  if (const auto action = std::exchange(action_, nullptr)) action();
}

void MessagesCommand::fileDidChange() {
  action_ = [this] { emit reloadChosen(); };
  parts_.messageBar()->showMessage(MessageBar::Kind::Information,
                                   localizedString("The file has changed on disk."),
                                   localizedString("Reload"));
}

void MessagesCommand::fileDidDisappear() {
  action_ = nullptr;
  parts_.messageBar()->showMessage(
      MessageBar::Kind::Warning,
      localizedString("The file was deleted or moved. What is shown was read before."));
}

void MessagesCommand::pictureStays(const Error& error) {
  action_ = [this] { emit reloadChosen(); };
  parts_.messageBar()->showMessage(MessageBar::Kind::Warning,
                                   localizedString("%1 What is shown was read before.").arg(sentence(error)),
                                   localizedString("Reload"), details(error));
}

void MessagesCommand::showPdfFailure(const Error& error) {
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(parts_.view()->imageRep());
  if (!rep) return;
  Alert alert;
  alert.style = AlertStyle::Warning;
  alert.messageText = error.message.isEmpty() ? QStringLiteral("ZyWebImageRep") : sentence(error);
  alert.details = details(error);
  const QUrl url = rep->valueForKey(QString::fromLatin1(ZyWebViewFileURLKey)).toUrl();
  alert.informativeText = QUrl::fromPercentEncoding(url.toEncoded());
  if (parts_.alerts())
    parts_.alerts()->runModal(alert);
  else
    parts_.messageBar()->showMessage(MessageBar::Kind::Warning, alert.messageText, {}, alert.details);
}

}  // namespace norvex
