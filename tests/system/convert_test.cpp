// The built program converts the samples into every format, and programs that we did not write accept the
// results.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <csignal>

#include "kit/process_watch.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/small_disk.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QStringList kSamples{"lighthouse.svg",  "lighthouse.svgz",        "lighthouse.pdf",
                           "lighthouse.eps",  "lighthouse-preview.eps", "lighthouse.epsi",
                           "lighthouse-8.ai", "lighthouse-cs.ai"};

/// An SVG with everything that a header can say.
const QByteArray kTold =
    "<svg xmlns='http://www.w3.org/2000/svg' width='90' height='60'><title>T\xC3\xAFtle (1)</title>"
    "<desc>a description</desc><rect width='40' height='30' fill='#c03020'/></svg>";
/// The same as EPS.
const QByteArray kToldEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 90 60\n%%Title: The title\n%%Creator: The creator\n"
    "%%For: The owner\n%%CreationDate: 2001-02-03\n%%Copyright: The copyright\n%%EndComments\n"
    "0.8 0.2 0.1 setrgbcolor 10 10 40 30 rectfill showpage\n%%EOF\n";
/// Never ends.
const QByteArray kEndless = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\n{} loop\n";

bool isSvg(const QString& sample) {
  return sample.contains(".svg");
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject infoOf(const QString& path) {
  const Ran ran = kit::norvex({"info", "--json", path});
  return QJsonDocument::fromJson(ran.out).array().at(0).toObject();
}

}  // namespace

class ConvertSystemTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }

  void everySampleBecomesEveryFormat_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("format");
    for (const QString& sample : kSamples)
      for (const QString& format : outside::writtenFormats())
        QTest::newRow(qPrintable(sample + " to " + format)) << sample << format;
  }
  void everySampleBecomesEveryFormat() {
    QFETCH(QString, sample);
    QFETCH(QString, format);
    const QString to = path("out." + QString(format).remove("-preview"));
    const Ran ran = kit::norvex({"convert", kit::sample(sample), "-o", to, "--format", format});
    QVERIFY2(ran.exitCode == 0 && !ran.crashed, ran.err);
    QCOMPARE(outside::complaintAbout(to, format), QString());
    // Drawn by other programs, source and result look alike. A GIF has but 256 colours, and CMYK has no one
    // look.
    const QImage before = drawn(sample);
    QVERIFY(!before.isNull());
    const double different = outside::difference(before, outside::drawnOutside(to, format));
    QVERIFY2(different < (format == "gif" || sample == "lighthouse-8.ai" ? 0.04 : 0.02),
             qPrintable(QString::number(different)));
  }

  void anSvgMadeOfAnySampleLooksLikeOurOwnPicture() {
    for (const QString& sample : kSamples) {
      if (isSvg(sample)) continue;
      const QString svg = path("drawn.svg"), png = path("own.png"), theirs = path("theirs.png");
      QCOMPARE(kit::norvex({"convert", kit::sample(sample), "-o", svg, "--force"}).exitCode, 0);
      QCOMPARE(outside::complaintOf("xmllint", {"--noout", "--nonet", svg}), QString());
      QCOMPARE(kit::norvex({"convert", kit::sample(sample), "-o", png, "--force", "--dpi", "144",
                            "--background", "white"})
                   .exitCode,
               0);
      QCOMPARE(outside::complaintOf("rsvg-convert", {"--background-color=white", "--dpi-x=144", "--dpi-y=144",
                                                     "-o", theirs, svg}),
               QString());
      const double different =
          outside::difference(QImage(png).convertToFormat(QImage::Format_RGB32), QImage(theirs));
      QVERIFY2(different < 0.01, qPrintable(sample + ' ' + QString::number(different)));
    }
  }

  /// Flattened drawings are cut into tiles, each painted through a clip of its own or an image. Where they
  /// meet inside a pixel, nothing of what lies beneath may be seen.
  void tilesThatMeetShowNoSeam() {
    const QByteArray eps =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 100 100\n%%EndComments\n1 0 0 setrgbcolor\n"
        "0 1 9 { /x exch 10.37 mul def 0 1 9 { /y exch 10.61 mul def\n"
        "  gsave x y 10.37 10.61 rectclip 0 0 110 110 rectfill grestore } for } for\n"
        // Images side by side below, ten of them.
        "0 1 9 { gsave 10.37 mul 0 translate 10.37 50.3 scale 1 1 8 [1 0 0 1 0 0] {<FF>} {<00>} {<00>} true "
        "3 "
        "colorimage grestore } for showpage\n%%EOF\n";
    const QString source = write("tiles.eps", eps), pdf = path("tiles.pdf");
    QCOMPARE(kit::norvex({"convert", source, "-o", pdf}).exitCode, 0);
    // The EPS is drawn by one program, the PDF by another.
    for (const char* dpi : {"72", "100", "217"}) QVERIFY2(isPlain(source, dpi), dpi);
    QVERIFY(isPlain(pdf, "144"));
    for (const char* angle : {"30", "1.5", "233"})
      for (const char* dpi : {"72", "217"})
        QVERIFY2(isPlain(pdf, dpi, {"--rotate", angle, "--crop", "50,50,30,30"}), angle);
  }

  /// Around letters a tile is what is left of it: a path of many parts.
  void tilesThatFillWhatIsCutOutOfOthersShowNoSeam() {
    const QString eps =
        write("cut.eps",
              "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 100 100\n%%EndComments\n1 0 0 setrgbcolor\n"
              "/part { 4 2 roll moveto dup 0 exch rlineto exch 0 rlineto neg 0 exch rlineto closepath } def\n"
              "gsave -5 -5 110 110 part 31.7 33.1 12.2 9.3 part 60.4 20.6 9.3 60.7 part eoclip "
              "0 0 110 110 rectfill grestore\n"
              "gsave 31.7 33.1 12.2 9.3 rectclip 0 0 110 110 rectfill grestore\n"
              "60.4 20.6 9.3 60.7 rectclip 0 0 110 110 rectfill showpage\n%%EOF\n");
    for (const char* dpi : {"72", "100", "217"}) QVERIFY2(isPlain(eps, dpi), dpi);
    QVERIFY(isPlain(eps, "100", {"--rotate", "30", "--crop", "50,50,30,30"}));
  }

  /// What is measured in parts of a shape's box does not grow as the box lies slanted on the surface.
  void aGradientKeepsItsSizeWhenItIsTurned_data() {
    QTest::addColumn<QByteArray>("transform");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("level") << QByteArray() << QStringList{};
    QTest::newRow("the picture is turned") << QByteArray() << QStringList{"--rotate", "45"};
    QTest::newRow("the shape is turned") << QByteArray("transform='rotate(45 100 100)'") << QStringList{};
  }
  void aGradientKeepsItsSizeWhenItIsTurned() {
    QFETCH(QByteArray, transform);
    QFETCH(QStringList, arguments);
    const QString svg =
        write("gradient.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='200'><radialGradient id='g'>"
              "<stop offset='0' stop-color='white'/><stop offset='1' stop-color='black'/></radialGradient>"
              "<rect x='20' y='20' width='160' height='160' fill='url(#g)' " +
                  transform + "/></svg>");
    const QString png = path("gradient.png"), pdf = path("gradient.pdf"), drawn = path("drawn.png");
    QCOMPARE(kit::norvex(QStringList{"convert", svg, "-o", png, "--dpi", "96"} + arguments).exitCode, 0);
    QCOMPARE(kit::norvex(QStringList{"convert", svg, "-o", pdf} + arguments).exitCode, 0);
    QCOMPARE(outside::complaintOf("pdftocairo", {"-png", "-singlefile", "-r", "96", pdf, path("drawn")}),
             QString());
    for (const QString& file : {png, drawn}) {
      const QImage image(file);
      const QPoint middle(image.width() / 2, image.height() / 2);
      QVERIFY(qRed(image.pixel(middle)) > 245);
      // Half of its radius of 80, and nearly all of it.
      for (const QPoint& way : {QPoint(1, 0), QPoint(0, -1)}) {
        QVERIFY2(std::abs(qRed(image.pixel(middle + way * 40)) - 128) < 6, qPrintable(file));
        QVERIFY2(std::abs(qRed(image.pixel(middle + way * 76)) - 13) < 6, qPrintable(file));
      }
    }
  }

  /// Beyond a change of colour at its beginning or end a gradient has the outer colour, in vectors, too.
  void aGradientKeepsTheColoursBeyondItsEnds() {
    const QString svg = write(
        "ends.svg",
        "<svg xmlns='http://www.w3.org/2000/svg' width='96' height='96'>"
        "<linearGradient id='a'><stop offset='.5' stop-color='#f00'/><stop offset='.5' stop-color='#00f'/>"
        "</linearGradient><linearGradient id='b' x1='.3' x2='.7'><stop stop-color='#f00'/>"
        "<stop stop-color='#0f0'/><stop offset='1' stop-color='#0f0'/><stop offset='1' stop-color='#00f'/>"
        "</linearGradient><rect width='96' height='48' fill='url(#a)'/>"
        "<rect y='48' width='96' height='48' fill='url(#b)'/></svg>");
    const QString pdf = path("ends.pdf"), eps = path("ends.eps");
    QCOMPARE(kit::norvex({"convert", svg, "-o", pdf}).exitCode, 0);
    QCOMPARE(kit::norvex({"convert", svg, "-o", eps}).exitCode, 0);
    for (const auto& [file, format] : {std::pair(pdf, "pdf"), std::pair(eps, "eps"), std::pair(svg, "svg")}) {
      const QImage image = outside::drawnOutside(file, format, 60);
      QCOMPARE(image.size(), QSize(72, 72));
      const auto isAt = [&image](int x, int y, QRgb colour) {
        const QRgb pixel = image.pixel(x, y);
        return std::abs(qRed(pixel) - qRed(colour)) < 6 && std::abs(qGreen(pixel) - qGreen(colour)) < 6 &&
               std::abs(qBlue(pixel) - qBlue(colour)) < 6;
      };
      QVERIFY2(isAt(3, 10, 0xFF0000) && isAt(33, 10, 0xFF0000), format);
      QVERIFY2(isAt(39, 10, 0x0000FF) && isAt(68, 10, 0x0000FF), format);
      QVERIFY2(isAt(3, 60, 0xFF0000) && isAt(36, 60, 0x00FF00) && isAt(68, 60, 0x0000FF), format);
    }
  }

  void glyphsThatArePicturesKeepTheirColours() {
    // One that is an image, one that is drawn, one that leaves its colour to the text.
    const QByteArray font =
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 0] /CharProcs << /a 6 0 R "
        "/b 7 0 R "
        "/c 8 0 R >> /Encoding << /Differences [97 /a /b /c] >> /FirstChar 97 /LastChar 99 /Widths [1 1 1] "
        "/Resources "
        "<< /XObject << /I 9 0 R >> >> >>";
    const QString pdf = write(
        "glyphs.pdf",
        kit::onePage(
            "0 0 1 rg BT /T 20 Tf 0 0 Td (abc) Tj ET",
            "/MediaBox [0 0 60 20] /Resources << /Font << /T 5 0 R >> >>",
            {font, kit::stream("1 0 d0 /I Do"), kit::stream("1 0 d0 0.6 0 0 rg 0 0 1 1 re f"),
             kit::stream("1 0 0 0 1 1 d1 0 0 1 1 re f"),
             kit::stream(QByteArray("\xFF\xC0\0", 3),
                         "/Type /XObject /Subtype /Image /Width 1 /Height 1 /BitsPerComponent 8 /ColorSpace "
                         "/DeviceRGB")}));
    QCOMPARE(kit::norvex({"convert", pdf, "-o", path("glyphs.png")}).exitCode, 0);
    const QImage image(path("glyphs.png"));
    QCOMPARE(image.pixel(10, 10), qRgb(255, 192, 0));
    QCOMPARE(image.pixel(30, 10), qRgb(153, 0, 0));
    QCOMPARE(image.pixel(50, 10), qRgb(0, 0, 255));
  }

  void aPartOfAPageTurnedBecomesSvg() {
    const QString svg = path("part.svg");
    const QString source = QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/pdf/paths.pdf");
    QCOMPARE(
        kit::norvex({"convert", source, "-o", svg, "--rotate", "30", "--crop", "20,30,60,40", "--page", "1"})
            .exitCode,
        0);
    QFile file(svg);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("width=\"60pt\" height=\"40pt\" viewBox=\"0 0 60 40\""));
    QCOMPARE(outside::complaintAbout(svg, "svg"), QString());
  }

  void structuredPostScriptIsWellBehaved() {
    for (const char* name : {"told.svg", "told.pdf"}) {
      const QString svg = write("told.svg", kTold);
      if (QString(name).endsWith("pdf"))
        QCOMPARE(kit::norvex({"convert", svg, "-o", path("told.pdf")}).exitCode, 0);
      QCOMPARE(kit::norvex({"convert", path(name), "-o", path("out.eps"), "--force"}).exitCode, 0);
      QCOMPARE(outside::complaintOf("epstool", {"--quiet", "--test-eps", path("out.eps")}), QString());
    }
  }

  void aTransparentPictureHasNoEdgeAsEps() {
    // Without its transparency it would be black: nothing of that may show, not even a line.
    const QString svg = write("a.svg",
                              "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='60'>"
                              "<g opacity='0.1'><rect width='80' height='60'/></g></svg>");
    QCOMPARE(kit::norvex({"convert", svg, "-o", path("b.eps")}).exitCode, 0);
    const QImage drawn = outside::drawnOutside(path("b.eps"), "eps");
    QCOMPARE(drawn.size(), QSize(60, 45));
    for (const QPoint& corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 44), QPoint(59, 44), QPoint(30, 20)})
      QVERIFY2(qGray(drawn.pixel(corner)) > 200, qPrintable(QString::number(corner.x())));
  }

  // ---- metadata -----------------------------------------------------------------------------------------

  void anSvgTellsItsTitleAsEps() {
    const QString svg = write("a.svg", kTold);
    QVERIFY(kit::norvex({"convert", svg, "-o", path("b.eps")}).exitCode == 0);
    const QJsonObject header = infoOf(path("b.eps"))["header"].toObject();
    QCOMPARE(header["Title"].toString(), QString::fromUtf8("T\xC3\xAFtle (1)"));
    QCOMPARE(header["Creator"].toString(), "MainWindowController by Tembrolix.");
    QVERIFY(!header["For"].toString().isEmpty());
    QVERIFY(!header["CreationDate"].toString().isEmpty());
  }

  void aPdfTellsEverythingAsEps() {
    const QString eps = write("a.eps", kToldEps);
    QCOMPARE(kit::norvex({"convert", eps, "-o", path("b.pdf")}).exitCode, 0);
    QCOMPARE(kit::norvex({"convert", path("b.pdf"), "-o", path("c.eps")}).exitCode, 0);
    const QJsonObject pdf = infoOf(path("b.pdf"))["header"].toObject();
    const QJsonObject header = infoOf(path("c.eps"))["header"].toObject();
    QCOMPARE(header["Title"].toString(), "The title");
    QCOMPARE(header["For"].toString(), "The owner");
    for (const char* key : {"Title", "Creator", "For", "CreationDate"}) QCOMPARE(header[key], pdf[key]);
  }

  void anEpsTellsItselfInPdf() {
    const QString eps = write("a.eps", kToldEps);
    const Ran ran =
        kit::norvex({"convert", eps, "-o", path("b.pdf"), "--json"}, {}, 60, {"SOURCE_DATE_EPOCH=86400"});
    QCOMPARE(ran.exitCode, 0);
    QCOMPARE(QJsonDocument::fromJson(ran.out).array().at(0)["metadataLost"].toArray(),
             QJsonArray({"CreationDate", "Copyright"}));
    const QByteArray told = run("pdfinfo", {path("b.pdf")}, {}, 60, {"TZ=UTC"}).out;
    const auto says = [&](const QString& key, const QString& value) {
      const QRegularExpression line("^" + key + ": +" + QRegularExpression::escape(value) + "$",
                                    QRegularExpression::MultilineOption);
      return line.match(QString::fromUtf8(told)).hasMatch();
    };
    QVERIFY(says("Title", "The title"));
    QVERIFY(says("Author", "The owner"));
    QVERIFY(says("Producer", "The creator"));
    QVERIFY(says("Creator", "Norvex " NORVEX_VERSION));
    QVERIFY(says("CreationDate", "Fri Jan  2 00:00:00 1970 UTC"));
    const QByteArray exif = run("exiftool", {"-s3", "-Title", "-Author", "-Producer", path("b.pdf")}).out;
    QCOMPARE(exif, QByteArray("The title\nThe owner\nThe creator\n"));
  }

  void theSameInputGivesTheSameBytes_data() {
    QTest::addColumn<QString>("sample");
    for (const char* name : {"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps"})
      QTest::newRow(name) << name;
  }
  void theSameInputGivesTheSameBytes() {
    QFETCH(QString, sample);
    const QStringList epoch{"SOURCE_DATE_EPOCH=1700000000"};
    for (const QString& format : outside::writtenFormats()) {
      if (format.startsWith("svg") && !isSvg(sample)) continue;
      const QStringList arguments{"convert", kit::sample(sample), "-o", "-", "--format", format};
      const Ran first = kit::norvex(arguments, {}, 60, epoch);
      const Ran second = kit::norvex(arguments, {}, 60, epoch);
      QCOMPARE(first.exitCode, 0);
      QVERIFY(!first.out.isEmpty());
      QVERIFY2(first.out == second.out, qPrintable(format));
    }
  }

  // ---- nothing is lost ----------------------------------------------------------------------------------

  void aFullDiskKeepsTheOldFile() {
    const SmallDisk disk("64k");
    if (!disk.isMounted()) QSKIP("mounting is not permitted here");
    QFile old(disk.path("a.tiff"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    const Ran ran = kit::norvex({"convert", sample("lighthouse.svg"), "-o", disk.path("a.tiff"), "--force"});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY2(ran.err.endsWith(": there is no space left to write to\n"), ran.err);
    QCOMPARE(bytesOf(disk.path("a.tiff")), QByteArray("old"));
    QCOMPARE(QDir(disk.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"a.tiff"});
  }

  void aPdfOfWhichNothingCanBeReadIsNoEmptyPicture() {
    const QByteArray head =
        "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n"
        "2 0 obj\n<< /Type /Pages /Kids [3 0 R] /Count 1 >>\nendobj\n"
        "3 0 obj\n<< /Type /Page /Parent 2 0 R /MediaBox [0 0 90 60] /Contents 4 0 R >>\nendobj\n";
    const QByteArray contents =
        "4 0 obj\n<< /Length 24 >>\nstream\n1 0 0 rg 0 0 90 60 re f \nendstream\nendobj\n";
    const QByteArray trailer = "trailer\n<< /Root 1 0 R /Size 5 >>\n";
    const QString lost = write("lost.pdf", head + trailer),
                  hurt = write("hurt.pdf", head + contents + trailer);
    for (const char* name : {"a.png", "a.svg", "a.eps", "a.pdf"}) {
      Ran ran = kit::norvex({"convert", lost, "-o", path(name)});
      QCOMPARE(ran.exitCode, 3);
      QVERIFY2(ran.err.endsWith(": the file is damaged; nothing of its page can be read\n"), ran.err);
      QVERIFY(!QFileInfo::exists(path(name)));
      ran = kit::norvex({"convert", hurt, "-o", path(name)});
      QCOMPARE(ran.exitCode, 0);
      QVERIFY2(ran.err.contains("the file is damaged; it was repaired as far as possible"), ran.err);
      QVERIFY(QFile::remove(path(name)));
    }
    for (const QStringList& command :
         {QStringList{"print", lost, "-o", path("p.pdf")}, QStringList{"thumbnail", lost, path("t.png")}}) {
      const Ran ran = kit::norvex(command);
      QCOMPARE(ran.exitCode, 3);
      QVERIFY2(ran.err.contains("nothing of its page can be read"), ran.err);
    }
    for (const QStringList& command :
         {QStringList{"print", hurt, "-o", path("p.pdf")}, QStringList{"thumbnail", hurt, path("t.png")}}) {
      const Ran ran = kit::norvex(command);
      QCOMPARE(ran.exitCode, 0);
      QVERIFY2(ran.err.contains("the file is damaged; it was repaired as far as possible"), ran.err);
    }
    QCOMPARE(kit::norvex({"check", lost}).exitCode, 1);
  }

  void aFullStandardOutputIsTold() {
    const QString command =
        norvexProgram() + " convert " + sample("lighthouse.svg") + " -o - --format tiff > /dev/full";
    const Ran ran = run("sh", {"-c", command});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY(ran.err.endsWith("standard output cannot be written\n"));
  }

  void aMissingOrReadOnlyFolderIsTold() {
    Ran ran = kit::norvex({"convert", sample("lighthouse.svg"), "-o", path("gone/a.png")});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY(ran.err.endsWith(": the folder to write to does not exist\n"));
    const QString file = write("a.png", "old");
    QVERIFY(QFile::setPermissions(file, QFileDevice::ReadOwner));
    ran = kit::norvex({"convert", sample("lighthouse.svg"), "-o", file, "--force"});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY2(ran.err.endsWith(": the file is read-only\n"), ran.err);
    QCOMPARE(bytesOf(file), QByteArray("old"));
  }

  void aNameThatIsNoTextIsAFileLikeOthers() {
    const QString script =
        "n=$(printf 'gr\\374n'); cp \"$2\" \"$3/$n.eps\"; \"$1\" convert \"$3/$n.eps\" -o \"$3/$n.pdf\" && "
        "head -c 5 \"$3/$n.pdf\"; "
        "\"$1\" convert \"$3/$n.eps\" -o \"$3/$n.pdf\"; code=$?; rm \"$3/$n.eps\" \"$3/$n.pdf\"; exit $code";
    const Ran ran =
        run("sh", {"-c", script, "sh", kit::norvexProgram(), kit::sample("lighthouse.eps"), folder_->path()});
    QCOMPARE(ran.out, QByteArray("%PDF-"));
    QCOMPARE(ran.exitCode, 4);
    QVERIFY2(ran.err.contains("/gr\\xfcn.pdf exists already"), ran.err);
    QVERIFY(QDir(folder_->path()).isEmpty());
  }
  void aMistypedCommandNeedsNoDisplay() {
    const Ran ran = kit::run(kit::norvexProgram(), {"convret", "x"}, {}, 60,
                             {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="});
    QCOMPARE(ran.exitCode, 2);
    QCOMPARE(
        ran.err,
        QByteArray("norvex: there is no command convret, and no file of that name, perhaps convert is meant; "
                   "norvex --help shows what there is\n"));
  }
  void theInputIsKept() {
    const QString file = write("a.eps", kToldEps);
    const Ran ran = kit::norvex(
        {"convert", file, "-o", path("../" + QFileInfo(folder_->path()).fileName() + "/a.eps"), "--force"});
    QCOMPARE(ran.exitCode, 4);
    QVERIFY(ran.err.endsWith(": the output would overwrite the input\n"));
    QCOMPARE(bytesOf(file), kToldEps);
  }

  void closedStandardStreamsAreNoneOfOurs_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("exitCode");
    for (const char* name : {"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps"})
      for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"})
        QTest::addRow("%s %s", name, closed)
            << QStringLiteral("convert '%1' -o a.png %2").arg(sample(name), closed) << 0;
    QTest::newRow("no input") << "convert - -o a.png <&-" << 3;
    QTest::newRow("no output")
        << QStringLiteral("convert '%1' -o - --format png >&-").arg(sample("lighthouse.svg")) << 4;
    QTest::newRow("no output for facts")
        << QStringLiteral("info '%1' >&-").arg(sample("lighthouse.svg")) << 4;
    QTest::newRow("no output for text")
        << QStringLiteral("source '%1' >&-").arg(sample("lighthouse.svg")) << 4;
  }
  void closedStandardStreamsAreNoneOfOurs() {
    QFETCH(QString, command);
    QFETCH(int, exitCode);
    const QString line =
        QStringLiteral("cd '%1' && exec '%2' %3").arg(folder_->path(), norvexProgram(), command);
    const Ran ran = kit::run("sh", {"-c", line}, {}, 30);
    QCOMPARE(ran.exitCode, exitCode);
    const bool made = exitCode == 0;
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden),
             made ? QStringList{"a.png"} : QStringList{});
    if (made) QCOMPARE(outside::complaintAbout(path("a.png"), "png"), QString());
  }

  void aSuddenDeathLeavesTheOldFile() {
    // Killed at many moments of its life; what is under the name is always whole.
    const QString file = write("a.png", "old");
    const Ran whole =
        kit::norvex({"convert", sample("lighthouse.svg"), "-o", "-", "--format", "png", "--dpi", "200"});
    QCOMPARE(whole.exitCode, 0);
    for (int milliseconds = 10; milliseconds < 1500; milliseconds = milliseconds * 5 / 4) {
      QProcess process;
      process.start(norvexProgram(),
                    {"convert", sample("lighthouse.svg"), "-o", file, "--dpi", "200", "--force"});
      QVERIFY(process.waitForStarted());
      process.waitForFinished(milliseconds);
      process.kill();
      process.waitForFinished();
      const QByteArray found = bytesOf(file);
      QVERIFY2(found == "old" || found == whole.out, qPrintable(QString::number(milliseconds)));
    }
  }

  void aSuddenDeathTakesThePictureProcessAlong() {
    for (const char* name : {"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps"}) {
      QProcess process;
      process.start(norvexProgram(),
                    {"convert", sample(name), "-o", path("a.png"), "--dpi", "1200", "--force"});
      QVERIFY(process.waitForStarted());
      QList<qint64> children;
      QVERIFY2(eventually([&] { return !(children = childrenOf(process.processId())).isEmpty(); }), name);
      process.kill();
      process.waitForFinished();
      for (const qint64 child : children)
        QVERIFY2(eventually([&] { return stateOf(child) == 0 || stateOf(child) == 'Z'; }), name);
    }
  }

  void anInterruptionLeavesNoPartialFile() {
    QDir(folder_->path()).mkdir("to");
    QStringList files;
    for (int i = 0; i < 40; ++i) {
      const QString name = QString("%1.svg").arg(i);
      QVERIFY(QFile::copy(sample("lighthouse.svg"), path(name)));
      files << path(name);
    }
    QProcess process;
    process.start(
        norvexProgram(),
        QStringList{"convert", "--to", path("to"), "--format", "png", "--dpi", "144", "--jobs", "2"} + files);
    QVERIFY(process.waitForStarted());
    // As soon as there is a result the run is in its middle.
    const auto results = [&] { return QDir(path("to")).entryList(QDir::Files | QDir::Hidden); };
    QTRY_VERIFY_WITH_TIMEOUT(!results().isEmpty() || process.state() != QProcess::Running, 60000);
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
    QVERIFY(results().size() < files.size());
    for (const QString& name : results())
      QCOMPARE(outside::complaintAbout(path("to/" + name), "png"), QString());
    const QByteArray said = process.readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.startsWith("norvex: interrupted; ") && said.endsWith("files not converted\n"), said);
  }

  void anInterruptionEndsAnEndlessPicture() {
    const QString file = write("a.eps", kEndless);
    QProcess process;
    process.start(norvexProgram(), {"convert", file, "-o", path("a.png")});
    QVERIFY(process.waitForStarted());
    process.waitForFinished(700);
    ::kill(pid_t(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 130);
    QVERIFY(!QFile::exists(path("a.png")));
  }

  void theTimeLimitEndsAnEndlessPicture() {
    const Ran ran = kit::norvex({"convert", write("a.eps", kEndless), "-o", path("a.png"), "--timeout", "1"});
    QCOMPARE(ran.exitCode, 5);
    QCOMPARE(ran.err.count('\n'), 1);
    QVERIFY2(ran.err.contains("within 1 seconds"), ran.err);
    QVERIFY(!QFile::exists(path("a.png")));
  }

  void twoConversionsToOneTargetLeaveOneOfThem() {
    const QStringList forTarget{"-o", path("a.png"), "--force"};
    const Ran one = kit::norvex({"convert", sample("lighthouse.svg"), "-o", "-", "--format", "png"});
    const Ran two = kit::norvex({"convert", sample("lighthouse.pdf"), "-o", "-", "--format", "png"});
    for (int i = 0; i < 5; ++i) {
      QProcess first, second;
      first.start(norvexProgram(), QStringList{"convert", sample("lighthouse.svg")} + forTarget);
      second.start(norvexProgram(), QStringList{"convert", sample("lighthouse.pdf")} + forTarget);
      QVERIFY(first.waitForFinished(60000) && second.waitForFinished(60000));
      QCOMPARE(first.exitCode() + second.exitCode(), 0);
      const QByteArray found = bytesOf(path("a.png"));
      QVERIFY(found == one.out || found == two.out);
      QCOMPARE(QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
               QStringList{"a.png"});
    }
  }

 private:
  /// Whether the file is drawn all red, but for the outermost pixels.
  [[nodiscard]] bool isPlain(const QString& file, const char* dpi, const QStringList& more = {}) const {
    const QString png = path("plain.png");
    if (kit::norvex(QStringList{"convert", file, "-o", png, "--force", "--dpi", dpi} + more).exitCode != 0)
      return false;
    const QImage image(png), inside = image.copy(image.rect().adjusted(1, 1, -1, -1));
    QImage red = inside;
    red.fill(Qt::red);
    return !inside.isNull() && inside == red;
  }
  QString path(const QString& name) const { return folder_->filePath(name); }
  QString write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
    return file.fileName();
  }
  /// How other programs draw a sample; they are asked once.
  QImage drawn(const QString& sample) {
    QString format = QFileInfo(sample).suffix();
    if (sample == "lighthouse-cs.ai") format = "pdf";
    if (sample == "lighthouse-8.ai") format = "eps";
    if (!drawn_.contains(sample)) drawn_.insert(sample, outside::drawnOutside(kit::sample(sample), format));
    return drawn_.value(sample);
  }

  std::unique_ptr<QTemporaryDir> folder_;
  QHash<QString, QImage> drawn_;
};

NORVEX_TEST(ConvertSystemTest)
#include "convert_test.moc"
