// The header dictionary, the boxes, the source text and its encodings, and what tells a file's type.
#include <optional>

#include "fuzz/targets.h"
#include "metadata/eps_bounding_box.h"
#include "metadata/eps_header.h"
#include "metadata/eps_program.h"
#include "metadata/eps_utf8_comments.h"
#include "metadata/guessed_header.h"
#include "metadata/other_preview.h"
#include "metadata/source_text.h"
#include "metadata/text_encoding.h"
#include "types/type_identification.h"

namespace norvex::fuzz {
namespace {

bool epsHeaders(const QByteArray& bytes) {
  const HeaderDictionary dictionary = epsHeader(bytes, [](const QByteArray& tiff) {
    require(!tiff.isEmpty(), "an empty section is no preview");
    return std::optional<NSBitmapImageRep>();
  });
  require(bytes.isEmpty() == dictionary.isEmpty(), "every source has a header");
  const auto preview = dictionary.value(header::Preview).value<NSBitmapImageRep>();
  require(!dictionary.contains(header::Preview) || preview.isConsistent(), "the preview has all its samples");
  const QString title = dictionary.value(header::Title).toString();
  require(!title.contains('%'), "a title ends where the next comment begins");
  return !title.isEmpty();
}

/// What is read beside the dictionary, and what goes over into another file.
bool epsSource(const QByteArray& bytes) {
  const HeaderDictionary dictionary = epsHeader(bytes);
  const auto guess = guessedHeader(bytes, dictionary);
  require(!guess || (!guess->values.isEmpty() && !dictionary.contains(header::Title)),
          "only what is not known is guessed");
  const auto other = otherPreview(bytes);
  require(!other || !*other || (*other)->isConsistent(), "the preview has all its samples");
  const qint64 number = dictionary.value(header::EncodingNumber).toLongLong();
  const QByteArray program = epsProgram(bytes);
  const QByteArray over = epsWithUtf8Comments(bytes, number);
  const bool doubleBytes = number == encoding::ShiftJis || number == encoding::EucJp;
  require(over == program || (doubleBytes && over.count('\n') == program.count('\n')),
          "a program goes over as it is");
  return guess.has_value() || over != bytes;
}

bool boundingBox(const QByteArray& bytes) {
  const EpsBoundingBoxes boxes = epsBoundingBoxes(bytes);
  for (const auto& box : {boxes.boundingBox, boxes.hiResBoundingBox})
    require(!box || (box->width() > 0 && box->height() > 0), "a box has an area");
  return boxes.boundingBox.has_value();
}

constexpr qint64 kEncodings[] = {1, 3, 4, 7, 8, 10};

bool sourceTexts(const QByteArray& bytes) {
  bool any = false;
  for (const qint64 number : kEncodings)
    for (const PictureKind kind : {PictureKind::Eps, PictureKind::Svg}) {
      const QString text = sourceText(kind, bytes, number);
      require(text.size() <= bytes.size(), "text is not longer than its bytes");
      any = any || !text.isEmpty();
    }
  return any;
}

bool textEncoding(const QByteArray& bytes) {
  bool any = false;
  for (const qint64 number : kEncodings) {
    const auto text = decodeText(bytes, number);
    require(text.has_value() == isDecodable(bytes, number), "what is decodable is decoded");
    const auto again = text ? encodeText(*text, number) : std::nullopt;
    if (again && number != encoding::Utf16)
      require(decodeText(*again, number) == text, "what decodes, encodes again, and decodes to the same");
    any = any || again;
  }
  return any;
}

bool typeIdentification(const QByteArray& bytes) {
  for (const char* name : {"", "a.ai", "a.eps", "a.svgz"})
    require(!identifyType(bytes, name).identifier().isEmpty(), "every file has a type");
  return identifyType(bytes, "").identifier() != identifyType({}, "").identifier();
}

QList<QByteArray> seeds() {
  return filesOf("data/metadata");
}

}  // namespace

QList<Target> metadataTargets() {
  return {{"eps_header", epsHeaders, seeds},      {"eps_source", epsSource, seeds},
          {"bounding_box", boundingBox, seeds},   {"source_text", sourceTexts, seeds},
          {"text_encoding", textEncoding, seeds}, {"type_identification", typeIdentification, seeds}};
}

}  // namespace norvex::fuzz
