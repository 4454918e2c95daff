// NSPDFImageRep: a page of a PDF document.
#pragma once

#include "picture/image_rep.h"

namespace norvex {

class NSPDFImageRep final : public NSImageRep {
  Q_OBJECT
 public:
  /// Shows the page `page` (from 0). Nothing (with the reason) when the picture process cannot open the bytes
  /// or there is no such page. Blocks for the document's facts.
  static Result<std::shared_ptr<NSPDFImageRep>> imageRepWithData(PictureService& service,
                                                                 const QByteArray& bytes,
                                                                 const PictureLimits& limits = {},
                                                                 int page = 0,
                                                                 const CancelToken& cancel = {});
  /// The PDF form of a picture that `process` has open: drawn by that process, no second one is started.
  static std::shared_ptr<NSPDFImageRep> imageRepWithProcess(std::shared_ptr<PictureProcess> process,
                                                            const QByteArray& pdf, const PictureFacts& facts);
  /// Another page of the same document, in the same process.
  [[nodiscard]] Result<std::shared_ptr<NSPDFImageRep>> imageRepWithPage(int page) const;

  /// The file's bytes.
  [[nodiscard]] QByteArray PDFRepresentation() const { return sourceBytes(); }
  /// The shown page's crop box with the page's own rotation applied, points.
  [[nodiscard]] QRectF bounds() const { return facts_.pageBounds.value(page()); }
  [[nodiscard]] int pageCount() const { return facts_.pageCount; }
  /// Those that can be shown, from the first on: pages far behind are not read.
  [[nodiscard]] int readPageCount() const { return int(facts_.pageBounds.size()); }
  [[nodiscard]] QSizeF size() const override { return bounds().size(); }
  [[nodiscard]] const PictureFacts& facts() const { return facts_; }
  [[nodiscard]] QStringList warnings() const override { return facts_.warnings; }

 private:
  NSPDFImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, PictureFacts facts, int page);
  PictureFacts facts_;
};

}  // namespace norvex
