// `norvex print`: the picture on paper, or the pages as a PDF file.
#include <QFileInfo>
#include <QUrl>

#include "base/atomic_file.h"
#include "base/interruption.h"
#include "base/localized_string.h"
#include "base/time_limit.h"
#include "cli/files/input_file.h"
#include "cli/files/output_file.h"
#include "cli/printing_job.h"
#include "cli/reader/reader_options.h"
#include "cli/value_reader.h"
#include "document/print_settings.h"
#include "document/print_titles.h"
#include "picture/open_picture.h"
#include "picture/pdf_image_rep.h"
#include "print/cups_spooler.h"
#include "print/print_job.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

/// True if nobody will take a PDF of that name for something else. A name without an extension says nothing.
bool isNamedAsPdf(const QString& output) {
  const QFileInfo file(output);
  return file.completeBaseName().isEmpty() || file.suffix().isEmpty() ||
         !file.suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive);
}

/// The fault of the arguments; empty: none.
QString complaintAboutPrinting(const Arguments& arguments) {
  if (arguments.has(Option::Printer) == arguments.has(Option::Output))
    return QStringLiteral("give either a printer (--printer NAME) or a file to write (-o OUT.pdf)");
  if (!isNamedAsPdf(arguments.values.value(Option::Output)))
    return QStringLiteral("the pages are written as PDF: %1 needs a name that ends in .pdf")
        .arg(arguments.values.value(Option::Output));
  if (arguments.has(Option::Landscape) && arguments.has(Option::Portrait))
    return QStringLiteral("the paper cannot both lie and stand");
  if (arguments.has(Option::Paper) && !paperNamed(arguments.values.value(Option::Paper))) {
    QStringList names;
    for (const Paper& paper : commonPapers()) names << paper.name;
    return QStringLiteral("there is no paper named %1; there are %2")
        .arg(arguments.values.value(Option::Paper), names.join(u' '));
  }
  return {};
}

/// A run's settings are its arguments alone: what somebody chose in a window once does not change a script.
NSPrintInfo printInfoOf(const Arguments& arguments) {
  NSPrintInfo info = defaultDocumentPrintInfo();
  if (arguments.has(Option::Portrait)) info.setOrientation(NSPaperOrientation::Portrait);
  if (const auto paper = paperNamed(arguments.values.value(Option::Paper))) info.setPaper(*paper);
  info.setPrintsHeaderAndFooter(arguments.has(Option::HeaderFooter));
  info.setPrinterName(arguments.values.value(Option::Printer));
  return info;
}

/// Empty where one page was chosen, or there is only one.
QStringList pagesNotPrinted(const NSImageRep& imageRep, const Arguments& arguments) {
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(&imageRep);
  if (!pdf || pdf->pageCount() == 1 || arguments.has(Option::Page)) return {};
  return {
      QStringLiteral("only page 1 of %1 is printed (--page N chooses another one)").arg(pdf->pageCount())};
}

/// The whole picture as a view of its own, with its titles.
PrintSource sourceOf(const std::shared_ptr<NSImageRep>& imageRep, const QUrl& fileURL) {
  const QString untitled = localizedString("Untitled");
  auto view = std::make_shared<NorvexRenderingView>(QRectF(QPointF(0, 0), imageRep->size()), imageRep.get());
  view->setPrintJobTitle(printJobTitle(fileURL, untitled));
  view->setTitle(printPageTitle(fileURL, untitled));
  return PrintableRenderingView(view, imageRep).printSource();
}

}  // namespace

ExitCode PrintingJob::print(const Arguments& arguments) {
  if (const QString complaint = complaintAboutPrinting(arguments); !complaint.isEmpty())
    return complain(Command::Print, complaint);
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  const int page = values.integer(Option::Page, 1, 1, norvex::limits::maximumPages);
  if (!values.complaint().isEmpty()) return complain(Command::Print, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  const QString file = arguments.files.first(), output = arguments.values.value(Option::Output);
  const NSPrintInfo info = printInfoOf(arguments);
  if (!output.isEmpty())
    if (const auto refusal = outputRefusal(file, output, arguments.has(Option::Force)))
      return fail(file, *refusal);
  CupsSpooler spooler;
  if (arguments.has(Option::Printer))  // told before a large picture is read in vain
    if (const Result<Printer> printer = printerNamed(spooler, info.printerName()); !printer)
      return fail(file, printer.error());
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  PictureSource picture = sourceOfInput(*bytes, file);
  picture.page = page - 1;

  const Interruption interruption;
  const CancelToken cancel = interruption.token();
  const TimeLimit time(std::chrono::seconds(limits.seconds), cancel);
  const Result<QStringList> read = readAsOptioned(service_, picture, *reader, limits, time.token());
  if (!read) return fail(file, time.explained(read.error()));
  const auto opened = openPicture(service_, picture, limits, time.token());
  if (!opened) return fail(file, time.explained(opened.error()));
  PrintSource source = sourceOf(*opened, picture.fileURL);
  const Result<PictureBytes> drawing = source.shown.picture(time.token());
  if (!drawing) return fail(file, time.explained(drawing.error()));
  remark(file,
         *read + (*opened)->warnings() + pagesNotPrinted(**opened, arguments) + drawing->report.warnings);
  source.shown.picture = [drawing](const CancelToken&) { return drawing; };
  const Result<QByteArray> pages = composeJob(source, info, service_, time.token());
  if (!pages) return fail(file, time.explained(pages.error()));
  if (!output.isEmpty()) return writeOutput(output, *pages, arguments.has(Option::Force));
  const Result<void> delivered = deliverJob(*pages, source.jobTitle, info, spooler, cancel);
  return delivered ? ExitCode::Done : fail(file, delivered.error());
}

}  // namespace norvex
