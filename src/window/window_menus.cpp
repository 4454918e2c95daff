#include "window/window_menus.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/panels/own_shortcuts.h"
#include "ui/panels/shortcut_panel.h"
#include "ui/panels/tool_tip_keys.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/style/symbolic_icon.h"
#include "ui_MainWindowController.h"
#include "window/about_box.h"
#include "window/commands/followed_action.h"
#include "window/export/export_command.h"
#include "window/main_window_controller.h"
#include "window/place/window_frames.h"
#include "window/selection_commands.h"
#include "window/viewing/selection_history.h"
#include "window/viewing_set_up.h"

namespace norvex {

namespace {

constexpr double kQuarterTurn = 90;

void setShortcuts(QAction* action, const QList<QKeySequence>& keys) {
  action->setShortcuts(keys);
  action->setShortcutContext(Qt::WindowShortcut);
}

template <typename Slot>
void on(QAction* action, const QList<QKeySequence>& keys, QObject* context, Slot slot) {
  setShortcuts(action, keys);
  QObject::connect(action, &QAction::triggered, context, slot);
}

/// A command of the window that is enabled while `leader` is; null: always.
QAction* makeAction(QMainWindow& window, const char* title, const QString& name, const QKeySequence& key,
                    const QAction* leader) {
  auto* action = new QAction(localizedString(title), &window);
  action->setObjectName(name);
  action->setShortcut(key);
  if (leader) enableWith(*action, *leader);
  return action;
}

}  // namespace

void WindowMenus::setUp(Ui::MainWindowController& ui) {
  ui_ = &ui;
  connectFile();
  connectEdit();
  connectView();
  connectWindow();
  controller_.scrollArea()->setFocus(
      Qt::OtherFocusReason);  // keys are for the picture until another control is chosen
  setUpViewing(controller_, commands_, ui);
  addPictureMenu();
  setUpToolbar();
  addPrinting();
  addExport();
  OwnShortcuts::shared().apply(*controller_.window());
}

void WindowMenus::connectFile() {
  MainWindowController* const c = &controller_;
  on(ui_->reloadAction, {Qt::Key_F5}, c, [c] { c->reload(); });
  // The inspector's window has the commands of its document, but this one is about what has the focus.
  on(ui_->closeAction, {Qt::CTRL | Qt::Key_W}, c, [c] {
    const bool isInspector = QApplication::activeWindow() == c->inspectorWindow;
    (isInspector ? c->inspectorWindow : static_cast<QWidget*>(c->window()))->close();
  });
  on(ui_->saveAsAction, {QKeySequence::Save, Qt::CTRL | Qt::SHIFT | Qt::Key_S}, c,
     [c] { c->saveDocumentAs(); });
  on(c->doSaveToToolbarItem, {Qt::CTRL | Qt::Key_E}, c, [c] { c->doSaveTo(c->doSaveToToolbarItem); });
  on(ui_->quitAction, {Qt::CTRL | Qt::Key_Q}, c, [] { QCoreApplication::quit(); });
}

void WindowMenus::connectEdit() {
  MainWindowController* const c = &controller_;
  on(ui_->copyAction, {QKeySequence::Copy}, c, [c] { c->copy(); });
  on(c->copyToolbarItem, {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, c, [c] { c->doCopy(c->copyToolbarItem); });
  on(ui_->selectAllAction, {QKeySequence::SelectAll}, c, [c] { c->view()->selectBounds(); });
  on(ui_->deselectAction, {Qt::Key_Escape, Qt::CTRL | Qt::SHIFT | Qt::Key_A}, c,
     [c] { c->view()->clearSelectRect(); });
  selectionCommands_ =
      new SelectionCommands(*ui_->editMenu, ui_->findAction, *c->view(), *c->scrollArea(), c);
}

void WindowMenus::connectView() {
  MainWindowController* const c = &controller_;
  SKTZoomingScrollView* const scroll = c->zoomingScrollView();
  on(ui_->zoomInAction, {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, c,
     [scroll] { scroll->zoom(1); });
  on(ui_->zoomOutAction, {Qt::CTRL | Qt::Key_Minus}, c, [scroll] { scroll->zoom(-1); });
  on(ui_->actualSizeAction, {Qt::CTRL | Qt::Key_0, Qt::CTRL | Qt::Key_1}, c,
     [scroll] { scroll->zoomTo(1.0); });
  on(ui_->fitAction, {Qt::CTRL | Qt::Key_9}, c,
     [c, scroll] { scroll->zoomTo(c->scrollArea()->fittingFactor()); });
  on(ui_->rotateLeftAction, {Qt::CTRL | Qt::SHIFT | Qt::Key_R}, c, [this] { rotateBy(kQuarterTurn); });
  on(ui_->rotateRightAction, {Qt::CTRL | Qt::Key_R}, c, [this] { rotateBy(-kQuarterTurn); });
  on(ui_->resetRotationAction, {}, c, [c] { c->dialKnob()->turnTo(0); });
}

void WindowMenus::connectWindow() {
  MainWindowController* const c = &controller_;
  on(c->inspectorToolbarItem, {Qt::CTRL | Qt::Key_I, Qt::ALT | Qt::Key_Return, Qt::Key_F9}, c,
     [c] { c->showInspectorWindow(c->inspectorToolbarItem); });
  on(ui_->touchBarAction, {}, c, [this](bool checked) {
    showTouchBar(checked);
    saveTouchBarIsShown(checked);
  });
  on(ui_->shortcutsAction, {Qt::CTRL | Qt::Key_Question, Qt::CTRL | Qt::Key_F1}, c,
     [this, c] { showShortcutPanel(*c->window(), *ui_->menuBar); });
  setShortcuts(ui_->fullScreenAction, {Qt::Key_F11});  // window/viewing does it
  on(ui_->aboutAction, {}, c, [c] { showAboutBox(*c->window()); });
}

void WindowMenus::addPrinting() {
  MainWindowController* const c = &controller_;
  commands_.printing.setUp();
  QObject::connect(c->doPrintingToolbarItem, &QAction::triggered, c,
                   [c] { c->doPrinting(c->doPrintingToolbarItem); });
  QMainWindow& window = *c->window();
  QAction* pageLayout = makeAction(window, "Page Set&up…", QStringLiteral("pageLayoutAction"),
                                   Qt::CTRL | Qt::SHIFT | Qt::Key_P, nullptr);
  QObject::connect(pageLayout, &QAction::triggered, &commands_.printing, &PrintingCommand::runPageLayout);
  QAction* print = makeAction(window, "&Print…", QStringLiteral("printAction"), QKeySequence::Print, nullptr);
  QObject::connect(print, &QAction::triggered, c, [c] { c->printDocument(); });
  // The toolbar's item, for those who have no mouse.
  QAction* printPart =
      makeAction(window, "Print Selected or Visible Pa&rt…", QStringLiteral("printPartAction"),
                 Qt::CTRL | Qt::ALT | Qt::Key_P, c->doPrintingToolbarItem);
  QObject::connect(printPart, &QAction::triggered, c, [c, printPart] { c->doPrinting(printPart); });
  ui_->fileMenu->insertActions(ui_->closeAction, {pageLayout, print, printPart});
  ui_->fileMenu->insertSeparator(ui_->closeAction);
}

void WindowMenus::addExport() {
  auto* exporting = new ExportCommand(controller_, commands_.copying, &controller_);
  QAction* action = makeAction(*controller_.window(), "E&xport…", QStringLiteral("exportAction"),
                               Qt::CTRL | Qt::SHIFT | Qt::Key_E, controller_.doSaveToToolbarItem);
  QObject::connect(action, &QAction::triggered, exporting, &ExportCommand::run);
  ui_->fileMenu->insertAction(ui_->reloadAction, action);
}

void WindowMenus::addPictureMenu() {
  MainWindowController* const c = &controller_;
  QWidget* const picture = c->viewWidget();
  picture->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(picture, &QWidget::customContextMenuRequested, c, [this, c, picture](const QPoint& point) {
    if (!c->validateUserInterfaceItem()) return;
    auto* menu = new QMenu(picture);
    menu->setObjectName(QStringLiteral("pictureMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions({c->copyToolbarItem, c->doSaveToToolbarItem});
    menu->addSeparator();
    menu->addActions({ui_->selectAllAction, ui_->deselectAction});
    menu->addSeparator();
    menu->addActions({ui_->rotateLeftAction, ui_->rotateRightAction, ui_->resetRotationAction});
    menu->popup(picture->mapToGlobal(point));
  });
}

void WindowMenus::setUpToolbar() {
  auto* gap = new QWidget(ui_->toolbar);
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  ui_->toolbar->insertWidget(controller_.inspectorToolbarItem, gap);
  if (auto* more = ui_->toolbar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(localizedString("More"));
  for (QAction* action :
       {ui_->zoomOutAction, ui_->zoomInAction, ui_->fitAction, ui_->rotateLeftAction, ui_->rotateRightAction})
    if (auto* button = qobject_cast<QToolButton*>(ui_->toolbar->widgetForAction(action)))
      button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  const std::pair<QAction*, Symbol> icons[] = {{controller_.inspectorToolbarItem, Symbol::Inspector},
                                               {controller_.copyToolbarItem, Symbol::Copy},
                                               {controller_.doPrintingToolbarItem, Symbol::Print},
                                               {controller_.doSaveToToolbarItem, Symbol::SaveTo},
                                               {ui_->zoomInAction, Symbol::ZoomIn},
                                               {ui_->zoomOutAction, Symbol::ZoomOut},
                                               {ui_->fitAction, Symbol::Fit},
                                               {ui_->rotateLeftAction, Symbol::RotateLeft},
                                               {ui_->rotateRightAction, Symbol::RotateRight}};
  for (const auto& [action, symbol] : icons) action->setIcon(symbolicIcon(symbol));
  new ToolTipKeys(*ui_->toolbar);
}

void WindowMenus::validate() {
  const bool enabled = controller_.validateUserInterfaceItem();
  for (QAction* action :
       {controller_.inspectorToolbarItem, controller_.copyToolbarItem, controller_.doPrintingToolbarItem,
        controller_.doSaveToToolbarItem, ui_->saveAsAction, ui_->copyAction, ui_->selectAllAction,
        ui_->findAction, ui_->findNextAction, ui_->findPreviousAction, ui_->zoomInAction, ui_->zoomOutAction,
        ui_->actualSizeAction, ui_->fitAction, ui_->rotateLeftAction, ui_->rotateRightAction,
        ui_->resetRotationAction})
    action->setEnabled(enabled);
  const Document* const document = controller_.document();
  ui_->reloadAction->setEnabled(document && !document->fileURL().isEmpty());
  commands_.touchBar.validate(ui_->reloadAction->isEnabled());
  validateSelection();
}

void WindowMenus::validateSelection() {
  // Without a selection Escape is for whoever else wants it.
  ui_->deselectAction->setEnabled(controller_.view()->selectRect().width() > 0);
  selectionCommands_->selectionDidChange();
  if (auto* history = controller_.findChild<SelectionHistory*>()) history->selectionDidChange();
}

void WindowMenus::showTouchBar(bool on) {
  commands_.touchBar.show(on);
  commands_.touchBar.validate(ui_->reloadAction->isEnabled());
  ui_->touchBarAction->setChecked(on);
  // The strip is part of what surrounds the picture: the largest window is another one now.
  if (commands_.touchBar.strip()) controller_.setWindowSize();
}

void WindowMenus::rotateBy(double degrees) {
  // As seen on the screen: positive is to the left, whatever sense the dial has.
  ZyDialKnob& dial = *controller_.dialKnob();
  dial.turnTo(dial.degreeValue() + (dial.clockwise() ? -degrees : degrees));
}

}  // namespace norvex
