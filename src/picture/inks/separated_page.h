// A page of a picture, asked for its inks.
#pragma once

#include <QRectF>
#include <QStringList>

#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/process/picture_process.h"
#include "protocol/page_inks.h"

namespace norvex {

struct SeparatedPage {
  PageInks inks;
  QStringList warnings;  ///< one plain sentence each
};

struct SeparationRequest {
  int page = 0;  ///< from 0
  double dpi = 144;
  bool overprint = false;           ///< overprinting is simulated
  std::optional<QRectF> part = {};  ///< of the page, in picture coordinates; nothing: all of it
};

/// Blocks. Fails with Unsupported for an SVG picture, which has none, and as PictureProcess::examine().
[[nodiscard]] Result<SeparatedPage> separatedPage(PictureProcess& process, PictureKind kind,
                                                  const SeparationRequest& request,
                                                  const CancelToken& cancel = {});

}  // namespace norvex
