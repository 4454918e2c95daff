#include "worker/pages/compose_page.h"

#include "worker/eps_output/eps_from_pdf.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/svg_output/svg_from_pdf.h"

namespace norvex::engine {

Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request,
                                EngineContext& context) {
  const bool toPdf = request.format == VectorFormat::Pdf;
  QStringList leftOut;
  // Nobody expects actions of an EPS or an SVG: that it has none is not worth a sentence.
  const bool keep = !toPdf || request.keepActions;
  Result<QByteArray> composed =
      composePdf(pdf, request, keep ? DocumentActions::Keep : DocumentActions::LeaveOut, &leftOut);
  if (!composed) return composed.error();
  Result<EngineBytes> result = toPdf ? EngineBytes{std::move(*composed), {}}
                               : request.format == VectorFormat::Svg
                                   ? svgFromPdf(*composed, request.attributes, context, request.keepText)
                                   : epsFromPdf(*composed, context);
  if (result) result->report.warnings = leftOut + result->report.warnings;
  return result;
}

}  // namespace norvex::engine
