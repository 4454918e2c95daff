#include "worker/pdf/pdf_actions.h"

#include "kit/test_main.h"
#include "protocol/every_page.h"
#include "worker/engine/engine.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/actions_left_out.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_file.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madePdf;
using kit::stream;

namespace {

const QByteArray kLaunch = "<< /S /Launch /F (HOSTILE) >>";
const QByteArray kScript = "<< /S /JavaScript /JS (HOSTILE) >>";

// A page with more entries in its catalogue, in itself and more objects from 5.
QByteArray document(const QByteArray& inCatalogue, const QByteArray& inPage = {},
                    const QList<QByteArray>& more = {}, const QByteArray& contents = "0 0 50 50 re f") {
  return madePdf(QList<QByteArray>{
                     "<< /Type /Catalog /Pages 2 0 R " + inCatalogue + " >>",
                     "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                     "<< /Type /Page /Parent 2 0 R /Contents 4 0 R /MediaBox [0 0 200 100] " + inPage + " >>",
                     stream(contents)} +
                 more);
}

ComposeRequest whole(VectorFormat format = VectorFormat::Pdf) {
  ComposeRequest request;
  request.format = format;
  request.rect = QRectF(-100, -50, 200, 100);
  return request;
}

const QString kScripts = "scripts of the document were left out";
const QString kPrograms = "actions that start programs or open other files were left out";
const QString kOpening = "what the document does when it is opened was left out";
const QString kFiles = "references to files beside the document were left out";
const QString kPostScript = "PostScript programs that the document holds were left out";

}  // namespace

