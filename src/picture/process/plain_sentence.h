// Text from a document's process, as it may stand within a line of our own.
#pragma once

#include <QString>

namespace norvex {

/// The text without anything that a terminal or a label would take for more than text.
[[nodiscard]] inline QString plainSentence(const QString& text) {
  QString plain;
  for (const uint point : text.toUcs4()) {
    const char32_t character = point;
    plain += QChar::isPrint(character) ? QString::fromUcs4(&character, 1) : QStringLiteral(" ");
  }
  return plain.simplified();
}

}  // namespace norvex
