#include "types/document_kind.h"

#include "types/uniform_type.h"

namespace norvex {

DocumentKind documentKind(const QString& typeIdentifier) {
  const auto type = UTType::typeWithIdentifier(typeIdentifier);
  if (!type) return DocumentKind::Other;
  if (type->conformsToType(UTTypeSVG())) return DocumentKind::Svg;
  if (type->conformsToType(NorvexEPSType) || type->conformsToType(NorvexEPSIType)) return DocumentKind::Eps;
  if (type->conformsToType(NorvexIllustratorType)) return DocumentKind::Illustrator;
  if (type->conformsToType(UTTypePDF())) return DocumentKind::Pdf;
  return DocumentKind::Other;
}

}  // namespace norvex
