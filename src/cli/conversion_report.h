// The report of a conversion: as a JSON object and as one line.
#pragma once

#include <QJsonObject>
#include <QString>

#include "cli/conversion.h"
#include "cli/convert_plan.h"

namespace norvex {

/// `file`, `output`, `format`, perhaps `page`, `bytes`, `rasterized` {`regions`, `areaShare`, `dpi`},
/// `metadataLost`, `warnings`; `error` and perhaps `details` where it failed.
[[nodiscard]] QJsonObject conversionObject(const ConvertTask& task, const ConversionOptions& options,
                                           const Conversion& conversion);

/// Everything that the user should know about a conversion that succeeded; empty when there is nothing.
[[nodiscard]] QString conversionRemarks(const ConversionOptions& options, const Conversion& conversion);

}  // namespace norvex
