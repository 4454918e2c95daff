#include "metadata/other_preview.h"

#include "metadata/dos_eps_header.h"
#include "metadata/eps_program.h"
#include "metadata/epsi_preview.h"

namespace norvex {
namespace {

/// Why a section of a binary file is no preview to show; nothing where there is no such section.
std::optional<Error> sectionObstacle(QByteArrayView source) {
  const qsizetype start = source.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  const auto header = dosEpsHeader(source, start);
  if (!header) return std::nullopt;
  if (header->tiffLength > 0 && tiffSection(source, *header, start).isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("the embedded preview lies outside of the file")};
  if (header->tiffLength == 0 && header->metafileLength > 0 && metafileOf(source).isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("the embedded preview lies outside of the file")};
  return std::nullopt;
}

}  // namespace

Result<std::optional<NSBitmapImageRep>> otherPreview(const QByteArray& source) {
  const QByteArray program = epsProgram(source);
  const QByteArrayView keyword("%%BeginPreview:");
  if (const qsizetype at = program.indexOf(keyword); at >= 0) {
    Result<NSBitmapImageRep> preview = epsiPreview(QByteArrayView(program).sliced(at + keyword.size()));
    if (!preview) return preview.error();
    return std::optional(std::move(*preview));
  }
  if (const auto obstacle = sectionObstacle(source)) return *obstacle;
  return std::optional<NSBitmapImageRep>();
}

}  // namespace norvex
