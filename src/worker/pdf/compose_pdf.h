// A rectangle of a PDF page as a page of its own.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// A rectangle of a page of `pdf`, turned, as a one-page PDF: the page becomes a form XObject under the
/// view's transform, clipped to the rectangle; nothing is drawn again. Coordinates as in ComposeRequest.
Result<QByteArray> composePdf(const QByteArray& pdf, const ComposeRequest& request);

}  // namespace norvex::engine
