// What the picture process can do with one document: the seam between the message server and the engines.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QStringList>
#include <QString>

#include <memory>
#include <optional>

#include "platform/bitmap_image_rep.h"
#include "platform/cancel_token.h"
#include "platform/result.h"
#include "platform/worker_protocol.h"
#include "worker/engine/bitmap.h"

namespace norvex::engine {

class GhostscriptChild;

/// Bytes with what the conversion has to tell.
struct EngineBytes {
  QByteArray bytes;
  BytesReply report;
};

/// What an engine is given besides the document.
struct EngineContext {
  PictureLimits limits;
  QString scratchFolder;  ///< exists, private to this process, removed with it; empty where no PostScript is expected
  CancelToken cancel;     ///< of the running request; engines with loops or children look at it
  std::shared_ptr<GhostscriptChild> warmGhostscript;  ///< waiting for its first document; see ghostscript.h
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
  /// What is known about how the document is drawn, one plain sentence each: fonts that others stand in for.
  [[nodiscard]] virtual QStringList drawingRemarks() const { return {}; }
  /// Only SVG has it; the others answer ErrorKind::Unsupported.
  virtual Result<EngineBytes> svg(const SvgRequest& request);
};

/// Opens `bytes`. The context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes, EngineContext& context);

// One function an engine; openDocument() chooses.
Result<std::unique_ptr<DocumentEngine>> openEps(const QByteArray& bytes, EngineContext& context);
Result<std::unique_ptr<DocumentEngine>> openPdf(const QByteArray& bytes, EngineContext& context);
Result<std::unique_ptr<DocumentEngine>> openSvg(const QByteArray& bytes, EngineContext& context);

/// The first image of a TIFF file, samples uncompressed and interleaved, rows without padding.
Result<NSBitmapImageRep> decodeTiff(const QByteArray& tiff, const PictureLimits& limits);

/// A rectangle of a page of `pdf`, turned, as a one-page PDF: the page becomes a form XObject under the view's
/// transform, clipped to the rectangle; nothing is drawn again. Coordinates as in ComposeRequest.
Result<QByteArray> composePdf(const QByteArray& pdf, const ComposeRequest& request);

/// `pdf` with `attributes` ("Title", "Author", "Subject", "Creator", "Producer" …; the names are PDF's) and
/// `creationDate` set in its document information; other entries stay. Metadata that would contradict them is dropped.
Result<QByteArray> setPdfAttributes(const QByteArray& pdf, const QHash<QString, QString>& attributes,
                                    const std::optional<QDateTime>& creationDate);

/// Sheets of paper that show the first page of `pdf` through a window each: one form for all of them, nothing is drawn
/// again. Header and footer are text.
Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request);

/// The first page of `pdf` as EPS with a DSC header of ours.
Result<EngineBytes> epsFromPdf(const QByteArray& pdf, EngineContext& context);

}  // namespace norvex::engine
