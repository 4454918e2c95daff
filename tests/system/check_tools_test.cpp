// What a check measures, beside what other programs say of the same files: Ghostscript's box, Poppler's lists
// of fonts and images; and what repair writes, drawn by Ghostscript beside its source.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRectF>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

#include "check/check_files.h"
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::checkfiles;

namespace {

const QString kNorvex = QStringLiteral(NORVEX_BUILD_DIR "/norvex");

QString written(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes) {
  QFile file(folder.filePath(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write test data");
  return file.fileName();
}

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Four numbers behind a keyword, as a rectangle between two corners.
QRectF boxIn(const QByteArray& text, const char* keyword) {
  const QRegularExpression form(QLatin1String(keyword) +
                                QStringLiteral(": ([-0-9.]+) ([-0-9.]+) ([-0-9.]+) ([-0-9.]+)"));
  const QRegularExpressionMatch match = form.match(QString::fromLatin1(text));
  return {QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
          QPointF(match.captured(3).toDouble(), match.captured(4).toDouble())};
}

QByteArray program(const QByteArray& drawing) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 300\n%%EndComments\n" + drawing +
         "\nshowpage\n%%EOF\n";
}

/// Drawn on a sheet that holds everything, whatever boxes say.
QByteArray pixelsOf(const QString& file) {
  const kit::Ran ran = kit::run(
      "gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dParseDSCComments=false", "-sDEVICE=ppmraw", "-r144",
             "-g1600x1600", "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-sOutputFile=-", file});
  return ran.out;
}

QJsonArray findingsOf(const QString& file, const QStringList& options = {}) {
  const kit::Ran ran = kit::run(kNorvex, QStringList{"check", "--json", file} + options);
  return QJsonDocument::fromJson(ran.out).array().at(0).toObject()["findings"].toArray();
}

QStringList sentencesOf(const QString& file, const QString& rule, const QStringList& options = {}) {
  QStringList sentences;
  for (const QJsonValue& one : findingsOf(file, options))
    if (one["identifier"].toString() == rule) sentences << one["sentence"].toString();
  return sentences;
}

void addDrawings() {
  QTest::addColumn<QByteArray>("drawing");
  QTest::newRow("rectangle") << QByteArray("30.4 40.2 50.3 60.7 rectfill");
  QTest::newRow("outside the box") << QByteArray("-20.5 -10.25 400 330.5 rectfill");
  QTest::newRow("line") << QByteArray("5 setlinewidth 50 50 moveto 200 50 lineto stroke");
  QTest::newRow("curve") << QByteArray("100 100 moveto 100 250 250 250 250 100 curveto fill");
  QTest::newRow("circle") << QByteArray("150 150 70.5 0 360 arc fill");
  QTest::newRow("text") << QByteArray("/Helvetica findfont 40 scalefont setfont 50 100 moveto (Agfy) show");
  QTest::newRow("image") << QByteArray(
      "gsave 30 40 translate 90 70 scale 2 2 8 [2 0 0 2 0 0] {<00FF4080>} image grestore");
  QTest::newRow("turned") << QByteArray("20 rotate 100 20 90 50 rectfill");
  QTest::newRow("clipped") << QByteArray("40 40 50 50 rectclip 0 0 300 300 rectfill");
  QTest::newRow("level 2 colour") << QByteArray(
      "[/Separation (Gold) /DeviceCMYK {0 0 3 -1 roll 0}] setcolorspace 1 setcolor 40 40 9 9 rectfill");
}

}  // namespace

class CheckToolsTest : public QObject {
  Q_OBJECT
 private slots:
  void boxesAreThoseOfGhostscriptWithinATenthOfAPoint_data() { addDrawings(); }
  void boxesAreThoseOfGhostscriptWithinATenthOfAPoint() {
    QFETCH(QByteArray, drawing);
    const QTemporaryDir folder;
    const QString file = written(folder, "a.eps", program(drawing)), mended = folder.filePath("b.eps");
    const kit::Ran repair = kit::run(kNorvex, {"repair", file, "-o", mended});
    QVERIFY2(repair.exitCode == 0, repair.err.constData());
    // Moved onto the sheet: what lies left of it or below is not seen there.
    const QString moved = written(folder, "moved.eps", "500 500 translate\n" + program(drawing));
    const kit::Ran gs = kit::run("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=bbox",
                                        "-dDEVICEWIDTHPOINTS=3000", "-dDEVICEHEIGHTPOINTS=3000", moved});
    const QRectF theirs = boxIn(gs.err, "HiResBoundingBox").translated(-500, -500);
    const QRectF ours = boxIn(contentsOf(mended), "HiResBoundingBox");
    const auto near = [](double a, double b) { return std::abs(a - b) <= 0.1; };
    QVERIFY2(near(ours.left(), theirs.left()) && near(ours.right(), theirs.right()) &&
                 near(ours.top(), theirs.top()) && near(ours.bottom(), theirs.bottom()),
             qPrintable(QStringLiteral("%1 %2 %3 %4 and %5 %6 %7 %8")
                            .arg(ours.left())
                            .arg(ours.top())
                            .arg(ours.right())
                            .arg(ours.bottom())
                            .arg(theirs.left())
                            .arg(theirs.top())
                            .arg(theirs.right())
                            .arg(theirs.bottom())));
    const QRectF whole = boxIn(contentsOf(mended), "%%BoundingBox");
    QVERIFY(whole.adjusted(-0.1, -0.1, 0.1, 0.1).contains(ours) &&
            whole.adjusted(1, 1, -1, -1).width() < ours.width());
  }

  void aBoxThatIsFilledWithWhiteStays() {
    const QTemporaryDir folder;
    const QString file =
        written(folder, "a.eps", program("1 setgray 0 0 300 300 rectfill 0 setgray 100 110 20 30 rectfill"));
    const QString mended = folder.filePath("b.eps");
    QCOMPARE(kit::run(kNorvex, {"repair", file, "-o", mended}).exitCode, 0);
    QCOMPARE(boxIn(contentsOf(mended), "%%BoundingBox"), QRectF(0, 0, 300, 300));
  }

  void whatIsRepairedDrawsTheSameAndPassesTheCheck_data() {
    QTest::addColumn<QByteArray>("file");
    for (const RuleFile& one : epsFiles())
      if (!QByteArray(one.rule).contains("fails") && !QByteArray(one.rule).contains("truncated"))
        QTest::addRow("%s %lld", one.rule, qlonglong(one.broken.size())) << one.broken;
  }
  void whatIsRepairedDrawsTheSameAndPassesTheCheck() {
    QFETCH(QByteArray, file);
    const QTemporaryDir folder;
    const QString source = written(folder, "a.eps", file), mended = folder.filePath("b.eps");
    const kit::Ran repair = kit::run(kNorvex, {"repair", source, "-o", mended, "--preview", "drop"});
    QVERIFY2(repair.exitCode == 0, repair.err.constData());
    QCOMPARE(contentsOf(source), file);
    const QByteArray result = contentsOf(mended);
    QVERIFY(result.startsWith("%!PS-Adobe-"));
    // The source as an interpreter would take it out of whatever it is wrapped in; it shows its page in any
    // case.
    const qsizetype first = file.indexOf("%!") >= 0 ? file.indexOf("%!") : 0;
    const qsizetype end = file.indexOf("%%EOF", first);
    const QString plain = written(folder, "plain.ps",
                                  (end < 0 ? file.mid(first) : file.mid(first, end - first)) +
                                      (file.contains("showpage") ? "\n" : "\nshowpage\n"));
    QVERIFY(!pixelsOf(mended).isEmpty());
    QCOMPARE(pixelsOf(mended), pixelsOf(plain));
    for (const QJsonValue& one : findingsOf(mended))
      QVERIFY2(one["severity"].toString() != "error", qPrintable(one["sentence"].toString()));
  }

  void aPreviewIsKeptLeftOutOrMade() {
    const QTemporaryDir folder;
    const QString plain = written(folder, "a.eps", kEps), mended = folder.filePath("b.eps");
    const auto repair = [&](const QString& file, const QString& use) {
      return kit::run(kNorvex, {"repair", file, "-o", mended, "--force", "--preview", use}).exitCode;
    };
    QCOMPARE(repair(plain, "rebuild"), 0);
    const QByteArray binary = contentsOf(mended);
    QVERIFY(binary.startsWith("\xC5\xD0\xD3\xC6"));
    for (const char* rule :
         {"eps.preview.missing", "eps.preview.differs", "eps.preview.size", "eps.preview.unreadable"})
      QVERIFY2(sentencesOf(mended, rule).isEmpty(), rule);
    const QString withPreview = written(folder, "c.eps", binary);
    QCOMPARE(repair(withPreview, "keep"), 0);
    QCOMPARE(contentsOf(mended), binary);
    QCOMPARE(repair(withPreview, "drop"), 0);
    QCOMPARE(contentsOf(mended), kEps);
  }

  void whatStoodAroundTheProgramIsToldToBeLeftOut() {
    const QTemporaryDir folder;
    const QString file = written(folder, "a.eps", "rubbish\n" + kEps + "rubbish\n"),
                  mended = folder.filePath("b.eps");
    const kit::Ran repair = kit::run(kNorvex, {"repair", file, "-o", mended});
    QCOMPARE(repair.exitCode, 0);
    QVERIFY2(repair.err.contains("what stood before the first line was left out"), repair.err.constData());
    QVERIFY2(repair.err.contains("what stood behind %%EOF was left out"), repair.err.constData());
    QCOMPARE(contentsOf(mended), kEps);
  }

  void nothingIsReplacedWithoutBeingAsked() {
    const QTemporaryDir folder;
    const QString file = written(folder, "a.eps", eps(" EPSF-3.0", "")),
                  other = written(folder, "b.eps", "mine");
    const QByteArray before = contentsOf(file);
    QCOMPARE(kit::run(kNorvex, {"repair", file, "-o", file}).exitCode, 4);
    QCOMPARE(kit::run(kNorvex, {"repair", file, "-o", other}).exitCode, 4);
    QCOMPARE(contentsOf(file), before);
    QCOMPARE(contentsOf(other), "mine");
    QCOMPARE(kit::run(kNorvex, {"repair", file, "-o", file, "--force"}).exitCode, 0);
    QVERIFY(contentsOf(file).startsWith("%!PS-Adobe-3.0 EPSF-3.0\n"));
  }

  void boxesAHairBesideWholeNumbersAreWhole() {
    const QTemporaryDir folder;
    const QString source = QStringLiteral(NORVEX_SOURCE_DIR) + "/samples/lighthouse.eps";
    QCOMPARE(kit::run(kNorvex, {"repair", source, "-o", folder.filePath("b.eps")}).exitCode, 0);
    const QByteArray repaired = contentsOf(folder.filePath("b.eps"));
    QVERIFY(repaired.contains("%%BoundingBox: 0 0 720 560\n"));
    QVERIFY(repaired.contains("%%HiResBoundingBox: 0 0 720 560\n"));
  }

  void aFileThatWasCutOffIsToldToStaySo() {
    const QTemporaryDir folder;
    const QByteArray cut = kEps.left(kEps.indexOf("showpage")) + "10 10 moveto\n";
    const kit::Ran ran =
        kit::run(kNorvex, {"repair", written(folder, "a.eps", cut), "-o", folder.filePath("b.eps")});
    QCOMPARE(ran.exitCode, 0);
    QVERIFY2(ran.err.contains("this stays as it is: the file seems cut off"), ran.err);
  }

  void whatCannotBeMendedIsNotWritten() {
    const QTemporaryDir folder;
    const auto code = [&](const QByteArray& bytes, const QString& name = "a.eps") {
      return kit::run(kNorvex, {"repair", written(folder, name, bytes), "-o", folder.filePath("b.eps")})
          .exitCode;
    };
    QCOMPARE(code(eps(kDraw, "thisisnooperator\n")), 3);
    QCOMPARE(code(page("0 0 9 9 re f"), "a.pdf"), 3);
    QCOMPARE(code(kEps.left(kEps.indexOf("showpage")) + "gsave { \n"), 3);
    QVERIFY(!QFile::exists(folder.filePath("b.eps")));
  }

  void fontsAreThoseOfPdffonts() {
    const QTemporaryDir folder;
    const QString eps = written(folder, "a.eps",
                                program("/Helvetica findfont 9 scalefont setfont 9 9 moveto (a) show "
                                        "/Times-Roman findfont 9 scalefont setfont (b) show"));
    const QString pdf = folder.filePath("a.pdf");
    QCOMPARE(kit::run(kNorvex, {"convert", eps, "-o", pdf}).exitCode, 0);
    QVERIFY(sentencesOf(pdf, "fonts.not-embedded").isEmpty());
    const QString bare = written(folder, "b.pdf", font(kHelvetica));
    QCOMPARE(sentencesOf(bare, "fonts.not-embedded"), QStringList{"the font Helvetica is not embedded"});
    const auto embedded = [](const QString& file) {
      const QList<QByteArray> lines = kit::run("pdffonts", {file}).out.split('\n').mid(2);
      int count = 0;
      for (const QByteArray& line : lines)
        count += line.contains(" yes ") && !line.contains(" no  no  ") ? 1 : 0;
      return count;
    };
    QCOMPARE(embedded(pdf), 2);
    QCOMPARE(embedded(bare), 0);
  }

  void resolutionsAreThoseOfPdfimages() {
    const QTemporaryDir folder;
    const QString profile = written(folder, "p.toml", "[limits]\ngrey-dpi = 9999\n");
    for (const char* place : {"50 0 0 50 10 10", "37.5 0 0 21 0 0", "0 30 -30 0 60 0", "20 20 -20 20 50 0"}) {
      const QString file = written(folder, "a.pdf", image(40, place));
      const QStringList told = sentencesOf(file, "image.resolution", {"--profile", profile});
      QCOMPARE(told.size(), 1);
      const int ours = told[0].section(" has ", 1).section(' ', 0, 0).toInt();
      const QByteArrayList row =
          kit::run("pdfimages", {"-list", file}).out.split('\n')[2].simplified().split(' ');
      QVERIFY2(std::abs(ours - std::min(row[12].toInt(), row[13].toInt())) <= 1, place);
    }
  }
};

NORVEX_TEST(CheckToolsTest)
#include "check_tools_test.moc"
