// Look-up of user-visible texts in the application's string tables.
#pragma once

#include <QCoreApplication>
#include <QString>

namespace norvex {

/// Name of the default string table (a translation context, like every other table).
inline constexpr char defaultStringTable[] = "Localizable";

/// The text for `key`, an English phrase, in the user's language; the key itself where the table has no such
/// entry. Any thread.
inline QString localizedString(const char* key, const char* table = defaultStringTable) {
  return QCoreApplication::translate(table, key);
}

}  // namespace norvex
