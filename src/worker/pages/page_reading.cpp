#include "worker/pages/page_reading.h"

#include <qpdf/Pipeline.hh>

#include <algorithm>
#include <vector>

#include "base/blanks.h"
#include "protocol/every_page.h"

namespace norvex::engine {
namespace {

/// Sees whether anything but blanks comes out, and keeps nothing.
class Witness final : public Pipeline {
 public:
  Witness() : Pipeline("what can be read", nullptr) {}
  void write(const unsigned char* data, size_t length) override {
    sawText =
        sawText || std::any_of(data, data + length, [](unsigned char c) { return !isWhiteSpace(char(c)); });
  }
  void finish() override {}

  bool sawText = false;
};

/// What was found in the parts of a page's contents so far.
struct Parts {
  bool text = false;    ///< something of them can be read
  bool damage = false;  ///< something of them cannot
};

/// A reference that leads nowhere. One to a null that the file holds is no damage: the part is empty.
bool isMissing(QPDF& qpdf, QPDFObjectHandle part) {
  if (!part.isNull() || !part.isIndirect()) return false;
  return qpdf.anyWarnings() || qpdf.getXRefTable().count(part.getObjGen()) == 0;
}

/// True if the stream says that it has data, and the file ends, or makes no sense, where they should be.
bool hasLostItsData(QPDFObjectHandle stream) {
  QPDFObjectHandle length = stream.getDict().getKey("/Length");
  return length.isInteger() && length.getIntValue() > 0 && stream.getRawStreamData()->getSize() == 0;
}

void look(QPDF& qpdf, QPDFObjectHandle part, Parts& parts) {
  if (!part.isStream()) {
    parts.damage = parts.damage || isMissing(qpdf, part) || !part.isNull();
    return;
  }
  const size_t warnings = qpdf.numWarnings();
  Witness witness;
  bool isDecoded = false;
  const bool good = part.pipeStreamData(&witness, &isDecoded, 0, qpdf_dl_specialized);
  parts.text = parts.text || witness.sawText;
  parts.damage = parts.damage || !good || qpdf.numWarnings() > warnings || hasLostItsData(part);
}

/// True if one of the page's annotations brings its own drawing.
bool hasDrawnAnnotations(QPDFObjectHandle page) {
  QPDFObjectHandle annotations = page.getKey("/Annots");
  if (!annotations.isArray()) return false;
  const auto list = annotations.getArrayAsVector();
  return std::any_of(list.begin(), list.end(), [](QPDFObjectHandle annotation) {
    return annotation.isDictionary() && annotation.getKey("/AP").isDictionary();
  });
}

Parts partsOf(PdfFile& file, QPDFObjectHandle page) {
  Parts parts;
  try {
    QPDFObjectHandle contents = page.getKey("/Contents");
    const auto list = contents.isArray() ? contents.getArrayAsVector() : std::vector{contents};
    for (const QPDFObjectHandle& part : list) look(file.qpdf(), part, parts);
  } catch (const std::exception&) {
    parts.damage = true;
  }
  return parts;
}

}  // namespace

PageReading readingOf(PdfFile& file, int page) {
  QPDFObjectHandle dictionary = file.page(page);
  const Parts parts = partsOf(file, dictionary);
  if (!parts.damage) return PageReading::Whole;
  return parts.text || hasDrawnAnnotations(dictionary) ? PageReading::Damaged : PageReading::Nothing;
}

Error nothingCanBeRead(int page, int pageCount) {
  if (pageCount > 1 && page != everyPage)
    return {ErrorKind::NotParsable,
            QStringLiteral("the file is damaged; nothing of page %1 can be read").arg(page + 1)};
  const QString which = pageCount == 1 ? QStringLiteral("its page") : QStringLiteral("its pages");
  return {ErrorKind::NotParsable,
          QStringLiteral("the file is damaged; nothing of %1 can be read").arg(which)};
}

bool isUnpainted(const Bitmap& bitmap) {
  for (int y = 0; y < bitmap.height(); ++y)
    if (std::any_of(bitmap.row(y), bitmap.row(y) + bitmap.width(), [](Argb32 pixel) { return pixel != 0; }))
      return false;
  return true;
}

}  // namespace norvex::engine
