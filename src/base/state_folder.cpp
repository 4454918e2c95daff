#include "base/state_folder.h"

#include <QDir>

namespace norvex {

QString stateFolder() {
  QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  if (!QDir::isAbsolutePath(folder)) folder = QDir::homePath() + QStringLiteral("/.local/state");
  return folder + QStringLiteral("/norvex");
}

}  // namespace norvex
