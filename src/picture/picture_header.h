// The header dictionary of a picture, whatever its kind.
#pragma once

#include <QByteArray>
#include <QLocale>

#include "base/result.h"
#include "metadata/eps_header.h"
#include "metadata/full_date.h"
#include "metadata/header_dictionary.h"
#include "picture/image_rep.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Of the source of an EPS picture, or of the facts of a PDF or SVG; the other of the two is not looked at.
/// `decodeTiff`: of an EPS picture's preview; none: no TIFF preview is looked for. `locale` words the dates
/// of a PDF. Thread-safe as far as `decodeTiff` is.
[[nodiscard]] HeaderDictionary pictureHeader(PictureKind kind, const QByteArray& source,
                                             const Result<PictureFacts>& facts,
                                             const TiffDecoder& decodeTiff = {},
                                             const QLocale& locale = userDateLocale());

/// The same, read afresh from the picture. Empty for no picture.
[[nodiscard]] HeaderDictionary pictureHeader(const NSImageRep* imageRep, const TiffDecoder& decodeTiff = {},
                                             const QLocale& locale = userDateLocale());

}  // namespace norvex
