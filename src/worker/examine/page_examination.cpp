#include "worker/examine/page_examination.h"

#include <algorithm>
#include <exception>

#include "protocol/limits.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/examine/document_claims.h"
#include "worker/examine/font_list.h"
#include "worker/examine/page_interpreter.h"
#include "worker/pdf/pdf_resources.h"

namespace norvex::engine {
namespace {

/// The inks that names of colour spaces name, the process inks apart.
QStringList spotInksOf(const QStringList& spaces) {
  static const QStringList process{"Cyan", "Magenta", "Yellow", "Black", "All", "None"};
  QStringList inks;
  for (const QString& space : spaces) {
    QStringList names;
    if (space.startsWith(u"Separation ")) names << space.mid(11);
    if (space.startsWith(u"DeviceN ")) names = space.mid(8).split(QStringLiteral(", "));
    for (const QString& name : names)
      if (!process.contains(name) && !inks.contains(name) && !name.isEmpty()) inks << name;
  }
  return inks;
}

}  // namespace

ExaminedPage shownPageOf(const PdfFile& file, int page) {
  const PageGeometry geometry = file.geometry(page);
  return {page, geometry.userToPicture(), geometry.shownSize()};
}

PageContents pageContents(PdfFile& file, const ExaminedPage& page, const CancelToken& cancel) {
  PageContents contents;
  contents.size = page.size;
  // Before anything is read: what is left unread then counts as damage.
  readDocument(file, contents);
  const QRectF box(QPointF(0, 0), page.size);
  const double far = limits::maximumPoints / 2;
  PageFindings findings(contents, box);
  PageInterpreter interpreter(file.qpdf(), findings, page.userToPicture, QRectF(-far, -far, 2 * far, 2 * far),
                              cancel);
  try {
    QPDFObjectHandle dictionary = file.page(page.number);
    if (!interpreter.run(dictionary.getKey("/Contents"), dictionary.getKey("/Resources")))
      contents.complete = false;
  } catch (const std::exception&) {
    contents.complete = false;  // what was found before the damage is true all the same
  }
  contents.fonts = usedFonts(file, page.number, findings.fonts());
  contents.colorSpaces = pdfResources(file, page.number).colorSpaces;
  contents.spotInks = spotInksOf(contents.colorSpaces);
  for (const QString& name : missingFonts(file, page.number))
    if (std::any_of(contents.fonts.begin(), contents.fonts.end(),
                    [&](const UsedFont& font) { return font.used && font.name == name; }))
      contents.missingFonts << missingFontSentence(name);
  return contents;
}

Result<PageContents> onlyPageContents(const QByteArray& pdf, const CancelToken& cancel) {
  const auto file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded(
      [&]() -> Result<PageContents> { return pageContents(**file, shownPageOf(**file, 0), cancel); });
}

}  // namespace norvex::engine
