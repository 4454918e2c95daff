// The header dictionary of a picture, whatever its kind.
#pragma once

#include <QLocale>

#include "metadata/full_date.h"
#include "metadata/header_dictionary.h"
#include "picture/image_rep.h"

namespace norvex {

/// Read afresh from the picture's source or facts; no preview is decoded. Empty for no picture. `locale`
/// words the dates of a PDF. Thread-safe.
[[nodiscard]] HeaderDictionary pictureHeader(const NSImageRep* imageRep,
                                             const QLocale& locale = userDateLocale());

}  // namespace norvex
