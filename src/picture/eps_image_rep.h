// NSEPSImageRep: Encapsulated PostScript, plain, binary (with a DOS EPS header) or with an interchange
// preview.
#pragma once

#include "picture/image_rep.h"

namespace norvex {

class NSEPSImageRep final : public NSImageRep {
  Q_OBJECT
 public:
  /// Nothing (with the reason) when the bytes are not PostScript with a usable bounding box. Reads the header
  /// only; PostScript runs in the picture process later.
  static Result<std::shared_ptr<NSEPSImageRep>> imageRepWithData(PictureService& service,
                                                                 const QByteArray& bytes,
                                                                 const PictureLimits& limits = {});

  /// The box of a file that can be opened, points. Fails as imageRepWithData().
  [[nodiscard]] static Result<QRectF> boxOf(const QByteArray& bytes);

  /// The file's bytes, binary header and preview sections included.
  [[nodiscard]] QByteArray EPSRepresentation() const { return sourceBytes(); }
  /// `%%BoundingBox` in PostScript's default user space, points.
  [[nodiscard]] QRectF boundingBox() const { return boundingBox_; }
  /// `%%HiResBoundingBox` where the header has one.
  [[nodiscard]] std::optional<QRectF> hiResBoundingBox() const { return hiResBoundingBox_; }
  [[nodiscard]] QSizeF size() const override { return boundingBox_.size(); }
  /// The parts that a file that is cut off lacks. Looks through the whole program.
  [[nodiscard]] QStringList warnings() const override;

 private:
  NSEPSImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, QRectF box,
                std::optional<QRectF> hiRes);
  QRectF boundingBox_;
  std::optional<QRectF> hiResBoundingBox_;
};

}  // namespace norvex
