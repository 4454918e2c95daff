#include "window/window_frames.h"

#include <QDir>
#include <QSettings>

namespace norvex {

namespace {

QSettings settings() {
  QString folder = qEnvironmentVariable("XDG_STATE_HOME");
  if (!QDir::isAbsolutePath(folder)) folder = QDir::homePath() + QStringLiteral("/.local/state");
  return QSettings(folder + QStringLiteral("/norvex/windows.ini"), QSettings::IniFormat);
}

const QString kTouchBar = QStringLiteral("views/touchBar");

QString keyFor(const QString& autosaveName) {
  return QStringLiteral("frames/") + autosaveName;
}

}  // namespace

QRect savedWindowFrame(const QString& autosaveName) {
  const QRect frame = settings().value(keyFor(autosaveName)).toRect();
  return frame.width() >= 100 && frame.height() >= 100 ? frame : QRect();
}

void saveWindowFrame(const QString& autosaveName, const QRect& frame) {
  settings().setValue(keyFor(autosaveName), frame);
}

bool savedTouchBarIsShown() {
  return settings().value(kTouchBar).toBool();
}

void saveTouchBarIsShown(bool shown) {
  settings().setValue(kTouchBar, shown);
}

}  // namespace norvex
