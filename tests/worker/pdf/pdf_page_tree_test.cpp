#include <QImage>

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

// Objects 11, 12 and 13 are pages: filled with red, green and blue.
QByteArray document(const QByteArray& root, const QList<QByteArray>& nodes = {}) {
  QList<QByteArray> bodies{"<< /Type /Catalog /Pages 2 0 R >>", root};
  bodies += nodes;
  while (bodies.size() < 10) bodies << "null";
  for (int i = 0; i < 3; ++i)
    bodies << "<< /Type /Page /Parent 2 0 R /Contents " + QByteArray::number(14 + i) + " 0 R >>";
  for (const char* colour : {"1 0 0", "0 1 0", "0 0 1"})
    bodies << kit::stream(QByteArray(colour) + " rg 0 0 9 9 re f");
  return kit::madePdf(bodies);
}

QByteArray node(const QByteArray& kids,
                const QByteArray& more = "/Type /Pages /Count 3 /MediaBox [0 0 9 9]") {
  return "<< /Kids [" + kids + "] " + more + " >>";
}

char colourOf(const QImage& image) {
  const QRgb pixel = image.isNull() ? 0 : image.pixel(4, 4);
  return pixel == qRgb(255, 0, 0)   ? 'r'
         : pixel == qRgb(0, 255, 0) ? 'g'
         : pixel == qRgb(0, 0, 255) ? 'b'
                                    : '-';
}

char drawn(DocumentEngine& engine, int page) {
  RenderRequest request;
  request.page = page;
  request.pixelSize = {9, 9};
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, 9);
  const auto image = kit::imageOf(engine.render(request));
  return image ? colourOf(*image) : '!';
}

}  // namespace

