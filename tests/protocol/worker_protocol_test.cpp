#include "protocol/worker_protocol.h"
#include "protocol/limits.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QRandomGenerator>
#include <QTransform>

#include <limits>

#include "kit/test_main.h"
#include "protocol/bitmap_image_rep.h"

using namespace norvex;

namespace {

PictureFacts richFacts() {
  PictureFacts facts;
  facts.pageBounds = {QRectF(0, 0, 612, 792), QRectF(-10.5, 3.25, 100, 0)};
  facts.pageCount = 5000;
  facts.attributes = {{"Title", "Größe 漢字 😀"}, {"Author", ""}};
  facts.creationDate = QDateTime(QDate(2019, 2, 28), QTime(23, 59, 58), Qt::OffsetFromUTC, -5 * 3600);
  facts.fonts = {"Times-Roman", "漢字"};
  facts.colorSpaces = {"DeviceCMYK", "Separation Gold"};
  facts.viewBox = QRectF(1, 2, 3, 4);
  facts.title = "t";
  facts.description = "d\nd";
  facts.encodingName = "UTF-8";
  facts.encodingNumber = 4;
  facts.fixedRatioX = true;
  facts.fixedRatioY = false;
  facts.layers = {{"Cut contour", true}, {"", false}};
  facts.warnings = {"one", "two"};
  return facts;
}

/// A list of one list. Braces around the inner one alone would be that list itself.
QCborValue listOf(const QCborArray& inner) {
  QCborArray outer;
  outer << inner;
  return outer;
}

RenderRequest render() {
  return {3, QTransform(2, 0.5, -0.5, 2, 10, 700), QSize(640, 480), RenderPurpose::Export};
}

PagesRequest pages() {
  PagesRequest request;
  request.paper = QSizeF(842, 595);
  request.sheets = {{QRectF(0, 0, 10, 20), QRectF(1, 2, 30, 40)}, {QRectF(), QRectF()}};
  request.title = "A job";
  request.header = SheetLine{"\t\tdate", QRectF(1, 2, 3, 4)};
  request.footer = SheetLine{"title\t\t", QRectF(5, 6, 7, 8)};
  request.fontFamily = "sans-serif";
  request.fontSize = 8.5;
  request.picture = false;
  return request;
}

PdfAttributes attributes() {
  return {{{"Title", "t"}}, QDateTime(QDate(2001, 1, 1), QTime(1, 2, 3), Qt::UTC)};
}

QList<WorkerMessage> messages() {
  return {
      WorkerRequest{1, OpenRequest{PictureKind::Svg, {5, 256, 12.5}}},
      WorkerRequest{2, render()},
      WorkerRequest{3, PdfRequest{7}},
      WorkerRequest{4, ComposeRequest{VectorFormat::Eps, 1, QRectF(-5, -6, 70, 80), 0.75}},
      WorkerRequest{5, SvgRequest{false, QRectF(1, 2, 3, 4), -1.5}},
      WorkerRequest{6, SvgRequest{}},
      WorkerRequest{0xffffffff, DecodePreviewRequest{}},
      ForkRequest{{1, 2, 3}, true, NeedPages | NeedPreviews},
      WorkerRequest{8, AttributesRequest{attributes()}},
      CancelRequest{9},
      WorkerRequest{11, PdfRequest{7, attributes()}},
      WorkerRequest{12, ComposeRequest{VectorFormat::Pdf, 1, QRectF(0, 0, 1, 1), 0, attributes()}},
      WorkerRequest{13, ExamineRequest{Examination::Inks, 2, 144, true, QRectF(3, 4, 50, 60)}},
      WorkerRequest{14, OpenRequest{PictureKind::Pdf, {}, "pass word", {{"Cut", true}, {"Text", false}}}},
      WorkerRequest{10, pages()},
  };
}

QList<WorkerReply> replies() {
  PreviewReply preview{300, 200, 8, 4, 1200, true, NSCalibratedRGBColorSpace, 75, 50};
  return {
      {1, richFacts()},
      {2, PictureFacts{}},
      {3, BytesReply{2, 0.25, 300, {"a region became an image"}}},
      {4, BitmapReply{QSize(640, 480), 2560, {"a font is missing"}}},
      {5, preview},
      {6, ForkReply{4242}},
      {7, Error{ErrorKind::Encrypted, "the document needs a password"}},
  };
}

QCborMap mapOf(const QByteArray& cbor) {
  return QCborValue::fromCbor(cbor).toMap();
}
QByteArray cborOf(const QCborMap& map) {
  return map.toCborValue().toCbor();
}

bool isRefused(const Result<WorkerReply>& result) {
  return !result.ok() && result.error().kind == ErrorKind::Protocol;
}
bool isRefused(const Result<WorkerMessage>& result) {
  return !result.ok() && result.error().kind == ErrorKind::Protocol;
}

/// Calls `check` with the map changed in one place: each field, at every depth, once removed and once
/// replaced.
void forEachSpoiltMap(const QCborMap& map, const std::function<void(const QCborMap&)>& check) {
  const QList<QCborValue> wrong{QCborValue(),
                                QCborValue(QCborValue::Undefined),
                                QByteArray("b"),
                                QCborMap{},
                                1e300,
                                std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity(),
                                std::numeric_limits<qint64>::min(),
                                std::numeric_limits<qint64>::max()};
  for (const QCborValue& key : map.keys()) {
    QCborMap less = map;
    less.remove(key);
    if (!map.value(key).isContainer() || !map.value(key).toMap().isEmpty()) check(less);
    for (const QCborValue& value : wrong) {
      if (value == map.value(key)) continue;
      QCborMap other = map;
      other.insert(key, value);
      check(other);
    }
  }
}

const QStringList kOptional{"header", "footer",  "information", "rect",
                            "date",   "viewBox", "fixedRatioX", "fixedRatioY"};

}  // namespace

