#include "encoders/picture_encoder.h"

#include <QColorSpace>
#include <QPainter>
#include <QtEndian>

#include <cmath>
#include <functional>

#include "encoders/dos_eps_writer.h"
#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/forwarding_process.h"
#include "picture/process/memory_picture_service.h"
#include "picture/web_image_rep.h"

using namespace norvex;

namespace {

const QByteArray generatedEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%Title: old\n%%Creator: old\n%%CreationDate: "
    "old\n%%For: old\n"
    "%%EndComments\nshowpage\n";
const QByteArray sourceEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%Title: (Own)\n%%For:\n%%EndComments\nshowpage\n";

MemoryPicture picture() {
  MemoryPicture memory;
  memory.facts.title = QStringLiteral("A Title");
  memory.facts.encodingName = QStringLiteral("utf-8");
  memory.facts.encodingNumber = 4;
  memory.facts.attributes = {{QStringLiteral("Title"), QStringLiteral("Pdf Title")},
                             {QStringLiteral("Creator"), QStringLiteral("Drawer")}};
  memory.compose = [](const ComposeRequest& request) {
    return request.format == VectorFormat::Eps ? generatedEps : QByteArray("%PDF-composed");
  };
  memory.pdf = [](const PdfRequest&) { return QByteArray("%PDF-whole"); };
  memory.svg = [](const SvgRequest& request) {
    return QByteArray(request.pretty ? "<svg pretty/>" : "<svg cut/>");
  };
  return memory;
}

/// A picture service that remembers the attributes that its pictures were given.
class AttributesService final : public ForwardingService {
 public:
  AttributesService() : ForwardingService(memory) {
    MemoryPicture remembering = picture();
    remembering.pdf = [this, whole = remembering.pdf](const PdfRequest& request) {
      return with(request.attributes, whole(request));
    };
    remembering.compose = [this, composed = remembering.compose](const ComposeRequest& request) {
      return with(request.attributes, composed(request));
    };
    remembering.setAttributes = [this](const QByteArray& pdf, const PdfAttributes& attributes) {
      return with(attributes, pdf);
    };
    memory.setPicture(remembering);
  }
  MemoryPictureService memory;
  PdfAttributes given;

 private:
  QByteArray with(const std::optional<PdfAttributes>& attributes, const QByteArray& made) {
    if (!attributes) return made;
    given = *attributes;
    return made + "+attributes";
  }
};

/// Keeps what is logged while it lives.
class LogKeeper {
 public:
  LogKeeper() {
    lines.clear();
    earlier_ = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& message) { lines << message; });
  }
  ~LogKeeper() { qInstallMessageHandler(earlier_); }
  LogKeeper(const LogKeeper&) = delete;
  LogKeeper& operator=(const LogKeeper&) = delete;
  [[nodiscard]] int count(const QString& line) const { return int(lines.count(line)); }

 private:
  static inline QStringList lines;
  QtMessageHandler earlier_;
};

}  // namespace

class PictureEncoderTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { service_ = std::make_unique<AttributesService>(); }

  void withoutAPictureEveryProducerReturnsNothing() {
    PictureEncoder encoder = encoderOf(nullptr);
    QVERIFY(encoder.postScriptData().isEmpty());
    QVERIFY(encoder.postScriptDataWithPreview().isEmpty());
    QVERIFY(encoder.epsiData().isEmpty());
    QVERIFY(encoder.pdfData().isEmpty());
    QVERIFY(encoder.addPDFHeader({}).isEmpty());
    QVERIFY(encoder.svgData().isEmpty());
    QVERIFY(encoder.tiffData(nullptr).isEmpty());
    QVERIFY(encoder.pngData(nullptr).isEmpty());
    QVERIFY(encoder.jpgData(nullptr).isEmpty());
    QVERIFY(encoder.gifData(nullptr).isEmpty());
  }

  void anEpsSourceIsHandedOnByteForByte() { QCOMPARE(encoderOf(eps()).postScriptData(), sourceEps); }
  void anSvgAsEpsGetsItsTitleAndTheDefaults() {
    const QByteArray out = encoderOf(svg()).postScriptData();
    QVERIFY2(
        out.contains("%%Title: A Title\n%%Creator: MainWindowController by Tembrolix.\n%%CreationDate: "),
        out);
    QVERIFY2(out.contains("2026"), out);
    QVERIFY2(out.contains("%%For: Ann User\n"), out);
  }
  void aPdfAsEpsGetsItsAttributes() {
    const QByteArray out = encoderOf(pdf()).postScriptData();
    QVERIFY2(out.contains("%%Title: Pdf Title\n%%Creator: Drawer\n"), out);
  }
  void aFailingPictureProcessGivesNothingAndTheReason() {
    const auto rep = svg();
    service_->memory.lastProcess()->fail(PictureCall::Compose, {ErrorKind::Died, QStringLiteral("it died")});
    PictureEncoder encoder = encoderOf(rep);
    QVERIFY(encoder.postScriptData().isEmpty());
    QVERIFY(encoder.report().error);
    QCOMPARE(encoder.report().error->message, QStringLiteral("it died"));
  }

  void theBinaryFileHasAPreviewAndTheSourcesOwnText() {
    const QByteArray out = encoderOf(eps()).postScriptDataWithPreview();
    QCOMPARE(out.left(4).toHex(), QByteArray("c5d0d3c6"));
    QVERIFY(out.endsWith(sourceEps));
    QCOMPARE(out.mid(30, 2), QByteArray("II"));
  }
  void ofABinarySourceOnlyThePostScriptSectionStays() {
    const QByteArray binary = encoderOf(eps()).postScriptDataWithPreview();
    const QByteArray again = encoderOf(eps(binary)).postScriptDataWithPreview();
    QCOMPARE(again, binary);
  }
  void aPdfWithAPreviewGetsTheGeneratedPostScript() {
    const QByteArray out = encoderOf(pdf()).postScriptDataWithPreview();
    QCOMPARE(out.left(4).toHex(), QByteArray("c5d0d3c6"));
    QVERIFY(out.contains(
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%Title: Pdf Title\n%%Creator: Drawer\n"));
    QVERIFY(out.endsWith("%%EndComments\nshowpage\n"));
  }
  void withoutPostScriptThePreviewStandsAlone_data() {
    QTest::addColumn<bool>("isPdf");
    QTest::newRow("PDF") << true;
    QTest::newRow("SVG") << false;
  }
  void withoutPostScriptThePreviewStandsAlone() {
    QFETCH(bool, isPdf);
    const auto rep = isPdf ? std::shared_ptr<NSImageRep>(pdf()) : svg();
    service_->memory.lastProcess()->fail(PictureCall::Compose, {ErrorKind::Died, QStringLiteral("it died")});
    PictureEncoder encoder = encoderOf(rep);
    const QByteArray out = encoder.postScriptDataWithPreview();
    QCOMPARE(out.left(4).toHex(), QByteArray("c5d0d3c6"));
    QCOMPARE(out.mid(8, 4), QByteArray(4, '\0'));
    const auto tiffLength = qFromLittleEndian<quint32>(out.constData() + 24);
    QCOMPARE(out.size(), 30 + qsizetype(tiffLength));
    QVERIFY(encoder.report().error && !encoder.report().shortcoming.isEmpty());
  }
  void whatIsCancelledIsNoPreviewWithoutPostScript() {
    const CancelToken cancel;
    const auto rep = svg();
    MemoryPicture memory = picture();
    memory.compose = [cancel](const ComposeRequest&) {
      cancel.cancel();
      return QByteArray();
    };
    service_->memory.setPicture(memory);
    QVERIFY(PictureEncoder(svg(), usual(), cancel).postScriptDataWithPreview().isEmpty());
  }

  void theProfileReachesEveryRasterFormatThatWritesOne_data() {
    QTest::addColumn<PictureFormat>("format");
    for (const PictureFormat format :
         {PictureFormat::Tiff, PictureFormat::Png, PictureFormat::Jpeg, PictureFormat::Gif})
      QTest::newRow(rowOf(format).name.data()) << format;
  }
  void theProfileReachesEveryRasterFormatThatWritesOne() {
    QFETCH(PictureFormat, format);
    const auto rep = svg();
    for (const bool given : {true, false}) {
      EncoderSurroundings surroundings = usual();
      surroundings.iccProfile = given ? QColorSpace(QColorSpace::AdobeRgb).iccProfile() : QByteArray();
      const QByteArray bytes = PictureEncoder(rep, surroundings).rasterData(format, rep);
      QVERIFY(!bytes.isEmpty());
      if (format == PictureFormat::Png)
        QCOMPARE(bytes.contains("iCCP"), given);
      else if (format == PictureFormat::Gif)
        QCOMPARE(bytes.contains("ICCRGBG1012"), given);
      else
        QCOMPARE(bytes.contains(QColorSpace(QColorSpace::AdobeRgb).iccProfile()), given);
    }
  }

  void aSourceThatIsNoTextGoesOverByteForByte() {
    // Invalid in UTF-8, Shift JIS, EUC-JP, non-lossy ASCII and ASCII alike.
    const QByteArray source = sourceEps + QByteArray("\xFF\x80\xFD\xA0\0\xFF", 6);
    PictureEncoder encoder = encoderOf(eps(source));
    const QByteArray out = encoder.postScriptDataWithPreview();
    QVERIFY(out.endsWith(source));
    QCOMPARE(out.mid(8, 4), char(source.size()) + QByteArray(3, '\0'));
    QCOMPARE(encoder.report().warnings, QStringList());
    PictureEncoder epsi = encoderOf(eps(source));
    const QByteArray interchange = epsi.epsiData();
    const qsizetype behindComments = source.indexOf("%%EndComments") + 13;
    QVERIFY(interchange.startsWith(source.first(behindComments) + "\n%%BeginPreview: 200 100 8 200\n"));
    QVERIFY(interchange.endsWith("\n%%EndPreview\n" + source.sliced(behindComments)));
  }
  void aPreviewInATitleIsNone() {
    MemoryPicture memory = picture();
    memory.facts.title = QStringLiteral("a %%BeginPreview: 1 1 1 1 %%EndComments quit");
    service_->memory.setPicture(memory);
    const QByteArray out = encoderOf(svg()).epsiData();
    QVERIFY(out.contains("\n%%EndComments\n%%BeginPreview: 200 100 8 200\n"));
  }

  void aFontThatIsMissingIsAWarningAndNothingThatTheFileLacks() {
    MemoryPicture memory = picture();
    memory.drawingRemarks = {"the font A is missing, B stands in for it"};
    service_->memory.setPicture(memory);
    const auto rep = eps();
    PictureEncoder encoder = encoderOf(rep);
    QVERIFY(!encoder.postScriptDataWithPreview().isEmpty());
    QVERIFY(!encoder.pngData(rep).isEmpty());
    QCOMPARE(encoder.report().warnings, memory.drawingRemarks);  // once
    QCOMPARE(encoder.report().shortcoming, QString());
  }

  void aPreviewIsInsertedAfterTheComments() {
    const QByteArray out = encoderOf(eps()).epsiData();
    QVERIFY2(out.contains("%%EndComments\n%%BeginPreview: 200 100 8 200\n%"),
             out.left(300));  // two lines a row
    QVERIFY(out.endsWith("\n%%EndPreview\n\nshowpage\n"));
  }
  void aSourceWithAPreviewGetsNoSecondOne() {
    const QByteArray source = encoderOf(eps()).epsiData();
    QCOMPARE(encoderOf(eps(source)).epsiData(), source);
  }
  void aBinarySourceWithAnInterchangePreviewIsHandedOnWhole() {
    const QByteArray binary = dosEpsFile("II*", encoderOf(eps()).epsiData());
    QCOMPARE(encoderOf(eps(binary)).epsiData(), binary);
  }
  void anSvgAsEpsiHasTheRewrittenHeader() {
    const QByteArray out = encoderOf(svg()).epsiData();
    QVERIFY(out.contains("%%Title: A Title\n"));
    QVERIFY(out.contains("%%BeginPreview: 200 100 8 200\n"));
  }

  void aPdfSourceIsHandedOnAsItIs() { QCOMPARE(encoderOf(pdf()).pdfData(), QByteArray("%PDF-source")); }
  void theProcessMayGoAfterItsLastUse() {
    for (const bool last : {false, true}) {
      EncoderSurroundings surroundings = usual();
      surroundings.isLastUse = last;
      const auto rep = svg();
      const auto process = service_->memory.lastProcess();
      QVERIFY(!PictureEncoder(rep, surroundings).pngData(rep).isEmpty());
      QCOMPARE(process->retirements(), last ? 1 : 0);
      QVERIFY(!PictureEncoder(rep, surroundings).pdfData().isEmpty());
      QCOMPARE(process->retirements(), last ? 2 : 0);
      QVERIFY(!PictureEncoder(rep, surroundings).epsiData().isEmpty());  // it asks for two things
      QCOMPARE(process->retirements(), last ? 2 : 0);
    }
  }

  void anSvgAsPdfGetsAttributes() {
    QCOMPARE(encoderOf(svg()).pdfData(), QByteArray("%PDF-whole+attributes"));
    QCOMPARE(service_->given.texts.value(QStringLiteral("Title")), QStringLiteral("A Title"));
    QCOMPARE(service_->given.texts.value(QStringLiteral("Creator")), QStringLiteral("Norvex 1.0"));
    QCOMPARE(service_->given.creationDate.value_or(QDateTime()), now_);
  }
  void anEpsAsPdfGetsTheUserAsAuthorWhenItsOwnerIsEmpty() {
    QCOMPARE(encoderOf(eps()).pdfData(), QByteArray("%PDF-composed+attributes"));
    QCOMPARE(service_->given.texts.value(QStringLiteral("Author")), QStringLiteral("Ann User"));
    QCOMPARE(service_->given.texts.value(QStringLiteral("Title")), QStringLiteral("(Own)"));
  }

  void aDescriptionWithoutATitleHasNoSubjectToStore() {
    MemoryPicture memory = picture();
    memory.facts.title = QString();
    memory.facts.description = QStringLiteral("d");
    memory.pdf = [this](const PdfRequest& request) {
      if (request.attributes) service_->given = *request.attributes;
      return QByteArray(request.attributes ? "%PDF-whole+attributes" : "%PDF-whole");
    };
    service_->memory.setPicture(memory);
    PictureEncoder strict = encoderOf(svg());
    QVERIFY(strict.pdfData().isEmpty());
    QVERIFY(strict.report().error);
    EncoderSurroundings surroundings = usual();
    surroundings.subjectMayBeLeftOut = true;
    PictureEncoder lenient(svg(), surroundings);
    QCOMPARE(lenient.pdfData(), QByteArray("%PDF-whole+attributes"));
    QCOMPARE(lenient.report().warnings.size(), 1);
    QVERIFY(!service_->given.texts.contains(QStringLiteral("Subject")));
  }

  void anotherDepthThanTheWindowsIsLogged_data() {
    QTest::addColumn<NSWindowDepth>("limit");
    QTest::addColumn<int>("lines");
    QTest::newRow("8 bits") << NSWindowDepth{8, 24} << 0;
    QTest::newRow("10 bits") << NSWindowDepth{10, 30} << 1;
    QTest::newRow("5 bits") << NSWindowDepth{5, 15} << 1;
  }
  void anotherDepthThanTheWindowsIsLogged() {
    QFETCH(NSWindowDepth, limit);
    QFETCH(int, lines);
    EncoderSurroundings surroundings = usual();
    surroundings.defaultDepthLimit = limit;
    const auto logged = [&](const std::function<QByteArray(PictureEncoder&)>& produce, const auto& rep) {
      PictureEncoder encoder(rep, surroundings);
      LogKeeper log;
      (void)produce(encoder);
      return log.count("setCacheDepthMatchesImageDepth YES.");
    };
    const auto withPreview = [](PictureEncoder& encoder) { return encoder.postScriptDataWithPreview(); };
    const auto interchange = [](PictureEncoder& encoder) { return encoder.epsiData(); };
    for (const auto& rep : {eps(), svg(), pdf()}) {
      QCOMPARE(logged(withPreview, rep), lines);
      QCOMPARE(logged(interchange, rep), lines);
      QCOMPARE(logged([](PictureEncoder& encoder) { return encoder.pdfData(); }, rep), 0);
    }
    // No preview is made: nothing is compared.
    QCOMPARE(logged(withPreview, std::shared_ptr<NSImageRep>()), 0);
    QCOMPARE(logged(interchange, eps(QByteArray(sourceEps) + "%%BeginPreview: 1 1 8 1\n%00\n%%EndPreview\n")),
             0);
  }
  void theBestDepthIsThatOfTheColours() {
    QCOMPARE(NSBestDepth(8, 32), NSBestDepth(8, 24));
    QVERIFY(NSBestDepth(8, 32) == NSWindowDepth());
    QVERIFY(!(NSBestDepth(10, 32) == NSWindowDepth()));
  }
  void theHeaderOfASourceIsReadOnce() {
    const auto readings = [&](const std::function<QByteArray(PictureEncoder&)>& produce) {
      PictureEncoder encoder = encoderOf(eps("\xEF\xBB\xBF" + sourceEps));
      LogKeeper log;
      if (produce(encoder).isEmpty()) return -1;
      if (encoder.header().value(header::Title) != "(Own)") return -2;
      return log.count("complete UTF-8");  // is written by each reading
    };
    QCOMPARE(readings([](PictureEncoder& encoder) { return encoder.postScriptDataWithPreview(); }), 1);
    QCOMPARE(readings([](PictureEncoder& encoder) { return encoder.epsiData(); }), 1);
    QCOMPARE(readings([](PictureEncoder& encoder) { return encoder.pdfData(); }), 1);
  }
  void anSvgIsWrittenFromItsTextAndAnythingElseFromItsDrawing() {
    QCOMPARE(encoderOf(svg()).svgData(), QByteArray("<svg pretty/>"));
    QVERIFY(service_->memory.lastProcess()->composeRequests().isEmpty());
    for (const bool isPostScript : {true, false}) {
      const std::shared_ptr<NSImageRep> rep = isPostScript ? eps() : pdf();
      QVERIFY(!encoderOf(rep).svgData().isEmpty());
      const ComposeRequest asked = service_->memory.lastProcess()->composeRequests().constLast();
      QCOMPARE(asked.format, VectorFormat::Svg);
      QVERIFY(asked.attributes);
    }
  }

  void anSvgOfAnotherPictureNamesItsFacts() {
    const auto factsOf = [this](const std::shared_ptr<NSImageRep>& rep) {
      (void)encoderOf(rep).svgData();
      return service_->memory.lastProcess()->composeRequests().constLast().attributes->texts;
    };
    const QByteArray source =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%Title: T\n%%Creator: C\n%%CreationDate: D\n"
        "%%For: F\n%%Copyright: R\n%%EndComments\nshowpage\n";
    using Texts = decltype(PdfAttributes::texts);
    QCOMPARE(
        factsOf(eps(source)),
        (Texts{
            {"Title", "T"}, {"Creator", "C"}, {"CreationDate", "D"}, {"Author", "F"}, {"Copyright", "R"}}));
    MemoryPicture memory = picture();
    memory.facts.attributes.insert("Author", "Ann");
    memory.facts.attributes.insert("Subject", "About");
    service_->memory.setPicture(memory);
    QCOMPARE(factsOf(pdf()),
             (Texts{{"Title", "Pdf Title"}, {"Creator", "Drawer"}, {"Author", "Ann"}, {"Subject", "About"}}));
  }

  void aRasterHasOnePixelAPoint() {
    const auto rep = svg();
    const QImage image = QImage::fromData(encoderOf(rep).pngData(rep));
    QCOMPARE(image.size(), QSize(200, 100));
    QCOMPARE(service_->memory.lastProcess()->renderRequests().constLast().purpose, RenderPurpose::Export);
  }
  void aRasterIsTheRightWayUp() {
    const auto rep = svg();  // the test pattern's green grows upwards
    const QImage image = QImage::fromData(encoderOf(rep).pngData(rep));
    QVERIFY(image.pixelColor(100, 2).green() > 240);
    QVERIFY(image.pixelColor(100, 97).green() < 15);
    QVERIFY(image.pixelColor(197, 50).red() > 240);
  }
  void moreDotsPerInchAreMorePixels() {
    EncoderSurroundings surroundings = usual();
    surroundings.raster.dpi = 144;
    const auto rep = svg();
    QCOMPARE(QImage::fromData(PictureEncoder(rep, surroundings).pngData(rep)).size(), QSize(400, 200));
  }
  void aBackgroundFillsWhatIsNotPainted() {
    EncoderSurroundings surroundings = usual();
    surroundings.raster.background = QColor(10, 20, 30);
    surroundings.region = PictureRegion{QRectF(-100, -50, 400, 100), 0};
    const auto rep = svg();
    const QImage image = QImage::fromData(PictureEncoder(rep, surroundings).pngData(rep));
    QCOMPARE(image.size(), QSize(400, 100));
    QCOMPARE(image.pixelColor(390, 50), QColor(10, 20, 30));
    QVERIFY(!image.hasAlphaChannel());
  }
  void aTurnedRegionIsRenderedTurned() {
    EncoderSurroundings surroundings = usual();
    const double quarter = std::acos(-1.0) / 2;
    surroundings.region = PictureRegion{QRectF(-50, -100, 100, 200), quarter};
    const auto rep = svg();
    const QImage image = QImage::fromData(PictureEncoder(rep, surroundings).pngData(rep));
    QCOMPARE(image.size(), QSize(100, 200));
    QVERIFY(image.pixelColor(50, 2).red() > 240);     // the right edge is up now
    QVERIFY(image.pixelColor(2, 100).green() > 240);  // and the upper edge at the left
  }
  void aRegionOfAnSvgIsCut() {
    EncoderSurroundings surroundings = usual();
    surroundings.region = PictureRegion{QRectF(-50, 10, 30, 20), 0.5};
    QCOMPARE(PictureEncoder(svg(), surroundings).svgData(), QByteArray("<svg cut/>"));
  }
  void aRegionOfAnSvgIsCutFromItsUpperLeftCorner() {
    SvgRequest asked;
    MemoryPicture memory = picture();
    memory.svg = [&asked](const SvgRequest& request) {
      asked = request;
      return QByteArray("<svg/>");
    };
    service_->memory.setPicture(memory);
    EncoderSurroundings surroundings = usual();
    surroundings.region = PictureRegion{QRectF(-50, 10, 30, 20), 0};
    QVERIFY(!PictureEncoder(svg(), surroundings).svgData().isEmpty());
    QCOMPARE(asked.rect, std::optional(QRectF(50, 20, 30, 20)));
    QCOMPARE(asked.rotate, 0.0);
    const double quarter = std::acos(-1.0) / 2;
    surroundings.region->rotate = quarter;  // now the picture is 100 wide and 200 high
    QVERIFY(!PictureEncoder(svg(), surroundings).svgData().isEmpty());
    QVERIFY(std::abs(asked.rect->x()) < 1e-9);
    QVERIFY(std::abs(asked.rect->y() - 70) < 1e-9);
    QCOMPARE(asked.rect->size(), QSizeF(30, 20));
    QCOMPARE(asked.rotate, 3 * quarter);
  }
  void aRegionOfAnEpsKeepsItsFacts() {
    EncoderSurroundings surroundings = usual();
    surroundings.region = PictureRegion{QRectF(0, 0, 10, 10), 0};
    const QByteArray out = PictureEncoder(eps(), surroundings).postScriptData();
    QVERIFY2(out.contains("%%Title: (Own)\n"), out);
    QCOMPARE(service_->memory.lastProcess()->composeRequests().constLast().rect, QRectF(0, 0, 10, 10));
  }

 private:
  EncoderSurroundings usual() {
    EncoderSurroundings surroundings;
    surroundings.service = service_.get();
    surroundings.userFullName = QStringLiteral("Ann User");
    surroundings.applicationName = QStringLiteral("Norvex");
    surroundings.applicationVersion = QStringLiteral("1.0");
    surroundings.now = now_;
    return surroundings;
  }
  PictureEncoder encoderOf(const std::shared_ptr<NSImageRep>& rep) { return {rep, usual()}; }
  std::shared_ptr<NSImageRep> eps(const QByteArray& bytes = sourceEps) {
    return *NSEPSImageRep::imageRepWithData(*service_, bytes);
  }
  std::shared_ptr<NSImageRep> pdf() { return *NSPDFImageRep::imageRepWithData(*service_, "%PDF-source"); }
  std::shared_ptr<NSImageRep> svg() { return *ZyWebImageRep::imageRepWithData(*service_, "<svg/>"); }

  std::unique_ptr<AttributesService> service_;
  const QDateTime now_{QDate(2026, 3, 4), QTime(5, 6), Qt::UTC};
};

NORVEX_TEST(PictureEncoderTest)
#include "picture_encoder_test.moc"
