// The header dictionary of a PostScript source.
#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

#include "metadata/header_dictionary.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// Turns a TIFF file into a bitmap; nothing when it cannot be read. Passed in, because no library that parses
/// document bytes may run here. Called at most once an extraction, on the caller's thread.
using TiffDecoder = std::function<std::optional<NSBitmapImageRep>(const QByteArray& tiff)>;

/// Header dictionary of an EPS, EPSI or PostScript-based Illustrator source. "Encoding" and "EncodingNumber"
/// are always there when there are bytes; Title, Creator, CreationDate, For, Copyright and Description are
/// all there (perhaps empty) when the text could be decoded and all absent when not. "Preview" is the TIFF
/// section through `decodeTiff` (none passed: no TIFF preview is looked for) or the interchange preview of a
/// plain source, decoded or not. Never fails: no bytes give the empty dictionary. Thread-safe as far as
/// `decodeTiff` is.
[[nodiscard]] HeaderDictionary epsHeader(const QByteArray& source, const TiffDecoder& decodeTiff = {});

/// `found`, the header dictionary of `source`, with the name of the encoding and the six texts as they read
/// in an encoding of encodingNames(), whatever the source declares. The number stays: there is none for most
/// names. Nothing when the source is not valid in it. Thread-safe.
[[nodiscard]] std::optional<HeaderDictionary> epsHeaderReadAs(const QString& encodingName,
                                                              const QByteArray& source,
                                                              const HeaderDictionary& found);

}  // namespace norvex
