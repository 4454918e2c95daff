#include "platform/qt/source_text_view.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/localized_string.h"

namespace norvex {

namespace {

QToolButton* barButton(QWidget* bar, const QString& sign, const QString& name) {
  auto* button = new QToolButton(bar);
  button->setText(sign);
  button->setAutoRaise(true);
  button->setAccessibleName(name);
  button->setToolTip(name);
  return button;
}

}  // namespace

SourceTextView::SourceTextView(QWidget* parent)
    : QWidget(parent), bar_(new QWidget(this)), needle_(new QLineEdit(bar_)), outcome_(new QLabel(bar_)),
      edit_(new QPlainTextEdit(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(edit_, 1);
  edit_->setReadOnly(true);
  edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit_->setUndoRedoEnabled(false);
  edit_->setFrameShape(QFrame::NoFrame);
  edit_->setTabChangesFocus(true);
  setFocusProxy(edit_);
  buildFindBar();
}

void SourceTextView::buildFindBar() {
  auto* row = new QHBoxLayout(bar_);
  row->setContentsMargins(8, 6, 6, 6);
  row->setSpacing(4);
  needle_->setPlaceholderText(localizedString("Find"));
  needle_->setAccessibleName(localizedString("Find"));
  needle_->setClearButtonEnabled(true);
  auto* previous = barButton(bar_, QStringLiteral("\u2039"), localizedString("Previous"));
  auto* next = barButton(bar_, QStringLiteral("\u203A"), localizedString("Next"));
  auto* close = barButton(bar_, QStringLiteral("\u2715"), localizedString("Close the find bar"));
  row->addWidget(needle_, 1);
  row->addWidget(outcome_);
  row->addWidget(previous);
  row->addWidget(next);
  row->addWidget(close);
  bar_->hide();
  connect(needle_, &QLineEdit::returnPressed, this,
          [this] { findNext(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier); });
  connect(needle_, &QLineEdit::textChanged, outcome_, &QLabel::clear);
  connect(previous, &QToolButton::clicked, this, [this] { findNext(true); });
  connect(next, &QToolButton::clicked, this, [this] { findNext(); });
  connect(close, &QToolButton::clicked, this, &SourceTextView::hideFindBar);
  const auto shortcut = [this](const QKeySequence& keys, auto slot) {
    connect(new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut), &QShortcut::activated, this, slot);
  };
  shortcut(QKeySequence::Find, [this] { showFindBar(); });
  shortcut(Qt::Key_F3, [this] { findNext(); });
  shortcut(Qt::SHIFT | Qt::Key_F3, [this] { findNext(true); });
}

void SourceTextView::nameText() {
  edit_->setAccessibleName(accessibleName());
  edit_->setAccessibleDescription(toolTip());
}

void SourceTextView::setString(const QString& text) {
  nameText();
  edit_->setPlainText(text);
}

QString SourceTextView::string() const { return edit_->toPlainText(); }

void SourceTextView::setFixedPitchFont(double pointSize) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(pointSize);
  edit_->setFont(font);
}

void SourceTextView::setLineWrapping(bool wrap) {
  edit_->setLineWrapMode(wrap ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void SourceTextView::showFindBar() {
  const QString selected = edit_->textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) needle_->setText(selected);
  bar_->show();
  needle_->setFocus(Qt::ShortcutFocusReason);
  needle_->selectAll();
}

void SourceTextView::hideFindBar() {
  bar_->hide();
  edit_->setFocus(Qt::OtherFocusReason);
}

bool SourceTextView::findNext(bool backward) {
  const QString wanted = needle_->text();
  if (wanted.isEmpty()) return false;
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  bool found = edit_->find(wanted, flags);
  if (!found) {
    const QTextCursor before = edit_->textCursor();
    edit_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    found = edit_->find(wanted, flags);
    if (!found) edit_->setTextCursor(before);
  }
  outcome_->setText(found ? QString() : localizedString("Not found"));
  return found;
}

void SourceTextView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && bar_->isVisible()) return hideFindBar();
  QWidget::keyPressEvent(event);
}

void SourceTextView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTipChange) nameText();
  QWidget::changeEvent(event);
}

}  // namespace norvex
