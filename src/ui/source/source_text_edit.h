// SourceTextEdit: a text of any length with line numbers and colours.
#pragma once

#include <QBasicTimer>
#include <QPlainTextEdit>

#include <memory>

#include "ui/source/source_blocks.h"
#include "ui/source/source_colouring.h"
#include "ui/source/source_matches.h"

namespace norvex {

/// For reading. A text of many megabytes is there at once: nothing is laid out before the widget is first
/// shown, the rest of the text follows piece by piece while the user already reads, and only what is visible
/// is coloured. Main thread.
class SourceTextEdit final : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit SourceTextEdit(QWidget* parent = nullptr);

  /// Goes to the beginning; marks no matches.
  void setSource(const QString& text);
  [[nodiscard]] const QString& source() const { return text_; }
  /// Source code has line numbers and colours, other texts have neither.
  void setCode(bool code);

  /// Marks the matches; they are positions of source().
  void setMatches(const SourceMatches& matches);
  /// Selects and shows a part of source().
  void selectSource(qsizetype start, qsizetype length);
  /// Likewise a line, as its number in the margin says it, or the beginning of a very long one; the last
  /// where there are fewer.
  void selectLine(int line);
  /// Leaves the caret where the selection begins.
  void deselect();
  /// Where the selection, or without one the caret, begins in source().
  [[nodiscard]] qsizetype selectionStart() const;
  /// True if all of the text is in the widget's document.
  [[nodiscard]] bool isComplete() const { return blocks_ && filled_ == blocks_->count(); }
  /// How many parts of the text on the screen are coloured or marked.
  [[nodiscard]] qsizetype markedParts() const { return extraSelections().size(); }

  [[nodiscard]] int lineNumberWidth() const;
  void paintLineNumbers(QPaintEvent& event, QWidget& column);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  const SourceBlocks& blocks();
  void fill(int atLeast);
  /// Of positions of source(); the caret is brought into sight.
  void select(qsizetype anchor, qsizetype caret);
  void arrangeLineNumbers();
  void markVisibleParts();
  void addMatches(QList<QTextEdit::ExtraSelection>& marks, qsizetype from, qsizetype to);
  [[nodiscard]] QTextEdit::ExtraSelection mark(qsizetype start, qsizetype end,
                                               const QTextCharFormat& format) const;
  void keepHitsVisible();

  QString text_;
  std::unique_ptr<SourceBlocks> blocks_;  ///< null until the text is first needed in pieces
  int filled_ = 0;                        ///< blocks that are in the document
  QBasicTimer filling_;
  bool code_ = false;
  SourceLanguage language_ = SourceLanguage::Plain;
  SourceMatches matches_;
  qsizetype markedFrom_ = -1, markedTo_ = -1;  ///< the part of source() whose marks are set
  QWidget* lineNumbers_;
};

}  // namespace norvex
