// The types of document that are accepted.
#pragma once

#include <QString>
#include <QStringList>

namespace norvex {

/// The accepted types in the order in which they are tested: EPS, EPSI, Illustrator, PDF, SVG.
[[nodiscard]] const QStringList& acceptedDocumentTypes();
/// True if the type conforms to one of them; subtypes do. Any thread.
[[nodiscard]] bool isAcceptedDocumentType(const QString& typeIdentifier);
/// Extensions, without the dot, under which such files usually come.
[[nodiscard]] const QStringList& documentFilenameExtensions();

}  // namespace norvex
