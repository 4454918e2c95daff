// MemoryPictureService: pictures without a picture process, so that everything above the seam can be tested.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QList>
#include <QRectF>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "picture/process/picture_process.h"
#include "picture/process/reader_choices.h"

namespace norvex {

/// The calls of a PictureProcess, to count them and to make them fail.
enum class PictureCall { Facts, Render, Pdf, Compose, Svg, Examine, Attributes };

/// The answers of a memory process. Every function may be replaced; it runs on the caller's thread,
/// and several threads never run it at the same time.
struct MemoryPicture {
  /// One page of 200 × 100 points at the origin.
  MemoryPicture();

  PictureFacts facts;
  QStringList drawingRemarks;
  BytesReply report;                                  ///< of pdf, compose and svg
  std::function<QImage(const RenderRequest&)> paint;  ///< Default: testPattern() of the page
  std::function<QByteArray(const PdfRequest&)> pdf;   ///< Default: an empty page of the page's size, or for
                                                      ///< every page the bytes that were opened
  std::function<QByteArray(const ComposeRequest&)>
      compose;                                       ///< Default: an empty page of the rectangle's size
  std::function<QByteArray(const SvgRequest&)> svg;  ///< Default: the bytes that were opened
  std::function<QByteArray(const ExamineRequest&)> examine;  ///< Default: an empty CBOR map
  std::function<QByteArray(const QByteArray& pdf, const PdfAttributes&)> setAttributes;  ///< Default: the PDF
};

/// A picture whose colour tells where it is: red grows with x from 0 to 255 over the page, green with y
/// (upwards), blue is 255 in every second square of 10 points and 0 in the others. Opaque inside the page,
/// transparent outside.
[[nodiscard]] QImage testPattern(const RenderRequest& request, const QSizeF& pageSize);
/// A one-page PDF without content.
[[nodiscard]] QByteArray emptyPdf(const QSizeF& size);
/// An EPS without drawing.
[[nodiscard]] QByteArray emptyEps(const QSizeF& size);

/// A PictureProcess that answers from a MemoryPicture, counts, and fails or waits when told so. Thread-safe.
class MemoryPictureProcess final : public PictureProcess {
 public:
  MemoryPictureProcess(QByteArray bytes, MemoryPicture picture);

  /// From now on the next `times` calls of this sort fail with `error` (a negative number: all of them).
  void fail(PictureCall call, const Error& error, int times = -1);
  void succeed(PictureCall call);
  /// From now on calls of this sort wait until release(); a cancelled one stops waiting and answers
  /// Cancelled.
  void hold(PictureCall call);
  void release(PictureCall call);
  /// Blocks until `count` calls of this sort are waiting at their latch; false after `milliseconds` (a broken
  /// test).
  [[nodiscard]] bool waitUntilHeld(PictureCall call, int count = 1, int milliseconds = 20000);

  /// Calls that were begun so far, failed and cancelled ones included.
  [[nodiscard]] int calls(PictureCall call) const;
  [[nodiscard]] int cancelledCalls() const;
  [[nodiscard]] QList<RenderRequest> renderRequests() const;
  [[nodiscard]] QList<ComposeRequest> composeRequests() const;
  [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

  Result<PictureFacts> facts(const CancelToken& cancel = {}) override;
  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> pdf(const PdfRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> compose(const ComposeRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> svg(const SvgRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> examine(const ExamineRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes,
                                        const CancelToken& cancel = {}) override;
  void retire() override { ++retirements_; }
  [[nodiscard]] int retirements() const { return retirements_; }
  [[nodiscard]] QStringList drawingRemarks() const override;

 private:
  struct CallState {
    int count = 0;
    int waiting = 0;
    bool held = false;
    int failuresLeft = 0;
    std::optional<Error> failure;
  };
  /// Counts, waits at the latch, and tells the failure if there is to be one.
  Result<void> begin(PictureCall call, const CancelToken& cancel);
  CallState& state(PictureCall call) { return states_[size_t(call)]; }

  const QByteArray bytes_;
  const MemoryPicture picture_;
  mutable std::mutex mutex_;  ///< of everything below
  std::mutex serial_;         ///< one answer at a time, as a real process gives them
  std::condition_variable changed_;
  CallState states_[int(PictureCall::Attributes) + 1];
  int cancelled_ = 0;
  std::atomic<int> retirements_ = 0;
  QList<RenderRequest> renders_;
  QList<ComposeRequest> composes_;
};

/// Opens every document as the same MemoryPicture; composes no pages. Thread-safe.
class MemoryPictureService final : public PictureService {
 public:
  explicit MemoryPictureService(MemoryPicture picture = {}) : picture_(std::move(picture)) {}

  /// The behaviour of open() and decodePreview() from now on.
  void setPicture(const MemoryPicture& picture);
  void setPreview(const Result<NSBitmapImageRep>& preview);
  /// Called with each new process before open() returns it (to make it fail or wait from its first call on).
  void setPrepare(std::function<void(MemoryPictureProcess&)> prepare);

  [[nodiscard]] int openCount() const;
  [[nodiscard]] int previewCount() const;
  /// Of the preview that was decoded last.
  [[nodiscard]] PictureLimits previewLimits() const;
  /// The last that was told; Everything before.
  [[nodiscard]] PictureUse use() const;
  [[nodiscard]] QList<PictureKind> openedKinds() const;
  /// The process that was opened last; null before the first.
  [[nodiscard]] std::shared_ptr<MemoryPictureProcess> lastProcess() const;

  /// Makes the PDFs of chosenPdf(). Default: the PDF as it is.
  void setChoose(std::function<Result<PictureBytes>(const QByteArray& pdf, const ReaderChoices&)> choose);
  /// Of every chosenPdf() so far.
  [[nodiscard]] QList<ReaderChoices> choices() const;

  void openOnlyFor(PictureUse use) override;
  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits = {}) override;
  Result<PictureBytes> chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                 const PictureLimits& limits = {}, const CancelToken& cancel = {}) override;
  Result<NSBitmapImageRep> decodePreview(const QByteArray& tiff, const CancelToken& cancel = {},
                                         const PictureLimits& limits = toolLimits()) override;
  Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request,
                                  const CancelToken& cancel = {}) override;

 private:
  mutable std::mutex mutex_;
  MemoryPicture picture_;
  Result<NSBitmapImageRep> preview_ = Error{ErrorKind::NotParsable, QStringLiteral("there is no preview")};
  std::function<void(MemoryPictureProcess&)> prepare_;
  QList<PictureKind> kinds_;
  std::function<Result<PictureBytes>(const QByteArray&, const ReaderChoices&)> choose_;
  QList<ReaderChoices> choices_;
  int previews_ = 0;
  PictureLimits previewLimits_;
  PictureUse use_ = PictureUse::Everything;
  std::shared_ptr<MemoryPictureProcess> last_;
};

}  // namespace norvex
