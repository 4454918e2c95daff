#include "ui/check/finding_text.h"

#include <QStringList>

#include <algorithm>
#include <string>
#include <vector>

#include "base/latin1_text.h"
#include "base/localized_string.h"
#include "base/sentence.h"
#include "check/mending.h"
#include "picture/told_sentences.h"
#include "ui/check/figure_sentences.h"

namespace norvex {
namespace {

/// A sentence; what begins with an operator keeps its small letter.
QString sentenceOf(const QString& text, bool beginsWithName) {
  if (text.isEmpty() || text.endsWith(u'\u3002')) return text;  // a full stop of Chinese and Japanese
  const QString sentence = asSentence(text);
  return beginsWithName ? text.at(0) + sentence.mid(1) : sentence;
}

/// The words of the rule table in the user's language.
QString worded(std::string_view words) {
  return localizedString(std::string(words).c_str());
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

/// A finding has words of its own, or quotes what a program or a file says: an error, a remark.
QString translatedFinding(const QString& english) {
  const auto both = [](const auto& own, const auto& told) {
    std::vector<const char*> all(own.begin(), own.end());
    all.insert(all.end(), told.begin(), told.end());
    return all;
  };
  static const std::vector<const char*> sentences = both(figureSentences, toldSentences);
  static const std::vector<const char*> names = both(figureNames, toldNames);
  return translatedSentence(english, sentences, names);
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
  const QString title = latin1(finding.rule->title), rules = worded(finding.rule->title);
  const bool isName = title.at(0).isLower();
  const QString said = translatedFinding(finding.sentence);
  const bool isObject = !finding.object.isEmpty() && said.startsWith(finding.object);
  const QString own = sentenceOf(said, (isName && said == finding.sentence) || isObject);
  const bool isTranslated = rules != title;
  text.sentence = isTranslated ? sentenceOf(rules, isName) : own;
  const bool saysMore = finding.sentence.compare(title, Qt::CaseInsensitive) != 0;
  if (isTranslated && saysMore) text.figures = own;
  text.where = whereOf(finding);
  text.mend = sentenceOf(worded(mendingWords(*finding.rule)), false);
  return text;
}

QString figuresOf(const QString& sentence) {
  return asSentence(translatedFinding(sentence));
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
