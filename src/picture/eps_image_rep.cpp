#include "picture/eps_image_rep.h"

#include <utility>

#include "metadata/eps_bounding_box.h"
#include "metadata/eps_completeness.h"
#include "metadata/eps_program.h"

namespace norvex {
namespace {

/// Whether PostScript begins here. Spoolers leave an end-of-transmission byte or blanks before it.
bool beginsPostScript(QByteArrayView postScript) {
  qsizetype at = 0;
  while (at < postScript.size() && at < 64 &&
         (postScript[at] == '\x04' || QByteArrayView(" \t\r\n").contains(postScript[at])))
    ++at;
  return postScript.sliced(at).startsWith("%!");
}

}  // namespace

NSEPSImageRep::NSEPSImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, QRectF box,
                             std::optional<QRectF> hiRes)
    : NSImageRep(PictureKind::Eps, std::move(bytes), std::move(process)),
      boundingBox_(box),
      hiResBoundingBox_(hiRes) {}

QStringList NSEPSImageRep::warnings() const {
  return epsMissingParts(sourceBytes());
}

Result<std::shared_ptr<NSEPSImageRep>> NSEPSImageRep::imageRepWithData(PictureService& service,
                                                                       const QByteArray& bytes,
                                                                       const PictureLimits& limits) {
  if (bytes.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the file is empty")};
  if (!beginsPostScript(epsProgram(bytes)))
    return Error{ErrorKind::NotParsable, QStringLiteral("this is not Encapsulated PostScript")};
  const EpsBoundingBoxes boxes = epsBoundingBoxes(bytes);
  const std::optional<QRectF> box = epsPictureBox(boxes);
  if (!box)
    return Error{ErrorKind::NotParsable,
                 QStringLiteral("the PostScript header states no usable bounding box")};
  return shared(
      new NSEPSImageRep(bytes, service.open(bytes, PictureKind::Eps, limits), *box, boxes.hiResBoundingBox));
}

}  // namespace norvex
