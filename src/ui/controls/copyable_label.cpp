#include "ui/controls/copyable_label.h"

#include <QEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>

namespace norvex {

namespace {

class KeysFirst final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto* label = static_cast<QLabel*>(watched);
    const bool ours = (key->matches(QKeySequence::Copy) && label->hasSelectedText()) ||
                      (key->matches(QKeySequence::SelectAll) && !label->text().isEmpty());
    if (ours) event->accept();
    return ours;
  }
};

}  // namespace

void makeCopyable(QLabel& label) {
  label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  label.setFocusPolicy(Qt::StrongFocus);
  label.installEventFilter(new KeysFirst(&label));
}

}  // namespace norvex
