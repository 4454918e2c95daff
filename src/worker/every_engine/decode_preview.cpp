#include "worker/every_engine/decode_preview.h"

#include "worker/metafile/metafile_preview.h"
#include "worker/metafile/metafile_records.h"
#include "worker/tiff/tiff_preview.h"

namespace norvex::engine {

Result<NSBitmapImageRep> decodePreview(const QByteArray& preview, const PictureLimits& limits) {
  return isMetafile(preview) ? decodeMetafile(preview, limits) : decodeTiff(preview, limits);
}

}  // namespace norvex::engine
