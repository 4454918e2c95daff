#include "picture/svg_header.h"

#include "metadata/svg_keys.h"

namespace norvex {
namespace {

void insertText(HeaderDictionary& dictionary, const QString& key, const QString& text) {
  if (!text.isEmpty()) dictionary.insert(key, text);
}

void insertRatio(HeaderDictionary& dictionary, const char* key, const std::optional<bool>& fixed) {
  if (fixed) dictionary.insert(QLatin1String(key), *fixed);
}

}  // namespace

HeaderDictionary svgHeader(const Result<PictureFacts>& facts, const std::optional<QColorSpace>& colorSpace) {
  HeaderDictionary dictionary;
  if (facts) {
    const PictureFacts& known = facts.value();
    insertText(dictionary, header::Description, known.description);
    insertText(dictionary, header::Title, known.title);
    insertText(dictionary, header::Encoding, known.encodingName);
    if (known.encodingNumber != 0) dictionary.insert(header::EncodingNumber, qint64(known.encodingNumber));
    insertRatio(dictionary, ZyWebViewFixedRatioXKey, known.fixedRatioX);
    insertRatio(dictionary, ZyWebViewFixedRatioYKey, known.fixedRatioY);
  }
  dictionary.insert(header::ColorSpace,
                    QVariant::fromValue(colorSpace.value_or(QColorSpace(QColorSpace::SRgb))));
  return dictionary;
}

}  // namespace norvex
