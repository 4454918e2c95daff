// A state written down: a page for people, lines for programs.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "cli/archive/state/database.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// By the extension of `report`: .jsonl, an object for each entry on a line of its own; or .html, a page that
/// needs no other file: counts, failures by their causes, and the pictures of which most became an image,
/// before and after, which `service` draws. Overwrites it. CannotWrite.
Result<void> writeStateReport(Database& state, PictureService& service, const QByteArray& report);

/// True for a file that writeStateReport() has written, and for an empty one.
[[nodiscard]] bool isStateReport(const QByteArray& path);

}  // namespace norvex
