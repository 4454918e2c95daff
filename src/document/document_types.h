// The types of document that are accepted.
#pragma once

#include <QString>
#include <QStringList>

namespace norvex {

// Identifiers that the application itself declares; the others are the platform's.
inline constexpr char epsTypeIdentifier[] = "com.adobe.encapsulated-postscript";
inline constexpr char epsiTypeIdentifier[] = "com.Tembrolix.epsi";
inline constexpr char illustratorTypeIdentifier[] = "com.adobe.illustrator.ai-image";
inline constexpr char pdfTypeIdentifier[] = "com.adobe.pdf";
inline constexpr char svgTypeIdentifier[] = "public.svg-image";

/// The accepted types in the order in which they are tested: EPS, EPSI, Illustrator, PDF, SVG.
[[nodiscard]] const QStringList& acceptedDocumentTypes();
/// Whether the type conforms to one of them; subtypes do. Any thread.
[[nodiscard]] bool isAcceptedDocumentType(const QString& typeIdentifier);

}  // namespace norvex
