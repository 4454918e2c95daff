#include "worker/pages/illustrator_notice.h"

#include <QRegularExpression>

#include "worker/pages/illustrator_page.h"
#include "worker/pdf/pdf_render.h"

namespace norvex::engine {

Result<bool> isIllustratorNotice(const QByteArray& bytes, const PdfFile& file) {
  if (!mayHoldIllustratorNotice(file)) return false;
  static const QRegularExpression notice(QStringLiteral("saved\\s+without\\s+PDF\\s+Content"),
                                         QRegularExpression::CaseInsensitiveOption);
  const Result<QString> text = PdfRenderer(bytes).text(0);
  return text && text->contains(notice);
}

}  // namespace norvex::engine
