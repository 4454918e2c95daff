#include "picture/process/forwarding_process.h"

namespace norvex {

Result<PictureFacts> ForwardingProcess::facts(const CancelToken& cancel) {
  return process_->facts(cancel);
}

Result<QImage> ForwardingProcess::render(const RenderRequest& request, const CancelToken& cancel) {
  return process_->render(request, cancel);
}

Result<PictureBytes> ForwardingProcess::pdf(const PdfRequest& request, const CancelToken& cancel) {
  return process_->pdf(request, cancel);
}

Result<PictureBytes> ForwardingProcess::compose(const ComposeRequest& request, const CancelToken& cancel) {
  return process_->compose(request, cancel);
}

Result<PictureBytes> ForwardingProcess::svg(const SvgRequest& request, const CancelToken& cancel) {
  return process_->svg(request, cancel);
}

Result<PictureBytes> ForwardingProcess::examine(const ExamineRequest& request, const CancelToken& cancel) {
  return process_->examine(request, cancel);
}

Result<PictureBytes> ForwardingProcess::setPdfAttributes(const QByteArray& pdf,
                                                         const PdfAttributes& attributes,
                                                         const CancelToken& cancel) {
  return process_->setPdfAttributes(pdf, attributes, cancel);
}

void ForwardingProcess::retire() {
  process_->retire();
}

QStringList ForwardingProcess::drawingRemarks() const {
  return process_->drawingRemarks();
}

void ForwardingService::openOnlyFor(PictureUse use) {
  service_.openOnlyFor(use);
}

std::shared_ptr<PictureProcess> ForwardingService::open(const QByteArray& bytes, PictureKind kind,
                                                        const PictureLimits& limits) {
  return service_.open(bytes, kind, limits);
}

Result<PictureBytes> ForwardingService::chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                                  const PictureLimits& limits, const CancelToken& cancel) {
  return service_.chosenPdf(pdf, choices, limits, cancel);
}

Result<NSBitmapImageRep> ForwardingService::decodePreview(const QByteArray& tiff, const CancelToken& cancel,
                                                          const PictureLimits& limits) {
  return service_.decodePreview(tiff, cancel, limits);
}

Result<QByteArray> ForwardingService::composePages(const QByteArray& pdf, const PagesRequest& request,
                                                   const CancelToken& cancel) {
  return service_.composePages(pdf, request, cancel);
}

}  // namespace norvex
