// Where windows were when they were closed, by autosave name.
#pragma once

#include <QRect>
#include <QString>

namespace norvex {

/// Kept in the user's state folder, apart from settings. An invalid rectangle: none was saved.
[[nodiscard]] QRect savedWindowFrame(const QString& autosaveName);
void saveWindowFrame(const QString& autosaveName, const QRect& frame);

}  // namespace norvex
