// A picture on sheets of paper.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// Sheets of paper that show the first page of `pdf` through a window each: one form for all of them, nothing
/// is drawn again. Header and footer are text.
Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request);

}  // namespace norvex::engine
