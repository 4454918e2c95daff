#include "ui/controls/value_copying.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include "base/localized_string.h"
#include "ui/style/symbolic_icon.h"

namespace norvex {

namespace {

class ValueCopying final : public QObject {
 public:
  explicit ValueCopying(QLineEdit& field)
      : QObject(&field),
        field_(field),
        button_(field.addAction(symbolicIcon(Symbol::Copy), QLineEdit::TrailingPosition)) {
    button_->setText(localizedString("Copy Value"));
    button_->setToolTip(button_->text());
    button_->setObjectName(QStringLiteral("copyValueAction"));
    button_->setVisible(false);
    connect(button_, &QAction::triggered, this, &ValueCopying::copy);
    connect(&field_, &QLineEdit::textChanged, this, &ValueCopying::arrange);
    field_.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Enter:
        under_ = true;
        return arrange(), false;
      case QEvent::Leave:
        under_ = false;
        return arrange(), false;
      case QEvent::FocusIn:
        focused_ = true;
        return arrange(), false;
      case QEvent::FocusOut:
        focused_ = false;
        return arrange(), false;
      case QEvent::ShortcutOverride:
        return isCopy(event) && (event->accept(), true);
      case QEvent::KeyPress:
        if (!isCopy(event)) return false;
        copy();
        return true;
      case QEvent::ContextMenu:
        return showMenu(*static_cast<QContextMenuEvent*>(event));
      default:
        return false;
    }
  }

 private:
  /// With a selection the field itself copies that.
  [[nodiscard]] bool isCopy(QEvent* event) const {
    return static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy) && !field_.hasSelectedText() &&
           !field_.text().isEmpty();
  }

  void arrange() { button_->setVisible((under_ || focused_) && !field_.text().isEmpty()); }

  void copy() { QGuiApplication::clipboard()->setText(field_.text()); }

  bool showMenu(const QContextMenuEvent& event) {
    auto* menu = new QMenu(&field_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* whole = menu->addAction(localizedString("Copy Value"), this, &ValueCopying::copy);
    QAction* part = menu->addAction(localizedString("Copy Selected Text"), &field_, &QLineEdit::copy);
    QAction* all = menu->addAction(localizedString("Select All"), &field_, &QLineEdit::selectAll);
    whole->setEnabled(!field_.text().isEmpty());
    part->setEnabled(field_.hasSelectedText());
    all->setEnabled(!field_.text().isEmpty());
    menu->popup(event.globalPos());
    return true;
  }

  QLineEdit& field_;
  QAction* button_;
  bool under_ = false, focused_ = false;
};

}  // namespace

void makeValueCopyable(QLineEdit& field) {
  new ValueCopying(field);
}

}  // namespace norvex
