// Menus that the interface file does not hold: printing, and what can be done with the picture where the
// mouse is.
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

#include "base/localized_string.h"
#include "picture/process/stoppable_process.h"
#include "ui/picture/drag_source.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui_MainWindowController.h"
#include "window/commands/window_frames.h"
#include "window/export/export_command.h"
#include "window/inspector/docked_inspector.h"
#include "window/main_window_controller.h"
#include "window/reader_set_up.h"
#include "window/viewing/full_screen.h"
#include "window/viewing/live_file.h"
#include "window/viewing/pages_command.h"
#include "window/viewing/pointer_readout.h"
#include "window/viewing/real_size.h"
#include "window/viewing/selection_history.h"
#include "window/viewing/sticky_fit.h"
#include "window/viewing/toolbar_labels.h"
#include "window/viewing/view_choices.h"

namespace norvex {

void MainWindowController::connectPrinting() {
  printing_.setUp();
  connect(doPrintingToolbarItem, &QAction::triggered, this, [this] { doPrinting(doPrintingToolbarItem); });
  auto* pageLayout = new QAction(localizedString("Page Set&up…"), window_);
  pageLayout->setObjectName(QStringLiteral("pageLayoutAction"));
  pageLayout->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
  connect(pageLayout, &QAction::triggered, &printing_, &PrintingCommand::runPageLayout);
  auto* print = new QAction(localizedString("&Print…"), window_);
  print->setObjectName(QStringLiteral("printAction"));
  print->setShortcut(QKeySequence::Print);
  connect(print, &QAction::triggered, this, [this] { printDocument(); });
  // The toolbar's item, for those who have no mouse.
  auto* printPart = new QAction(localizedString("Print Selected or Visible Pa&rt…"), window_);
  printPart->setObjectName(QStringLiteral("printPartAction"));
  printPart->setShortcut(Qt::CTRL | Qt::ALT | Qt::Key_P);
  connect(printPart, &QAction::triggered, this, [this, printPart] { doPrinting(printPart); });
  printPart->setEnabled(doPrintingToolbarItem->isEnabled());
  connect(doPrintingToolbarItem, &QAction::enabledChanged, printPart, &QAction::setEnabled);
  auto* exporting = new ExportCommand(*this, copying_, this);
  auto* exportAction = new QAction(localizedString("E&xport…"), window_);
  exportAction->setObjectName(QStringLiteral("exportAction"));
  exportAction->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_E);
  connect(exportAction, &QAction::triggered, exporting, &ExportCommand::run);
  exportAction->setEnabled(doSaveToToolbarItem->isEnabled());
  connect(doSaveToToolbarItem, &QAction::enabledChanged, exportAction, &QAction::setEnabled);
  ui_->fileMenu->insertAction(ui_->reloadAction, exportAction);
  ui_->fileMenu->insertActions(ui_->closeAction, {pageLayout, print, printPart});
  ui_->fileMenu->insertSeparator(ui_->closeAction);
}

