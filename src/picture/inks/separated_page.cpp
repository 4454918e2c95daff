#include "picture/inks/separated_page.h"

#include <utility>

namespace norvex {

Result<SeparatedPage> separatedPage(PictureProcess& process, PictureKind kind,
                                    const SeparationRequest& request, const CancelToken& cancel) {
  if (kind == PictureKind::Svg)
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("an SVG picture has no inks: its colours are those of a screen")};
  const Result<PictureBytes> answer = process.examine(
      {Examination::Inks, request.page, request.dpi, request.overprint, request.part}, cancel);
  if (!answer) return answer.error();
  Result<PageInks> inks = decodePageInks(answer->bytes);
  if (!inks) return inks.error();
  return SeparatedPage{std::move(*inks), answer->report.warnings};
}

}  // namespace norvex
