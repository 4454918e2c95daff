// Every bound of a message, from both sides: what lies on it arrives, what lies beyond is refused.
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include <malloc.h>

#include "kit/raw_message.h"
#include "kit/test_main.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/cbor_reader.h"
#include "protocol/limits.h"
#include "protocol/message_channel.h"
#include "protocol/page_contents.h"
#include "protocol/worker_protocol.h"

using namespace norvex;

namespace {

const QRectF kUnit(0, 0, 1, 1);

QByteArray request(const RequestBody& body) {
  return encodeMessage(WorkerRequest{1, body});
}
QByteArray reply(const ReplyBody& body) {
  return encodeReply({1, body});
}

/// The message with another value in the place that the keys lead to.
QCborValue replaced(const QCborValue& value, QStringList keys, const QCborValue& by) {
  if (keys.isEmpty()) return by;
  QCborMap map = value.toMap();
  const QString key = keys.takeFirst();
  map[key] = replaced(map[key], keys, by);
  return map;
}
QByteArray with(const QByteArray& cbor, const char* keys, const QCborValue& by) {
  return replaced(QCborValue::fromCbor(cbor), QString::fromLatin1(keys).split(u'.'), by).toCbor();
}

QCborArray times(qsizetype count, const QCborValue& value) {
  QCborArray all;
  for (qsizetype i = 0; i < count; ++i) all.append(value);
  return all;
}

QCborValue letters(qsizetype count) {
  return QString(count, u'x');
}

OpenRequest opening(int seconds, int memory, double megapixels) {
  return {PictureKind::Eps, {seconds, memory, megapixels}};
}

RenderRequest drawing(int page, double factor, int side) {
  return {page, AffineTransform(factor, 0, 0, 1, 0, 0), QSize(side, 1), RenderPurpose::View};
}

PagesRequest job(double fontSize) {
  PagesRequest pages;
  pages.paper = QSizeF(9, 9);
  pages.sheets = QList<SheetPart>(1);
  pages.fontSize = fontSize;
  return pages;
}

PreviewReply preview(int rowBytes) {
  return {1, 1, 8, 1, rowBytes, false, NSCalibratedWhiteColorSpace, 1, 1};
}

QByteArray dated(qint64 instant, int offset) {
  PdfAttributes attributes;
  attributes.creationDate = QDateTime(QDate(2001, 1, 1), QTime(1, 2, 3), Qt::OffsetFromUTC, 3600);
  const QByteArray made = request(AttributesRequest{attributes});
  return with(with(made, "date.ms", instant), "date.offset", offset);
}

PageContents contentsWithImage(int side) {
  PageContents contents;
  contents.size = kUnit.size();
  UsedImage image;
  image.pixelsWide = side;
  contents.images = {image};
  contents.fonts = {UsedFont()};
  return contents;
}

/// Maps within one another, and a number in the last.
struct Maps {
  int depth = 0;
};
void fields(CborReader& reader, Maps& maps) {
  Maps inner{maps.depth - 1};
  int number = 0;
  if (maps.depth > 1)
    reader.nested(QLatin1String("a"), inner);
  else
    reader.integer(QLatin1String("a"), number, 0, 1);
}

bool arrives(const QByteArray& cbor) {
  return decodeMessage(cbor).ok() || decodeReply(cbor).ok() || decodePageContents(cbor).ok();
}

}  // namespace

class MessageLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void moreValuesThanAPageOfTextHasAreNotBuilt() {
    // A map with one array of `count` rectangles, each an array of four zeros.
    const auto map = [](quint32 count) {
      QByteArray cbor = "\xA1\x61r\x9A";
      for (const int shift : {24, 16, 8, 0}) cbor.append(char(count >> shift & 0xFF));
      const QByteArray zero("\xFB\0\0\0\0\0\0\0\0", 9);
      return cbor + ("\x84" + zero + zero + zero + zero).repeated(count);
    };
    const auto isTaken = [](const QByteArray& cbor) {
      CborReader reader = CborReader::parse(cbor);
      QList<QRectF> rects;
      reader.rects(QLatin1String("r"), rects, 2 * limits::maximumLetters, 1);
      return reader.complete();
    };
    constexpr quint32 most = (8 * limits::maximumLetters - 3) / 5;  // beside the map, its key and the array
    QVERIFY(isTaken(map(most)));
    QVERIFY(!isTaken(map(most + 1)));
  }

  void whatLiesOnABoundArrivesAndWhatLiesBeyondDoesNot_data() {
    QTest::addColumn<QByteArray>("on");
    QTest::addColumn<QByteArray>("beyond");
    const auto row = [](const char* name, const QByteArray& on, const QByteArray& beyond) {
      QTest::newRow(name) << on << beyond;
    };
    row("side of a bitmap", request(drawing(0, 1, limits::maximumSide)),
        request(drawing(0, 1, limits::maximumSide + 1)));
    row("row of a preview", reply(preview(limits::maximumRowBytes)),
        reply(preview(limits::maximumRowBytes + 1)));
    row("least row of a preview", reply(preview(1)), reply(preview(0)));
    row("place", request(ComposeRequest{VectorFormat::Pdf, 0, QRectF(limits::maximumPoints, 0, 1, 1)}),
        request(ComposeRequest{VectorFormat::Pdf, 0, QRectF(limits::maximumPoints * 1.001, 0, 1, 1)}));
    row("factor", request(drawing(0, limits::maximumFactor, 1)),
        request(drawing(0, limits::maximumFactor * 1.001, 1)));
    row("resolution", request(ExamineRequest{Examination::Drawn, 0, limits::maximumDpi}),
        request(ExamineRequest{Examination::Drawn, 0, limits::maximumDpi * 1.001}));
    row("page asked for", request(PdfRequest{limits::maximumPageNumber}),
        request(PdfRequest{limits::maximumPageNumber + 1}));
    row("seconds", request(opening(limits::maximumSeconds, 1, 1)),
        request(opening(limits::maximumSeconds + 1, 1, 1)));
    row("memory", request(opening(1, limits::maximumMemoryMiB, 1)),
        request(opening(1, limits::maximumMemoryMiB + 1, 1)));
    row("megapixels", request(opening(1, 1, limits::maximumMegapixels)),
        request(opening(1, 1, limits::maximumMegapixels * 1.001)));
    row("size of a line", request(job(limits::maximumFontSize)),
        request(job(limits::maximumFontSize * 1.001)));
    row("regions", reply(BytesReply{limits::maximumRegions, 0, 0, {}}),
        reply(BytesReply{limits::maximumRegions + 1, 0, 0, {}}));
    row("process", reply(ForkReply{limits::maximumProcessId}),
        reply(ForkReply{limits::maximumProcessId + 1}));
    row("first instant", dated(limits::firstInstant, 0), dated(limits::firstInstant - 1, 0));
    row("last instant", dated(limits::lastInstant, 0), dated(limits::lastInstant + 1, 0));
    row("zone", dated(0, limits::maximumZoneSeconds), dated(0, limits::maximumZoneSeconds + 1));
    row("pixels of an image", encodePageContents(contentsWithImage(limits::maximumImageSide)),
        encodePageContents(contentsWithImage(limits::maximumImageSide + 1)));
    edited("pages", reply(PictureFacts()), "pages", limits::maximumToldPages, limits::maximumToldPages + 1);
    edited("password", request(OpenRequest()), "password", letters(limits::maximumPasswordLength),
           letters(limits::maximumPasswordLength + 1));
    const QCborValue layer = QCborMap{{QLatin1String("name"), "a"}, {QLatin1String("shown"), true}};
    edited("layers", request(OpenRequest()), "layers", times(limits::maximumLayers, layer),
           times(limits::maximumLayers + 1, layer));
    const QCborValue place = QCborArray{0.0, 0.0, 1.0, 1.0};  // a sheet has two
    edited("sheets", request(job(1)), "sheets", times(2 * limits::maximumSheets, place),
           times(2 * limits::maximumSheets + 2, place));
    const QByteArray page = encodePageContents(contentsWithImage(1));
    const QCborMap map = QCborValue::fromCbor(page).toMap();
    const QCborValue image = map[QLatin1String("images")].toArray().first();
    edited("images", page, "images", times(limits::maximumToldImages, image),
           times(limits::maximumToldImages + 1, image));
    const QCborValue font = map[QLatin1String("fonts")].toArray().first();
    edited("type of a font", page, "fonts",
           times(1, replaced(font, {"type"}, letters(limits::maximumTypeLength))),
           times(1, replaced(font, {"type"}, letters(limits::maximumTypeLength + 1))));
  }
  void whatLiesOnABoundArrivesAndWhatLiesBeyondDoesNot() {
    QFETCH(QByteArray, on);
    QFETCH(QByteArray, beyond);
    QVERIFY(arrives(on));
    QVERIFY(!arrives(beyond));
  }

  void mapsWithinMapsEnd() {
    const auto isRead = [](int depth) {
      QCborValue value = 1;
      for (int i = 0; i < depth; ++i) value = QCborMap{{QLatin1String("a"), value}};
      CborReader reader = CborReader::parse(value.toCbor());
      Maps maps{depth};
      fields(reader, maps);
      return reader.complete();
    };
    QVERIFY(isRead(limits::maximumMessageDepth));
    QVERIFY(!isRead(limits::maximumMessageDepth + 1));
  }

  /// Whoever announces a message has not sent it yet.
  void roomIsMadeAsBytesArrive() {
    auto pair = MessageChannel::makePair();
    MessageChannel ours(std::move(pair->first));
    const auto inUse = [] {
      const auto info = ::mallinfo2();
      return info.uordblks + info.hblkhd;
    };
    const size_t before = inUse();
    QByteArray start(4, '\0');
    qToLittleEndian(limits::maximumMessageBytes, start.data());
    QVERIFY(kit::sendRaw(pair->second.get(), start + "a few bytes"));
    QVERIFY(!ours.receive(QDeadlineTimer(0)).ok());
    QVERIFY(inUse() - before < size_t(4 * limits::messageGrowth));
  }

 private:
  /// A message in which one value is the largest that is taken, and the one after it.
  static void edited(const char* name, const QByteArray& cbor, const char* keys, const QCborValue& on,
                     const QCborValue& beyond) {
    QTest::newRow(name) << with(cbor, keys, on) << with(cbor, keys, beyond);
  }
};

NORVEX_TEST(MessageLimitsTest)
#include "message_limits_test.moc"
