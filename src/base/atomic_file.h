// Writing a file so that it is there whole or not at all.
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include "base/result.h"

namespace norvex {

enum class IfExists { Fail, Replace };

/// Writes `bytes` to `path`. Until the last moment they are in a file without a name in the same folder,
/// which the system drops if the program is killed; then they appear under `path` in one step. A file that
/// was there before stays whole until then, keeps its permissions when it is replaced, and is found through a
/// symbolic link. A file that is marked read-only is not replaced. Where folders cannot hold files without
/// names, a hidden one is used and removed on failure. ErrorKind::CannotWrite with one plain sentence. Any
/// thread.
Result<void> writeFileAtomically(const QString& path, const QByteArray& bytes, IfExists ifExists);

/// Removes the hidden files that a killed program left in `folder` while it wrote files of these names.
/// Nothing happens to those of others. `names` and `folder` are bytes, as the system has them.
void removeUnfinishedFiles(const QByteArray& folder, const QSet<QByteArray>& names);

/// True when both paths lead to one existing file, through whatever links.
[[nodiscard]] bool isSameFile(const QString& path, const QString& other);

}  // namespace norvex
