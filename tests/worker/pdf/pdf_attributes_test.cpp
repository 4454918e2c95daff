#include "worker/pdf/pdf_attributes.h"
#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_facts.h"

using namespace norvex;
using namespace norvex::engine;
using kit::onePage;

namespace {

PictureFacts factsOf(const QByteArray& pdf) {
  EngineContext context;
  auto engine = openPdf(pdf, context);
  return engine ? *(*engine)->facts() : PictureFacts();
}

}  // namespace

class PdfAttributesTest : public QObject {
  Q_OBJECT
 private slots:
  void theGivenOnesAreSetAndTheOthersStay() {
    const QByteArray old =
        onePage("", "/MediaBox [0 0 31 41]", {"<< /Title (Old) /Keywords (kept) /CreationDate (D:1999) >>"},
                "/Info 5 0 R");
    const QHash<QString, QString> attributes{{"Title", QString::fromUtf8("Über 日本 (x)")},
                                             {"Author", "A"},
                                             {"Subject", ""},
                                             {"Producer", "P"},
                                             {"Creator", "C 1.0"}};
    const QDateTime date(QDate(2024, 2, 3), QTime(4, 5, 6), Qt::OffsetFromUTC, 3600);
    const auto changed = withPdfAttributes(old, {attributes, date});
    QVERIFY(changed.ok());
    const PictureFacts facts = factsOf(*changed);
    QCOMPARE(facts.attributes, attributes);
    QCOMPARE(facts.creationDate, std::optional(date));
    QCOMPARE(facts.pageBounds, QList<QRectF>{QRectF(0, 0, 31, 41)});
    QVERIFY(changed->contains("(kept)"));
    QVERIFY(!changed->contains("(Old)"));
  }

  void withoutADateThereIsNone() {
    const auto changed = withPdfAttributes(onePage(""), {{{"Title", "T"}}, {}});
    QVERIFY(changed.ok());
    QVERIFY(!factsOf(*changed).creationDate);
  }

  void everythingElseStays() {
    const QByteArray pdf = onePage("1 0 0 rg 0 0 9 9 re f", "/MediaBox [0 0 9 9] /Rotate 90 /Marker (kept)");
    const auto changed = withPdfAttributes(pdf, {});
    QVERIFY(changed.ok());
    QVERIFY(changed->contains("kept"));
    QVERIFY(factsOf(*changed).attributes.isEmpty());
  }

  void aRectangleOfAPageIsMadeWithThem() {
    ComposeRequest request{VectorFormat::Pdf, 0, QRectF(-5, -5, 10, 10), 0};
    const auto bare = composePdf(onePage(""), request);
    QVERIFY(bare.ok());
    request.attributes = {{{"Title", "T"}, {"Creator", "C"}},
                          QDateTime(QDate(2024, 2, 3), QTime(4, 5, 6), Qt::UTC)};
    const auto made = composePdf(onePage(""), request);
    QVERIFY(made.ok());
    const PictureFacts facts = factsOf(*made), without = factsOf(*bare);
    QCOMPARE(facts.attributes.value("Title"), QString("T"));
    QCOMPARE(facts.attributes.value("Creator"), QString("C"));
    QCOMPARE(facts.attributes.value("Producer"), without.attributes.value("Producer"));
    QCOMPARE(facts.creationDate, request.attributes->creationDate);
    QCOMPARE(facts.pageBounds, without.pageBounds);
    QVERIFY(!without.attributes.contains("Title"));
  }

  void whatIsNoPdfIsAnError() {
    const auto changed = withPdfAttributes("no PDF", {});
    QVERIFY(!changed.ok());
    QCOMPARE(changed.error().kind, ErrorKind::NotParsable);
  }
};

NORVEX_TEST(PdfAttributesTest)
#include "pdf_attributes_test.moc"
