// How a printed document is called.
#pragma once

#include <QString>
#include <QUrl>

namespace norvex {

/// The last component of the file's path without its extension; the display name when there is no file.
[[nodiscard]] QString printJobTitle(const QUrl& fileURL, const QString& displayName);

/// The line below the pages: the location's absolute text with its percent escapes removed
/// ("file:///tmp/My Pictures/a.eps"); `untitled` when there is no file.
[[nodiscard]] QString printPageTitle(const QUrl& fileURL, const QString& untitled);

}  // namespace norvex
