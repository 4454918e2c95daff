// Rules about the operators that an EPS program names.
#pragma once

#include "check/finding.h"
#include "check/program_lines.h"

namespace norvex {

/// Operators that EPSF forbids, and those of a higher language level than is declared. Nothing is run: words
/// inside procedures, which may never be called, are left out; a word that the program defines itself is its
/// own, and a program that asks for its interpreter's level knows what it does.
[[nodiscard]] Findings epsOperatorFindings(const QList<ProgramLine>& lines);

/// Fonts that the header says the picture needs and does not bring.
[[nodiscard]] Findings epsFontFindings(const QList<ProgramLine>& lines);

}  // namespace norvex
