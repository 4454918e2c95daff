// Rules about the structuring comments and the lines of an EPS program.
#pragma once

#include "check/finding.h"
#include "check/program_lines.h"

namespace norvex {

/// The first line, the order and the pairs of comments, showpage, lines and their ends, and data against what
/// is declared.
[[nodiscard]] Findings epsStructureFindings(const QList<ProgramLine>& lines);

/// True if the program shows its page by itself: showpage stands in it, as a word of its own.
[[nodiscard]] bool showsPage(const QList<ProgramLine>& lines);

}  // namespace norvex
