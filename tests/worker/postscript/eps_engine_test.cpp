#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <cmath>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/pdf/pdf_file.h"
#include "worker/postscript/distill.h"
#include "worker/postscript/distiller.h"
#include "worker/postscript/eps_engine.h"
#include "worker/postscript/ghostscript.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

// One document with a scratch folder of its own.
class Opened {
 public:
  explicit Opened(const QByteArray& eps, bool warm = false) {
    context_.scratchFolder = folder_.path();
    context_.limits.seconds = 60;
    if (warm) warmUpGhostscript(context_);
    auto engine = openEps(eps, context_);
    if (engine)
      engine_ = std::move(*engine);
    else
      error_ = engine.error();
  }
  [[nodiscard]] bool ok() const { return engine_ != nullptr; }
  [[nodiscard]] const Error& error() const { return error_; }
  DocumentEngine* operator->() { return engine_.get(); }
  EngineContext& context() { return context_; }

  /// The whole picture, a pixel a point.
  QImage image() {
    const QRectF box = engine_->facts()->pageBounds.first();
    RenderRequest request;
    request.pixelSize = box.size().toSize();
    request.pictureToDevice = QTransform(1, 0, 0, -1, 0, box.height());
    const auto result = kit::imageOf(engine_->render(request));
    if (result) return *result;
    error_ = result.error();
    return {};
  }

 private:
  QTemporaryDir folder_;
  EngineContext context_;
  Error error_;
  std::unique_ptr<DocumentEngine> engine_;
};

QByteArray eps(const QByteArray& body, const QByteArray& box = "%%BoundingBox: 0 0 60 40") {
  return "%!PS-Adobe-3.0 EPSF-3.0\n" + box + "\n%%EndComments\n" + body;
}

// Left half red, a blue square in the upper right corner, in a box of 60 × 40 whose lower-left corner is the
// origin.
const QByteArray kBody = "1 0 0 setrgbcolor 0 0 30 40 rectfill 0 0 1 setrgbcolor 50 30 10 10 rectfill\n";
const QRgb kRed = qRgba(255, 0, 0, 255);
const QRgb kBlue = qRgba(0, 0, 255, 255);

bool showsBody(const QImage& image) {
  return image.size() == QSize(60, 40) && image.pixel(15, 20) == kRed && image.pixel(55, 5) == kBlue &&
         image.pixel(45, 20) == 0u && image.pixel(55, 15) == 0u;
}

QByteArray dosEps(const QByteArray& postScript) {
  QByteArray header("\xC5\xD0\xD3\xC6", 4);
  const auto number = [&](quint32 value) {
    for (int i = 0; i < 4; ++i) header.append(char((value >> (8 * i)) & 0xFF));
  };
  number(30 + 7), number(quint32(postScript.size())), number(0), number(0), number(30), number(7);
  return header + QByteArray("\xFF\xFF", 2) + "preview" + postScript + "\nbehind the section (";
}

}  // namespace

