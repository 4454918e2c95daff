// Whole documents through the engines, as a document's process does it: facts, pixels, vectors, and what is
// looked at in them. What other libraries do with the bytes is theirs; that they end, and that what they give
// is handed on as what it is, is ours.
#include <QTemporaryDir>
#include <QtEndian>

#include <cmath>
#include <utility>

#include "fuzz/targets.h"
#include "metadata/binary_eps.h"
#include "protocol/page_contents.h"
#include "protocol/page_names.h"
#include "protocol/page_text.h"
#include "worker/every_engine/decode_preview.h"
#include "worker/every_engine/open_document.h"
#include "worker/interpreter_program.h"
#include "worker/kit/illustrator_artwork.h"
#include "worker/kit/made_pdf.h"

namespace norvex::fuzz {
namespace {

using namespace norvex::engine;

constexpr int kSide = 24;
constexpr int kSeconds = 3;  ///< a program that loops is no find, and others wait for their turn

/// A program that is ready to be forked for every document, as the application has it: gs, started for each,
/// takes as long to begin as ten small drawings. NORVEX_FUZZ_INTERPRETER names one of a build without
/// sanitizers, in which its limit of memory holds; otherwise it is the one beside this program, and gs is
/// started where there is none.
int interpretersFor(const QString& scratchFolder) {
  static InterpreterProgram interpreters(scratchFolder.toStdString(), {},
                                         qEnvironmentVariable("NORVEX_FUZZ_INTERPRETER").toStdString());
  interpreters.start();
  return interpreters.asking();
}

EngineContext surroundings(bool isPostScript = false) {
  static const QTemporaryDir scratch;
  EngineContext context;
  context.limits = {kSeconds, 256, 0.5};
  context.scratchFolder = scratch.path();
  if (isPostScript) context.interpreters = interpretersFor(scratch.path());
  return context;
}

/// False: it takes longer than it may, and would each time.
bool isDrawnInTime(DocumentEngine& engine, const QSizeF& size) {
  RenderRequest request;
  request.pixelSize = QSize(kSide, kSide);
  request.pictureToDevice = AffineTransform(kSide / size.width(), 0, 0, -kSide / size.height(), 0, kSide);
  const Result<Bitmap> bitmap = engine.render(request);
  require(!bitmap || bitmap->size() == request.pixelSize, "a bitmap is as large as was asked");
  return bitmap || bitmap.error().kind != ErrorKind::TimedOut;
}

void composed(DocumentEngine& engine, const QSizeF& size) {
  ComposeRequest request;
  request.rect = QRectF(-size.width() / 4, -size.height() / 4, size.width() / 2, size.height() / 2);
  request.rotate = 0.5;
  request.keepText = true;
  const std::pair<VectorFormat, const char*> formats[] = {
      {VectorFormat::Pdf, "%PDF-"}, {VectorFormat::Eps, "%!PS"}, {VectorFormat::Svg, "<"}};
  for (const auto& [format, begin] : formats) {
    request.format = format;
    const Result<EngineBytes> bytes = engine.compose(request);
    require(!bytes || bytes->bytes.startsWith(begin), "a part begins as its format does");
    require(!bytes || decodeReply(encodeReply({1, bytes->report})).ok(), "a report can be told");
  }
}

void examined(DocumentEngine& engine) {
  const auto bytesOf = [&](Examination what) {
    ExamineRequest request;
    request.what = what;
    const Result<EngineBytes> bytes = engine.examine(request);
    return bytes ? bytes->bytes : QByteArray();
  };
  const QByteArray contents = bytesOf(Examination::Contents), text = bytesOf(Examination::Text);
  const QByteArray names = bytesOf(Examination::Names);
  require(contents.isEmpty() || decodePageContents(contents).ok(), "contents can be told");
  require(text.isEmpty() || decodePageText(text).ok(), "text can be told");
  require(names.isEmpty() || decodePageNames(names).ok(), "names can be told");
}

/// Everything that a window asks of a document, in the smallest size.
bool askEverything(PictureKind kind, const QByteArray& bytes) {
  EngineContext context = surroundings(kind == PictureKind::Eps);
  const auto engine = openDocument(kind, bytes, context);
  if (!engine) return false;
  const Result<PictureFacts> facts = (*engine)->facts();
  if (!facts) return false;
  const QRectF box = facts->pageBounds.value(0);
  // What cannot be told is answered as a limit (document_server.cpp).
  if (!decodeReply(encodeReply({1, *facts})) || box.isEmpty()) return false;
  require(std::isfinite(box.width()) && std::isfinite(box.height()), "a page has a size");
  if (!isDrawnInTime(**engine, box.size())) return false;
  const Result<EngineBytes> whole = (*engine)->pdf(PdfRequest());
  require(!whole || whole->bytes.startsWith("%PDF-"), "a PDF begins as one");
  // What a program does not draw is not in it either: it would be run once more to say so.
  if (!whole && kind == PictureKind::Eps) return false;
  composed(**engine, box.size());
  examined(**engine);
  if (kind == PictureKind::Svg) (void)(*engine)->svg(SvgRequest());
  return whole.ok();
}

bool epsDocument(const QByteArray& bytes) {
  return askEverything(PictureKind::Eps, bytes);
}
bool pdfDocument(const QByteArray& bytes) {
  return askEverything(PictureKind::Pdf, bytes);
}
bool svgDocument(const QByteArray& bytes) {
  return askEverything(PictureKind::Svg, bytes);
}
/// Illustrator's files are PDF or PostScript inside.
bool artwork(const QByteArray& bytes) {
  return askEverything(bytes.startsWith("%PDF-") ? PictureKind::Pdf : PictureKind::Eps, bytes);
}
/// The picture and the preview that it brings.
bool previewedDocument(const QByteArray& bytes) {
  if (bytes.size() >= 30) {
    const auto number = [&](qsizetype at) {
      return qsizetype(qFromLittleEndian<quint32>(bytes.constData() + at));
    };
    const auto preview = decodePreview(bytes.mid(number(20), number(24)), surroundings().limits);
    require(!preview || preview->isConsistent(), "the samples are as many as the image says");
  }
  return epsDocument(bytes);
}

QByteArray picture(const QByteArray& program) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 40 30\n%%Title: (a)\n%%EndComments\n" + program +
         "\nshowpage\n%%EOF\n";
}

QList<QByteArray> epsSeeds() {
  return filesOf("fuzz/seeds/eps") +
         QList<QByteArray>{
             picture("1 0 0 setrgbcolor 5 5 20 20 rectfill /Helvetica findfont 9 scalefont setfont\n"
                     "0.1 0.2 0.3 0.4 setcmykcolor 2 20 moveto (Hill) show"),
             picture("gsave 20 20 scale 4 4 8 [4 0 0 -4 0 4] currentfile /ASCIIHexDecode filter image\n"
                     "004080ff4080ff0080ff0040ff004080>\ngrestore [2 1] 0 setdash 0 0 moveto 9 9 30 9 39 29 "
                     "curveto stroke"),
             picture(
                 "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 40 0] /Function << /FunctionType 2 "
                 "/Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> shfill")};
}

QList<QByteArray> pdfSeeds() {
  const QByteArray resources =
      "/MediaBox [0 0 40 30] /Resources << /Font << /F 5 0 R >> /XObject << /I 6 0 R >> /ExtGState << /G << "
      "/ca 0.5 /BM /Multiply >> >> /Shading << /S << /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 40 "
      "0] "
      "/Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >> >>";
  const QList<QByteArray> more{
      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
      kit::stream("\x10\x80\xf0\x55",
                  "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 "
                  "/ColorSpace /DeviceGray")};
  return filesOf("fuzz/seeds/pdf") +
         QList<QByteArray>{
             kit::onePage(
                 "/G gs 1 0 0 rg 5 5 20 20 re f BT /F 9 Tf 2 20 Td (Hill) Tj ET q 9 0 0 9 1 1 cm /I Do Q",
                 resources, more),
             kit::onePage(
                 "q 5 5 20 20 re W n /S sh Q 0.1 0.2 0.3 0.4 K 0 0 m 9 9 30 9 39 29 c S",
                 resources + " /Rotate 90 /Annots [<< /Subtype /Square /C [1 0 0] /Rect [2 2 9 9] >>]",
                 more)};
}

QList<QByteArray> svgSeeds() {
  const QByteArray head =
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='40' "
      "height='30' viewBox='0 0 80 60'>";
  return filesOf("fuzz/seeds/svg") +
         QList<QByteArray>{
             head +
                 "<style>.r{fill:red;stroke:#00f}</style><defs><linearGradient id='g'><stop offset='0' "
                 "stop-color='red'/><stop offset='1'/></linearGradient><clipPath id='c'><circle r='30'/>"
                 "</clipPath></defs><g clip-path='url(#c)' transform='rotate(10)'><path class='r' d='M1 "
                 "1h9v9zC1 2 3 4 5 6A5 5 0 0 1 9 9'/></g><rect width='9' height='9' fill='url(#g)'/><text "
                 "x='5' y='20' font-size='9'>Hill<tspan dx='2'>s</tspan></text></svg>",
             head +
                 "<filter id='f'><feGaussianBlur stdDeviation='2'/></filter><mask id='m'><rect width='9' "
                 "height='9' fill='#888'/></mask><symbol id='s'><circle r='5'/></symbol><use xlink:href='#s' "
                 "filter='url(#f)'/><g mask='url(#m)' opacity='.5'><image width='9' height='9' "
                 "href='data:image/svg+xml,%3Csvg xmlns=\"http://www.w3.org/2000/svg\"/%3E'/></g></svg>"};
}

QList<QByteArray> artworkSeeds() {
  return filesOf("fuzz/seeds/artwork") +
         QList<QByteArray>{
             kit::artwork("0 0 0 1 k 10 10 m 60 10 L 60 50 L f"),
             kit::onePage(
                 "0 0 0 1 k 5 5 20 20 re f",
                 "/MediaBox [0 0 40 30] /PieceInfo << /Illustrator << /LastModified (D:2020) /Private << "
                 "/NumBlock 1 /AIMetaData 5 0 R >> >> >>",
                 {kit::stream("%!PS-Adobe-3.0\n%%Creator: Adobe Illustrator(R) 10.0\n")})};
}

QList<QByteArray> previewedSeeds() {
  const QByteArray tiff = QByteArray::fromHex(
                              "49492a0008000000"
                              "0800"
                              "000103000100000004000000"
                              "010103000100000003000000"
                              "020103000100000008000000"
                              "030103000100000001000000"
                              "060103000100000001000000"
                              "11010400010000006e000000"
                              "160103000100000003000000"
                              "17010400010000000c000000"
                              "00000000") +
                          QByteArray(12, 'Z');
  return {testdata::binaryEps(epsSeeds().last(), tiff)};
}

}  // namespace

QList<Target> documentTargets() {
  return {{"eps_document", epsDocument, epsSeeds, 2},
          {"pdf_document", pdfDocument, pdfSeeds, 4},
          {"svg_document", svgDocument, svgSeeds, 3},
          {"artwork", artwork, artworkSeeds, 2},
          {"previewed_document", previewedDocument, previewedSeeds, 3}};
}

}  // namespace norvex::fuzz
