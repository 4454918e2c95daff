// Pixels in the colours of a press or in grey, by LittleCMS with real profiles.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "types/output_color.h"

namespace norvex {

struct ColoredRaster {
  NSBitmapImageRep raster;
  QByteArray iccProfile;  ///< of its samples
};

/// `raster` is what isEncodable() takes, in sRGB. Relative colorimetric, with black point compensation. Grey
/// keeps neutral pixels as they are, and their transparency if `keepsAlpha`; everything else is laid over
/// white. Fails where no press profile is installed. Any thread.
[[nodiscard]] Result<ColoredRaster> inColor(OutputColor color, const NSBitmapImageRep& raster,
                                            bool keepsAlpha);

}  // namespace norvex
