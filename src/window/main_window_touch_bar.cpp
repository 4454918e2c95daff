// The Touch Bar of the document window, and the strip that shows it where there is no such hardware.
#include <QAction>
#include <QLayout>
#include <QMainWindow>

#include "document/document.h"
#include "ui/controls/touch_strip.h"
#include "ui/style/symbolic_icon.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"

namespace norvex {

namespace {

QIcon iconFor(TouchBarAction action) {
  switch (action) {
    case TouchBarAction::SaveDocumentAs:
      return symbolicIcon(Symbol::SaveAs);
    case TouchBarAction::SaveDocumentTo:
      return symbolicIcon(Symbol::SaveTo);
    case TouchBarAction::RevertDocumentToSaved:
      return symbolicIcon(Symbol::Reload);
    case TouchBarAction::Copy:
      return symbolicIcon(Symbol::Copy);
    case TouchBarAction::PrintDocument:
      return symbolicIcon(Symbol::Print);
  }
  return {};
}

}  // namespace

NSTouchBar MainWindowController::makeTouchBar() {
  return mainWindowTouchBar(*this);
}

std::optional<NSCustomTouchBarItem> MainWindowController::touchBar(const NSTouchBar& touchBar,
                                                                   const QString& makeItemForIdentifier) {
  return mainWindowTouchBarItem(touchBar, makeItemForIdentifier);
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
  if (on && !touchStrip_) {
    touchStrip_ = new TouchStrip(window_);
    const NSTouchBar bar = makeTouchBar();
    for (const NSCustomTouchBarItem& item : bar.items())
      touchStrip_->addButton(item.identifier, item.title, iconFor(item.action),
                             [this, action = item.action] { performTouchBarAction(action); });
    window_->centralWidget()->layout()->addWidget(touchStrip_);
    validateTouchStrip();
  }
  ui_->touchBarAction->setChecked(on);
  if (!touchStrip_) return;
  touchStrip_->setVisible(on);
  // The strip is part of what surrounds the picture: the largest window is another one now.
  window_->centralWidget()->layout()->activate();
  setWindowSize();
}

void MainWindowController::validateTouchStrip() {
  if (!touchStrip_) return;
  const bool hasPicture = validateUserInterfaceItem();
  const NSTouchBar bar = makeTouchBar();
  for (const NSCustomTouchBarItem& item : bar.items()) {
    const bool reload = item.action == TouchBarAction::RevertDocumentToSaved;
    touchStrip_->setButtonEnabled(item.identifier, reload ? ui_->reloadAction->isEnabled() : hasPicture);
  }
}

}  // namespace norvex
