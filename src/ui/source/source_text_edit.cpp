#include "ui/source/source_text_edit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimerEvent>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

/// Units of the text that go into the document in one turn of the event loop.
constexpr qsizetype kSlice = 192 * 1024;
constexpr int kMaximumMarks = 3000;

class LineNumbers final : public QWidget {
 public:
  explicit LineNumbers(SourceTextEdit& edit) : QWidget(&edit), edit_(edit) {
    setAccessibleName(localizedString("Line numbers"));
  }
  QSize sizeHint() const override { return {edit_.lineNumberWidth(), 0}; }

 protected:
  void paintEvent(QPaintEvent* event) override { edit_.paintLineNumbers(*event, *this); }

 private:
  SourceTextEdit& edit_;
};

/// Colours with a contrast of more than 4.5 : 1 on the usual grounds of texts.
QColor tokenColor(SourceToken token, bool dark) {
  switch (token) {
    case SourceToken::Comment:
      return dark ? QColor(0x8f, 0xb0, 0x8a) : QColor(0x4f, 0x72, 0x48);
    case SourceToken::Structure:
      return dark ? QColor(0x7c, 0xc4, 0xc9) : QColor(0x0b, 0x6b, 0x75);
    case SourceToken::Tag:
      return dark ? QColor(0x82, 0xb4, 0xf0) : QColor(0x1d, 0x57, 0xa8);
    case SourceToken::Value:
      return dark ? QColor(0xe0, 0xa8, 0x76) : QColor(0x96, 0x4b, 0x0d);
  }
  return {};
}

}  // namespace

SourceTextEdit::SourceTextEdit(QWidget* parent)
    : QPlainTextEdit(parent), lineNumbers_(new LineNumbers(*this)) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setUndoRedoEnabled(false);
  setFrameShape(QFrame::NoFrame);
  setTabChangesFocus(true);
  lineNumbers_->hide();
  connect(this, &QPlainTextEdit::updateRequest, lineNumbers_, [this](const QRect& rect, int dy) {
    if (dy != 0)
      lineNumbers_->scroll(0, dy);
    else
      lineNumbers_->update(0, rect.y(), lineNumbers_->width(), rect.height());
  });
  keepHitsVisible();
}

void SourceTextEdit::setSource(const QString& text) {
  filling_.stop();
  text_ = text;
  blocks_.reset();
  filled_ = 0;
  matches_ = {};
  markedFrom_ = markedTo_ = -1;
  setExtraSelections({});
  clear();
  language_ = code_ ? sourceLanguage(text_) : SourceLanguage::Plain;
  if (isVisible()) fill(1);
}

void SourceTextEdit::setCode(bool code) {
  code_ = code;
  setLineWrapMode(code ? NoWrap : WidgetWidth);
  language_ = code ? sourceLanguage(text_) : SourceLanguage::Plain;
  lineNumbers_->setVisible(code);
  arrangeLineNumbers();
}

const SourceBlocks& SourceTextEdit::blocks() {
  if (!blocks_) blocks_ = std::make_unique<SourceBlocks>(text_);
  return *blocks_;
}

void SourceTextEdit::fill(int atLeast) {
  const SourceBlocks& all = blocks();
  QTextCursor cursor(document());
  while (filled_ < std::min(atLeast, all.count())) {
    const int end = all.blockAt(all.start(filled_) + kSlice) + 1;
    const QString slice = all.shown(filled_, end);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(filled_ == 0 ? slice : u'\n' + slice);
    filled_ = end;
  }
  arrangeLineNumbers();
  if (filled_ < all.count())
    filling_.start(0, this);
  else
    filling_.stop();
}

void SourceTextEdit::timerEvent(QTimerEvent* event) {
  if (event->timerId() != filling_.timerId()) return QPlainTextEdit::timerEvent(event);
  fill(filled_ + 1);
}

void SourceTextEdit::showEvent(QShowEvent* event) {
  if (filled_ == 0) fill(1);
  QPlainTextEdit::showEvent(event);
}

void SourceTextEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::MoveToEndOfDocument) ||
      event->matches(QKeySequence::SelectEndOfDocument))
    fill(blocks().count());
  QPlainTextEdit::keyPressEvent(event);
}

void SourceTextEdit::setMatches(const SourceMatches& matches) {
  matches_ = matches;
  markedFrom_ = markedTo_ = -1;
  viewport()->update();
}

void SourceTextEdit::selectSource(qsizetype start, qsizetype length) {
  select(start, start + length);
}

void SourceTextEdit::select(qsizetype anchor, qsizetype caret) {
  fill(blocks().blockAt(std::max(anchor, caret)) + 1);
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(blocks().shownPosition(anchor)));
  cursor.setPosition(static_cast<int>(blocks().shownPosition(caret)), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  const QRect hit = cursorRect();
  if (!viewport()->rect().adjusted(0, hit.height(), 0, -hit.height()).contains(hit.center())) centerCursor();
}

void SourceTextEdit::selectLine(int line) {
  const SourceBlocks& all = blocks();
  int first = 0;
  for (int i = 0; i < all.count() && all.lineNumber(i) <= line; ++i)
    if (all.lineNumber(i) > 0) first = i;
  select(all.end(first), all.start(first));  // a line is read from its beginning
}

void SourceTextEdit::deselect() {
  QTextCursor cursor = textCursor();
  if (!cursor.hasSelection()) return;
  cursor.setPosition(cursor.selectionStart());
  setTextCursor(cursor);
}

