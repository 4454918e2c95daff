#include "worker/pages/compose_page.h"

#include "worker/eps_output/eps_from_pdf.h"
#include "worker/pdf/compose_pdf.h"

namespace norvex::engine {

Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request,
                                EngineContext& context) {
  const bool toEps = request.format == VectorFormat::Eps;
  QStringList leftOut;
  // Nobody expects actions of an EPS: that it has none is not worth a sentence.
  const bool keep = toEps || request.keepActions;
  Result<QByteArray> composed =
      composePdf(pdf, request, keep ? DocumentActions::Keep : DocumentActions::LeaveOut, &leftOut);
  if (!composed) return composed.error();
  Result<EngineBytes> result = toEps ? epsFromPdf(*composed, context) : EngineBytes{std::move(*composed), {}};
  if (result) result->report.warnings = leftOut + result->report.warnings;
  return result;
}

}  // namespace norvex::engine
