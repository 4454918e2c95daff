// The layers of a PDF (optional contents, PDF 32000-1, 8.11): which there are, and other ones shown.
#pragma once

#include <QList>

#include "protocol/worker_protocol.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// Those that the document offers to its readers, in its order, as its default configuration shows them; the
/// first limits::maximumLayers. Where it offers none in particular, all of them. May throw.
[[nodiscard]] QList<PictureLayer> pdfLayers(QPDF& qpdf);

/// Makes `wanted`, a list as pdfLayers() gives it, the default configuration. A layer that the document locks
/// stays as it is; one of a group of which one alone may be seen hides the others when it comes up. Several
/// lists, one behind the other, are made so in turn: what comes up is what the list before did not show.
/// False: nothing was changed, as with a list of other layers. May throw.
bool switchLayers(QPDF& qpdf, const QList<PictureLayer>& wanted);

}  // namespace norvex::engine
