// What kind of document a type identifier stands for.
#pragma once

#include <QString>

namespace norvex {

enum class DocumentKind { Svg, Eps, Illustrator, Pdf, Other };

/// By conformance, in this order, first match: SVG, EPS or EPSI, Illustrator, PDF; anything else is Other.
[[nodiscard]] DocumentKind documentKind(const QString& typeIdentifier);

}  // namespace norvex
