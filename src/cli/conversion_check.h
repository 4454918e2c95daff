// The checks of a conversion's bytes.
#pragma once

#include "cli/conversion.h"
#include "encoders/picture_encoder.h"

namespace norvex {

/// Turns a result that could not be opened again into an error, and completes the list of lost values: those
/// of a source in no encoding, and those that a comment line did not take. `handedOn`: the source's own
/// comments are in the result. `source`: the bytes of the encoder's picture. Thread-safe.
void checkConversion(Conversion& conversion, PictureEncoder& encoder, const QByteArray& source,
                     bool handedOn);

}  // namespace norvex
