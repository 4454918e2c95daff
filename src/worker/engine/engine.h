// One document in the picture process: the seam between the message server and the engines.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

#include "base/cancel_token.h"
#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/worker_protocol.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

class GhostscriptChild;

/// Bytes with what the conversion has to tell.
struct EngineBytes {
  QByteArray bytes;
  BytesReply report;
};

/// The surroundings of an engine besides the document.
struct EngineContext {
  PictureLimits limits;
  QString scratchFolder;  ///< exists, private to this process, removed with it; empty where no PostScript is
                          ///< expected
  CancelToken cancel;     ///< of the running request; engines with loops or children look at it
  int interpreters = -1;  ///< where norvex-postscript is asked for interpreters, see
                          ///< protocol/interpreter_request.h; -1: gs is started. Not owned
  std::shared_ptr<GhostscriptChild> warmGhostscript;  ///< waiting for its first document; see ghostscript.h
  QString password = {};                              ///< of the document, as OpenRequest has it
  QList<PictureLayer> layers = {};                    ///< likewise
  int processors = 1;  ///< that this document may use at the same time; 1 where others want them, too
};

/// One opened document. Single-threaded; calls come one after the other. Owned by the server.
/// Failure of one call leaves the document usable.
class DocumentEngine {
 public:
  virtual ~DocumentEngine() = default;
  virtual Result<PictureFacts> facts() = 0;
  /// Exactly request.pixelSize.
  virtual Result<Bitmap> render(const RenderRequest& request) = 0;
  /// The whole, unrotated page as a one-page PDF whose box is the picture's bounds.
  virtual Result<EngineBytes> pdf(const PdfRequest& request) = 0;
  /// A rectangle of the rotated picture as one page.
  virtual Result<EngineBytes> compose(const ComposeRequest& request) = 0;
  /// Remarks on how the document is drawn, one plain sentence each: fonts that others stand in for.
  [[nodiscard]] virtual QStringList drawingRemarks() const { return {}; }
  /// Only SVG has it; the others answer ErrorKind::Unsupported.
  virtual Result<EngineBytes> svg(const SvgRequest& request);
  /// Where an engine cannot look at that, it answers ErrorKind::Unsupported.
  virtual Result<EngineBytes> examine(const ExamineRequest& request);
};

}  // namespace norvex::engine
