#include "print/print_job.h"

#include <algorithm>

#include "base/atomic_file.h"
#include "print/job_pages.h"
#include "print/joined_pages.h"

namespace norvex {
namespace {

Error cancelled() {
  return {ErrorKind::Cancelled, QStringLiteral("the printing was cancelled")};
}

struct Lines {
  std::optional<PageLine> header, footer;
};

Lines linesOf(const PrintSource& source, const NSPrintInfo& info) {
  if (!info.printsHeaderAndFooter()) return {};
  return {source.header ? source.header() : std::nullopt, source.footer ? source.footer() : std::nullopt};
}

std::optional<SheetLine> lineIn(const std::optional<QRectF>& rect, const std::optional<PageLine>& line) {
  if (!rect || !line) return std::nullopt;
  return SheetLine{line->text, *rect};
}

/// The sheets that show one page of the document.
struct PageSheets {
  qsizetype page = 0;
  QList<SheetPart> sheets;
};

void addSheet(QList<PageSheets>& job, const JobPages& pages, int sheet) {
  const SheetPlace place = pages.placeOf(sheet);
  if (job.isEmpty() || job.last().page != place.page) job << PageSheets{place.page, {}};
  const PageTile& tile = pages.pages().at(place.page).pagination.tiles.at(place.tile);
  job.last().sheets.append({tile.source, tile.target});
}

/// Those of the settings' range.
Result<QList<PageSheets>> sheetsOf(const JobPages& pages, const NSPrintInfo& info) {
  QList<PageSheets> sheets;
  const int first = info.firstPage(), last = std::min(info.lastPage(), pages.sheetCount());
  for (int sheet = first; sheet <= last; ++sheet) addSheet(sheets, pages, sheet - 1);
  if (!sheets.isEmpty()) return sheets;
  return Error{ErrorKind::Unsupported,
               QStringLiteral("there are no such pages: the picture takes %1").arg(pages.sheetCount())};
}

PagesRequest requestFor(const PrintSource& source, const Lines& lines, const Pagination& pagination,
                        const QList<SheetPart>& sheets) {
  const QFont font = lines.header ? lines.header->font : lines.footer ? lines.footer->font : QFont();
  PagesRequest request;
  request.paper = pagination.sheet;
  request.sheets = sheets;
  request.title = source.jobTitle;
  request.header = lineIn(pagination.header, lines.header);
  request.footer = lineIn(pagination.footer, lines.footer);
  request.fontFamily = font.family();
  if (font.pointSizeF() > 0) request.fontSize = font.pointSizeF();
  return request;
}

}  // namespace

Result<QByteArray> pictureOf(const PrintPage& page, const CancelToken& cancel) {
  if (!page.picture || page.size.isEmpty()) return QByteArray();
  const Result<PictureBytes> made = page.picture(cancel);
  if (!made) return made.error();
  return made->bytes;
}

Result<QByteArray> composeJob(const PrintSource& source, const NSPrintInfo& info, PictureService& service,
                              const CancelToken& cancel, const PageProgress& progress) {
  const Result<JobPages> pages = JobPages::of(source, info);
  if (!pages) return pages.error();
  const Result<QList<PageSheets>> sheets = sheetsOf(*pages, info);
  if (!sheets) return sheets.error();
  const Lines lines = linesOf(source, info);
  JoinedPages job(service, source.jobTitle);
  int number = 0;
  for (const PageSheets& each : *sheets) {
    if (progress) progress(++number, int(sheets->size()));
    const JobPage& page = pages->pages().at(each.page);
    const Result<QByteArray> picture = pictureOf(page.drawing, cancel);
    if (!picture) return picture.error();
    const Result<QByteArray> part =
        service.composePages(*picture, requestFor(source, lines, page.pagination, each.sheets), cancel);
    if (!part) return part.error();
    if (const Result<void> added = job.add(*part, cancel); !added) return added.error();
  }
  return job.file(cancel);
}

Result<QByteArray> composeSheet(const PrintSource& source, const NSPrintInfo& info, int sheet,
                                const QByteArray& picture, PictureService& service,
                                const CancelToken& cancel) {
  const Result<JobPages> pages = JobPages::of(source, info);
  if (!pages) return pages.error();
  QList<PageSheets> one;
  addSheet(one, *pages, sheet);
  const Pagination& pagination = pages->pages().at(one.first().page).pagination;
  return service.composePages(
      picture, requestFor(source, linesOf(source, info), pagination, one.first().sheets), cancel);
}

Result<void> deliverJob(const QByteArray& pdf, const QString& title, const NSPrintInfo& info,
                        PrintSpooler& spooler, const CancelToken& cancel) {
  if (cancel.cancelled()) return cancelled();
  if (!info.jobSavingPath().isEmpty())
    return writeFileAtomically(info.jobSavingPath(), pdf, IfExists::Replace);
  PrintTicket ticket;
  ticket.printer = info.printerName();
  ticket.title = title;
  ticket.copies = info.copies();
  ticket.media = info.paper().keyword;
  ticket.landscape = info.orientation() == NSPaperOrientation::Landscape;
  const Result<int> job = spooler.print(ticket, pdf, cancel);
  return job ? Result<void>() : Result<void>(job.error());
}

Result<void> runJob(const PrintSource& source, const NSPrintInfo& info, PictureService& service,
                    PrintSpooler& spooler, const CancelToken& cancel, const PageProgress& progress) {
  const Result<QByteArray> pdf = composeJob(source, info, service, cancel, progress);
  if (!pdf) return pdf.error();
  return deliverJob(*pdf, source.jobTitle, info, spooler, cancel);
}

}  // namespace norvex
