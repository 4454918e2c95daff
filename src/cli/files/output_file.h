// The file that a command is to write, looked at before any work is done.
#pragma once

#include <QString>

#include <optional>

#include "base/result.h"
#include "types/picture_format.h"

namespace norvex {

/// Why nothing can be written to `output`: it is the input itself, a folder, no ordinary file, there already
/// (unless `force`), or its folder is not there. "-" is standard output and is always free. CannotWrite; the
/// sentence names the output.
[[nodiscard]] std::optional<Error> outputRefusal(const QString& file, const QString& output, bool force);

/// Why a file of `format` is not written under that name: its extension is that of another format, and what
/// is in the file would surprise whoever opens it. An extension that says nothing is right, and for vectors
/// that of `file`. Empty: there is nothing against it.
[[nodiscard]] QString wrongExtension(const QString& file, const QString& output, PictureFormat format);

}  // namespace norvex
