#include "worker/svg/inspection/svg_text_sizes.h"

#include "kit/test_main.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/inspection/svg_stretching.h"

using namespace norvex::engine;

class SvgTextSizesTest : public QObject {
  Q_OBJECT
 private slots:
  void transformsEnlarge_data() {
    QTest::addColumn<QString>("transform");
    QTest::addColumn<double>("factor");
    QTest::newRow("none") << "" << 1.0;
    QTest::newRow("moves and turns") << "translate(50 3) rotate(30)" << 1.0;
    QTest::newRow("scale") << "scale(4)" << 4.0;
    QTest::newRow("two scales") << "scale(2, -3) translate(9) scale(0.5)" << 1.5;
    QTest::newRow("matrix") << "matrix(0 7 -7 0 100 100)" << 7.0;
    QTest::newRow("beyond all numbers") << "scale(1e300) scale(1e300)" << 1.0;
    QTest::newRow("no number") << "scale()" << 1.0;
  }
  // By the longer of both axes, wherever they point.
  void aMatrixEnlargesAsFarAsItsLongerAxis() {
    QCOMPARE(enlargement(QStringLiteral("matrix(3 4 0 1 7 8)")), 5.0);
    QCOMPARE(enlargement(QStringLiteral("matrix(1 0 5 -12 0 0)")), 13.0);
  }

  void transformsEnlarge() {
    QFETCH(QString, transform);
    QTEST(enlargement(transform), "factor");
  }

  void withoutTextThereIsNoSize() {
    SvgTextSizes sizes;
    sizes.open("g", "scale(100)", 40);
    QCOMPARE(sizes.largest(), 0.0);
  }
  void aTextWithoutASizeHasTheOrdinaryOne() { QCOMPARE(of("text", "", 0), 16.0); }
  void anEnlargementCountsTwice() { QCOMPARE(of("text", "scale(10)", 4), 400.0); }
  void groupsHandSizeAndScaleOn() {
    SvgTextSizes sizes;
    sizes.open("g", "scale(10)", 3);
    sizes.open("text", "scale(2)", 0);
    QCOMPARE(sizes.largest(), 3.0 * 400);
    sizes.close();
    sizes.close();
    sizes.open("text", "", 5);  // outside of the group
    QCOMPARE(sizes.largest(), 3.0 * 400);
  }
  void aStyleSheetMayMeanEveryText() {
    SvgTextSizes sizes;
    sizes.open("text", "scale(10)", 1);
    sizes.styleSheet(7);
    QCOMPARE(sizes.largest(), 700.0);
  }
  void anEnlargedUseMayMeanEveryText() {
    SvgTextSizes sizes;
    sizes.open("text", "", 10);
    sizes.close();
    sizes.open("use", "scale(3)", 0);
    QCOMPARE(sizes.largest(), 90.0);
  }
  // Names of properties have no case in CSS; a librsvg that passes over these in upper case loses nothing.
  void attributesAndStylesNameTheSize_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("attribute") << QByteArray("<text font-size='40'>a</text>");
    QTest::newRow("style") << QByteArray("<text style='fill:red;font-size:40px'>a</text>");
    QTest::newRow("upper case") << QByteArray("<text style='FONT-SIZE:40px'>a</text>");
    QTest::newRow("both") << QByteArray("<text font-size='3' style='font:40px serif' id='7'>a</text>");
  }
  void attributesAndStylesNameTheSize() {
    QFETCH(QByteArray, text);
    const auto found = inspectSvg("<svg xmlns='http://www.w3.org/2000/svg'>" + text + "</svg>");
    QVERIFY(found);
    QCOMPARE(found->largestFont, 40.0);
  }

 private:
  static double of(const QString& element, const QString& transform, double font) {
    SvgTextSizes sizes;
    sizes.open(element, transform, font);
    return sizes.largest();
  }
};

NORVEX_TEST(SvgTextSizesTest)
#include "svg_text_sizes_test.moc"
