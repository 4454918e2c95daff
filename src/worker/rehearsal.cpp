#include "worker/rehearsal.h"

namespace norvex {
namespace {

constexpr char kPicture[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='8px' height='8' viewBox='0 0 8 8'>"
    "<linearGradient id='g'><stop offset='0' stop-color='red'/></linearGradient>"
    "<g style='opacity:.5' transform='scale(2)'><path d='M1 1L2 2' stroke='#00f'/></g>"
    "<rect width='4' height='4' fill='url(#g)'/></svg>";

}  // namespace

void rehearse(const EngineSet& engines) {
  if (!engines.open) return;
  engine::EngineContext context;
  const auto picture = engines.open(PictureKind::Svg, kPicture, context);
  if (!picture) return;
  RenderRequest request;
  request.pixelSize = QSize(6, 6);
  (void)(*picture)->render(request);
  const Result<engine::EngineBytes> pdf = (*picture)->pdf({});
  if (pdf && engines.setPdfAttributes) (void)engines.setPdfAttributes(pdf->bytes, {}, {});
}

}  // namespace norvex
