// Whether a program that stopped had drawn anything of its page.
#include "worker/postscript/page_marks.h"

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;

class PageMarksTest : public QObject {
  Q_OBJECT

  static bool isMarked(const QByteArray& contents) {
    const auto file = PdfFile::open(kit::onePage(contents));
    return hasMarks((*file)->page(0));
  }

 private slots:
  void whatPaintsIsAMark_data() {
    QTest::addColumn<QByteArray>("painting");
    for (const char* area : {"f", "F", "f*", "B", "B*", "b", "b*"})
      QTest::newRow(area) << QByteArray("0 0 9 9 re ") + area;
    for (const char* line : {"S", "s"}) QTest::newRow(line) << QByteArray("0 0 m 9 9 l ") + line;
    QTest::newRow("gradient") << QByteArray("/G sh");
    QTest::newRow("form or image") << QByteArray("/X Do");
    QTest::newRow("image in its place") << QByteArray("BI /W 1 /H 1 /BPC 8 /CS /G ID a EI");
    for (const char* text : {"(a) Tj", "[(a)] TJ", "(a) '", "1 1 (a) \""})
      QTest::newRow(text) << QByteArray("BT /F 9 Tf ") + text + " ET";
  }
  void whatPaintsIsAMark() {
    QFETCH(QByteArray, painting);
    QVERIFY(isMarked("q 1 0 0 1 0 0 cm " + painting + " Q"));
  }

  void whatOnlyPreparesIsNone() {
    QVERIFY(!isMarked(""));
    QVERIFY(!isMarked("q 1 0 0 rg 2 w 0 0 9 9 re W n 0 0 m 9 9 l n BT /F 9 Tf 1 1 Td ET Q"));
    QVERIFY(!isMarked("/f gs (S) pop"));  // names and texts are no operators
  }
};

NORVEX_TEST(PageMarksTest)
#include "page_marks_test.moc"
