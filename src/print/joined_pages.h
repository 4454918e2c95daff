// The parts of a print job, put together to one file.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "picture/process/picture_process.h"
#include "protocol/page_excerpts.h"

namespace norvex {

/// Parts are added in their order. So much of them is kept apart until they are put together, or as much as
/// is together already: parts that bring the same fonts are not much larger together than one of them, and a
/// book of them would not fit into memory otherwise. Of parts that share nothing each byte is put together
/// about twice, however many there are. One thread at a time; the service is borrowed.
class JoinedPages final {
 public:
  static constexpr qsizetype kKeptApart = qsizetype(64) << 20;

  JoinedPages(PictureService& service, const QString& title, qsizetype keptApart = kKeptApart)
      : service_(service), title_(title), keptApart_(keptApart), bound_(keptApart) {}

  /// A PDF that is not encrypted.
  [[nodiscard]] Result<void> add(const QByteArray& pdf, const CancelToken& cancel);
  /// All of them; a single one as it was given. REQUIRES at least one.
  [[nodiscard]] Result<QByteArray> file(const CancelToken& cancel) const;

 private:
  PictureService& service_;
  QString title_;
  qsizetype keptApart_, bound_, apart_ = 0;
  QList<PageExcerpt> parts_;
};

}  // namespace norvex
