// A document's bytes, read completely or not at all.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/cancel_token.h"
#include "base/result.h"

namespace norvex {

/// A file that is larger cannot be opened: bytes are held in memory in both processes.
inline constexpr qint64 maximumDocumentBytes = 512LL << 20;

/// All bytes of an ordinary file; empty but not null for an empty one. Fails (CannotRead) for what is
/// missing, not permitted or no ordinary file (folders, pipes, devices, sockets: they could wait or run on
/// for ever), and for a file that is changed while it is read, three times in a row; (Limit) for more than
/// `limit` bytes. Thread-safe.
[[nodiscard]] Result<QByteArray> readDocumentFile(const QString& path, qint64 limit = maximumDocumentBytes);

/// All bytes up to the end of an open descriptor, standard input for example. Blocks until then or until
/// `cancel`. The descriptor stays open. Fails as above.
[[nodiscard]] Result<QByteArray> readDocumentStream(int descriptor, const CancelToken& cancel = {},
                                                    qint64 limit = maximumDocumentBytes);

}  // namespace norvex
