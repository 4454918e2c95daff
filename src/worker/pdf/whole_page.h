// The request for a whole page.
#pragma once

#include <QSizeF>

#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// The request for a whole, unrotated page.
[[nodiscard]] ComposeRequest wholePage(int page, QSizeF shownSize, VectorFormat format);

}  // namespace norvex::engine
