// The pictures of a state that changed most, small.
#pragma once

#include <QByteArray>
#include <QList>

#include "cli/archive/state/database.h"
#include "picture/process/picture_process.h"

namespace norvex {

struct ChangedPicture {
  QByteArray path;
  double share = 0;          ///< of its area that became an image
  QByteArray before, after;  ///< PNG; empty: it cannot be drawn
};

/// Those of which the largest share of the area became an image where it was not to, the most first; 24 at
/// most. Draws them one after the other, each within the usual limits.
[[nodiscard]] QList<ChangedPicture> mostChanged(Database& state, PictureService& service);

}  // namespace norvex
