#include "encoders/epsi_writer.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "base/blanks.h"
#include "metadata/eps_lines.h"

namespace norvex {
namespace {

constexpr int bitsThatStayOneLine = 1024;
constexpr int bytesInALine = 127;

/// Scans a decimal integer after white space, as the values of DSC comments are written. Leaves `at` alone
/// when there is none. Numbers beyond 32 bits stop at the limit.
std::optional<int> scanInteger(QByteArrayView text, qsizetype& at) {
  qsizetype i = at;
  while (i < text.size() && isWhiteSpace(text[i])) ++i;
  const bool negative = i < text.size() && text[i] == '-';
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  qint64 value = 0;
  const qsizetype firstDigit = i;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    value = std::min<qint64>(value * 10 + (text[i] - '0'), qint64(1) << 40);
  if (i == firstDigit) return std::nullopt;
  at = i;
  return static_cast<int>(std::clamp<qint64>(negative ? -value : value, std::numeric_limits<int>::min(),
                                             std::numeric_limits<int>::max()));
}

/// Where a keyword begins its line, otherwise where it stands at all; -1 without one.
qsizetype placeOf(QByteArrayView source, QByteArrayView keyword) {
  const qsizetype line = lineBeginningWith(source, keyword);
  return line >= 0 ? line : source.indexOf(keyword);
}

/// The head of a source without "%%EndComments", up to the box and with an end of our own.
QByteArray headUpToBox(QByteArrayView source, qsizetype behindKeyword, qsizetype& rest) {
  rest = behindKeyword;
  QByteArray head = source.first(rest).toByteArray();
  std::optional<int> value = scanInteger(source, rest);
  if (!value) {  // "(atend)": the box stands elsewhere
    rest = lineEndOf(source, rest);
    return source.first(rest).toByteArray() + "\n%%EndComments";
  }
  head += ' ' + QByteArray::number(*value);
  for (int i = 0; i < 3; ++i) {
    if (const auto next = scanInteger(source, rest)) value = next;  // otherwise the one before again
    head += ' ' + QByteArray::number(*value);
  }
  return head + "\n%%EndComments";
}

/// The bytes before the preview; `rest` becomes the position where the source goes on. Null: no place for a
/// preview.
QByteArray headOf(QByteArrayView source, qsizetype& rest) {
  const QByteArrayView endComments("%%EndComments");
  const QByteArrayView boundingBox("%%BoundingBox:");
  const qsizetype box = placeOf(source, boundingBox);
  qsizetype end = lineBeginningWith(source, endComments);
  // Within a line the word belongs to something else, as long as there is another place.
  if (end < 0 && box < 0) end = source.indexOf(endComments);
  if (end >= 0) {
    rest = end + endComments.size();
    return source.first(rest).toByteArray();
  }
  return box < 0 ? QByteArray() : headUpToBox(source, box + boundingBox.size(), rest);
}

/// True if the rest of a comment would be run, now that a line end stands before it.
bool wouldRun(QByteArrayView source, qsizetype rest) {
  const QByteArrayView line = source.sliced(rest, lineEndOf(source, rest) - rest);
  return !std::all_of(line.begin(), line.end(),
                      [](char c) { return isWhiteSpace(c) || QByteArrayView("0123456789.+-").contains(c); });
}

void appendHexLine(QByteArray& out, const QByteArray& data, qsizetype at, int count) {
  static constexpr char digits[] = "0123456789ABCDEF";
  out += "\n%";
  for (qsizetype i = at; i < at + count; ++i) {
    const int inverted = 255 - (i < data.size() ? static_cast<uchar>(data.at(i)) : 0);
    out += digits[inverted >> 4];
    out += digits[inverted & 15];
  }
}

}  // namespace

EpsiRowLayout epsiRowLayout(int bitsPerRow) {
  const int row = bitsPerRow / 8;
  if (bitsPerRow < bitsThatStayOneLine) return {1, row, 0};
  int divisor = 2;
  while (row / divisor > bytesInALine) ++divisor;
  return {divisor, row / divisor, row % divisor};
}

QByteArray insertEpsiPreview(const QByteArray& source, const NSBitmapImageRep& grey) {
  qsizetype rest = 0;
  QByteArray out = headOf(source, rest);
  if (out.isNull()) return {};

  const EpsiRowLayout layout = epsiRowLayout(grey.samplesPerPixel * grey.bitsPerSample * grey.pixelsWide);
  out.reserve(source.size() + qsizetype(grey.pixelsWide) * grey.pixelsHigh * 2 + 4096);
  out += "\n%%BeginPreview:";
  for (const qint64 number : {qint64(grey.pixelsWide), qint64(grey.pixelsHigh), qint64(grey.bitsPerSample),
                              qint64(grey.pixelsHigh) * layout.linesInAll()})
    out += ' ' + QByteArray::number(number);
  qsizetype at = 0;
  for (int row = 0; row < grey.pixelsHigh; ++row) {
    for (int line = 0; line < layout.lines; ++line, at += layout.bytes)
      appendHexLine(out, grey.data, at, layout.bytes);
    if (layout.rest > 0) appendHexLine(out, grey.data, at, layout.rest);
    at += layout.rest;
  }
  out += "\n%%EndPreview\n";
  if (wouldRun(source, rest)) out += '%';
  out += QByteArrayView(source).sliced(rest);
  return out;
}

}  // namespace norvex
