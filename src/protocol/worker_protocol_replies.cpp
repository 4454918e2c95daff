#include <QCborArray>

#include <limits>

#include "protocol/bitmap_image_rep.h"
#include "protocol/cbor_fields.h"
#include "protocol/worker_protocol.h"

// The replies: what comes back from a process that may be in the hands of a hostile document.
namespace norvex {
namespace {

using Key = QLatin1String;

constexpr qint64 kMaximumProcessId = 1 << 22;  ///< the system's own upper limit
constexpr int kMaximumRegions = 1'000'000;
constexpr int kMaximumRowBytes = maximumBitmapSide * 16;
constexpr int kMaximumPages = 10'000'000;

Error refused() {
  return {ErrorKind::Protocol, QStringLiteral("the picture process gave an answer that cannot be true")};
}

QCborArray arrayOf(const QStringList& texts, int maximumCount, int maximumLength) {
  QCborArray array;
  for (const QString& text : texts.mid(0, maximumCount)) array.append(clipped(text, maximumLength));
  return array;
}

QCborArray arrayOf(const QStringList& sentences) {
  return arrayOf(sentences, maximumWarnings, maximumSentenceLength);
}

void insertSvgFacts(QCborMap& map, const PictureFacts& facts) {
  if (facts.viewBox) map.insert(Key("viewBox"), cborFromRect(*facts.viewBox));
  map.insert(Key("title"), clipped(facts.title, maximumTextLength));
  map.insert(Key("description"), clipped(facts.description, maximumTextLength));
  map.insert(Key("encoding"), clipped(facts.encodingName, maximumSentenceLength));
  map.insert(Key("encodingNumber"), facts.encodingNumber);
  if (facts.fixedRatioX) map.insert(Key("fixedRatioX"), *facts.fixedRatioX);
  if (facts.fixedRatioY) map.insert(Key("fixedRatioY"), *facts.fixedRatioY);
}

void insert(QCborMap& map, const PictureFacts& facts) {
  map.insert(Key("type"), Key("facts"));
  QCborArray boxes;
  for (const QRectF& box : facts.pageBounds.mid(0, maximumBoxes)) boxes.append(cborFromRect(box));
  map.insert(Key("boxes"), boxes);
  map.insert(Key("pages"), facts.pageCount);
  map.insert(Key("attributes"), cborFromNamedTexts(facts.attributes, maximumAttributes, maximumTextLength));
  if (facts.creationDate && facts.creationDate->isValid())
    map.insert(Key("date"), cborFromDate(*facts.creationDate));
  map.insert(Key("fonts"), arrayOf(facts.fonts, maximumNames, maximumNameLength));
  map.insert(Key("colorSpaces"), arrayOf(facts.colorSpaces, maximumNames, maximumNameLength));
  insertSvgFacts(map, facts);
  map.insert(Key("warnings"), arrayOf(facts.warnings));
}

void insert(QCborMap& map, const BytesReply& bytes) {
  map.insert(Key("type"), Key("bytes"));
  map.insert(Key("regions"), bytes.regionsRasterised);
  map.insert(Key("share"), bytes.rasterisedAreaShare);
  map.insert(Key("dpi"), bytes.rasterisedDpi);
  map.insert(Key("warnings"), arrayOf(bytes.warnings));
}

void insert(QCborMap& map, const BitmapReply& bitmap) {
  map.insert(Key("type"), Key("bitmap"));
  map.insert(Key("size"), QCborArray{bitmap.pixelSize.width(), bitmap.pixelSize.height()});
  map.insert(Key("rowBytes"), bitmap.bytesPerRow);
  map.insert(Key("warnings"), arrayOf(bitmap.warnings));
}

void insert(QCborMap& map, const PreviewReply& preview) {
  map.insert(Key("type"), Key("preview"));
  map.insert(Key("size"), QCborArray{preview.pixelsWide, preview.pixelsHigh});
  map.insert(Key("bits"), preview.bitsPerSample);
  map.insert(Key("samples"), preview.samplesPerPixel);
  map.insert(Key("rowBytes"), preview.bytesPerRow);
  map.insert(Key("alpha"), preview.hasAlpha);
  map.insert(Key("colorSpace"), clipped(preview.colorSpaceName, maximumSentenceLength));
  map.insert(Key("pointsWide"), preview.pointsWide);
  map.insert(Key("pointsHigh"), preview.pointsHigh);
}

void insert(QCborMap& map, const ForkReply& fork) {
  map.insert(Key("type"), Key("fork"));
  map.insert(Key("pid"), fork.pid);
}

void insert(QCborMap& map, const Error& error) {
  map.insert(Key("type"), Key("error"));
  map.insert(Key("kind"), int(error.kind));
  map.insert(Key("message"), clipped(error.message, maximumSentenceLength));
}

void readSvgFacts(CborFields& fields, PictureFacts& facts) {
  if (fields.has(Key("viewBox"))) facts.viewBox = fields.rect(Key("viewBox"), maximumCoordinate);
  facts.title = fields.text(Key("title"), maximumTextLength);
  facts.description = fields.text(Key("description"), maximumTextLength);
  facts.encodingName = fields.text(Key("encoding"), maximumSentenceLength);
  facts.encodingNumber = int(fields.integer(Key("encodingNumber"), 0, std::numeric_limits<int>::max()));
  if (fields.has(Key("fixedRatioX"))) facts.fixedRatioX = fields.boolean(Key("fixedRatioX"));
  if (fields.has(Key("fixedRatioY"))) facts.fixedRatioY = fields.boolean(Key("fixedRatioY"));
}

PictureFacts factsFrom(CborFields& fields) {
  PictureFacts facts;
  for (const QCborValue& value : fields.array(Key("boxes"), maximumBoxes)) {
    const std::optional<QRectF> box = rectFromCbor(value, maximumCoordinate);
    if (!box) fields.fail();
    facts.pageBounds << box.value_or(QRectF());
  }
  facts.pageCount = int(fields.integer(Key("pages"), 1, kMaximumPages));
  if (facts.pageBounds.size() > facts.pageCount) fields.fail();
  facts.attributes = fields.namedTexts(Key("attributes"), maximumAttributes, maximumTextLength);
  facts.creationDate = fields.date(Key("date"));
  facts.fonts = fields.texts(Key("fonts"), maximumNames, maximumNameLength);
  facts.colorSpaces = fields.texts(Key("colorSpaces"), maximumNames, maximumNameLength);
  readSvgFacts(fields, facts);
  facts.warnings = fields.texts(Key("warnings"), maximumWarnings, maximumSentenceLength);
  return facts;
}

BytesReply bytesFrom(CborFields& fields) {
  BytesReply bytes;
  bytes.regionsRasterised = int(fields.integer(Key("regions"), 0, kMaximumRegions));
  bytes.rasterisedAreaShare = fields.number(Key("share"), 1);
  bytes.rasterisedDpi = fields.number(Key("dpi"), maximumDpi);
  if (bytes.rasterisedAreaShare < 0 || bytes.rasterisedDpi < 0) fields.fail();
  bytes.warnings = fields.texts(Key("warnings"), maximumWarnings, maximumSentenceLength);
  return bytes;
}

BitmapReply bitmapFrom(CborFields& fields) {
  return {fields.size(Key("size"), maximumBitmapSide),
          int(fields.integer(Key("rowBytes"), 4, kMaximumRowBytes)),
          fields.texts(Key("warnings"), maximumWarnings, maximumSentenceLength)};
}

PreviewReply previewFrom(CborFields& fields) {
  PreviewReply preview;
  const QSize size = fields.size(Key("size"), maximumBitmapSide);
  preview.pixelsWide = size.width();
  preview.pixelsHigh = size.height();
  preview.bitsPerSample = int(fields.integer(Key("bits"), 1, 16));
  preview.samplesPerPixel = int(fields.integer(Key("samples"), 1, 5));
  preview.bytesPerRow = int(fields.integer(Key("rowBytes"), 1, kMaximumRowBytes));
  preview.hasAlpha = fields.boolean(Key("alpha"));
  preview.colorSpaceName = fields.text(Key("colorSpace"), maximumSentenceLength);
  preview.pointsWide = fields.number(Key("pointsWide"), maximumCoordinate);
  preview.pointsHigh = fields.number(Key("pointsHigh"), maximumCoordinate);
  const bool known = preview.colorSpaceName == Key(NSCalibratedWhiteColorSpace) ||
                     preview.colorSpaceName == Key(NSCalibratedRGBColorSpace) ||
                     preview.colorSpaceName == Key(NSDeviceCMYKColorSpace);
  if (!known || preview.pointsWide < 0 || preview.pointsHigh < 0) fields.fail();
  return preview;
}

Error errorFrom(CborFields& fields) {
  Error error;
  error.kind = ErrorKind(fields.integer(Key("kind"), int(ErrorKind::CannotRead), int(ErrorKind::NoSandbox)));
  error.message = fields.text(Key("message"), maximumSentenceLength);
  return error;
}

ReplyBody bodyFrom(CborFields& fields) {
  const QString type = fields.text(Key("type"), 16);
  if (type == Key("facts")) return factsFrom(fields);
  if (type == Key("bytes")) return bytesFrom(fields);
  if (type == Key("bitmap")) return bitmapFrom(fields);
  if (type == Key("preview")) return previewFrom(fields);
  if (type == Key("fork")) return ForkReply{fields.integer(Key("pid"), 1, kMaximumProcessId)};
  if (type != Key("error")) fields.fail();
  return errorFrom(fields);
}

}  // namespace

QByteArray encodeReply(const WorkerReply& reply) {
  QCborMap map{{Key("v"), workerProtocolVersion}, {Key("id"), qint64(reply.id)}};
  std::visit([&](const auto& body) { insert(map, body); }, reply.body);
  return map.toCborValue().toCbor();
}

Result<WorkerReply> decodeReply(const QByteArray& cbor) {
  if (cbor.size() > qsizetype(maximumMessageBytes)) return refused();
  CborFields fields = CborFields::parse(cbor);
  fields.integer(Key("v"), workerProtocolVersion, workerProtocolVersion);
  WorkerReply reply;
  reply.id = quint32(fields.integer(Key("id"), 1, std::numeric_limits<quint32>::max()));
  reply.body = bodyFrom(fields);
  if (!fields.complete()) return refused();
  return reply;
}

}  // namespace norvex
