#include "worker/svg/inspection/svg_length.h"

#include <QList>

#include <cmath>

namespace norvex::engine {
namespace {

// Most pictures hold two lengths and a view box: to compile regular expressions for them takes longer than to
// open a small picture.

bool isSpace(QChar c) {
  return c == u' ' || (c >= u'\t' && c <= u'\r');
}

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

QStringView trimmed(QStringView text) {
  while (!text.isEmpty() && isSpace(text.front())) text = text.mid(1);
  while (!text.isEmpty() && isSpace(text.back())) text.chop(1);
  return text;
}

/// Takes away what stands between two numbers; false: nothing does.
bool takeSeparator(QStringView& text) {
  const qsizetype before = text.size();
  while (!text.isEmpty() && (isSpace(text.front()) || text.front() == u',')) text = text.mid(1);
  return text.size() < before;
}

std::optional<double> pixelsPerUnit(const QString& unit, double fontSize) {
  static const QHash<QString, double> absolute{{"", 1.0},    {"px", 1.0},         {"pt", 96.0 / 72.0},
                                               {"pc", 16.0}, {"mm", 96.0 / 25.4}, {"cm", 96.0 / 2.54},
                                               {"in", 96.0}};
  if (unit == QLatin1String("em")) return fontSize;
  if (unit == QLatin1String("ex")) return fontSize / 2;
  const auto found = absolute.constFind(unit);
  return found == absolute.cend() ? std::nullopt : std::optional(*found);
}

/// One side where the other one may be absolute: `whole` is what 100% is.
double side(const std::optional<SvgLength>& length, double whole) {
  if (!length) return whole;
  return length->isPercentage ? whole * length->percent / 100.0 : length->pixels;
}

bool isAbsolute(const std::optional<SvgLength>& length) {
  return length && !length->isPercentage;
}

/// The value of a property in a style attribute's declarations; empty: it is not there.
QString declared(const QString& style, const QString& property) {
  for (const QString& declaration : style.split(';')) {
    const qsizetype colon = declaration.indexOf(':');
    if (colon > 0 && declaration.left(colon).trimmed().toLower() == property)
      return declaration.mid(colon + 1).trimmed();
  }
  return {};
}

}  // namespace

std::optional<double> takeSvgNumber(QStringView& text) {
  qsizetype end = 0;
  const auto isAt = [&](QStringView any) { return end < text.size() && any.contains(text[end]); };
  const auto passDigits = [&] {
    const qsizetype start = end;
    while (end < text.size() && isDigit(text[end])) ++end;
    return end > start;
  };
  if (isAt(u"+-")) ++end;
  const bool whole = passDigits();
  if (isAt(u".")) {
    ++end;
    if (!passDigits() && !whole) return std::nullopt;
  } else if (!whole) {
    return std::nullopt;
  }
  if (const qsizetype mantissa = end; isAt(u"eE")) {
    ++end;
    if (isAt(u"+-")) ++end;
    if (!passDigits()) end = mantissa;  // what follows is a unit
  }
  const double number = text.left(end).toDouble();
  text = text.mid(end);
  return number;
}

std::optional<SvgLength> parseSvgLength(const QString& text, double fontSize) {
  QStringView rest = trimmed(text);
  const std::optional<double> number = takeSvgNumber(rest);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  const QString unit = rest.toString().toLower();
  if (unit == QLatin1String("%")) return SvgLength{0, *number, true};
  const std::optional<double> factor = pixelsPerUnit(unit, fontSize);
  if (!factor || !std::isfinite(*number * *factor)) return std::nullopt;
  return SvgLength{*number * *factor, 0, false};
}

std::optional<QRectF> parseViewBox(const QString& text) {
  QStringView rest = trimmed(text);
  double values[4];
  for (int i = 0; i < 4; ++i) {
    if (i > 0 && !takeSeparator(rest)) return std::nullopt;
    const std::optional<double> number = takeSvgNumber(rest);
    if (!number || !std::isfinite(*number)) return std::nullopt;
    values[i] = *number;
  }
  if (!rest.isEmpty()) return std::nullopt;
  if (values[2] < 0 || values[3] < 0) return std::nullopt;
  return QRectF(values[0], values[1], values[2], values[3]);
}

SvgGeometry svgGeometry(const QHash<QString, QString>& rootAttributes) {
  const QString style = rootAttributes.value("style");
  const auto value = [&](const QString& name) {
    const QString inStyle = declared(style, name);
    return inStyle.isEmpty() ? rootAttributes.value(name) : inStyle;
  };
  const std::optional<SvgLength> fontSize = parseSvgLength(value("font-size"));
  const double em = isAbsolute(fontSize) && fontSize->pixels > 0 ? fontSize->pixels : defaultFontSize;
  SvgGeometry geometry;
  const auto read = [&](const char* name, std::optional<SvgLength>& length, bool& bad) {
    const QString text = value(QLatin1String(name));
    if (text.isEmpty() || text == QLatin1String("auto")) return;
    length = parseSvgLength(text, em);
    if (length && (length->pixels < 0 || length->percent < 0)) length.reset();
    bad = !length;
  };
  read("width", geometry.width, geometry.badWidth);
  read("height", geometry.height, geometry.badHeight);
  if (const QString box = rootAttributes.value("viewBox"); !box.isEmpty()) {
    geometry.viewBox = parseViewBox(box);
    geometry.badViewBox = !geometry.viewBox;
  }
  return geometry;
}

QSizeF svgPixelSize(const SvgGeometry& geometry, const std::function<QSizeF()>& drawn) {
  if (isAbsolute(geometry.width) && isAbsolute(geometry.height))
    return QSizeF(geometry.width->pixels, geometry.height->pixels);
  QSizeF whole;
  if (geometry.viewBox && !geometry.viewBox->isEmpty()) {
    whole = geometry.viewBox->size();
    if (isAbsolute(geometry.width)) whole *= geometry.width->pixels / whole.width();
    if (isAbsolute(geometry.height)) whole *= geometry.height->pixels / whole.height();
  } else {
    whole = drawn();
    if (whole.isEmpty()) whole = QSizeF(300, 150);
  }
  return QSizeF(side(geometry.width, whole.width()), side(geometry.height, whole.height()));
}

}  // namespace norvex::engine
