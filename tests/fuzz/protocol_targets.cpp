// The messages between the picture process and whoever asks it.
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QDateTime>

#include <cmath>
#include <initializer_list>

#include "fuzz/targets.h"
#include "protocol/cbor_reader.h"
#include "protocol/cbor_writer.h"
#include "protocol/limits.h"
#include "protocol/page_contents.h"
#include "protocol/page_excerpts.h"
#include "protocol/page_inks.h"
#include "protocol/page_names.h"
#include "protocol/page_text.h"
#include "protocol/worker_protocol.h"

namespace norvex::fuzz {
namespace {

bool messages(const QByteArray& bytes) {
  const auto message = decodeMessage(bytes);
  if (!message) return false;
  const QByteArray again = encodeMessage(*message);
  require(quint32(again.size()) <= limits::maximumMessageBytes, "a message is within its limit");
  require(decodeMessage(again).ok(), "what was read can be sent and read again");
  return true;
}

bool replies(const QByteArray& bytes) {
  const auto reply = decodeReply(bytes);
  if (!reply) return false;
  const QByteArray again = encodeReply(*reply);
  require(quint32(again.size()) <= limits::maximumMessageBytes, "a reply is within its limit");
  require(decodeReply(again).ok(), "what was read can be sent and read again");
  return true;
}

/// The larger of the two answers to an examination.
bool pageContents(const QByteArray& bytes) {
  const auto page = decodePageContents(bytes);
  if (!page) return decodeDrawnInk(bytes).ok();
  require(page->fonts.size() <= limits::maximumNames, "lists keep their length");
  require(decodePageContents(encodePageContents(*page)).ok(), "what was read can be sent and read again");
  return true;
}

QList<QByteArray> pageContentsSeeds() {
  PageContents page;
  page.size = QSizeF(200, 100);
  page.fonts = {{"Helvetica", "Type1", true, false, true}};
  page.images = {UsedImage()};
  page.thinnestLine = Measured{0.1, QRectF(1, 2, 3, 4)};
  page.rgb = QRectF(1, 2, 3, 4);
  page.claims = {"PDF/X-4"};
  return {encodePageContents(page),
          encodeDrawnInk({QRectF(1, 2, 3, 4), std::nullopt, QRectF(0, 0, 9, 9), 0.1})};
}

bool pageText(const QByteArray& bytes) {
  const auto page = decodePageText(bytes);
  if (!page) return false;
  require(page->text.size() == page->places.size(), "every letter has its place");
  require(page->links.size() <= limits::maximumResources, "lists keep their length");
  require(decodePageText(encodePageText(*page)).ok(), "what was read can be sent and read again");
  return true;
}

QList<QByteArray> pageTextSeeds() {
  PageText page;
  page.text = QStringLiteral("Aa\n");
  page.places = {QRectF(1, 2, 3, 4), QRectF(4, 2, 3, 4), QRectF()};
  page.links = {{QRectF(1, 2, 3, 4), QStringLiteral("https://example.org/"), -1},
                {QRectF(0, 0, 9, 9), {}, 3}};
  return {encodePageText(page), encodePageText({})};
}

bool pageInks(const QByteArray& bytes) {
  const auto page = decodePageInks(bytes);
  if (!page) return false;
  require(page->inks.size() >= 4 && page->inks.size() <= limits::maximumInks, "there are process inks");
  require(page->plates.size() == page->plateBytes() * page->inks.size(), "every plate is whole");
  require(decodePageInks(encodePageInks(*page)).ok(), "what was read can be sent and read again");
  return true;
}

QList<QByteArray> pageInksSeeds() {
  PageInks page;
  page.pixels = QSize(2, 3);
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 1, 0.5};
  page.inks << Ink{QStringLiteral("Gold"), true, ProcessInks{1, 2, 3, 4}, 0, 0};
  page.plates = QByteArray(30, 'x');
  return {encodePageInks(page)};
}

bool pageNames(const QByteArray& bytes) {
  const auto names = decodePageNames(bytes);
  if (!names) return false;
  for (const QStringList& list : {names->fonts, names->colorSpaces}) {
    require(list.size() <= limits::maximumNames, "names keep their count");
    for (const QString& name : list)
      require(name.size() <= limits::maximumNameLength, "names keep their length");
  }
  require(decodePageNames(encodePageNames(*names)).ok(), "what was read can be sent and read again");
  return true;
}

QList<QByteArray> pageNamesSeeds() {
  return {encodePageNames({}), encodePageNames({{"Helvetica", "Times-Roman"}, {"DeviceCMYK", "sRGB"}})};
}

bool pageExcerpts(const QByteArray& bytes) {
  // Who holds something else is never asked for its pages.
  const auto excerpts = decodePageExcerpts(bytes);
  if (!excerpts) return false;
  require(!excerpts->isEmpty(), "there is one at least");
  qsizetype size = 0;
  for (const PageExcerpt& excerpt : *excerpts) {
    require(excerpt.first >= 0 && excerpt.last >= -1, "pages are numbers of pages");
    size += excerpt.pdf.size();
  }
  require(size <= bytes.size(), "nothing is longer than what it was read from");
  const QByteArray again = encodePageExcerpts(*excerpts);
  require(holdPageExcerpts(again) && decodePageExcerpts(again).ok(),
          "what was read can be sent and read again");
  return holdPageExcerpts(bytes);
}

QList<QByteArray> pageExcerptsSeeds() {
  return {encodePageExcerpts({{"%PDF-1.7 one", 0, 3}, {"%PDF-1.7 two", 2, -1}}),
          encodePageExcerpts({{"%PDF-1.7", 0, 0}})};
}

/// A value of every form that a field has.
struct Inner {
  QString text;
};
struct Everything {
  int integer = 0;
  double number = 0;
  bool boolean = false;
  QString text;
  QStringList texts;
  QByteArray bytes;
  QRectF rect;
  QSize size;
  QHash<QString, QString> named;
  std::optional<QDateTime> date;
  QList<QRectF> rects;
  Inner inner;
};

template <typename Visitor, typename Value>
void fields(Visitor& v, Value& value) {
  if constexpr (requires { value.inner; }) {
    v.integer(QLatin1String("integer"), value.integer, -5, 5);
    v.number(QLatin1String("number"), value.number, -100, 100);
    v.boolean(QLatin1String("boolean"), value.boolean);
    v.text(QLatin1String("text"), value.text, 8);
    v.texts(QLatin1String("texts"), value.texts, 3, 8);
    v.bytes(QLatin1String("bytes"), value.bytes, 4);
    v.rect(QLatin1String("rect"), value.rect, 100);
    v.size(QLatin1String("size"), value.size, 10);
    v.namedTexts(QLatin1String("named"), value.named, 3, 8);
    v.date(QLatin1String("date"), value.date);
    v.rects(QLatin1String("rects"), value.rects, 4, 100);
    v.nested(QLatin1String("inner"), value.inner);
  } else {
    v.text(QLatin1String("text"), value.text, 8);
  }
}

bool cborFields(const QByteArray& bytes) {
  CborReader reader = CborReader::parse(bytes);
  Everything all;
  fields(reader, all);
  require(all.integer >= -5 && all.integer <= 5, "integers keep their bounds");
  require(std::abs(all.number) <= 100, "numbers keep their bounds");
  require(all.text.size() <= 8, "texts keep their length");
  require(all.bytes.size() <= 4, "bytes keep their size");
  require(all.texts.size() <= 3, "lists keep their count");
  require(all.rect.width() >= 0 && all.rect.height() >= 0 && std::abs(all.rect.x()) <= 100,
          "rectangles are upright");
  require(all.size.width() <= 10, "sizes keep their bounds");
  require(all.named.size() <= 3, "named texts keep their count");
  require(all.rects.size() <= 4, "rectangles keep their count");
  require(!reader.complete() || !all.date || all.date->isValid(), "a date that was taken is one");
  return reader.complete();
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
  attributes.attributes.texts = {{QStringLiteral("Title"), QStringLiteral("A title")}};
  attributes.attributes.creationDate = QDateTime(QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC);
  PagesRequest pages;
  pages.paper = {595, 842};
  pages.sheets = {{rect, rect}};
  pages.header = SheetLine{QStringLiteral("left\tmiddle\tright"), rect};
  pages.fontFamily = QStringLiteral("Sans");
  for (const RequestBody& body :
       std::initializer_list<RequestBody>{OpenRequest{}, render, PdfRequest{}, compose, svg, ExamineRequest{},
                                          DecodePreviewRequest{}, attributes, pages})
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
  Everything all;
  all.integer = 3;
  all.number = 2.5;
  all.text = QStringLiteral("text");
  all.texts = {QStringLiteral("a"), QStringLiteral("b")};
  all.bytes = "\x01\xff";
  all.rect = QRectF(1, 2, 3, 4);
  all.size = {3, 4};
  all.named = {{QStringLiteral("a"), QStringLiteral("b")}};
  all.rects = {all.rect, all.rect};
  all.inner.text = QStringLiteral("in");
  const auto written = [](const Everything& value) {
    CborWriter writer;
    fields(writer, value);
    return QCborValue(writer.map()).toCbor();
  };
  const QByteArray plain = written(all);
  all.date = QDateTime(QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC);
  return {plain, written(all), plain.chopped(3)};
}

}  // namespace

QList<Target> protocolTargets() {
  return {{"messages", messages, messageSeeds},
          {"replies", replies, replySeeds},
          {"page_contents", pageContents, pageContentsSeeds},
          {"page_text", pageText, pageTextSeeds},
          {"page_inks", pageInks, pageInksSeeds},
          {"page_names", pageNames, pageNamesSeeds},
          {"page_excerpts", pageExcerpts, pageExcerptsSeeds},
          {"cbor_fields", cborFields, fieldSeeds, 1000}};
}

}  // namespace norvex::fuzz
