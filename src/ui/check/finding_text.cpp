#include "ui/check/finding_text.h"

#include <QStringList>

#include <algorithm>
#include <string>

#include "base/latin1_text.h"
#include "base/localized_string.h"
#include "base/sentence.h"
#include "check/mending.h"

namespace norvex {
namespace {

/// The words of the rule table as a sentence in the user's language.
QString worded(std::string_view words) {
  const QString text = localizedString(std::string(words).c_str());
  return text.endsWith(u'\u3002') ? text : asSentence(text);  // a full stop of Chinese and Japanese
}

QString whereOf(const Finding& finding) {
  QStringList places;
  if (finding.page > 0) places << localizedString("Page %1").arg(finding.page);
  if (finding.line) places << localizedString("Line %1").arg(*finding.line);
  if (!finding.object.isEmpty()) places << finding.object;
  if (finding.rect) {
    const QPointF centre = finding.rect->center();
    places << localizedString("at %1, %2 pt").arg(qRound(centre.x())).arg(qRound(centre.y()));
  }
  return places.join(QStringLiteral(" · "));
}

QString counted(qsizetype count, const char* one, const char* several) {
  return count == 1 ? localizedString(one) : localizedString(several).arg(count);
}

}  // namespace

QString titleOf(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return localizedString("Error");
    case Severity::Warning:
      return localizedString("Warning");
    case Severity::Note:
      break;
  }
  return localizedString("Note");
}

FindingText textOf(const Finding& finding) {
  FindingText text;
  const QString own = asSentence(finding.sentence), rules = worded(finding.rule->title);
  const bool isTranslated = rules != asSentence(latin1(finding.rule->title));
  text.sentence = isTranslated ? rules : own;
  if (isTranslated) text.figures = own;
  text.where = whereOf(finding);
  text.mend = worded(mendingWords(*finding.rule));
  return text;
}

QString countsOf(const Findings& findings) {
  const auto of = [&](Severity severity) {
    return std::count_if(findings.cbegin(), findings.cend(),
                         [&](const Finding& each) { return each.severity == severity; });
  };
  QStringList parts;
  if (const auto errors = of(Severity::Error)) parts << counted(errors, "1 error", "%1 errors");
  if (const auto warnings = of(Severity::Warning)) parts << counted(warnings, "1 warning", "%1 warnings");
  if (const auto notes = of(Severity::Note)) parts << counted(notes, "1 note", "%1 notes");
  return parts.join(QStringLiteral(", "));
}

}  // namespace norvex
