#include "window/viewing_set_up.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "base/localized_string.h"
#include "picture/process/stoppable_process.h"
#include "ui/picture/drag_source.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zy_image_view.h"
#include "ui_MainWindowController.h"
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
namespace {

using Controller = MainWindowController;

QAction* behind(const QMenu& menu, QAction* action) {
  const QList<QAction*> actions = menu.actions();
  return actions.value(actions.indexOf(action) + 1);
}

PagesCommand* setUpPages(Controller& controller, WindowCommands& commands, QMenu& menu) {
  auto* pages = new PagesCommand(controller, commands.sizing, &controller);
  pages->setUp(menu);
  QObject::connect(&controller, &Controller::documentShown, pages, &PagesCommand::documentDidChange);
  QObject::connect(&controller, &Controller::documentShown, pages, &PagesCommand::showStrip);
  QObject::connect(pages, &PagesCommand::pageDidChange, &controller, [c = &controller, &commands] {
    const NSImageRep& page = *c->view()->imageRep();
    commands.messages.watchPicture(std::dynamic_pointer_cast<StoppableProcess>(page.process()));
    commands.inspector.watch(&page);
    c->setWindowSize();
  });
  return pages;
}

StickyFit* setUpFitting(Controller& controller, WindowCommands& commands, PagesCommand& pages,
                        Ui::MainWindowController& ui) {
  auto* fit = new StickyFit(controller, &controller);
  QAction* const next = behind(*ui.viewMenu, ui.fitAction);
  ui.viewMenu->insertAction(next, fit->setUp(*ui.fitAction));
  ui.viewMenu->insertAction(ui.fitAction, makeRealSizeAction(controller, *ui.actualSizeAction));
  QObject::connect(&commands.inspector, &InspectorCommand::turned, fit, &StickyFit::fitAgain);
  QObject::connect(&pages, &PagesCommand::pageDidChange, fit, &StickyFit::fitAgain);
  return fit;
}

void setUpHistory(Controller& controller, PagesCommand& pages, Ui::MainWindowController& ui) {
  auto* history = new SelectionHistory(controller, &controller);
  history->setUp(*ui.editMenu, *ui.selectAllAction);
  QObject::connect(&controller, &Controller::documentShown, history, &SelectionHistory::clear);
  QObject::connect(&pages, &PagesCommand::pageDidChange, history, &SelectionHistory::clear);
}

/// What the user chooses for all windows.
void setUpChoices(Controller& controller, Ui::MainWindowController& ui) {
  Controller* const c = &controller;
  ViewChoices& choices = ViewChoices::shared();
  QAction* fits = choices.makeAction(ViewChoices::WindowFitsPicture, "&Window Fits Picture",
                                     "windowFitsPictureAction", c->window());
  QAction* dim = choices.makeAction(ViewChoices::DimOutside, "Di&m Outside of Selection", "dimOutsideAction",
                                    c->window());
  ui.viewMenu->insertActions(c->inspectorToolbarItem, {fits, dim});
  QObject::connect(&choices, &ViewChoices::changed, c, [c](ViewChoices::Choice choice, bool on) {
    if (choice == ViewChoices::WindowFitsPicture) {
      c->viewWidget()->setStandsOnCanvas(!on);
      c->setWindowSize();
    }
    if (choice == ViewChoices::DimOutside) c->viewWidget()->setDimsOutside(on);
  });
  c->viewWidget()->setStandsOnCanvas(!choices.isOn(ViewChoices::WindowFitsPicture));
  c->viewWidget()->setDimsOutside(choices.isOn(ViewChoices::DimOutside));
  if (choices.isOn(ViewChoices::Checkerboard)) c->useBackgroundSwitch()->setChecked(false);
}

/// The inspector as a panel, and what stands around the picture.
void setUpSurroundings(Controller& controller, WindowCommands& commands, PagesCommand& pages,
                       Ui::MainWindowController& ui) {
  Controller* const c = &controller;
  auto* docked = new DockedInspector(controller, commands.inspector, commands.sizing, c);
  QAction* const next = behind(*ui.viewMenu, c->inspectorToolbarItem);
  ui.viewMenu->insertActions(next, {docked->setUp(), docked->makeFocusAction()});
  auto* labels = new ToolbarLabels(
      *c->toolbar,
      {c->copyToolbarItem, c->doSaveToToolbarItem, c->doPrintingToolbarItem, c->inspectorToolbarItem}, c);
  labels->fit();
  auto* readout = new PointerReadout(controller, c);
  readout->setUp();
  QObject::connect(c, &Controller::documentShown, readout, &PointerReadout::pictureDidChange);
  QObject::connect(&pages, &PagesCommand::pageDidChange, readout, &PointerReadout::pictureDidChange);
  auto* fullScreen = new FullScreen(controller, c);
  fullScreen->setUp(*ui.deselectAction);
  QObject::connect(ui.fullScreenAction, &QAction::triggered, fullScreen, &FullScreen::set);
}

void setUpDragging(Controller& controller, WindowCommands& commands) {
  NorvexViewWidget& picture = *controller.viewWidget();
  picture.setWhatsThis(
      localizedString("Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another "
                      "program as a file."));
  new DragSource(
      picture, [c = &controller] { return c->draggedFile(); }, &controller);
  // The preview shows the whole picture, and knows no other drag.
  ZyImageView& preview = *controller.previewImageView();
  preview.setCursor(Qt::OpenHandCursor);
  new DragSource(
      preview, [&commands] { return commands.copying.draggedWhole(); }, &controller, Qt::NoModifier);
}

}  // namespace

void setUpViewing(MainWindowController& controller, WindowCommands& commands, Ui::MainWindowController& ui) {
  auto* go = new QMenu(localizedString("&Go"), controller.menuBar);
  go->setObjectName(QStringLiteral("goMenu"));
  controller.menuBar->insertMenu(ui.helpMenu->menuAction(), go);
  PagesCommand& pages = *setUpPages(controller, commands, *go);
  StickyFit& fit = *setUpFitting(controller, commands, pages, ui);
  setUpHistory(controller, pages, ui);
  auto* live = new LiveFile(controller, pages, fit, &controller);
  setUpReader(controller, commands, *live, pages, ui, *go);
  ui.fileMenu->insertAction(ui.closeAction, live->makeAction());
  QObject::connect(&controller, &Controller::documentShown, live, &LiveFile::documentDidChange);
  setUpChoices(controller, ui);
  setUpSurroundings(controller, commands, pages, ui);
  setUpDragging(controller, commands);
}
}  // namespace norvex
