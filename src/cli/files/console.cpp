#include "cli/files/console.h"

#include <unistd.h>

#include <cerrno>

#include "base/file_name.h"
#include "picture/document_file.h"

namespace norvex {
namespace {

bool writeAll(int descriptor, const QByteArray& bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t count = ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done));
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) done += count;
  }
  return true;
}

QString hexadecimal(int byte) {
  return QStringLiteral("\\x%1").arg(byte, 2, 16, QLatin1Char('0'));
}

bool commandsTheTerminal(QChar c) {
  const bool turnsDirection = (c >= QChar(0x202A) && c <= QChar(0x202E)) ||
                              (c >= QChar(0x2066) && c <= QChar(0x2069)) || c == QChar(0x200E) ||
                              c == QChar(0x200F) || c == QChar(0x061C);
  return turnsDirection || c.category() == QChar::Other_Control || c == QChar(0x2028) || c == QChar(0x2029);
}

}  // namespace

QString visible(const QString& text, bool keepLineFeeds) {
  QString shown;
  shown.reserve(text.size());
  QChar before;
  for (const QChar c : text) {
    if (const int byte = rawByteOf(c, before); byte >= 0)
      shown += hexadecimal(byte);
    else if (!commandsTheTerminal(c) || (keepLineFeeds && c == QLatin1Char('\n')))
      shown += c;
    else if (c.unicode() < 0x100)
      shown += hexadecimal(c.unicode());
    else
      shown += QStringLiteral("\\u{%1}").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    before = c;
  }
  return shown;
}

Result<QByteArray> StandardConsole::input() {
  return readDocumentStream(STDIN_FILENO);
}

bool StandardConsole::write(const QByteArray& bytes) {
  const bool written = writeAll(STDOUT_FILENO, bytes);
  closed_ = closed_ || (!written && errno == EPIPE);
  return written;
}

void StandardConsole::message(const QString& line) {
  progress({});
  writeAll(STDERR_FILENO, visible(line).toUtf8() + '\n');
}

void StandardConsole::progress(const QString& line) {
  constexpr char takeAway[] = "\r\033[K";
  if (!showsProgress() || (line.isEmpty() && !progressShown_)) return;
  constexpr int widest = 78;  // a line that wraps could not be taken away
  writeAll(STDERR_FILENO, takeAway + visible(line).left(widest).toUtf8());
  progressShown_ = !line.isEmpty();
}

bool StandardConsole::isTerminal() const {
  return ::isatty(STDOUT_FILENO) == 1;
}

bool StandardConsole::showsProgress() const {
  return ::isatty(STDERR_FILENO) == 1;
}

bool MemoryConsole::write(const QByteArray& bytes) {
  if (full || closed) return false;
  output += bytes;
  return true;
}

void MemoryConsole::message(const QString& line) {
  messages += visible(line) + QLatin1Char('\n');
}

void MemoryConsole::progress(const QString& line) {
  if (!line.isEmpty()) progressLines << line;
}

}  // namespace norvex
