// A document's facts for people and for programs.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include "cli/document_info.h"

namespace norvex {

/// An object of the array that `info --json` writes. Rectangles are [x, y, width, height], the
/// high-resolution bounding box is [left, bottom, right, top] as in the file; a preview is told
/// by its layout and a hash of its samples; what is not known is left out, warnings alone are always there.
/// `guessedHeader` holds what a source in no encoding seems to say, and its own "Encoding".
[[nodiscard]] QJsonObject infoObject(const DocumentInfo& info);

/// Lines to read: the file's name and one line for each thing that is known.
[[nodiscard]] QString infoText(const DocumentInfo& info);

/// SHA-256 in hexadecimal over the rows' bytes without the padding behind the last pixel of each.
[[nodiscard]] QString sampleHash(const NSBitmapImageRep& rep);

}  // namespace norvex
