#include "encoders/raster_codecs.h"

namespace norvex {

bool isEncodable(const NSBitmapImageRep& raster) {
  return raster.isConsistent() && !raster.isPlanar && raster.bitsPerSample == 8 &&
         raster.samplesPerPixel == (raster.hasAlpha ? 4 : 3) &&
         raster.colorSpaceName == QLatin1String(NSCalibratedRGBColorSpace);
}

}  // namespace norvex
