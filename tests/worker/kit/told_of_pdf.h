// What a picture process tells of a PDF.
#pragma once

#include <QByteArray>

#include "protocol/page_names.h"
#include "worker/engine/engine.h"
#include "worker/pages/pdf_engine.h"

namespace norvex::kit {

inline Result<PictureFacts> factsOf(const QByteArray& pdf) {
  engine::EngineContext context;
  auto engine = engine::openPdf(pdf, context);
  if (!engine) return engine.error();
  return (*engine)->facts();
}

/// None where it cannot be opened or examined.
inline PageNames namesOf(const QByteArray& pdf) {
  engine::EngineContext context;
  auto engine = engine::openPdf(pdf, context);
  if (!engine) return {};
  const auto told = (*engine)->examine({Examination::Names});
  const auto names = told ? decodePageNames(told->bytes) : Result<PageNames>(told.error());
  return names ? *names : PageNames();
}

}  // namespace norvex::kit
