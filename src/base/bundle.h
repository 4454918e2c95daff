// The application's own identity, as it appears in errors, settings, desktop files and on the bus.
#pragma once

#include <QString>

namespace norvex {

/// The bundle identifier, the root of the names that errors and commands go by.
inline QString bundleIdentifier() {
  return QStringLiteral("com.Norvex");
}

/// Name of the desktop file, of the icon and of the windows' class: desktops want three parts, the domain in
/// lower case.
inline QString desktopIdentifier() {
  return QStringLiteral("com.norvex.Norvex");
}

/// Domain of every error of the document layer: the bundle identifier, a full stop, "ErrorDomain".
inline QString errorDomain() {
  return bundleIdentifier() + QStringLiteral(".ErrorDomain");
}

}  // namespace norvex
