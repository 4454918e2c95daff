// The engine of PDF documents with their inks.
#pragma once

#include <memory>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// What `pages`, the document `pdf` opened, can do, and Examination::Inks. Apart from it because that is all
/// for which a PDF needs Ghostscript. The context is borrowed and must outlive the result. Fails as `pages`.
[[nodiscard]] Result<std::unique_ptr<DocumentEngine>> withInks(Result<std::unique_ptr<DocumentEngine>> pages,
                                                               const QByteArray& pdf, EngineContext& context);

}  // namespace norvex::engine
