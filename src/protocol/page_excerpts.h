// Pages of several finished PDFs, to become one: what an AttributesRequest's memfd may hold in the place of
// one PDF.
#pragma once

#include <QByteArray>
#include <QList>

#include "base/result.h"

namespace norvex {

/// A run of pages of a PDF that is not encrypted.
struct PageExcerpt {
  QByteArray pdf;
  int first = 0;  ///< from 0
  int last = -1;  ///< counted as `first`; -1: up to the end
};

/// One CBOR array behind the tag that tells CBOR from everything else.
[[nodiscard]] QByteArray encodePageExcerpts(const QList<PageExcerpt>& excerpts);
/// True if that is what the bytes begin as; no PDF does.
[[nodiscard]] bool holdPageExcerpts(const QByteArray& bytes);
/// At least one. Fails with Protocol.
[[nodiscard]] Result<QList<PageExcerpt>> decodePageExcerpts(const QByteArray& bytes);

}  // namespace norvex
