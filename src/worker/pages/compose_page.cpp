#include "worker/pages/compose_page.h"

#include "worker/eps_output/eps_from_pdf.h"
#include "worker/pdf/compose_pdf.h"

namespace norvex::engine {

Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request,
                                EngineContext& context) {
  Result<QByteArray> composed = composePdf(pdf, request);
  if (!composed) return composed.error();
  if (request.format == VectorFormat::Eps) return epsFromPdf(*composed, context);
  return EngineBytes{std::move(*composed), {}};
}

}  // namespace norvex::engine
