#include "worker/svg_output/svg_from_pdf.h"

#include <PDFDoc.h>
#include <Stream.h>

#include <algorithm>

#include "worker/eps_output/postscript_device.h"
#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_metadata.h"
#include "worker/svg_output/svg_sheet.h"
#include "worker/svg_output/svg_text_lines.h"

namespace norvex::engine {
namespace {

constexpr qsizetype kMiB = 1 << 20;
constexpr qsizetype kShareOfMemory = 4;  // the text is there twice, and what it is made of as well

// Hundredths of a point are enough for a sheet of paper; what is small will be enlarged.
int decimalsFor(QSizeF page) {
  const double side = std::max(page.width(), page.height());
  return side <= 60 ? 4 : side <= 600 ? 3 : 2;
}

BytesReply reportOf(const SvgDevice& device, QSizeF page) {
  BytesReply report;
  const SvgRasterised& rasterised = device.rasterised();
  report.regionsRasterised = rasterised.regions;
  report.rasterisedAreaShare = std::min(1.0, rasterised.area / (page.width() * page.height()));
  report.rasterisedDpi = rasterised.dpi;
  if (device.leftOutImages())
    report.warnings << QStringLiteral("an image with more pixels than are granted was left out");
  if (device.leftOutLetters())
    report.warnings << QStringLiteral("letters of more fonts or shapes than are granted were left out");
  if (device.changedGroups())
    report.warnings << QStringLiteral(
        "a group that knocks out or blends with what lies below it is put together by itself, as SVG has it");
  if (device.textLines()) report.warnings << device.textLines()->remarks();
  return report;
}

}  // namespace

Result<EngineBytes> svgFromPdf(const QByteArray& pdf, const std::optional<PdfAttributes>& attributes,
                               EngineContext& context, bool keepText) {
  const Error unreadable{ErrorKind::NotParsable, QStringLiteral("the page cannot be written as SVG")};
  keepPopplerSettings();
  PDFDoc document(new MemStream(pdf.constData(), 0, pdf.size(), Object(objNull)));
  if (!document.isOk() || document.getNumPages() < 1 || !document.getPage(1)) return unreadable;
  const QSizeF page(document.getPageCropWidth(1), document.getPageCropHeight(1));
  if (!(page.width() > 0) || !(page.height() > 0)) return unreadable;
  const qsizetype mostBytes = context.limits.memoryMiB * kMiB / kShareOfMemory;
  SvgSheet sheet(page, decimalsFor(page), mostBytes);
  SvgDevice device(sheet, context.limits, context.cancel, keepText);
  document.displayPage(
      &device, 1, 72, 72, 0, false, true, false,
      [](void* asked) { return static_cast<const SvgDevice*>(asked)->mustStop(); }, &device);
  if (context.cancel.cancelled())
    return Error{ErrorKind::Cancelled, QStringLiteral("the work was cancelled")};
  const std::optional<QByteArray> fonts = device.textLines() ? device.textLines()->styles() : QByteArray();
  QByteArray text =
      sheet.document((attributes ? svgMetadata(*attributes) : QByteArray()) + fonts.value_or(QByteArray()));
  if (sheet.isFull() || !fonts || fonts->size() > mostBytes)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the page is too large or too deeply nested to become SVG")};
  return EngineBytes{std::move(text), reportOf(device, page)};
}

}  // namespace norvex::engine
