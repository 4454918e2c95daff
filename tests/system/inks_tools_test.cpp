// The inks that the command tells and writes, beside what Ghostscript says of the same files.
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/small_disk.h"

using namespace norvex;

namespace {

const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 90 70\n%%EndComments\n"
    "1 0.25 0 0.1 setcmykcolor 2 3 40.5 31.25 rectfill 0.3 setgray 30 20 35 42 rectfill\n"
    "0 0.7 0.3 0 setcmykcolor 5 30 moveto 65 68 lineto 78 25 lineto fill\nshowpage\n%%EOF\n";

QString written(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes) {
  QFile file(folder.filePath(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write test data");
  return file.fileName();
}

QJsonObject inksOf(const QString& file, const QStringList& options = {}) {
  const kit::Ran ran = kit::norvex(QStringList{"inks", "--json", file} + options);
  if (ran.exitCode != 0) qWarning("%s", ran.err.constData());
  return QJsonDocument::fromJson(ran.out).array().at(0).toObject();
}

/// Shares of the page, 0 … 1, as a device of Ghostscript that counts inks tells them.
QList<double> coverageOfGs(const QString& file, const char* dpi) {
  const kit::Ran gs = kit::run("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop", "-sDEVICE=inkcov",
                                      QStringLiteral("-r%1").arg(dpi), "-o", "-", file});
  QList<double> shares;
  static const QRegularExpression number(QStringLiteral("\\d+\\.\\d+"));
  for (auto match = number.globalMatch(QString::fromLatin1(gs.out)); match.hasNext();)
    shares << match.next().captured().toDouble();
  return shares;
}

}  // namespace

class InksToolsTest : public QObject {
  Q_OBJECT
 private slots:
  void coverageIsThatOfGhostscript_data() {
    QTest::addColumn<QString>("format");
    QTest::newRow("EPS") << "eps";
    QTest::newRow("PDF") << "pdf";
  }
  void coverageIsThatOfGhostscript() {
    QFETCH(QString, format);
    const QTemporaryDir folder;
    QString file = written(folder, "a.eps", kEps);
    if (format == "pdf") {
      QCOMPARE(kit::norvex({"convert", file, "-o", folder.filePath("a.pdf")}).exitCode, 0);
      file = folder.filePath("a.pdf");
    }
    const QList<double> theirs = coverageOfGs(file, "144");
    QCOMPARE(theirs.size(), 4);
    const QJsonArray inks = inksOf(file)["inks"].toArray();
    QCOMPARE(inks.size(), 4);
    for (int i = 0; i < 4; ++i) {
      QVERIFY2(std::abs(inks[i].toObject()["coverage"].toDouble() - theirs[i]) < 0.002,
               qPrintable(inks[i].toObject()["name"].toString()));
      QVERIFY(theirs[i] > 0.05);
    }
  }

  void platesAreWrittenFromTheProgramThatIsInstalled() {
    const QTemporaryDir folder;
    const QString file =
        written(folder, "a.eps",
                QByteArray(kEps).replace("showpage",
                                         "[/Separation (Gold) /DeviceCMYK {0 exch dup 0}] setcolorspace "
                                         "0.5 setcolor 70 50 20 20 rectfill showpage"));
    const QJsonObject page = inksOf(file, {"--dpi", "72", "--plates", folder.filePath("plates")});
    QCOMPARE(page["width"].toInt(), 90);
    const QJsonObject gold = page["inks"].toArray().at(4).toObject();
    QCOMPARE(gold["name"].toString(), "Gold");
    QCOMPARE(gold["coverage"].toDouble(), 400.0 / 6300);
    const QImage plate(gold["plate"].toString());
    QCOMPARE(plate.size(), QSize(90, 70));
    QCOMPARE(qGray(plate.pixel(80, 10)), 128);
    QCOMPARE(qGray(plate.pixel(10, 10)), 255);
    QCOMPARE(QDir(folder.filePath("plates")).entryList(QDir::Files).size(), 5);
  }

  void platesThatDoNotAllFitAreNotWritten() {
    const SmallDisk disk("16k");
    if (!disk.isMounted()) QSKIP("mounting is not permitted here");
    const QTemporaryDir folder;
    // Noise: the plates that have nothing on them fit, that of black does not.
    const QString file = written(folder, "a.eps",
                                 "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 300\n%%EndComments\n"
                                 "0 1 299 { 0 1 299 { 1 index exch 1 1 rand 2 mod 0 eq { rectfill } { pop "
                                 "pop pop pop } ifelse } for pop } for showpage\n%%EOF\n");
    const QString plates = disk.path("plates");
    const kit::Ran ran = kit::norvex({"inks", file, "--dpi", "72", "--plates", plates});
    QCOMPARE(ran.exitCode, 4);
    QCOMPARE(ran.err.count('\n'), 1);
    QVERIFY(ran.err.contains("no space left"));
    QCOMPARE(QDir(disk.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(QDir().mkdir(plates));
    QCOMPARE(kit::norvex({"inks", file, "--dpi", "72", "--plates", plates}).exitCode, 4);
    QCOMPARE(QDir(plates).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(QDir(plates).exists());
  }

  void anSvgIsToldToHaveNone() {
    const QTemporaryDir folder;
    const kit::Ran ran = kit::norvex(
        {"inks", written(folder, "a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>")});
    QCOMPARE(ran.exitCode, 3);
    QCOMPARE(ran.err.count('\n'), 1);
    QVERIFY(ran.err.contains("an SVG picture has no inks"));
    QVERIFY(ran.out.isEmpty());
  }

  /// As a Macintosh wraps it: the wrapping is not the beginning of the program.
  void whatDoesNotBeginAsAProgramIsRefusedInTheWordsOfOtherCommands() {
    const QTemporaryDir folder;
    QByteArray header(128, '\0');
    header[1] = 5;
    header.replace(2, 5, "a.eps");
    const QString file = written(folder, "a.eps", header + kEps);
    const kit::Ran ran = kit::norvex({"inks", file});
    QCOMPARE(ran.exitCode, 3);
    QCOMPARE(ran.err, kit::norvex({"convert", file, "-o", folder.filePath("a.png")}).err);
    QCOMPARE(ran.err.count('\n'), 1);
    QVERIFY(ran.err.contains("it does not begin with %!"));
  }

  void standardInputHasInksToo() {
    const kit::Ran ran = kit::norvex({"inks", "-"}, kEps);
    QCOMPARE(ran.exitCode, 0);
    QVERIFY(ran.out.startsWith("Cyan     process"));
  }

  void aPdfThatNobodyExpectedHasInksToo() {
    const QTemporaryDir folder;
    QCOMPARE(
        kit::norvex({"convert", written(folder, "a.eps", kEps), "-o", folder.filePath("a.pdf")}).exitCode, 0);
    // By its name there is nothing for an interpreter to do.
    const QString file = folder.filePath("a.svg");
    QVERIFY(QFile::rename(folder.filePath("a.pdf"), file));
    QCOMPARE(inksOf(file)["inks"].toArray().size(), 4);
  }

  void aPictureThatIsTooLargeIsALimit() {
    const QTemporaryDir folder;
    const kit::Ran ran = kit::norvex({"inks", "--dpi", "20000", written(folder, "a.eps", kEps)});
    QCOMPARE(ran.exitCode, 5);
    QCOMPARE(ran.err.count('\n'), 1);
  }
};

NORVEX_TEST(InksToolsTest)
#include "inks_tools_test.moc"
