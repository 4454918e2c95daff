// The engine for SVG documents, apart from what it takes to hand them out as vectors.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <memory>
#include <optional>

#include "base/result.h"
#include "protocol/page_contents.h"
#include "protocol/page_text.h"
#include "worker/engine/engine.h"
#include "worker/svg/svg_pdf.h"
#include "worker/svg/svg_renderer.h"

namespace norvex::engine {

/// How a picture becomes a PDF, and how that is composed. The functions are given, so that a process which
/// only draws need not link the libraries behind them. Without toPdf pdf() and compose() answer Unsupported,
/// without compose compose() does.
struct SvgVectors {
  Result<QByteArray> (*toPdf)(const SvgRenderer& renderer, const QSizeF& pixels,
                              const SvgImageEffects& effects,
                              const std::optional<PdfAttributes>& attributes) = nullptr;
  /// Goes with toPdf.
  double (*effectsDpi)(const QSizeF& pixels, const SvgImageEffects& effects) = nullptr;
  Result<EngineBytes> (*compose)(const QByteArray& pdf, const ComposeRequest& request,
                                 EngineContext& context) = nullptr;
  /// The contents of a PDF of toPdf. Goes with it.
  Result<PageContents> (*contents)(const QByteArray& pdf, const CancelToken& cancel) = nullptr;
  /// The text of such a PDF, whose page has this size. Goes with compose.
  Result<PageText> (*text)(const QByteArray& pdf, QSizeF size) = nullptr;
};

/// openSvg() with these vectors.
Result<std::unique_ptr<DocumentEngine>> openSvgWith(const SvgVectors& vectors, const QByteArray& bytes,
                                                    EngineContext& context);

}  // namespace norvex::engine
