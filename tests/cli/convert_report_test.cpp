// What `norvex convert` has to tell about its results: the JSON report and the lines of standard error.
#include <QFileInfo>
#include <QJsonObject>

#include "cli/cli_files.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class ConvertReportTest : public QObject {
  Q_OBJECT
 private slots:
  void oneJsonObjectForEachFile() {
    CommandLine line;
    const QString good = line.write("a.eps", kEps);
    const QString bad = line.path("missing.eps");
    QCOMPARE(line.run({"convert", good, bad, "--to", QFileInfo(good).path(), "--format", "png", "--dpi",
                       "144", "--json"}),
             1);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].toObject(),
             QJsonObject({{"file", good},
                          {"output", line.path("a.png")},
                          {"format", "png"},
                          {"bytes", QFileInfo(line.path("a.png")).size()},
                          {"rasterized", QJsonObject{{"regions", 1}, {"areaShare", 1.0}, {"dpi", 144}}},
                          {"metadataLost", QJsonArray{"Title", "Creator"}},
                          {"warnings", QJsonArray()}}));
    QCOMPARE(all[1]["error"].toString(), "No such file or directory");
    QCOMPARE(all[1]["output"].toString(), line.path("missing.png"));
    QVERIFY(!all[1].toObject().contains("bytes"));
    QCOMPARE(line.console.messages, QString("norvex: %1: No such file or directory\n").arg(bad));
  }

  void aSourceThatIsNotTextGoesOverAndWhatItSaysIsLostElsewhere() {
    // Bytes that are neither UTF-8 nor anything else that the header could declare.
    QByteArray binary = kEps;
    binary.insert(binary.indexOf("showpage"), QByteArray("\x81\xFF\xFE\x00\x8D", 5));
    CommandLine line;
    const QString from = line.write("a.eps", binary);
    for (const char* format : {"eps", "eps-preview", "epsi"}) {
      QCOMPARE(line.run({"convert", from, "-o", line.path("b"), "--format", format, "--force", "--json"}), 0);
      QVERIFY(line.contents("b").endsWith(binary.sliced(binary.indexOf("%%EndComments") + 13)));
      QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray());
    }
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.pdf"), "--json"}), 0);
    QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray({"Title", "Creator"}));
  }

  void whatAnEpsSaysStaysInAnEps() {
    const QByteArray eps = QByteArray(kEps).replace("%%EndComments", "%%Routing: r\n%%EndComments");
    CommandLine line;
    const QString from = line.write("a.eps", eps);
    for (const char* format : {"eps", "eps-preview", "epsi"}) {
      QCOMPARE(line.run({"convert", from, "-o", line.path("b"), "--format", format, "--force", "--json"}), 0);
      QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray());
    }
    // A new file with the old one's facts: it has no line for the routing.
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--crop", "0,0,9,9", "--json"}), 0);
    QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray({"Description"}));
  }

  void aTitleThatItsLineDidNotTakeIsLost() {
    MemoryPicture picture;
    picture.facts.title = "a\n%%Creator: b";  // the creator takes the first line that holds its keyword
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.svg", kSvg);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--json"}), 0);
    QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray({"Title"}));
    picture.facts.title = "a\r\nb";
    line.service.setPicture(picture);
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.eps"), "--json"}), 0);
    QVERIFY(line.contents("c.eps").contains("%%Title: a b\n"));
    QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray());
  }

  void aResultThatCouldNotBeOpenedAgainIsNotWritten() {
    MemoryPicture picture;
    picture.compose = [](const ComposeRequest&) { return QByteArray("%!PS\n%%EndComments\nshowpage\n"); };
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    const QString to = line.write("b.eps", "old");
    QCOMPARE(line.run({"convert", from, "-o", to, "--force"}), 3);
    QCOMPARE(
        line.console.messages,
        QString("norvex: %1: the result could not be opened again: the PostScript header states no usable "
                "bounding box\n")
            .arg(from));
    QCOMPARE(line.contents("b.eps"), QByteArray("old"));
  }

  void aDescriptionWithoutATitleCostsTheSubjectAlone() {
    MemoryPicture picture;
    picture.facts.description = "d";
    CommandLine line;
    line.service.setPicture(picture);
    QCOMPARE(line.run({"convert", line.write("a.svg", kSvg), "-o", line.path("b.pdf"), "--json"}), 0);
    QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(),
             QJsonArray{"the PDF has no subject, because the document has a description but no title"});
    QCOMPARE(jsonOf(line).at(0)["metadataLost"].toArray(), QJsonArray({"Description"}));
  }

  void aLibrarysWordsAreDetails() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Render, {ErrorKind::NotParsable, "PostScript error: undefined in \u009Bx"});
    });
    const QString from = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--json"}), 3);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: the PostScript program stops with an error. Details: undefined in \\x9bx\n")
                 .arg(from));
    QCOMPARE(jsonOf(line).at(0)["error"].toString(), "the PostScript program stops with an error");
    QCOMPARE(jsonOf(line).at(0)["details"].toString(), "undefined in \u009Bx");
    QVERIFY(line.console.output.contains("undefined in \\u009bx"));
  }

  void aFileThatIsCutOffIsTold() {
    const QString sentence = QStringLiteral("the file seems cut off: its PostScript stops before its end");
    CommandLine line;
    const QByteArray program = QByteArray(kEps).replace("showpage\n", "%%BeginProlog\n/a { 0 0 move");
    const QString from = line.write("a.eps", program);
    for (const char* format : {"eps", "eps-preview", "epsi", "png"}) {
      QCOMPARE(line.run({"convert", from, "-o", line.path("b"), "--format", format, "--force", "--json"}), 0);
      QVERIFY2(line.console.messages.startsWith(QString("norvex: %1: %2").arg(from, sentence)), format);
      QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(), QJsonArray{sentence});
    }
    QCOMPARE(line.run({"convert", line.write("whole.eps", kEps), "-o", line.path("b.eps")}), 0);
    QCOMPARE(line.console.messages, QString());
  }

  void whatWasNoticedAtOpeningIsTold() {
    MemoryPicture picture;
    picture.facts.warnings = {"it is odd"};
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.svg", kSvg);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.png"), "--json"}), 0);
    QCOMPARE(line.console.messages, QString("norvex: %1: it is odd\n").arg(from));
    QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(), QJsonArray{"it is odd"});
  }

  void partsThatBecameImagesAreTold() {
    MemoryPicture picture;
    picture.report.regionsRasterised = 3;
    picture.report.rasterisedAreaShare = 0.25;
    picture.report.rasterisedDpi = 212.4;
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--json"}), 0);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: 3 parts (25.0 % of the area) became images of 212 dpi\n").arg(from));
    QCOMPARE(jsonOf(line).at(0)["rasterized"].toObject(),
             QJsonObject({{"regions", 3}, {"areaShare", 0.25}, {"dpi", 212.4}}));

    picture.report = {};
    picture.report.regionsRasterised = 1;  // nothing else is known
    line.service.setPicture(picture);
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.eps"), "--json"}), 0);
    QCOMPARE(line.console.messages, QString("norvex: %1: 1 part became an image\n").arg(from));
    QCOMPARE(jsonOf(line).at(0)["rasterized"].toObject(), QJsonObject({{"regions", 1}, {"areaShare", 0}}));
  }

  void fontsThatStandInForOthersAreToldForEveryFormat() {
    const QString sentence = QStringLiteral("the font A is missing, B stands in for it");
    MemoryPicture picture;
    picture.drawingRemarks = {sentence};
    picture.report.warnings = {sentence};
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.eps", kEps);
    for (const char* format : {"eps-preview", "epsi", "tiff", "png", "jpeg", "gif"}) {
      QCOMPARE(line.run({"convert", from, "-o", line.path("b"), "--force", "--format", format, "--json"}), 0);
      QVERIFY2(line.console.messages.count(sentence) == 1, format);
      QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(), QJsonArray{sentence});
    }
    // Nothing is drawn, nothing stands in for anything.
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps"), "--json"}), 0);
    QCOMPARE(line.console.messages, QString());
  }

  void metadataThatTheFormatCannotHoldIsNamed() {
    MemoryPicture picture;
    picture.facts.title = "t";
    picture.facts.description = "d";
    CommandLine line;
    line.service.setPicture(picture);
    const QString from = line.write("a.svg", kSvg);
    QCOMPARE(line.run({"convert", from, "-o", line.path("b.eps")}), 0);
    QCOMPARE(line.console.messages, QString("norvex: %1: not in the file: Description\n").arg(from));
    QCOMPARE(line.run({"convert", from, "-o", line.path("c.svg")}), 0);
    QCOMPARE(line.console.messages, QString());
    QCOMPARE(line.run({"convert", from, "-o", line.path("d.eps"), "--quiet"}), 0);
    QCOMPARE(line.console.messages, QString());
  }
};

NORVEX_TEST(ConvertReportTest)
#include "convert_report_test.moc"
