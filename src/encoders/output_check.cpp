#include "encoders/output_check.h"

#include <algorithm>

#include "metadata/dos_eps_header.h"
#include "picture/eps_image_rep.h"
#include "picture/process/null_picture_service.h"

namespace norvex {
namespace {

Error refusal(const QString& why) {
  return {ErrorKind::Unsupported, QStringLiteral("the result could not be opened again: %1").arg(why)};
}

bool sectionsAreWithin(const QByteArray& bytes) {
  const auto header = dosEpsHeader(bytes);
  const auto within = [&](quint32 offset, quint32 length) { return qint64(offset) + length <= bytes.size(); };
  return !header ||
         (header->postScriptLength > 0 && within(header->postScriptOffset, header->postScriptLength) &&
          within(header->tiffOffset, header->tiffLength));
}

}  // namespace

Result<void> checkOutput(const QByteArray& bytes) {
  if (bytes.startsWith("\xC5\xD0") || bytes.startsWith("%!")) {
    if (!sectionsAreWithin(bytes)) return refusal(QStringLiteral("a section of it is missing"));
    NullPictureService undrawn;
    if (const auto rep = NSEPSImageRep::imageRepWithData(undrawn, bytes); !rep)
      return refusal(rep.error().message);
  }
  constexpr qsizetype trailer = 1024;
  if (bytes.startsWith("%PDF-") && !bytes.last(std::min(trailer, bytes.size())).contains("startxref"))
    return refusal(QStringLiteral("it has no end"));
  return {};
}

}  // namespace norvex
