// Pages as plates, by Ghostscript: one for each process ink and for each spot ink that the page uses.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

#include "base/result.h"
#include "worker/engine/engine.h"

namespace norvex::engine {

// Both answer with encodePageInks(), at the request's resolution and overprint, of the request's part or the
// whole page; pixels are not smoothed, as those of a plate are not. Both fail with Protocol for an empty
// part, with Limit for more pixels than a plate may have, and otherwise as GhostscriptChild::run().

/// `postScript` is what distill() takes, and `box` as well. A program that stops before it has finished its
/// page fails with NotParsable and the interpreter's error in one sentence.
[[nodiscard]] Result<EngineBytes> inksOfProgram(const QByteArray& postScript, const QRectF& box,
                                                const ExamineRequest& request, EngineContext& context);

/// `pdf`: a document that has request.page, of `size` in points as it is shown.
[[nodiscard]] Result<EngineBytes> inksOfPdf(const QByteArray& pdf, const QSizeF& size,
                                            const ExamineRequest& request, EngineContext& context);

}  // namespace norvex::engine
