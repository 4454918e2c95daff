// The messages between the picture process and whoever asks it.
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QDateTime>

#include <cmath>
#include <initializer_list>

#include "fuzz/targets.h"
#include "protocol/cbor_fields.h"
#include "protocol/worker_protocol.h"

namespace norvex::fuzz {
namespace {

bool messages(const QByteArray& bytes) {
  const auto message = decodeMessage(bytes);
  if (!message) return false;
  const QByteArray again = encodeMessage(*message);
  require(quint32(again.size()) <= maximumMessageBytes, "a message is within its limit");
  require(decodeMessage(again).ok(), "what was read can be sent and read again");
  return true;
}

bool replies(const QByteArray& bytes) {
  const auto reply = decodeReply(bytes);
  if (!reply) return false;
  const QByteArray again = encodeReply(*reply);
  require(quint32(again.size()) <= maximumMessageBytes, "a reply is within its limit");
  require(decodeReply(again).ok(), "what was read can be sent and read again");
  return true;
}

bool cborFields(const QByteArray& bytes) {
  CborFields fields = CborFields::parse(bytes);
  const qint64 integer = fields.integer(QLatin1String("integer"), -5, 5);
  require(integer >= -5 && integer <= 5, "integers keep their bounds");
  require(std::abs(fields.number(QLatin1String("number"), 100)) <= 100, "numbers keep their bounds");
  fields.boolean(QLatin1String("boolean"));
  require(fields.text(QLatin1String("text"), 8).size() <= 8, "texts keep their length");
  require(fields.texts(QLatin1String("texts"), 3, 8).size() <= 3, "lists keep their count");
  const QRectF rect = fields.rect(QLatin1String("rect"), 100);
  require(rect.width() >= 0 && rect.height() >= 0 && std::abs(rect.x()) <= 100, "rectangles are upright");
  require(fields.size(QLatin1String("size"), 10).width() <= 10, "sizes keep their bounds");
  require(fields.array(QLatin1String("array"), 4).size() <= 4, "arrays keep their count");
  require(fields.namedTexts(QLatin1String("named"), 3, 8).size() <= 3, "named texts keep their count");
  if (fields.has(QLatin1String("date"))) {
    const auto date = fields.date(QLatin1String("date"));
    require(!fields.complete() || (date && date->isValid()), "a date that was taken is one");
  }
  CborFields inner = fields.fields(QLatin1String("inner"));
  inner.text(QLatin1String("text"), 8);
  return inner.complete() && fields.complete();
}

QList<QByteArray> messageSeeds() {
  const QRectF rect(1, 2, 30, 40);
  QList<WorkerMessage> all{ForkRequest{}, CancelRequest{3}};
  RenderRequest render;
  render.pixelSize = {40, 30};
  ComposeRequest compose;
  compose.rect = rect;
  SvgRequest svg;
  svg.rect = rect;
  AttributesRequest attributes;
  attributes.texts = {{QStringLiteral("Title"), QStringLiteral("A title")}};
  attributes.creationDate = QDateTime(QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC);
  PagesRequest pages;
  pages.paper = {595, 842};
  pages.sheets = {{rect, rect}};
  pages.header = SheetLine{QStringLiteral("left\tmiddle\tright"), rect};
  pages.fontFamily = QStringLiteral("Sans");
  for (const RequestBody& body : std::initializer_list<RequestBody>{
           OpenRequest{}, render, PdfRequest{}, compose, svg, DecodePreviewRequest{}, attributes, pages})
    all << WorkerRequest{quint32(all.size()), body};
  QList<QByteArray> seeds;
  for (const WorkerMessage& message : all) seeds << encodeMessage(message);
  return seeds;
}

QList<QByteArray> replySeeds() {
  PictureFacts facts;
  facts.pageBounds = {QRectF(0, 0, 200, 100)};
  facts.attributes = {{QStringLiteral("Title"), QStringLiteral("A title")}};
  facts.creationDate = QDateTime(QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC);
  facts.fonts = {QStringLiteral("Helvetica")};
  facts.viewBox = QRectF(0, 0, 20, 10);
  facts.fixedRatioX = true;
  facts.warnings = {QStringLiteral("a sentence")};
  BytesReply bytes;
  bytes.regionsRasterised = 2;
  bytes.rasterisedDpi = 300;
  PreviewReply preview;
  preview.pixelsWide = preview.bytesPerRow = 4;
  preview.pixelsHigh = 3;
  preview.colorSpaceName = QStringLiteral("NSCalibratedWhiteColorSpace");
  QList<QByteArray> seeds;
  for (const ReplyBody& body :
       std::initializer_list<ReplyBody>{facts, bytes, BitmapReply{{4, 3}, 16, {}}, preview, ForkReply{4711},
                                        Error{ErrorKind::Limit, QStringLiteral("too large")}})
    seeds << encodeReply(WorkerReply{7, body});
  return seeds;
}

QList<QByteArray> fieldSeeds() {
  const QDateTime date(QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC);
  QCborMap map{{QLatin1String("integer"), 3},
               {QLatin1String("number"), 2.5},
               {QLatin1String("boolean"), true},
               {QLatin1String("text"), QLatin1String("text")},
               {QLatin1String("texts"), QCborArray{QLatin1String("a"), QLatin1String("b")}},
               {QLatin1String("rect"), cborFromRect(QRectF(1, 2, 3, 4))},
               {QLatin1String("size"), QCborArray{3, 4}},
               {QLatin1String("array"), QCborArray{1, 2.5}},
               {QLatin1String("named"), QCborMap{{QLatin1String("a"), QLatin1String("b")}}},
               {QLatin1String("inner"), QCborMap{{QLatin1String("text"), QLatin1String("in")}}}};
  const QByteArray plain = QCborValue(map).toCbor();
  map.insert(QLatin1String("date"), cborFromDate(date));
  return {plain, QCborValue(map).toCbor(), plain.chopped(3)};
}

}  // namespace

QList<Target> protocolTargets() {
  return {{"messages", messages, messageSeeds},
          {"replies", replies, replySeeds},
          {"cbor_fields", cborFields, fieldSeeds, 1000}};
}

}  // namespace norvex::fuzz
