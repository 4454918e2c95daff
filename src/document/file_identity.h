// A file as one, whatever its path is written with.
#pragma once

#include <QFileInfo>
#include <QString>

namespace norvex {

/// One text for one file, whatever links and dots `path` is written with; the absolute path of one that is
/// not there. Asks the file system; any thread.
[[nodiscard]] inline QString fileIdentity(const QString& path) {
  const QFileInfo file(path);
  const QString canonical = file.canonicalFilePath();
  return canonical.isEmpty() ? file.absoluteFilePath() : canonical;
}

}  // namespace norvex
