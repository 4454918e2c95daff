#include "worker/every_engine/open_document.h"

#include "worker/pages/compose_page.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/whole_page.h"
#include "worker/postscript/eps_engine.h"
#include "worker/svg/svg_engine.h"
#include "worker/svg/svg_pdf.h"

// Apart from engine.cpp, which every engine needs: whoever links this links all of them.
namespace norvex::engine {

Result<std::unique_ptr<DocumentEngine>> openSvg(const QByteArray& bytes, EngineContext& context) {
  return openSvgWith({svgToPdf, svgEffectsDpi, composePage}, bytes, context);
}

Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context) {
  switch (kind) {
    case PictureKind::Eps:
      return openEps(bytes, context);
    case PictureKind::Pdf:
      return openPdf(bytes, context);
    case PictureKind::Svg:
      return openSvg(bytes, context);
  }
  return Error{ErrorKind::Protocol, QStringLiteral("unknown kind of picture")};
}

}  // namespace norvex::engine
