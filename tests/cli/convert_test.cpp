// `norvex convert` with pictures in memory: what it is asked, what it refuses, what it tells.
#include <QColorSpace>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>
#include <filesystem>

#include <sys/stat.h>

#include "base/atomic_file.h"
#include "base/file_name.h"
#include "base/latin1_text.h"
#include "cli/arguments/format_words.h"
#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "picture/document_file.h"
#include "protocol/every_page.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

/// What the command says to wrong arguments.
QString complaintOf(const QStringList& arguments) {
  CommandLine line;
  const int code = line.run(QStringList{"convert"} + arguments);
  if (code != 2) return QStringLiteral("exit code %1").arg(code);
  if (line.service.openCount() != 0) return QStringLiteral("work was begun");
  const QString end = QStringLiteral("; norvex convert --help shows what there is\n");
  if (!line.console.messages.startsWith("norvex: ") || !line.console.messages.endsWith(end))
    return line.console.messages;
  return line.console.messages.mid(8).chopped(end.size());
}

QImage pictureIn(const CommandLine& line, const QString& name) {
  return QImage::fromData(line.contents(name));
}

}  // namespace

class ConvertTest : public QObject {
  Q_OBJECT
 private slots:
  // ---- arguments ----------------------------------------------------------------------------------------

  void wrongArgumentsAreToldInOneSentence_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const QStringList& arguments, const QString& sentence) {
      QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << sentence;
    };
    row({"a.eps"}, "one of -o OUT and --to DIR is needed");
    row({"a.eps", "-o", "b.pdf", "--to", "d"}, "one of -o OUT and --to DIR is needed");
    row({"a.eps", "b.eps", "-o", "c.pdf"}, "-o takes one file, --to DIR takes several");
    row({"a.eps", "--to", "d"}, "no format is given (--format)");
    row({"a.eps", "-o", "-"}, "no format is given (--format)");
    row({"a.eps", "-o", "b.xyz"}, "the extension of b.xyz names no format (--format does)");
    row({"a.eps", "-o", "b"}, "the extension of b names no format (--format does)");
    row({"a.eps", "-o", "-", "--format", "pdf", "--json"}, "--json and -o - both need standard output");
    row({"a.eps", "-o", "b.png", "--dpi", "0"}, "--dpi is a number from 1 to 9600");
    row({"a.eps", "-o", "b.png", "--dpi", "many"}, "--dpi is a number from 1 to 9600");
    row({"a.eps", "-o", "b.png", "--dpi", "nan"}, "--dpi is a number from 1 to 9600");
    row({"a.eps", "-o", "b.png", "--rotate", "inf"}, "--rotate is a number from -36000 to 36000");
    row({"a.eps", "-o", "b.png", "--rotate", "36000.5"}, "--rotate is a number from -36000 to 36000");
    row({"a.eps", "-o", "b.png", "--rotate", "-36000.5"}, "--rotate is a number from -36000 to 36000");
    row({"a.eps", "-o", "b.png", "--page", "0"}, "--page is a number from 1 to 10000000");
    row({"a.eps", "-o", "b.png", "--page", "1.5"}, "--page is a whole number");
    row({"a.eps", "-o", "b.jpg", "--quality", "0"}, "--quality is a number from 1 to 100");
    row({"a.eps", "-o", "b.jpg", "--quality", "101"}, "--quality is a number from 1 to 100");
    row({"a.eps", "-o", "b.jpg", "--quality", "8.5"}, "--quality is a whole number");
    for (const FormatRow& format : formatTable)
      if (isWritten(format) && format.quality == NoQuality)
        row({"a.eps", "-o", "b", "--quality", "50", "--format", QString(latin1(format.name))},
            "--quality goes with one of: " + QString(latin1(qualityFormatNames.text())));
    row({"a.eps", "-o", "b.png", "--colour", "cmyk"}, "png holds no cmyk");
    row({"a.eps", "-o", "b.gif", "--colour", "grey"}, "gif holds no grey");
    row({"a.eps", "-o", "b.pdf", "--colour", "cmyk"},
        "--colour goes with pixels: pdf keeps the picture's own colours");
    row({"a.pdf", "-o", "b.eps", "--keep-actions"}, "--keep-actions goes with pdf");
    row({"a.pdf", "-o", "b.png", "--text"}, "--text goes with svg and svgz");
    row({"a.eps", "-o", "b.png", "--jobs", "0"}, "--jobs is a number from 1 to 256");
    row({"a.eps", "-o", "b.png", "--timeout", "-1"}, "--timeout is a number from 1 to 10000000");
    row({"a.eps", "-o", "b.png", "--memory", "1"}, "--memory is a number from 64 to 1048576");
    row({"a.eps", "-o", "b.png", "--background", "nocolour"}, "--background is a colour: a name or #rrggbb");
    row({"a.eps", "-o", "b.png", "--background", "#ff000080"}, "--background is a colour: a name or #rrggbb");
    const QString crop = "--crop is X,Y,W,H: four numbers of points with W and H above 0";
    for (const char* value :
         {"1,2,3", "1,2,3,4,5", "1,2,0,4", "1,2,3,-4", "a,b,c,d", "1,2,nan,4", "1,2,3,1e9", ""})
      row({"a.eps", "-o", "b.png", "--crop", value}, crop);
    row({"x/a.eps", "y/a.eps", "--to", "d", "--format", "pdf"}, "more than one file would become d/a.pdf");
    row({"x/a.eps", "y/a.pdf", "--to", "d/", "--format", "png"}, "more than one file would become d/a.png");
  }
  void wrongArgumentsAreToldInOneSentence() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    QCOMPARE(complaintOf(arguments), sentence);
  }

  void theExtensionDecidesTheFormat_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("eps") << "b.eps" << QByteArray("%!PS");
    QTest::newRow("epsf") << "b.epsf" << QByteArray("%!PS");
    QTest::newRow("epsi") << "b.epsi" << QByteArray("%!PS");
    QTest::newRow("pdf") << "b.pdf" << QByteArray("%PDF-");
    QTest::newRow("svg") << "b.svg" << QByteArray("<svg");
    QTest::newRow("svgz") << "b.svgz" << QByteArray("\x1F\x8B");
    QTest::newRow("tiff") << "b.tiff" << QByteArray("II*\0", 4);
    QTest::newRow("tif") << "b.tif" << QByteArray("II*\0", 4);
    QTest::newRow("png") << "b.png" << QByteArray("\x89PNG");
    QTest::newRow("jpg") << "b.jpg" << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("JPEG") << "b.JPEG" << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("gif") << "b.gif" << QByteArray("GIF89a");
    QTest::newRow("webp") << "b.webp" << QByteArray("RIFF");
  }
  void theExtensionDecidesTheFormat() {
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    if (name == "b.pdf") QCOMPARE(line.contents(name), QByteArray());
    QCOMPARE(line.run({"convert", from, "-o", line.path(name)}), 0);
    QVERIFY2(line.contents(name).startsWith(begin), line.contents(name).left(20).toHex());
    QCOMPARE(line.console.output, QByteArray());
  }

  void theOptionDecidesBeforeTheExtension() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.pdf"), "--format", "gif"}), 0);
    QVERIFY(line.contents("b.pdf").startsWith("GIF89a"));
  }

  void theQualityOfAJpegCanBeChosen() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    for (const QString& quality : {QString("5"), QString("90"), QString("100")})
      QCOMPARE(line.run({"convert", from, "-o", line.path(quality + ".jpg"), "--quality", quality}), 0);
    QCOMPARE(line.run({"convert", from, "-o", line.path("usual.jpg")}), 0);
    QCOMPARE(line.contents("90.jpg"), line.contents("usual.jpg"));
    QVERIFY(line.contents("5.jpg") != line.contents("usual.jpg"));
    QVERIFY(line.contents("100.jpg") != line.contents("usual.jpg"));
  }

  void epsAndEpsWithPreviewShareAnExtension() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps")}), 0);
    QCOMPARE(line.contents("b.eps"), kEps);  // an EPS is handed on byte for byte
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.eps"), "--format", "eps-preview"}), 0);
    QVERIFY(line.contents("c.eps").startsWith("\xC5\xD0\xD3\xC6"));
    QVERIFY(line.contents("c.eps").endsWith(kEps));
  }

  // ---- targets ------------------------------------------------------------------------------------------

  void filesGoToTheFolderUnderTheirOwnNames() {
    CommandLine line;
    const QStringList files{line.write("a.b.eps", kEps), line.write("c.pdf", emptyPdf({9, 9})),
                            line.write(".d", kEps)};
    QVERIFY(QDir(line.path(".")).mkdir("to"));
    QCOMPARE(
        line.run(QStringList{"convert"} + files + QStringList{"--to", line.path("to"), "--format", "png"}),
        0);
    const QDir::Filters all = QDir::Files | QDir::Hidden;
    QCOMPARE(QDir(line.path("to")).entryList(all, QDir::Name), QStringList({".d.png", "a.b.png", "c.png"}));
  }

  void anExistingFileIsNotOverwritten() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    const QString to = line.write("b.png", "mine");
    QCOMPARE(line.run({"convert", from, "-o", to}), 4);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: %2 exists already (--force overwrites it)\n").arg(from, to));
    QCOMPARE(line.contents("b.png"), QByteArray("mine"));
    QCOMPARE(line.service.openCount(), 0);
    QCOMPARE(line.run({"convert", from, "-o", to, "--force"}), 0);
    QVERIFY(line.contents("b.png").startsWith("\x89PNG"));
  }

  void theInputIsNeverOverwritten() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    QVERIFY(QFile::link("a.eps", line.path("link.eps")));
    const QString sentence = QString("norvex: %1: the output would overwrite the input\n").arg(from);
    for (const QString& to : {from, line.path("./a.eps"), line.path("link.eps")}) {
      QCOMPARE(line.run({"convert", from, "-o", to, "--force"}), 4);
      QCOMPARE(line.console.messages, sentence);
    }
    QCOMPARE(line.run({"convert", from, "--to", line.path("."), "--format", "eps", "--force"}), 4);
    QCOMPARE(line.contents("a.eps"), kEps);
  }

  void aMissingFolderIsToldBeforeAnyWork() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    const QString to = line.path("no/b.png");
    QCOMPARE(line.run({"convert", from, "-o", to}), 4);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: %2: the folder to write to does not exist\n").arg(from, to));
    QCOMPARE(line.service.openCount(), 0);
  }

  void aFolderIsNotAFile() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    QVERIFY(QDir(line.path(".")).mkdir("b.png"));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--force"}), 4);
    QVERIFY(line.console.messages.endsWith("/b.png is a folder\n"));
    QCOMPARE(line.run({"convert", from, "-o", line.path("."), "--force"}), 2);
    QVERIFY(line.console.messages.contains("is a folder (--to DIR writes into one)"));
  }

  void aFailureLeavesNothingBehind() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Render, {ErrorKind::NotParsable, "it cannot be drawn"});
    });
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png")}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: it cannot be drawn\n").arg(from));
    QCOMPARE(line.entries(), QStringList{"a.eps"});
  }

  // ---- standard input and output ------------------------------------------------------------------------

  void standardInputToStandardOutput() {
    CommandLine line;
    line.console.standardInput = kEps;
    QCOMPARE(line.run({"convert", "-", "-o", "-", "--format", "png"}), 0);
    QVERIFY(line.console.output.startsWith("\x89PNG"));
    QCOMPARE(line.console.messages, QString());
    QCOMPARE(line.entries(), QStringList());
  }

  void standardInputToAFolderIsCalledPicture() {
    CommandLine line;
    line.console.standardInput = kEps;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Compose, {ErrorKind::Unsupported, "no vectors"});
    });
    QCOMPARE(line.run({"convert", "-", "--to", line.path("."), "--format", "pdf"}), 3);
    QCOMPARE(line.console.messages, QString("norvex: -: no vectors\n"));
    line.console.standardInput = kEps;
    QCOMPARE(line.run({"convert", "-", "--to", line.path("."), "--format", "png"}), 0);
    QCOMPARE(line.entries(), QStringList{"picture.png"});
  }

  void emptyStandardInputIsTold() {
    CommandLine line;
    QCOMPARE(line.run({"convert", "-", "-o", "-", "--format", "png"}), 3);
    QCOMPARE(line.console.messages, QString("norvex: -: the file is empty\n"));
    QCOMPARE(line.console.output, QByteArray());
  }

  void aTerminalGetsNoBinaryData() {
    CommandLine line;
    line.console.terminal = true;
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", "-", "--format", "png"}), 4);
    QCOMPARE(line.console.messages, QString("norvex: -: binary data is not written to a terminal\n"));
    QCOMPARE(line.console.output, QByteArray());
  }

  void aClosedPipeIsTold() {
    CommandLine line;
    line.console.full = true;
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", "-", "--format", "png"}), 4);
    QCOMPARE(line.console.messages, QString("norvex: -: standard output cannot be written\n"));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--json"}), 4);
  }

  // ---- the picture --------------------------------------------------------------------------------------

  void aPixelIsAPointUnlessDpiSaysOtherwise() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png")}), 0);
    QCOMPARE(pictureIn(line, "b.png").size(), QSize(200, 100));
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.png"), "--dpi", "108"}), 0);
    QCOMPARE(pictureIn(line, "c.png").size(), QSize(300, 150));
    QCOMPARE(qRound(pictureIn(line, "c.png").dotsPerMeterX() * 0.0254), 108);
  }

  void aCropCountsFromTheLowerLeftCorner() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--crop", "20, 10,50,30"}), 0);
    const QImage image = pictureIn(line, "b.png");
    QCOMPARE(image.size(), QSize(50, 30));
    // The test picture's red tells x over 200 points, its green y over 100 points, upwards.
    const QRgb lowerLeft = image.pixel(0, 29);
    QCOMPARE(qRed(lowerLeft), int(20.5 / 200 * 255));
    QCOMPARE(qGreen(lowerLeft), int(10.5 / 100 * 255));
    const QRgb upperRight = image.pixel(49, 0);
    QCOMPARE(qRed(upperRight), int(69.5 / 200 * 255));
    QCOMPARE(qGreen(upperRight), int(39.5 / 100 * 255));
  }

  void aQuarterTurnIsCounterClockwise() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--rotate", "90"}), 0);
    const QImage image = pictureIn(line, "b.png");
    QCOMPARE(image.size(), QSize(100, 200));
    // The picture's lower-left corner comes to the lower right, its lower-right corner to the upper right.
    QVERIFY(qRed(image.pixel(98, 198)) < 10 && qGreen(image.pixel(98, 198)) < 10);
    QVERIFY(qRed(image.pixel(98, 1)) > 245 && qGreen(image.pixel(98, 1)) < 10);
    QVERIFY(qGreen(image.pixel(1, 198)) > 245);
  }

  void aCropOfATurnedPictureIsInTheTurnedView() {
    CommandLine line;
    const QString from = line.write("a.svg", kSvg);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--rotate", "90", "--crop", "10,20,30,40"}),
             0);
    const ComposeRequest request = line.service.lastProcess()->composeRequests().value(0);
    // Turned, the picture is 100 wide and 200 high about the view's origin.
    QCOMPARE(request.rect, QRectF(10 - 50, 20 - 100, 30, 40));
    QCOMPARE(request.rotate, std::acos(-1.0) / 2);
  }

  void aCropBesideThePictureIsRefused_data() {
    QTest::addColumn<QString>("rotate");
    QTest::addColumn<QString>("crop");
    QTest::addColumn<bool>("good");
    QTest::newRow("inside") << "0"
                            << "10,10,20,20" << true;
    QTest::newRow("over an edge") << "0"
                                  << "-10,-10,11,11" << true;
    QTest::newRow("around all") << "0"
                                << "-10,-10,500,500" << true;
    QTest::newRow("right of it") << "0"
                                 << "300,0,10,10" << false;
    QTest::newRow("below it") << "0"
                              << "0,-20,10,10" << false;
    QTest::newRow("touches the edge") << "0"
                                      << "200,0,10,10" << false;
    QTest::newRow("inside the turned picture alone") << "90"
                                                     << "10,150,20,20" << true;
    QTest::newRow("beside the turned picture") << "90"
                                               << "150,10,20,20" << false;
    QTest::newRow("in an empty corner of the turned view") << "45"
                                                           << "0,0,20,20" << false;
  }
  void aCropBesideThePictureIsRefused() {
    QFETCH(QString, rotate);
    QFETCH(QString, crop);
    QFETCH(bool, good);
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--rotate", rotate, "--crop=" + crop}),
             good ? 0 : 3);
    QCOMPARE(QFile::exists(line.path("b.png")), good);
    const QString size = rotate == "90" ? "100 by 200" : rotate == "45" ? "212.132 by 212.132" : "200 by 100";
    const QString sentence =
        "norvex: %1: nothing of the picture lies in the rectangle of --crop; it is %2 points large\n";
    QCOMPARE(line.console.messages, good ? QString() : sentence.arg(from, size));
  }

  void wholeTurnsAreNone() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--rotate", "-720"}), 0);
    QCOMPARE(line.contents("b.eps"), kEps);
  }

  void aTurnedEpsIsMadeAnewWithItsOwnFacts() {
    CommandLine line;
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--rotate", "180"}), 0);
    QVERIFY(line.contents("b.eps").contains("%%Title: (My picture)\n%%Creator: hand\n"));
    QVERIFY(line.contents("b.eps") != kEps);
  }

  void theBackgroundFillsWhatIsUnpainted() {
    CommandLine line;
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--crop=-10,0,20,20"}), 0);
    QCOMPARE(qAlpha(pictureIn(line, "b.png").pixel(0, 0)), 0);
    QCOMPARE(qAlpha(pictureIn(line, "b.png").pixel(19, 0)), 255);
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.png"), "--crop=-10,0,20,20", "--background",
                       "#102030"}),
             0);
    QCOMPARE(pictureIn(line, "c.png").pixel(0, 0), qRgb(0x10, 0x20, 0x30));
    QVERIFY(!pictureIn(line, "c.png").hasAlphaChannel());
  }

  void aPageBeyondTheEndIsToldWithTheLastOne() {
    MemoryPicture picture;
    picture.facts.pageCount = 2;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 40, 30)};
    CommandLine line;
    line.service.setPicture(picture);
    const QString pdf = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", pdf, "-o", line.path("b.png"), "--page", "3"}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: there is no page 3, the document has 2\n").arg(pdf));
    QCOMPARE(line.run({"convert", pdf, "-o", line.path("b.png"), "--page", "2"}), 0);
    QCOMPARE(pictureIn(line, "b.png").size(), QSize(40, 30));

    line.service.setPicture({});
    const QString eps = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", eps, "-o", line.path("c.png"), "--page", "2"}), 3);
    QCOMPARE(line.console.messages, QString("norvex: %1: there is no page 2, the document has 1\n").arg(eps));
  }

  void theOnlyPageIsTheWholeFile() {
    CommandLine line;
    const QString eps = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", eps, "-o", line.path("b.eps"), "--page", "1"}), 0);
    QCOMPARE(line.contents("b.eps"), kEps);
    const QByteArray bytes = emptyPdf({200, 100});
    const QString pdf = line.write("a.pdf", bytes);
    QCOMPARE(line.run({"convert", pdf, "-o", line.path("b.pdf"), "--page", "1"}), 0);
    QCOMPARE(line.contents("b.pdf"), bytes);
  }

  void whatAPdfDoesIsLeftOutAndToldUnlessItIsKept() {
    CommandLine line;
    const QByteArray bytes = emptyPdf({200, 100}), cleaned = emptyPdf({20, 10});
    const QString pdf = line.write("a.pdf", bytes);
    QList<PdfRequest> requests;
    MemoryPicture picture;
    picture.pdf = [&](const PdfRequest& request) {
      requests << request;
      return cleaned;
    };
    picture.report.warnings = {"scripts of the document were left out"};
    line.service.setPicture(picture);
    QCOMPARE(line.run({"convert", pdf, "-o", line.path("b.pdf")}), 0);
    QCOMPARE(line.console.messages, QString("norvex: %1: scripts of the document were left out\n").arg(pdf));
    QCOMPARE(line.contents("b.pdf"), cleaned);
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests.first().page, everyPage);
    QVERIFY(!requests.first().keepActions);

    QCOMPARE(line.run({"convert", pdf, "-o", line.path("c.pdf"), "--keep-actions"}), 0);
    QCOMPARE(line.console.messages, QString());
    QCOMPARE(line.contents("c.pdf"), bytes);
    QCOMPARE(requests.size(), 1);
  }

  void aPartOfAPdfKeepsWhatItDoesOnlyWhenThatIsAsked() {
    CommandLine line;
    const QString pdf = line.write("a.pdf", emptyPdf({200, 100}));
    for (const bool kept : {false, true}) {
      QStringList arguments{"convert", pdf, "-o", line.path("b.pdf"), "--force", "--rotate", "30"};
      if (kept) arguments << "--keep-actions";
      QCOMPARE(line.run(arguments), 0);
      QCOMPARE(line.service.lastProcess()->composeRequests().size(), 1);
      QCOMPARE(line.service.lastProcess()->composeRequests().first().keepActions, kept);
    }
  }

  void everyPictureBecomesSvg() {
    CommandLine line;
    for (const QString& from : {line.write("a.eps", kEps), line.write("a.pdf", emptyPdf({9, 9}))}) {
      QCOMPARE(line.run({"convert", from, "-o", line.path("b.svg"), "--force"}), 0);
      QVERIFY(line.contents("b.svg").startsWith("<svg"));
      QCOMPARE(line.run({"convert", from, "-o", line.path("b.svgz"), "--force"}), 0);
      QVERIFY(line.contents("b.svgz").startsWith("\x1F\x8B"));
    }
  }

  void aPictureThatTheFormatCannotHoldIsTold() {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 70000, 1)};
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.pdf", emptyPdf({70000, 1}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.gif")}), 5);
    QCOMPARE(line.entries(), QStringList{"a.pdf"});
  }

  void namesThatAreNoTextAreFilesLikeOthers() {
    CommandLine line;
    const QByteArray raw = line.path("gr").toUtf8() +
                           "\xFC"
                           "n";
    const QString from = fileNameText(raw + ".eps");
    QVERIFY(writeFileAtomically(from, kEps, IfExists::Fail));
    const QString to = fileNameText(raw + ".gif");
    QCOMPARE(line.run({"convert", from, "-o", to, "--json"}), 0);
    QVERIFY(readDocumentFile(to)->startsWith("GIF89a"));
    QCOMPARE(jsonOf(line).at(0)["file"].toString(), QString::fromUtf8(raw + ".eps"));
    for (const auto& [key, name] :
         {std::pair("fileBytes", raw + ".eps"), std::pair("outputBytes", raw + ".gif")})
      QCOMPARE(QByteArray::fromBase64(jsonOf(line).at(0)[QLatin1String(key)].toString().toLatin1()), name);

    QCOMPARE(line.run({"convert", from, "-o", to}), 4);
    QVERIFY2(line.console.messages.contains("gr\\xfcn.gif exists already"),
             qPrintable(line.console.messages));
    QCOMPARE(::mkdir((raw + ".d").constData(), 0700), 0);
    QCOMPARE(line.run({"convert", from, "--to", fileNameText(raw + ".d"), "--format", "png"}), 0);
    QVERIFY(readDocumentFile(fileNameText(raw + ".d/gr\xFC"
                                                "n.png"))
                ->startsWith("\x89PNG"));
    QCOMPARE(line.run({"info", fileNameText(raw + "x.eps")}), 3);
    QVERIFY(line.console.messages.endsWith("gr\\xfcnx.eps: No such file or directory\n"));
    for (const QString& name : {from, to, fileNameText(raw + ".d")})  // QTemporaryDir cannot
      std::filesystem::remove_all(fileNameBytes(name).toStdString());
  }

  // ---- the run ------------------------------------------------------------------------------------------

  void severalFilesShowProgress() {
    CommandLine line;
    const QString a = line.write("a.eps", kEps);
    const QString b = line.write("b.eps", kEps);
    const QStringList arguments{"convert", a, b, "--to", line.path("."), "--format", "gif", "--force"};
    QCOMPARE(line.run(arguments), 0);
    QCOMPARE(line.console.progressLines, QStringList({"1 of 2: " + a, "2 of 2: " + b}));
    line.console.progressLines.clear();
    QCOMPARE(line.run(arguments + QStringList{"-q"}), 0);
    QCOMPARE(line.console.progressLines.join(QString()), QString());
  }

  void manyFilesAtATimeKeepTheirOrder() {
    CommandLine line;
    QStringList files;
    for (int i = 0; i < 60; ++i) files << line.write(QString::number(i) + ".eps", kEps);
    QCOMPARE(
        line.run(QStringList{"convert", "--json", "--jobs", "4", "--to", line.path("."), "--format", "gif"} +
                 files),
        0);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all.size(), files.size());
    for (int i = 0; i < files.size(); ++i) QCOMPARE(all[i]["file"].toString(), files[i]);
    QCOMPARE(line.service.openCount(), 60);
  }

  void theExitCodeSaysWhatWentWrong() {
    CommandLine line;
    const QString from = line.write("a.pdf", kPdf);
    const auto codeFor = [&](ErrorKind kind) {
      line.service.setPrepare([=](MemoryPictureProcess& process) {
        process.fail(PictureCall::Render, {kind, "no"});
      });
      return line.run({"convert", from, "-o", line.path("b.png")});
    };
    QCOMPARE(codeFor(ErrorKind::NotParsable), 3);
    QCOMPARE(codeFor(ErrorKind::Encrypted), 3);
    QCOMPARE(codeFor(ErrorKind::Unsupported), 3);
    QCOMPARE(codeFor(ErrorKind::Died), 3);
    QCOMPARE(codeFor(ErrorKind::TimedOut), 5);
    QCOMPARE(codeFor(ErrorKind::Limit), 5);
    QCOMPARE(codeFor(ErrorKind::NoSandbox), 6);
    QCOMPARE(line.entries(), QStringList{"a.pdf"});
  }

  void aPictureThatIsNoneIsTold() {
    CommandLine line;
    const QString from = line.write("a.txt", "hello");
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png")}), 3);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: this is not an EPS, Illustrator, PDF or SVG picture\n").arg(from));
  }

  void anInterruptionEndsTheRun() {
    CommandLine line;
    const QString first = line.write("a.eps", kEps);
    const QString second = line.write("b.eps", kEps);
    // The signal comes before the first picture is drawn, which then ends without a result; the second is not
    // begun.
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.hold(PictureCall::Render);
      ::raise(SIGINT);
    });
    QCOMPARE(line.run({"convert", first, second, "--to", line.path("."), "--format", "png", "--jobs", "1"}),
             130);
    QCOMPARE(line.console.messages, QString("norvex: interrupted; 2 of 2 files not converted\n"));
    QCOMPARE(line.entries(), QStringList({"a.eps", "b.eps"}));
    QCOMPARE(line.service.openCount(), 1);
  }

  void anInterruptionDoesNotWaitForASlowDocument() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.hold(PictureCall::Facts);
      ::raise(SIGINT);
    });
    const QString from = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--json"}), 130);
    QCOMPARE(jsonOf(line).at(0)["error"].toString(), "it was interrupted");
  }
};

NORVEX_TEST(ConvertTest)
#include "convert_test.moc"
