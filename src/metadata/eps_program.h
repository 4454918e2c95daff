// The program inside an EPS source, as an interpreter takes it.
#pragma once

#include <QByteArray>

namespace norvex {

/// The PostScript of an EPS source, plain or binary, byte-order mark and what surrounds it for a
/// printer (a change of the printer's language, its commands) left out. Interpreters know no UTF-16: a
/// source behind such a mark is given as UTF-8. Otherwise the result borrows from `source`, which must
/// outlive it.
[[nodiscard]] QByteArray epsProgram(const QByteArray& source);

}  // namespace norvex
