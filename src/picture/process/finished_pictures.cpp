#include "picture/process/finished_pictures.h"

namespace norvex {

/// The facts are known once there is a result: nobody waits for them.
template <typename T>
Result<T> FinishedPictures::unlessStopped(Result<T> result) {
  if (!result) return result;
  const Result<PictureFacts> known = facts();
  if (!known || known->stoppedBy.isEmpty()) return result;
  return Error{ErrorKind::NotParsable, known->stoppedBy};
}

Result<QImage> FinishedPictures::render(const RenderRequest& request, const CancelToken& cancel) {
  return unlessStopped(ForwardingProcess::render(request, cancel));
}

Result<PictureBytes> FinishedPictures::pdf(const PdfRequest& request, const CancelToken& cancel) {
  return unlessStopped(ForwardingProcess::pdf(request, cancel));
}

Result<PictureBytes> FinishedPictures::compose(const ComposeRequest& request, const CancelToken& cancel) {
  return unlessStopped(ForwardingProcess::compose(request, cancel));
}

Result<PictureBytes> FinishedPictures::examine(const ExamineRequest& request, const CancelToken& cancel) {
  return unlessStopped(ForwardingProcess::examine(request, cancel));
}

}  // namespace norvex
