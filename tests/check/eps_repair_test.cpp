// Mending an EPS program: what is put right, and that the drawing stays as it is.
#include "check/eps_repair.h"

#include "check/eps_structure_rules.h"
#include "check/file_wrapping.h"
#include "check/program_lines.h"
#include "kit/test_main.h"
#include "metadata/eps_resources.h"

using namespace norvex;

namespace {

const QByteArray kBody(
    "/box { 10 20 30 40 rectfill } def\rbox\r\n% %%BoundingBox: 1 2 3 4 in a comment\n(%%EOF) pop\n");
const QRectF kBox(QPointF(9.75, 20), QPointF(40.2, 60.0001));

QByteArray repaired(const QByteArray& program) {
  return repairedEps(program, kBox, false).program;
}

}  // namespace

class EpsRepairTest : public QObject {
  Q_OBJECT
 private slots:
  void aProgramWithoutAnythingGetsItsHeaderShowpageAndEnd() {
    QCOMPARE(repaired("%!PS\n" + kBody),
             "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 9 20 41 60\n%%HiResBoundingBox: 9.75 20 40.2 60\n"
             "%%EndComments\n" +
                 kBody + "showpage\n%%EOF\n");
  }

  void aSoundProgramStaysAsItIs() {
    const QByteArray sound =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 9 20 41 60\n%%HiResBoundingBox: 9.75 20 40.2 60\n%%Title: "
        "t\n"
        "%%EndComments\n" +
        kBody + "showpage\n%%EOF\n";
    const EpsRepair repair = repairedEps(sound, kBox, false);
    QCOMPARE(repair.program, sound);
    QVERIFY2(repair.changes.isEmpty(), qPrintable(repair.changes.join('\n')));
  }

  void otherCommentsKeepTheirOrderAndTheDrawingItsBytes() {
    const QByteArray program =
        "%!PS-Adobe-2.0\n%%Title: t\n%%BoundingBox: (atend)\n%%For: f\n%%EndComments\n" + kBody +
        "showpage\n%%Trailer\n%%BoundingBox: 0 0 1 1\n%%Pages: 1\n%%EOF\nrubbish";
    QCOMPARE(repaired(program),
             "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 9 20 41 60\n%%HiResBoundingBox: 9.75 20 40.2 "
             "60\n%%Title: t\n"
             "%%For: f\n%%EndComments\n" +
                 kBody + "showpage\n%%Trailer\n%%Pages: 1\n%%EOF\n");
  }

  void aLastLineWithoutAnEndGetsOne() {
    QVERIFY(repaired("%!PS\n%%Title: t").contains("%%Title: t\n%%EndComments\nshowpage\n%%EOF\n"));
  }

  void aSecondRepairChangesNothing() {
    const QByteArray once = repaired("%!PS\r" + QByteArray(kBody).replace('\n', '\r'));
    const EpsRepair twice = repairedEps(once, kBox, false);
    QCOMPARE(twice.program, once);
    QVERIFY(twice.changes.isEmpty());
  }

  void aSecondRepairChangesNothingWhereTheEndStoodInTheHeader_data() {
    QTest::addColumn<QByteArray>("program");
    const QByteArray head = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 10 90 60\n";
    const QByteArray rest = "%%HiResBoundingBox: 10 10 90 60\n%%LanguageLevel: 2\n%%EndComments\n";
    QTest::newRow("a drawing behind it") << head + "%%EOF\n" + rest + kBody + "showpage\n";
    QTest::newRow("a second end") << head + "%%EOF\n" + rest + kBody + "showpage\n%%EOF\n";
    QTest::newRow("a trailer, too") << head + "%%EOF\n" + rest + kBody + "showpage\n%%Trailer\n%%EOF\n";
    QTest::newRow("NULs behind it") << head + "%%EOF\n" + QByteArray("\0\0\0\0\n", 5) + rest + kBody;
    QTest::newRow("a trailer in the header") << head + "%%Trailer\n" + rest + kBody + "showpage\n%%EOF\n";
    QTest::newRow("nothing behind it") << head + "%%EOF\n";
  }
  void aSecondRepairChangesNothingWhereTheEndStoodInTheHeader() {
    QFETCH(QByteArray, program);
    const EpsRepair once = repairedEps(program, kBox, false);
    const EpsRepair twice = repairedEps(once.program, kBox, false);
    QCOMPARE(twice.program, once.program);
    QVERIFY2(twice.changes.isEmpty(), qPrintable(twice.changes.join('\n')));
  }

