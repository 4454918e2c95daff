#include "metadata/source_text.h"

#include "metadata/dos_eps_header.h"
#include "metadata/text_encoding.h"

namespace norvex {

QString sourceText(std::optional<PictureKind> kind, QByteArrayView bytes, qint64 encodingNumber) {
  if (!kind || *kind == PictureKind::Pdf) return QString("");
  const qsizetype start = bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  QByteArrayView text = bytes.sliced(start);
  if (*kind == PictureKind::Eps)
    if (const auto header = dosEpsHeader(bytes, start)) text = postScriptSection(bytes, *header, start);
  return decodeText(text, encodingNumber).value_or(QString(""));
}

std::optional<QString> epsTextReadAs(const QString& encodingName, QByteArrayView source) {
  return decodeNamedText(postScriptOf(source), encodingName.toLatin1().constData());
}

}  // namespace norvex
