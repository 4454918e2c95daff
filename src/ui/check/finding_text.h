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

/// In the user's language as far as the string table has the rule's words: the finding's own are English, and
/// stand behind them then.
[[nodiscard]] FindingText textOf(const Finding& finding);

/// "2 errors, 1 warning, 3 notes": what there is of each; empty without findings.
[[nodiscard]] QString countsOf(const Findings& findings);

}  // namespace norvex
