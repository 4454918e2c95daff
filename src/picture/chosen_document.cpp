#include "picture/chosen_document.h"

namespace norvex {

Result<PictureBytes> documentAsChosen(PictureService& service, const PictureSource& source,
                                      const ReaderChoices& choices, const PictureLimits& limits,
                                      const CancelToken& cancel) {
  PictureBytes asItIs{source.bytes, {}};
  if (choices.isEmpty()) return asItIs;
  const Result<PictureKind> kind = pictureKindOf(source.bytes, source.typeIdentifier);
  if (!kind || *kind != PictureKind::Pdf) return asItIs;
  return service.chosenPdf(source.bytes, choices, limits, cancel);
}

}  // namespace norvex
