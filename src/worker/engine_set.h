// EngineSet: what the message server calls to do its work, so that it can be tested without parsing a
// document.
#pragma once

#include <functional>

#include "worker/engine/engine.h"

namespace norvex {

/// All functions are called in the document's own process, on its main thread, after enterSandbox(); but
/// warmUpProgram, which runs once in the process that forks the others, when there is time for it, and
/// must neither start a thread nor read anything that a document could influence. Empty functions answer
/// Unsupported or do nothing.
struct EngineSet {
  std::function<Result<std::unique_ptr<engine::DocumentEngine>>(PictureKind, const QByteArray& bytes,
                                                                engine::EngineContext&)>
      open;
  std::function<Result<NSBitmapImageRep>(const QByteArray& tiff, const PictureLimits&)> decodePreview;
  std::function<Result<QByteArray>(const QByteArray& pdf, const PdfAttributes&)> setPdfAttributes;
  std::function<Result<QByteArray>(const QByteArray& pdf, const PagesRequest&)> composePages;
  std::function<void()> warmUpProgram;
  bool onlyFacts = false;  ///< what it does takes less time than making a thread
};

}  // namespace norvex