void MainWindowController::setUpPictureMenu() {
  setUpViewing();
  viewWidget_->setWhatsThis(
      localizedString("Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another "
                      "program as a file."));
  viewWidget_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(viewWidget_, &QWidget::customContextMenuRequested, this, [this](const QPoint& point) {
    if (!validateUserInterfaceItem()) return;
    auto* menu = new QMenu(viewWidget_);
    menu->setObjectName(QStringLiteral("pictureMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions({copyToolbarItem, doSaveToToolbarItem});
    menu->addSeparator();
    menu->addActions({ui_->selectAllAction, ui_->deselectAction});
    menu->addSeparator();
    menu->addActions({ui_->rotateLeftAction, ui_->rotateRightAction, ui_->resetRotationAction});
    menu->popup(viewWidget_->mapToGlobal(point));
  });
  new DragSource(
      *viewWidget_, [this] { return draggedFile(); }, this);
  // The preview shows the whole picture, and knows no other drag.
  previewImageView()->setCursor(Qt::OpenHandCursor);
  new DragSource(
      *previewImageView(), [this] { return copying_.draggedWhole(); }, this, Qt::NoModifier);
}

void MainWindowController::setUpViewing() {
  auto* go = new QMenu(localizedString("&Go"), menuBar);
  go->setObjectName(QStringLiteral("goMenu"));
  menuBar->insertMenu(ui_->helpMenu->menuAction(), go);
  auto* pages = new PagesCommand(*this, this);
  pages->setUp(*go);
  connect(this, &MainWindowController::documentShown, pages, &PagesCommand::documentDidChange);
  connect(pages, &PagesCommand::pageDidChange, this, [this] {
    messages_.watchPicture(std::dynamic_pointer_cast<StoppableProcess>(view()->imageRep()->process()));
    setWindowSize();
  });
  auto* fit = new StickyFit(*this, this);
  QList<QAction*> viewActions = ui_->viewMenu->actions();
  ui_->viewMenu->insertAction(viewActions.value(viewActions.indexOf(ui_->fitAction) + 1),
                              fit->setUp(*ui_->fitAction));
  ui_->viewMenu->insertAction(ui_->fitAction, makeRealSizeAction(*this, *ui_->actualSizeAction));
  connect(&inspector_, &InspectorCommand::turned, fit, &StickyFit::fitAgain);
  connect(pages, &PagesCommand::pageDidChange, fit, &StickyFit::fitAgain);
  auto* history = new SelectionHistory(*this, this);
  history->setUp(*ui_->editMenu, *ui_->selectAllAction);
  connect(this, &MainWindowController::documentShown, history, &SelectionHistory::clear);
  connect(pages, &PagesCommand::pageDidChange, history, &SelectionHistory::clear);
  auto* live = new LiveFile(*this, *pages, this);
  setUpReader(*this, loading_, *live, *pages, *go);
  ui_->fileMenu->insertAction(ui_->closeAction, live->makeAction());
  connect(this, &MainWindowController::documentShown, live, &LiveFile::documentDidChange);
  setUpChoices();
  auto* docked = new DockedInspector(*this, inspector_, this);
  viewActions = ui_->viewMenu->actions();
  ui_->viewMenu->insertActions(viewActions.value(viewActions.indexOf(inspectorToolbarItem) + 1),
                               {docked->setUp(), docked->makeFocusAction()});
  connect(docked, &DockedInspector::roomDidChange, this, &MainWindowController::setWindowSize);
  auto* labels = new ToolbarLabels(
      *toolbar, {copyToolbarItem, doSaveToToolbarItem, doPrintingToolbarItem, inspectorToolbarItem}, this);
  labels->fit();
  auto* readout = new PointerReadout(*this, this);
  readout->setUp();
  connect(this, &MainWindowController::documentShown, readout, &PointerReadout::pictureDidChange);
  connect(pages, &PagesCommand::pageDidChange, readout, &PointerReadout::pictureDidChange);
  auto* fullScreen = new FullScreen(*this, this);
  fullScreen->setUp(*ui_->deselectAction);
  connect(ui_->fullScreenAction, &QAction::triggered, fullScreen, &FullScreen::set);
}

void MainWindowController::setUpChoices() {
  ViewChoices& choices = ViewChoices::shared();
  QAction* fits = choices.makeAction(ViewChoices::WindowFitsPicture, "&Window Fits Picture",
                                     "windowFitsPictureAction", window_);
  QAction* dim =
      choices.makeAction(ViewChoices::DimOutside, "Di&m Outside of Selection", "dimOutsideAction", window_);
  ui_->viewMenu->insertActions(inspectorToolbarItem, {fits, dim});
  connect(&choices, &ViewChoices::changed, this, [this](ViewChoices::Choice choice, bool on) {
    if (choice == ViewChoices::WindowFitsPicture) {
      viewWidget_->setStandsOnCanvas(!on);
      setWindowSize();
    }
    if (choice == ViewChoices::DimOutside) viewWidget_->setDimsOutside(on);
  });
  viewWidget_->setStandsOnCanvas(!choices.isOn(ViewChoices::WindowFitsPicture));
  viewWidget_->setDimsOutside(choices.isOn(ViewChoices::DimOutside));
  if (choices.isOn(ViewChoices::Checkerboard)) useBackgroundSwitch()->setChecked(false);
}

}  // namespace norvex
