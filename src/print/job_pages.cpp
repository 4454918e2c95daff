#include "print/job_pages.h"

#include <algorithm>

#include "protocol/limits.h"

namespace norvex {
namespace {

Result<QList<JobPage>> chosenPages(const PrintSource& source, const NSPrintInfo& info) {
  const int count = int(source.pages.size());
  if (count == 0) return QList<JobPage>{{source.shown, -1, {}}};
  if (info.documentPages() == DocumentPages::Shown)
    return QList<JobPage>{{source.shown, source.shownPage, {}}};
  const bool range = info.documentPages() == DocumentPages::Range;
  const int first = range ? info.firstDocumentPage() : 1;
  const int there = std::max(count, source.pageCount);
  const int last = range ? std::min(info.lastDocumentPage(), there) : there;
  if (last > count && first <= last)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the document has %1 pages, and only the first %2 of them can be printed")
                     .arg(there)
                     .arg(count)};
  QList<JobPage> pages;
  for (int page = first; page <= last; ++page) pages << JobPage{source.pages.at(page - 1), page - 1, {}};
  if (!pages.isEmpty()) return pages;
  return Error{ErrorKind::Unsupported,
               QStringLiteral("there are no such pages: the document has %1").arg(count)};
}

}  // namespace

Result<JobPages> JobPages::of(const PrintSource& source, const NSPrintInfo& info) {
  Result<QList<JobPage>> chosen = chosenPages(source, info);
  if (!chosen) return chosen.error();
  const bool lines = info.printsHeaderAndFooter();
  const bool header = lines && source.header && source.header();
  const bool footer = lines && source.footer && source.footer();
  JobPages job;
  qsizetype sheets = 0;
  for (JobPage& page : *chosen) {
    Result<Pagination> pagination = paginate(page.drawing.size, info, header, footer);
    if (!pagination) return pagination.error();
    sheets += pagination->tiles.size();
    if (sheets > limits::maximumSheets)
      return Error{
          ErrorKind::Limit,
          QStringLiteral("the pages would take more than %1 sheets of paper").arg(limits::maximumSheets)};
    page.pagination = std::move(*pagination);
  }
  job.pages_ = std::move(*chosen);
  return job;
}

int JobPages::sheetCount() const {
  qsizetype count = 0;
  for (const JobPage& page : pages_) count += page.pagination.tiles.size();
  return int(count);
}

SheetPlace JobPages::placeOf(int sheet) const {
  SheetPlace place{0, sheet};
  while (place.tile >= pages_.at(place.page).pagination.tiles.size())
    place.tile -= pages_.at(place.page++).pagination.tiles.size();
  return place;
}

}  // namespace norvex
