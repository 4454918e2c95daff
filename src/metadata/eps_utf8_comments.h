// PostScript whose comments are UTF-8 and whose program is untouched.
#pragma once

#include <QByteArray>

namespace norvex {

/// The PostScript of an EPS source (plain or binary, byte-order mark left out) with its comment lines in
/// UTF-8, `encodingNumber` being what the source was read in. What is shown, and image data, are bytes whose
/// meaning is the program's own: they go over as they are. Comment lines are those of the header, and lines
/// of a program without binary data that begin with "%%" outside of strings. A source that is no text in the
/// encoding goes over byte for byte. A source behind a UTF-16 mark, which no interpreter can run, is given in
/// UTF-8 as a whole. May borrow from `source`, which must outlive the result. Thread-safe.
[[nodiscard]] QByteArray epsWithUtf8Comments(const QByteArray& source, qint64 encodingNumber);

}  // namespace norvex
