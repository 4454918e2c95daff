// NullPictureService: no picture can be opened. For tests of what is left then, and where no picture is
// needed.
#pragma once

#include "picture/process/picture_process.h"

namespace norvex {

/// Every call of it, and of the processes it gives out, fails with the same error. Thread-safe.
class NullPictureService final : public PictureService {
 public:
  explicit NullPictureService(Error error = {ErrorKind::Died,
                                             QStringLiteral("the picture process is not there")});

  void openOnlyFor(PictureUse) override {}
  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits = {}) override;
  Result<PictureBytes> chosenPdf(const QByteArray& pdf, const ReaderChoices& choices,
                                 const PictureLimits& limits = {}, const CancelToken& cancel = {}) override;
  Result<NSBitmapImageRep> decodePreview(const QByteArray& tiff, const CancelToken& cancel = {},
                                         const PictureLimits& limits = toolLimits()) override;
  Result<QByteArray> composePages(const QByteArray& pdf, const PagesRequest& request,
                                  const CancelToken& cancel = {}) override;

 private:
  const Error error_;
};

}  // namespace norvex
