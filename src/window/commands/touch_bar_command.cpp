#include "window/commands/touch_bar_command.h"

#include <QLayout>
#include <QMainWindow>

#include "ui/controls/touch_strip.h"
#include "ui/style/symbolic_icon.h"
#include "window/commands/window_parts.h"

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

void TouchBarCommand::show(bool on) {
  QWidget* const content = parts_.mainWindow()->centralWidget();
  if (on && !strip_) {
    strip_ = new TouchStrip(parts_.mainWindow());
    for (const NSCustomTouchBarItem& item : mainWindowTouchBar(delegate_).items())
      strip_->addButton(item.identifier, item.title, iconFor(item.action),
                        [this, action = item.action] { perform_(action); });
    content->layout()->addWidget(strip_);
  }
  if (!strip_) return;
  strip_->setVisible(on);
  content->layout()->activate();
}

void TouchBarCommand::validate(bool mayReload) {
  if (!strip_) return;
  const bool hasPicture = parts_.validateUserInterfaceItem();
  for (const NSCustomTouchBarItem& item : mainWindowTouchBar(delegate_).items()) {
    const bool reloads = item.action == TouchBarAction::RevertDocumentToSaved;
    strip_->setButtonEnabled(item.identifier, reloads ? mayReload : hasPicture);
  }
}

}  // namespace norvex