qsizetype SourceTextEdit::selectionStart() const {
  return blocks_ ? blocks_->textPosition(textCursor().selectionStart()) : 0;
}

QMimeData* SourceTextEdit::createMimeDataFromSelection() const {
  auto* mime = new QMimeData;
  const QTextCursor cursor = textCursor();
  if (blocks_)
    mime->setText(blocks_->copied(blocks_->textPosition(cursor.selectionStart()),
                                  blocks_->textPosition(cursor.selectionEnd())));
  return mime;
}

void SourceTextEdit::paintEvent(QPaintEvent* event) {
  markVisibleParts();
  QPlainTextEdit::paintEvent(event);
}

void SourceTextEdit::markVisibleParts() {
  if (!blocks_ || (language_ == SourceLanguage::Plain && matches_.count() == 0)) return;
  const int last = std::max(0, filled_ - 1);
  const int first = std::clamp(firstVisibleBlock().blockNumber(), 0, last);
  const int lines = viewport()->height() / std::max(1, fontMetrics().lineSpacing()) + 2;
  const qsizetype from = blocks_->start(first), to = blocks_->end(std::min(last, first + lines));
  if (from == markedFrom_ && to == markedTo_) return;
  markedFrom_ = from;
  markedTo_ = to;
  QList<QTextEdit::ExtraSelection> marks;
  const bool dark = isDarkScheme(palette());
  for (const SourceSpan& span : sourceSpans(text_, language_, from, to, kMaximumMarks)) {
    QTextCharFormat format;
    format.setForeground(tokenColor(span.token, dark));
    marks << mark(std::max(span.start, from), std::min(span.start + span.length, to), format);
  }
  addMatches(marks, from, to);
  setExtraSelections(marks);
}

void SourceTextEdit::addMatches(QList<QTextEdit::ExtraSelection>& marks, qsizetype from, qsizetype to) {
  QTextCharFormat format;
  format.setBackground(isDarkScheme(palette()) ? QColor(0x5c, 0x4a, 0x14) : QColor(0xff, 0xe8, 0x9c));
  const QList<qsizetype>& starts = matches_.starts();
  auto each = std::lower_bound(starts.cbegin(), starts.cend(), from - matches_.length());
  for (int left = kMaximumMarks; each != starts.cend() && *each < to && left > 0; ++each, --left)
    marks << mark(std::max(*each, from), std::min(*each + matches_.length(), to), format);
}

QTextEdit::ExtraSelection SourceTextEdit::mark(qsizetype start, qsizetype end,
                                               const QTextCharFormat& format) const {
  QTextEdit::ExtraSelection marked;
  marked.format = format;
  marked.cursor = QTextCursor(document());
  marked.cursor.setPosition(static_cast<int>(blocks_->shownPosition(start)));
  marked.cursor.setPosition(static_cast<int>(blocks_->shownPosition(end)), QTextCursor::KeepAnchor);
  return marked;
}

int SourceTextEdit::lineNumberWidth() const {
  const int lines = blocks_ ? blocks_->lineCount() : 1;
  const int digits = std::max(3, static_cast<int>(QString::number(lines).size()));
  return fontMetrics().horizontalAdvance(QString(digits, u'0')) + 18;
}

void SourceTextEdit::arrangeLineNumbers() {
  const int width = code_ ? lineNumberWidth() : 0;
  if (viewportMargins().left() != width) setViewportMargins(width, 0, 0, 0);
  const QRect inside = contentsRect();
  lineNumbers_->setGeometry(inside.left(), inside.top(), width, viewport()->height());
}

void SourceTextEdit::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  arrangeLineNumbers();
}

void SourceTextEdit::paintLineNumbers(QPaintEvent& event, QWidget& column) {
  QPainter painter(&column);
  painter.fillRect(event.rect(), palette().color(QPalette::Base));
  if (!blocks_) return;
  painter.setFont(font());
  painter.setPen(quietTextColor(palette()));
  QTextBlock block = firstVisibleBlock();
  double top = blockBoundingGeometry(block).translated(contentOffset()).top();
  while (block.isValid() && top <= event.rect().bottom() && block.blockNumber() < filled_) {
    const double height = blockBoundingRect(block).height();
    const int line = blocks_->lineNumber(block.blockNumber());
    if (line > 0 && top + height >= event.rect().top())
      painter.drawText(QRectF(0, top, column.width() - 10, height), Qt::AlignRight | Qt::AlignVCenter,
                       QString::number(line));
    top += height;
    block = block.next();
  }
}

void SourceTextEdit::keepHitsVisible() {
  // While the find bar has the keyboard the hit must look selected all the same.
  QPalette own = palette();
  const QColor active = own.color(QPalette::Active, QPalette::Highlight);
  if (own.color(QPalette::Inactive, QPalette::Highlight) == active) return;
  own.setColor(QPalette::Inactive, QPalette::Highlight, active);
  own.setColor(QPalette::Inactive, QPalette::HighlightedText,
               own.color(QPalette::Active, QPalette::HighlightedText));
  setPalette(own);
}

void SourceTextEdit::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) {
    markedFrom_ = markedTo_ = -1;
    keepHitsVisible();
  }
  if (event->type() == QEvent::FontChange) arrangeLineNumbers();
  QPlainTextEdit::changeEvent(event);
}

}  // namespace norvex
