#include "worker/pdf/plain_page.h"

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;
using kit::stream;

namespace {

/// So many lines across a page of 200 × 100 points.
QByteArray lines(int count) {
  QByteArray contents;
  for (int i = 0; i < count; ++i)
    contents += QByteArray::number(i % 10 / 10.0) + " 0.5 0 RG " + QByteArray::number(i * 37 % 200) +
                " 0 m " + QByteArray::number(i * 91 % 200) + " 30.5 " + QByteArray::number(i * 53 % 200) +
                " 70 " + QByteArray::number(i * 17 % 200) + " 100 c S\n";
  return contents;
}

bool isPlain(const QByteArray& pdf) {
  const auto file = PdfFile::open(pdf);
  return file && isLongAndPlain(**file, 0);
}

QByteArray pageWith(const QByteArray& contents, const QByteArray& resources,
                    const QList<QByteArray>& more = {}) {
  return onePage(contents, "/MediaBox [0 0 200 100] /Resources << " + resources + " >>", more);
}

class PlainPageTest : public QObject {
  Q_OBJECT
 private slots:
  void longContentsOfLinesAndLettersArePlain() {
    QVERIFY(isPlain(onePage(lines(8000))));
    QVERIFY(isPlain(pageWith(lines(8000),
                             "/Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Times-Roman >> >>"
                             "/ExtGState << /G << /ca 0.5 /SMask /None >> >>")));
  }

  void soAreThoseOfAForm() {
    QVERIFY(isPlain(pageWith("/X Do", "/XObject << /X 5 0 R >>",
                             {stream(lines(8000), "/Type /XObject /Subtype /Form /BBox [0 0 200 100]")})));
  }

  void whatReachesNotFarTakesNotLong() {
    QByteArray specks, flat;
    for (int i = 0; i < 20000; ++i) specks += "10 20 m 12 21 l 11 23 l f\n";
    QVERIFY(!isPlain(onePage(specks)));
    const QByteArray above = QByteArray("10 95 m 12 96 l 11 98 l f\n");
    QVERIFY2(!isPlain(onePage((above + specks.left(26)).repeated(10000))), "each reaches as far as itself");
    QVERIFY(isPlain(onePage("q 10 0 0 10 0 0 cm " + specks)));
    for (int i = 0; i < 20000; ++i) flat += "10 20 80 1.5 re f\n";
    QVERIFY(!isPlain(onePage(flat)));
    QVERIFY(isPlain(onePage(QByteArray(flat).replace(" 1.5 ", " 50 "))));
  }

  void lettersAreAsLongWhereverTheyAreCut() {
    QByteArray texts;
    for (int i = 0; i < 8000; ++i) texts += "BT /F 9 Tf 10 20 Td (text and more) Tj ET\n";
    QVERIFY(!isPlain(onePage(texts + lines(8000))));
    const QByteArray fewer = texts.left(texts.size() / 4);  // four lines for each
    QVERIFY(!isPlain(onePage(fewer + lines(8000))));
    QVERIFY(isPlain(onePage(fewer + lines(8001))));
  }

  void shortContentsAreNotLong() { QVERIFY(!isPlain(onePage(lines(800)))); }

  void whatDependsOnWhereADrawingBeginsIsNotPlain_data() {
    QTest::addColumn<QByteArray>("resources");
    QTest::addColumn<QByteArray>("object");
    QTest::newRow("image") << QByteArray("/XObject << /X 5 0 R >>")
                           << stream("abc", "/Type /XObject /Subtype /Image /Width 1 /Height 1");
    QTest::newRow("shading") << QByteArray("/Shading << /S 5 0 R >>") << QByteArray("<< /ShadingType 2 >>");
    QTest::newRow("pattern") << QByteArray("/Pattern << /P 5 0 R >>")
                             << stream("0 0 1 1 re f", "/PatternType 1");
    QTest::newRow("soft mask") << QByteArray("/ExtGState << /G << /SMask 5 0 R >> >>")
                               << QByteArray("<< /S /Luminosity >>");
    QTest::newRow("glyphs that are drawings")
        << QByteArray("/Font << /F 5 0 R >>") << QByteArray("<< /Type /Font /Subtype /Type3 >>");
    QTest::newRow("group") << QByteArray("/XObject << /X 5 0 R >>")
                           << stream("", "/Subtype /Form /Group << /S /Transparency >>");
    QTest::newRow("image within a form")
        << QByteArray("/XObject << /X 5 0 R >>")
        << stream("", "/Subtype /Form /Resources << /XObject << /Y 6 0 R >> >>");
    QTest::newRow("image within the contents of a form")
        << QByteArray("/XObject << /X 5 0 R >>")
        << stream("q BI /W 1 /H 1 /BPC 8 /CS /G ID a EI Q", "/Subtype /Form");
  }
  void whatDependsOnWhereADrawingBeginsIsNotPlain() {
    QFETCH(QByteArray, resources);
    QFETCH(QByteArray, object);
    const QByteArray image = stream("abc", "/Type /XObject /Subtype /Image /Width 1 /Height 1");
    QVERIFY(!isPlain(pageWith(lines(8000), resources, {object, image})));
  }

  void imagesWithinContentsAreNotPlain() {
    QVERIFY(!isPlain(onePage(lines(8000) + "BI /W 1 /H 1 /BPC 8 /CS /G ID a EI")));
    QVERIFY(isPlain(onePage(lines(8000) + "/ABIX gs /BIX gs")));
  }

  void annotationsAreNotPlain() {
    QVERIFY(!isPlain(onePage(lines(8000), "/MediaBox [0 0 200 100] /Annots [5 0 R]",
                             {"<< /Type /Annot /Subtype /Square /Rect [0 0 9 9] >>"})));
  }

  void aPageIsTheSameWithOneAndWithTwoProcessors() {
    const QByteArray pdf = onePage(lines(8000));
    RenderRequest request;
    request.pixelSize = {331, 167};
    request.pictureToDevice = AffineTransform(1.655, 0, 0, -1.67, 0, 167);
    QImage images[2];
    for (int processors : {1, 2}) {
      EngineContext context;
      context.processors = processors;
      const auto engine = openPdf(pdf, context);
      QVERIFY(engine);
      // The second time with what the first has loaded.
      for (int time = 0; time < 2; ++time) {
        const auto image = kit::imageOf((*engine)->render(request));
        QVERIFY(image);
        images[processors - 1] = *image;
      }
    }
    QCOMPARE(images[0], images[1]);
  }
};

}  // namespace

NORVEX_TEST(PlainPageTest)
#include "plain_page_test.moc"
