#include "window/main_window_controller.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QThread>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "picture/web_image_rep.h"
#include "protocol/start_trace.h"
#include "ui/controls/control_accessible.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/panels/centred_window.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/style/window_style.h"
#include "ui_MainWindowController.h"
#include "window/document_contents.h"
#include "window/inspector_pages.h"
#include "window/place/window_frames.h"
#include "window/reading/layers_command.h"
#include "window/reading/password_command.h"
#include "window/selection_description.h"
#include "window/viewing/live_file.h"
#include "window/viewing/sticky_fit.h"

namespace norvex {

MainWindowController::MainWindowController() : commands_(*this) {
  connect(&commands_.loading, &LoadingCommand::finished, this,
          [this](const DocumentContents& contents, bool again) {
            take(contents, again);
            if (findChild<LiveFile*>()->takeChangeMeanwhile()) fileDidChangeOnDisk();
          });
}

MainWindowController::~MainWindowController() {
  commands_.printing.end();
  if (view()) view()->setDelegate(nullptr);
  commands_.loading.stop();
  work().cancelAll();
  // Told about the controller, not about its window: who listens knows the controller.
  emit windowWillClose(this);
  QObject::disconnect(svgObservation_);
  // Both are windows of their own by now; the view must go before the process that it draws from.
  delete inspectorWindow;
  // What it tells of its children while it goes, it tells as a window no more.
  if (window_) window_->removeEventFilter(this);
  delete window_.data();
}

QMainWindow* MainWindowController::window() {
  if (!window_) loadWindow();
  return window_;
}

void MainWindowController::loadWindow() {
  installControlAccessibility();
  nib_ = std::make_unique<QWidget>();
  ui_ = std::make_unique<Ui::MainWindowController>();
  ui_->setupUi(nib_.get());
  takeWindow();
  commands_.controls.take(*ui_);
  inspectorWindow->setParent(window_, Qt::Tool);
  window_->setStyleSheet(windowStyleSheet());  // of its inspector, too, which is below it
  window_->installEventFilter(this);
  inspectorWindow->installEventFilter(this);
  commands_.controls.connect();
  commands_.menus.setUp(*ui_);
  commands_.inspector.order();
  addInspectorPages(*this);
  commands_.encoding.setUp({ui_->encodingChoice, ui_->encodingTitle, ui_->encodingPopUp, ui_->guessBox,
                            ui_->encodingNote, ui_->guessForm});
  if (savedTouchBarIsShown()) showTouchBar(true);
  commands_.sizing.restoreFrame();
  traceStep("window built");
}

void MainWindowController::takeWindow() {
  window_ = ui_->window;
  window_->setParent(nullptr, Qt::Window);
  window_->setAttribute(Qt::WA_Moved,
                        false);  // the interface file's origin is no wish for a place on the screen
  for (QWidget* window : {static_cast<QWidget*>(window_), ui_->inspectorWindow})
    window->setMinimumSize(sizeForTexts(*window, window->minimumSize()));
  scrollArea_ = ui_->zoomingScrollView;
  viewWidget_ = ui_->view;
  scrollArea_->setDocumentWidget(viewWidget_);
  messageBar_ = new MessageBar(scrollArea_);
  loadingCard_ = new LoadingCard(scrollArea_);
  scrollArea_->addCard(messageBar_, Qt::TopEdge);
  scrollArea_->addCard(loadingCard_, Qt::BottomEdge);
}

void MainWindowController::showWindow() {
  const bool first = !isWindowLoaded();
  QMainWindow* shown = window();
  if (first) {
    commands_.controls.setUp();
    const bool untitled = !document_ || document_->fileURL().isEmpty();
    if (untitled) commands_.contents.showUntitled();
    finishSetUp();
    if (!untitled) commands_.loading.start();
  }
  if (first) commands_.sizing.place();
  shown->show();
  shown->raise();
  shown->activateWindow();
  traceStep("window shown");
}

void MainWindowController::windowDidLoad() {
  window();
  (void)findChild<LiveFile*>()->takeChangeMeanwhile();  // which is read now
  commands_.loading.stop();
  if (!document_ || document_->fileURL().isEmpty()) {
    commands_.controls.setUp();
    commands_.contents.showUntitled();
    return finishSetUp();
  }
  if (window_->isVisible())
    commands_.loading.start();
  else
    commands_.loading.readNow();
}

void MainWindowController::reload() {
  if (document_) document_->revertDocumentToSaved();
}

void MainWindowController::fileDidChangeOnDisk() {
  if (!window_ || !document_) return;
  emit fileChanged();
  auto* live = findChild<LiveFile*>();
  if (isReading()) return live->fileDidChangeMeanwhile();  // what is told now goes when the picture comes
  if (live->reloadsByItself()) return live->reloadInPlace([this] { reload(); });
  commands_.messages.fileDidChange();
}

void MainWindowController::fileDidDisappear() {
  if (window_ && validateUserInterfaceItem()) commands_.messages.fileDidDisappear();
}

void MainWindowController::closing() {
  commands_.sizing.saveFrame();
  commands_.loading.stop();
  commands_.copying.stop();
  work().cancelAll();
  commands_.printing.cancelAll();
  inspectorWindow->hide();
  // The document destroys this controller; that must wait until the window has finished closing.
  if (shouldCloseDocument_ && document_)
    QTimer::singleShot(0, document_.data(), [document = document_.data()] { document->close(); });
}

bool MainWindowController::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_) {
    if (event->type() == QEvent::Close && commands_.closing.closesLater()) {
      event->ignore();
      return true;
    }
    if (event->type() == QEvent::Close) closing();
    if (event->type() == QEvent::Resize) commands_.sizing.windowDidResize();
    if (event->type() == QEvent::WindowStateChange) {
      ui_->fullScreenAction->setChecked(window_->isFullScreen());
      commands_.sizing.windowStateDidChange(*static_cast<QWindowStateChangeEvent*>(event));
    }
  }
  if (watched == inspectorWindow && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
    inspectorToolbarItem->setChecked(event->type() == QEvent::Show);
  return QObject::eventFilter(watched, event);
}