class EpsEngineTest : public QObject {
  Q_OBJECT
 private slots:
  void boundsComeFromTheHeaderWithoutRunningTheProgram_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QRectF>("bounds");
    const QByteArray never = "{} loop\n";
    QTest::newRow("whole numbers") << eps(never) << QRectF(0, 0, 60, 40);
    QTest::newRow("reals and a negative origin")
        << eps(never, "%%BoundingBox: -10.5 -20 30.25 40") << QRectF(-10.5, -20, 40.75, 60);
    QTest::newRow("the finer box is not taken")
        << eps(never, "%%BoundingBox: 0 0 60 40\n%%HiResBoundingBox: 0.5 0.5 59.5 39.5")
        << QRectF(0, 0, 60, 40);
    QTest::newRow("at the end") << eps(never + "%%Trailer\n%%BoundingBox: 1 2 61 42\n%%EOF\n",
                                       "%%BoundingBox: (atend)")
                                << QRectF(1, 2, 60, 40);
    QTest::newRow("binary") << dosEps(eps(never)) << QRectF(0, 0, 60, 40);
  }
  void boundsComeFromTheHeaderWithoutRunningTheProgram() {
    QFETCH(QByteArray, source);
    QFETCH(QRectF, bounds);
    Opened opened(source);
    QVERIFY2(opened.ok(), qPrintable(opened.error().message));
    const auto facts = opened->facts();
    QVERIFY(facts.ok());
    QCOMPARE(facts->pageBounds, QList<QRectF>{bounds});
    QCOMPARE(facts->pageCount, 1);
  }

  void withoutAUsableBoxNothingIsOpened_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no box") << eps(kBody, "%%Title: x");
    QTest::newRow("an empty box") << eps(kBody, "%%BoundingBox: 0 0 0 0");
    QTest::newRow("an endless one") << eps(kBody, "%%BoundingBox: 0 0 inf 1e400");
    QTest::newRow("not PostScript") << QByteArray("GIF89a something else");
  }
  void withoutAUsableBoxNothingIsOpened() {
    QFETCH(QByteArray, source);
    Opened opened(source);
    QVERIFY(!opened.ok());
    QCOMPARE(opened.error().kind, ErrorKind::NotParsable);
    QVERIFY(!opened.error().message.isEmpty());
  }

  void itIsDrawn_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("with showpage") << eps(kBody + "showpage\n%%EOF\n");
    QTest::newRow("without showpage") << eps(kBody);
    QTest::newRow("showpage within save and restore") << eps("save\n" + kBody + "showpage restore\n");
    QTest::newRow("ended by quit") << eps(kBody + "quit\nwhat follows is never read (((");
    QTest::newRow("control D around it") << '\x04' + eps(kBody + "showpage\n") + '\x04';
    QTest::newRow("carriage returns") << eps(kBody + "showpage\n").replace('\n', '\r');
    QTest::newRow("box at the end") << eps(kBody + "showpage\n%%Trailer\n%%BoundingBox: 0 0 60 40\n",
                                           "%%BoundingBox: (atend)");
    QTest::newRow("sets its own page")
        << eps("<< /PageSize [500 500] >> setpagedevice\n" + kBody + "showpage\n");
    QTest::newRow("goes back to the page's coordinates")
        << eps("7 7 scale initgraphics\n" + kBody + "showpage\n");
    QTest::newRow("its own showpage") << eps("/showpage {} def\n" + kBody + "showpage\n");
    QTest::newRow("speaks to standard output")
        << eps("(%PDF- hello) print flush\n" + kBody + "(%PDF-) = showpage\n");
    QTest::newRow("leaves a full stack behind") << eps("1 2 3 << /a 1 >> begin\n" + kBody + "showpage 4 5\n");
    QTest::newRow("zeros after the end") << eps(kBody + "showpage\n%%EOF\n") + QByteArray(600, '\0');
    QTest::newRow("binary, with something behind the section") << dosEps(eps(kBody + "showpage\n"));
    QTest::newRow("moved") << eps("-100 -200 translate 70 150 translate\n" + kBody + "showpage\n",
                                  "%%BoundingBox: -30 -50 30 -10");
    QTest::newRow("paints beyond its box")
        << eps("0 0 1 setrgbcolor 1000 1000 9 9 rectfill\n" + kBody + "showpage\n");
  }
  void itIsDrawn() {
    QFETCH(QByteArray, source);
    Opened opened(source);
    QVERIFY2(opened.ok(), qPrintable(opened.error().message));
    QVERIFY2(showsBody(opened.image()), qPrintable(opened.error().message));
  }

  void theDistilledPageIsTheBox() {
    Opened opened(eps("0 0 1000 1000 rectfill showpage\n", "%%BoundingBox: -10.125 -20 30.25 40.0625"));
    const auto pdf = opened->pdf({});
    QVERIFY2(pdf.ok(), pdf ? "" : qPrintable(pdf.error().message));
    auto file = PdfFile::open(pdf->bytes);
    QVERIFY(file.ok());
    QCOMPARE((*file)->pageCount(), 1);
    const QRectF box = (*file)->geometry(0).shownBounds();
    QCOMPARE(box.topLeft(), QPointF(0, 0));
    QVERIFY(std::abs(box.width() - 40.375) < 0.01 && std::abs(box.height() - 60.0625) < 0.01);
  }

  void coloursStayWhatTheyAre() {
    Opened opened(
        eps("0.1 0.2 0.3 0.4 setcmykcolor 0 0 10 10 rectfill\n"
            "[/Separation (Spot Green) /DeviceCMYK {dup 0 exch 0}] setcolorspace 0.5 setcolor 10 10 9 9 "
            "rectfill showpage\n"));
    const auto pdf = opened->pdf({});
    QVERIFY(pdf.ok());
    auto file = PdfFile::open(pdf->bytes);
    QVERIFY(file.ok());
    const auto data = (*file)->page(0).getKey("/Contents").getStreamData();
    const QByteArray contents(reinterpret_cast<const char*>(data->getBuffer()), qsizetype(data->getSize()));
    const QRegularExpression cmyk("([\\d.]+) ([\\d.]+) ([\\d.]+) ([\\d.]+) k\\s");
    const auto match = cmyk.match(QString::fromLatin1(contents));
    for (int i = 1; i <= 4; ++i)
      QVERIFY2(std::abs(match.captured(i).toDouble() - 0.1 * i) < 0.001, contents.constData());
    bool spot = false;
    for (auto& object : (*file)->qpdf().getAllObjects())
      spot = spot || (object.isArray() && object.getArrayNItems() == 4 && object.getArrayItem(1).isName() &&
                      object.getArrayItem(1).getName() == "/Spot Green");
    QVERIFY(spot);
  }

  /// Applied to them they would make a tint of orange green.
  void transferFunctionsLeaveSpotInksTheirColours() {
    const QByteArray ink = "[/Separation (Orange) /DeviceCMYK {0 exch dup 0}] setcolorspace 0.5 setcolor\n";
    Opened without(eps(ink + "20 0 20 40 rectfill showpage\n"));
    QVERIFY(without.ok());
    const QRgb orange = without.image().pixel(30, 20);
    QVERIFY(qRed(orange) > qGreen(orange) && qGreen(orange) > qBlue(orange));
    Opened within(eps("{dup mul} settransfer " + ink + "20 0 20 40 rectfill showpage\n"));
    QVERIFY(within.ok());
    QCOMPARE(within.image().pixel(30, 20), orange);
    // Beside them they are seen.
    Opened beside(eps("{1 exch sub} settransfer 0 setgray 0 0 20 40 rectfill {} settransfer " + ink +
                      "20 0 20 40 rectfill showpage\n"));
    QVERIFY(beside.ok());
    const QImage image = beside.image();
    QCOMPARE(image.pixel(10, 20), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(30, 20), orange);
  }

  void transferFunctionsAreSeen() {
    Opened inverted(
        eps("{1 exch sub} settransfer 0.2 setgray 0 0 20 40 rectfill 1 0 0 setrgbcolor 20 0 20 40 rectfill\n"
            "gsave 40 0 translate 20 40 scale 1 2 8 [1 0 0 2 0 0] {<00FF>} image grestore showpage\n"));
    QVERIFY(inverted.ok());
    const QImage image = inverted.image();
    QCOMPARE(image.pixel(10, 20), qRgb(204, 204, 204));
    QCOMPARE(image.pixel(30, 20), qRgb(0, 255, 255));
    QCOMPARE(image.pixel(50, 35), qRgb(255, 255, 255));  // black paint at the bottom
    QCOMPARE(image.pixel(50, 5), qRgb(0, 0, 0));
  }

  /// A program may end the second time where it did not the first time, and time is for both.
  void whereTransferFunctionsCannotBeAppliedThePictureIsThereWithoutThem() {
    const QByteArray drawing =
        "{1 exch sub} settransfer 0.2 setgray 0 0 20 40 rectfill\n"
        "currentdistillerparams /TransferFunctionInfo get /Apply eq { {} loop } if showpage\n";
    Opened opened(eps(drawing));
    QVERIFY(opened.ok());
    opened.context().limits.seconds = 6;
    QCOMPARE(opened.image().pixel(10, 20), qRgb(51, 51, 51));
    QCOMPARE(opened.context().limits.seconds, 6);
  }

  void textStaysText() {
    Opened opened(eps("/Helvetica findfont 12 scalefont setfont 5 5 moveto (words) show showpage\n"));
    const auto pdf = opened->pdf({});
    QVERIFY(pdf.ok());
    auto file = PdfFile::open(pdf->bytes);
    QVERIFY(file.ok());
    QVERIFY((*file)->page(0).getKey("/Resources").hasKey("/Font"));
  }

  void anErrorInTheProgramIsOneSentence() {
    Opened opened(eps("nosuchoperator\n" + kBody + "showpage\n"));
    QVERIFY(opened.ok());
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().kind, ErrorKind::NotParsable);
    QCOMPARE(opened.error().message, QString("PostScript error: undefined in nosuchoperator"));
    QVERIFY(opened->facts().ok());  // the document stays usable
  }

  void whatWasDrawnBeforeAnErrorIsShown_data() {
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("at once") << QByteArray("nosuchoperator showpage\n");
    QTest::newRow("within saved states") << QByteArray("gsave save 9 9 scale gsave nosuchoperator\n");
    QTest::newRow("away from the device") << QByteArray("gsave nulldevice nosuchoperator\n");
    QTest::newRow("in a glyph") << QByteArray(
        "9 dict begin /FontType 3 def /FontMatrix [1 0 0 1 0 0] def /FontBBox [0 0 1 1] def /Encoding "
        "StandardEncoding def /BuildChar { pop pop 1 0 setcharwidth nosuchoperator } def currentdict end /F "
        "exch definefont 9 scalefont setfont 1 1 moveto (a) show\n");
    QTest::newRow("with full stacks")
        << QByteArray("/nosuchoperator load stop\n").replace("stop", "0 1 9999999 { } for");
    QTest::newRow("its own operators")
        << QByteArray("/showpage {} def /grestoreall {} def /clear {} def nosuchoperator\n");
    QTest::newRow("in a clip") << QByteArray("0 0 1 1 rectclip nosuchoperator\n");
  }
  void whatWasDrawnBeforeAnErrorIsShown() {
    QFETCH(QByteArray, end);
    Opened opened(eps(kBody + end));
    QVERIFY2(showsBody(opened.image()), qPrintable(opened.error().message));
    const auto facts = opened->facts();
    QVERIFY(facts.ok());
    QVERIFY2(facts->stoppedBy.startsWith("PostScript error: "), qPrintable(facts->stoppedBy));
    QCOMPARE(opened->drawingRemarks(), QStringList{facts->stoppedBy});
    const auto pdf = opened->pdf({});
    QVERIFY(pdf.ok());
    QCOMPARE(pdf->report.warnings, QStringList{facts->stoppedBy});
  }

  void onlyWhatStoppedIsToldSo() {
    Opened opened(eps(kBody + "showpage nosuchoperator\n"));
    QVERIFY(showsBody(opened.image()));
    QCOMPARE(opened->facts()->stoppedBy, QString());
  }

  void withoutAMarkAnErrorIsAnError_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("a path alone") << QByteArray(
        "3 3 moveto 9 9 lineto gsave 9 setlinewidth nosuchoperator\n");
    QTest::newRow("a clip and a colour") << QByteArray("0 0 9 9 rectclip 1 0 0 setrgbcolor nosuchoperator\n");
    QTest::newRow("an erased page") << QByteArray("erasepage nosuchoperator\n");
  }
  void withoutAMarkAnErrorIsAnError() {
    QFETCH(QByteArray, body);
    Opened opened(eps(body));
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().message, QString("PostScript error: undefined in nosuchoperator"));
    QCOMPARE(opened->facts()->stoppedBy, QString());
  }

  void anErrorIsFoundBehindAllThatADocumentPrints() {
    static_assert(limits::maximumProgramMessages < 20000 * 10);
    Opened opened(eps("20000 { (0123456789) print } repeat nosuchoperator\n"));
    const auto pdf = opened->pdf({});
    QVERIFY(!pdf);
    QCOMPARE(pdf.error().message, QStringLiteral("PostScript error: undefined in nosuchoperator"));
  }

  void aFontThatIsMissingIsTold() {
    Opened opened(
        eps("/NoSuchFont findfont 12 scalefont setfont 5 5 moveto (hello) show\n"
            "/Helvetica findfont 12 scalefont setfont 5 20 moveto (hello) show showpage\n"));
    const auto pdf = opened->pdf({});
    QVERIFY(pdf);
    QCOMPARE(pdf->report.warnings, QStringList{"the font NoSuchFont is missing, Courier stands in for it"});
  }

  void missingFontsAreToldUpToANumber() {
    QByteArray fonts;
    for (int i = 0; i <= limits::maximumSubstitutions; ++i)
      fonts += "/NoSuchFont" + QByteArray::number(i) + " findfont pop\n";
    const auto pdf = Opened(eps(fonts + "0 0 9 9 rectfill showpage\n"))->pdf({});
    QVERIFY(pdf);
    QCOMPARE(pdf->report.warnings.size(), limits::maximumSubstitutions);
  }

  void aFontThatIsMissingIsToldOfImagesToo() {
    Opened opened(eps("/NoSuchFont findfont 12 scalefont setfont 5 5 moveto (hello) show showpage\n"));
    QCOMPARE(opened->drawingRemarks(), QStringList());  // nothing was drawn
    QVERIFY(!opened.image().isNull());
    QCOMPARE(opened->drawingRemarks(),
             QStringList{"the font NoSuchFont is missing, Courier stands in for it"});
  }

  void anErrorBehindThePictureIsAWarning() {
    Opened opened(eps(kBody + "showpage\n%%EOF\nGarbage that is no PostScript\n"));
    QVERIFY(showsBody(opened.image()));
    const auto pdf = opened->pdf({});
    QVERIFY(pdf.ok());
    QCOMPARE(pdf->report.warnings, QStringList{"what follows the picture in the file was left out"});
  }

  void unfinishedSourcesAreErrors_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("an open string") << QByteArray("(no end");
    QTest::newRow("an open procedure") << QByteArray("{ 1 2 add");
    QTest::newRow("binary rubbish") << QByteArray("\x80\xff\xfe\x90\x91", 5);
    QTest::newRow("stack underflow") << QByteArray("pop pop pop lineto\n");
    QTest::newRow("stop") << QByteArray("nosuch stop");
  }
  void unfinishedSourcesAreErrors() {
    QFETCH(QByteArray, body);
    Opened opened(eps(body));
    QVERIFY(opened.ok());
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().kind, ErrorKind::NotParsable);
    QVERIFY(!opened.error().message.contains('\n'));
  }

  void filesCannotBeReachedFromTheProgram() {
    Opened opened(eps("(/etc/passwd) (r) file 10 string readstring pop pop\n" + kBody + "showpage\n"));
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().message, QString("PostScript error: invalidfileaccess in file"));
  }

  void anEndlessProgramIsStoppedInTime() {
    Opened opened(eps("{} loop\n"));
    opened.context().limits.seconds = 1;
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().kind, ErrorKind::TimedOut);
  }

  void aCancelledRequestEnds() {
    Opened opened(eps("{} loop\n"));
    const CancelToken token = opened.context().cancel;
    std::unique_ptr<QThread> canceller(QThread::create([token] {
      QThread::msleep(200);
      token.cancel();
    }));
    canceller->start();
    QVERIFY(opened.image().isNull());
    QCOMPARE(opened.error().kind, ErrorKind::Cancelled);
    canceller->wait();
    opened.context().cancel = CancelToken();
    opened.context().limits.seconds = 1;
    QVERIFY(opened.image().isNull());  // asked again it tries again
    QCOMPARE(opened.error().kind, ErrorKind::TimedOut);
  }

  void aWarmInterpreterIsUsedUp() {
    Opened opened(eps(kBody + "showpage\n"), true);
    QVERIFY(opened.context().warmGhostscript != nullptr);
    QVERIFY(showsBody(opened.image()));
    QVERIFY(opened.context().warmGhostscript == nullptr);
    QVERIFY(showsBody(opened.image()));
  }

  void aWarmInterpreterThatIsNotUsedIsEnded() {
    QTemporaryDir folder;
    EngineContext context;
    context.scratchFolder = folder.path();
    warmUpGhostscript(context);
    QVERIFY(context.warmGhostscript != nullptr);
    context.warmGhostscript.reset();  // must not hang
  }

  void moreOutputThanGrantedIsALimit() {
    QTemporaryDir folder;
    EngineContext context;
    context.scratchFolder = folder.path();
    context.limits.memoryMiB = 1;
    auto child = GhostscriptChild::start({"-q", "-dNODISPLAY", "-dBATCH", "-"}, folder.path());
    QVERIFY(child.ok());
    const auto run = (*child)->run({"/s 65535 string def 1000 { s print } repeat flush quit\n"}, context);
    QVERIFY(!run.ok());
    QCOMPARE(run.error().kind, ErrorKind::Limit);
  }

  void thereIsOnlyOnePage() {
    Opened opened(eps(kBody));
    RenderRequest request;
    request.page = 1;
    request.pixelSize = QSize(1, 1);
    const auto image = opened->render(request);
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Unsupported);
  }

  void aRectangleOfItIsPlaced() {
    Opened opened(eps(kBody + "showpage\n"));
    ComposeRequest request;
    request.rect = QRectF(0, 0, 30, 20);  // the upper right quarter
    const auto pdf = opened->compose(request);
    QVERIFY(pdf.ok());
    auto file = PdfFile::open(pdf->bytes);
    QVERIFY(file.ok());
    QCOMPARE((*file)->geometry(0).shownBounds(), QRectF(0, 0, 30, 20));
  }
};

NORVEX_TEST(EpsEngineTest)
#include "eps_engine_test.moc"
