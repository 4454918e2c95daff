// True if the fonts that a document asks for are on this machine.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace norvex::engine {

/// How it is told that a font is missing. `standIn` null: it is not known which font is used.
[[nodiscard]] QString missingFontSentence(const QString& font, const QString& standIn = {});

/// True if a sentence is one of missingFontSentence().
[[nodiscard]] bool isMissingFontSentence(const QString& sentence);

/// For each list of families of which none is installed, one sentence about the first: the rest of a list is
/// the author's own choice of what stands in. Generic names ("serif") are always there. At most
/// limits::maximumWarnings.
[[nodiscard]] QStringList missingFamilies(const QList<QStringList>& lists);

}  // namespace norvex::engine