class WorkerProtocolTest : public QObject {
  Q_OBJECT
 private slots:
  void everyMessageComesBackTheSame() {
    for (const WorkerMessage& message : messages()) {
      const QByteArray cbor = encodeMessage(message);
      const auto decoded = decodeMessage(cbor);
      QVERIFY(decoded.ok());
      QCOMPARE(decoded->index(), message.index());
      QCOMPARE(mapOf(encodeMessage(*decoded)), mapOf(cbor));
    }
  }

  void theFieldsOfRequestsAreKept() {
    const auto open =
        std::get<OpenRequest>(std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages()[0]))).body);
    QCOMPARE(open.kind, PictureKind::Svg);
    QCOMPARE(open.limits.seconds, 5);
    QCOMPARE(open.limits.memoryMiB, 256);
    QCOMPARE(open.limits.megapixels, 12.5);
    const auto second = std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages()[1])));
    QCOMPARE(second.id, 2u);
    const auto drawn = std::get<RenderRequest>(second.body);
    QCOMPARE(drawn.page, 3);
    QVERIFY(drawn.pictureToDevice == render().pictureToDevice);
    QCOMPARE(drawn.pixelSize, QSize(640, 480));
    QCOMPARE(drawn.purpose, RenderPurpose::Export);
    const auto composed =
        std::get<ComposeRequest>(std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages()[3]))).body);
    QCOMPARE(composed.format, VectorFormat::Eps);
    QCOMPARE(composed.rect, QRectF(-5, -6, 70, 80));
    QCOMPARE(composed.rotate, 0.75);
    const auto svg =
        std::get<SvgRequest>(std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages()[4]))).body);
    QVERIFY(!svg.pretty);
    QCOMPARE(*svg.rect, QRectF(1, 2, 3, 4));
    const auto examine =
        std::get<ExamineRequest>(std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages()[12]))).body);
    QCOMPARE(examine.what, Examination::Inks);
    QCOMPARE(examine.page, 2);
    QCOMPARE(examine.dpi, 144.0);
    QVERIFY(examine.overprint);
    QCOMPARE(examine.part, std::optional(QRectF(3, 4, 50, 60)));
    const auto fork = std::get<ForkRequest>(*decodeMessage(encodeMessage(messages()[7])));
    QVERIFY(fork.postScript);
    QCOMPARE(fork.limits.memoryMiB, 2);
    QCOMPARE(fork.needs, PictureNeeds(NeedPages | NeedPreviews));
  }

  void thePasswordAndTheLayersOfADocumentAreKept() {
    const auto decoded = decodeMessage(encodeMessage(messages().at(messages().size() - 2)));
    QVERIFY(decoded.ok());
    const auto open = std::get<OpenRequest>(std::get<WorkerRequest>(*decoded).body);
    QCOMPARE(open.password, QString("pass word"));
    QCOMPARE(open.layers.size(), 2);
    QCOMPARE(open.layers[1].name, QString("Text"));
    QVERIFY(open.layers[0].shown);
    QVERIFY(!open.layers[1].shown);
  }

  void theAttributesOfAPdfToBeMadeAreKept() {
    const auto again = [](const RequestBody& body) {
      return std::get<WorkerRequest>(*decodeMessage(encodeMessage(WorkerRequest{1, body}))).body;
    };
    const auto isSame = [](const std::optional<PdfAttributes>& read) {
      return read && read->texts == attributes().texts && read->creationDate == attributes().creationDate;
    };
    QVERIFY(isSame(std::get<PdfRequest>(again(PdfRequest{0, attributes()})).attributes));
    ComposeRequest compose{VectorFormat::Pdf, 0, QRectF(0, 0, 1, 1), 0, attributes()};
    QVERIFY(isSame(std::get<ComposeRequest>(again(compose)).attributes));
    compose.attributes.reset();
    QVERIFY(!std::get<ComposeRequest>(again(compose)).attributes);
    QVERIFY(!std::get<PdfRequest>(again(PdfRequest{})).attributes);
  }

  void anSvgToBeMadeWithItsTextKeepsThatWish() {
    for (const bool keep : {true, false}) {
      ComposeRequest compose{VectorFormat::Svg, 0, QRectF(0, 0, 1, 1)};
      compose.keepText = keep;
      const auto again = decodeMessage(encodeMessage(WorkerRequest{1, compose}));
      QVERIFY(again.ok());
      QCOMPARE(std::get<ComposeRequest>(std::get<WorkerRequest>(*again).body).keepText, keep);
    }
  }

  void inksOfTheWholePageNameNoPart() {
    const auto again = decodeMessage(encodeMessage(WorkerRequest{1, ExamineRequest{Examination::Inks}}));
    QVERIFY(again.ok());
    QVERIFY(!std::get<ExamineRequest>(std::get<WorkerRequest>(*again).body).part);
  }

  void theFactsAreKept() {
    const PictureFacts in = richFacts();
    const auto reply = decodeReply(encodeReply({1, in}));
    QVERIFY(reply.ok());
    const PictureFacts out = std::get<PictureFacts>(reply->body);
    QCOMPARE(out.pageBounds, in.pageBounds);
    QCOMPARE(out.pageCount, in.pageCount);
    QCOMPARE(out.attributes, in.attributes);
    QCOMPARE(*out.creationDate, *in.creationDate);
    QCOMPARE(out.creationDate->offsetFromUtc(), -18000);
    QCOMPARE(*out.viewBox, *in.viewBox);
    QCOMPARE(out.title, in.title);
    QCOMPARE(out.description, in.description);
    QCOMPARE(out.encodingName, in.encodingName);
    QCOMPARE(out.encodingNumber, in.encodingNumber);
    QCOMPARE(out.fixedRatioX, in.fixedRatioX);
    QCOMPARE(out.fixedRatioY, in.fixedRatioY);
    QCOMPARE(out.warnings, in.warnings);
    QCOMPARE(out.fonts, in.fonts);
    QCOMPARE(out.colorSpaces, in.colorSpaces);
    const PictureFacts none = std::get<PictureFacts>(decodeReply(encodeReply({1, PictureFacts{}}))->body);
    QVERIFY(!none.creationDate && !none.viewBox && !none.fixedRatioX && !none.fixedRatioY);
  }

  void everyReplyComesBackTheSame() {
    for (const WorkerReply& reply : replies()) {
      const QByteArray cbor = encodeReply(reply);
      const auto decoded = decodeReply(cbor);
      QVERIFY(decoded.ok());
      QCOMPARE(decoded->id, reply.id);
      QCOMPARE(decoded->body.index(), reply.body.index());
      QCOMPARE(mapOf(encodeReply(*decoded)), mapOf(cbor));
    }
  }

  void everyWrongOrMissingFieldIsRefused() {
    int spoilt = 0;
    for (const WorkerMessage& message : messages()) {
      const QCborMap map = mapOf(encodeMessage(message));
      forEachSpoiltMap(map, [&](const QCborMap& other) {
        if (other.size() < map.size() && other.size() + 1 == map.size()) {
          QStringList gone;
          for (const QCborValue& key : map.keys())
            if (!other.contains(key)) gone << key.toString();
          if (kOptional.contains(gone.value(0))) return;
        }
        // No texts at all is a request like any other.
        if (other.value(QLatin1String("texts")).isMap() && other.size() == map.size() &&
            other.value(QLatin1String("texts")) != map.value(QLatin1String("texts")))
          return;
        ++spoilt;
        QVERIFY2(isRefused(decodeMessage(cborOf(other))),
                 qPrintable(other.toCborValue().toDiagnosticNotation()));
      });
    }
    for (const WorkerReply& reply : replies()) {
      const QCborMap map = mapOf(encodeReply(reply));
      forEachSpoiltMap(map, [&](const QCborMap& other) {
        for (const QString& key : kOptional)
          if (map.contains(key) && !other.contains(key)) return;
        // An empty map of attributes is a fact like any other.
        if (other.value(QLatin1String("attributes")).isMap() && other.size() == map.size() &&
            other.value(QLatin1String("attributes")) != map.value(QLatin1String("attributes")))
          return;
        ++spoilt;
        QVERIFY2(isRefused(decodeReply(cborOf(other))),
                 qPrintable(other.toCborValue().toDiagnosticNotation()));
      });
    }
    QVERIFY(spoilt > 500);
  }

  void anotherVersionIsRefused() {
    QCborMap map = mapOf(encodeReply(replies()[5]));
    map.insert(QLatin1String("v"), workerProtocolVersion + 1);
    QVERIFY(isRefused(decodeReply(cborOf(map))));
    map = mapOf(encodeMessage(messages()[2]));
    map.insert(QLatin1String("v"), 0);
    QVERIFY(isRefused(decodeMessage(cborOf(map))));
  }

  void unknownFieldsAndDoubledFieldsAreRefused() {
    QCborMap map = mapOf(encodeReply(replies()[5]));
    map.insert(QLatin1String("more"), 1);
    QVERIFY(isRefused(decodeReply(cborOf(map))));
    QByteArray doubled = encodeReply(replies()[5]);
    doubled[0] = char(doubled[0] + 1);
    doubled += QCborValue("pid").toCbor() + QCborValue(1).toCbor();
    QVERIFY(isRefused(decodeReply(doubled)));
  }

  void whatFollowsTheMessageIsRefused() {
    for (const WorkerReply& reply : replies()) QVERIFY(isRefused(decodeReply(encodeReply(reply) + '\0')));
  }

  void numbersOutOfRangeAreRefused_data() {
    QTest::addColumn<int>("reply");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QCborValue>("value");
    QTest::newRow("negative pages") << 0 << "pages" << QCborValue(-1);
    QTest::newRow("fewer pages than boxes") << 0 << "pages" << QCborValue(1);
    QTest::newRow("negative width") << 0 << "boxes" << listOf({0.0, 0.0, -1.0, 1.0});
    QTest::newRow("integer box") << 0 << "boxes" << listOf({0, 0, 1, 1});
    QTest::newRow("box of three") << 0 << "boxes" << listOf({0.0, 0.0, 1.0});
    QTest::newRow("huge box") << 0 << "viewBox" << QCborValue(QCborArray{0.0, 0.0, 1.1e7, 1.0});
    QTest::newRow("share over 1") << 2 << "share" << QCborValue(1.01);
    QTest::newRow("share below 0") << 2 << "share" << QCborValue(-0.01);
    QTest::newRow("dpi below 0") << 2 << "dpi" << QCborValue(-1.0);
    QTest::newRow("dpi beyond belief") << 2 << "dpi" << QCborValue(1.0e5 + 1);
    QTest::newRow("side 0") << 3 << "size" << QCborValue(QCborArray{0, 1});
    QTest::newRow("side negative") << 3 << "size" << QCborValue(QCborArray{1, -1});
    QTest::newRow("side 65536") << 3 << "size" << QCborValue(QCborArray{65536, 1});
    QTest::newRow("samples 6") << 4 << "samples" << QCborValue(6);
    QTest::newRow("colour space") << 4 << "colorSpace" << QCborValue("NSMadeUpColorSpace");
    QTest::newRow("points negative") << 4 << "pointsWide" << QCborValue(-1.0);
    QTest::newRow("process 0") << 5 << "pid" << QCborValue(0);
    QTest::newRow("process -1") << 5 << "pid" << QCborValue(-1);
    QTest::newRow("kind of error") << 6 << "kind" << QCborValue(int(ErrorKind::NoSandbox) + 1);
    QTest::newRow("id 0") << 6 << "id" << QCborValue(0);
    QTest::newRow("long message") << 6 << "message"
                                  << QCborValue(QString(limits::maximumSentenceLength + 1, 'x'));
    QTest::newRow("long title") << 0 << "title" << QCborValue(QString(limits::maximumTextLength + 1, 'x'));
  }
  void numbersOutOfRangeAreRefused() {
    QCborMap good = mapOf(encodeReply(replies()[0]));
    good.insert(QLatin1String("boxes"), listOf({0.0, 0.0, 1.0, 1.0}));
    QVERIFY(decodeReply(cborOf(good)).ok());
    QFETCH(int, reply);
    QFETCH(QString, key);
    QFETCH(QCborValue, value);
    QCborMap map = mapOf(encodeReply(replies()[reply]));
    QVERIFY(map.contains(key));
    map.insert(key, value);
    QVERIFY(isRefused(decodeReply(cborOf(map))));
  }

  void theSheetsOfAJobAreKept() {
    const auto read = std::get<PagesRequest>(
        std::get<WorkerRequest>(*decodeMessage(encodeMessage(messages().last()))).body);
    QCOMPARE(read.paper, QSizeF(842, 595));
    QCOMPARE(read.sheets.size(), 2);
    QCOMPARE(read.sheets.first().source, QRectF(0, 0, 10, 20));
    QCOMPARE(read.sheets.first().target, QRectF(1, 2, 30, 40));
    QVERIFY(read.sheets.last().target.isEmpty());
    QCOMPARE(read.header->text, QString("\t\tdate"));
    QCOMPARE(read.footer->rect, QRectF(5, 6, 7, 8));
    QCOMPARE(read.title + read.fontFamily, QString("A jobsans-serif"));
    QCOMPARE(read.fontSize, 8.5);
    QVERIFY(!read.picture);
  }

  void unusableSheetsAreRefused() {
    const auto refused = [](const std::function<void(PagesRequest&)>& spoil) {
      PagesRequest request = pages();
      spoil(request);
      return isRefused(decodeMessage(encodeMessage(WorkerRequest{1, request})));
    };
    QVERIFY(!refused([](PagesRequest&) {}));
    QVERIFY(refused([](PagesRequest& request) { request.sheets.clear(); }));
    QVERIFY(refused([](PagesRequest& request) { request.paper = QSizeF(0, 10); }));
    QVERIFY(refused([](PagesRequest& request) { request.paper = QSizeF(1e9, 10); }));
    QVERIFY(refused([](PagesRequest& request) { request.fontSize = 0; }));
    QVERIFY(refused([](PagesRequest& request) { request.fontSize = 1e6; }));
    QVERIFY(refused([](PagesRequest& request) { request.sheets[0].target.setWidth(-1); }));
    QVERIFY(refused(
        [](PagesRequest& request) { request.header->rect.setX(std::numeric_limits<double>::infinity()); }));
  }

  void requestsOutOfRangeAreRefused() {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QList<RequestBody> wrong{
        RenderRequest{0, QTransform(nan, 0, 0, 1, 0, 0), QSize(1, 1), RenderPurpose::View},
        RenderRequest{0, QTransform(1, 0, 0.1, 0, 1, 0, 0, 0, 1), QSize(1, 1), RenderPurpose::View},
        RenderRequest{-1, {}, QSize(1, 1), RenderPurpose::View},
        RenderRequest{0, {}, QSize(0, 1), RenderPurpose::View},
        RenderRequest{0, {}, QSize(1, 65536), RenderPurpose::View},
        RenderRequest{0, {}, QSize(1, 1), RenderPurpose(5)},
        ComposeRequest{VectorFormat::Pdf, 0, QRectF(0, 0, -1, 1), 0},
        ComposeRequest{VectorFormat::Pdf, 0, QRectF(0, 0, 1, 1), nan},
        ComposeRequest{VectorFormat(0), 0, QRectF(0, 0, 1, 1), 0},
        ExamineRequest{Examination::Inks, 0, 72, false, QRectF(0, 0, -1, 1)},
        ExamineRequest{Examination::Inks, 0, 72, false, QRectF(0, 0, 1, 2 * limits::maximumPoints)},
        OpenRequest{PictureKind(4), {}},
        OpenRequest{PictureKind::Eps, {0, 1, 1}},
        OpenRequest{PictureKind::Eps, {1, 1, 0}},
        OpenRequest{PictureKind::Eps, {1, 1, -nan}},
    };
    for (const RequestBody& body : wrong)
      QVERIFY(isRefused(decodeMessage(encodeMessage(WorkerRequest{1, body}))));
    QVERIFY(isRefused(decodeMessage(encodeMessage(WorkerRequest{0, PdfRequest{}}))));
  }

  void longTextsAreClippedSoThatTheMessageIsAccepted() {
    PictureFacts facts = richFacts();
    facts.title = QString(limits::maximumTextLength - 1, 'x') +
                  QStringLiteral("😀");  // the pair would straddle the limit
    facts.description = QString(1 << 20, QChar(0x6f22));
    for (int i = 0; i < 100; ++i)
      facts.attributes.insert(QString::number(i), QString(1 << 16, QChar(0x6f22)));
    for (int i = 0; i < 1000; ++i) facts.warnings << QString(5000, QChar(0x6f22));
    for (int i = 0; i < 1000; ++i) facts.fonts << QString(5000, QChar(0x6f22));
    facts.colorSpaces = facts.fonts;
    facts.pageBounds = QList<QRectF>(5000, QRectF(0, 0, 1, 1));
    const QByteArray cbor = encodeReply({1, facts});
    QVERIFY(cbor.size() <= qsizetype(limits::maximumMessageBytes));
    const auto decoded = decodeReply(cbor);
    QVERIFY(decoded.ok());
    const auto out = std::get<PictureFacts>(decoded->body);
    QCOMPARE(out.title, QString(limits::maximumTextLength - 1, 'x'));
    QCOMPARE(out.description.size(), limits::maximumTextLength);
    QCOMPARE(out.attributes.size(), limits::maximumAttributes);
    QCOMPARE(out.warnings.size(), limits::maximumWarnings);
    QCOMPARE(out.fonts.size(), limits::maximumNames);
    QCOMPARE(out.colorSpaces.size(), limits::maximumNames);
    QCOMPARE(out.fonts.last().size(), limits::maximumNameLength);
    QCOMPARE(out.pageBounds.size(), limits::maximumPageBoxes);
  }

  void taggedValuesAndIndefiniteLengthsAreRefused() {
    QVERIFY(
        isRefused(decodeReply(QByteArray::fromHex("bf6176026269640164747970656466"
                                                  "6f726b6370696401ff"))));
    QByteArray cbor = encodeReply(replies()[5]);
    QVERIFY(decodeReply(cbor).ok());
    QVERIFY(isRefused(decodeReply(QByteArray::fromHex("d9d9f7") + cbor)));
  }

  void deepNestingIsRefused() {
    QVERIFY(isRefused(decodeReply(QByteArray(1 << 20, char(0x81)))));
    QVERIFY(isRefused(decodeReply(QByteArray::fromHex("a1") + QByteArray(1 << 20, char(0x81)))));
    QVERIFY(isRefused(decodeReply(QByteArray::fromHex("a16176") + QByteArray(1 << 20, char(0xa1)))));
  }

  void hugeDeclaredLengthsAreRefused() {
    for (const char* head : {"bb7fffffffffffffff", "bbffffffffffffffff", "a161767b7fffffffffffffff61",
                             "a161769b7fffffffffffffff01", "a1617b7fffffffffffffff", "ba7fffffff"})
      QVERIFY(isRefused(decodeReply(QByteArray::fromHex(head))));
  }

  void everyTruncationIsRefused() {
    for (const WorkerMessage& message : messages()) {
      const QByteArray cbor = encodeMessage(message);
      for (qsizetype n = 0; n < cbor.size(); ++n) QVERIFY(isRefused(decodeMessage(cbor.left(n))));
    }
    for (const WorkerReply& reply : replies()) {
      const QByteArray cbor = encodeReply(reply);
      for (qsizetype n = 0; n < cbor.size(); ++n) QVERIFY(isRefused(decodeReply(cbor.left(n))));
    }
  }

  void flippedBytesNeverCrashAndStayWithinTheLimits() {
    QRandomGenerator random(4711);
    QList<QByteArray> all;
    for (const WorkerMessage& message : messages()) all << encodeMessage(message);
    for (const WorkerReply& reply : replies()) all << encodeReply(reply);
    for (const QByteArray& cbor : all) {
      for (int round = 0; round < 600; ++round) {
        QByteArray spoilt = cbor;
        for (int n = random.bounded(1, 4); n > 0; --n)
          spoilt[random.bounded(int(spoilt.size()))] = char(random.bounded(256));
        (void)decodeMessage(spoilt);
        const auto reply = decodeReply(spoilt);
        if (!reply.ok()) continue;
        // What is accepted survives its own round trip, so nothing in it is out of range.
        QVERIFY(decodeReply(encodeReply(*reply)).ok());
      }
    }
  }
};

NORVEX_TEST(WorkerProtocolTest)
#include "worker_protocol_test.moc"
