// What the fuzzer feeds, one function a parser; the ordinary tests replay files through the same functions.
#pragma once

#include <QByteArray>

#include <array>
#include <cstdlib>

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

/// A broken promise ends the program, as a memory error does.
inline void require(bool kept) {
  if (!kept) std::abort();
}

inline void epsHeaderTarget(const QByteArray& bytes) {
  const HeaderDictionary dictionary = epsHeader(bytes, [](const QByteArray& tiff) {
    require(!tiff.isEmpty());
    return std::optional<NSBitmapImageRep>();
  });
  require(bytes.isEmpty() == dictionary.isEmpty());
  const auto preview = dictionary.value(header::Preview).value<NSBitmapImageRep>();
  require(!dictionary.contains(header::Preview) || preview.isConsistent());
  require(!dictionary.value(header::Title).toString().contains('%'));
}

/// What is read beside the dictionary, and what goes over into another file.
inline void epsSourceTarget(const QByteArray& bytes) {
  const HeaderDictionary dictionary = epsHeader(bytes);
  const auto guess = guessedHeader(bytes, dictionary);
  require(!guess || (!guess->values.isEmpty() && !dictionary.contains(header::Title)));
  const auto other = otherPreview(bytes);
  require(!other || !*other || (*other)->isConsistent());
  const qint64 number = dictionary.value(header::EncodingNumber).toLongLong();
  const QByteArray program = epsProgram(bytes);
  const QByteArray over = epsWithUtf8Comments(bytes, number);
  const bool doubleBytes = number == encoding::ShiftJis || number == encoding::EucJp;
  require(over == program || (doubleBytes && over.count('\n') == program.count('\n')));
}

inline void boundingBoxTarget(const QByteArray& bytes) {
  const EpsBoundingBoxes boxes = epsBoundingBoxes(bytes);
  for (const auto& box : {boxes.boundingBox, boxes.hiResBoundingBox})
    require(!box || (box->width() > 0 && box->height() > 0));
}

inline void sourceTextTarget(const QByteArray& bytes) {
  for (const qint64 number : {1, 3, 4, 7, 8, 10})
    for (const PictureKind kind : {PictureKind::Eps, PictureKind::Svg})
      require(sourceText(kind, bytes, number).size() <= bytes.size());
}

/// What decodes, encodes again, and decodes to the same text.
inline void textEncodingTarget(const QByteArray& bytes) {
  for (const qint64 number : {1, 3, 4, 7, 8, 10}) {
    const auto text = decodeText(bytes, number);
    require(text.has_value() == isDecodable(bytes, number));
    const auto again = text ? encodeText(*text, number) : std::nullopt;
    if (again && number != encoding::Utf16) require(decodeText(*again, number) == text);
  }
}

inline void typeIdentificationTarget(const QByteArray& bytes) {
  for (const char* name : {"", "a.ai", "a.eps", "a.svgz"})
    require(!identifyType(bytes, name).identifier().isEmpty());
}

struct Target {
  const char* name;
  void (*run)(const QByteArray&);
};
inline constexpr std::array<Target, 6> metadataTargets{{{"eps_header", epsHeaderTarget},
                                                        {"eps_source", epsSourceTarget},
                                                        {"bounding_box", boundingBoxTarget},
                                                        {"source_text", sourceTextTarget},
                                                        {"text_encoding", textEncodingTarget},
                                                        {"type_identification", typeIdentificationTarget}}};

}  // namespace norvex::fuzz