class PdfPageTreeTest : public QObject {
  Q_OBJECT
 private slots:
  // The pages in order: red, green, blue; "-" is an empty page.
  void damagedTreesHaveTheirPages_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<QByteArray>("pages");
    QTest::newRow("whole") << document(node("11 0 R 12 0 R 13 0 R")) << QByteArray("rgb");
    QTest::newRow("a node that is its own kid") << document(node("11 0 R 2 0 R 12 0 R")) << QByteArray("rg");
    QTest::newRow("a loop of three") << document(node("11 0 R 3 0 R 13 0 R"),
                                                 {node("4 0 R"), node("12 0 R 3 0 R")})
                                     << QByteArray("rgb");
    QTest::newRow("nothing but a loop beside a page")
        << document(node("11 0 R 3 0 R"), {node("4 0 R"), node("3 0 R")}) << QByteArray("r");
    QTest::newRow("a node twice") << document(
                                         node("3 0 R 3 0 R", "/Type /Pages /Count 4 /MediaBox [0 0 9 9]"),
                                         {node("11 0 R 12 0 R")})
                                  << QByteArray("rgrg");
    QTest::newRow("a page twice") << document(node("11 0 R 11 0 R 12 0 R")) << QByteArray("rrg");
    QTest::newRow("no types") << document(node("3 0 R 13 0 R", "/Count 3 /MediaBox [0 0 9 9]"),
                                          {"<< /Kids [11 0 R 12 0 R] >>"})
                              << QByteArray("rgb");
    QTest::newRow("wrong types") << document(
                                        node("3 0 R 13 0 R", "/Type /Catalog /Count 3 /MediaBox [0 0 9 9]"),
                                        {"<< /Type /Page2 /Kids [11 0 R 12 0 R] >>"})
                                 << QByteArray("rgb");
    QTest::newRow("count too small") << document(node("11 0 R 12 0 R",
                                                      "/Type /Pages /Count 1 /MediaBox [0 0 9 9]"))
                                     << QByteArray("rg");
    QTest::newRow("count too large") << document(node("11 0 R 12 0 R",
                                                      "/Type /Pages /Count 9 /MediaBox [0 0 9 9]"))
                                     << QByteArray("rg");
    QTest::newRow("no count") << document(node("11 0 R 12 0 R", "/Type /Pages /MediaBox [0 0 9 9]"))
                              << QByteArray("rg");
    QTest::newRow("a kid that is null") << document(node("11 0 R 9 0 R 99 0 R 12 0 R")) << QByteArray("rg");
    QTest::newRow("kids of other types")
        << document(node("11 0 R 3 0 R 4 0 R 12 0 R"), {"(text)", "[11 0 R]"}) << QByteArray("rg");
    QTest::newRow("a node without kids")
        << document(node("11 0 R 3 0 R 12 0 R"), {"<< /Type /Pages /Count 0 >>"}) << QByteArray("r-g");
    QTest::newRow("a page that has kids")
        << document(node("11 0 R 3 0 R"), {"<< /Type /Page /Kids [11 0 R] /Contents 16 0 R >>"})
        << QByteArray("rb");
    QTest::newRow("a page as the root")
        << document("<< /Type /Page /MediaBox [0 0 9 9] /Contents 16 0 R >>") << QByteArray("b");
  }
  void damagedTreesHaveTheirPages() {
    QFETCH(QByteArray, pdf);
    QFETCH(QByteArray, pages);
    EngineContext context;
    auto engine = openPdf(pdf, context);
    QVERIFY2(engine, engine ? "" : qPrintable(engine.error().message));
    QCOMPARE((*engine)->facts()->pageCount, int(pages.size()));
    QByteArray shown, written;
    for (int page = 0; page < pages.size(); ++page) {
      shown += drawn(**engine, page);
      const auto one = (*engine)->pdf({page});
      QVERIFY2(one, one ? "" : qPrintable(one.error().message));
      auto again = openPdf(one->bytes, context);
      QVERIFY(again);
      written += drawn(**again, 0);
    }
    QCOMPARE(shown, pages);
    QCOMPARE(written, pages);
  }

  void whatIsPassedOverIsTold() {
    // A node that is its own kid, and kids that are nothing.
    for (const char* kids : {"11 0 R 2 0 R", "11 0 R 9 0 R", "11 0 R (text)"}) {
      auto damaged = PdfFile::open(document(node(kids)));
      QVERIFY(damaged.ok());
      QCOMPARE((*damaged)->warnings().size(), 1);
    }
    auto whole = PdfFile::open(document(node("11 0 R")));
    QVERIFY(whole.ok());
    QVERIFY((*whole)->warnings().isEmpty());
  }

  void attributesComeFromTheWayToThePage() {
    const QByteArray pdf = document(
        node("3 0 R 11 0 R", "/MediaBox [0 0 9 9] /Rotate 90"),
        {node("4 0 R", "/MediaBox [0 0 20 10]"), "<< /Type /Page /CropBox [0 0 8 4] /Parent 11 0 R >>"});
    auto file = PdfFile::open(pdf);
    QVERIFY(file.ok());
    QCOMPARE((*file)->geometry(0).box, QRectF(0, 0, 8, 4));
    QCOMPARE((*file)->geometry(0).rotation, 90);
    QCOMPARE((*file)->geometry(1).box, QRectF(0, 0, 9, 9));
  }

  void treesWithoutAPageAreRefused_data() {
    QTest::addColumn<QByteArray>("root");
    QTest::newRow("nothing but a loop") << node("2 0 R");
    QTest::newRow("no kids") << QByteArray("<< /Type /Pages /Count 1 >>");
    QTest::newRow("kids of a wrong type") << QByteArray("<< /Type /Pages /Count 1 /Kids 11 0 R >>");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("a number") << QByteArray("7");
  }
  void treesWithoutAPageAreRefused() {
    QFETCH(QByteArray, root);
    auto file = PdfFile::open(document(root));
    QVERIFY(!file.ok());
    QCOMPARE(file.error().kind, ErrorKind::NotParsable);
  }

  // Sixty nodes that name the next one twice each have more ways through them than anybody can walk.
  void treesMadeToBeWalkedForEverAreRefused() {
    QList<QByteArray> bodies{"<< /Type /Catalog /Pages 2 0 R >>"};
    for (int i = 0; i < 60; ++i) {
      const QByteArray next = QByteArray::number(i + 3) + " 0 R";
      bodies << node(next + ' ' + next);
    }
    bodies << "<< /Type /Pages /Kids [] >>";
    auto file = PdfFile::open(kit::madePdf(bodies));
    QVERIFY(!file.ok());
    QCOMPARE(file.error().kind, ErrorKind::Limit);
  }

  void deepTreesAreWalked() {
    QList<QByteArray> bodies{"<< /Type /Catalog /Pages 2 0 R >>"};
    for (int i = 0; i < 20000; ++i) bodies << node(QByteArray::number(i + 3) + " 0 R");
    bodies << "<< /Type /Page /Parent 2 0 R >>";
    auto file = PdfFile::open(kit::madePdf(bodies));
    QVERIFY(file.ok());
    QCOMPARE((*file)->pageCount(), 1);
  }
};

NORVEX_TEST(PdfPageTreeTest)
#include "pdf_page_tree_test.moc"
