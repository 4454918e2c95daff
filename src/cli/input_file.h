// An input of the command line: its bytes and what they are.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "base/result.h"
#include "cli/console.h"
#include "protocol/worker_protocol.h"
#include "types/uniform_type.h"

namespace norvex {

/// The bytes of a file, or of standard input for "-". Fails for an empty one as well.
[[nodiscard]] Result<QByteArray> readInput(Console& console, const QString& file);
/// The same for a file that is not standard input. Thread-safe.
[[nodiscard]] Result<QByteArray> readInputFile(const QString& file);

/// Why the result must not be written to `output`: it is the input itself, through whatever links.
[[nodiscard]] std::optional<Error> overwritesInput(const QString& file, const QString& output);

/// The type of an input; standard input has no name to go by.
[[nodiscard]] UTType typeOfInput(const QByteArray& bytes, const QString& file);

/// The engine that an input needs: for an Illustrator file PostScript where the bytes are that, PDF
/// otherwise. Fails (Unsupported) for a type that is not a picture.
[[nodiscard]] Result<PictureKind> pictureKindOfInput(const QByteArray& bytes, const UTType& type);

}  // namespace norvex
