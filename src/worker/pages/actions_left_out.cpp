#include "worker/pages/actions_left_out.h"

#include "worker/pdf/pdf_actions.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {

Result<EngineBytes> leaveOutActions(const QByteArray& pdf) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded([&]() -> Result<EngineBytes> {
    QPDF& qpdf = (*file)->qpdf();
    EngineBytes result;
    result.report.warnings = leaveOutActions(qpdf);
    // Readers differ in what they make of a damaged file: it is handed on as it was understood here.
    const bool asItIs = result.report.warnings.isEmpty() && (*file)->warnings().isEmpty();
    result.bytes = asItIs ? pdf : writePdf(qpdf);
    return result;
  });
}

}  // namespace norvex::engine
