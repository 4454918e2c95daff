#include "window/main_window_controller.h"

#include <QCloseEvent>
#include <QMainWindow>

#include "desktop/save_panel.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "picture/process/stoppable_process.h"
#include "ui/controls/color_well.h"
#include "ui/controls/control_accessible.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/style/window_style.h"
#include "ui_MainWindowController.h"
#include "window/main_window_reading.h"
#include "window/print_commands.h"
#include "window/window_frames.h"

namespace norvex {

MainWindowController::MainWindowController() = default;

MainWindowController::~MainWindowController() {
  printCommands_.reset();
  if (view()) view()->setDelegate(nullptr);
  stopReading();
  work_.cancelAll();
  // Told about the controller, not about its window: who listens knows the controller.
  emit windowWillClose(this);
  QObject::disconnect(svgObservation_);
  // Both are windows of their own by now; the view must go before the process that it draws from.
  delete inspectorWindow;
  delete window_.data();
}

void MainWindowController::setDocument(Document* document) {
  document_ = document;
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
  window_->setStyleSheet(windowStyleSheet());
  inspectorWindow->setStyleSheet(windowStyleSheet());
  window_->installEventFilter(this);
  inspectorWindow->installEventFilter(this);
  messageBar_ = new MessageBar(scrollArea_);
  loadingCard_ = new LoadingCard(scrollArea_);
  scrollArea_->addCard(messageBar_, Qt::TopEdge);
  scrollArea_->addCard(loadingCard_, Qt::BottomEdge);
  connect(&work_, &WindowWork::changed, this, &MainWindowController::followRendering);
  connect(&work_, &WindowWork::changed, this, &MainWindowController::closeIfDone);
  connectControls();
  connectCommands();
  orderInspector();
  connectPrinting();
  if (savedTouchBarIsShown()) showTouchBar(true);
  restoreFrame();
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
    startReading();
  }
  shown->show();
  shown->raise();
  shown->activateWindow();
}

void MainWindowController::display() {
  if (window_ && window_->isVisible()) window_->repaint();
}

bool MainWindowController::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_) {
    if (event->type() == QEvent::Close && closesLater()) {
      event->ignore();
      return true;
    }
    if (event->type() == QEvent::Close) closing();
    if (event->type() == QEvent::WindowStateChange)
      windowStateDidChange(*static_cast<QWindowStateChangeEvent*>(event));
  }
  if (watched == inspectorWindow && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
    inspectorToolbarItem->setChecked(event->type() == QEvent::Show);
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
