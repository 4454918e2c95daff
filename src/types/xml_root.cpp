#include "types/xml_root.h"

#include <QByteArray>

#include "base/blanks.h"

namespace norvex {
namespace {

/// The markup's ASCII skeleton: other characters become question marks, which no rule below looks at.
QByteArray narrowed(QByteArrayView wide, bool littleEndian) {
  QByteArray narrow;
  narrow.reserve(wide.size() / 2);
  for (qsizetype i = 0; i + 1 < wide.size(); i += 2) {
    const char high = wide[littleEndian ? i + 1 : i];
    const char low = wide[littleEndian ? i : i + 1];
    narrow.append(high == 0 && uchar(low) < 0x80 ? low : '?');
  }
  return narrow;
}

/// Position behind the first `mark` from `from` on; the end of the text when there is none.
qsizetype behind(QByteArrayView text, QByteArrayView mark, qsizetype from) {
  const qsizetype at = text.indexOf(mark, from);
  return at < 0 ? text.size() : at + mark.size();
}

/// Position behind a document type that begins at `from`: quoted texts and comments may hold brackets of
/// their own.
qsizetype behindDoctype(QByteArrayView text, qsizetype from) {
  bool inSubset = false;
  for (qsizetype at = from; at < text.size();) {
    const char c = text[at];
    if (text.sliced(at).startsWith("<!--")) {
      at = behind(text, "-->", at + 4);
    } else if (text.sliced(at).startsWith("<?")) {
      at = behind(text, "?>", at + 2);
    } else if (c == '"' || c == '\'') {
      at = behind(text, QByteArrayView(&c, 1), at + 1);
    } else {
      if (c == '[') inSubset = true;
      if (c == ']') inSubset = false;
      ++at;
      if (c == '>' && !inSubset) return at;
    }
  }
  return text.size();
}

QString nameAt(QByteArrayView text, qsizetype from) {
  qsizetype end = from;
  while (end < text.size() && !isWhiteSpace(text[end]) && text[end] != '>' && text[end] != '/') ++end;
  if (end == text.size()) return {};
  QByteArrayView name = text.sliced(from, end - from);
  return QString::fromUtf8(name.sliced(name.indexOf(':') + 1));
}

QString rootOf(QByteArrayView text) {
  for (qsizetype at = 0; at < text.size();) {
    const QByteArrayView rest = text.sliced(at);
    if (isWhiteSpace(rest[0]))
      ++at;
    else if (rest.startsWith("<!--"))
      at = behind(text, "-->", at + 4);
    else if (rest.startsWith("<?"))
      at = behind(text, "?>", at + 2);
    else if (rest.startsWith("<!DOCTYPE"))
      at = behindDoctype(text, at + 9);
    else
      return rest[0] == '<' ? nameAt(text, at + 1) : QString();
  }
  return {};
}

}  // namespace

QString xmlRootName(QByteArrayView bytes) {
  if (bytes.startsWith("\xEF\xBB\xBF")) return rootOf(bytes.sliced(3));
  if (bytes.startsWith("\xFE\xFF")) return rootOf(narrowed(bytes.sliced(2), false));
  if (bytes.startsWith("\xFF\xFE")) return rootOf(narrowed(bytes.sliced(2), true));
  if (bytes.startsWith(QByteArrayView("\0<", 2))) return rootOf(narrowed(bytes, false));
  if (bytes.startsWith(QByteArrayView("<\0", 2))) return rootOf(narrowed(bytes, true));
  return rootOf(bytes);
}

}  // namespace norvex
