// The lines of text above and below a printed picture.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// A page of the size of the paper with nothing but the header and the footer of `request`, as text. A field
/// that has not the room is shortened in its middle.
[[nodiscard]] Result<QByteArray> sheetLines(const PagesRequest& request);

}  // namespace norvex::engine
