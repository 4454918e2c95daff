// The words of a line of PostScript outside comments and texts.
#pragma once

#include <QByteArrayView>
#include <QList>

namespace norvex {

struct ProgramWord {
  QByteArrayView text;     ///< without the slash of a name; borrowed
  bool isLiteral = false;  ///< /name, which is not carried out
};

/// Braces are words of their own. Texts in parentheses and in angle brackets, and what follows a percent
/// sign, are left out. A text that goes on over the line's end is not known as one on the next line.
[[nodiscard]] QList<ProgramWord> wordsOfLine(QByteArrayView line);

}  // namespace norvex
