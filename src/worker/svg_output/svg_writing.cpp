#include "worker/svg_output/svg_writing.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>

namespace norvex::engine {
namespace {

constexpr int kMostDecimals = 9;
constexpr double kMostUnits = 9e15;  // what a double still tells apart

constexpr std::array<double, kMostDecimals + 1> kPowers{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

QByteArray ofUnits(qint64 units, int decimals) {
  if (units == 0) return "0";
  QByteArray digits = QByteArray::number(std::abs(units));
  if (decimals > 0) {
    if (digits.size() < decimals) digits.prepend(decimals - digits.size(), '0');
    digits.insert(digits.size() - decimals, '.');
    while (digits.endsWith('0')) digits.chop(1);
    if (digits.endsWith('.')) digits.chop(1);
  }
  return units < 0 ? '-' + digits : digits;
}

// Six digits that count, at most nine of them behind the point.
QByteArray factor(double value) {
  const double size = std::abs(value);
  const int before = size > 0 ? int(std::floor(std::log10(size))) + 1 : 1;
  return svgNumber(value, std::clamp(6 - before, 0, kMostDecimals));
}

// Halves of characters never come here: Qt makes each of them a mark of its own.
bool isCharacter(char32_t c) {
  return (c >= 0x20 || c == '\t' || c == '\n') && c != 0xfffe && c != 0xffff && !(c >= 0x7f && c <= 0x9f);
}

}  // namespace

QByteArray svgNumber(double value, int decimals) {
  const double units = value * kPowers[size_t(std::clamp(decimals, 0, kMostDecimals))];
  if (!(std::abs(units) <= kMostUnits)) return "0";
  return ofUnits(std::llround(units), decimals);
}

void appendPathNumber(QByteArray& text, qint64 units, int decimals) {
  const QByteArray number = ofUnits(units, decimals);
  const char last = text.isEmpty() ? 'M' : text.back();
  const bool behindNumber = (last >= '0' && last <= '9') || last == '.';
  bool apart = behindNumber && number.front() != '-';
  if (apart && number.front() == '.') {  // ".5.5" are two numbers, "1.5" behind "1" is not
    qsizetype at = text.size();
    while (at > 0 && text[at - 1] >= '0' && text[at - 1] <= '9') --at;
    apart = at == 0 || text[at - 1] != '.';
  }
  if (apart) text += ' ';
  text += number;
}

QByteArray svgTransform(const AffineTransform& m, int decimals) {
  const QByteArray x = svgNumber(m.dx(), decimals), y = svgNumber(m.dy(), decimals);
  if (m.m11() == 1 && m.m22() == 1 && m.m12() == 0 && m.m21() == 0) {
    if (x == "0" && y == "0") return {};
    return "translate(" + x + ' ' + y + ')';
  }
  return "matrix(" + factor(m.m11()) + ' ' + factor(m.m12()) + ' ' + factor(m.m21()) + ' ' + factor(m.m22()) +
         ' ' + x + ' ' + y + ')';
}

QByteArray attribute(const char* name, const QByteArray& value) {
  return QByteArray(" ") + name + "=\"" + value + '"';
}

QByteArray xmlText(const QString& text) {
  QString plain;
  for (const char32_t c : text.toUcs4()) {
    if (isCharacter(c))
      plain += QString::fromUcs4(&c, 1);
    else
      plain += u' ';
  }
  return plain.toHtmlEscaped().toUtf8();
}

QByteArray dataAddress(const char* type, const QByteArray& bytes) {
  return QByteArray("data:") + type + ";base64," + bytes.toBase64();
}

QByteArray withAttributes(const QByteArray& element, const QByteArray& attributes) {
  if (attributes.isEmpty()) return element;
  const auto endsName = [](char c) { return c == ' ' || c == '/' || c == '>'; };
  const auto end = std::find_if(element.begin(), element.end(), endsName);
  return QByteArray(element).insert(end - element.begin(), attributes);
}

QByteArray reference(const QByteArray& name) {
  return "url(#" + name + ')';
}

// Black is what everything is filled with that says nothing.
QByteArray pathElement(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke) {
  constexpr char kBlack[] = " fill=\"#000\"";
  QByteArray paint = fill.isEmpty() ? QByteArray(" fill=\"none\"") : fill;
  if (paint.startsWith(kBlack)) paint.remove(0, qsizetype(sizeof kBlack) - 1);
  return "<path" + paint + stroke + attribute("d", data) + "/>";
}

}  // namespace norvex::engine
