// A rectangle of a PDF page as a page of its own.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/pdf/pdf_actions.h"

namespace norvex::engine {

/// A rectangle of a page of `pdf`, turned, as a one-page PDF: the page becomes a form XObject under the
/// view's transform, clipped to the rectangle; nothing is drawn again. Coordinates as in ComposeRequest.
/// `leftOut`, where given, gets one sentence for each kind of actions (pdf_actions.h) that the new file has
/// not.
Result<QByteArray> composePdf(const QByteArray& pdf, const ComposeRequest& request,
                              DocumentActions actions = DocumentActions::LeaveOut,
                              QStringList* leftOut = nullptr);

}  // namespace norvex::engine
