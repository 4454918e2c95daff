// Words for people, as sentences.
#pragma once

#include <QString>

namespace norvex {

/// "the file does not exist" → "The file does not exist." Empty for nothing but blanks.
inline QString asSentence(const QString& text) {
  QString sentence = text.trimmed();
  if (sentence.isEmpty()) return sentence;
  sentence[0] = sentence.at(0).toUpper();
  return sentence.endsWith(u'.') ? sentence : sentence + u'.';
}

}  // namespace norvex
