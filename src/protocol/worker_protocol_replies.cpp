#include <limits>

#include "protocol/bitmap_image_rep.h"
#include "protocol/limits.h"
#include "protocol/message_fields.h"
#include "protocol/shared_errors.h"
#include "protocol/worker_protocol.h"

// The replies: what comes back from a process that may be in the hands of a hostile document.
namespace norvex {

using Key = QLatin1String;

template <>
inline constexpr const char* typeOf<PictureFacts> = "facts";
template <>
inline constexpr const char* typeOf<BytesReply> = "bytes";
template <>
inline constexpr const char* typeOf<BitmapReply> = "bitmap";
template <>
inline constexpr const char* typeOf<PreviewReply> = "preview";
template <>
inline constexpr const char* typeOf<ForkReply> = "fork";
template <>
inline constexpr const char* typeOf<Error> = "error";

namespace {

template <typename V, typename Sentences>
void warnings(V& v, Sentences& sentences) {
  v.texts(Key("warnings"), sentences, limits::maximumWarnings, limits::maximumSentenceLength);
}

template <typename V>
void svgFields(V& v, Of<V, PictureFacts>& facts) {
  v.optional(Key("viewBox"), facts.viewBox,
             [&](auto& box) { v.rect(Key("viewBox"), box, limits::maximumPoints); });
  v.text(Key("title"), facts.title, limits::maximumTextLength);
  v.text(Key("description"), facts.description, limits::maximumTextLength);
  v.text(Key("encoding"), facts.encodingName, limits::maximumSentenceLength);
  v.integer(Key("encodingNumber"), facts.encodingNumber, 0, std::numeric_limits<int>::max());
  v.optional(Key("fixedRatioX"), facts.fixedRatioX,
             [&](auto& fixed) { v.boolean(Key("fixedRatioX"), fixed); });
  v.optional(Key("fixedRatioY"), facts.fixedRatioY,
             [&](auto& fixed) { v.boolean(Key("fixedRatioY"), fixed); });
}

}  // namespace

template <typename V>
void fields(V& v, Of<V, PictureFacts>& facts) {
  v.rects(Key("boxes"), facts.pageBounds, limits::maximumPageBoxes, limits::maximumPoints);
  v.integer(Key("pages"), facts.pageCount, 1, limits::maximumToldPages);
  v.require(facts.pageBounds.size() <= facts.pageCount);
  v.namedTexts(Key("attributes"), facts.attributes, limits::maximumAttributes, limits::maximumTextLength);
  v.date(Key("date"), facts.creationDate);
  v.texts(Key("fonts"), facts.fonts, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("colorSpaces"), facts.colorSpaces, limits::maximumNames, limits::maximumNameLength);
  svgFields(v, facts);
  v.records(Key("layers"), facts.layers, limits::maximumLayers);
  warnings(v, facts.warnings);
  v.text(Key("stoppedBy"), facts.stoppedBy, limits::maximumSentenceLength);
}

template <typename V>
void fields(V& v, Of<V, BytesReply>& bytes) {
  v.integer(Key("regions"), bytes.regionsRasterised, 0, limits::maximumRegions);
  v.number(Key("share"), bytes.rasterisedAreaShare, 0, 1);
  v.number(Key("dpi"), bytes.rasterisedDpi, 0, limits::maximumDpi);
  warnings(v, bytes.warnings);
}

template <typename V>
void fields(V& v, Of<V, BitmapReply>& bitmap) {
  v.size(Key("size"), bitmap.pixelSize, limits::maximumSide);
  v.integer(Key("rowBytes"), bitmap.bytesPerRow, 4, limits::maximumRowBytes);
  warnings(v, bitmap.warnings);
}

template <typename V>
void fields(V& v, Of<V, PreviewReply>& preview) {
  v.size(Key("size"), preview.pixelsWide, preview.pixelsHigh, limits::maximumSide);
  v.integer(Key("bits"), preview.bitsPerSample, 1, 16);
  v.integer(Key("samples"), preview.samplesPerPixel, 1, 5);
  v.integer(Key("rowBytes"), preview.bytesPerRow, 1, limits::maximumRowBytes);
  v.boolean(Key("alpha"), preview.hasAlpha);
  v.text(Key("colorSpace"), preview.colorSpaceName, limits::maximumSentenceLength);
  v.number(Key("pointsWide"), preview.pointsWide, 0, limits::maximumPoints);
  v.number(Key("pointsHigh"), preview.pointsHigh, 0, limits::maximumPoints);
  v.require(preview.colorSpaceName == Key(NSCalibratedWhiteColorSpace) ||
            preview.colorSpaceName == Key(NSCalibratedRGBColorSpace) ||
            preview.colorSpaceName == Key(NSDeviceCMYKColorSpace));
}

template <typename V>
void fields(V& v, Of<V, ForkReply>& fork) {
  v.integer(Key("pid"), fork.pid, 1, limits::maximumProcessId);
}

template <typename V>
void fields(V& v, Of<V, Error>& error) {
  v.oneOf(Key("kind"), error.kind, ErrorKind::CannotRead, ErrorKind::NoSandbox);
  v.text(Key("message"), error.message, limits::maximumSentenceLength);
}

namespace {

template <typename V>
void head(V& v, Of<V, quint32>& id) {
  version(v);
  v.integer(Key("id"), id, 1, std::numeric_limits<quint32>::max());
}

}  // namespace

QByteArray encodeReply(const WorkerReply& reply) {
  CborWriter writer;
  head(writer, reply.id);
  std::visit(
      [&](const auto& body) {
        writer.text(Key("type"), QLatin1String(typeOf<std::decay_t<decltype(body)>>),
                    limits::maximumTypeLength);
        fields(writer, body);
      },
      reply.body);
  return writer.map().toCborValue().toCbor();
}

Result<WorkerReply> decodeReply(const QByteArray& cbor) {
  if (cbor.size() > qsizetype(limits::maximumMessageBytes)) return untrueAnswer();
  CborReader reader = CborReader::parse(cbor);
  WorkerReply reply;
  QString type;
  head(reader, reply.id);
  reader.text(Key("type"), type, limits::maximumTypeLength);
  reader.require(readOneOf(reader, type, reply.body));
  if (!reader.complete()) return untrueAnswer();
  return reply;
}

}  // namespace norvex
