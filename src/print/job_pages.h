// The sheets of a job, page of the document after page.
#pragma once

#include <QList>

#include "base/result.h"
#include "print/pagination.h"
#include "print/print_info.h"
#include "print/printable_view.h"

namespace norvex {

/// What is printed on one or several sheets. A value.
struct JobPage {
  PrintPage drawing;
  int number = -1;  ///< of the document, from 0; -1: a document of which only what is shown is there
  Pagination pagination;
};

/// A sheet among those of its page. Both from 0.
struct SheetPlace {
  qsizetype page = 0;  ///< index of a JobPage
  qsizetype tile = 0;
};

/// Header and footer take their room where the settings ask for them and the source has them.
class JobPages {
 public:
  /// Those pages of the source that the settings ask for. Fails as paginate(), for a range without a page,
  /// for pages behind those that the source knows, and for more than limits::maximumSheets sheets together.
  [[nodiscard]] static Result<JobPages> of(const PrintSource& source, const NSPrintInfo& info);

  /// At least one.
  [[nodiscard]] const QList<JobPage>& pages() const { return pages_; }
  [[nodiscard]] int sheetCount() const;
  /// REQUIRES 0 ≤ sheet < sheetCount().
  [[nodiscard]] SheetPlace placeOf(int sheet) const;

 private:
  QList<JobPage> pages_;
};

}  // namespace norvex
