#include "window/reading/find_command.h"

#include <QAction>
#include <QFrame>
#include <QKeyEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

#include "base/localized_string.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/source/source_find_bar.h"
#include "ui/style/floating_card.h"
#include "window/commands/window_parts.h"
#include "window/reading/late_text_marks.h"
#include "window/reading/page_letters.h"
#include "window/reading/taken_key.h"

namespace norvex {
namespace {

class FindCard final : public QFrame {
 public:
  using QFrame::QFrame;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    drawFloatingCard(painter, rect(), palette().color(QPalette::Window), palette());
  }
};

}  // namespace

FindCommand::FindCommand(WindowParts& parts, PageLetters& letters, LateTextMarks& marks, QObject* parent)
    : QObject(parent), parts_(parts), letters_(letters), marks_(marks) {
  connect(&letters_, &PageLetters::arrived, this, &FindCommand::take);
  connect(&letters_, &PageLetters::lookedElsewhere, this, &FindCommand::takeElsewhere);
}

void FindCommand::setUp(QMenu& menu, QAction* before) {
  action_ = new QAction(localizedString("Find in P&icture…"), this);
  action_->setObjectName(QStringLiteral("findInPictureAction"));
  action_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_F);
  connect(action_, &QAction::triggered, this, &FindCommand::open);
  menu.insertAction(before, action_);
  pageDidChange();
}

void FindCommand::makeBar() {
  card_ = new FindCard(parts_.scrollArea());
  card_->hide();
  auto* column = new QVBoxLayout(card_);
  column->setContentsMargins(4, 2, 4, 2);
  bar_ = new SourceFindBar(card_);
  bar_->setObjectName(QStringLiteral("pictureFindBar"));
  column->addWidget(bar_);
  parts_.scrollArea()->addCard(card_, Qt::BottomEdge);
  card_->installEventFilter(this);
  connect(bar_, &SourceFindBar::needleChanged, this, [this] {
    letters_.stopLooking();  // the page that has the old word is no longer wanted
    lookFor();
  });
  connect(bar_, &SourceFindBar::wanted, this, &FindCommand::step);
  connect(bar_, &SourceFindBar::closed, this, &FindCommand::close);
}

void FindCommand::open() {
  if (!card_) makeBar();
  card_->show();
  parts_.scrollArea()->installEventFilter(this);  // before what was begun earlier
  bar_->begin();
  letters_.want();
  lookFor();
}

void FindCommand::findNext(bool backward) {
  if (isOpen() && !bar_->needle().isEmpty()) return step(backward);
  open();
}

void FindCommand::close() {
  parts_.scrollArea()->setFocus(Qt::OtherFocusReason);  // as nobody who came with Tab
  card_->hide();
  letters_.stopLooking();
  runs_.clear();
  if (marks_.made()) marks_.made()->setFound({}, {});
}

void FindCommand::pageDidChange() {
  action_->setEnabled(parts_.validateUserInterfaceItem());
  letters_.stopLooking();
  runs_.clear();
  if (!isOpen()) return;
  letters_.want();
  lookFor();
}

void FindCommand::take(const std::optional<Error>& error) {
  if (!isOpen()) return;
  if (error)
    BriefNote::tell(*parts_.scrollArea(), localizedString("The text of the picture cannot be read."));
  lookFor();
}

void FindCommand::lookFor() {
  const PageText* text = letters_.text();
  const LetterRun before = runs_.value(current_);
  runs_ = text ? runsWith(*text, bar_->needle()) : QList<LetterRun>();
  // One more letter stays at the place that was found, where it still is one.
  current_ = 0;
  while (current_ + 1 < runs_.size() && runs_.at(current_).from < before.from) ++current_;
  if (text && std::exchange(entering_, false) && backward_) current_ = qMax<qsizetype>(0, runs_.size() - 1);
  mark();
}

void FindCommand::step(bool backward) {
  if (bar_->needle().isEmpty()) return;
  backward_ = backward;
  const bool isLast = backward ? current_ == 0 : current_ + 1 >= runs_.size();
  if (!isLast || !letters_.lookElsewhere(bar_->needle(), backward)) goRound();
}

void FindCommand::goRound() {
  if (runs_.isEmpty()) {
    if (letters_.text()) bar_->showFoundNowhere();
    return;
  }
  current_ = (current_ + (backward_ ? runs_.size() - 1 : 1)) % runs_.size();
  mark();
}

void FindCommand::takeElsewhere(int page) {
  if (!isOpen()) return;
  if (page < 0) return goRound();
  entering_ = true;
  emit pageChosen(page);
}

void FindCommand::mark() {
  const PageText* text = letters_.text();
  QList<QRectF> found, current;
  for (qsizetype i = 0; text && i < runs_.size(); ++i)
    (i == current_ ? current : found) += placesOf(*text, runs_.at(i));
  TextMarks& marks = marks_.get();
  marks.setFound(found, current);
  bar_->setGoesOn(letters_.hasOtherPages());
  // While the text is being found out nothing has not been found.
  if (text || bar_->needle().isEmpty()) bar_->showOutcome(current_, runs_.size());
  if (current.isEmpty()) return;
  marks.reveal(current.constFirst());
  // At the picture's foot there may be nothing left to scroll.
  parts_.scrollArea()->keepCardOff(*card_, marks.placeOf(current.constFirst()));
}

bool FindCommand::eventFilter(QObject* watched, QEvent* event) {
  // The window's commands with these keys are for whoever has it while nothing is looked for.
  const bool isPress = event->type() == QEvent::KeyPress;
  if (isOpen() && takesKey(*event, Qt::Key_Escape)) {
    if (isPress) close();
    return true;
  }
  if (card_ && watched == card_ && takesKey(*event, Qt::Key_F3)) {
    if (isPress) step(static_cast<const QKeyEvent*>(event)->modifiers() & Qt::ShiftModifier);
    return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvex
