// A file of an export, made.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QStringList>

#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "ui/export/export_choice.h"
#include "window/commands/picture_formats.h"

namespace norvex {

struct ExportedPicture {
  QByteArray bytes;     ///< empty: error says why
  QStringList remarks;  ///< one plain sentence each
  std::optional<Error> error;
};

/// The part `area` of the snapshot's picture in the chosen format, by the encoders that the command line
/// uses, and looked at as its files are. The snapshot's rectangle is that part, in view coordinates. Blocks
/// for the picture process; any thread.
[[nodiscard]] ExportedPicture exportedPicture(const PictureSnapshot& snapshot, const ExportChoice& choice,
                                              const CancelToken& cancel);

/// How that file looks, no side longer than `side` pixels: its own pixels where it has some that can be read
/// here, otherwise the same part drawn. Null: it cannot be drawn. Any thread.
[[nodiscard]] QImage previewOf(const ExportedPicture& exported, const PictureSnapshot& snapshot,
                               const ExportChoice& choice, int side, const CancelToken& cancel);

}  // namespace norvex