  void anEndInTheHeaderDoesNotTakeTheDrawingWithIt() {
    const EpsRepair repair =
        repairedEps("%!PS\n%%Title: t\n%%EOF\n%%For: f\n" + kBody + "showpage\n", kBox, false);
    QVERIFY2(repair.program.endsWith("%%Title: t\n%%EndComments\n%%For: f\n" + kBody + "showpage\n%%EOF\n"),
             repair.program.constData());
    QVERIFY(repair.changes.contains("%%EOF was left out, because it stood out of order"));
    // Where nothing is drawn it is the end, and what a transport left is no drawing.
    QVERIFY(repaired(QByteArray("%!PS\n%%Title: t\n%%EOF\n\0\0\n\4", 26)).endsWith("showpage\n%%EOF\n"));
  }

  void whatStoodBehindTheEndIsToldToBeLeftOut() {
    const QString told("what stood behind %%EOF was left out");
    const auto changes = [](const QByteArray& behind) {
      return repairedEps("%!PS\n" + kBody + "showpage\n%%EOF\n" + behind, kBox, false).changes;
    };
    QVERIFY(changes("grestore\n").contains(told));
    for (const char* nothing : {"", "\n", "\x04\n", "\x1A", "%AI9_PrivateDataBegin\n%one\n"})
      QVERIFY2(!changes(nothing).contains(told), nothing);
  }

  void aShowpageBehindTheEndIsNone() {
    QVERIFY(repaired("%!PS\n" + kBody + "%%EOF\nshowpage\n").endsWith(kBody + "showpage\n%%EOF\n"));
  }

  void whiteMayMissTheEdgeOfTheStatedBoxByAPointAndAHalf() {
    const QRectF stated(0, 0, 100, 100), ink(20, 20, 10, 10);
    const auto mended = [&](double gap) {
      return mendedBox(stated, ink, stated.adjusted(gap, gap, -gap, -gap));
    };
    QCOMPARE(mended(1.49), std::optional(stated));
    QCOMPARE(mended(1.51), std::optional(ink));
  }

  void whatAProgramKeepsBehindTheEndForItselfStays() {
    const QByteArray end = "showpage\n%%EOF\n", kept = "%AI9_PrivateDataBegin\n%one\n%two\n";
    QCOMPARE(repaired("%!PS\n" + kBody + end + kept), repaired("%!PS\n" + kBody + end) + kept);
    QCOMPARE(repaired("%!PS\n" + kBody + end + "rubbish\n" + kept), repaired("%!PS\n" + kBody + end));
  }

  void theEndOfAFontInTheProgramDoesNotTakeTheDrawingWithIt() {
    const QByteArray font = "%!PS-Adobe-3.0 Resource-Font\n%%Title: a\n%%EndComments\n12 dict pop\n%%EOF\n";
    const QByteArray program = "%%BeginProlog\n" + font + "%%EndProlog\n" + kBody + "showpage\n";
    const QByteArray result = repaired("%!PS\n%%EndComments\n" + program);
    QVERIFY2(result.endsWith("%%EndComments\n" + program + "%%EOF\n"), result.constData());
  }

  void aMissingEndOfTheHeaderIsPutBeforeTheFirstSection() {
    for (const QByteArray section :
         {"%%EndProlog\n", "%%BeginProlog\n%%EndProlog\n", "%%BeginSetup\n%%EndSetup\n", "%%Page: 1 1\n",
          "%%BeginPreview: 8 1 1 1\n%FF\n%%EndPreview\n"})
      QVERIFY2(repaired("%!PS\n%%Pages: 1\n" + section + kBody)
                   .contains("%%Pages: 1\n%%EndComments\n" + section + kBody),
               repaired("%!PS\n%%Pages: 1\n" + section + kBody).constData());
    const QByteArray data = "%%BeginData: 1 Hex Lines\n%00\n%%EndData\n%%For: f\n";
    QVERIFY(repaired("%!PS\n" + data + kBody).contains(data + "%%EndComments\n" + kBody));
  }

