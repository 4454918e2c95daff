// The names of what a picture is made of, whoever tells them.
#pragma once

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/process/picture_process.h"
#include "protocol/page_names.h"

namespace norvex {

/// An answer to Examination::Names, which is checked: names that can stand in a line.
[[nodiscard]] Result<PageNames> readPageNames(const QByteArray& answer);

/// Has the fonts and colour spaces of a PDF's first page found by its process. Reads the page's contents:
/// tens of milliseconds for a large one. Blocks; any thread.
[[nodiscard]] Result<PageNames> pageNames(PictureProcess& process, const CancelToken& cancel = {});

/// The document's facts with these names where its kind does not tell them at once. Fails as either does.
[[nodiscard]] Result<PictureFacts> factsWithNames(PictureProcess& process, PictureKind kind,
                                                  const CancelToken& cancel = {});

}  // namespace norvex
