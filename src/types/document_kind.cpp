#include "types/document_kind.h"

#include "base/latin1_text.h"
#include "types/uniform_type.h"

namespace norvex {

DocumentKind documentKind(const QString& typeIdentifier) {
  const auto type = UTType::typeWithIdentifier(typeIdentifier);
  if (!type) return DocumentKind::Other;
  for (const DocumentKind kind :
       {DocumentKind::Svg, DocumentKind::Eps, DocumentKind::Illustrator, DocumentKind::Pdf})
    for (const FormatRow& row : formatTable)
      if (row.kind == kind && type->conformsToType(latin1(row.type))) return kind;
  return DocumentKind::Other;
}

QStringList extensionsOf(DocumentKind kind) {
  QStringList own, rest;
  for (const FormatRow& row : formatTable)
    if (row.kind == kind)
      forEachWord(row.extensions, [&](std::string_view extension) {
        (extension == firstWord(row.extensions) ? own : rest) << latin1(extension);
      });
  return own + rest;
}

}  // namespace norvex
