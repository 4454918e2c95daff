// How windows were when they were closed.
#pragma once

#include <QRect>
#include <QString>

namespace norvex {

/// Kept in the user's state folder, apart from settings. An invalid rectangle: none was saved.
[[nodiscard]] QRect savedWindowFrame(const QString& autosaveName);
void saveWindowFrame(const QString& autosaveName, const QRect& frame);

/// Whether new windows show the touch strip; it is remembered in the same place. False before it was ever
/// shown.
[[nodiscard]] bool savedTouchBarIsShown();
void saveTouchBarIsShown(bool shown);

}  // namespace norvex
