#include "window/commands/window_parts.h"

#include "base/path_extension.h"
#include "base/result.h"
#include "desktop/alert.h"
#include "desktop/save_panel.h"
#include "display/norvex_view.h"
#include "picture/localized_error.h"
#include "ui/panels/sheet_save_panel.h"
#include "ui/picture/message_bar.h"

namespace norvex {

WindowParts::WindowParts() = default;
WindowParts::~WindowParts() = default;

bool WindowParts::validateUserInterfaceItem() const {
  return view() && view()->imageRep() != nullptr;
}

QRectF WindowParts::chosenRect() const {
  const QRectF& selected = view()->selectRect();
  return selected.width() > 0 && selected.height() > 0 ? selected : view()->visibleRect();
}

QString WindowParts::clipName() const {
  return QStringLiteral("%1_clip").arg(pathWithoutExtension(window_->windowFilePath().section(u'/', -1)));
}

void WindowParts::redisplay() {
  if (window_ && window_->isVisible()) window_->repaint();
}

NSSavePanel& WindowParts::savePanel() {
  if (savePanel_) return *savePanel_;
  if (!ownSavePanel_) ownSavePanel_ = std::make_unique<QtSavePanel>();
  return *ownSavePanel_;
}

void WindowParts::tell(const QStringList& sentences) {
  QStringList told;
  for (const QString& sentence : sentences) told << localizedSentence(sentence);
  if (messageBar_ && !told.isEmpty())
    messageBar_->showMessage(MessageBar::Kind::Information, told.join(u' '));
}

void WindowParts::showWriteFailure(const Error& error, const QString& path) {
  Alert alert;
  alert.style = AlertStyle::Warning;
  const ToldError told = localizedError(error);
  alert.messageText = told.sentence;
  alert.details = told.details;
  alert.informativeText = path;
  if (alerts_) alerts_->runModal(alert);
}

}  // namespace norvex
