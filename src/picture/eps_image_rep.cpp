#include "picture/eps_image_rep.h"

#include <utility>

#include "base/blanks.h"
#include "metadata/eps_bounding_box.h"
#include "metadata/eps_completeness.h"
#include "metadata/eps_program.h"

namespace norvex {
namespace {

/// Spoolers leave an end-of-transmission byte or blanks before the first line, and some writers forget its
/// mark: then comments begin the file, and its bounding box (EPSF 3.0, 2.1) has to speak for it.
bool beginsPostScript(QByteArrayView postScript, bool statesBox) {
  qsizetype at = 0;
  while (at < postScript.size() && at < 64 && mayPrecedePostScript(postScript[at])) ++at;
  const QByteArrayView first = postScript.sliced(at);
  return first.startsWith("%!") || (statesBox && first.startsWith("%") && !first.startsWith("%PDF-"));
}

/// Of a file that can be opened; one of them is usable.
Result<EpsBoundingBoxes> boxesOf(const QByteArray& bytes) {
  if (bytes.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the file is empty")};
  const EpsBoundingBoxes boxes = epsBoundingBoxes(bytes);
  const std::optional<QRectF> box = epsPictureBox(boxes);
  if (!beginsPostScript(epsProgram(bytes), box.has_value()))
    return Error{
        ErrorKind::NotParsable,
        box ? QStringLiteral("this is not Encapsulated PostScript: it does not begin with %!")
            : QStringLiteral("this is not Encapsulated PostScript: it does not begin with %! and states no "
                             "bounding box")};
  if (!box)
    return Error{ErrorKind::NotParsable,
                 QStringLiteral("the PostScript header states no usable bounding box")};
  return boxes;
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

Result<QRectF> NSEPSImageRep::boxOf(const QByteArray& bytes) {
  const Result<EpsBoundingBoxes> boxes = boxesOf(bytes);
  if (!boxes) return boxes.error();
  return *epsPictureBox(*boxes);
}

Result<std::shared_ptr<NSEPSImageRep>> NSEPSImageRep::imageRepWithData(PictureService& service,
                                                                       const QByteArray& bytes,
                                                                       const PictureLimits& limits) {
  const Result<EpsBoundingBoxes> boxes = boxesOf(bytes);
  if (!boxes) return boxes.error();
  return shared(new NSEPSImageRep(bytes, service.open(bytes, PictureKind::Eps, limits),
                                  *epsPictureBox(*boxes), boxes->hiResBoundingBox));
}

}  // namespace norvex
