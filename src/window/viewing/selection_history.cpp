#include "window/viewing/selection_history.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "ui/pages/rectangle_dialog.h"
#include "ui/panels/modal_dialog.h"
#include "window/commands/followed_action.h"
#include "window/commands/window_parts.h"
#include "window/viewing/view_choices.h"

namespace norvex {
namespace {

constexpr qsizetype kMost = 100;

}  // namespace

void selectRectangle(NorvexView& view, const QRectF& rect) {
  const QRectF inside = rect & view.bounds();
  if (!(inside.width() >= 1 && inside.height() >= 1)) return view.clearSelectRect();
  // Sizing moves the upper right corner, so the rectangle is made at the lower left and moved from there.
  view.selectBounds();
  view.resizeSelection({inside.width() - view.bounds().width(), inside.height() - view.bounds().height()});
  view.moveSelection(inside.topLeft() - view.bounds().topLeft());
}

SelectionHistory::SelectionHistory(WindowParts& parts, QObject* parent) : QObject(parent), parts_(parts) {}

void SelectionHistory::setUp(QMenu& menu, const QAction& all) {
  QAction* first = menu.actions().value(0);
  const auto add = [&](const char* title, const char* name, const QKeySequence& key, auto act) {
    auto* action = new QAction(localizedString(title), parts_.mainWindow());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, act);
    menu.insertAction(first, action);
    return action;
  };
  undo_ = add("&Undo Selection", "undoAction", QKeySequence::Undo, [this] { step(before_, after_); });
  redo_ = add("&Redo Selection", "redoAction", Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
              [this] { step(after_, before_); });
  numbers_ =
      add("Select Rectan&gle…", "selectRectangleAction", Qt::CTRL | Qt::Key_L, [this] { askForNumbers(); });
  menu.insertSeparator(first);
  enableWith(*numbers_, all);
  validate();
}

void SelectionHistory::selectionDidChange() {
  // A drag reports at every step, and commands may take several: what stays counts.
  QTimer::singleShot(0, this, [this] {
    const Selection& settled = parts_.view()->selection();
    if (settled.tracking() || settled.state() == Selection::State::StartPoint) return;
    const QRectF rect = settled.state() == Selection::State::Rectangle ? settled.rect() : QRectF();
    if (rect == now_) return validate();
    before_ << now_;
    if (before_.size() > kMost) before_.removeFirst();
    after_.clear();
    now_ = rect;
    validate();
  });
}

void SelectionHistory::clear() {
  before_.clear();
  after_.clear();
  now_ = QRectF();
  validate();
}

void SelectionHistory::step(QList<QRectF>& from, QList<QRectF>& to) {
  if (from.isEmpty()) return;
  to << now_;
  now_ = from.takeLast();
  selectRectangle(*parts_.view(), now_);
  // As far as the picture, which may have been turned since, still has it.
  const Selection& made = parts_.view()->selection();
  now_ = made.state() == Selection::State::Rectangle ? made.rect() : QRectF();
  validate();
}

void SelectionHistory::askForNumbers() {
  const NorvexView& view = *parts_.view();
  const bool selected = view.selection().state() == Selection::State::Rectangle;
  const QRectF& bounds = view.bounds();
  ModalDialog<RectangleDialog> dialog((selected ? view.selectRect() : bounds).translated(-bounds.topLeft()),
                                      bounds.size(), ViewChoices::shared().unit(), parts_.mainWindow());
  if (!dialog.isAccepted()) return;
  selectRectangle(*parts_.view(), dialog->rectangle().translated(parts_.view()->bounds().topLeft()));
}

void SelectionHistory::validate() {
  if (!undo_) return;
  undo_->setEnabled(!before_.isEmpty());
  redo_->setEnabled(!after_.isEmpty());
}

}  // namespace norvex
