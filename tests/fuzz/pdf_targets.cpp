// PDF documents as far as code of ours walks them; the syntax is qpdf's to read.
#include <algorithm>

#include "fuzz/targets.h"
#include "worker/kit/made_pdf.h"
#include "worker/pdf/annotation_drawings.h"
#include "worker/pdf/pdf_colour_operators.h"
#include "worker/pdf/pdf_file.h"

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

}  // namespace

QList<Target> pdfTargets() {
  return {{"page_tree", pageTree, documents, 100},
          {"annotation_drawings", annotations, annotationSeeds, 20},
          {"colour_operators", colourOperators, contents, 1000}};
}

}  // namespace norvex::fuzz
