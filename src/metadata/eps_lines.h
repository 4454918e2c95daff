// Lines of PostScript bytes.
#pragma once

#include <QByteArrayView>

namespace norvex {

/// True if a line begins at `at`: the first, or one behind LF or CR.
[[nodiscard]] bool beginsLine(QByteArrayView program, qsizetype at);

/// Where the line that holds `at` ends, its LF or CR not included.
[[nodiscard]] qsizetype lineEndOf(QByteArrayView program, qsizetype at);

/// Position of `keyword` where it begins a line, from `from` on; -1 without one.
[[nodiscard]] qsizetype lineBeginningWith(QByteArrayView program, QByteArrayView keyword, qsizetype from = 0);

}  // namespace norvex
