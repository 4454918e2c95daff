// Rules about the boxes that an EPS header states.
#pragma once

#include <QRectF>

#include "check/finding.h"
#include "check/program_lines.h"

namespace norvex {

/// Findings about the comments themselves. `program` is the PostScript, as an interpreter takes it.
[[nodiscard]] Findings epsBoxFindings(QByteArrayView program, const QList<ProgramLine>& lines);

/// How a stated box and the ink agree, in points of PostScript's default user space. `slack`: how far a box
/// may be from the ink without a word.
[[nodiscard]] Findings epsInkFindings(const QRectF& box, const std::optional<QRectF>& ink, double slack = 1);

/// "72 72 540 720", as box comments have it.
[[nodiscard]] QString boxText(const QRectF& box);

}  // namespace norvex