void MainWindowController::take(const DocumentContents& contents, bool again) {
  auto* passwords = findChild<PasswordCommand*>();
  const bool stays = again && !contents.imageRep;
  if (stays) {
    findChild<LiveFile*>()->documentDidStay();
    findChild<LayersCommand*>()->documentDidStay();
  }
  if (contents.error && passwords->take(*contents.error)) {
    if (!validateUserInterfaceItem())
      commands_.shownView.reset();  // as large as any window without a picture
    return finishSetUp();
  }
  if (stays)
    return commands_.messages.pictureStays(contents.error.value_or(Error{ErrorKind::CannotRead, {}}));
  if (contents.imageRep) passwords->documentDidOpen();
  const bool comesBack = findChild<LiveFile*>()->comesBack();
  if (contents.imageRep) commands_.sizing.pictureComes();
  commands_.sizing.hold();
  commands_.controls.setUp();
  showContents(contents);
  finishSetUp();
  commands_.shownView.takeFirst();
  if (!comesBack) commands_.sizing.release();
  commands_.sizing.firstPictureIsShown(findChild<StickyFit*>()->kept() != KeptFit::Nothing);
  if (!again) tell(contents.lost);
  emit documentShown();
  if (comesBack) commands_.sizing.release();
}

void MainWindowController::showContents(const DocumentContents& contents) {
  messageBar_->clearMessage();
  if (contents.kind == DocumentKind::Svg) QObject::disconnect(svgObservation_);
  const auto svg = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep);
  if (svg && QThread::currentThread() == qApp->thread())
    svgObservation_ = connect(svg.get(), &ZyWebImageRep::pdfImageRepDidLoad, this,
                              &MainWindowController::pdfImageRepDidLoad);
  commands_.contents.show(contents);
  commands_.encoding.show(contents.imageRep, contents.chosenEncoding, contents.guess);
  if (const auto space = ContentsDisplay::colorSpace(contents.header)) windowColorSpace_ = *space;
  colorSpaceNameForm()->setText(0, windowColorSpace_.description());
  commands_.shownView.reset();
  commands_.messages.watchPicture(contents.process);
  if (contents.error) commands_.messages.showProblem(*contents.error);
}

void MainWindowController::pdfImageRepDidLoad(bool success, const Error& error) {
  QObject::disconnect(svgObservation_);
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(view()->imageRep());
  if (!rep) return;
  if (!success) return commands_.messages.showPdfFailure(error);
  viewWidget_->update();
  const QVariant pdf = rep->valueForKey(QString::fromLatin1(ZyWebViewPDFImageRepKey));
  previewImageView()->setImageRep(pdf.value<std::shared_ptr<NSImageRep>>());
}

void MainWindowController::finishSetUp() {
  view()->setDelegate(this);
  commands_.controls.validate();
  commands_.menus.validate();
}

void MainWindowController::setZoomFactor(double factor) {
  zoomFactor_ = factor;
  emit zoomFactorDidChange(factor);
}

bool MainWindowController::dialKnobClockwise() const {
  return dialKnob() && dialKnob()->clockwise();
}

void MainWindowController::norvexView(NorvexView&, const QString& selectedRangeStrings, const QString& end,
                                      const QString& area) {
  commands_.menus.validateSelection();
  showSelection(*this, selectedRangeStrings, end, area);
}

void MainWindowController::saveDocumentAs(QObject*) {
  commands_.savingAs.run(localizedString("Save As"));
}

void MainWindowController::saveDocumentTo(QObject*) {
  commands_.savingAs.run(localizedString("Save To"));
}

std::optional<NSCustomTouchBarItem> MainWindowController::touchBar(const NSTouchBar& bar,
                                                                   const QString& makeItemForIdentifier) {
  return mainWindowTouchBarItem(bar, makeItemForIdentifier);
}

void MainWindowController::performTouchBarAction(TouchBarAction action) {
  switch (action) {
    case TouchBarAction::SaveDocumentAs:
      return saveDocumentAs();
    case TouchBarAction::SaveDocumentTo:
      return saveDocumentTo();
    case TouchBarAction::RevertDocumentToSaved:
      return reload();
    case TouchBarAction::Copy:
      return copy();
    case TouchBarAction::PrintDocument:
      return printDocument();
  }
}

}  // namespace norvex
