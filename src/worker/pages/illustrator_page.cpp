#include "worker/pages/illustrator_page.h"

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

bool isShortPage(const PdfFile& file) {
  if (file.pageCount() != 1) return false;
  QPDFObjectHandle page = file.page(0);
  QPDFObjectHandle pieces = page.getKey("/PieceInfo");
  if (!pieces.isDictionary() || !pieces.hasKey("/Illustrator")) return false;
  long long stored = 0;
  for (QPDFObjectHandle& contents : page.getPageContents()) {
    QPDFObjectHandle length = contents.getDict().getKey("/Length");
    stored += length.isInteger() ? length.getIntValue() : limits::maximumNoticeBytes + 1;
  }
  return stored <= limits::maximumNoticeBytes;
}

}  // namespace

bool mayHoldIllustratorNotice(const PdfFile& file) {
  const Result<bool> possible = guarded([&]() -> Result<bool> { return isShortPage(file); });
  return possible && *possible;
}

QString illustratorNoticeSentence() {
  return QStringLiteral(
      "this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork");
}

}  // namespace norvex::engine
