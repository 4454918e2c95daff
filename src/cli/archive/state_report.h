// A state written down: a page for people, lines for programs.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "cli/archive/state/database.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// By the extension of `report`: .jsonl, an object for each entry on a line of its own; or .html, a page that
/// needs no other file, see reportPage(), with pictures that `service` draws. `path`: of the state.
/// Overwrites it. CannotWrite, also for a state that is damaged.
Result<void> writeStateReport(const QByteArray& path, Database& state, PictureService& service,
                              const QByteArray& report);

/// True for a file that writeStateReport() has written, and for an empty one.
[[nodiscard]] bool isStateReport(const QByteArray& path);

}  // namespace norvex
