// The way in which profiles are written, checked before a library reads them.
#pragma once

#include <QByteArray>

namespace norvex {

struct ProfileText {
  QByteArray toml;  ///< ASCII, or UTF-8 within strings; without comments, with as many lines
  int badLine = 0;  ///< from 1: the first that is written otherwise; 0: none is
};

/// Profiles take of TOML: tables in brackets, names (also quoted, also with dots), and after an equals sign a
/// number in decimal digits, true, false, a string on one line without escapes, or a list of these. The
/// library asserts what it believes of anything else, and what it believes is not always so. Thread-safe.
[[nodiscard]] ProfileText plainProfile(const QByteArray& toml);

}  // namespace norvex
