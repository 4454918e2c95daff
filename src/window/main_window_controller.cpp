#include "window/main_window_controller.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include "display/norvex_view.h"
#include "document/document.h"
#include "protocol/start_trace.h"
#include "ui/controls/color_well.h"
#include "ui/controls/control_accessible.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/style/window_style.h"
#include "ui_MainWindowController.h"
#include "window/commands/window_frames.h"
#include "window/inspector_pages.h"
#include "window/reading/layers_command.h"
#include "window/viewing/live_file.h"

namespace norvex {

MainWindowController::MainWindowController()
    : producers_([this] {
        return WindowProducers::Shown{view() ? view()->imageRep() : nullptr,
                                      document_ ? &document_->pictureService() : nullptr, windowColorSpace_};
      }) {
  connectParts();
}

MainWindowController::~MainWindowController() {
  printing_.end();
  if (view()) view()->setDelegate(nullptr);
  loading_.stop();
  work().cancelAll();
  // Told about the controller, not about its window: who listens knows the controller.
  emit windowWillClose(this);
  QObject::disconnect(svgObservation_);
  // Both are windows of their own by now; the view must go before the process that it draws from.
  delete inspectorWindow;
  delete window_.data();
}

void MainWindowController::connectParts() {
  connect(&work(), &WindowWork::changed, this, [this] {
    if (window_) messages_.followRendering();
    closing_.closeIfDone();
  });
  connect(&work(), &WindowWork::failed, &closing_, &ClosingCommand::stay);
  connect(&loading_, &LoadingCommand::finished, this, &MainWindowController::take);
  connect(&messages_, &MessagesCommand::reloadChosen, this, &MainWindowController::reload);
  connect(&messages_, &MessagesCommand::drawingChanged, &inspector_, &InspectorCommand::showDrawingRemarks);
  connect(&messages_, &MessagesCommand::openingChosen, &loading_, &LoadingCommand::start);
  connect(&messages_, &MessagesCommand::stopChosen, this, [this] {
    if (stopReading() || work().cancelNewest(WindowWork::Kind::Examining)) return;
    messages_.stopDrawing();
  });
  connect(&inspector_, &InspectorCommand::turned, this, &MainWindowController::setWindowSize);
  connect(&encoding_, &EncodingCommand::reread, this,
          [this](const HeaderDictionary& header, const QString& text) { contents_.showTexts(header, text); });
  connect(&copying_, &CopyCommand::ended, this, &MainWindowController::copied);
  connect(&savingTo_, &SaveToCommand::ended, this, &MainWindowController::savedTo);
  connect(&savingTo_, &SaveToCommand::failed, &closing_, &ClosingCommand::stay);
  connect(&savingAs_, &SaveAsCommand::failed, &closing_, &ClosingCommand::stay);
  connect(&savingAs_, &SaveAsCommand::ended, &closing_, &ClosingCommand::closeIfDone);
  connect(&printing_, &PrintingCommand::ended, &closing_, [this](bool printed) {
    if (!printed) closing_.stay();
    closing_.closeIfDone();
  });
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
  takeOutlets();
  window_->setStyleSheet(windowStyleSheet());  // of its inspector, too, which is below it
  window_->installEventFilter(this);
  inspectorWindow->installEventFilter(this);
  messageBar_ = new MessageBar(scrollArea_);
  loadingCard_ = new LoadingCard(scrollArea_);
  scrollArea_->addCard(messageBar_, Qt::TopEdge);
  scrollArea_->addCard(loadingCard_, Qt::BottomEdge);
  connectControls();
  connectCommands();
  inspector_.order();
  addInspectorPages(*this);
  connectPrinting();
  encoding_.setUp({ui_->encodingChoice, ui_->encodingTitle, ui_->encodingPopUp, ui_->guessBox,
                   ui_->encodingNote, ui_->guessForm});
  if (savedTouchBarIsShown()) showTouchBar(true);
  sizing_.restoreFrame();
  traceStep("window built");
}

void MainWindowController::takeOutlets() {
  window_ = ui_->window;
  window_->setParent(nullptr, Qt::Window);
  window_->setAttribute(Qt::WA_Moved,
                        false);  // the interface file's origin is no wish for a place on the screen
  scrollArea_ = ui_->zoomingScrollView;
  viewWidget_ = ui_->view;
  scrollArea_->setDocumentWidget(viewWidget_);
  startPoint = ui_->startPoint;
  endPoint = ui_->endPoint;
  inspectorToolbarItem = ui_->inspectorToolbarItem;
  copyToolbarItem = ui_->copyToolbarItem;
  doPrintingToolbarItem = ui_->doPrintingToolbarItem;
  doSaveToToolbarItem = ui_->doSaveToToolbarItem;
  inspectorWindow = ui_->inspectorWindow;
  inspectorWindow->setParent(window_, Qt::Tool);
  pathControl = ui_->pathControl;
  descriptionView = ui_->descriptionView;
  sourceTextView = ui_->sourceTextView;
  epsMatrix = ui_->epsMatrix;
  epsMatrixBox = ui_->epsMatrixBox;
  previewField = ui_->previewField;
  doSaveToPopUp = ui_->doSaveToPopUp;
  doSaveToImageView = ui_->doSaveToImageView;
  doSaveToAccessoryView = ui_->doSaveToAccessoryView;
  menuBar = ui_->menuBar;
  toolbar = ui_->toolbar;
  inspectorTabs = ui_->inspectorTabs;
  sourcePage = ui_->sourcePage;
  boundingBoxForm = ui_->boundingBoxForm;
  usesForm = ui_->usesForm;
  noteField = ui_->noteField;
  rotateReadout = ui_->rotateReadout;
  doSaveToNote = ui_->doSaveToNote;
  setUseBackgroundSwitch(ui_->useBackgroundSwitch);
  setWindowBackgroundColorTitle(ui_->windowBackgroundColorTitle);
  setRotateTitle(ui_->rotateTitle);
  setRotateField(ui_->rotateField);
  setBackgroundColorWell(ui_->backgroundColorWell);
  setDialKnob(ui_->dialKnob);
  setPreviewImageView(ui_->previewImageView);
  setColorSpaceNameForm(ui_->colorSpaceNameForm);
  setEncodingForm(ui_->encodingForm);
  setTitleForm(ui_->titleForm);
  setCreatorForm(ui_->creatorForm);
  setCreationDateForm(ui_->creationDateForm);
  setForForm(ui_->forForm);
  setCopyrightForm(ui_->copyrightForm);
  setView(&viewWidget_->view());
  setZoomingScrollView(&scrollArea_->scrollView());
}

void MainWindowController::showWindow() {
  const bool first = !isWindowLoaded();
  QMainWindow* shown = window();
  if (first) {
    setUpControls();
    const bool untitled = !document_ || document_->fileURL().isEmpty();
    if (untitled) contents_.showUntitled();
    finishSetUp();
    if (!untitled) loading_.start();
  }
  if (first) sizing_.place();
  shown->show();
  shown->raise();
  shown->activateWindow();
  traceStep("window shown");
}

void MainWindowController::windowDidLoad() {
  window();
  loading_.stop();
  if (!document_ || document_->fileURL().isEmpty()) {
    setUpControls();
    contents_.showUntitled();
    return finishSetUp();
  }
  if (window_->isVisible())
    loading_.start();
  else
    loading_.readNow();
}

void MainWindowController::reload() {
  if (document_) document_->revertDocumentToSaved();
}

void MainWindowController::fileDidChangeOnDisk() {
  if (!window_ || !document_) return;
  emit fileChanged();
  auto* live = findChild<LiveFile*>();
  if (live->reloadsByItself()) return live->reloadInPlace([this] { reload(); });
  messages_.fileDidChange();
}

void MainWindowController::fileDidDisappear() {
  if (window_ && validateUserInterfaceItem()) messages_.fileDidDisappear();
}

/// False: nothing was being read.
bool MainWindowController::stopReading() {
  if (!loading_.stop()) return false;
  if (validateUserInterfaceItem()) {
    findChild<LiveFile*>()->documentDidStay();
    findChild<LayersCommand*>()->documentDidStay();
  }
  messages_.openingWasStopped();
  return true;
}

void MainWindowController::stopWork() {
  if (stopReading()) return;
  if (copying_.stop() || work().cancelNewest()) return;
  messages_.stopDrawing();
}

void MainWindowController::closing() {
  sizing_.saveFrame();
  loading_.stop();
  copying_.stop();
  work().cancelAll();
  printing_.cancelAll();
  inspectorWindow->hide();
  // The document destroys this controller; that must wait until the window has finished closing.
  if (shouldCloseDocument_ && document_)
    QTimer::singleShot(0, document_.data(), [document = document_.data()] { document->close(); });
}

bool MainWindowController::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_) {
    if (event->type() == QEvent::Close && closing_.closesLater()) {
      event->ignore();
      return true;
    }
    if (event->type() == QEvent::Close) closing();
    if (event->type() == QEvent::Resize) sizing_.windowDidResize();
    if (event->type() == QEvent::WindowStateChange) {
      ui_->fullScreenAction->setChecked(window_->isFullScreen());
      sizing_.windowStateDidChange(*static_cast<QWindowStateChangeEvent*>(event));
    }
  }
  if (watched == inspectorWindow && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
    inspectorToolbarItem->setChecked(event->type() == QEvent::Show);
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
