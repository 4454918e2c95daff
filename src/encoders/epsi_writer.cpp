#include "encoders/epsi_writer.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace norvex {
namespace {

constexpr int bitsThatStayOneLine = 1024;
constexpr int bytesInALine = 127;

/// Scans a decimal integer after white space, as the values of DSC comments are written. Leaves `at` alone
/// when there is none. Numbers beyond 32 bits stop at the limit.
std::optional<int> scanInteger(const QString& text, qsizetype& at) {
  qsizetype i = at;
  while (i < text.size() && text.at(i).isSpace()) ++i;
  const bool negative = i < text.size() && text.at(i) == u'-';
  if (i < text.size() && (text.at(i) == u'-' || text.at(i) == u'+')) ++i;
  qint64 value = 0;
  const qsizetype firstDigit = i;
  for (; i < text.size() && text.at(i) >= u'0' && text.at(i) <= u'9'; ++i) {
    value = std::min<qint64>(value * 10 + (text.at(i).unicode() - u'0'), qint64(1) << 40);
  }
  if (i == firstDigit) return std::nullopt;
  at = i;
  return static_cast<int>(std::clamp<qint64>(negative ? -value : value, std::numeric_limits<int>::min(),
                                             std::numeric_limits<int>::max()));
}

/// The text before the preview; `rest` becomes the position where the source goes on. Null: no place for a
/// preview.
QString headOf(const QString& source, qsizetype& rest) {
  const QString endComments = QStringLiteral("%%EndComments");
  const qsizetype end = source.indexOf(endComments);
  if (end >= 0) {
    rest = end + endComments.size();
    return source.left(rest);
  }
  const QString boundingBox = QStringLiteral("%%BoundingBox:");
  const qsizetype box = source.indexOf(boundingBox);
  if (box < 0) return {};
  rest = box + boundingBox.size();
  QString head = source.left(rest);
  int value = 0;  // one that cannot be read repeats the one before
  for (int i = 0; i < 4; ++i) {
    value = scanInteger(source, rest).value_or(value);
    head += QStringLiteral(" %1").arg(value);
  }
  return head + u'\n' + endComments;
}

void appendHexLine(QString& out, const QByteArray& data, qsizetype at, int count) {
  static constexpr char digits[] = "0123456789ABCDEF";
  out += QStringLiteral("\n%");
  for (qsizetype i = at; i < at + count; ++i) {
    const int inverted = 255 - (i < data.size() ? static_cast<uchar>(data.at(i)) : 0);
    out += QLatin1Char(digits[inverted >> 4]);
    out += QLatin1Char(digits[inverted & 15]);
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

QString insertEpsiPreview(const QString& source, const NSBitmapImageRep& grey) {
  qsizetype rest = 0;
  QString out = headOf(source, rest);
  if (out.isNull()) return {};

  const EpsiRowLayout layout = epsiRowLayout(grey.samplesPerPixel * grey.bitsPerSample * grey.pixelsWide);
  out.reserve(source.size() + qsizetype(grey.pixelsWide) * grey.pixelsHigh * 2 + 4096);
  out += QStringLiteral("\n%%BeginPreview: %1 %2 %3 %4")
             .arg(grey.pixelsWide)
             .arg(grey.pixelsHigh)
             .arg(grey.bitsPerSample)
             .arg(qint64(grey.pixelsHigh) * layout.linesInAll());
  qsizetype at = 0;
  for (int row = 0; row < grey.pixelsHigh; ++row) {
    for (int line = 0; line < layout.lines; ++line, at += layout.bytes)
      appendHexLine(out, grey.data, at, layout.bytes);
    if (layout.rest > 0) appendHexLine(out, grey.data, at, layout.rest);
    at += layout.rest;
  }
  out += QStringLiteral("\n%%EndPreview\n");
  out += QStringView(source).mid(rest);
  return out;
}

}  // namespace norvex
