// The application's own identity, as it appears in errors, settings, desktop files and on the bus.
#pragma once

#include <QString>

namespace norvex {

/// The bundle identifier: reverse-DNS name of the application; also its desktop file's and its icon's name.
inline QString bundleIdentifier() {
  return QStringLiteral("com.Norvex");
}

/// Domain of every error of the document layer: the bundle identifier, a full stop, "ErrorDomain".
inline QString errorDomain() {
  return bundleIdentifier() + QStringLiteral(".ErrorDomain");
}

}  // namespace norvex
