// What a document may do wrong, or to the interpreter, and is drawn all the same.
#include "worker/postscript/distill.h"

#include "kit/test_main.h"
#include "worker/kit/drawn_eps.h"
#include "worker/kit/illustrator_artwork.h"

using namespace norvex;
using kit::drawnEps;
using kit::withBox;

class DistillTest : public QObject {
  Q_OBJECT
 private slots:
  void ofAPictureWithItsPlatesInOneFileThePictureIsDrawn() {
    QByteArray picture =
        withBox("").replace("%%EndComments", "%%PlateFile: (Cyan) EPS #000200 40\n%%EndComments");
    picture = (picture + "10 10 30 20 rectfill\n%%EOF\n").leftJustified(200, '\n');
    const kit::DrawnEps drawn = drawnEps(picture + withBox("0 0 100 80 rectfill showpage\n%%EOF\n"));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.remarks, QStringList());
    QCOMPARE(kit::paintedPixels(drawn.image), 600);
  }

  void whatStoppedAProgramIsNamedInEightyLetters() {
    const QByteArray name(100, 'x');
    QCOMPARE(drawnEps(withBox(name + "\n")).error,
             "PostScript error: undefined in " + QString(80, QLatin1Char('x')));
    QCOMPARE(drawnEps(withBox("10 10 30 20 rectfill stop\n")).stoppedBy, QString());
  }

  void aWrongPdfmarkDoesNotStopTheDrawing_data() {
    QTest::addColumn<QByteArray>("pdfmark");
    QTest::newRow("wrong rectangle") << QByteArray("[ /Rect 5 /Subtype /Link /ANN pdfmark");
    QTest::newRow("a key without value") << QByteArray("[ /Title (a) /Author /DOCINFO pdfmark");
    QTest::newRow("without mark") << QByteArray("pdfmark");
    QTest::newRow("wrong form") << QByteArray("[ /BBox [0 0 1] /_objdef {a} /BP pdfmark");
  }
  void aWrongPdfmarkDoesNotStopTheDrawing() {
    QFETCH(QByteArray, pdfmark);
    // What lies below the mark stays where it is: the width of what is filled.
    const kit::DrawnEps drawn =
        drawnEps(withBox("30 " + pdfmark + " 10 10 3 -1 roll 20 rectfill " + pdfmark + " showpage\n"));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.stoppedBy, QString());
    QCOMPARE(drawn.remarks, QStringList{"a pdfmark whose operands are wrong was left out"});
    QCOMPARE(kit::paintedPixels(drawn.image), 600);
  }

  void operatorsMayBeRedefinedWhereTheInterpreterKeepsThem_data() {
    QTest::addColumn<QByteArray>("program");
    const QByteArray square = " 10 10 30 20 ";
    QTest::newRow("put") << "systemdict /square { rectfill } put" + square + "square";
    QTest::newRow("defined") << "systemdict begin /square { rectfill } def end" + square + "square";
    QTest::newRow("got again") << "systemdict /square /rectfill load put" + square +
                                      "systemdict /square get exec";
    QTest::newRow("an operator") << "systemdict /rectstroke /rectfill load put" + square + "rectstroke";
    QTest::newRow("showpage") << "systemdict /showpage { } put" + square + "rectfill showpage";
    QTest::newRow("the page stays as it is")
        << "systemdict /x 1 put << /PageSize [9 9] >> systemdict /setpagedevice get exec" + square +
               "rectfill";
    QTest::newRow("the matrix stays that of the box")
        << "systemdict /x 1 put 5 5 translate systemdict /initmatrix get exec" + square + "rectfill";
    QTest::newRow("a dictionary of that name") << "/systemdict 10 dict def" + square + "rectfill";
  }
  void operatorsMayBeRedefinedWhereTheInterpreterKeepsThem() {
    QFETCH(QByteArray, program);
    const kit::DrawnEps drawn = drawnEps(withBox(program + "\n"));
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.stoppedBy, QString());
    QCOMPARE(kit::paintedPixels(drawn.image), 600);
    QCOMPARE(qAlpha(drawn.image.pixel(15, 60)), 255);
  }
};

NORVEX_TEST(DistillTest)
#include "distill_test.moc"
