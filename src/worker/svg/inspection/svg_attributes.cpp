#include "worker/svg/inspection/svg_attributes.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

#include "protocol/limits.h"
#include "worker/svg/inspection/svg_style_facts.h"

namespace norvex::engine {
namespace {

Result<double> allowedFont(double size) {
  if (size <= limits::maximumSvgFont) return size;
  return Error{ErrorKind::Limit, QStringLiteral("the document has text of more than %1 units in size")
                                     .arg(limits::maximumSvgFont, 0, 'f', 0)};
}

}  // namespace

void SvgAttributes::lookAtEffects(const SvgAttribute& attribute) {
  const QString& value = attribute.value;
  const auto isUsed = [&](QLatin1String property) {
    if (attribute.name == property) return value.trimmed() != QLatin1String("none");
    return attribute.name == QLatin1String("style") && value.contains(property + QLatin1String(":")) &&
           !value.contains(property + QLatin1String(":none"));
  };
  if (isUsed(QLatin1String("filter"))) ++found_.filters;
  if (isUsed(QLatin1String("mask"))) ++found_.masks;
  static const QRegularExpression layer(
      "(?:^|[;\\s/])(?:opacity|filter|mask|mix-blend-mode|isolation)\\s*(?::|/\\*)");
  static const QSet<QString> layers{"opacity", "filter", "mask", "mix-blend-mode", "isolation"};
  if (layers.contains(attribute.name) || (attribute.name == QLatin1String("style") && value.contains(layer)))
    found_.hasLayers = true;
  // librsvg clips a layer of its own in units of what is clipped.
  if (attribute.name == QLatin1String("clipPathUnits") && value == QLatin1String("objectBoundingBox"))
    found_.hasLayers = true;
}

Result<double> SvgAttributes::lookAt(const QString& element, const SvgAttribute& attribute) {
  const QString& value = attribute.value;
  lookAtEffects(attribute);
  if (element == QLatin1String("feMorphology") && attribute.name == QLatin1String("radius"))
    noteRadius(value);
  double largestFont = 0;
  if (attribute.name == QLatin1String("style") || value.contains(QLatin1String("url("))) {
    const SvgStyleFacts style = svgStyleFacts(value);
    found_.outsideReferences += style.outsideReferences;
    largestFont = style.largestFont;
    followUrls(value);
  }
  if (attribute.name == QLatin1String("font-size")) largestFont = std::max(largestFont, largestNumber(value));
  if (attribute.name == QLatin1String("href") && value.trimmed().startsWith('#'))
    nesting_.refer(value.trimmed().mid(1));
  if (element == QLatin1String("feConvolveMatrix") && attribute.name == QLatin1String("order") &&
      matrixSize(value) > limits::maximumFilterMatrix)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the document has a filter with a matrix of more than %1 numbers")
                     .arg(limits::maximumFilterMatrix)};
  return allowedFont(largestFont);
}

/// One number, or one for each direction.
void SvgAttributes::noteRadius(const QString& value) {
  for (const QString& number : QString(value).replace(',', ' ').simplified().split(' '))
    found_.morphologyRadius = std::max(found_.morphologyRadius, number.toDouble());
}

void SvgAttributes::followUrls(const QString& value) {
  static const QRegularExpression url("url\\(\\s*['\"]?#([^)'\"]*)");
  for (auto match = url.globalMatch(value); match.hasNext();)
    nesting_.refer(match.next().captured(1).trimmed());
}

Result<double> SvgAttributes::lookAtStyleSheet(const QString& css) {
  const SvgStyleFacts style = svgStyleFacts(css);
  found_.outsideReferences += style.outsideReferences;
  if (style.namesSize) found_.sizesByStyleSheet = true;
  if (style.deepestBrackets <= limits::maximumSelectorDepth) return allowedFont(style.largestFont);
  return Error{ErrorKind::Limit,
               QStringLiteral("the selectors of the document's style sheets nest more than %1 deep")
                   .arg(limits::maximumSelectorDepth)};
}

void SvgAttributes::lookAtReference(const QString& element, const SvgAttribute& attribute) {
  const QString value = attribute.name == QLatin1String("href") ? attribute.value.trimmed() : QString();
  if (element == QLatin1String("a") || value.isEmpty() || value.startsWith('#')) return;
  if (!value.startsWith(QLatin1String("data:"), Qt::CaseInsensitive)) {
    ++found_.outsideReferences;
  } else if (const QString type = value.left(64).toLower(); element == QLatin1String("include") ||
                                                            type.contains(QLatin1String("svg")) ||
                                                            type.contains(QLatin1String("xml"))) {
    found_.hasNestedDocument = true;
  }
}

}  // namespace norvex::engine
