// FinishedPictures: a picture process for those who take a whole picture or none.
#pragma once

#include "picture/process/forwarding_process.h"

namespace norvex {

/// What a PostScript program had drawn when it stopped is no picture here: a call that would give it fails
/// with NotParsable and PictureFacts::stoppedBy as its sentence.
class FinishedPictures final : public ForwardingProcess {
 public:
  explicit FinishedPictures(std::shared_ptr<PictureProcess> process)
      : ForwardingProcess(std::move(process)) {}

  Result<QImage> render(const RenderRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> pdf(const PdfRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> compose(const ComposeRequest& request, const CancelToken& cancel = {}) override;
  Result<PictureBytes> examine(const ExamineRequest& request, const CancelToken& cancel = {}) override;

 private:
  template <typename T>
  Result<T> unlessStopped(Result<T> result);
};

}  // namespace norvex
