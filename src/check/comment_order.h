// The order of the comments that structure a document.
#pragma once

#include <QLatin1String>
#include <QList>
#include <QSet>

#include "check/program_lines.h"

namespace norvex {

/// A comment of the document itself, in its header or its program.
[[nodiscard]] bool isStructure(const ProgramLine& line);

/// The comment's place among those that have one, from %%EndComments, which is 0; -1: it may stand anywhere.
[[nodiscard]] int placeOf(const ProgramLine& line);
[[nodiscard]] QLatin1String nameOfPlace(int place);

/// True if `place` may follow `last`; -1: nothing was before. One page follows another.
[[nodiscard]] bool mayFollow(int place, int last);

/// Indices of the comments without which all others stand in order, behind the header: the fewest, and rather
/// others than pages. Of a section both ends.
[[nodiscard]] QSet<qsizetype> misplacedComments(const QList<ProgramLine>& lines);

}  // namespace norvex
