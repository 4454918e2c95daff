#include "worker/drawing/installed_fonts.h"

#include <fontconfig/fontconfig.h>

#include <QByteArray>
#include <QSet>

#include <algorithm>
#include <memory>

#include "protocol/limits.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {
namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

bool isGeneric(const QString& family) {
  static const QSet<QString> generic{"serif",        "sans-serif", "sans",      "monospace", "mono",
                                     "cursive",      "fantasy",    "system-ui", "ui-serif",  "ui-sans-serif",
                                     "ui-monospace", "ui-rounded", "math",      "emoji"};
  return generic.contains(family.toLower());
}

Pattern patternOf(const QString& family) {
  Pattern pattern(FcPatternCreate(), &FcPatternDestroy);
  const QByteArray name = family.toUtf8();
  FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
  return pattern;
}

bool isInstalled(const QString& family) {
  const Pattern pattern = patternOf(family);
  const std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)> objects(
      FcObjectSetBuild(FC_FAMILY, static_cast<const char*>(nullptr)), &FcObjectSetDestroy);
  const std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)> fonts(
      FcFontList(nullptr, pattern.get(), objects.get()), &FcFontSetDestroy);
  return fonts && fonts->nfont > 0;
}

QString standInFor(const QString& family) {
  const Pattern pattern = patternOf(family);
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultNoMatch;
  const Pattern match(FcFontMatch(nullptr, pattern.get(), &result), &FcPatternDestroy);
  FcChar8* name = nullptr;
  if (!match || FcPatternGetString(match.get(), FC_FAMILY, 0, &name) != FcResultMatch) return {};
  return QString::fromUtf8(reinterpret_cast<const char*>(name));
}

}  // namespace

QString missingFontSentence(const QString& font, const QString& standIn) {
  return standIn.isEmpty() ? QStringLiteral("the font %1 is missing, another stands in for it").arg(font)
                           : QStringLiteral("the font %1 is missing, %2 stands in for it").arg(font, standIn);
}

bool isMissingFontSentence(const QString& sentence) {
  return sentence.startsWith(u"the font ") && sentence.contains(u" is missing, ");
}

QStringList missingFamilies(const QList<QStringList>& lists) {
  QStringList sentences;
  for (const QStringList& list : lists) {
    const bool isThere = std::any_of(list.begin(), list.end(), [&](const QString& family) {
      return isGeneric(family) ? family == list.first() : isInstalled(family);
    });
    if (list.isEmpty() || isThere) continue;
    const QString sentence = missingFontSentence(list.first(), standInFor(list.first()));
    // Families are compared without case.
    if (!sentences.contains(sentence, Qt::CaseInsensitive) && sentences.size() < limits::maximumWarnings)
      sentences << sentence;
  }
  return sentences;
}

}  // namespace norvex::engine
