#include "ui/source/source_text_view.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/source/source_find_bar.h"
#include "ui/source/source_text_edit.h"

namespace norvex {

SourceTextView::SourceTextView(QWidget* parent)
    : QWidget(parent), bar_(new SourceFindBar(this)), edit_(new SourceTextEdit(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(edit_, 1);
  setFocusProxy(edit_);
  bar_->hide();
  connect(bar_, &SourceFindBar::needleChanged, this, &SourceTextView::lookFor);
  connect(bar_, &SourceFindBar::wanted, this, &SourceTextView::findNext);
  connect(bar_, &SourceFindBar::closed, this, &SourceTextView::hideFindBar);
}

void SourceTextView::nameText() {
  edit_->setAccessibleName(accessibleName());
  edit_->setAccessibleDescription(toolTip());
}

void SourceTextView::setString(const QString& text) {
  nameText();
  if (bar_->isVisibleTo(this)) hideFindBar();
  matches_ = {};
  edit_->setSource(text);
}

QString SourceTextView::string() const {
  return edit_->source();
}

void SourceTextView::setFixedPitchFont(double pointSize) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(pointSize);
  edit_->setFont(font);
}

void SourceTextView::setLineWrapping(bool wrap) {
  edit_->setCode(!wrap);
}

void SourceTextView::showLine(int line) {
  edit_->selectLine(line);
}

void SourceTextView::showFindBar() {
  const QString selected = edit_->textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) bar_->setNeedle(selected);
  bar_->show();
  bar_->begin();
  lookFor(bar_->needle());
}

void SourceTextView::hideFindBar() {
  const bool typing = bar_->isAncestorOf(focusWidget());
  bar_->hide();
  edit_->setMatches({});
  if (typing) edit_->setFocus(Qt::OtherFocusReason);
}

void SourceTextView::lookFor(const QString& needle) {
  matches_ = SourceMatches(edit_->source(), needle);
  edit_->setMatches(matches_);
  if (const auto index = matches_.at(edit_->selectionStart()))
    select(*index);
  else
    tellNothingFound();
}

void SourceTextView::select(qsizetype index) {
  edit_->selectSource(matches_.starts().at(index), matches_.length());
  bar_->showOutcome(index, matches_.count());
}

void SourceTextView::tellNothingFound() {
  // An earlier hit is no hit of these letters; the search goes on from its place.
  if (!bar_->needle().isEmpty()) edit_->deselect();
  bar_->showOutcome(0, 0);
}

bool SourceTextView::findNext(bool backward) {
  if (bar_->needle().isEmpty()) {
    showFindBar();
    return false;
  }
  if (matches_.length() == 0) {
    matches_ = SourceMatches(edit_->source(), bar_->needle());  // of another text than was searched last
    if (bar_->isVisible()) edit_->setMatches(matches_);
  }
  const qsizetype here = edit_->selectionStart();
  const auto index = backward                             ? matches_.before(here)
                     : edit_->textCursor().hasSelection() ? matches_.after(here)
                                                          : matches_.at(here);
  if (index)
    select(*index);
  else
    tellNothingFound();
  return index.has_value();
}

bool SourceTextView::isOurs(const QKeyEvent& event) const {
  if (event.key() == Qt::Key_Escape) return bar_->isVisible() && event.modifiers() == Qt::NoModifier;
  return event.matches(QKeySequence::Find) || event.key() == Qt::Key_F3;
}

bool SourceTextView::event(QEvent* event) {
  // The window's commands have these keys too; while the text has the keyboard they are about the text.
  if (event->type() == QEvent::ShortcutOverride && isOurs(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void SourceTextView::keyPressEvent(QKeyEvent* event) {
  if (!isOurs(*event)) return QWidget::keyPressEvent(event);
  if (event->key() == Qt::Key_Escape)
    hideFindBar();
  else if (event->key() == Qt::Key_F3)
    findNext(event->modifiers() & Qt::ShiftModifier);
  else
    showFindBar();
}

void SourceTextView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTipChange) nameText();
  QWidget::changeEvent(event);
}

}  // namespace norvex
