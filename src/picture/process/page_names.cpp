#include "picture/process/page_names.h"

#include <utility>

#include "picture/process/plain_sentence.h"

namespace norvex {

Result<PageNames> readPageNames(const QByteArray& answer) {
  Result<PageNames> names = decodePageNames(answer);
  if (!names) return names;
  for (QStringList* list : {&names->fonts, &names->colorSpaces})
    for (QString& name : *list) name = plainSentence(name);
  return names;
}

Result<PageNames> pageNames(PictureProcess& process, const CancelToken& cancel) {
  const Result<PictureBytes> answer = process.examine({Examination::Names}, cancel);
  return answer ? readPageNames(answer->bytes) : answer.error();
}

Result<PictureFacts> factsWithNames(PictureProcess& process, PictureKind kind, const CancelToken& cancel) {
  Result<PictureFacts> facts = process.facts(cancel);
  if (!facts || kind != PictureKind::Pdf) return facts;
  Result<PageNames> names = pageNames(process, cancel);
  if (!names) return names.error();
  facts->fonts = std::move(names->fonts);
  facts->colorSpaces = std::move(names->colorSpaces);
  return facts;
}

}  // namespace norvex
