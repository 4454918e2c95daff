// Menus, toolbar and the controls of the inspector: what is connected to what, and what is enabled.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "ui/controls/color_well.h"
#include "ui/controls/copyable_label.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/panels/own_shortcuts.h"
#include "ui/panels/shortcut_panel.h"
#include "ui/panels/tool_tip_keys.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/source/source_text_view.h"
#include "ui/style/symbolic_icon.h"
#include "ui_MainWindowController.h"
#include "window/about_box.h"
#include "window/commands/window_frames.h"
#include "window/main_window_controller.h"
#include "window/selection_commands.h"
#include "window/selection_description.h"
#include "window/viewing/selection_history.h"

namespace norvex {

namespace {

constexpr double kQuarterTurn = 90;

void setShortcuts(QAction* action, const QList<QKeySequence>& keys) {
  action->setShortcuts(keys);
  action->setShortcutContext(Qt::WindowShortcut);
}

}  // namespace

void MainWindowController::connectControls() {
  for (QLabel* field : {startPoint, endPoint}) makeCopyable(*field);
  connect(backgroundColorWell(), &ColorWell::colorChosen, this, &MainWindowController::takeColor);
  connect(useBackgroundSwitch(), &QCheckBox::stateChanged, this, &MainWindowController::useBackgroundAction);
  connect(rotateField(), &NumberField::valueEdited, this, &MainWindowController::rotateChange);
  connect(dialKnob(), &ZyDialKnob::turned, this, &MainWindowController::doRotateFromKnob);
  connect(viewWidget_, &NorvexViewWidget::drawn, &messages_, &MessagesCommand::followRendering,
          Qt::QueuedConnection);
  connect(loadingCard_, &LoadingCard::cancelled, this, &MainWindowController::stopWork);
  connect(messageBar_, &MessageBar::actionChosen, &messages_, &MessagesCommand::actionChosen);
  connect(messageBar_, &MessageBar::otherChosen, &messages_, &MessagesCommand::otherChosen);
}

void MainWindowController::connectCommands() {
  SKTZoomingScrollView* scroll = zoomingScrollView();
  const auto on = [this](QAction* action, const QList<QKeySequence>& keys, auto slot) {
    setShortcuts(action, keys);
    connect(action, &QAction::triggered, this, slot);
  };
  on(ui_->reloadAction, {Qt::Key_F5}, [this] { reload(); });
  on(ui_->closeAction, {Qt::CTRL | Qt::Key_W}, [this] { window_->close(); });
  on(ui_->saveAsAction, {QKeySequence::Save, Qt::CTRL | Qt::SHIFT | Qt::Key_S}, [this] { saveDocumentAs(); });
  on(ui_->copyAction, {QKeySequence::Copy}, [this] { copy(); });
  on(copyToolbarItem, {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, [this] { doCopy(copyToolbarItem); });
  on(doSaveToToolbarItem, {Qt::CTRL | Qt::Key_E}, [this] { doSaveTo(doSaveToToolbarItem); });
  on(ui_->quitAction, {Qt::CTRL | Qt::Key_Q}, [] { QCoreApplication::quit(); });
  on(ui_->selectAllAction, {QKeySequence::SelectAll}, [this] { view()->selectBounds(); });
  on(ui_->deselectAction, {Qt::Key_Escape, Qt::CTRL | Qt::SHIFT | Qt::Key_A},
     [this] { view()->clearSelectRect(); });
  selectionCommands_ = new SelectionCommands(*ui_->editMenu, ui_->findAction, *view(), *scrollArea_, this);
  on(ui_->findAction, {QKeySequence::Find}, [this] {
    showSource();
    sourceTextView->showFindBar();
  });
  on(ui_->findNextAction, {Qt::Key_F3}, [this] { showSource(), sourceTextView->findNext(); });
  on(ui_->findPreviousAction, {Qt::SHIFT | Qt::Key_F3},
     [this] { showSource(), sourceTextView->findNext(true); });
  on(ui_->zoomInAction, {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [scroll] { scroll->zoom(1); });
  on(ui_->zoomOutAction, {Qt::CTRL | Qt::Key_Minus}, [scroll] { scroll->zoom(-1); });
  on(ui_->actualSizeAction, {Qt::CTRL | Qt::Key_0, Qt::CTRL | Qt::Key_1}, [scroll] { scroll->zoomTo(1.0); });
  on(ui_->fitAction, {Qt::CTRL | Qt::Key_9},
     [this] { zoomingScrollView()->zoomTo(scrollArea_->fittingFactor()); });
  on(ui_->rotateLeftAction, {Qt::CTRL | Qt::SHIFT | Qt::Key_R}, [this] { rotateBy(kQuarterTurn); });
  on(ui_->rotateRightAction, {Qt::CTRL | Qt::Key_R}, [this] { rotateBy(-kQuarterTurn); });
  on(ui_->resetRotationAction, {}, [this] { dialKnob()->turnTo(0); });
  on(inspectorToolbarItem, {Qt::CTRL | Qt::Key_I, Qt::ALT | Qt::Key_Return, Qt::Key_F9},
     [this] { showInspectorWindow(inspectorToolbarItem); });
  on(ui_->touchBarAction, {}, [this](bool checked) {
    showTouchBar(checked);
    saveTouchBarIsShown(checked);
  });
  on(ui_->shortcutsAction, {Qt::CTRL | Qt::Key_Question, Qt::CTRL | Qt::Key_F1},
     [this] { showShortcutPanel(*window_, *ui_->menuBar); });
  setShortcuts(ui_->fullScreenAction, {Qt::Key_F11});  // window/viewing does it
  on(ui_->aboutAction, {}, [this] { showAbout(); });
  scrollArea_->setFocus(Qt::OtherFocusReason);  // keys are for the picture until another control is chosen
  setUpPictureMenu();
  arrangeToolbar();
  OwnShortcuts::shared().apply(*window_);
  inspectorToolbarItem->setIcon(symbolicIcon(Symbol::Inspector));
  copyToolbarItem->setIcon(symbolicIcon(Symbol::Copy));
  doPrintingToolbarItem->setIcon(symbolicIcon(Symbol::Print));
  doSaveToToolbarItem->setIcon(symbolicIcon(Symbol::SaveTo));
  ui_->zoomInAction->setIcon(symbolicIcon(Symbol::ZoomIn));
  ui_->zoomOutAction->setIcon(symbolicIcon(Symbol::ZoomOut));
  ui_->fitAction->setIcon(symbolicIcon(Symbol::Fit));
  ui_->rotateLeftAction->setIcon(symbolicIcon(Symbol::RotateLeft));
  ui_->rotateRightAction->setIcon(symbolicIcon(Symbol::RotateRight));
}

void MainWindowController::arrangeToolbar() {
  auto* gap = new QWidget(ui_->toolbar);
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  ui_->toolbar->insertWidget(inspectorToolbarItem, gap);
  if (auto* more = ui_->toolbar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
    more->setAccessibleName(localizedString("More"));
  for (QAction* action :
       {ui_->zoomOutAction, ui_->zoomInAction, ui_->fitAction, ui_->rotateLeftAction, ui_->rotateRightAction})
    if (auto* button = qobject_cast<QToolButton*>(ui_->toolbar->widgetForAction(action)))
      button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  new ToolTipKeys(*ui_->toolbar);
}

void MainWindowController::validateCommands() {
  const bool enabled = validateUserInterfaceItem();
  for (QAction* action :
       {inspectorToolbarItem, copyToolbarItem, doPrintingToolbarItem, doSaveToToolbarItem, ui_->saveAsAction,
        ui_->copyAction, ui_->selectAllAction, ui_->findAction, ui_->findNextAction, ui_->findPreviousAction,
        ui_->zoomInAction, ui_->zoomOutAction, ui_->actualSizeAction, ui_->fitAction, ui_->rotateLeftAction,
        ui_->rotateRightAction, ui_->resetRotationAction})
    action->setEnabled(enabled);
  ui_->reloadAction->setEnabled(document_ && !document_->fileURL().isEmpty());
  touchBar_.validate(ui_->reloadAction->isEnabled());
  validateSelectionCommands();
}

void MainWindowController::validateSelectionCommands() {
  // Without a selection Escape is for whoever else wants it.
  ui_->deselectAction->setEnabled(view()->selectRect().width() > 0);
  selectionCommands_->selectionDidChange();
  if (auto* history = findChild<SelectionHistory*>()) history->selectionDidChange();
}

void MainWindowController::setZoomFactor(double factor) {
  zoomFactor_ = factor;
  emit zoomFactorDidChange(factor);
}

void MainWindowController::rotateBy(double degrees) {
  // As seen on the screen: positive is to the left, whatever sense the dial has.
  dialKnob()->turnTo(dialKnob()->degreeValue() + (dialKnob()->clockwise() ? -degrees : degrees));
}

bool MainWindowController::dialKnobClockwise() const {
  return dialKnob() && dialKnob()->clockwise();
}

void MainWindowController::norvexView(NorvexView&, const QString& selectedRangeStrings, const QString& end,
                                      const QString& area) {
  validateSelectionCommands();
  const QString description = selectionDescription(selectedRangeStrings, end, area);
  viewWidget_->setAccessibleDescription(description);
  scrollArea_->setAccessibleDescription(
      description);  // it has the focus, and is what a screen reader reads first
  if (selectedRangeStrings.isEmpty()) {
    startPoint->clear();
    endPoint->clear();
    return;
  }
  double first = 0, second = 0;
  const auto read = [&](const QString& pair) {
    const QStringList numbers = pair.simplified().split(QChar(' '));
    bool ok = false;
    const double x = numbers.value(0).toDouble(&ok);
    if (!ok) return;
    first = x;
    const double y = numbers.value(1).toDouble(&ok);
    if (ok) second = y;
  };
  const auto shown = [&] { return QString::asprintf("(%9.2f,%9.2f)", first, second); };
  read(selectedRangeStrings);
  startPoint->setText(shown());
  if (end.isEmpty()) return endPoint->clear();
  read(end);
  endPoint->setText(shown());
}

void MainWindowController::showSource() {
  inspector_.showSource();
}

void MainWindowController::saveDocumentAs(QObject*) {
  savingAs_.run(localizedString("Save As"));
}

void MainWindowController::saveDocumentTo(QObject*) {
  savingAs_.run(localizedString("Save To"));
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

void MainWindowController::showTouchBar(bool on) {
  touchBar_.show(on);
  touchBar_.validate(ui_->reloadAction->isEnabled());
  ui_->touchBarAction->setChecked(on);
  // The strip is part of what surrounds the picture: the largest window is another one now.
  if (touchStrip()) setWindowSize();
}

void MainWindowController::showAbout() {
  showAboutBox(*window_);
}

}  // namespace norvex
