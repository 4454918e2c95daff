#include "worker/every_engine/open_document.h"

// Apart from engine.cpp, which every engine needs: whoever links this links all of them.
namespace norvex::engine {

Result<std::unique_ptr<DocumentEngine>> openSvg(const QByteArray& bytes, EngineContext& context) {
  return openDocument(PictureKind::Svg, bytes, context);
}

Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context) {
  return openOffered<allPictureNeeds>(kind, bytes, context);
}

}  // namespace norvex::engine
