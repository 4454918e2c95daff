#include "document/document_types.h"

#include <algorithm>
#include <optional>

#include "types/document_kind.h"
#include "types/uniform_type.h"

namespace norvex {

const QStringList& acceptedDocumentTypes() {
  static const QStringList types = [] {
    QStringList accepted;
    for (const FormatRow& row : formatTable) {
      const UTType type = typeOf(row.id);
      // A kind of an accepted type, as compressed SVG is of SVG, needs no line of its own.
      const bool isThere = std::any_of(accepted.begin(), accepted.end(),
                                       [&](const QString& known) { return type.conformsToType(known); });
      if (row.kind != DocumentKind::Other && !isThere) accepted << type.identifier();
    }
    return accepted;
  }();
  return types;
}

bool isAcceptedDocumentType(const QString& typeIdentifier) {
  const std::optional<UTType> type = UTType::typeWithIdentifier(typeIdentifier);
  if (!type) return false;
  const QStringList& accepted = acceptedDocumentTypes();
  return std::any_of(accepted.begin(), accepted.end(),
                     [&](const QString& known) { return type->conformsToType(known); });
}

const QStringList& documentFilenameExtensions() {
  static const QStringList extensions = extensionsOf(DocumentKind::Eps) +
                                        extensionsOf(DocumentKind::Illustrator) +
                                        extensionsOf(DocumentKind::Pdf) + extensionsOf(DocumentKind::Svg);
  return extensions;
}

}  // namespace norvex
