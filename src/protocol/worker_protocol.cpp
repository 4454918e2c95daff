#include "protocol/worker_protocol.h"

#include <QCborArray>

#include <limits>

#include "protocol/cbor_fields.h"

// The requests. The replies are in worker_protocol_replies.cpp.
namespace norvex {
namespace {

using Key = QLatin1String;

constexpr int kMaximumSeconds = 24 * 60 * 60;
constexpr int kMaximumMemoryMiB = 1 << 20;
constexpr double kMaximumMegapixels = 65536;
constexpr double kMaximumFactor = 1.0e12;  ///< of a matrix: far beyond every zoom, far below what overflows
constexpr int kMaximumPage = 1'000'000;
constexpr double kMaximumFontSize = 1000;

Error refused() {
  return {ErrorKind::Protocol, QStringLiteral("a message to the picture process is not what was agreed")};
}

template <typename... Ts>
struct Overloaded : Ts... {
  using Ts::operator()...;
};
template <typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

QCborMap start(Key type, quint32 id) {
  return {{Key("v"), workerProtocolVersion}, {Key("type"), type}, {Key("id"), qint64(id)}};
}

QCborMap mapOf(const PictureLimits& limits) {
  return {{Key("seconds"), limits.seconds},
          {Key("memory"), limits.memoryMiB},
          {Key("megapixels"), limits.megapixels}};
}

QCborArray arrayOf(const AffineTransform& t) {
  return {t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()};
}

QCborMap mapOf(const SheetLine& line) {
  return {{Key("text"), clipped(line.text, maximumSentenceLength)}, {Key("rect"), cborFromRect(line.rect)}};
}

QCborMap mapOf(quint32 id, const PagesRequest& pages) {
  QCborMap map = start(Key("pages"), id);
  map.insert(Key("paper"), cborFromRect(QRectF(QPointF(0, 0), pages.paper)));
  QCborArray rects;
  for (const SheetPart& sheet : pages.sheets.mid(0, maximumSheets)) {
    rects.append(cborFromRect(sheet.source));
    rects.append(cborFromRect(sheet.target));
  }
  map.insert(Key("sheets"), rects);
  map.insert(Key("title"), clipped(pages.title, maximumSentenceLength));
  if (pages.header) map.insert(Key("header"), mapOf(*pages.header));
  if (pages.footer) map.insert(Key("footer"), mapOf(*pages.footer));
  map.insert(Key("font"), clipped(pages.fontFamily, maximumSentenceLength));
  map.insert(Key("fontSize"), pages.fontSize);
  map.insert(Key("picture"), pages.picture);
  return map;
}

QCborMap mapOf(quint32 id, const RequestBody& body) {
  return std::visit(
      Overloaded{
          [&](const OpenRequest& open) {
            QCborMap map = start(Key("open"), id);
            map.insert(Key("kind"), int(open.kind));
            map.insert(Key("limits"), mapOf(open.limits));
            return map;
          },
          [&](const RenderRequest& render) {
            QCborMap map = start(Key("render"), id);
            map.insert(Key("page"), render.page);
            map.insert(Key("matrix"), arrayOf(render.pictureToDevice));
            map.insert(Key("size"), QCborArray{render.pixelSize.width(), render.pixelSize.height()});
            map.insert(Key("purpose"), int(render.purpose));
            return map;
          },
          [&](const PdfRequest& pdf) {
            QCborMap map = start(Key("pdf"), id);
            map.insert(Key("page"), pdf.page);
            return map;
          },
          [&](const ComposeRequest& compose) {
            QCborMap map = start(Key("compose"), id);
            map.insert(Key("format"), int(compose.format));
            map.insert(Key("page"), compose.page);
            map.insert(Key("rect"), cborFromRect(compose.rect));
            map.insert(Key("rotate"), compose.rotate);
            return map;
          },
          [&](const SvgRequest& svg) {
            QCborMap map = start(Key("svg"), id);
            map.insert(Key("pretty"), svg.pretty);
            if (svg.rect) map.insert(Key("rect"), cborFromRect(*svg.rect));
            map.insert(Key("rotate"), svg.rotate);
            return map;
          },
          [&](const DecodePreviewRequest&) { return start(Key("preview"), id); },
          [&](const AttributesRequest& attributes) {
            QCborMap map = start(Key("attributes"), id);
            map.insert(Key("texts"),
                       cborFromNamedTexts(attributes.texts, maximumAttributes, maximumTextLength));
            if (attributes.creationDate && attributes.creationDate->isValid())
              map.insert(Key("date"), cborFromDate(*attributes.creationDate));
            return map;
          },
          [&](const PagesRequest& pages) { return mapOf(id, pages); },
      },
      body);
}

PictureLimits limitsFrom(CborFields& outer) {
  CborFields fields = outer.fields(Key("limits"));
  PictureLimits limits;
  limits.seconds = int(fields.integer(Key("seconds"), 1, kMaximumSeconds));
  limits.memoryMiB = int(fields.integer(Key("memory"), 1, kMaximumMemoryMiB));
  limits.megapixels = fields.number(Key("megapixels"), kMaximumMegapixels);
  if (!fields.complete() || limits.megapixels <= 0) outer.fail();
  return limits;
}

AffineTransform matrixFrom(CborFields& fields) {
  const QCborArray numbers = fields.array(Key("matrix"), 6);
  double m[6] = {};
  for (qsizetype i = 0; i < 6; ++i) {
    const QCborValue number = numbers.at(i);
    m[i] = number.toDouble();
    if (!number.isDouble() || !(m[i] >= -kMaximumFactor && m[i] <= kMaximumFactor)) fields.fail();
  }
  return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

OpenRequest openFrom(CborFields& fields) {
  return {PictureKind(fields.integer(Key("kind"), int(PictureKind::Eps), int(PictureKind::Svg))),
          limitsFrom(fields)};
}

RenderRequest renderFrom(CborFields& fields) {
  RenderRequest render;
  render.page = int(fields.integer(Key("page"), 0, kMaximumPage));
  render.pictureToDevice = matrixFrom(fields);
  render.pixelSize = fields.size(Key("size"), maximumBitmapSide);
  render.purpose =
      RenderPurpose(fields.integer(Key("purpose"), int(RenderPurpose::View), int(RenderPurpose::Print)));
  return render;
}

ComposeRequest composeFrom(CborFields& fields) {
  ComposeRequest compose;
  compose.format =
      VectorFormat(fields.integer(Key("format"), int(VectorFormat::Pdf), int(VectorFormat::Eps)));
  compose.page = int(fields.integer(Key("page"), 0, kMaximumPage));
  compose.rect = fields.rect(Key("rect"), maximumCoordinate);
  compose.rotate = fields.number(Key("rotate"), maximumCoordinate);
  return compose;
}

SvgRequest svgFrom(CborFields& fields) {
  SvgRequest svg;
  svg.pretty = fields.boolean(Key("pretty"));
  if (fields.has(Key("rect"))) svg.rect = fields.rect(Key("rect"), maximumCoordinate);
  svg.rotate = fields.number(Key("rotate"), maximumCoordinate);
  return svg;
}

AttributesRequest attributesFrom(CborFields& fields) {
  AttributesRequest attributes;
  attributes.texts = fields.namedTexts(Key("texts"), maximumAttributes, maximumTextLength);
  attributes.creationDate = fields.date(Key("date"));
  return attributes;
}

std::optional<SheetLine> lineFrom(CborFields& outer, Key key) {
  if (!outer.has(key)) return std::nullopt;
  CborFields fields = outer.fields(key);
  const SheetLine line{fields.text(Key("text"), maximumSentenceLength),
                       fields.rect(Key("rect"), maximumCoordinate)};
  if (!fields.complete()) outer.fail();
  return line;
}

QList<SheetPart> sheetsFrom(CborFields& fields) {
  const QCborArray rects = fields.array(Key("sheets"), 2 * maximumSheets);
  QList<SheetPart> sheets;
  if (rects.isEmpty() || rects.size() % 2 != 0) fields.fail();
  for (qsizetype i = 0; i + 1 < rects.size(); i += 2) {
    const auto source = rectFromCbor(rects.at(i), maximumCoordinate);
    const auto target = rectFromCbor(rects.at(i + 1), maximumCoordinate);
    if (!source || !target) fields.fail();
    sheets.append({source.value_or(QRectF()), target.value_or(QRectF())});
  }
  return sheets;
}

PagesRequest pagesFrom(CborFields& fields) {
  PagesRequest pages;
  pages.paper = fields.rect(Key("paper"), maximumCoordinate).size();
  pages.sheets = sheetsFrom(fields);
  pages.title = fields.text(Key("title"), maximumSentenceLength);
  pages.header = lineFrom(fields, Key("header"));
  pages.footer = lineFrom(fields, Key("footer"));
  pages.fontFamily = fields.text(Key("font"), maximumSentenceLength);
  pages.fontSize = fields.number(Key("fontSize"), kMaximumFontSize);
  pages.picture = fields.boolean(Key("picture"));
  if (pages.paper.isEmpty() || pages.fontSize <= 0) fields.fail();
  return pages;
}

ForkRequest forkFrom(CborFields& fields) {
  return {limitsFrom(fields), fields.boolean(Key("postScript")),
          PictureNeeds(fields.integer(Key("needs"), 0, allPictureNeeds))};
}

WorkerMessage messageFrom(CborFields& fields) {
  fields.integer(Key("v"), workerProtocolVersion, workerProtocolVersion);
  const QString type = fields.text(Key("type"), 16);
  if (type == Key("fork")) return forkFrom(fields);
  const quint32 id = quint32(fields.integer(Key("id"), 1, std::numeric_limits<quint32>::max()));
  if (type == Key("cancel")) return CancelRequest{id};
  if (type == Key("open")) return WorkerRequest{id, openFrom(fields)};
  if (type == Key("render")) return WorkerRequest{id, renderFrom(fields)};
  if (type == Key("pdf"))
    return WorkerRequest{id, PdfRequest{int(fields.integer(Key("page"), 0, kMaximumPage))}};
  if (type == Key("compose")) return WorkerRequest{id, composeFrom(fields)};
  if (type == Key("svg")) return WorkerRequest{id, svgFrom(fields)};
  if (type == Key("attributes")) return WorkerRequest{id, attributesFrom(fields)};
  if (type == Key("pages")) return WorkerRequest{id, pagesFrom(fields)};
  if (type != Key("preview")) fields.fail();
  return WorkerRequest{id, DecodePreviewRequest{}};
}

}  // namespace

QByteArray encodeMessage(const WorkerMessage& message) {
  const QCborMap map =
      std::visit(Overloaded{
                     [](const WorkerRequest& request) { return mapOf(request.id, request.body); },
                     [](const ForkRequest& fork) {
                       return QCborMap{{Key("v"), workerProtocolVersion},
                                       {Key("type"), Key("fork")},
                                       {Key("limits"), mapOf(fork.limits)},
                                       {Key("postScript"), fork.postScript},
                                       {Key("needs"), qint64(fork.needs)}};
                     },
                     [](const CancelRequest& cancel) { return start(Key("cancel"), cancel.id); },
                 },
                 message);
  return map.toCborValue().toCbor();
}

Result<WorkerMessage> decodeMessage(const QByteArray& cbor) {
  if (cbor.size() > qsizetype(maximumMessageBytes)) return refused();
  CborFields fields = CborFields::parse(cbor);
  WorkerMessage message = messageFrom(fields);
  if (!fields.complete()) return refused();
  return message;
}

}  // namespace norvex
