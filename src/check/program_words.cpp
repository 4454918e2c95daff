#include "check/program_words.h"

#include <algorithm>

#include "base/blanks.h"

namespace norvex {
namespace {

bool isDelimiter(char c) {
  return isPostScriptSpace(c) || QByteArrayView("{}[]()<>/%").contains(c);
}

qsizetype behindText(QByteArrayView line, qsizetype at) {
  int depth = 0;
  for (; at < line.size(); ++at) {
    if (line[at] == '\\')
      ++at;
    else if (line[at] == '(')
      ++depth;
    else if (line[at] == ')' && --depth == 0)
      return at + 1;
  }
  return line.size();
}

}  // namespace

QList<ProgramWord> wordsOfLine(QByteArrayView line) {
  QList<ProgramWord> words;
  for (qsizetype at = 0; at < line.size();) {
    const char c = line[at];
    if (c == '%') break;
    if (c == '(') {
      at = behindText(line, at);
      continue;
    }
    if (c == '<' && at + 1 < line.size() && line[at + 1] != '<') {
      const qsizetype end = line.indexOf('>', at);
      at = end < 0 ? line.size() : end + 1;
      continue;
    }
    if (c == '{' || c == '}') words << ProgramWord{line.sliced(at, 1), false};
    const bool isLiteral = c == '/';
    const qsizetype from = isLiteral ? at + 1 : at;
    qsizetype end = from;
    while (end < line.size() && !isDelimiter(line[end])) ++end;
    if (end > from) words << ProgramWord{line.sliced(from, end - from), isLiteral};
    at = std::max(end, at + 1);
  }
  return words;
}

}  // namespace norvex
