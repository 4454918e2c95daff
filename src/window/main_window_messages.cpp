// What the window tells about its picture: progress, problems, a file that changed.
#include <QTimer>

#include "base/localized_string.h"
#include "desktop/alert.h"
#include "document/document.h"
#include "picture/process/stoppable_process.h"
#include "picture/web_image_rep.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "window/main_window_controller.h"

namespace norvex {

namespace {

constexpr int kStoppedEndsMs = 50;

/// An error's message as a sentence of its own.
QString sentence(const Error& error) {
  QString text = error.message.trimmed();
  if (text.isEmpty()) return localizedString("The picture cannot be shown.");
  text[0] = text.at(0).toUpper();
  return text.endsWith(QChar('.')) ? text : text + QChar('.');
}

}  // namespace

void MainWindowController::watchPicture() {
  NSImageRep* rep = view()->imageRep().get();
  if (!rep) return;
  connect(rep, &NSImageRep::renderingFailed, this, &MainWindowController::showProblem, Qt::UniqueConnection);
  connect(rep, &NSImageRep::renderingArrived, this, &MainWindowController::followRendering,
          Qt::UniqueConnection);
}

void MainWindowController::followRendering() {
  showDrawingRemarks();
  const NSImageRep* rep = view()->imageRep().get();
  if (work_.isUnderWay())
    loadingCard_->begin(work_.text());
  else if (rep && rep->isRendering())
    loadingCard_->begin(localizedString("Drawing…"));
  else
    loadingCard_->end();
}

void MainWindowController::showProblem(const Error& error) {
  followRendering();
  const bool again = view()->imageRep() != nullptr;
  messageAction_ = nullptr;
  if (again) messageAction_ = [this] { retryDrawing(); };
  messageBar_->showMessage(MessageBar::Kind::Warning, sentence(error),
                           again ? localizedString("Try Again") : QString());
}

void MainWindowController::retryDrawing() {
  NSImageRep* rep = view()->imageRep().get();
  if (!rep) return;
  if (process_) process_->resume();
  rep->retryRendering();
  viewWidget_->update();
  // What was stopped may end only now, and would count as this try's failure.
  QTimer::singleShot(kStoppedEndsMs, rep, [this, rep] {
    if (view()->imageRep().get() != rep) return;
    const auto error = rep->renderingError();
    if ((error && StoppableProcess::meansStopped(*error)) || (process_ && process_->isStopping()))
      retryDrawing();
  });
}

void MainWindowController::stopWork() {
  if (reading_) {
    stopReading();
    showProblem({ErrorKind::Cancelled, localizedString("Opening was stopped")});
    messageAction_ = [this] { startReading(); };
    messageBar_->showMessage(MessageBar::Kind::Warning, messageBar_->message(), localizedString("Try Again"));
    return;
  }
  if (copying_) return stopCopying();
  if (work_.cancelNewest()) return;
  // A rendering that is cancelled tells nothing by itself, and the next one may never be asked for.
  if (process_) process_->stop();
  showProblem({ErrorKind::TimedOut, localizedString("The drawing was stopped")});
  loadingCard_->end();
}

void MainWindowController::messageActionChosen() {
  if (const auto action = std::exchange(messageAction_, nullptr)) action();
}

void MainWindowController::fileDidChangeOnDisk() {
  if (!window_ || !document_) return;
  messageAction_ = [this] { reload(); };
  messageBar_->showMessage(MessageBar::Kind::Information, localizedString("The file has changed on disk."),
                           localizedString("Reload"));
}

void MainWindowController::fileDidDisappear() {
  if (!window_ || !validateUserInterfaceItem()) return;
  messageAction_ = nullptr;
  messageBar_->showMessage(MessageBar::Kind::Warning,
                           localizedString("The file was deleted or moved. What is shown was read before."));
}

void MainWindowController::reload() {
  if (document_) document_->revertDocumentToSaved();
}

void MainWindowController::tellThatPictureStays(const Error& error) {
  messageAction_ = [this] { reload(); };
  messageBar_->showMessage(MessageBar::Kind::Warning,
                           localizedString("%1 What is shown was read before.").arg(sentence(error)),
                           localizedString("Reload"));
}

void MainWindowController::pdfImageRepDidLoad(bool success, const Error& error) {
  QObject::disconnect(svgObservation_);
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(view()->imageRep());
  if (!rep) return;
  if (success) {
    viewWidget_->update();
    const QVariant pdf = rep->valueForKey(QString::fromLatin1(ZyWebViewPDFImageRepKey));
    previewImageView()->setImageRep(pdf.value<std::shared_ptr<NSImageRep>>());
    return;
  }
  Alert alert;
  alert.style = AlertStyle::Warning;
  alert.messageText = error.message.isEmpty() ? QStringLiteral("ZyWebImageRep") : sentence(error);
  const QUrl url = rep->valueForKey(QString::fromLatin1(ZyWebViewFileURLKey)).toUrl();
  alert.informativeText = QUrl::fromPercentEncoding(url.toEncoded());
  if (alerts_)
    alerts_->runModal(alert);
  else
    messageBar_->showMessage(MessageBar::Kind::Warning, alert.messageText);
}

}  // namespace norvex
