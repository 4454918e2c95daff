// Where results go, for every command: what is not overwritten, what is refused, and how a reader that has
// gone ends a run.
#include <QImage>
#include <QJsonObject>

#include "base/file_name.h"
#include "cli/cli_files.h"
#include "cli/files/json_output.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class OutputTest : public QObject {
  Q_OBJECT
 private slots:
  void outputsThatCannotBeAreToldBeforeAnyWork_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("convert") << QStringList{"convert", "IN.eps", "--format", "png", "-o", "OUT"};
    QTest::newRow("preview") << QStringList{"preview", "IN.eps", "-o", "OUT"};
    QTest::newRow("repair") << QStringList{"repair", "IN.eps", "-o", "OUT"};
    QTest::newRow("thumbnail") << QStringList{"thumbnail", "IN.eps", "OUT"};
    QTest::newRow("print") << QStringList{"print", "IN.eps", "-o", "OUT"};
  }
  void outputsThatCannotBeAreToldBeforeAnyWork() {
    QFETCH(QStringList, arguments);
    CommandLine line;
    const QString file = line.write("a.eps", kEpsi);
    const auto run = [&](const QString& output, const QStringList& more = {}) {
      QStringList given = QStringList(arguments).replaceInStrings("IN.eps", file);
      return line.run(given.replaceInStrings("OUT", output) + more);
    };
    const QString there = line.write("there", "mine");
    QCOMPARE(run(there), 4);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: %2 exists already (--force overwrites it)\n").arg(file, there));
    QCOMPARE(line.contents("there"), QByteArray("mine"));
    QVERIFY(QDir(line.path(".")).mkdir("folder"));
    QVERIFY(run(line.path("folder"), {"--force"}) != 0);
    QVERIFY2(line.console.messages.contains(line.path("folder") + " is a folder"),
             qPrintable(line.console.messages));
    QCOMPARE(run("/dev/null", {"--force"}), 4);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: /dev/null is no ordinary file (-o - is standard output)\n").arg(file));
    QCOMPARE(run("/dev/null"), 4);
    QVERIFY(line.console.messages.contains("no ordinary file"));
    QCOMPARE(run(line.path("no/where")), 4);
    QVERIFY(line.console.messages.contains("the folder to write to does not exist"));
    QCOMPARE(line.service.openCount(), 0);
  }

  void aNameOfAnotherFormatIsRefused() {
    CommandLine line;
    const QString epsi = line.write("a.epsi", kEpsi);
    const auto refused = [&](const QStringList& arguments) {
      const int code = line.run(arguments);
      return code == 2 && line.console.messages.contains("has the name of another format than");
    };
    for (const char* name : {"b.jpg", "b.eps", "b.PDF", "b.svg"}) {
      QVERIFY(refused({"preview", epsi, "-o", line.path(name)}));
      QVERIFY(refused({"thumbnail", epsi, line.path(name)}));
    }
    for (const char* name : {"b.png", "b.pdf", "b.ai", "b.svgz"})
      QVERIFY(refused({"repair", epsi, "-o", line.path(name)}));
    QCOMPARE(line.service.openCount(), 0);
    for (const char* name : {"b", "b.PNG", "b.XyZ123"})
      QCOMPARE(line.run({"thumbnail", epsi, line.path(name)}), 0);
  }

  void aThumbnailFillsAnEmptyFileAndOverwritesNoOther() {
    CommandLine line;
    const QString file = line.write("a.epsi", kEpsi), empty = line.write("empty.png", {});
    QCOMPARE(line.run({"thumbnail", file, empty}), 0);
    QVERIFY(line.contents("empty.png").startsWith("\x89PNG"));
    QCOMPARE(line.run({"thumbnail", file, empty}), 4);
    QCOMPARE(line.run({"thumbnail", file, empty, "--force"}), 0);
  }

  void emptyNamesAreTold() {
    CommandLine line;
    const auto complaint = [&](const QStringList& arguments) {
      return line.run(arguments) == 2 ? line.console.messages.section(';', 0, 0) : QString("not refused");
    };
    QCOMPARE(complaint({"info", ""}), "norvex: a file's name is empty");
    QCOMPARE(complaint({"convert", "a.eps", "-o", ""}), "norvex: the name that follows --output is empty");
    QCOMPARE(complaint({"convert", "a.eps", "--to", "", "--format", "png"}),
             "norvex: the name that follows --to is empty");
    QCOMPARE(complaint({"status", "s", "--merge", ""}), "norvex: the name that follows --merge is empty");
    QCOMPARE(complaint({"inks", "a.eps", "--plates", ""}), "norvex: the name that follows --plates is empty");
    QCOMPARE(complaint({"check", "a.eps", "--profile", ""}),
             "norvex: the name that follows --profile is empty");
  }

  void whatAVectorFormatDoesNotUseIsRefused() {
    CommandLine line;
    const QString file = line.write("a.eps", kEps);
    for (const char* format : {"pdf", "svg", "svgz", "eps", "epsi", "eps-preview"}) {
      QCOMPARE(line.run({"convert", file, "-o", line.path("b"), "--format", format, "--background", "red"}),
               2);
      QVERIFY2(line.console.messages.contains("--background goes with the raster formats"), format);
    }
  }

  void aPageIsNotCutLargerThanReadersTake() {
    CommandLine line;
    const QString file = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", file, "-o", line.path("b.pdf"), "--crop", "0,0,14400,14400"}), 0);
    QCOMPARE(line.run({"convert", file, "-o", line.path("c.pdf"), "--crop", "0,0,100,14401"}), 5);
    QCOMPARE(line.console.messages, QString("norvex: %1: the rectangle of --crop may have 14400 points a "
                                            "side; the picture is 200 by 100\n")
                                        .arg(file));
  }

  void aFormatWithoutRoomForThePixelsIsToldAsALimit_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("most");
    QTest::newRow("webp") << "webp" << 16383;
    QTest::newRow("jpeg") << "jpeg" << 65500;
    QTest::newRow("gif") << "gif" << 65535;
  }
  void aFormatWithoutRoomForThePixelsIsToldAsALimit() {
    QFETCH(QString, format);
    QFETCH(int, most);
    MemoryPicture strip;
    strip.facts.pageBounds = {QRectF(0, 0, most, 1)};
    CommandLine line;
    line.service.setPicture(strip);
    const QString file = line.write("a.pdf", emptyPdf({200, 100}));
    QCOMPARE(line.run({"convert", file, "-o", line.path("b"), "--format", format}), 0);
    strip.facts.pageBounds = {QRectF(0, 0, most + 1, 1)};
    line.service.setPicture(strip);
    QCOMPARE(line.run({"convert", file, "-o", line.path("c"), "--format", format}), 5);
    QCOMPARE(line.console.messages,
             QString("norvex: %1: %2 holds at most %3 pixels a side, and this would be %4\n")
                 .arg(file, format.toUpper())
                 .arg(most)
                 .arg(most + 1));
  }

  void aReaderThatHasGoneEndsTheRunWithoutAWord_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("info") << QStringList{"info", "IN"};
    QTest::newRow("info --json") << QStringList{"info", "IN", "--json"};
    QTest::newRow("source") << QStringList{"source", "IN"};
    QTest::newRow("convert") << QStringList{"convert", "IN", "-o", "-", "--format", "png"};
    QTest::newRow("preview") << QStringList{"preview", "IN", "-o", "-"};
  }
  void aReaderThatHasGoneEndsTheRunWithoutAWord() {
    QFETCH(QStringList, arguments);
    CommandLine line;
    line.console.closed = true;
    const QString file = line.write("a.epsi", kEpsi);
    QCOMPARE(line.run(arguments.replaceInStrings("IN", file)), 141);
    QCOMPARE(line.console.messages, QString());
  }

  void jsonTellsNamesThatAreNoTextWithTheirBytes() {
    CommandLine line;
    const QByteArray name = QFile::encodeName(line.path("")) + "/bad\xFF\xE2\x82.svg";
    FILE* stream = std::fopen(name.constData(), "w");
    QVERIFY(stream);
    std::fputs("<svg xmlns='http://www.w3.org/2000/svg'/>", stream);
    std::fclose(stream);
    QCOMPARE(line.run({"info", "--json", fileNameText(name)}), 0);
    QVERIFY(line.console.output.isValidUtf8());
    QVERIFY(!line.console.output.contains("\\ud") && !line.console.output.contains("\\uD"));
    const QJsonValue told = jsonOf(line).at(0);
    QCOMPARE(told["file"].toString(), QString::fromUtf8(name));
    QCOMPARE(QByteArray::fromBase64(told["fileBytes"].toString().toLatin1()), name);
    QVERIFY(std::remove(name.constData()) == 0);
  }

  void halfACharacterIsReplacedWhereverItStandsInJson() {
    const QString half =
        QString("a") + QChar(0xDC80) + "b" + QChar(0xD83D) + "\\ud800" + QChar(0xD83D) + QChar(0xDE00);
    const QByteArray line = jsonLine({{"text", half}});
    QCOMPARE(line, QByteArray("{\"text\":\"a\xEF\xBF\xBD"
                              "b\xEF\xBF\xBD\\\\ud800\xF0\x9F\x98\x80\"}\n"));
  }
};

NORVEX_TEST(OutputTest)
#include "output_test.moc"
