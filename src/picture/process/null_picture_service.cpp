#include "picture/process/null_picture_service.h"

#include <utility>

namespace norvex {
namespace {

class NullPictureProcess final : public PictureProcess {
 public:
  explicit NullPictureProcess(Error error) : error_(std::move(error)) {}
  Result<PictureFacts> facts(const CancelToken&) override { return error_; }
  Result<QImage> render(const RenderRequest&, const CancelToken&) override { return error_; }
  Result<PictureBytes> pdf(const PdfRequest&, const CancelToken&) override { return error_; }
  Result<PictureBytes> compose(const ComposeRequest&, const CancelToken&) override { return error_; }
  Result<PictureBytes> svg(const SvgRequest&, const CancelToken&) override { return error_; }
  Result<PictureBytes> examine(const ExamineRequest&, const CancelToken&) override { return error_; }
  Result<PictureBytes> setPdfAttributes(const QByteArray&, const PdfAttributes&,
                                        const CancelToken&) override {
    return error_;
  }
  void retire() override {}
  [[nodiscard]] QStringList drawingRemarks() const override { return {}; }

 private:
  const Error error_;
};

}  // namespace

NullPictureService::NullPictureService(Error error) : error_(std::move(error)) {}

std::shared_ptr<PictureProcess> NullPictureService::open(const QByteArray&, PictureKind,
                                                         const PictureLimits&) {
  return std::make_shared<NullPictureProcess>(error_);
}

Result<PictureBytes> NullPictureService::chosenPdf(const QByteArray&, const ReaderChoices&,
                                                   const PictureLimits&, const CancelToken&) {
  return error_;
}

Result<NSBitmapImageRep> NullPictureService::decodePreview(const QByteArray&, const CancelToken&,
                                                           const PictureLimits&) {
  return error_;
}

Result<QByteArray> NullPictureService::composePages(const QByteArray&, const PagesRequest&,
                                                    const CancelToken&) {
  return error_;
}

}  // namespace norvex
