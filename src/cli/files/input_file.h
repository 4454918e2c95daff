// An input of the command line: its bytes and what they are.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "base/result.h"
#include "cli/files/console.h"
#include "picture/open_picture.h"

namespace norvex {

/// The bytes of a file, or of standard input for "-". Fails for an empty one as well.
[[nodiscard]] Result<QByteArray> readInput(Console& console, const QString& file);
/// The same for a file that is not standard input. Thread-safe.
[[nodiscard]] Result<QByteArray> readInputFile(const QString& file);

/// Why the result must not be written to `output`: it is the input itself, through whatever links.
[[nodiscard]] std::optional<Error> overwritesInput(const QString& file, const QString& output);

/// An input as a picture is opened from it. Standard input has no name to tell the type by.
[[nodiscard]] PictureSource sourceOfInput(const QByteArray& bytes, const QString& file);

}  // namespace norvex
