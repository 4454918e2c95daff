// Results that this program itself would not open are found before they are kept.
#include "encoders/output_check.h"

#include "encoders/dos_eps_writer.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {
const QByteArray kEps("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\nshowpage\n");
const QByteArray kPdf("%PDF-1.7\n1 0 obj\nendobj\nstartxref\n9\n%%EOF\n");
}  // namespace

class OutputCheckTest : public QObject {
  Q_OBJECT
 private slots:
  void wholeResultsPass() {
    for (const QByteArray& bytes : {kEps, dosEpsFile("II*", kEps), kPdf, QByteArray("<svg/>"), QByteArray()})
      QVERIFY(checkOutput(bytes));
  }
  void whatCouldNotBeOpenedIsRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no program") << dosEpsFile("II*", {});
    QTest::newRow("program is cut") << dosEpsFile("II*", kEps).chopped(1);
    QTest::newRow("no box") << QByteArray(kEps).replace("0 0 9 9", "0 0 0 0");
    QTest::newRow("no PostScript") << dosEpsFile("II*", "showpage");
    QTest::newRow("PDF without an end") << kPdf.chopped(20);
  }
  void whatCouldNotBeOpenedIsRefused() {
    QFETCH(QByteArray, bytes);
    const Result<void> checked = checkOutput(bytes);
    QVERIFY(!checked);
    QVERIFY2(checked.error().message.startsWith("the result could not be opened again: "),
             qPrintable(checked.error().message));
  }
};

NORVEX_TEST(OutputCheckTest)
#include "output_check_test.moc"
