#include "worker/rehearsal.h"

namespace norvex {
namespace {

constexpr char kSvg[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='8px' height='8' viewBox='0 0 8 8'>"
    "<title>a</title><style>path{stroke-width:1;fill:url(#g)}</style>"
    "<linearGradient id='g'><stop offset='0' stop-color='red'/></linearGradient>"
    "<g style='opacity:.5' transform='scale(2)'><path d='M1 1L2 2' stroke='#00f'/></g>"
    "<rect width='4' height='4' fill='url(#g)'/></svg>";

constexpr char kPdf[] = R"(%PDF-1.4
1 0 obj<</Type/Catalog/Pages 2 0 R>> endobj
2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>> endobj
3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 8 8]/Contents 4 0 R/Resources<</Font<</F 5 0 R>>>>>> endobj
4 0 obj<</Length 51>>stream
0 0 1 rg 1 1 3 3 re f BT /F 4 Tf 1 1 Td (a) Tj ET 
endstream endobj
5 0 obj<</Type/Font/Subtype/Type1/BaseFont/Helvetica>> endobj
6 0 obj<</Title(a)/CreationDate(D:20200131)>> endobj
xref
0 7
0000000000 65535 f 
0000000009 00000 n 
0000000053 00000 n 
0000000103 00000 n 
0000000209 00000 n 
0000000305 00000 n 
0000000367 00000 n 
trailer<</Size 7/Root 1 0 R/Info 6 0 R>>
startxref
420
%%EOF
)";

RenderRequest smallDrawing() {
  RenderRequest request;
  request.pixelSize = QSize(6, 6);
  return request;
}

}  // namespace

void rehearse(const EngineSet& engines) {
  if (!engines.open) return;
  engine::EngineContext context;
  const auto tell = [](engine::DocumentEngine& document) {
    if (const auto facts = document.facts()) (void)decodeReply(encodeReply({1, *facts}));
    (void)document.examine({Examination::Names});
  };
  if (const auto svg = engines.open(PictureKind::Svg, kSvg, context)) {
    tell(**svg);
    (void)(*svg)->render(smallDrawing());
    (void)(*svg)->pdf({0, PdfAttributes()});
  }
  if (const auto page = engines.open(PictureKind::Pdf, kPdf, context)) {
    tell(**page);
    (void)(*page)->render(smallDrawing());
    (void)(*page)->compose({VectorFormat::Eps, 0, QRectF(0, 0, 8, 8), 0});
  }
}

}  // namespace norvex
