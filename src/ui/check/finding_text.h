// A finding in words, for people at a window.
#pragma once

#include <QString>

#include "check/finding.h"

namespace norvex {

/// "Error", "Warning" or "Note".
[[nodiscard]] QString titleOf(Severity severity);

struct FindingText {
  QString sentence;  ///< with its full stop
  QString figures;   ///< what the finding says beyond its rule, where the sentence is the rule's own; may be
                     ///< empty
  QString where;     ///< page, line, object, place; empty: nowhere in particular
  QString mend;      ///< a sentence; empty: nothing is to be mended
};

/// In the user's language as far as the string table has the rule's words: the finding's own stand behind
/// them then, in English where they are none of figure_sentences.h.
[[nodiscard]] FindingText textOf(const Finding& finding);

/// What a finding says, whole and in the user's language.
[[nodiscard]] QString figuresOf(const QString& sentence);

/// "2 errors, 1 warning, 3 notes": what there is of each; empty without findings.
[[nodiscard]] QString countsOf(const Findings& findings);

}  // namespace norvex
