#include "window/place/window_frames.h"

#include <QList>
#include <QSettings>
#include <QVariant>

#include <algorithm>
#include <cmath>

#include "base/state_folder.h"
#include "ui/panels/window_place.h"

namespace norvex {

namespace {

QSettings settings() {
  return QSettings(stateFolder() + QStringLiteral("/windows.ini"), QSettings::IniFormat);
}

const QString kTouchBar = QStringLiteral("views/touchBar");

const QString kMargins = QStringLiteral("frames/margins");

QString keyFor(const QString& autosaveName) {
  return QStringLiteral("frames/") + autosaveName;
}

}  // namespace

QRect savedWindowFrame(const QString& autosaveName) {
  constexpr int kFar = 100'000;  // beyond every desktop: a file may say anything, and places are added up
  const QRect frame = settings().value(keyFor(autosaveName)).toRect();
  for (const int edge : {frame.left(), frame.top(), frame.right(), frame.bottom()})
    if (edge < -kFar || edge > kFar) return {};
  return frame.width() >= 100 && frame.height() >= 100 ? frame : QRect();
}

void saveWindowFrame(const QString& autosaveName, const QRect& frame) {
  settings().setValue(keyFor(autosaveName), frame);
}

int wholePixels(int length, double ratio) {
  constexpr int kMost = 16;  // a ratio is no finer than a quarter, and 3.75 pixels go in steps of four
  // The platform tells window managers to size windows in steps of so many of the screen's pixels.
  const int step = std::max(1, static_cast<int>(std::lround(ratio)));
  for (int longer = length; longer < length + kMost; ++longer) {
    const double own = std::round(longer * ratio);
    if (std::abs(longer * ratio - own) < 1e-6 && std::fmod(own, step) == 0) return longer;
  }
  return length;
}

bool savedTouchBarIsShown() {
  return settings().value(kTouchBar).toBool();
}

void saveTouchBarIsShown(bool shown) {
  settings().setValue(kTouchBar, shown);
}

bool windowFitsPicture() {
  return savedView(QLatin1String(windowFitsPictureName), true);
}

QMargins savedFrameMargins() {
  constexpr int kMost = 100;
  QList<int> read;
  for (const QVariant& each : settings().value(kMargins).toList()) read << each.toInt();
  const bool good =
      read.size() == 4 && std::all_of(read.cbegin(), read.cend(), [](int n) { return n >= 0 && n <= kMost; });
  return good ? QMargins(read[0], read[1], read[2], read[3]) : usualFrame;
}

void saveFrameMargins(const QMargins& margins) {
  settings().setValue(kMargins,
                      QVariantList{margins.left(), margins.top(), margins.right(), margins.bottom()});
}

bool savedView(const QString& name, bool otherwise) {
  return settings().value(name, otherwise).toBool();
}

void saveView(const QString& name, bool on) {
  settings().setValue(name, on);
}

int savedViewLength(const QString& name) {
  constexpr int kMost = 10'000;
  bool ok = false;
  const int length = settings().value(name).toInt(&ok);
  return ok && length > 0 && length <= kMost ? length : 0;
}

void saveViewLength(const QString& name, int length) {
  settings().setValue(name, length);
}

QString savedViewText(const QString& name) {
  return settings().value(name).toString();
}

void saveViewText(const QString& name, const QString& text) {
  settings().setValue(name, text);
}

}  // namespace norvex
