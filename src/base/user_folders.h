// Folders of whoever uses the program.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

namespace norvex {

/// Where pictures are kept; the home folder where there is no such place. Any thread.
[[nodiscard]] inline QString picturesFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

/// The path of a folder as people write it: "~/Pictures". Any thread.
[[nodiscard]] inline QString writtenFolder(const QString& path) {
  const QString home = QDir::homePath();
  return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

}  // namespace norvex
