// Which files get procedure sets of ours, text, and what is told of what is not understood.
#include "worker/postscript/procedure_sets.h"

#include <QDir>
#include <QFile>

#include "kit/program.h"
#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/kit/drawn_eps.h"
#include "worker/kit/illustrator_artwork.h"

using namespace norvex;
using namespace norvex::engine;
using kit::artwork;
using kit::drawnEps;
using kit::withBox;

namespace {

// The dark pixels between two columns.
int inkBetween(const QImage& image, int from, int to) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = from; x < to; ++x) count += qAlpha(image.pixel(x, y)) > 100;
  return count;
}

}  // namespace

class ProcedureSetsTest : public QObject {
  Q_OBJECT
 private slots:
  void setsThatAreOnlyNamedAreMissing_data() {
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QList<QByteArray>>("missing");
    const QList<QByteArray> one{"Adobe_Illustrator_AI5"};
    QTest::newRow("called") << QByteArray("%!\nAdobe_Illustrator_AI5 /initialize get exec\n") << one;
    QTest::newRow("called with line ends of a Macintosh")
        << QByteArray("%!\rAdobe_Illustrator_AI5 /initialize get exec\r") << one;
    QTest::newRow("included") << QByteArray("%!\n%%IncludeResource: procset Adobe_Illustrator_AI5 1.0 0\n")
                              << one;
    QTest::newRow("with those beside it")
        << QByteArray("Adobe_cshow /initialize get exec\nAdobe_IllustratorA_AI3 /initialize get exec\n")
        << QList<QByteArray>{"Adobe_cshow", "Adobe_IllustratorA_AI3"};
    QTest::newRow("with every sort of letter a name has")
        << QByteArray("Adobe_Illustrator_azAZ09.x-y /initialize get exec")
        << QList<QByteArray>{"Adobe_Illustrator_azAZ09.x"};
    QTest::newRow("at the very end") << QByteArray("%!\nAdobe_Illustrator_AI5") << one;
    QTest::newRow("only said to be needed")
        << QByteArray("%!\n%%DocumentNeededResources: procset Adobe_Illustrator_AI5 1.0 0\n")
        << QList<QByteArray>{};
    QTest::newRow("brought along as a resource")
        << QByteArray(
               "%%BeginResource: procset Adobe_Illustrator_AI5 1.0 0\nx\n%%EndResource\n"
               "Adobe_Illustrator_AI5 /initialize get exec\n")
        << QList<QByteArray>{};
    QTest::newRow("defined")
        << QByteArray(
               "userdict /Adobe_Illustrator_AI5 9 dict put Adobe_Illustrator_AI5 /initialize get exec\n")
        << QList<QByteArray>{};
    QTest::newRow("without one that draws")
        << QByteArray("Adobe_cshow /initialize get exec\n") << QList<QByteArray>{};
    QTest::newRow("of another application")
        << QByteArray("Adobe_AGM_Core /initialize get exec\n") << QList<QByteArray>{};
    QTest::newRow("in a string") << QByteArray("(Adobe_Illustrator_AI5) show\n") << QList<QByteArray>{};
  }
  void setsThatAreOnlyNamedAreMissing() {
    QFETCH(QByteArray, program);
    QFETCH(QList<QByteArray>, missing);
    QCOMPARE(missingProcedureSets(program), missing);
    QCOMPARE(procedureSetsFor(program).isEmpty(), missing.isEmpty());
  }

  void artworkWithAnEmptyPrologIsDrawn_data() {
    QTest::addColumn<QByteArray>("prolog");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("nothing in it") << QByteArray(
                                          "%AI5_FileFormat 3\n%%EndComments\n%%BeginProlog\n%%EndProlog\n")
                                   << true;
    QTest::newRow("comments in it, line ends of a Macintosh")
        << QByteArray("%AI3_FileFormat\r%%EndComments\r%%BeginProlog\r \t% mine %%EndProlog\r\r%%EndProlog\r")
        << true;
    QTest::newRow("a program in it") << QByteArray(
                                            "%AI5_FileFormat 3\n%%EndComments\n/m { pop } def\n%%EndProlog\n")
                                     << false;
    QTest::newRow("of no version") << QByteArray("%%EndComments\n%%BeginProlog\n%%EndProlog\n") << false;
    QTest::newRow("without an end") << QByteArray("%AI5_FileFormat 3\n%%EndComments\n%%BeginProlog\n")
                                    << false;
  }
  void artworkWithAnEmptyPrologIsDrawn() {
    QFETCH(QByteArray, prolog);
    QFETCH(bool, drawn);
    const QByteArray program = "%!PS-Adobe-3.0 EPSF-3.0\n%%Creator: Somebody\n%%BoundingBox: 0 0 100 80\n" +
                               prolog +
                               "1 XR\n0 0 1 0 k\n10 10 m 60 10 L 60 60 L 10 60 L f\n%%Trailer\n%%EOF\n";
    const kit::DrawnEps picture = drawnEps(program);
    QCOMPARE(picture.error.isEmpty() && picture.stoppedBy.isEmpty(), drawn);
    if (drawn) QCOMPARE(QColor(picture.image.pixel(35, 45)).blue(), 0);
    QCOMPARE(procedureSetsFor(program).isEmpty(), !drawn);
  }

