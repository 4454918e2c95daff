// A picture checked against every rule.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "check/finding.h"
#include "check/profile.h"
#include "picture/process/picture_process.h"
#include "protocol/page_contents.h"

namespace norvex {

struct CheckedPicture {
  Findings findings;           ///< judged by the profile
  std::optional<Error> error;  ///< why not everything could be checked; what could stands beside it
};

/// The request of a check.
struct CheckRequest {
  QByteArray bytes;  ///< of the file, as it stands on disk
  QString fileName;  ///< tells the type where the bytes do not; may be empty
  Profile profile;
  PictureLimits limits;
  QString password = {};  ///< of a protected PDF; empty: none is known
};

/// Blocks; may be called by several threads.
[[nodiscard]] CheckedPicture checkPicture(PictureService& service, const CheckRequest& request,
                                          const CancelToken& cancel = {});

/// How well the edges of ink are to be known: as a first look shows them, which is never too small by more
/// than what no pixel shows, or within a tenth of a point.
enum class InkEdges { Coarse, Sharp };

/// The area that the program of an EPS file inks, in PostScript's default user space. `box`: the one that the
/// file states, from where the answer is counted. Fails as PictureProcess::examine().
[[nodiscard]] Result<DrawnInk> inkOfEps(PictureProcess& process, const QRectF& box, InkEdges edges,
                                        const CancelToken& cancel);

/// A program that fills whatever page it is given says nothing about its box.
[[nodiscard]] bool isEndless(const DrawnInk& drawn);

}  // namespace norvex
