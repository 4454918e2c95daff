#include "window/inspector/source_reading.h"

#include "metadata/eps_header.h"
#include "metadata/source_text.h"

namespace norvex {

SourceReading readSource(const QByteArray& source, const QString& encodingName,
                         const HeaderDictionary& found) {
  SourceReading reading;
  if (encodingName.isEmpty()) {
    reading.header = found;
    reading.text = sourceText(PictureKind::Eps, source, found.value(header::EncodingNumber, 0).toLongLong());
    reading.guess = guessedHeader(source, found);
    return reading;
  }
  const auto header = epsHeaderReadAs(encodingName, source, found);
  const auto text = header ? epsTextReadAs(encodingName, source) : std::nullopt;
  reading.isValid = text.has_value();
  if (!reading.isValid) return reading;
  reading.header = *header;
  reading.text = *text;
  return reading;
}

}  // namespace norvex