  void commentsOutOfOrderAreLeftOut_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("mended");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& mended) {
      QTest::newRow(name) << body << mended;
    };
    row("the prolog's end behind the page", "%%Page: 1 1\n%%EndProlog\n", "%%Page: 1 1\n");
    row("with its begin", "%%BeginProlog\n%%Page: 1 1\n%%EndProlog\n%%PageTrailer\n",
        "%%Page: 1 1\n%%PageTrailer\n");
    row("the setup before the prolog", "%%BeginSetup\n%%EndSetup\n%%BeginProlog\n%%EndProlog\n%%Page: 1 1\n",
        "%%BeginProlog\n%%EndProlog\n%%Page: 1 1\n");
    row("a trailer before the page", "%%Trailer\n%%Page: 1 1\n%%Page: 2 2\n", "%%Page: 1 1\n%%Page: 2 2\n");
    row("several pages", "%%Page: 1 1\n%%PageTrailer\n%%Page: 2 2\n%%PageTrailer\n",
        "%%Page: 1 1\n%%PageTrailer\n%%Page: 2 2\n%%PageTrailer\n");
  }
  void commentsOutOfOrderAreLeftOut() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, mended);
    const QByteArray head =
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 9 20 41 60\n%%HiResBoundingBox: 9.75 20 40.2 60\n"
        "%%EndComments\n";
    const EpsRepair repair = repairedEps(head + body + kBody + "showpage\n%%EOF\n", kBox, false);
    QCOMPARE(repair.program, head + mended + kBody + "showpage\n%%EOF\n");
    QCOMPARE(repair.changes.isEmpty(), body == mended);
    for (const Finding& one : epsStructureFindings(programLines(repair.program)))
      QVERIFY2(one.rule->identifier.substr(0, 12) != "eps.comments", qPrintable(one.sentence));
    QCOMPARE(repairedEps(repair.program, kBox, false).program, repair.program);
  }

  /// The header finds each by its offset, and the mended picture is longer.
  void whatNamesNoPlaceBehindThePictureStaysAsItIs() {
    const QByteArray wrong =
        "%%PlateFile: (Low) EPS #00005 9\n%%PlateFile: (Long) EPS #99999999999999999999 9\n"
        "%%PlateFile: (Far) EPS #99999 9\n%%PlateFile: (None) EPS # 9\n";
    const QByteArray plate = "%!PS\nshowpage\n", end = wrong + "showpage\n";
    const auto header = [&](qsizetype at) {
      return "%!PS\n%%PlateFile: (Cyan) EPS #" + QByteArray::number(at).rightJustified(6, '0') + ' ' +
             QByteArray::number(plate.size()) + '\n';
    };
    const QByteArray file = header(header(0).size() + end.size()) + end + plate;
    const EpsRepair mended = repairedEps(file, QRectF(0, 0, 9, 9), false);
    QVERIFY2(mended.program.contains(wrong), mended.program);
    const EpsPlate cyan = epsResources(mended.program).plates.first();
    QCOMPARE(mended.program.mid(cyan.offset, cyan.length), plate);
    QVERIFY(cyan.offset > header(0).size() + end.size());
  }

  void platesBehindThePictureStayToTheByteAndAreFound() {
    const QByteArray cyan = "%!PS-Adobe-3.0 EPSF-3.0\n%%EndComments\n0.5 setgray 1 1 9 9 rectfill\n%%EOF\n";
    const QByteArray gold = "%!PS plate\r%%EndComments\r%%EndComments\rshowpage\r";
    const auto file = [&](qsizetype first) {
      return "%!PS\n%%PlateFile: (Cyan) EPS #" + QByteArray::number(first) + ' ' +
             QByteArray::number(cyan.size()) + "\n%%PlateFile: (Gold (#)) EPS #" +
             QByteArray::number(first + cyan.size()).rightJustified(8, '0') + ' ' +
             QByteArray::number(gold.size()) + "\n0 0 9 9 rectfill\n";
    };
    const QByteArray picture = file(file(90).size());
    QVERIFY(picture.size() < 100);
    const EpsRepair mended = repairedEps(picture + cyan + gold, QRectF(0, 0, 9, 9), false);
    QVERIFY(mended.program.endsWith(cyan + gold));
    const QList<EpsPlate> plates = epsResources(mended.program).plates;
    QCOMPARE(plates.size(), 2);
    QCOMPARE(mended.program.mid(plates[0].offset, plates[0].length), cyan);
    QCOMPARE(mended.program.mid(plates[1].offset, plates[1].length), gold);
    QVERIFY(plates[0].offset > 100);
    QVERIFY(compositeOf(mended.program).contains("showpage"));
    QCOMPARE(repairedEps(mended.program, QRectF(0, 0, 9, 9), false).program, mended.program);
  }

  void showpageGoesBeforeTheTrailer() {
    QVERIFY(repaired("%!PS\n" + kBody + "%%Trailer\nend\n")
                .contains(kBody + "showpage\n%%Trailer\nend\n%%EOF\n"));
    QVERIFY(!repaired("%!PS\n/sp /showpage load def sp\n").contains("sp\nshowpage\n"));
  }

  void anEmbeddedDocumentIsNotTouched() {
    const QByteArray inner =
        "%%BeginDocument: a.eps\n%!PS\n%%BoundingBox: 1 2 3 4\n%%EndComments\n%%EOF\n%%EndDocument\n";
    QVERIFY(repaired("%!PS\n" + kBody + inner + "showpage\n").contains(kBody + inner + "showpage\n"));
  }

  void anInterchangePreviewIsLeftOutOnRequest() {
    const QByteArray preview = "%%BeginPreview: 8 1 1 1\n%FF\n%%EndPreview\n";
    const QByteArray program = "%!PS\n%%EndComments\n" + preview + kBody;
    QVERIFY(repaired(program).contains(preview));
    const EpsRepair repair = repairedEps(program, kBox, true);
    QVERIFY(!repair.program.contains("Preview"));
    QVERIFY(repair.program.contains("%%EndComments\n" + kBody));
    QVERIFY(repair.changes.contains("the preview was left out"));
  }

  void theProgramIsTakenOutOfItsWrappings() {
    const QByteArray single = QByteArray("\x00\x05\x16\x00\x00\x02\x00\x00", 8) + QByteArray(16, 0) +
                              QByteArray("\x00\x01\x00\x00\x00\x01\x00\x00\x00\x26\x00\x00\x00\x08", 14) +
                              "%!PS\n1 2";
    QCOMPARE(wrappedFile(single)->wrapping, "AppleSingle");
    QCOMPARE(epsProgramAlone(single), "%!PS\n1 2");
    QCOMPARE(epsProgramAlone("\x04\n%!PS\n"), "%!PS\n");
    QCOMPARE(epsProgramAlone("no PostScript"), QByteArray());
    QVERIFY(!wrappedFile(single.chopped(1)));
    QVERIFY(!wrappedFile(QByteArray(200, 0)));
  }

  void theBoxIsThatOfTheInkUnlessWhiteFillsTheOneThatIsStated() {
    const QRectF ink(10, 10, 20, 20), stated(0, 0, 100, 100);
    QCOMPARE(mendedBox({}, ink, stated), std::optional(ink));
    QCOMPARE(mendedBox(stated, ink, {}), std::optional(ink));
    QCOMPARE(mendedBox(stated, {}, stated), std::optional(stated));
    QCOMPARE(mendedBox(stated, ink, ink), std::optional(ink));
    QCOMPARE(mendedBox(stated, ink, stated), std::optional(stated));
    const QRectF almost(0.2, 0.1, 99.4, 99.8);
    QCOMPARE(mendedBox(stated, almost, almost), std::optional(almost));
    QCOMPARE(mendedBox(QRectF(15, 15, 2, 2), ink, stated), std::optional(ink));
    const QRectF measuredAgain = ink.adjusted(0.06, -0.06, -0.05, 0.07);
    QCOMPARE(mendedBox(ink, measuredAgain, measuredAgain), std::optional(ink));
    const QRectF farther = ink.adjusted(0, 0.12, 0, 0);
    QCOMPARE(mendedBox(ink, farther, farther), std::optional(farther));
    QCOMPARE(mendedBox(stated, std::nullopt, stated), std::optional(stated));
    QCOMPARE(mendedBox(std::nullopt, ink, ink), std::optional(ink));
    QCOMPARE(mendedBox(std::nullopt, std::nullopt, std::nullopt), std::optional<QRectF>());
  }
};

NORVEX_TEST(EpsRepairTest)
#include "eps_repair_test.moc"
