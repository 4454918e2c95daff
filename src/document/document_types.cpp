#include "document/document_types.h"

#include <algorithm>
#include <optional>

#include "types/uniform_type.h"

namespace norvex {

const QStringList& acceptedDocumentTypes() {
  static const QStringList types{NorvexEPSType, NorvexEPSIType, NorvexIllustratorType,
                                 UTTypePDF().identifier(), UTTypeSVG().identifier()};
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
  static const QStringList extensions{"eps", "epsi", "epsf", "ai", "pdf", "svg", "svgz"};
  return extensions;
}

}  // namespace norvex
