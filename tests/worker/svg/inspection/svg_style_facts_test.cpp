#include "worker/svg/inspection/svg_style_facts.h"

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray document(const QByteArray& inside) {
  return "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='40'>" + inside + "</svg>";
}

QString nested(int depth) {
  return QString(":not(").repeated(depth) + "a" + QString(")").repeated(depth) + "{fill:red}";
}

}  // namespace

class SvgStyleFactsTest : public QObject {
  Q_OBJECT
 private slots:
  void otherFilesAreCounted_data() {
    QTest::addColumn<QString>("css");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << ".a { fill: url(#gradient) }" << 0;
    QTest::newRow("data") << ".a { fill: url(data:image/png;base64,AA) }" << 0;
    QTest::newRow("import of a string") << "@import \"a.css\";" << 1;
    QTest::newRow("import of an address") << "@import url('http://a/b.css') screen; @IMPORT 'c';" << 2;
    QTest::newRow("import without an end") << "@import 'a'" << 1;
    QTest::newRow("a fill") << ".a { fill: url(other.svg#x) } .b { fill: url( \"b.svg\" ) }" << 2;
    QTest::newRow("in a comment") << "/* @import 'a'; url(x) */" << 0;
  }
  void otherFilesAreCounted() {
    QFETCH(QString, css);
    QFETCH(int, count);
    QCOMPARE(svgStyleFacts(css).outsideReferences, count);
  }

  void refusedStylesAreToldOnce() {
    const auto found = inspectSvg(
        document("<style>@import 'a.css';</style><rect fill='url(b.svg#c)' style='stroke:url(d.svg#e)'/>"));
    QVERIFY(found);
    QCOMPARE(found->outsideReferences, 3);
  }

  void sizesOfTextAreFound() {
    QCOMPARE(svgStyleFacts("a{font-size:12.5px;width:900}").largestFont, 12.5);
    QCOMPARE(svgStyleFacts("font : italic 1e9px serif").largestFont, 1e9);
    QCOMPARE(svgStyleFacts("font-family: Font 2000").largestFont, 0.0);
  }

  void whatUsesUpTheProcessIsALimit_data() {
    QTest::addColumn<QByteArray>("inside");
    QTest::addColumn<QString>("message");
    QTest::newRow("selectors") << "<style>" + nested(501).toUtf8() + "</style>"
                               << "the selectors of the document's style sheets nest more than 500 deep";
    QTest::newRow("selectors behind brackets that close nothing")
        << "<style>" + QByteArray(9, ')') + nested(501).toUtf8() + "</style>"
        << "the selectors of the document's style sheets nest more than 500 deep";
    QTest::newRow("a matrix") << QByteArray("<filter id='f'><feConvolveMatrix order='21 20'/></filter>")
                              << "the document has a filter with a matrix of more than 400 numbers";
    const QString text = "the document has text of more than 1000000 units in size";
    QTest::newRow("text") << QByteArray("<text font-size='1e9'>a</text>") << text;
    QTest::newRow("styled text") << QByteArray("<text style='font-size:2000000px'>a</text>") << text;
    QTest::newRow("text of a sheet") << QByteArray("<style>text{font-size:2000000px}</style>") << text;
  }
  void whatUsesUpTheProcessIsALimit() {
    QFETCH(QByteArray, inside);
    QFETCH(QString, message);
    const auto found = inspectSvg(document(inside));
    QVERIFY(!found);
    QCOMPARE(found.error().kind, ErrorKind::Limit);
    QCOMPARE(found.error().message, message);
  }

  void upToTheLimitsEverythingIsRead() {
    QVERIFY(inspectSvg(document("<style>" + nested(500).toUtf8() +
                                "</style><filter id='f'><feConvolveMatrix order='20'/></filter>"
                                "<text font-size='1000000'>a</text>")));
  }

  void veryLargeTextIsDrawnAsOutlines() {
    EngineContext context;
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 120 90' width='3600' height='2700'>"
        "<text x='5' y='60' font-size='60'>Big</text></svg>";
    const auto engine = openSvg(svg, context);
    QVERIFY(engine);
    const auto pdf = (*engine)->pdf({0});
    QVERIFY2(pdf, qPrintable(pdf ? QString() : pdf.error().message));
    const auto eps = (*engine)->compose({VectorFormat::Eps, 0, QRectF(-1350, -1012.5, 2700, 2025), 0});
    QVERIFY(eps);
  }

  void smallTextThatATransformEnlargesIsDrawnAsOutlines() {
    EngineContext context;
    for (const char* enlarged :
         {"<g transform='scale(100)'><text y='5' font-size='4'>Big</text></g>",
          "<text transform='matrix(100 0 0 100 0 0)' y='5' font-size='4'>Big</text>"}) {
      const auto engine =
          openSvg(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='2000' height='600'>") +
                      enlarged + "</svg>",
                  context);
      QVERIFY(engine);
      const auto pdf = (*engine)->pdf({0});
      QVERIFY2(pdf, qPrintable(pdf ? QString() : pdf.error().message));
    }
  }
};

NORVEX_TEST(SvgStyleFactsTest)
#include "svg_style_facts_test.moc"
