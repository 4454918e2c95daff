#include "ui/controls/number_format.h"

#include <QStringList>

#include <cmath>

namespace norvex {

NumberFormat::NumberFormat(const QString& pattern) {
  const QStringList parts = pattern.split(QChar(';'));
  positive_ = parse(parts.at(0));
  zero_ = parts.size() > 1 ? parse(parts.at(1)) : positive_;
  if (parts.size() > 2) {
    negative_ = parse(parts.at(2));
  } else {
    negative_ = positive_;
    negative_.before.prepend(QChar('-'));
  }
}

NumberFormat::Part NumberFormat::parse(const QString& pattern) {
  Part part;
  part.minimumDigits = 0;
  bool digits = false, point = false;
  for (const QChar c : pattern) {
    if (c == QChar('#') || c == QChar('0')) {
      digits = true;
      if (point)
        ++part.decimals;
      else if (c == QChar('0'))
        ++part.minimumDigits;
    } else if (c == QChar(',') && !point) {
      part.grouped = digits = true;
    } else if (c == QChar('.') && !point) {
      point = digits = true;
    } else {
      (digits ? part.after : part.before) += c;
    }
  }
  return part;
}

QString NumberFormat::write(double magnitude, const Part& part, const QLocale& locale) {
  QString text = QString::number(magnitude, 'f', part.decimals);
  const qsizetype point = text.indexOf(QChar('.'));
  QString whole = point < 0 ? text : text.left(point);
  const QString fraction = point < 0 ? QString() : locale.decimalPoint() + text.mid(point + 1);
  if (whole == QLatin1String("0")) whole.clear();
  whole = whole.rightJustified(part.minimumDigits, QChar('0'));
  if (part.grouped)
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3) whole.insert(at, locale.groupSeparator());
  return part.before + whole + fraction + part.after;
}

QString NumberFormat::string(double value, const QLocale& locale) const {
  if (!std::isfinite(value)) return {};
  if (value == 0) return write(0, zero_, locale);
  return value > 0 ? write(value, positive_, locale) : write(-value, negative_, locale);
}

namespace {

/// Without blanks and with the usual digits and signs.
QString plainNumber(const QString& text) {
  QString plain;
  for (const QChar c : text.normalized(QString::NormalizationForm_KC))
    if (!c.isSpace()) plain += c == QChar(0x2212) ? QChar('-') : c == QChar(0x2019) ? QChar('\'') : c;
  return plain;
}

}  // namespace

std::optional<double> NumberFormat::number(const QString& text, const QLocale& locale) {
  QString plain = plainNumber(text);
  const QString group = plainNumber(locale.groupSeparator()), decimal = plainNumber(locale.decimalPoint());
  const QChar point('.'), comma(',');
  if (group != point && group != comma) plain.remove(group);
  if (decimal != comma) plain.replace(decimal, point);
  if (plain.contains(point) && plain.contains(comma))
    plain.remove(plain.lastIndexOf(point) > plain.lastIndexOf(comma) ? comma : point);
  else if (plain.count(group) > 1)
    plain.remove(group);
  plain.replace(comma, point);
  bool ok = false;
  const double value = plain.toDouble(&ok);
  if (!ok || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace norvex
