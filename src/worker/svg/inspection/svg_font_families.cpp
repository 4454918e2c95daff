#include "worker/svg/inspection/svg_font_families.h"

#include <QRegularExpression>
#include <QSet>

#include "protocol/limits.h"
#include "protocol/worker_protocol.h"
#include "worker/svg/inspection/svg_style_facts.h"

namespace norvex::engine {
namespace {

/// Words that mean another element's family, not one of their own.
bool isKeyword(const QString& name) {
  static const QSet<QString> keywords{"inherit", "initial", "unset", "revert"};
  return keywords.contains(name.toLower());
}

/// The names of a list, without quotes; a comma inside quotes belongs to the name.
QStringList namesOf(QStringView list) {
  QStringList names{QString()};
  QChar quote;
  for (const QChar c : list) {
    if (quote.isNull() ? c == u'"' || c == u'\'' : c == quote)
      quote = quote.isNull() ? c : QChar();
    else if (c == u',' && quote.isNull())
      names << QString();
    else
      names.last() += c;
  }
  return names;
}

}  // namespace

void SvgFontFamilies::element(const QString& name) {
  // Text that flows into a shape, of a draft of SVG 1.2, is drawn by nobody but who wrote it.
  static const QSet<QString> texts{"text", "tspan", "textPath", "tref"};
  static const QSet<QString> shapes{"path", "rect",     "circle",  "ellipse",
                                    "line", "polyline", "polygon", "image"};
  if (texts.contains(name)) hasText_ = true;
  drawsShape_ = shapes.contains(name);
}

void SvgFontFamilies::attribute(const QString& name, const QString& value) {
  if (drawsShape_) return;
  if (name == u"font-family")
    list(value);
  else if (name == u"font")
    shorthand(value);
  else if (name == u"style")
    declarations(value);
}

void SvgFontFamilies::styleSheet(QStringView css) {
  declarations(withoutComments(css));
}

void SvgFontFamilies::declarations(QStringView css) {
  static const QRegularExpression family(QStringLiteral("(?:^|[;{\\s])(font|font-family)\\s*:\\s*([^;{}]*)"),
                                         QRegularExpression::CaseInsensitiveOption);
  if (!css.contains(u"font", Qt::CaseInsensitive)) return;
  for (auto match = family.globalMatch(css); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    if (found.capturedLength(1) == 4)
      shorthand(found.capturedView(2));
    else
      list(found.capturedView(2));
  }
}

void SvgFontFamilies::shorthand(QStringView value) {
  // The family stands behind the size, the only part that begins with a digit or a point and may hold a
  // slash.
  static const QRegularExpression size(
      QStringLiteral("(?:^|\\s)(?:[0-9.]*\\.?[0-9]+(?:[a-z]+|%)|(?:xx?-|x+)?(?:small|large)|medium|"
                     "smaller|larger)(?:\\s*/\\s*\\S+)?\\s+(.+)$"),
      QRegularExpression::CaseInsensitiveOption);
  if (value.size() > limits::maximumFontShorthand) return;
  const QRegularExpressionMatch match = size.match(value.trimmed());
  if (match.hasMatch()) list(match.capturedView(1));
}

void SvgFontFamilies::list(QStringView names) {
  if (const qsizetype important = names.indexOf(u'!'); important >= 0) names = names.left(important);
  QStringList all;
  for (const QString& each : namesOf(names)) {
    const QString name = each.simplified();
    if (name.isEmpty() || isKeyword(name) || families_.size() >= limits::maximumNames) continue;
    if (!families_.contains(name, Qt::CaseInsensitive)) families_ << name;
    all << name;
  }
  if (!all.isEmpty() && lists_.size() < limits::maximumNames && !lists_.contains(all)) lists_ << all;
}

}  // namespace norvex::engine
