// Text that is drawn wider than high, or slanted, becomes outlines: in its PDF it stands where the screen
// shows it.
#include "worker/svg/inspection/svg_stretching.h"
#include "worker/pages/pdf_engine.h"

#include "kit/test_main.h"
#include "protocol/page_names.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using kit::drawn;
using kit::OpenSvg;
using kit::svgOf;

namespace {

/// The leftmost and the rightmost column with something in it.
std::pair<int, int> inkedColumns(const QImage& image) {
  int left = image.width(), right = -1;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) < 100) continue;
      left = std::min(left, x);
      right = std::max(right, x);
    }
  }
  return {left, right};
}

}  // namespace

class SvgStretchingTest : public QObject {
  Q_OBJECT

 private slots:
  void aTransformThatIsASimilarityDoesNotStretch_data() {
    QTest::addColumn<QString>("transform");
    QTest::addColumn<bool>("stretched");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("moved") << "translate(3, 4)" << false;
    QTest::newRow("turned") << "rotate(33.3 10 10)" << false;
    QTest::newRow("larger") << "scale(2)" << false;
    QTest::newRow("mirrored") << "scale(-1, 1)" << false;
    QTest::newRow("turned and larger") << "matrix(1.5 2 -2 1.5 10 10)" << false;
    QTest::newRow("turned and mirrored") << "matrix(1.5,2,2,-1.5,0,0)" << false;
    QTest::newRow("rounded by its writer") << "matrix(0.7071 0.7071 -0.7072 0.7071 0 0)" << false;
    QTest::newRow("nobody sees it") << "matrix(1 0 0 1.0009 0 0)" << false;
    QTest::newRow("somebody may") << "matrix(1 0 0 1.0011 0 0)" << true;
    QTest::newRow("narrow") << "matrix(0.9 0 0 1 2.1603 33.19)" << true;
    QTest::newRow("wide") << "translate(4) scale(1.2,1)" << true;
    QTest::newRow("wide, no comma") << "scale( 1.2 1 )" << true;
    QTest::newRow("signs instead of blanks") << "scale(-1.5-1)" << true;
    QTest::newRow("slanted") << "skewX(20)" << true;
    QTest::newRow("slanted upwards") << "rotate(3)skewY(-20)" << true;
    QTest::newRow("not slanted") << "skewX(0)" << false;
    QTest::newRow("slanted matrix") << "matrix(1 0 .3 1 0 0)" << true;
    QTest::newRow("flat") << "scale(1 0)" << true;
    QTest::newRow("broken") << "scale(" << false;
  }
  void aTransformThatIsASimilarityDoesNotStretch() {
    QFETCH(QString, transform);
    QFETCH(bool, stretched);
    QCOMPARE(stretches(transform), stretched);
  }

  void onlyStretchedTextCounts_data() {
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("stretched");
    const QByteArray text = "<text>A</text>";
    QTest::newRow("no text") << QByteArray("<g transform='scale(2 1)'><rect/></g>") << false;
    QTest::newRow("itself") << QByteArray("<text transform='scale(2 1)'>A</text>") << true;
    QTest::newRow("around it") << "<g transform='scale(2 1)'><g>" + text + "</g></g>" << true;
    QTest::newRow("beside it") << "<g transform='scale(2 1)'><rect/></g>" + text << false;
    QTest::newRow("text that is used")
        << "<defs><g id='t'>" + text + "</g></defs><use href='#t' transform='scale(2 1)'/>" << true;
    QTest::newRow("used inside") << "<defs><g id='t'>" + text +
                                        "</g></defs><g transform='skewX(9)'><use href='#t'/></g>"
                                 << true;
    QTest::newRow("a view box that is filled")
        << "<svg width='40' height='10' viewBox='0 0 10 10' preserveAspectRatio='none'>" + text + "</svg>"
        << true;
    QTest::newRow("a view box that fits")
        << "<svg width='40' height='10' viewBox='0 0 10 10' preserveAspectRatio='xMidYMid'>" + text + "</svg>"
        << false;
    QTest::newRow("another language's text")
        << QByteArray("<g transform='scale(2 1)'><t:text xmlns:t='urn:t'/></g>") << false;
  }
  void onlyStretchedTextCounts() {
    QFETCH(QByteArray, contents);
    QFETCH(bool, stretched);
    const Result<SvgInspection> found = inspectSvg(svgOf("width='9' height='9'", contents));
    QVERIFY(found);
    QCOMPARE(found->stretchedText, stretched);
  }

  void stretchedTextStandsInThePdfWhereTheScreenShowsIt_data() {
    QTest::addColumn<QByteArray>("transform");
    for (const char* transform : {"scale(0.6 1)", "scale(1.5 1)", "matrix(0.9 0 0 1 0 0)", "scale(1 0.5)",
                                  "rotate(10)", "scale(0.8)", "translate(3 1)"})
      QTest::newRow(transform) << QByteArray(transform);
  }
  void stretchedTextStandsInThePdfWhereTheScreenShowsIt() {
    QFETCH(QByteArray, transform);
    OpenSvg document(svgOf("width='200' height='100'", "<g transform='translate(5 40)'><text transform='" +
                                                           transform + "' font-size='24'>OHANA</text></g>"));
    QVERIFY(document.ok());
    const Result<EngineBytes> pdf = document->pdf({});
    QVERIFY(pdf);
    EngineContext context;
    const auto page = openPdf(pdf->bytes, context);
    QVERIFY(page);
    const auto [left, right] = inkedColumns(*drawn(**document.result, 4));
    const auto [pdfLeft, pdfRight] = inkedColumns(*drawn(**page, 4));
    QVERIFY(right - left > 100);
    QVERIFY2(std::abs(left - pdfLeft) <= 3 && std::abs(right - pdfRight) <= 5,
             qPrintable(QString("%1 to %2 became %3 to %4").arg(left).arg(right).arg(pdfLeft).arg(pdfRight)));
    const auto told = (*page)->examine({Examination::Names});
    const auto names = decodePageNames(told->bytes);
    QVERIFY(names.ok());
    QCOMPARE(names->fonts.isEmpty(), stretches(QString::fromLatin1(transform)));
  }
};

NORVEX_TEST(SvgStretchingTest)
#include "svg_stretching_test.moc"
