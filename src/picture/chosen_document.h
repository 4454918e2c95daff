// A document as its reader has chosen to see it: opened by a password, with other layers.
#pragma once

#include "picture/open_picture.h"
#include "picture/process/reader_choices.h"

namespace norvex {

/// The bytes to open in the place of the source's: those of a PDF once the choices are made, of any other
/// document and without a choice its own. The report tells what is lost thereby. Blocks; any thread. Fails
/// with Encrypted for a wrong password.
[[nodiscard]] Result<PictureBytes> documentAsChosen(PictureService& service, const PictureSource& source,
                                                    const ReaderChoices& choices,
                                                    const PictureLimits& limits = {},
                                                    const CancelToken& cancel = {});

}  // namespace norvex
