#include "window/commands/messages_command.h"

#include <QTimer>

#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "desktop/alert.h"
#include "display/norvex_view.h"
#include "picture/localized_error.h"
#include "picture/process/stoppable_process.h"
#include "picture/web_image_rep.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/commands/window_parts.h"

namespace norvex {

namespace {

constexpr int kStoppedEndsMs = 50;

/// An error as a sentence of its own, with what a library said of it.
QString sentence(const Error& error) {
  const QString text = localizedError(error).sentence;
  return text.isEmpty() ? localizedString("The picture cannot be shown.") : text;
}

QString details(const Error& error) {
  return toldError(error).details;
}

}  // namespace

MessagesCommand::MessagesCommand(WindowParts& parts)
    : parts_(parts),
      watched_(*this),
      alarm_([](int milliseconds, QObject* context, std::function<void()> ring) {
        QTimer::singleShot(milliseconds, context, std::move(ring));
      }) {}

void MessagesCommand::tell(MessageBar::Kind kind, const QString& text, const QString& title,
                           std::function<void()> action, const QString& details) {
  asking_ = false;
  other_ = nullptr;
  action_ = std::move(action);
  parts_.messageBar()->showMessage(kind, text, title, details);
}

void MessagesCommand::watchPicture(std::shared_ptr<StoppableProcess> process) {
  process_ = std::move(process);
  begunIsShown_ = false;
  NSImageRep* rep = parts_.view()->imageRep().get();
  watched_.change(rep);
  if (!rep) return;
  // Other documents are not programs that could stop.
  stopIsTold_ = rep->pictureKind() != PictureKind::Eps;
  connect(rep, &NSImageRep::renderingFailed, this, &MessagesCommand::showProblem);
  connect(rep, &NSImageRep::renderingArrived, this, &MessagesCommand::followRendering);
  connect(rep, &NSImageRep::renderingArrived, this, &MessagesCommand::tellWhatStopped);
  connect(rep, &NSImageRep::renderingArrived, this, &MessagesCommand::tellWhatWasBegun);
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
  followPatience();
}

void MessagesCommand::followPatience() {
  const NSImageRep* rep = parts_.view()->imageRep().get();
  const WindowWork& work = parts_.work();
  const bool waits = work.isUnderWay(WindowWork::Kind::Reading) ||
                     work.isUnderWay(WindowWork::Kind::Examining) || (rep && rep->isRendering());
  if (waits == waiting_) return;
  waiting_ = waits;
  ++spell_;
  if (waits) return waitOn();
  if (std::exchange(asking_, false)) parts_.messageBar()->clearMessage();
}

void MessagesCommand::waitOn() {
  alarm_(patienceMs, this, [this, spell = spell_] {
    if (waiting_ && spell == spell_) askWhetherToWait();
  });
}

void MessagesCommand::askWhetherToWait() {
  // What stands there already is worth more than the question.
  if (!parts_.messageBar()->message().isEmpty()) return waitOn();
  action_ = [this] { emit stopChosen(); };
  other_ = [this] { waitOn(); };
  asking_ = true;
  parts_.messageBar()->showMessage(MessageBar::Kind::Information,
                                   localizedString("Still working: wait, or stop and show what there is."),
                                   localizedString("Stop"), {}, localizedString("Wait"));
}

void MessagesCommand::tellWhatStopped() {
  const auto rep = parts_.view()->imageRep();
  if (!rep || std::exchange(stopIsTold_, true)) return;
  // The facts are there, but who is being drawn may be between them and us.
  workInBackground(
      this, [process = rep->process()] { return process->facts(); },
      [this, shown = std::weak_ptr<NSImageRep>(rep)](const Result<PictureFacts>& facts) {
        if (!facts || facts->stoppedBy.isEmpty() || shown.lock() != parts_.view()->imageRep()) return;
        const Error stopped{ErrorKind::NotParsable, facts->stoppedBy};
        tell(MessageBar::Kind::Warning,
             localizedString("%1 What is shown is what it had drawn until then.").arg(sentence(stopped)), {},
             {}, details(stopped));
      });
}

void MessagesCommand::showProblem(const Error& error) {
  followRendering();
  const bool hasPicture = parts_.validateUserInterfaceItem();
  // What the process met may be gone the next time; what the document is will not.
  const bool mayPass =
      error.kind == ErrorKind::Died || error.kind == ErrorKind::TimedOut || error.kind == ErrorKind::Protocol;
  if (hasPicture)
    tell(
        MessageBar::Kind::Warning, sentence(error), localizedString("Try Again"), [this] { retryDrawing(); },
        details(error));
  else if (mayPass)
    tell(
        MessageBar::Kind::Warning, sentence(error), localizedString("Try Again"),
        [this] { emit openingChosen(); }, details(error));
  else
    tell(MessageBar::Kind::Warning, sentence(error), {}, {}, details(error));
}

void MessagesCommand::openingWasStopped() {
  followRendering();
  tell(MessageBar::Kind::Warning, sentence({ErrorKind::Cancelled, localizedString("Opening was stopped")}),
       localizedString("Try Again"), [this] { emit openingChosen(); });
}

void MessagesCommand::retryDrawing() {
  const std::shared_ptr<NSImageRep> rep = parts_.view()->imageRep();
  if (!rep) return;
  if (process_) process_->resume();
  begunIsShown_ = false;
  rep->retryRendering();
  parts_.viewWidget()->update();
  // The stopped try may end only now, and would count as this try's failure.
  QTimer::singleShot(kStoppedEndsMs, this, [this, shown = std::weak_ptr(rep)] {
    const std::shared_ptr<NSImageRep> same = shown.lock();
    if (!same || parts_.view()->imageRep() != same) return;
    if (process_ && process_->isStopped()) return;  // this try, too
    const auto error = same->renderingError();
    if ((error && StoppableProcess::meansStopped(*error)) || (process_ && process_->isStopping()))
      retryDrawing();
  });
}

void MessagesCommand::stopDrawing() {
  // A rendering that is cancelled tells nothing by itself, and the next one may never be asked for.
  if (process_) process_->stop();
  showProblem({ErrorKind::TimedOut, localizedString("The drawing was stopped")});
  parts_.loadingCard()->end();
  NSImageRep* rep = parts_.view()->imageRep().get();
  if (!rep || !process_ || rep->pictureKind() != PictureKind::Eps) return;
  showBegun(false);
}

/// Once the drawings have ended that were stopped: only then nothing stands in the way of what the program
/// had begun. Meanwhile the window may be closed, or show another document.
void MessagesCommand::showBegun(bool isAsked) {
  const std::shared_ptr<NSImageRep> rep = parts_.view()->imageRep();
  if (!rep || !process_ || !process_->isStopped()) return;
  if (!process_->isStopping() && !rep->isRendering()) {
    const auto error = rep->renderingError();
    if (isAsked && !(error && error->kind == ErrorKind::Cancelled)) return;
    rep->retryRendering();
    parts_.viewWidget()->update();
    isAsked = true;
  }
  QTimer::singleShot(kStoppedEndsMs, this, [this, shown = std::weak_ptr(rep), isAsked] {
    if (shown.lock() == parts_.view()->imageRep()) showBegun(isAsked);
  });
}

void MessagesCommand::tellWhatWasBegun() {
  if (!process_ || !process_->hasShownBegun() || std::exchange(begunIsShown_, true)) return;
  tell(MessageBar::Kind::Warning,
       localizedString("%1 What is shown is what it had drawn until then.")
           .arg(sentence({ErrorKind::TimedOut, localizedString("The drawing was stopped")})),
       localizedString("Try Again"), [this] { emit reloadChosen(); });
}

void MessagesCommand::actionChosen() {
  asking_ = false;
  if (const auto action = std::exchange(action_, nullptr)) action();
}

void MessagesCommand::otherChosen() {
  asking_ = false;
  if (const auto other = std::exchange(other_, nullptr)) other();
}

void MessagesCommand::fileDidChange() {
  tell(MessageBar::Kind::Information, localizedString("The file has changed on disk."),
       localizedString("Reload"), [this] { emit reloadChosen(); });
}

void MessagesCommand::fileDidDisappear() {
  tell(MessageBar::Kind::Warning,
       localizedString("The file was deleted or moved. What is shown was read before."));
}

void MessagesCommand::pictureStays(const Error& error) {
  tell(
      MessageBar::Kind::Warning, localizedString("%1 What is shown was read before.").arg(sentence(error)),
      localizedString("Reload"), [this] { emit reloadChosen(); }, details(error));
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
