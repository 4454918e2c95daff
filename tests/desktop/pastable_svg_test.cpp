// SVG as programs paste it: without its root element the drawing has the same size.
#include "desktop/pastable_svg.h"

#include "kit/test_main.h"

using namespace norvex;

class PastableSvgTest : public QObject {
  Q_OBJECT
 private slots:
  void pointsBecomePixelsOfTheSameSize() {
    const QByteArray made = pastableSvg(
        "<?xml version=\"1.0\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"300pt\" "
        "height=\"150pt\" viewBox=\"0 0 300 150\" stroke-miterlimit=\"10\">\n<path d=\"M0 0h1\"/>\n</svg>\n");
    QVERIFY(made.contains(" width=\"400\" height=\"200\" viewBox=\"0 0 400 200\""));
    QVERIFY2(made.contains("<g transform=\"scale(1.333333333)\" stroke-miterlimit=\"10\">"),
             made.constData());
    QVERIFY(made.endsWith("<path d=\"M0 0h1\"/>\n</g>\n</svg>\n"));
    QVERIFY(made.startsWith("<?xml version=\"1.0\"?>\n<svg "));
  }

  void theScaleBetweenBoxAndSizeGoesIntoTheDrawing() {
    QCOMPARE(pastableSvg("A<svg xmlns=\"x\" version=\"1.1\" width=\"300pt\" height=\"150pt\" "
                         "viewBox=\"0 0 600 300\" fill=\"none\" stroke-width=\"2\"><b/></svg>Z"),
             QByteArray("A<svg xmlns=\"x\" version=\"1.1\" width=\"400\" height=\"200\" "
                        "viewBox=\"0 0 400 200\" fill=\"none\" stroke-width=\"2\">\n"
                        "<g transform=\"scale(0.6666666667)\" fill=\"none\" stroke-width=\"2\"><b/></g>\n"
                        "</svg>Z"));
  }

  void aThousandthOfStretchingIsRounding() {
    const auto stretched = [](const char* height) {
      return QByteArray("<svg width=\"300pt\" height=\"%pt\" viewBox=\"0 0 300 150\"></svg>")
          .replace("%", height);
    };
    QVERIFY(pastableSvg(stretched("150.1")).contains(" width=\"400\" height=\"200.1333333\""));
    for (const char* height : {"150.2", "149.8"}) QCOMPARE(pastableSvg(stretched(height)), stretched(height));
  }

  void whatIsNotOursStaysAsItIs_data() {
    QTest::addColumn<QByteArray>("svg");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no root") << QByteArray("<html></html>");
    QTest::newRow("no end") << QByteArray("<svg width=\"3pt\" height=\"3pt\" viewBox=\"0 0 3 3\"/>");
    QTest::newRow("cut off in its root")
        << QByteArray(R"(<svg width="3pt" height="3pt" viewBox="0 0 3 3" fill="none")");
    QTest::newRow("pixels") << QByteArray("<svg width=\"3\" height=\"3\" viewBox=\"0 0 3 3\"></svg>");
    QTest::newRow("stretched") << QByteArray("<svg width=\"3pt\" height=\"6pt\" viewBox=\"0 0 3 3\"></svg>");
    QTest::newRow("flat") << QByteArray("<svg width=\"3pt\" height=\"0pt\" viewBox=\"0 0 3 0\"></svg>");
    QTest::newRow("no height") << QByteArray("<svg width=\"3pt\" height=\"0pt\" viewBox=\"0 0 3 3\"></svg>");
    QTest::newRow("no width") << QByteArray("<svg width=\"0pt\" height=\"3pt\" viewBox=\"0 0 3 3\"></svg>");
    QTest::newRow("ends before it begins")
        << QByteArray("</svg><svg width=\"3pt\" height=\"3pt\" viewBox=\"0 0 3 3\">");
    QTest::newRow("empty") << QByteArray("<svg width=\"0pt\" height=\"0pt\" viewBox=\"0 0 0 0\"></svg>");
  }
  void whatIsNotOursStaysAsItIs() {
    QFETCH(QByteArray, svg);
    QCOMPARE(pastableSvg(svg), svg);
  }
};

NORVEX_TEST(PastableSvgTest)
#include "pastable_svg_test.moc"
