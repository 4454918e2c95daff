#include "base/non_lossy_ascii.h"

namespace norvex {
namespace {

/// The number of `count` digits of `base` at `at`; nothing when one of them is no such digit.
std::optional<uint> digits(QByteArrayView bytes, qsizetype at, int count, int base) {
  if (at + count > bytes.size()) return {};
  uint value = 0;
  for (qsizetype i = at; i < at + count; ++i) {
    const char c = bytes[i];
    int digit = -1;
    if (c >= '0' && c <= '9') digit = c - '0';
    if (c >= 'a' && c <= 'f') digit = c - 'a' + 10;
    if (c >= 'A' && c <= 'F') digit = c - 'A' + 10;
    if (digit < 0 || digit >= base) return {};
    value = value * uint(base) + uint(digit);
  }
  return value;
}

struct Escape {
  char16_t unit = u'\\';
  qsizetype length = 1;
};

/// The character that the backslash at `at` stands for.
Escape escapeAt(QByteArrayView bytes, qsizetype at) {
  if (at + 1 >= bytes.size()) return {};
  if (bytes[at + 1] == '\\') return {u'\\', 2};
  if (bytes[at + 1] == 'u') {
    const auto unit = digits(bytes, at + 2, 4, 16);
    return unit ? Escape{char16_t(*unit), 6} : Escape{};
  }
  const auto octal = digits(bytes, at + 1, 3, 8);
  return octal && *octal <= 0xFF ? Escape{char16_t(*octal), 4} : Escape{};
}

}  // namespace

std::optional<QString> decodeNonLossyAscii(QByteArrayView bytes) {
  QString text;
  text.reserve(bytes.size());
  for (qsizetype i = 0; i < bytes.size();) {
    if (uchar(bytes[i]) > 0x7F) return {};
    const Escape escape = bytes[i] == '\\' ? escapeAt(bytes, i) : Escape{char16_t(uchar(bytes[i])), 1};
    text.append(QChar(escape.unit));
    i += escape.length;
  }
  return text;
}

QByteArray encodeNonLossyAscii(QStringView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) {
    const auto unit = c.unicode();
    if (unit == u'\\')
      bytes.append("\\\\");
    else if (unit < 0x80)
      bytes.append(char(unit));
    else if (unit < 0x100)
      bytes.append('\\').append(QByteArray::number(unit, 8));  // always three digits from 0x80 on
    else
      bytes.append("\\u").append(QByteArray::number(unit, 16).rightJustified(4, '0'));
  }
  return bytes;
}

}  // namespace norvex
