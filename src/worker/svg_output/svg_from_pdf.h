// PDF to SVG.
#pragma once

#include <QByteArray>

#include <optional>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// The first page of `pdf`, upright and with its corner at the origin, as SVG: points, what `attributes` says
/// as title, description and metadata. `keepText`: text stays text, in fonts that the SVG carries. Fails with
/// NotParsable, Cancelled, and with Limit where the SVG would be larger than a quarter of the granted memory
/// or nests too deep.
Result<EngineBytes> svgFromPdf(const QByteArray& pdf, const std::optional<PdfAttributes>& attributes,
                               EngineContext& context, bool keepText = false);

}  // namespace norvex::engine
