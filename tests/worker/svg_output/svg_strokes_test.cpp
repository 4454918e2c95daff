// How a stroked line of a page is said in SVG.
#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"

using namespace norvex;
using kit::MadeSvg;
using kit::onePage;

class SvgStrokesTest : public QObject {
  Q_OBJECT
 private slots:
  void aLineSaysWhatIsNotSvgsOwnDefault_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("attributes");
    QTest::newRow("plain") << QByteArray("1 w 10 M") << QByteArray();
    QTest::newRow("wide") << QByteArray("9.5 w") << QByteArray(" stroke-width=\"9.5\"");
    QTest::newRow("no wider than a screen shows") << QByteArray("0 w") << QByteArray(" stroke-width=\".25\"");
    QTest::newRow("round") << QByteArray("1 J 1 j")
                           << QByteArray(" stroke-linecap=\"round\" stroke-linejoin=\"round\"");
    QTest::newRow("square and bevelled")
        << QByteArray("2 J 2 j") << QByteArray(" stroke-linecap=\"square\" stroke-linejoin=\"bevel\"");
    QTest::newRow("mitred") << QByteArray("1.25 M") << QByteArray(" stroke-miterlimit=\"1.25\"");
    QTest::newRow("dashed") << QByteArray("[12 6 3 6] 4 d")
                            << QByteArray(" stroke-dasharray=\"12 6 3 6\" stroke-dashoffset=\"4\"");
    QTest::newRow("dashed from its start") << QByteArray("[2] 0 d") << QByteArray(" stroke-dasharray=\"2\"");
    QTest::newRow("dashes of no length") << QByteArray("[0 0] 0 d") << QByteArray();
  }
  void aLineSaysWhatIsNotSvgsOwnDefault() {
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, attributes);
    const MadeSvg made(onePage(line + " 10 10 m 90 10 l 90 90 l S"));
    QVERIFY2(made.svg().contains("<path fill=\"none\" stroke=\"#000\"" + attributes + " d="), made.svg());
  }

  // Ten points wide, it reaches no farther than half as much again as half of that; a mitre ten times as far.
  void aLineOutsideIsLeftOutUnlessItReachesIn() {
    const auto shown = [](const QByteArray& line) {
      return MadeSvg(onePage("10 w " + line + " l S")).count("<path");
    };
    QCOMPARE(shown("1 j 10 -7 m 90 -7"), 1);
    QCOMPARE(shown("1 j 10 -8 m 90 -8"), 0);
    QCOMPARE(shown("0 j 10 -49 m 90 -49"), 1);
    QCOMPARE(shown("0 j 10 -51 m 90 -51"), 0);
  }
};

NORVEX_TEST(SvgStrokesTest)
#include "svg_strokes_test.moc"
