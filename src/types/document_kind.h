// The kind of document that a type identifier stands for.
#pragma once

#include <QString>
#include <QStringList>

#include "types/picture_format.h"

namespace norvex {

/// By conformance to the types of the table's rows, in the order of DocumentKind, first match; anything else
/// is Other.
[[nodiscard]] DocumentKind documentKind(const QString& typeIdentifier);

/// Extensions, without the dot, under which files of that kind usually come: each format's own, then the
/// rest.
[[nodiscard]] QStringList extensionsOf(DocumentKind kind);

}  // namespace norvex
