// `norvex repair` of pictures in memory: what is written, and what is told of it.
#include <QJsonObject>

#include "check/check_files.h"
#include "cli/examined_line.h"
#include "encoders/dos_eps_writer.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "metadata/dos_eps_header.h"

using namespace norvex;
using namespace norvex::checkfiles;
using namespace norvex::testdata;

namespace {

/// kEps with another box, or with none.
QByteArray boxed(const QByteArray& numbers) {
  const QByteArray lines = "%%BoundingBox: 10 10 90 60\n%%HiResBoundingBox: 10 10 90 60\n";
  return changed(checkfiles::kEps, lines,
                 numbers.isEmpty() ? QByteArray()
                                   : "%%BoundingBox: " + numbers + "\n%%HiResBoundingBox: " + numbers + '\n');
}

class Repairing : public ExaminedLine {
 public:
  /// The sentences that were told, without the file's name.
  QStringList told(const QByteArray& file, const QStringList& options = {}) {
    const QString source = write("a.eps", file);
    code = run(QStringList{"repair", "--force", source, "-o", path("b.eps")} + options);
    QStringList lines = console.messages.split('\n', Qt::SkipEmptyParts);
    for (QString& line : lines) line.remove(QString("norvex: %1: ").arg(source));
    return lines;
  }
  int code = -1;
};

}  // namespace

class RepairTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsFineStaysAsItIs() {
    Repairing line;
    QCOMPARE(line.told(checkfiles::kEps), QStringList{"nothing had to be changed"});
    QCOMPARE(line.code, 0);
    QCOMPARE(line.contents("b.eps"), checkfiles::kEps);
    QCOMPARE(line.dpiOfDrawn().first(), 1440.0);
    QVERIFY(line.told(checkfiles::kEps, {"--quiet"}).isEmpty());
  }

  void theBoxIsThatOfTheInk() {
    Repairing line;
    line.drawn.ink = line.drawn.painted = QRectF(5, 5.25, 70, 40);
    QCOMPARE(line.told(checkfiles::kEps), QStringList{"the bounding box is 15 15 85 56 (15 15.25 85 55.25)"});
    QVERIFY(line.contents("b.eps").contains("\n%%BoundingBox: 15 15 85 56\n%%HiResBoundingBox: 15 15.25 "));
    line.drawn.painted = QRectF(0, 0, 80, 50);  // white up to the edges is meant
    QCOMPARE(line.told(checkfiles::kEps), QStringList{"nothing had to be changed"});
  }

  void whatFillsEveryPageKeepsTheBoxThatItStates() {
    Repairing line;
    line.drawn.area = QRectF(-100, -100, 300, 300);
    line.drawn.ink = line.drawn.painted = QRectF(-99, -100, 299, 300);
    QCOMPARE(line.told(checkfiles::kEps), QStringList{"nothing had to be changed"});
    line.drawn.ink = line.drawn.painted = QRectF(-98, -100, 298, 300);
    QCOMPARE(line.told(checkfiles::kEps),
             QStringList{"the bounding box is -88 -90 210 210 (-88 -90 210 210)"});
  }

  void aProgramWithoutABoxIsLookedForOnTwoSheets() {
    Repairing line;
    line.drawn.ink = line.drawn.painted = QRectF(20, 30, 40, 20);
    QByteArray drawn;
    line.service.setPrepare([&drawn](MemoryPictureProcess& process) {
      if (drawn.isEmpty()) drawn = process.bytes();
    });
    QCOMPARE(line.told(boxed({})), QStringList{"the bounding box is 20 30 60 50 (20 30 60 50)"});
    QVERIFY2(drawn.contains("\n%%BoundingBox: 0 0 1224 1584\n"), drawn.constData());
    line.drawn.ink = line.drawn.painted = std::nullopt;
    QCOMPARE(line.told(boxed({})), QStringList{"it draws nothing and states no bounding box"});
    QCOMPARE(line.code, 3);
  }

  void thePreviewIsKeptLeftOutOrMade() {
    Repairing line;
    const QByteArray binary = dosEps(checkfiles::kEps, "TIFF");
    const QString out = "the program was taken out of its binary file", dropped = "the preview was left out";
    QCOMPARE(line.told(binary), QStringList{"nothing had to be changed"});
    QCOMPARE(line.contents("b.eps"), dosEpsFile("TIFF", checkfiles::kEps));
    QCOMPARE(line.told(binary, {"--preview", "keep"}), QStringList{"nothing had to be changed"});
    QVERIFY(line.painted.isEmpty());
    QCOMPARE(line.told(binary, {"--preview", "drop"}), QStringList({out, dropped}));
    QCOMPARE(line.contents("b.eps"), checkfiles::kEps);
    QVERIFY(line.painted.isEmpty());
    QCOMPARE(line.told(binary, {"--preview", "rebuild"}),
             QStringList({out, dropped, "a preview of 80 by 50 pixels was made"}));
    QVERIFY(line.contents("b.eps").startsWith("\xC5\xD0\xD3\xC6"));
    QVERIFY(line.contents("b.eps").contains(checkfiles::kEps));
    QCOMPARE(line.told(dosEps(checkfiles::kEps, {})), QStringList{out});
    const QByteArray interchange = withPreview(checkfiles::kEps, true);
    QCOMPARE(line.told(interchange), QStringList{"nothing had to be changed"});
    QCOMPARE(line.contents("b.eps"), interchange);
    QCOMPARE(line.told(interchange, {"--preview", "drop"}), QStringList{dropped});
    QCOMPARE(line.contents("b.eps"), checkfiles::kEps);
  }

  void aPreviewOfALargePictureIs512PixelsLarge() {
    Repairing line;
    line.drawn.ink = line.drawn.painted = QRectF(0, 0, 2048, 1000);
    QCOMPARE(line.told(boxed("0 0 2048 1000"), {"--preview", "rebuild"}),
             QStringList{"a preview of 512 by 250 pixels was made"});
    QCOMPARE(line.painted.first().pixelSize, QSize(512, 250));
    QCOMPARE(line.painted.first().pictureToDevice, QTransform(0.25, 0, 0, -0.25, 0, 250));
    const QByteArray file = line.contents("b.eps");
    line.write("preview.tiff", tiffSection(file, *dosEpsHeader(file)).toByteArray());
    const kit::Ran said = kit::run("tiffinfo", {line.path("preview.tiff")});
    QVERIFY2(said.out.contains("Resolution: 18, 18 pixels/inch"), said.out.constData());
    line.drawn.ink = line.drawn.painted = QRectF(0, 0, 2048, 0.5);
    QCOMPARE(line.told(boxed("0 0 2048 1"), {"--preview", "rebuild"}).last(),
             "a preview of 512 by 1 pixels was made");
  }

  void whatStandsAroundTheProgramIsTold() {
    Repairing line;
    QCOMPARE(line.told('\x04' + checkfiles::kEps),
             QStringList{"what stood before the first line was left out"});
    QCOMPARE(line.contents("b.eps"), checkfiles::kEps);
    QCOMPARE(line.told(macBinary(checkfiles::kEps)).size(), 1);
    QVERIFY(line.console.messages.contains(": the program was taken out of "));
    QByteArray metafile = dosEps(checkfiles::kEps + "META", {});
    metafile.replace(8, 4, littleEndian(quint32(checkfiles::kEps.size())));
    metafile.replace(12, 8, littleEndian(quint32(30 + checkfiles::kEps.size())) + littleEndian(4));
    QCOMPARE(line.told(metafile), QStringList({"the program was taken out of its binary file",
                                               "the Windows metafile was left out"}));
  }

  void whatCannotBeMendedIsToldAndStays() {
    Repairing line;
    line.page.missingFonts = {"the font A is missing, B stands in for it"};
    QCOMPARE(line.told(checkfiles::kEps),
             QStringList({"nothing had to be changed",
                          "this stays as it is: the font A is missing, B stands in for it"}));
    QCOMPARE(line.code, 0);
    const QString file = line.path("a.eps");
    QCOMPARE(line.run({"repair", "--json", "--quiet", "--force", file, "-o", line.path("b.eps")}), 0);
    const QJsonObject told = jsonOf(line).at(0).toObject();
    QCOMPARE(told["file"].toString(), file);
    QCOMPARE(told["output"].toString(), line.path("b.eps"));
    QCOMPARE(told["changes"].toArray().size(), 0);
    QCOMPARE(told["remaining"].toArray().at(0).toString(), "the font A is missing, B stands in for it");
  }

  void aResultThatWouldNotDrawIsNotWritten() {
    Repairing line;
    int opened = 0;
    line.service.setPrepare([&opened](MemoryPictureProcess& process) {
      if (++opened == 2)  // the one that looks at the result
        process.fail(PictureCall::Examine, {ErrorKind::NotParsable, QStringLiteral("it stops")}, 1);
    });
    QCOMPARE(line.told(checkfiles::kEps), QStringList{"it cannot be mended: it stops"});
    QCOMPARE(line.code, 3);
    QVERIFY(line.contents("b.eps").isEmpty());
  }

  void onlyEpsFilesAreMended() {
    Repairing line;
    QCOMPARE(line.told(kSvg), QStringList{"only EPS files can be repaired"});
    QCOMPARE(line.code, 3);
    QCOMPARE(line.run({"repair", "--json", line.path("a.eps"), "-o", "-"}), 2);
    QVERIFY(line.console.messages.contains("--json and -o - both need standard output"));
  }
};

NORVEX_TEST(RepairTest)
#include "repair_test.moc"
