// How windows were when they were closed.
#pragma once

#include <QMargins>
#include <QRect>
#include <QString>

namespace norvex {

/// Kept in the user's state folder, apart from settings: the upper left corner of the window with its
/// decoration, and the size without. An invalid rectangle: none was
/// saved, or none that a screen could have.
[[nodiscard]] QRect savedWindowFrame(const QString& autosaveName);
void saveWindowFrame(const QString& autosaveName, const QRect& frame);

/// The shortest length from `length` on, both in logical pixels, that is a whole number of the screen's own
/// pixels; another would be cut on the way there. `ratio`: of own to logical pixels.
[[nodiscard]] int wholePixels(int length, double ratio);

/// True if new windows show the touch strip; it is remembered in the same place. False before it was ever
/// shown.
[[nodiscard]] bool savedTouchBarIsShown();
void saveTouchBarIsShown(bool shown);

/// True if the size rule holds; unless the user chose otherwise it does.
[[nodiscard]] bool windowFitsPicture();
/// What savedView() calls that choice.
inline constexpr char windowFitsPictureName[] = "views/windowFitsPicture";

/// What the desktop draws around windows, as it was seen last; a guess before. Logical pixels.
[[nodiscard]] QMargins savedFrameMargins();
void saveFrameMargins(const QMargins& margins);

/// A choice of what windows show, kept from one to the next; `otherwise` where none was made.
[[nodiscard]] bool savedView(const QString& name, bool otherwise);
void saveView(const QString& name, bool on);
/// A length that was chosen by hand, in logical pixels; 0 where none was, or none that can be one.
[[nodiscard]] int savedViewLength(const QString& name);
void saveViewLength(const QString& name, int length);
[[nodiscard]] QString savedViewText(const QString& name);
void saveViewText(const QString& name, const QString& text);

}  // namespace norvex
