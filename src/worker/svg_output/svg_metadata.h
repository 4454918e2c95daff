// A document's words about itself, in front of an SVG.
#pragma once

#include <QByteArray>

#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// title, desc and metadata elements of the texts that are there: "Title", "Subject", "Author", "Creator",
/// "CreationDate" and "Copyright".
/// Texts are escaped: nothing of them becomes structure.
[[nodiscard]] QByteArray svgMetadata(const PdfAttributes& attributes);

}  // namespace norvex::engine
