// `norvex inks`: what it tells and what it writes, of a picture in memory.
#include <QImage>
#include <QJsonObject>

#include "base/atomic_file.h"
#include "base/file_name.h"
#include "cli/cli_files.h"
#include "cli/inks/plate_files.h"
#include "kit/test_main.h"
#include "protocol/page_inks.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

/// Two pixels, beside each other.
PageInks page() {
  PageInks page;
  page.pixels = QSize(2, 1);
  page.dpi = 144;
  for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 0, 0};
  page.inks << Ink{"Gold/Foil", true, ProcessInks{0, 51, 255, 0}, 0.5, 0.3};
  page.inks[0].coverage = page.inks[0].amount = 1;
  page.plates = QByteArray("\xff\xff\0\0\0\0\0\0\0\x99", 10);
  return page;
}

/// Answers with that page, and keeps what it was asked.
class Separated : public CommandLine {
 public:
  explicit Separated(const PageInks& answer = page()) {
    MemoryPicture picture;
    picture.examine = [this, answer](const ExamineRequest& request) {
      asked << request;
      return encodePageInks(answer);
    };
    service.setPicture(picture);
  }
  QList<ExamineRequest> asked;
};

}  // namespace

class InksTest : public QObject {
  Q_OBJECT
 private slots:
  void everyInkHasALine() {
    Separated line;
    QCOMPARE(line.run({"inks", line.write("a.eps", kEps)}), 0);
    QCOMPARE(QString::fromUtf8(line.console.output),
             "Cyan       process  100.00 % of the page, 100.00 % ink\n"
             "Magenta    process    0.00 % of the page,   0.00 % ink\n"
             "Yellow     process    0.00 % of the page,   0.00 % ink\n"
             "Black      process    0.00 % of the page,   0.00 % ink\n"
             "Gold/Foil  spot      50.00 % of the page,  30.00 % ink\n"
             "most ink in one place: 160.0 %\n");
    QVERIFY(line.console.messages.isEmpty());
  }

  void theSameAsJson() {
    Separated line;
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"inks", "--json", file, "--page", "3"}), 0);
    const QJsonArray all = jsonOf(line);
    QCOMPARE(all.size(), 1);
    const QJsonObject object = all[0].toObject();
    QCOMPARE(object["file"].toString(), file);
    QCOMPARE(object["page"].toInt(), 3);
    QCOMPARE(object["width"].toInt(), 2);
    QCOMPARE(object["height"].toInt(), 1);
    QCOMPARE(object["dpi"].toDouble(), 144.0);
    QCOMPARE(object["overprint"].toBool(true), false);
    QCOMPARE(object["mostInk"].toDouble(), 160.0);
    const QJsonArray inks = object["inks"].toArray();
    QCOMPARE(inks.size(), 5);
    QCOMPARE(inks[0].toObject()["name"].toString(), "Cyan");
    QCOMPARE(inks[0].toObject()["kind"].toString(), "process");
    QCOMPARE(inks[0].toObject()["rgb"].toString(), "#00adef");
    QCOMPARE(inks[4].toObject()["kind"].toString(), "spot");
    QCOMPARE(inks[4].toObject()["coverage"].toDouble(), 0.5);
    QCOMPARE(inks[4].toObject()["amount"].toDouble(), 0.3);
    QCOMPARE(inks[4].toObject()["cmyk"].toArray(), QJsonArray({0, 0.2, 1, 0}));
    QVERIFY(!inks[4].toObject().contains("plate"));
  }

  void theOptionsReachTheEngine() {
    Separated line;
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"inks", file}), 0);
    QCOMPARE(line.run({"inks", file, "--page", "2", "--dpi", "300", "--overprint"}), 0);
    QCOMPARE(line.asked.size(), 2);
    QCOMPARE(line.asked[0].what, Examination::Inks);
    QCOMPARE(line.asked[0].page, 0);
    QCOMPARE(line.asked[0].dpi, 144.0);
    QVERIFY(!line.asked[0].overprint);
    QCOMPARE(line.asked[1].page, 1);
    QCOMPARE(line.asked[1].dpi, 300.0);
    QVERIFY(line.asked[1].overprint);
  }

  void theEndsOfTheRangesBelongToThem() {
    Separated line;
    const QString file = line.write("a.pdf", kPdf);
    for (const char* dpi : {"1", "100000"}) QCOMPARE(line.run({"inks", file, "--dpi", dpi}), 0);
    for (const char* dpi : {"0.9", "100001"}) QCOMPARE(line.run({"inks", file, "--dpi", dpi}), 2);
    QCOMPARE(line.run({"inks", file, "--page", "0"}), 2);
  }

  void everyInkGetsAPlate() {
    Separated line;
    const QString folder = line.path("new/plates");
    QCOMPARE(line.run({"inks", "--json", line.write("my picture.eps", kEps), "--plates", folder}), 0);
    QCOMPARE(QDir(folder).entryList(QDir::Files),
             QStringList({"my picture-Black.png", "my picture-Cyan.png", "my picture-Gold_Foil.png",
                          "my picture-Magenta.png", "my picture-Yellow.png"}));
    const QImage plate(folder + "/my picture-Gold_Foil.png");
    QCOMPARE(plate.size(), QSize(2, 1));
    QVERIFY(plate.isGrayscale());
    QCOMPARE(qGray(plate.pixel(0, 0)), 255);
    QCOMPARE(qGray(plate.pixel(1, 0)), 255 - 0x99);
    QCOMPARE(qRound(plate.dotsPerMeterX() * 0.0254), 144);
    const QJsonObject object = jsonOf(line)[0].toObject();
    QCOMPARE(object["inks"].toArray()[4].toObject()["plate"].toString(),
             folder + "/my picture-Gold_Foil.png");
  }

  void namesThatAreNoTextAreToldWithTheirBytes() {
    Separated line;
    const QByteArray raw = QFile::encodeName(line.path("gr")) + "\xFCn", name = raw + ".eps";
    QVERIFY(writeFileAtomically(fileNameText(name), kEps, IfExists::Fail));
    QCOMPARE(line.run({"inks", "--json", fileNameText(name), "--plates", line.path("plates")}), 0);
    const QJsonObject object = jsonOf(line)[0].toObject();
    QCOMPARE(object["file"].toString(), QString::fromUtf8(name));
    QCOMPARE(QByteArray::fromBase64(object["fileBytes"].toString().toLatin1()), name);
    const QJsonObject cyan = object["inks"].toArray()[0].toObject();
    QCOMPARE(QByteArray::fromBase64(cyan["plateBytes"].toString().toLatin1()),
             QFile::encodeName(line.path("plates/gr")) + "\xFCn-Cyan.png");
  }

  void platesGoIntoAFolderWhoseNameIsNoText() {
    Separated line;
    const QByteArray folder = QFile::encodeName(line.path("gr")) + "\xFCn/plates";
    QCOMPARE(line.run({"inks", line.write("a.eps", kEps), "--plates", fileNameText(folder)}), 0);
    QVERIFY(fileExists(fileNameText(folder + "/a-Cyan.png")));
    QVERIFY(folderExists(fileNameText(QFile::encodeName(line.path("gr")) + "\xFCn")));
  }

  void aPlateThatCannotBeEncodedIsNotWritten() {
    PageInks nothing = page();
    nothing.pixels = QSize(0, 0);
    const QTemporaryDir folder;
    const auto written = writePlates(nothing, folder.path(), "a", false);
    QVERIFY(!written.ok());
    QCOMPARE(written.error().kind, ErrorKind::CannotWrite);
    QVERIFY2(written.error().message.contains("Cyan"), qPrintable(written.error().message));
    QVERIFY(QDir(folder.path()).isEmpty());
    QVERIFY(!writePlates(nothing, folder.path() + "/new/plates", "a", false).ok());
    QVERIFY2(QDir(folder.path()).isEmpty(), "folders that were made for it stay behind");
  }

  void nothingIsOverwrittenWithoutBeingAsked() {
    Separated line;
    const QString file = line.write("a.eps", kEps);
    const QString plate = line.write("a-Yellow.png", "mine"), folder = line.path("");
    QCOMPARE(line.run({"inks", file, "--plates", folder}), 4);
    QVERIFY(line.console.messages.contains("a-Yellow.png exists already"));
    QCOMPARE(line.contents("a-Yellow.png"), "mine");
    QCOMPARE(line.entries().size(), 2);  // not one of the others either
    QCOMPARE(line.run({"inks", file, "--plates", folder, "--force"}), 0);
    QVERIFY(!QImage(plate).isNull());
  }

  void aFolderThatCannotBeMadeIsToldOf() {
    Separated line;
    const QString file = line.write("a.eps", kEps);
    QCOMPARE(line.run({"inks", file, "--plates", file + "/plates"}), 4);
    QVERIFY(line.console.messages.contains("cannot be made"));
  }

  void namesOfInksAreMadeSafe() {
    PageInks page;
    for (const char* name :
         {"../../etc/x", "PANTONE 2195 C", "pantone 2195 c", "..", "a\nb\x1b[31m", "", "Grün"})
      page.inks << Ink{QString::fromUtf8(name), true, {}, 0, 0};
    page.inks << Ink{QString(300, u'x'), true, {}, 0, 0};
    QCOMPARE(plateNames("p", page),
             QStringList({"p-_.._etc_x.png", "p-PANTONE 2195 C.png", "p-pantone 2195 c 2.png", "p-ink.png",
                          "p-a_b__31m.png", "p-ink 2.png", QStringLiteral("p-Grün.png"),
                          "p-" + QString(60, u'x') + ".png"}));
  }

  void anInksNameCannotMakeALineOfItsOwn() {
    PageInks hostile = page();
    hostile.inks[4].name = QStringLiteral("Gold\nBlack \x1b[31m");
    Separated line(hostile);
    QCOMPARE(line.run({"inks", line.write("a.eps", kEps)}), 0);
    QCOMPARE(line.console.output.count('\n'), 6);
    QVERIFY(!line.console.output.contains('\x1b'));
  }

  void anSvgHasNone() {
    Separated line;
    QCOMPARE(line.run({"inks", line.write("a.svg", kSvg)}), 3);
    QVERIFY2(line.console.messages.contains("an SVG picture has no inks"), qPrintable(line.console.messages));
    QVERIFY(line.asked.isEmpty());
  }

  void whatCannotBeSeparatedIsOneSentence() {
    CommandLine line;
    line.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::Limit, "too many pixels"});
    });
    QCOMPARE(line.run({"inks", line.write("a.eps", kEps)}), 5);
    QCOMPARE(line.console.messages.count('\n'), 1);
    QVERIFY(line.console.messages.contains("too many pixels"));
    line.service.setPrepare({});
    QVERIFY(line.run({"inks", line.write("a.eps", kEps)}) != 0);  // an answer that is none
    QVERIFY(line.console.output.isEmpty());
    QCOMPARE(line.run({"inks", line.path("missing.eps")}), 1 + 2);
  }
};

NORVEX_TEST(InksTest)
#include "inks_test.moc"
