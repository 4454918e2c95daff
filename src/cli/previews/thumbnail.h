// A small image of a picture, as file managers show them.
#pragma once

#include <QImage>
#include <QStringList>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/open_picture.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// The budget of a thumbnail: a folder is full of them, and some of its files come from strangers.
inline constexpr int thumbnailSeconds = 5;

struct Thumbnail {
  QImage image;
  QStringList warnings;  ///< of the picture where it was drawn, one plain sentence each
};

/// Fits into a square of `side` pixels. An embedded preview is shown without running the PostScript, never
/// enlarged; anything else is drawn at that size. Pages lie on paper, SVG drawings stay transparent. Blocks
/// for the picture process, for thumbnailSeconds at most. Thread-safe.
[[nodiscard]] Result<Thumbnail> thumbnailOf(PictureService& service, const PictureSource& source, int side,
                                            const CancelToken& cancel = {});

}  // namespace norvex
