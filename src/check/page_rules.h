// Rules about what is in a page, whatever kind of file it comes from.
#pragma once

#include "check/finding.h"
#include "check/profile.h"
#include "protocol/page_contents.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Of one page. `kind` decides what can be meant: colours of SVG are always RGB, fonts of an interpreted
/// program are always embedded, its box has rules of its own.
[[nodiscard]] Findings pageFindings(const PageContents& page, PictureKind kind, const ProfileLimits& limits);

/// True if the width of a picture is one of the profile's columns. `points`: its width.
[[nodiscard]] Findings widthFindings(double points, const ProfileLimits& limits);

}  // namespace norvex
