#include "print/print_job.h"

#include <algorithm>

#include "base/atomic_file.h"

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

/// The tiles of the settings' range.
Result<QList<SheetPart>> sheetsOf(const Pagination& pages, const NSPrintInfo& info) {
  QList<SheetPart> sheets;
  const qsizetype first = info.firstPage(), last = std::min<qsizetype>(info.lastPage(), pages.tiles.size());
  for (qsizetype page = first; page <= last; ++page)
    sheets.append({pages.tiles.at(page - 1).source, pages.tiles.at(page - 1).target});
  if (!sheets.isEmpty()) return sheets;
  return Error{ErrorKind::Unsupported,
               QStringLiteral("there are no such pages: the picture takes %1").arg(pages.tiles.size())};
}

}  // namespace

Result<Pagination> paginationOf(const PrintSource& source, const NSPrintInfo& info) {
  const Lines lines = linesOf(source, info);
  return paginate(source.size, info, lines.header.has_value(), lines.footer.has_value());
}

Result<QByteArray> pictureOf(const PrintSource& source, const CancelToken& cancel) {
  if (!source.picture || source.size.isEmpty()) return QByteArray();
  const Result<PictureBytes> made = source.picture(cancel);
  if (!made) return made.error();
  return made->bytes;
}

Result<QByteArray> composeJob(const PrintSource& source, const NSPrintInfo& info, PictureService& service,
                              const QByteArray& picture, const CancelToken& cancel) {
  const Lines lines = linesOf(source, info);
  const Result<Pagination> pages =
      paginate(source.size, info, lines.header.has_value(), lines.footer.has_value());
  if (!pages) return pages.error();
  const Result<QList<SheetPart>> sheets = sheetsOf(*pages, info);
  if (!sheets) return sheets.error();
  const QFont font = lines.header ? lines.header->font : lines.footer ? lines.footer->font : QFont();
  PagesRequest request;
  request.paper = pages->sheet;
  request.sheets = *sheets;
  request.title = source.jobTitle;
  request.header = lineIn(pages->header, lines.header);
  request.footer = lineIn(pages->footer, lines.footer);
  request.fontFamily = font.family();
  if (font.pointSizeF() > 0) request.fontSize = font.pointSizeF();
  return service.composePages(picture, request, cancel);
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
                    PrintSpooler& spooler, const CancelToken& cancel) {
  const Result<QByteArray> picture = pictureOf(source, cancel);
  if (!picture) return picture.error();
  const Result<QByteArray> pdf = composeJob(source, info, service, *picture, cancel);
  if (!pdf) return pdf.error();
  return deliverJob(*pdf, source.jobTitle, info, spooler, cancel);
}

}  // namespace norvex
