// Which PDF may be an Illustrator file that was saved without its artwork.
#include "worker/pages/illustrator_page.h"

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madePdf;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kBox = "/MediaBox [0 0 100 100]";
const QByteArray kPieces = kBox + " /PieceInfo << /Illustrator << /Private << >> >> >>";

bool mayBe(const QByteArray& pdf) {
  const auto file = PdfFile::open(pdf);
  return file && mayHoldIllustratorNotice(**file);
}

}  // namespace

class IllustratorPageTest : public QObject {
  Q_OBJECT
 private slots:
  void onlyAShortPageOfThatProgramMayBeANotice_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<bool>("may");
    const QByteArray text = "BT (This is an Adobe Illustrator File) Tj ET";
    QTest::newRow("a notice") << onePage(text, kPieces) << true;
    QTest::newRow("another program's") << onePage(text, kBox) << false;
    QTest::newRow("another program's pieces")
        << onePage(text, kBox + " /PieceInfo << /Drawing << >> >>") << false;
    QTest::newRow("pieces that are none") << onePage(text, kBox + " /PieceInfo 7") << false;
    QTest::newRow("as long as a notice may be")
        << onePage(QByteArray(limits::maximumNoticeBytes, ' '), kPieces) << true;
    QTest::newRow("longer") << onePage(QByteArray(limits::maximumNoticeBytes + 1, ' '), kPieces) << false;
    QTest::newRow("two pages") << madePdf({"<< /Type /Catalog /Pages 2 0 R >>",
                                           "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                                           "<< /Type /Page /Parent 2 0 R " + kPieces + " /Contents 5 0 R >>",
                                           "<< /Type /Page /Parent 2 0 R " + kPieces + " /Contents 5 0 R >>",
                                           stream(text)})
                               << false;
  }
  void onlyAShortPageOfThatProgramMayBeANotice() {
    QFETCH(QByteArray, pdf);
    QTEST(mayBe(pdf), "may");
  }
};

NORVEX_TEST(IllustratorPageTest)
#include "illustrator_page_test.moc"
