#include "worker/pages/illustrator_notice.h"

#include <QRegularExpression>

#include "protocol/limits.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"

namespace norvex::engine {
namespace {

bool mayHoldNotice(const PdfFile& file) {
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

bool isIllustratorNotice(const QByteArray& bytes, const PdfFile& file) {
  const Result<bool> possible = guarded([&]() -> Result<bool> { return mayHoldNotice(file); });
  if (!possible || !*possible) return false;
  static const QRegularExpression notice(QStringLiteral("saved\\s+without\\s+PDF\\s+Content"),
                                         QRegularExpression::CaseInsensitiveOption);
  const Result<QString> text = PdfRenderer(bytes).text(0);
  return text && text->contains(notice);
}

QString illustratorNoticeSentence() {
  return QStringLiteral(
      "this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork");
}

}  // namespace norvex::engine
