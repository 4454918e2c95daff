// A picture in any format of the table.
#pragma once

#include <QByteArray>
#include <QStringList>

#include "encoders/picture_encoder.h"
#include "metadata/header_dictionary.h"
#include "types/picture_format.h"

namespace norvex {

/// The bytes of the encoder's picture in `format`; none: the encoder's report says why.
[[nodiscard]] QByteArray encodedPicture(PictureEncoder& encoder, PictureFormat format);

/// The keys of `header` whose text does not reach a file of `format`. `handedOn`: the source becomes the file
/// as it is.
[[nodiscard]] QStringList metadataLost(const HeaderDictionary& header, PictureKind source,
                                       PictureFormat format, bool handedOn);

}  // namespace norvex
