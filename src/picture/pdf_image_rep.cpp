#include "picture/pdf_image_rep.h"

#include <utility>

namespace norvex {
namespace {

Result<void> checkPage(const PictureFacts& facts, int page) {
  if (page < 0 || page >= facts.pageCount)
    return Error{
        ErrorKind::Unsupported,
        QStringLiteral("there is no page %1, the document has %2").arg(page + 1).arg(facts.pageCount)};
  if (page >= facts.pageBounds.size())
    return Error{ErrorKind::Limit, QStringLiteral("page %1 is too far behind").arg(page + 1)};
  if (facts.pageBounds.at(page).isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("page %1 has no area").arg(page + 1)};
  return {};
}

}  // namespace

NSPDFImageRep::NSPDFImageRep(QByteArray bytes, std::shared_ptr<PictureProcess> process, PictureFacts facts,
                             int page)
    : NSImageRep(PictureKind::Pdf, std::move(bytes), std::move(process), page), facts_(std::move(facts)) {}

Result<std::shared_ptr<NSPDFImageRep>> NSPDFImageRep::imageRepWithData(PictureService& service,
                                                                       const QByteArray& bytes,
                                                                       const PictureLimits& limits, int page,
                                                                       const CancelToken& cancel) {
  if (bytes.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the file is empty")};
  auto process = service.open(bytes, PictureKind::Pdf, limits);
  const Result<PictureFacts> facts = process->facts(cancel);
  if (!facts) return facts.error();
  if (const auto there = checkPage(*facts, page); !there) return there.error();
  return shared(new NSPDFImageRep(bytes, std::move(process), *facts, page));
}

std::shared_ptr<NSPDFImageRep> NSPDFImageRep::imageRepWithProcess(std::shared_ptr<PictureProcess> process,
                                                                  const QByteArray& pdf,
                                                                  const PictureFacts& facts) {
  return shared(new NSPDFImageRep(pdf, std::move(process), facts, 0));
}

Result<std::shared_ptr<NSPDFImageRep>> NSPDFImageRep::imageRepWithPage(int page) const {
  if (const auto there = checkPage(facts_, page); !there) return there.error();
  return shared(new NSPDFImageRep(sourceBytes(), process(), facts_, page));
}

}  // namespace norvex