class PdfActionsTest : public QObject {
  Q_OBJECT
 private slots:
  void actionsAreLeftOutAndTold_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("none") << document({}) << QStringList();
    QTest::newRow("a script at opening")
        << document("/OpenAction " + kScript) << QStringList{kOpening, kScripts};
    QTest::newRow("a program at opening")
        << document("/OpenAction " + kLaunch) << QStringList{kOpening, kPrograms};
    QTest::newRow("a page at opening") << document("/OpenAction [3 0 R /Fit]") << QStringList();
    QTest::newRow("scripts by name") << document("/Names << /JavaScript << /Names [(a) " + kScript +
                                                 "] >> >>")
                                     << QStringList{kScripts};
    QTest::newRow("before printing") << document("/AA << /WP " + kScript + " >>") << QStringList{kScripts};
    QTest::newRow("with the page") << document({}, "/AA << /O " + kLaunch + " >>") << QStringList{kPrograms};
    QTest::newRow("a click") << document({}, "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A " +
                                                 kLaunch + " >>]")
                             << QStringList{kPrograms};
    QTest::newRow("behind another") << document(
                                           {},
                                           "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << "
                                           "/S /URI /URI (x) /Next [" +
                                               kScript + ' ' + kLaunch + "] >> >>]")
                                    << QStringList{kPrograms, kScripts};
    QTest::newRow("an address of the web")
        << document({},
                    "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S /URI /URI (x) >> >>]")
        << QStringList();
    const QByteArray form = "/Resources << /XObject << /X 5 0 R >> >>";
    QTest::newRow("data in another file")
        << document({}, form,
                    {stream("HOSTILE", "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /F (HOSTILE)")},
                    "/X Do")
        << QStringList{kFiles};
    QTest::newRow("a page of another file")
        << document(
               {}, form,
               {stream("", "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /Ref << /F (HOSTILE) /Page 0 >>")},
               "/X Do")
        << QStringList{kFiles};
    QTest::newRow("PostScript") << document({}, form, {stream("HOSTILE", "/Type /XObject /Subtype /PS")},
                                            "/X Do")
                                << QStringList{kPostScript};
    QTest::newRow("PostScript of a form")
        << document({}, form,
                    {stream("", "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /Subtype2 /PS /PS 6 0 R"),
                     stream("HOSTILE")},
                    "/X Do")
        << QStringList{kPostScript};
  }
  void actionsAreLeftOutAndTold() {
    QFETCH(QByteArray, pdf);
    QFETCH(QStringList, told);
    QStringList leftOut{"from before"};
    const auto composed = composePdf(pdf, whole(), DocumentActions::LeaveOut, &leftOut);
    QVERIFY(composed);
    QCOMPARE(leftOut, told);
    const auto file = PdfFile::open(*composed);
    QVERIFY(file);
    for (const char* key : {"/OpenAction", "/AA", "/Names"}) QVERIFY(!(*file)->qpdf().getRoot().hasKey(key));
    QVERIFY(!(*file)->page(0).hasKey("/AA"));
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects())
      QVERIFY(!QByteArray::fromStdString(object.unparseResolved()).contains("HOSTILE"));
  }

  void actionsAreLeftOutOfAWholeDocumentAndTold_data() { actionsAreLeftOutAndTold_data(); }
  void actionsAreLeftOutOfAWholeDocumentAndTold() {
    QFETCH(QByteArray, pdf);
    QFETCH(QStringList, told);
    const auto cleaned = leaveOutActions(pdf);
    QVERIFY(cleaned);
    QStringList sentences = told;
    sentences.removeAll(kOpening);  // here it is told by what it does
    QStringList leftOut = cleaned->report.warnings;
    leftOut.sort(), sentences.sort();
    QCOMPARE(leftOut, sentences);
    if (sentences.isEmpty()) QCOMPARE(cleaned->bytes, pdf);
    const auto file = PdfFile::open(cleaned->bytes);
    QVERIFY(file);
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects())
      QVERIFY(!QByteArray::fromStdString(object.unparseResolved()).contains("HOSTILE"));
  }

  void aDamagedDocumentIsHandedOnAsItWasUnderstood() {
    const QByteArray whole =
        madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                 "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] >>"});
    QCOMPARE(leaveOutActions(whole)->bytes, whole);
    const QByteArray damaged = whole.left(whole.lastIndexOf("xref"));
    QVERIFY(!(*PdfFile::open(damaged))->warnings().isEmpty());
    const auto repaired = leaveOutActions(damaged);
    QVERIFY(repaired);
    const auto again = PdfFile::open(repaired->bytes);
    QVERIFY(again);
    QCOMPARE((*again)->warnings(), QStringList());
    QCOMPARE((*again)->pageCount(), 1);
  }

  void whatIsLeftOutOfAWholeDocumentIsNoneOfItsPages() {
    const QByteArray pdf =
        madePdf({"<< /Type /Catalog /Pages 2 0 R /Outlines 6 0 R /OpenAction [4 0 R /Fit] /AA << /WP " +
                     kScript + " >> /AcroForm << /Fields [7 0 R] >> >>",
                 "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                 "<< /Type /Page /Parent 2 0 R /Contents 5 0 R /MediaBox [0 0 200 100] >>",
                 "<< /Type /Page /Parent 2 0 R /Contents 5 0 R /MediaBox [0 0 20 10] /Annots [7 0 R] >>",
                 stream("0 0 5 5 re f"), "<< /Type /Outlines /First 8 0 R /Last 8 0 R /Count 1 >>",
                 "<< /Type /Annot /Subtype /Widget /FT /Btn /Rect [0 0 9 9] /AA << /U " + kLaunch + " >> >>",
                 "<< /Title (One) /Parent 6 0 R /A << /S /GoTo /D [3 0 R /Fit] /Next " + kScript + " >> >>"});
    const auto cleaned = leaveOutActions(pdf);
    QVERIFY(cleaned);
    QVERIFY(cleaned->report.warnings.contains(kScripts) && cleaned->report.warnings.contains(kPrograms));
    const auto file = PdfFile::open(cleaned->bytes);
    QVERIFY(file);
    QCOMPARE((*file)->pageCount(), 2);
    QPDFObjectHandle root = (*file)->qpdf().getRoot();
    QVERIFY(root.getKey("/OpenAction").isArray());
    QVERIFY(root.getKey("/Outlines").getKey("/First").hasKey("/Title"));
    QCOMPARE(root.getKey("/AcroForm").getKey("/Fields").getArrayNItems(), 1);
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects())
      QVERIFY(!QByteArray::fromStdString(object.unparseResolved()).contains("HOSTILE"));
  }

  void theyStayWhereThatIsAskedFor() {
    const QByteArray pdf = document("/OpenAction " + kScript + " /AA << /WP " + kScript +
                                        " >> /Names << /JavaScript << /Names [(a) " + kScript +
                                        "] >> /EmbeddedFiles << /Names [] >> >>",
                                    "/AA << /O " + kLaunch + " >>");
    QStringList leftOut;
    const auto composed = composePdf(pdf, whole(), DocumentActions::Keep, &leftOut);
    QVERIFY(composed);
    QCOMPARE(leftOut, QStringList());
    const auto file = PdfFile::open(*composed);
    QPDFObjectHandle root = (*file)->qpdf().getRoot();
    QVERIFY(root.getKey("/OpenAction").getKey("/S").isNameAndEquals("/JavaScript"));
    QVERIFY(root.getKey("/AA").hasKey("/WP"));
    QVERIFY(root.getKey("/Names").hasKey("/JavaScript"));
    QVERIFY(!root.getKey("/Names").hasKey("/EmbeddedFiles"));
    QVERIFY((*file)->page(0).getKey("/AA").hasKey("/O"));
  }

  void anActionThatFollowsItselfEnds() {
    const QByteArray pdf = document({}, "/AA << /O 5 0 R >>", {"<< /S /URI /URI (x) /Next 5 0 R >>"});
    QVERIFY(composePdf(pdf, whole()));
    const QByteArray many =
        document({}, "/AA << /O 5 0 R >>", {"<< /S /Launch /Next [5 0 R 5 0 R 5 0 R] >>"});
    QVERIFY(composePdf(many, whole()));
  }

  void theRequestDecides() {
    EngineContext context;
    const QByteArray pdf = document("/OpenAction " + kScript);
    const auto engine = openPdf(pdf, context);
    QVERIFY(engine);
    for (const bool kept : {false, true}) {
      const auto one = (*engine)->pdf({0, std::nullopt, kept});
      ComposeRequest request = whole();
      request.keepActions = kept;
      const auto part = (*engine)->compose(request);
      const auto every = (*engine)->pdf({everyPage, std::nullopt, kept});
      QVERIFY(one && part && every);
      for (const auto* made : {&one, &part, &every}) {
        QCOMPARE((*made)->report.warnings.isEmpty(), kept);
        const auto file = PdfFile::open((*made)->bytes);
        QCOMPARE((*file)->qpdf().getRoot().hasKey("/OpenAction"), kept);
      }
    }
    QCOMPARE((*engine)->pdf({everyPage, std::nullopt, true})->bytes, pdf);
  }

  void theReportOfAPdfTellsIt() {
    EngineContext context;
    const auto engine = openPdf(document("/OpenAction " + kScript), context);
    QVERIFY(engine);
    const auto pdf = (*engine)->compose(whole());
    QVERIFY(pdf);
    QCOMPARE(pdf->report.warnings, (QStringList{kOpening, kScripts}));
    const auto eps = (*engine)->compose(whole(VectorFormat::Eps));
    QVERIFY(eps);
    QCOMPARE(eps->report.warnings, QStringList());
  }
};

NORVEX_TEST(PdfActionsTest)
#include "pdf_actions_test.moc"
