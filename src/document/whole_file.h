// Reading a document's file as a whole, with a plain sentence for everything that can be wrong with it.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/result.h"

namespace norvex {

/// Larger files are refused before a byte is read: a sparse file of terabytes would otherwise take all memory.
inline constexpr qint64 maximumDocumentBytes = qint64(1) << 30;

/// The file's bytes. ErrorKind::CannotRead: missing, a folder, not permitted, not an ordinary file (a pipe would
/// block for ever), or it failed on the way; ErrorKind::Limit: too large. An empty file has zero bytes, which is
/// no error. Any thread; blocks.
[[nodiscard]] Result<QByteArray> readWholeFile(const QString& path);

}  // namespace norvex
