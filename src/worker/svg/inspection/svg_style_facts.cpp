#include "worker/svg/inspection/svg_style_facts.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace norvex::engine {
namespace {

int matches(const QRegularExpression& expression, const QString& text) {
  int count = 0;
  for (auto match = expression.globalMatch(text); match.hasNext(); match.next()) ++count;
  return count;
}

int deepestBrackets(const QString& css) {
  int depth = 0;
  int deepest = 0;
  for (const QChar c : css) {
    if (c == '(') deepest = std::max(deepest, ++depth);
    if (c == ')' && depth > 0) --depth;
  }
  return deepest;
}

}  // namespace

QString withoutComments(QStringView css) {
  QString text;
  for (qsizetype at = 0; at < css.size();) {
    const qsizetype begin = css.indexOf(u"/*", at);
    text += css.mid(at, begin < 0 ? -1 : begin - at);
    const qsizetype end = begin < 0 ? -1 : css.indexOf(u"*/", begin + 2);
    at = end < 0 ? css.size() : end + 2;
  }
  return text;
}

SvgStyleFacts svgStyleFacts(const QString& css) {
  static const QRegularExpression import("@import\\b[^;]*;?", QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression outside("url\\(\\s*['\"]?\\s*(?!#|data:|['\")\\s])",
                                          QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression font("(?:^|[;{\\s])font(?:-size)?\\s*:([^;}]*)",
                                       QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression size("(?:^|[;{\\s])(?:width|height)\\s*:",
                                       QRegularExpression::CaseInsensitiveOption);
  QString text = withoutComments(css);
  SvgStyleFacts facts;
  facts.deepestBrackets = deepestBrackets(text);
  facts.namesSize = text.contains(size);
  facts.outsideReferences = matches(import, text);
  text.remove(import);
  facts.outsideReferences += matches(outside, text);
  for (auto match = font.globalMatch(text); match.hasNext();)
    facts.largestFont = std::max(facts.largestFont, largestNumber(match.next().captured(1)));
  return facts;
}

double largestNumber(const QString& text) {
  static const QRegularExpression number("\\d*\\.?\\d+(?:e[+-]?\\d+)?",
                                         QRegularExpression::CaseInsensitiveOption);
  double largest = 0;
  for (auto match = number.globalMatch(text); match.hasNext();)
    if (const double value = match.next().captured().toDouble(); std::isfinite(value))
      largest = std::max(largest, value);
  return largest;
}

double matrixSize(const QString& order) {
  const QStringList sides = QString(order).replace(',', ' ').simplified().split(' ');
  return sides.first().toDouble() * sides.last().toDouble();
}

}  // namespace norvex::engine
