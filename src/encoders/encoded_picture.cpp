#include "encoders/encoded_picture.h"

#include <algorithm>
#include <array>

#include "picture/web_image_rep.h"

namespace norvex {
namespace {

struct VectorEncoder {
  PictureFormat format;
  QByteArray (*encode)(PictureEncoder& encoder);
};

/// The pixels' formats have codecs.
constexpr auto vectorEncoders = std::to_array<VectorEncoder>({
    {PictureFormat::Eps, [](PictureEncoder& encoder) { return encoder.postScriptData(); }},
    {PictureFormat::EpsPreview, [](PictureEncoder& encoder) { return encoder.postScriptDataWithPreview(); }},
    {PictureFormat::Epsi, [](PictureEncoder& encoder) { return encoder.epsiData(); }},
    {PictureFormat::Pdf, [](PictureEncoder& encoder) { return encoder.pdfData(); }},
    {PictureFormat::Svg, [](PictureEncoder& encoder) { return encoder.svgData(); }},
    {PictureFormat::Svgz,
     [](PictureEncoder& encoder) {
       const QByteArray svg = encoder.svgData();
       return svg.isEmpty() ? QByteArray() : ZyWebImageRep::gzip(svg);
     }},
});

constexpr const VectorEncoder* vectorEncoderOf(PictureFormat format) {
  const auto* const at = std::find_if(vectorEncoders.begin(), vectorEncoders.end(),
                                      [=](const VectorEncoder& known) { return known.format == format; });
  return at == vectorEncoders.end() ? nullptr : at;
}

static_assert(std::all_of(formatTable.begin(), formatTable.end(),
                          [](const FormatRow& row) {
                            return !isWritten(row) || isRaster(row.id) || vectorEncoderOf(row.id) != nullptr;
                          }),
              "every format that is written has its encoder");

/// The keys that a file of this format has room for.
QStringList keysHeld(PictureKind source, PictureFormat format) {
  switch (rowOf(format).kind) {
    case DocumentKind::Eps:
      return {header::Title, header::Creator, header::CreationDate, header::For, header::Copyright};
    case DocumentKind::Pdf:
      return source == PictureKind::Pdf ? QStringList{header::Title, header::Creator, header::For,
                                                      header::Description, header::CreationDate}
                                        : QStringList{header::Title, header::Creator, header::For};
    case DocumentKind::Svg:
      return source == PictureKind::Svg
                 ? QStringList{header::Title, header::Description}
                 : QStringList{header::Title,   header::Description,  header::For,
                               header::Creator, header::CreationDate, header::Copyright};
    default:
      return {};
  }
}

}  // namespace

QByteArray encodedPicture(PictureEncoder& encoder, PictureFormat format) {
  if (isRaster(format)) return encoder.rasterData(format, encoder.imageRep());
  const VectorEncoder* const vector = vectorEncoderOf(format);
  return vector ? vector->encode(encoder) : QByteArray();
}

QStringList metadataLost(const HeaderDictionary& header, PictureKind source, PictureFormat format,
                         bool handedOn) {
  if (handedOn) return {};
  const QStringList held = keysHeld(source, format);
  QStringList lost;
  for (const QString& key : {header::Title, header::Creator, header::CreationDate, header::For,
                             header::Copyright, header::Description}) {
    if (!header.value(key).toString().trimmed().isEmpty() && !held.contains(key)) lost << key;
  }
  return lost;
}

}  // namespace norvex
