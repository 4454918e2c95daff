// gzip streams as files hold them.
#pragma once

#include <QByteArray>

#include <optional>

namespace norvex {

/// `bytes` as one gzip member; its header has no time, no name and names no system, so that equal bytes give
/// equal streams everywhere. Nothing when memory is short. Thread-safe.
[[nodiscard]] std::optional<QByteArray> gzipStream(const QByteArray& bytes);
}  // namespace norvex
