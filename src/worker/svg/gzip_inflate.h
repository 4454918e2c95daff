// gzip, as compressed SVG comes in it.
#pragma once

#include <QByteArray>

#include "base/result.h"

namespace norvex::engine {

/// The inflated bytes of one or several gzip members; zero bytes after the last member are padding and
/// ignored. Fails with NotParsable (damaged, cut off, something else behind the data) or Limit (over
/// limits::maximumInflatedBytes, or over limits::maximumInflateRatio beyond the first MiB).
[[nodiscard]] Result<QByteArray> inflateGzip(const QByteArray& bytes);

}  // namespace norvex::engine
