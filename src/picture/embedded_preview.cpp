#include "picture/embedded_preview.h"

#include "metadata/dos_eps_header.h"
#include "metadata/eps_header.h"
#include "metadata/other_preview.h"

namespace norvex {

Result<std::optional<NSBitmapImageRep>> embeddedPreview(PictureService& service, const QByteArray& bytes,
                                                        const CancelToken& cancel,
                                                        const PictureLimits& limits) {
  std::optional<Error> unreadable;
  const HeaderDictionary dictionary =
      epsHeader(bytes, [&](const QByteArray& tiff) -> std::optional<NSBitmapImageRep> {
        Result<NSBitmapImageRep> preview = service.decodePreview(tiff, cancel, limits);
        if (preview) return *preview;
        unreadable = preview.error();
        return std::nullopt;
      });
  if (unreadable) return *unreadable;
  if (!dictionary.contains(header::Preview)) {
    Result<std::optional<NSBitmapImageRep>> other = otherPreview(bytes);
    const QByteArrayView metafile = metafileOf(bytes);
    if (!other || *other || metafile.isEmpty()) return other;
    Result<NSBitmapImageRep> drawn = service.decodePreview(metafile.toByteArray(), cancel, limits);
    if (!drawn) return drawn.error();
    return std::optional(std::move(*drawn));
  }
  return std::optional(dictionary.value(header::Preview).value<NSBitmapImageRep>());
}

}  // namespace norvex
