// SourceBlocks: a long text cut into pieces that a text widget can lay out one by one.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace norvex {

/// Text widgets lay out and paint a paragraph as a whole, and pictures hold lines of megabytes: such a line
/// is shown as several blocks, of which only the first has a line number. Positions "in the text" are those
/// of the string as it was given; "shown" positions count every block plus one separator after it. Lines end
/// with LF, CR LF, CR or the separators that Qt's documents take for one. A value; any thread.
class SourceBlocks {
 public:
  /// UTF-16 units.
  static constexpr int longestBlock = 500;

  explicit SourceBlocks(QString text = {});

  [[nodiscard]] const QString& text() const { return text_; }
  /// At least 1: no text is one empty block.
  [[nodiscard]] int count() const { return static_cast<int>(blocks_.size()); }
  [[nodiscard]] int lineCount() const { return lines_; }
  /// From 1; 0 for a block that continues the line of the block before it.
  [[nodiscard]] int lineNumber(int block) const { return blocks_.at(block).line; }
  [[nodiscard]] QStringView block(int block) const;
  /// Where the block begins and ends in the text; its line end is not part of it.
  [[nodiscard]] qsizetype start(int block) const { return blocks_.at(block).start; }
  [[nodiscard]] qsizetype end(int block) const { return start(block) + blocks_.at(block).length; }

  /// The block that holds a position of the text; a line end belongs to the block before it.
  [[nodiscard]] int blockAt(qsizetype textPosition) const;
  [[nodiscard]] qsizetype shownPosition(qsizetype textPosition) const;
  [[nodiscard]] qsizetype textPosition(qsizetype shownPosition) const;
  /// Blocks first up to, not including, end, with a separator (LF) between them.
  [[nodiscard]] QString shown(int first, int end) const;
  /// A part of the text, between two positions, with LF as its only line end.
  [[nodiscard]] QString copied(qsizetype from, qsizetype to) const;

 private:
  struct Block {
    qsizetype start, shown;
    int length, line;
  };
  void addLine(qsizetype from, qsizetype to);

  QString text_;
  QList<Block> blocks_;
  int lines_ = 0;
};

}  // namespace norvex
