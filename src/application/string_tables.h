// The string tables of the user's language.
#pragma once

#include <QLocale>

namespace norvex {

/// Installs the table of the language, or else the English one, into the application. Call once after the
/// application object was made and before the first window; texts fetched earlier are the plain keys.
void installStringTables(const QLocale& locale = QLocale());

}  // namespace norvex
