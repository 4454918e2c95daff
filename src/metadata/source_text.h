// The readable text of a picture's source.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

#include "protocol/worker_protocol.h"

namespace norvex {

/// Text of a source for reading. `bytes` are the PostScript source of an EPS picture (binary header included)
/// or the indented SVG text of an SVG picture; a PDF picture, or none, has no text. Only the encoding that is
/// given is tried. A UTF-8 mark is left out; a UTF-16 mark is left to the decoder. Of a binary EPS source
/// only the PostScript section is text. Empty when the bytes are not valid in the encoding. Thread-safe.
[[nodiscard]] QString sourceText(std::optional<PictureKind> kind, QByteArrayView bytes,
                                 qint64 encodingNumber);

/// The text of an EPS source in an encoding of encodingNames(). Nothing when the source is not valid in it.
/// Thread-safe.
[[nodiscard]] std::optional<QString> epsTextReadAs(const QString& encodingName, QByteArrayView source);

}  // namespace norvex
