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

  void aSourceThatIsNotTextIsTold() {
    // Binary data in the body: bytes that are neither UTF-8 nor anything else that the header could declare.
    QByteArray binary = kEps;
    binary.insert(binary.indexOf("showpage"), QByteArray("\x81\xFF\xFE\x00\x8D", 5));
    CommandLine line;
    const QString from = line.write("a.eps", binary);
    const QString to = line.path("b.eps");
    QCOMPARE(line.run({"convert", from, "-o", to, "--format", "eps-preview", "--json"}), 0);
    const QString sentence =
        QStringLiteral("the source could not be read as text, so the file holds a preview and no PostScript");
    QCOMPARE(line.console.messages, QString("norvex: %1: %2\n").arg(from, sentence));
    QCOMPARE(jsonOf(line).at(0)["warnings"].toArray(), QJsonArray{sentence});

    QCOMPARE(line.run({"convert", from, "-o", line.path("b.epsi"), "--json"}), 3);
    const QString refusal =
        QStringLiteral("the source could not be read as text, so it cannot be written as EPSI");
    QCOMPARE(line.console.messages, QString("norvex: %1: %2\n").arg(from, refusal));
    QCOMPARE(jsonOf(line).at(0)["error"].toString(), refusal);
    QVERIFY(!QFile::exists(line.path("b.epsi")));
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
