// The type of a file: by its content first, by its name where the content leaves a choice or tells nothing.
#pragma once

#include <QByteArrayView>
#include <QString>

#include "types/uniform_type.h"

namespace norvex {

/// Bytes from the start of a file that identifyType() looks at; more are not needed.
inline constexpr qsizetype identificationBytes = 256 * 1024;

/// The type of a file. Content decides between PostScript, EPS (plain and binary), EPSI (with an interchange
/// preview), PDF (also behind up to 1024 bytes of something else), SVG and gzip. The name's extension decides
/// what content cannot: ".ai" makes PostScript and PDF an Illustrator file, ".epsi" makes EPS an EPSI file,
/// ".eps" makes PostScript EPS, and gzip is compressed SVG under a name (the file's or the one inside) that
/// says so or under no name at all. Content that is nothing of these has the type of its extension, and
/// UTTypeData() without a known one. `fileName` may be a path or empty. Nothing is inflated. Thread-safe.
[[nodiscard]] UTType identifyType(QByteArrayView bytes, const QString& fileName);

}  // namespace norvex
