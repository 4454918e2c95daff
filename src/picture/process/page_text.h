// The text of a picture's page, asked for.
#pragma once

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/process/picture_process.h"
#include "protocol/page_text.h"

namespace norvex {

/// Has the letters of a page, from 0, found by the picture's process. Blocks; any thread.
[[nodiscard]] Result<PageText> pageText(PictureProcess& process, int page, const CancelToken& cancel = {});

}  // namespace norvex
