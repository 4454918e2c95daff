#include "picture_check/repaired_picture.h"

#include <QImage>

#include <cmath>

#include "base/time_limit.h"
#include "check/eps_file_rules.h"
#include "check/eps_repair.h"
#include "check/file_wrapping.h"
#include "encoders/dos_eps_writer.h"
#include "encoders/raster_codecs.h"
#include "metadata/dos_eps_header.h"
#include "metadata/eps_bounding_box.h"
#include "metadata/eps_completeness.h"
#include "picture/bitmap_image.h"
#include "picture/open_picture.h"
#include "picture_check/picture_check.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

/// Where a program is looked for that states no box: two sheets of paper a side.
const QRectF kAnywhere(0, 0, 1224, 1584);
/// Pixels of the longer side of a preview that is made.
constexpr double kLargestPreview = 512;

struct NamedFile {
  const QByteArray& bytes;
  const QString& name;
};

class Repair {
 public:
  Repair(PictureService& service, const NamedFile& file, PreviewUse use, const PictureLimits& limits,
         const CancelToken& cancel)
      : service_(service), file_(file.bytes), name_(file.name), use_(use), limits_(limits), cancel_(cancel) {}

  Result<RepairedPicture> run() {
    QByteArray program = epsProgramAlone(file_);
    if (program.isEmpty() && isEpsByName()) program = withoutWrapping(file_);
    if (program.isEmpty())
      return Error{ErrorKind::Unsupported, QStringLiteral("only EPS files can be repaired")};
    const Result<QRectF> box = boxFor(program);
    if (!box) return box.error();
    EpsRepair mended = repairedEps(program, *box, use_ != PreviewUse::Keep);
    noteWrapping();
    result_.remaining +=
        epsMissingParts(program);  // putting in an end does not bring back what stood before it
    result_.changes += mended.changes;
    const Result<QByteArray> preview = previewFor(mended.program, *box);
    if (!preview) return preview.error();
    result_.bytes = preview->isEmpty() ? mended.program : dosEpsFile(*preview, mended.program);
    if (const Result<void> sound = checkAgain(); !sound) return sound.error();
    return std::move(result_);
  }

 private:
  [[nodiscard]] bool isEpsByName() const {
    const QByteArray inner = withoutWrapping(file_);
    const Result<PictureKind> kind = pictureKindOf(inner, identifyType(inner, name_).identifier());
    return kind && *kind == PictureKind::Eps;
  }

  Result<QRectF> boxFor(const QByteArray& program) {
    const EpsBoundingBoxes boxes = epsBoundingBoxes(program);
    const std::optional<QRectF> stated = epsPictureBox(boxes);
    const bool isExact = boxes.hiResBoundingBox && !boxes.hiResBoundingBox->isEmpty();
    const std::optional<QRectF> exact = isExact ? boxes.hiResBoundingBox : stated;
    const QByteArray drawable = stated ? program : repairedEps(program, kAnywhere, false).program;
    const QRectF shown = stated.value_or(kAnywhere);
    const auto process = service_.open(drawable, PictureKind::Eps, limits_);
    const Result<DrawnInk> drawn = inkOfEps(*process, shown, InkEdges::Sharp, cancel_);
    if (!drawn) return drawn.error();
    const auto box = mendedBox(exact, isEndless(*drawn) ? exact : drawn->ink, drawn->painted);
    if (box) return *box;
    return Error{ErrorKind::NotParsable, QStringLiteral("it draws nothing and states no bounding box")};
  }

  void noteWrapping() {
    if (const auto wrapped = wrappedFile(file_))
      result_.changes << QStringLiteral("the program was taken out of %1").arg(wrapped->wrapping);
    if (hasFinding(epsFileFindings(file_), "eps.bytes.before"))
      result_.changes << QStringLiteral("what stood before the first line was left out");
    const QByteArray inner = withoutWrapping(file_);
    const auto header = dosEpsHeader(inner);
    if (!header) return;
    if (use_ != PreviewUse::Keep || header->tiffLength == 0)
      result_.changes << QStringLiteral("the program was taken out of its binary file");
    if (use_ != PreviewUse::Keep && header->tiffLength > 0)
      result_.changes << QStringLiteral("the preview was left out");
    if (header->metafileLength > 0) result_.changes << QStringLiteral("the Windows metafile was left out");
  }

  /// A TIFF file; empty: there is to be none.
  Result<QByteArray> previewFor(const QByteArray& program, const QRectF& box) {
    if (use_ == PreviewUse::Drop) return QByteArray();
    const QByteArray inner = withoutWrapping(file_);
    const auto header = dosEpsHeader(inner);
    if (use_ == PreviewUse::Keep) return header ? tiffSection(inner, *header).toByteArray() : QByteArray();
    return madePreview(program, box);
  }

  Result<QByteArray> madePreview(const QByteArray& program, const QRectF& stated) {
    const QRectF box = epsPictureBox(epsBoundingBoxes(program)).value_or(stated);
    const double scale = std::min(1.0, kLargestPreview / std::max(box.width(), box.height()));
    RenderRequest whole;
    whole.pixelSize = {std::max(1, int(std::ceil(box.width() * scale))),
                       std::max(1, int(std::ceil(box.height() * scale)))};
    whole.pictureToDevice = {scale, 0, 0, -scale, 0, box.height() * scale};
    whole.purpose = RenderPurpose::Preview;
    const Result<QImage> drawn = service_.open(program, PictureKind::Eps, limits_)->render(whole, cancel_);
    if (!drawn) return drawn.error();
    const QByteArray tiff = encodeRaster(PictureFormat::Tiff, bitmapFromImage(*drawn), {72 * scale, {}});
    if (tiff.isEmpty())
      return Error{ErrorKind::Unsupported, QStringLiteral("the preview could not be written as TIFF")};
    result_.changes
        << QStringLiteral("a preview of %1 by %2 pixels was made").arg(drawn->width()).arg(drawn->height());
    return tiff;
  }

  Result<void> checkAgain() {
    const CheckedPicture checked = checkPicture(service_, {result_.bytes, {}, {}, limits_}, cancel_);
    if (checked.error) return *checked.error;
    for (const Finding& one : checked.findings) {
      if (one.severity != Severity::Error) continue;
      if (one.rule->identifier.substr(0, 4) == "eps.")
        return Error{ErrorKind::NotParsable, QStringLiteral("it cannot be mended: %1").arg(one.sentence)};
      result_.remaining << one.sentence;
    }
    return {};
  }

  PictureService& service_;
  const QByteArray& file_;
  const QString& name_;
  const PreviewUse use_;
  const PictureLimits limits_;
  const CancelToken cancel_;
  RepairedPicture result_;
};

}  // namespace

Result<RepairedPicture> repairedPicture(PictureService& service, const QByteArray& file,
                                        const QString& fileName, PreviewUse preview,
                                        const PictureLimits& limits, const CancelToken& cancel) {
  const TimeLimit time(std::chrono::seconds(limits.seconds), cancel);
  Result<RepairedPicture> repaired = Repair(service, {file, fileName}, preview, limits, time.token()).run();
  if (repaired) return repaired;
  return time.explained(repaired.error());
}

}  // namespace norvex
