#include "window/reading/password_command.h"

#include "ui/picture/message_bar.h"
#include "ui/picture/password_bar.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_parts.h"

namespace norvex {

PasswordCommand::PasswordCommand(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

void PasswordCommand::makeBar() {
  bar_ = new PasswordBar(parts_.scrollArea());
  parts_.scrollArea()->addCard(bar_, Qt::TopEdge);
  connect(bar_, &PasswordBar::passwordGiven, this, [this](const QString& password) {
    tried_ = true;
    emit passwordGiven(password);
  });
}

bool PasswordCommand::take(const Error& error) {
  if (error.kind != ErrorKind::Encrypted) return false;
  parts_.messageBar()->clearMessage();
  if (!bar_) makeBar();
  bar_->ask(tried_);
  tried_ = false;
  return true;
}

void PasswordCommand::documentDidOpen() {
  tried_ = false;
  if (bar_) bar_->dismiss();
}

}  // namespace norvex
