#include "protocol/worker_protocol.h"

#include <limits>

#include "protocol/every_page.h"
#include "protocol/limits.h"
#include "protocol/message_fields.h"

// The requests. The replies are in worker_protocol_replies.cpp.
namespace norvex {

using Key = QLatin1String;

template <>
inline constexpr const char* typeOf<OpenRequest> = "open";
template <>
inline constexpr const char* typeOf<RenderRequest> = "render";
template <>
inline constexpr const char* typeOf<PdfRequest> = "pdf";
template <>
inline constexpr const char* typeOf<ComposeRequest> = "compose";
template <>
inline constexpr const char* typeOf<SvgRequest> = "svg";
template <>
inline constexpr const char* typeOf<ExamineRequest> = "examine";
template <>
inline constexpr const char* typeOf<DecodePreviewRequest> = "preview";
template <>
inline constexpr const char* typeOf<AttributesRequest> = "attributes";
template <>
inline constexpr const char* typeOf<PagesRequest> = "pages";

namespace {

constexpr Key kFork("fork"), kCancel("cancel");

Error refused() {
  return {ErrorKind::Protocol, QStringLiteral("a message to the picture process is not what was agreed")};
}

}  // namespace

template <typename V>
void fields(V& v, Of<V, PictureLimits>& allowed) {
  v.integer(Key("seconds"), allowed.seconds, 1, limits::maximumSeconds);
  v.integer(Key("memory"), allowed.memoryMiB, 1, limits::maximumMemoryMiB);
  v.number(Key("megapixels"), allowed.megapixels, 0, limits::maximumMegapixels);
  v.require(allowed.megapixels > 0);
}

template <typename V>
void fields(V& v, Of<V, OpenRequest>& open) {
  v.oneOf(Key("kind"), open.kind, PictureKind::Eps, PictureKind::Svg);
  v.nested(Key("limits"), open.limits);
  v.text(Key("password"), open.password, limits::maximumPasswordLength);
  v.records(Key("layers"), open.layers, limits::maximumLayers);
}

template <typename V>
void fields(V& v, Of<V, RenderRequest>& render) {
  v.integer(Key("page"), render.page, 0, limits::maximumPageNumber);
  v.matrix(Key("matrix"), render.pictureToDevice, limits::maximumFactor);
  v.size(Key("size"), render.pixelSize, limits::maximumSide);
  v.oneOf(Key("purpose"), render.purpose, RenderPurpose::View, RenderPurpose::Print);
}

template <typename V>
void fields(V& v, Of<V, PdfAttributes>& attributes) {
  v.namedTexts(Key("texts"), attributes.texts, limits::maximumAttributes, limits::maximumTextLength);
  v.date(Key("date"), attributes.creationDate);
}

template <typename V>
void fields(V& v, Of<V, PdfRequest>& pdf) {
  v.integer(Key("page"), pdf.page, everyPage, limits::maximumPageNumber);
  v.optional(Key("information"), pdf.attributes, [&](auto& some) { v.nested(Key("information"), some); });
  v.boolean(Key("keepActions"), pdf.keepActions);
}

template <typename V>
void fields(V& v, Of<V, ComposeRequest>& compose) {
  v.oneOf(Key("format"), compose.format, VectorFormat::Pdf, VectorFormat::Svg);
  v.integer(Key("page"), compose.page, 0, limits::maximumPageNumber);
  v.rect(Key("rect"), compose.rect, limits::maximumPoints);
  v.number(Key("rotate"), compose.rotate, -limits::maximumPoints, limits::maximumPoints);
  v.optional(Key("information"), compose.attributes, [&](auto& some) { v.nested(Key("information"), some); });
  v.boolean(Key("keepActions"), compose.keepActions);
  v.boolean(Key("keepText"), compose.keepText);
}

template <typename V>
void fields(V& v, Of<V, SvgRequest>& svg) {
  v.boolean(Key("pretty"), svg.pretty);
  v.optional(Key("rect"), svg.rect, [&](auto& rect) { v.rect(Key("rect"), rect, limits::maximumPoints); });
  v.number(Key("rotate"), svg.rotate, -limits::maximumPoints, limits::maximumPoints);
}

template <typename V>
void fields(V& v, Of<V, ExamineRequest>& examine) {
  v.oneOf(Key("what"), examine.what, Examination::Contents, Examination::Names);
  v.integer(Key("page"), examine.page, 0, limits::maximumPageNumber);
  v.number(Key("dpi"), examine.dpi, 1, limits::maximumDpi);
  v.boolean(Key("overprint"), examine.overprint);
  v.optional(Key("part"), examine.part,
             [&](auto& rect) { v.rect(Key("part"), rect, limits::maximumPoints); });
}

template <typename V>
void fields(V&, Of<V, DecodePreviewRequest>&) {}

template <typename V>
void fields(V& v, Of<V, AttributesRequest>& request) {
  fields(v, request.attributes);
}

template <typename V>
void fields(V& v, Of<V, SheetLine>& line) {
  v.text(Key("text"), line.text, limits::maximumSentenceLength);
  v.rect(Key("rect"), line.rect, limits::maximumPoints);
}

template <typename V>
void fields(V& v, Of<V, PagesRequest>& pages) {
  v.extent(Key("paper"), pages.paper, limits::maximumPoints);
  v.rects(Key("sheets"), pages.sheets, limits::maximumSheets, limits::maximumPoints, &SheetPart::source,
          &SheetPart::target);
  v.text(Key("title"), pages.title, limits::maximumSentenceLength);
  v.optional(Key("header"), pages.header, [&](auto& line) { v.nested(Key("header"), line); });
  v.optional(Key("footer"), pages.footer, [&](auto& line) { v.nested(Key("footer"), line); });
  v.text(Key("font"), pages.fontFamily, limits::maximumSentenceLength);
  v.number(Key("fontSize"), pages.fontSize, 0, limits::maximumFontSize);
  v.boolean(Key("picture"), pages.picture);
  v.require(!pages.paper.isEmpty() && !pages.sheets.isEmpty() && pages.fontSize > 0);
}

template <typename V>
void fields(V& v, Of<V, ForkRequest>& fork) {
  v.nested(Key("limits"), fork.limits);
  v.boolean(Key("postScript"), fork.postScript);
  v.integer(Key("needs"), fork.needs, 0, allPictureNeeds);
}

namespace {

template <typename V>
void head(V& v, const QString& type, Of<V, quint32>& id) {
  version(v);
  if constexpr (V::writes) v.text(Key("type"), type, limits::maximumTypeLength);
  v.integer(Key("id"), id, 1, std::numeric_limits<quint32>::max());
}

void write(CborWriter& writer, const WorkerRequest& request) {
  std::visit(
      [&](const auto& body) {
        head(writer, QLatin1String(typeOf<std::decay_t<decltype(body)>>), request.id);
        fields(writer, body);
      },
      request.body);
}

void write(CborWriter& writer, const ForkRequest& fork) {
  version(writer);
  writer.text(Key("type"), kFork, limits::maximumTypeLength);
  fields(writer, fork);
}

void write(CborWriter& writer, const CancelRequest& cancel) {
  head(writer, kCancel, cancel.id);
}

WorkerMessage messageFrom(CborReader& reader) {
  QString type;
  reader.text(Key("type"), type, limits::maximumTypeLength);
  if (type == kFork) {
    ForkRequest fork;
    version(reader);
    fields(reader, fork);
    return fork;
  }
  WorkerRequest request;
  head(reader, type, request.id);
  if (type == kCancel) return CancelRequest{request.id};
  reader.require(readOneOf(reader, type, request.body));
  return request;
}

}  // namespace

QByteArray encodeMessage(const WorkerMessage& message) {
  CborWriter writer;
  std::visit([&](const auto& some) { write(writer, some); }, message);
  return writer.map().toCborValue().toCbor();
}

Result<WorkerMessage> decodeMessage(const QByteArray& cbor) {
  if (cbor.size() > qsizetype(limits::maximumMessageBytes)) return refused();
  CborReader reader = CborReader::parse(cbor);
  WorkerMessage message = messageFrom(reader);
  if (!reader.complete()) return refused();
  return message;
}

}  // namespace norvex
