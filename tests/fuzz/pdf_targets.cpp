// PDF documents as far as code of ours walks them; the syntax is qpdf's to read.
#include <algorithm>

#include "fuzz/targets.h"
#include "worker/kit/made_pdf.h"
#include "worker/pdf/annotation_drawings.h"
#include "worker/pdf/pdf_colour_operators.h"
#include "worker/pdf/pdf_file.h"
#include "worker/svg_output/svg_from_pdf.h"
#include "worker/svg_output/svg_jpeg.h"

namespace norvex::fuzz {
namespace {

using namespace norvex::engine;

bool isOpened(const Result<std::unique_ptr<PdfFile>>& file) {
  require(!file || (*file)->pageCount() > 0, "an opened document has a page");
  return file.ok();
}

bool pageTree(const QByteArray& bytes) {
  const auto file = PdfFile::open(bytes);
  if (!isOpened(file)) return false;
  const auto walked = guarded([&]() -> Result<void> {
    for (int page = 0; page < std::min(5, (*file)->pageCount()); ++page) {
      const PageGeometry geometry = (*file)->geometry(page);
      require(geometry.box.width() > 0 && geometry.box.height() > 0, "a page has an area");
      require(geometry.rotation >= 0 && geometry.rotation < 360 && geometry.rotation % 90 == 0,
              "a page stands on one of its sides");
      require(geometry.userUnit > 0, "a unit is a length");
    }
    return {};
  });
  return walked.ok();
}

/// The bytes are what stands between the brackets of the page's /Annots, and behind a zero byte the
/// catalogue's interactive form.
bool annotations(const QByteArray& bytes) {
  const qsizetype end = bytes.indexOf('\0');
  const QByteArray drawings = end < 0 ? bytes : bytes.left(end);
  const QByteArray form = end < 0 ? QByteArray("null") : bytes.mid(end + 1);
  const QByteArray pdf =
      kit::madePdf({"<< /Type /Catalog /Pages 2 0 R /AcroForm " + form + " >>",
                    "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                    "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 40 30] /Annots [" + drawings + "] >>"});
  const auto file = PdfFile::open(pdf);
  if (!isOpened(file)) return false;
  const auto completed = guarded([&]() -> Result<void> {
    QPDF& qpdf = (*file)->qpdf();
    return completeAnnotations(qpdf, (*file)->page(0), (*file)->geometry(0),
                               qpdf.getRoot().getKey("/AcroForm"));
  });
  return completed.ok();
}

/// The bytes are a page's contents; what they may name is there.
bool svgDrawing(const QByteArray& bytes) {
  const QByteArray resources =
      "/Resources << /Font << /F 5 0 R >> /XObject << /I 6 0 R >> /Pattern << /P 7 0 R >> /Shading << /S << "
      "/ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 40 0] /Function << /FunctionType 2 /Domain [0 1] "
      "/C0 [1 0 0] "
      "/C1 [0 0 1] /N 1 >> >> >> /ExtGState << /H << /ca .5 /BM /Multiply >> >> >>";
  const QByteArray pdf = kit::onePage(
      bytes, "/MediaBox [0 0 40 30] " + resources,
      {"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
       kit::stream(
           "abcdef",
           "/Type /XObject /Subtype /Image /Width 2 /Height 1 /BitsPerComponent 8 /ColorSpace /DeviceRGB"),
       kit::stream("0 0 4 4 re f",
                   "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 5 5] /XStep 6 /YStep 7 "
                   "/Resources << >>")});
  EngineContext context;
  const auto made = svgFromPdf(pdf, {}, context);
  if (!made) return false;
  const QByteArray& svg = made->bytes;
  require(svg.endsWith("</svg>\n"), "an SVG has its end");
  for (qsizetype at = svg.indexOf("href=\""); at >= 0; at = svg.indexOf("href=\"", at + 1))
    require(svg.mid(at + 6, 1) == "#" || svg.mid(at + 6, 11) == "data:image/",
            "nothing outside is referred to");
  return svg.contains("<path") || svg.contains("<use");
}

/// Taken for a JPEG of 3 by 2 pixels.
bool bareJpegs(const QByteArray& bytes) {
  const QByteArray bare = bareJpeg(bytes, 3, 2, 3);
  require(bare.size() <= bytes.size(), "nothing is added");
  require(bare.isEmpty() || bareJpeg(bare, 3, 2, 3) == bare, "what is bare stays as it is");
  return !bare.isEmpty();
}

bool colourOperators(const QByteArray& bytes) {
  const QStringList colours = deviceColoursOf(bytes);
  require(colours.size() <= 3, "there are three device colour spaces");
  return !colours.isEmpty();
}

QList<QByteArray> documents() {
  const auto tree = [](const QByteArray& kids, const QByteArray& page) {
    return kit::madePdf({"<< /Type /Catalog /Pages 2 0 R >>",
                         "<< /Type /Pages /Kids [" + kids + "] /Count 3 /MediaBox [0 0 9 9] /Rotate 90 >>",
                         "<< /Type /Page /Parent 2 0 R " + page + " >>",
                         "<< /Type /Pages /Parent 2 0 R /Kids [3 0 R 2 0 R 4 0 R 3 0 R] >>"});
  };
  return {tree("3 0 R", {}), tree("3 0 R 4 0 R", "/CropBox [1 1 5 5] /UserUnit 2"),
          tree("<< /Type /Page >> 4 0 R null 7", "/MediaBox [9 9 0 0] /Rotate -450"),
          kit::onePage("0 0 9 9 re f")};
}

QList<QByteArray> annotationSeeds() {
  const QByteArray place = " /Rect [5 5 30 20] ";
  QList<QByteArray> seeds;
  for (const char* rest :
       {"/Subtype /Highlight /C [1 1 0] /QuadPoints [5 20 30 20 5 5 30 5]",
        "/Subtype /Line /L [5 5 30 20] /LE [/OpenArrow /Circle] /C [1 0 0] /BS << /W 2 /S /D /D [3 1] >>",
        "/Subtype /Ink /InkList [[5 5 10 20 30 5]] /C [0 0 1 0]", "/Subtype /Square /IC [0 1 0] /CA .5",
        "/Subtype /Polygon /Vertices [5 5 30 5 20 20]", "/Subtype /Text /Name /Comment /Contents (x)",
        "/Subtype /FreeText /DA (/Helv 8 Tf 0 g) /Contents (words)", "/Subtype /Link /A << /S /URI >>",
        "/Subtype /Widget /FT /Tx /V (value) /DA (/Helv 8 Tf 0 g)",
        "/Subtype /Stamp /F 2 /AP << /N 3 0 R >>"})
    seeds << "<< /Type /Annot" + place + rest + " >>";
  seeds << seeds[0] + seeds[1] + seeds[8] + '\0' + "<< /NeedAppearances true /Fields [] /DA (/Helv 9 Tf) >>";
  return seeds;
}

QList<QByteArray> contents() {
  return {"1 0 0 rg 0 0 9 9 re f 0.5 G /Cs1 cs 0 1 0 0 k",
          "BT (a (b) \\) rg) Tj ET <3c3e> Tj % k\n/DeviceRGB CS << /K (x) >> BDC",
          "/DeviceA cs /DeviceB CS /DeviceC cs /DeviceD cs",
          "BI /W 2 /H 1 /CS /CMYK /BPC 8 ID 12345678 EI 1 g"};
}

QList<QByteArray> drawings() {
  return {"1 0 0 rg 5 5 20 20 re B 3 w [2 1] 0 d 0 0 m 10 9 20 3 30 20 c S 0 0 20 20 re W* n /S sh",
          "/H gs BT /F 20 Tf 2 Tr 3 3 Td (ab) Tj 7 Tr (c) Tj ET /Pattern cs /P scn 0 0 40 30 re f q 9 3 -3 9 "
          "5 5 cm /I Do Q",
          "q 20 0 0 20 0 0 cm BI /W 2 /H 2 /IM true ID ab EI Q /Pattern CS /P SCN 4 w 0 0 m 30 20 l s"};
}

QList<QByteArray> jpegs() {
  const auto bytes = [](const char* hexadecimal) { return QByteArray::fromHex(hexadecimal); };
  return {bytes("ffd8ffe000044a46ffe100044578ffc000080800020003 03ffda000411220102ffd9"),
          bytes("ffd8ffc2000808000200030 3fffffffe00034affda000411220102")};
}

}  // namespace

QList<Target> pdfTargets() {
  return {{"page_tree", pageTree, documents, 100},
          {"annotation_drawings", annotations, annotationSeeds, 20},
          {"svg_drawing", svgDrawing, drawings, 50},
          {"bare_jpeg", bareJpegs, jpegs, 1000},
          {"colour_operators", colourOperators, contents, 1000}};
}

}  // namespace norvex::fuzz