  void setsAndTheirNamesHaveAnEnd() {
    QByteArray program("%!\nAdobe_Illustrator_AI5 /initialize get exec\n");
    for (int i = 0; i < limits::maximumProcedureSets + 10; ++i)
      program += "Adobe_" + QByteArray::number(i) + " /initialize get exec\n";
    QCOMPARE(missingProcedureSets(program).size(), limits::maximumProcedureSets);
    const QByteArray longName = "Adobe_Illustrator" + QByteArray(200, 'x');
    for (const QByteArray& name : missingProcedureSets("%!\n" + longName + " /initialize get exec\n"))
      QVERIFY(name.size() <= limits::maximumProcedureSetName);
  }

  void aFileThatBringsItsOwnIsDrawnByThem() {
    const kit::DrawnEps drawn = drawnEps(
        withBox("userdict /Adobe_Illustrator_AI5 4 dict dup /initialize { /m { rectfill } def } put put\n"
                "Adobe_Illustrator_AI5 /initialize get exec\n10 10 20 20 m showpage\n"));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(qAlpha(drawn.image.pixel(20, 60)), 255);
  }

  void whatIsNotUnderstoodIsToldOnceAndTheRestDrawn() {
    const kit::DrawnEps drawn =
        drawnEps(artwork("0 g 7 8 (x) Zq 7 Zq (w) w 10 10 m 60 10 L 60 60 L 10 60 L f\n"
                         "(Nowhere) 0 0 1 1 0 0 0 0 0 [1 0 0 1 0 0] p\n(scan.tif) 0 XG [1 0 0 1 0 0] 0 0 1 1 "
                         "1 1 8 3 0 0 0 0 XF\n"
                         "70 10 m 90 10 L 90 60 L Bb 1 (Gone) 0 0 0 9 1 0 0 1 0 0 Bg f 0 BB\n"));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.stoppedBy, QString());
    QCOMPARE(drawn.remarks.size(), 5);
    QVERIFY(drawn.remarks[0].contains(QStringLiteral("operator Zq")));
    QVERIFY(drawn.remarks[1].contains(QStringLiteral("operator w")));
    QVERIFY(drawn.remarks[2].contains(QStringLiteral("pattern Nowhere")));
    QVERIFY(drawn.remarks[3].contains(QStringLiteral("placed picture scan.tif")));
    QVERIFY(drawn.remarks[4].contains(QStringLiteral("gradient Gone")));
    QCOMPARE(qAlpha(drawn.image.pixel(35, 45)), 255);
    QCOMPARE(qAlpha(drawn.image.pixel(85, 60)), 255);
  }

  void textIsShown_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("program");
    const QByteArray font = "/_Helvetica 20 Tf 0 g 0 Tr ";
    const QByteArray select = "/Helvetica findfont 20 scalefont setfont ";
    const auto row = [&](const char* name, const QByteArray& text, const QByteArray& shown) {
      QTest::newRow(name) << "0 To 1 0 0 1 10 50 0 Tp TP " + font + text + " TO" << select + shown;
    };
    row("at its point", "(Hip) Tx", "10 50 moveto (Hip) show");
    row("several runs", "(Hi) Tx 1 0 0 Xa /_Helvetica 30 Tf (p) Tx",
        "10 50 moveto (Hi) show 1 0 0 setrgbcolor /Helvetica findfont 30 scalefont setfont (p) show");
    row("lines by returns", "22 0 Tl (Hip\r) Tx (lo) Tx", "10 50 moveto (Hip) show 10 28 moveto (lo) show");
    row("a return and T* move once", "22 0 Tl (Hip\r) Tx T* (lo) Tx",
        "10 50 moveto (Hip) show 10 28 moveto (lo) show");
    row("the overflow is not shown", "(Hip) Tx (lost) TX", "10 50 moveto (Hip) show");
    row("moved", "5 -20 Td (Hip) Tx", "15 30 moveto (Hip) show");
    row("under a matrix", "1 0 0 1 30 20 Tm (Hip) Tx", "30 20 moveto (Hip) show");
    row("centred", "1 Ta (Hip) Tx", "10 50 moveto (Hip) stringwidth pop -2 div 0 rmoveto (Hip) show");
    row("to the right", "2 Ta (p) Tx", "10 50 moveto (p) stringwidth pop neg 0 rmoveto (p) show");
    row("centred by the file itself", "1 Ta 4 0 Td (Hip) Tx", "14 50 moveto (Hip) show");
    row("wide", "150 Tz (Hip) Tx",
        "10 50 moveto /Helvetica findfont [30 0 0 20 0 0] makefont setfont (Hip) show");
    row("raised", "6 Ts (Hip) Tx", "10 56 moveto (Hip) show");
    row("spaced", "200 Tt (Hip) Tx", "10 50 moveto 4 0 (Hip) ashow");
    row("with wide blanks", "7 Tw (i i) Tx", "10 50 moveto 7 0 32 (i i) widthshow");
    row("kerned", "(H) Tx 0 250 Tk (ip) Tx", "10 50 moveto (H) show 5 0 rmoveto (ip) show");
    row("outlined", "1 Tr 2 w 1 0 0 XA (Hip) Tx",
        "10 50 moveto (Hip) false charpath 1 0 0 setrgbcolor 2 setlinewidth 4 setmiterlimit stroke");
    row("with escapes of an encoding", "(\\200) Tx", "10 50 moveto /Adieresis glyphshow");
    row("as a clip", "q 7 Tr (Hip) Tx TO 0 1 0 Xa 0 0 m 30 0 L 30 80 L 0 80 L f Q 0 To",
        "10 50 moveto (Hip) false charpath clip newpath 0 1 0 setrgbcolor 0 0 30 80 rectfill");
    QTest::newRow("invisible") << "0 To 1 0 0 1 10 50 0 Tp TP " + font +
                                      "3 Tr (Hip) Tx TO 0 0 m 9 0 L 9 9 L f"
                               << QByteArray("0 0 moveto 9 0 lineto 9 9 lineto fill");
    QTest::newRow("in an area, broken between words")
        << "1 To 1 0 0 1 0 0 0 Tp 10 10 m 60 10 L 60 76 L 10 76 L n TP " + font + "20 0 Tl (Hi you all) Tx TO"
        << select + "10 60 moveto (Hi ) show 10 40 moveto (you ) show 10 20 moveto (all) show";
    QTest::newRow("along a path") << "2 To 1 0 0 1 0 0 0 Tp 10 30 m 90 30 L N TP " + font + "(Hip) Tx TO"
                                  << select + "10 30 moveto (Hip) show";
    QTest::newRow("along a path that climbs")
        << "2 To 1 0 0 1 0 0 0 Tp 40 10 m 40 70 L N TP " + font + "(Hip) Tx TO"
        << select + "40 10 translate 90 rotate 0 0 moveto (Hip) show";
  }
  void textIsShown() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, program);
    const QByteArray encoding =
        "[\n128/Adieresis/Aring\nTE\n%AI3_BeginEncoding: _Helvetica Helvetica\n[/_Helvetica/Helvetica 0 0 0 "
        "TZ\n";
    const kit::DrawnEps drawn = drawnEps(artwork(body, encoding)), expected = drawnEps(withBox(program));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.remarks, expected.remarks);
    QVERIFY(kit::paintedPixels(expected.image) > 20);
    const int different = kit::differentPixels(drawn.image, expected.image, 40);
    QVERIFY2(different == 0, qPrintable(QStringLiteral("%1 pixels differ").arg(different)));
  }

  void fontsAreFoundWithoutAnEncoding() {
    const kit::DrawnEps drawn =
        drawnEps(artwork("0 To 1 0 0 1 10 50 0 Tp TP /_Courier 20 10 5 Tf (Hi) Tx TO"));
    QCOMPARE(drawn.remarks, QStringList());
    QVERIFY(inkBetween(drawn.image, 10, 34) > 20);
  }

  void olderFilesEncodeTheirFonts() {
    const kit::DrawnEps drawn = drawnEps(artwork("0 To 1 0 0 1 10 50 0 Tp TP /_Helvetica 20 Tf (a) Tx TO",
                                                 "[97/i]/_Helvetica/Helvetica 0 Z\n"));
    const kit::DrawnEps expected =
        drawnEps(withBox("/Helvetica findfont 20 scalefont setfont 10 50 moveto (i) show"));
    QCOMPARE(kit::differentPixels(drawn.image, expected.image, 6), 0);
  }

  void ofTheCorpusAllAreDrawn() {
    const QDir folder(kit::corpusFolder() + QStringLiteral("/ai_ps"));
    const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.ai")}, QDir::Files);
    if (files.isEmpty()) QSKIP("the corpus is not here");
    for (const QFileInfo& info : files) {
      QFile file(info.filePath());
      QVERIFY(file.open(QIODevice::ReadOnly));
      const QByteArray bytes = file.readAll();
      if (missingProcedureSets(bytes).isEmpty()) continue;
      const kit::DrawnEps drawn = drawnEps(bytes);
      QVERIFY2(drawn.error.isEmpty() && drawn.stoppedBy.isEmpty(), qPrintable(info.fileName() + drawn.error));
      QCOMPARE(drawn.remarks, QStringList());
      QVERIFY2(kit::paintedPixels(drawn.image) > 500, qPrintable(info.fileName()));
    }
  }
};

NORVEX_TEST(ProcedureSetsTest)
#include "procedure_sets_test.moc"
