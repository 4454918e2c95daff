// The seam before the picture process, handed through: what wrappers of it derive from, so that a call which
// a wrapper does not care about cannot get lost in it.
#pragma once

#include <memory>
#include <utility>

#include "picture/process/picture_process.h"

namespace norvex {

/// Every call goes to the process inside, unchanged. Thread-safe where that is.
class ForwardingProcess : public PictureProcess {
 public:
  explicit ForwardingProcess(std::shared_ptr<PictureProcess> process) : process_(std::move(process)) {}

  Result<PictureFacts> facts(const CancelToken& cancel = {}) override;
  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> pdf(const PdfRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> compose(const ComposeRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> svg(const SvgRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> examine(const ExamineRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes,
                                        const CancelToken& cancel = {}) override;
  void retire() override;
  [[nodiscard]] QStringList drawingRemarks() const override;

 private:
  const std::shared_ptr<PictureProcess> process_;
};

/// Every call goes to the service inside, unchanged. `service` must outlive it; thread-safe where that is.
class ForwardingService : public PictureService {
 public:
  explicit ForwardingService(PictureService& service) : service_(service) {}

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
  PictureService& service_;
};

}  // namespace norvex
