#include "base/state_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace norvex {

namespace {

/// The folder that the variable names; where it names none, `otherwise` in the user's own.
QString ownFolder(const char* variable, QLatin1String otherwise) {
  QString folder = qEnvironmentVariable(variable);
  if (!QDir::isAbsolutePath(folder)) folder = QDir::homePath() + otherwise;
  return folder + QStringLiteral("/norvex");
}

}  // namespace

QString stateFolder() {
  return ownFolder("XDG_STATE_HOME", QLatin1String("/.local/state"));
}

QString settingsFolder() {
  return ownFolder("XDG_CONFIG_HOME", QLatin1String("/.config"));
}

QString picturesFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

QString writtenFolder(const QString& path) {
  const QString home = QDir::homePath();
  return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

}  // namespace norvex
