// The seam before standard input, output and error: so that tests see every byte and message of a run.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "base/result.h"

namespace norvex {

/// Data goes to standard output, messages go to standard error. Main thread only.
class Console {
 public:
  virtual ~Console() = default;
  /// Everything up to the end of standard input.
  virtual Result<QByteArray> input() = 0;
  /// False when the bytes could not be written completely (a full disk, a closed pipe).
  [[nodiscard]] virtual bool write(const QByteArray& bytes) = 0;
  /// True if that was because nobody reads them any more, which is no fault and not worth a word.
  [[nodiscard]] virtual bool isClosed() const = 0;
  /// One line; what would move the cursor or colour the terminal is made visible.
  virtual void message(const QString& line) = 0;
  /// Replaces the line of progress at the end of standard error; the empty text takes it away. Shown on a
  /// terminal alone.
  virtual void progress(const QString& line) = 0;
  /// True if standard output is a terminal, on which binary data would make a mess.
  [[nodiscard]] virtual bool isTerminal() const = 0;
  /// True if standard error is a terminal, where progress is shown. In a log a line now and then tells of it.
  [[nodiscard]] virtual bool showsProgress() const = 0;
};

/// The process's own standard streams.
class StandardConsole final : public Console {
 public:
  Result<QByteArray> input() override;
  bool write(const QByteArray& bytes) override;
  bool isClosed() const override { return closed_; }
  void message(const QString& line) override;
  void progress(const QString& line) override;
  bool isTerminal() const override;
  bool showsProgress() const override;

 private:
  bool progressShown_ = false;
  bool closed_ = false;
};

/// Keeps what is written; for tests.
class MemoryConsole final : public Console {
 public:
  Result<QByteArray> input() override { return standardInput; }
  bool write(const QByteArray& bytes) override;
  bool isClosed() const override { return closed; }
  void message(const QString& line) override;
  void progress(const QString& line) override;
  bool isTerminal() const override { return terminal; }
  bool showsProgress() const override { return true; }

  QByteArray standardInput, output;
  QString messages;  ///< lines with their ends
  QStringList progressLines;
  bool terminal = false;
  bool full = false;    ///< every further write fails
  bool closed = false;  ///< as well, because nobody reads
};

/// `text` with control characters, what turns the direction of writing, and the bytes of file names that are
/// no text (see fileNameText()) as `\xNN` or `\u{NNNN}`: names and titles come from strangers and must not
/// command the terminal. Line feeds too, unless `keepLineFeeds`.
[[nodiscard]] QString visible(const QString& text, bool keepLineFeeds = false);

}  // namespace norvex
