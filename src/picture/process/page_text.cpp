#include "picture/process/page_text.h"

namespace norvex {

Result<PageText> pageText(PictureProcess& process, int page, const CancelToken& cancel) {
  ExamineRequest request;
  request.what = Examination::Text;
  request.page = page;
  const Result<PictureBytes> answer = process.examine(request, cancel);
  if (!answer) return answer.error();
  return decodePageText(answer->bytes);
}

}  // namespace norvex
