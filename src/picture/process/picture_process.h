// The seam before the picture process: so that tests run without a child program, and so that nothing above
// it knows how documents are parsed or that it happens elsewhere. Whoever wraps one of the two derives from
// its forwarding class (picture/process/forwarding_process.h), which drops nothing.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

#include <memory>

#include "base/cancel_token.h"
#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/limits.h"
#include "protocol/picture_needs.h"
#include "protocol/worker_protocol.h"

namespace norvex {

struct ReaderChoices;

/// Bytes of a result together with what the conversion has to tell.
struct PictureBytes {
  QByteArray bytes;
  BytesReply report;
};

/// The budget of a process that serves no document: previews, the sheets of a print job.
[[nodiscard]] inline PictureLimits toolLimits() {
  PictureLimits few;
  few.seconds = limits::toolSeconds;
  return few;
}

/// One document in a process of its own. Every call blocks until the answer, the time limit, the cancel or
/// the death of the process; each of them is an ordinary Result. After a death or a cancel that cost the
/// process its life the next call starts a fresh process and opens the document again. Thread-safe: calls
/// from several threads are served one after the other.
class PictureProcess {
 public:
  virtual ~PictureProcess() = default;

  /// The document's facts. The first call waits for them; later calls return the same without waiting.
  virtual Result<PictureFacts> facts(const CancelToken& cancel = {}) = 0;
  /// Premultiplied ARGB32 of exactly request.pixelSize.
  virtual Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) = 0;
  virtual Result<PictureBytes> pdf(const PdfRequest& request, const CancelToken& cancel = {}) = 0;
  virtual Result<PictureBytes> compose(const ComposeRequest& request, const CancelToken& cancel = {}) = 0;
  virtual Result<PictureBytes> svg(const SvgRequest& request, const CancelToken& cancel = {}) = 0;
  /// One CBOR map. Nothing of it is checked: its reader does.
  virtual Result<PictureBytes> examine(const ExamineRequest& request, const CancelToken& cancel = {}) = 0;
  /// `pdf`, a finished one, with these attributes. What is yet to be made takes them with its request.
  virtual Result<PictureBytes> setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes,
                                                const CancelToken& cancel = {}) = 0;
  /// Tells that nothing more will be asked, so that the process can go while its results are worked on. A
  /// call all the same starts another. Waits for a call under way.
  virtual void retire() = 0;
  /// Remarks of render() so far on how the document is drawn, one plain sentence each: fonts that
  /// others stand in for.
  [[nodiscard]] virtual QStringList drawingRemarks() const = 0;
};

/// Starts picture processes. One for the whole program, owned by its main; thread-safe.
class PictureService {
 public:
  virtual ~PictureService() = default;

  /// Tells that every picture from now on is opened for this alone: its process need not be able to do more,
  /// and starts sooner for it.
  virtual void openOnlyFor(PictureUse use) = 0;
  /// Begins to open `bytes` as `kind` and returns at once; a failure shows in the first call on the result.
  /// The caller owns the result; the bytes are shared until it is destroyed.
  virtual std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                               const PictureLimits& limits = {}) = 0;
  /// The whole PDF as its reader has chosen to see it: not encrypted any more, and with layers that are by
  /// default as they were chosen. What it gives is opened like any other document; the report tells what is
  /// lost. Blocks. Fails with Encrypted for a wrong password.
  virtual Result<PictureBytes> chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                         const PictureLimits& limits = {},
                                         const CancelToken& cancel = {}) = 0;
  /// A TIFF file's first image as samples, uncompressed, rows without padding. Blocks.
  /// Of the limits the memory and the time count.
  virtual Result<NSBitmapImageRep> decodePreview(const QByteArray& tiff, const CancelToken& cancel = {},
                                                 const PictureLimits& limits = toolLimits()) = 0;
  /// The sheets of a print job as one PDF. `pdf` is the picture: one page; empty: the sheets hold no picture.
  /// Blocks.
  virtual Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request,
                                          const CancelToken& cancel = {}) = 0;
};

}  // namespace norvex
