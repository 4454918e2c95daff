#include "cli/conversion_check.h"

#include "encoders/comment_value.h"
#include "encoders/output_check.h"
#include "metadata/guessed_header.h"

namespace norvex {
namespace {

bool isPostScript(const QByteArray& bytes) {
  return bytes.startsWith("%!") || bytes.startsWith("\xC5\xD0");
}

/// The texts of a source in no encoding: no output is made of them.
HeaderDictionary guessedTexts(PictureEncoder& encoder, const QByteArray& source) {
  const bool isEps = encoder.imageRep()->pictureKind() == PictureKind::Eps;
  const auto guess = isEps ? guessedHeader(source, encoder.header()) : std::nullopt;
  return guess ? guess->values : HeaderDictionary();
}

/// One keyword may stand in the value of another, whose line then gives way.
bool holdsComment(const QByteArray& bytes, const QString& key, const QString& value) {
  return bytes.contains(QStringLiteral("%%%1: %2\n").arg(key, commentValue(value)).toUtf8());
}

}  // namespace

void checkConversion(Conversion& conversion, PictureEncoder& encoder, const QByteArray& source,
                     bool handedOn) {
  if (conversion.report.error) {  // what there is lacks its main part
    conversion.bytes.clear();
    conversion.size = 0;
    return;
  }
  // A source that was handed on was opened already.
  if (const Result<void> opens = checkOutput(conversion.bytes); !opens && conversion.bytes != source) {
    conversion.report.error = opens.error();
    conversion.bytes.clear();
    conversion.size = 0;
    return;
  }
  const bool postScript = isPostScript(conversion.bytes);
  const bool isEps = encoder.imageRep()->pictureKind() == PictureKind::Eps;
  QStringList& lost = conversion.metadataLost;
  if (handedOn && postScript && isEps) {
    lost.clear();
    return;
  }
  const HeaderDictionary guessed = guessedTexts(encoder, source);
  const HeaderDictionary& header = encoder.header();
  for (const QString& key : {header::Title, header::Creator, header::CreationDate, header::For,
                             header::Copyright, header::Description}) {
    const QString value = header.value(key).toString();
    const bool gone = guessed.contains(key) || (postScript && !value.trimmed().isEmpty() &&
                                                !holdsComment(conversion.bytes, key, value));
    if (gone && !lost.contains(key)) lost << key;
  }
}

}  // namespace norvex
