// File names are bytes, and not always text: what stands between the two without losing any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace norvex {

/// The name as a QString. A byte that is no part of valid UTF-8 becomes a single low surrogate (0xDC00 + the
/// byte), which stands in no proper text; everything else is read as UTF-8.
[[nodiscard]] QString fileNameText(QByteArrayView bytes);

/// The bytes that the system knows the name by: fileNameText() turned back, UTF-8 of any other text.
[[nodiscard]] QByteArray fileNameBytes(const QString& name);

/// The byte that a character of fileNameText() stands for; -1: it is an ordinary character. `before`: the
/// character in front of it, a null one at the start.
[[nodiscard]] int rawByteOf(QChar character, QChar before);

/// The file that a path leads to, through all links; the path itself when nothing is there.
[[nodiscard]] QByteArray realPath(const QByteArray& path);

/// True when something is there under that name, a link that leads nowhere excepted.
[[nodiscard]] bool fileExists(const QString& name);
/// True for a folder, or a link to one.
[[nodiscard]] bool folderExists(const QString& name);

}  // namespace norvex
