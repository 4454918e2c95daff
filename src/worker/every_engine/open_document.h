// Opens a document with whichever engine its kind needs. Who uses openDocument() links all of them.
#pragma once

#include <memory>

#include "protocol/picture_needs.h"
#include "worker/engine/engine.h"
#include "worker/examine/page_examination.h"
#include "worker/pages/compose_page.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/pdf_render.h"
#include "worker/postscript/eps_engine.h"
#include "worker/postscript/separated_pages.h"
#include "worker/svg/svg_engine.h"
#include "worker/svg/svg_pdf.h"

namespace norvex::engine {

/// openDocument() by nothing but the engines that `offers` takes. Fails with Unsupported for others'
/// documents.
template <PictureNeeds offers>
Result<std::unique_ptr<DocumentEngine>> openOffered(PictureKind kind, const QByteArray& bytes,
                                                    EngineContext& context) {
  if constexpr ((offers & NeedPages) != 0) {
    if (kind == PictureKind::Eps) return openEps(bytes, context);
    if (kind == PictureKind::Pdf) return withInks(openPdf(bytes, context), bytes, context);
  }
  if constexpr ((offers & NeedSvgDrawing) != 0) {
    SvgVectors vectors;
    if constexpr ((offers & NeedSvgPdf) != 0) {
      vectors.toPdf = svgToPdf;
      vectors.effectsDpi = svgEffectsDpi;
      vectors.contents = onlyPageContents;
    }
    if constexpr ((offers & NeedSvgParts) != 0) {
      vectors.compose = composePage;
      vectors.text = textOfOnlyPage;
    }
    if (kind == PictureKind::Svg) return openSvgWith(vectors, bytes, context);
  }
  return Error{ErrorKind::Unsupported,
               QStringLiteral("this picture process was made for another kind of picture")};
}

/// Opens `bytes`. The context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context);

/// An SVG engine that can do everything. Otherwise as openDocument().
Result<std::unique_ptr<DocumentEngine>> openSvg(const QByteArray& bytes, EngineContext& context);

}  // namespace norvex::engine
