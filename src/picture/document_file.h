// A document's bytes, read completely or not at all.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/cancel_token.h"
#include "base/result.h"
#include "protocol/limits.h"

namespace norvex {

/// All bytes of an ordinary file; empty but not null for an empty one. Fails (CannotRead) for what is
/// missing, not permitted or no ordinary file (folders, pipes, devices, sockets: they could wait or run on
/// for ever), and for a file that is changed while it is read, three times in a row; (Limit) for more than
/// `limit` bytes. Thread-safe.
[[nodiscard]] Result<QByteArray> readDocumentFile(const QString& path,
                                                  qint64 limit = limits::maximumDocumentBytes);

/// All bytes up to the end of an open descriptor, standard input for example. Blocks until then or until
/// `cancel`. The descriptor stays open. Fails as above.
[[nodiscard]] Result<QByteArray> readDocumentStream(int descriptor, const CancelToken& cancel = {},
                                                    qint64 limit = limits::maximumDocumentBytes);

}  // namespace norvex
