#include "worker/engine/engine.h"

namespace norvex::engine {

Result<EngineBytes> DocumentEngine::svg(const SvgRequest&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("only an SVG picture can be given as SVG")};
}

Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context) {
  switch (kind) {
    case PictureKind::Eps: return openEps(bytes, context);
    case PictureKind::Pdf: return openPdf(bytes, context);
    case PictureKind::Svg: return openSvg(bytes, context);
  }
  return Error{ErrorKind::Protocol, QStringLiteral("unknown kind of picture")};
}

}  // namespace norvex::engine
