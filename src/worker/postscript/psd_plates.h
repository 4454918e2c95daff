// Plates out of what Ghostscript's separating device writes: an Adobe Photoshop file of CMYK and spot
// channels.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/result.h"
#include "protocol/page_inks.h"

namespace norvex::engine {

/// An ink's name as a document holds it. A PDF's names are UTF-8 mostly, older programs' are not.
[[nodiscard]] QString inkName(const QByteArray& bytes);

/// The page of `psd`, whose file format is Adobe's published one: version 1, 8 bits, CMYK, channels that are
/// not compressed; names of the spot channels from the resource 1006, their stand-ins from 1007. What follows
/// the channels is another page and passed over. dpi and overprint stay as they are by default. Fails with
/// NotParsable for anything else, with Limit beyond the limits of PageInks.
[[nodiscard]] Result<PageInks> platesOfPsd(const QByteArray& psd);

}  // namespace norvex::engine
