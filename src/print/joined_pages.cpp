#include "print/joined_pages.h"

#include <algorithm>

namespace norvex {

Result<void> JoinedPages::add(const QByteArray& pdf, const CancelToken& cancel) {
  parts_ << PageExcerpt{pdf};
  apart_ += pdf.size();
  if (apart_ <= bound_) return {};
  const Result<QByteArray> together = file(cancel);
  if (!together) return together.error();
  parts_ = {PageExcerpt{*together}};
  apart_ = 0;
  bound_ = std::max(keptApart_, together->size());
  return {};
}

Result<QByteArray> JoinedPages::file(const CancelToken& cancel) const {
  if (parts_.size() == 1) return parts_.first().pdf;
  PdfAttributes attributes;
  if (!title_.isEmpty()) attributes.texts.insert(QStringLiteral("Title"), title_);
  const Result<PictureBytes> made = service_.open(parts_.first().pdf, PictureKind::Pdf)
                                        ->setPdfAttributes(encodePageExcerpts(parts_), attributes, cancel);
  return made ? Result<QByteArray>(made->bytes) : Result<QByteArray>(made.error());
}

}  // namespace norvex
