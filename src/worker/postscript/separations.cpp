#include "worker/postscript/separations.h"

#include <cmath>
#include <functional>
#include <utility>

#include "protocol/limits.h"
#include "protocol/page_inks.h"
#include "worker/engine/distiller_arguments.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/whole_page.h"
#include "worker/postscript/distill.h"
#include "worker/postscript/distiller.h"
#include "worker/postscript/ink_alternates.h"
#include "worker/postscript/psd_plates.h"

namespace norvex::engine {
namespace {

Result<void> checkPixels(const QSizeF& page, const ExamineRequest& request) {
  if (request.part && request.part->isEmpty())
    return Error{ErrorKind::Protocol, QStringLiteral("the part that was asked for is empty")};
  const QSizeF size = request.part ? request.part->size() : page;
  const double dpi = request.dpi;
  const double pixels = size.width() * size.height() * (dpi / 72) * (dpi / 72);
  if (pixels <= limits::maximumPlatePixels) return {};
  return Error{
      ErrorKind::Limit,
      QStringLiteral("at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled")
          .arg(dpi)
          .arg(std::ceil(pixels / 1.0e5) / 10)  // more than the limit, however little it is
          .arg(limits::maximumPlatePixels / 1.0e6)};
}

/// Entries for setpagedevice. A second page would be written behind the first and is not wanted.
QByteArray deviceParameters(const ExamineRequest& request) {
  const QByteArray dpi = decimal(request.dpi, 6);
  return "/HWResolution [" + dpi + ' ' + dpi + "] /Overprint " +
         (request.overprint ? "/enable" : "/disable") + " /EndPage { 2 ne exch 0 eq and } bind ";
}

/// `pdf`: gives the page as a PDF, where its colour spaces are to be asked.
Result<EngineBytes> answer(const QByteArray& psd, const ExamineRequest& request, QStringList warnings,
                           const std::function<QByteArray()>& pdf) {
  Result<PageInks> page = platesOfPsd(psd);
  if (!page) return page.error();
  if (lacksAlternates(*page)) addAlternates(*page, inkAlternates(pdf()));
  page->dpi = request.dpi;
  page->overprint = request.overprint;
  EngineBytes bytes{encodePageInks(*page), {}};
  bytes.report.warnings = std::move(warnings);
  return bytes;
}

// The document follows in the same stream, and its reader goes to and fro in it.
QByteArray pdfProlog(qsizetype size, const ExamineRequest& request, bool complete) {
  return "%!\n0 vmreclaim << " + deviceParameters(request) +
         ">> setpagedevice\n"
         "{ { currentfile " +
         QByteArray::number(size) +
         " () /SubFileDecode filter /ReusableStreamDecode filter runpdfbegin\n    " +
         QByteArray::number(request.page + 1) + " pdfgetpage pdfshowpage runpdfend } stopped pop\n" +
         (complete ? completeOutput() : QByteArray()) + "  systemdict /quit get exec } bind exec\n";
}

/// It goes on behind errors, and tells of them.
QStringList remarksOf(const QByteArray& messages) {
  if (!messages.contains("**** Error") && !messages.contains("errors were encountered")) return {};
  return {QStringLiteral("the page has errors, and something may be missing on its plates")};
}

/// A part of a page as a page of its own: nothing of it is drawn for that.
Result<QByteArray> partOf(const QByteArray& pdf, const QSizeF& size, const ExamineRequest& request) {
  ComposeRequest part = wholePage(request.page, size, VectorFormat::Pdf);
  part.rect = QRectF(part.rect.topLeft() + request.part->topLeft(), request.part->size());
  return composePdf(pdf, part);
}

}  // namespace

Result<EngineBytes> inksOfProgram(const QByteArray& postScript, const QRectF& box,
                                  const ExamineRequest& request, EngineContext& context) {
  if (const Result<void> small = checkPixels(box.size(), request); !small) return small.error();
  const QRectF area =
      request.part ? QRectF(box.topLeft() + request.part->topLeft(), request.part->size()) : box;
  const Result<DrawnProgram> drawn =
      drawProgram(postScript, area, {InterpreterDevice::Plates, deviceParameters(request)}, context);
  if (!drawn) return drawn.error();
  if (!drawn->stoppedBy.isEmpty()) return Error{ErrorKind::NotParsable, drawn->stoppedBy};
  return answer(drawn->output, request, drawn->warnings, [&] {
    const Result<Distilled> distilled = distill(postScript, box, context);
    return distilled ? distilled->pdf : QByteArray();
  });
}

Result<EngineBytes> inksOfPdf(const QByteArray& pdf, const QSizeF& size, const ExamineRequest& request,
                              EngineContext& context) {
  if (const Result<void> small = checkPixels(size, request); !small) return small.error();
  if (request.part) {
    const Result<QByteArray> part = partOf(pdf, size, request);
    if (!part) return part.error();
    ExamineRequest whole = request;
    whole.page = 0;
    whole.part.reset();
    return inksOfPdf(*part, request.part->size(), whole, context);
  }
  const auto input = [&](bool forked) { return QList{pdfProlog(pdf.size(), request, forked), pdf}; };
  const Result<GhostscriptOutput> run = runGhostscript(InterpreterDevice::Plates, input, context);
  if (!run) return run.error();
  return answer(run->output, request, remarksOf(run->messages), [&] { return pdf; });
}

}  // namespace norvex::engine
