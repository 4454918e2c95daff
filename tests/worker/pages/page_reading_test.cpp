// What becomes of a page whose contents cannot be read, in whole or in part: it is told, and no empty page is
// handed out for it.
#include "worker/pages/page_reading.h"
#include "kit/test_main.h"
#include "protocol/every_page.h"
#include "protocol/page_contents.h"
#include "protocol/shared_errors.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/pdf_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madePdf;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kBox = "/MediaBox [0 0 100 100]";
const QByteArray kSquare = "1 0 0 rg 10 10 80 80 re f\n";

/// A page whose contents are this object, or missing where it is empty.
QByteArray pageOf(const QByteArray& contents, const QByteArray& entries = "/Contents 4 0 R") {
  QList<QByteArray> objects{"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                            "<< /Type /Page /Parent 2 0 R " + kBox + ' ' + entries + " >>"};
  if (!contents.isEmpty()) objects << contents;
  return madePdf(objects);
}

/// Compressed and then spoilt from `from` on.
QByteArray spoilt(qsizetype from) {
  QByteArray data = qCompress(kSquare.repeated(400)).sliced(4);
  for (qsizetype i = from; i < data.size(); ++i) data[i] = char(data[i] * 7 + 13);
  return stream(data, "/Filter /FlateDecode");
}

RenderRequest whole() {
  RenderRequest request;
  request.pixelSize = {100, 100};
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, 100);
  request.purpose = RenderPurpose::Export;
  return request;
}

ComposeRequest cut(VectorFormat format) {
  ComposeRequest request;
  request.format = format;
  request.rect = QRectF(-50, -50, 100, 100);
  return request;
}

}  // namespace

class PageReadingTest : public QObject {
  Q_OBJECT

  EngineContext context_;

 private slots:
  void aPageIsReadAsFarAsItGoes_data() {
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<int>("reading");
    const auto row = [](const char* name, const QByteArray& pdf, PageReading reading) {
      QTest::newRow(name) << pdf << int(reading);
    };
    const QByteArray good = onePage(kSquare, kBox);
    row("whole", good, PageReading::Whole);
    row("compressed", pageOf(stream(qCompress(kSquare).sliced(4), "/Filter /FlateDecode")),
        PageReading::Whole);
    row("meant to be empty", onePage({}, kBox), PageReading::Whole);
    row("a blank page of some programs", onePage("\n", kBox), PageReading::Whole);
    row("without contents", pageOf({}, {}), PageReading::Whole);
    row("contents that are null", pageOf("null"), PageReading::Whole);
    row("contents that are not there", pageOf({}), PageReading::Nothing);
    row("one part of two is not there", pageOf(stream(kSquare), "/Contents [4 0 R 9 0 R]"),
        PageReading::Damaged);
    row("contents that are no stream", pageOf("(a text)"), PageReading::Nothing);
    row("compressed data that are none", pageOf(stream("no such data at all", "/Filter /FlateDecode")),
        PageReading::Nothing);
    row("spoilt behind its begin", pageOf(spoilt(60)), PageReading::Damaged);
    row("cut off in the contents", good.left(good.indexOf("stream") + 8), PageReading::Nothing);
    row("cut off before the contents", good.left(good.indexOf("4 0 obj")), PageReading::Nothing);
    row("nothing but annotations",
        pageOf({}, "/Contents 9 0 R /Annots [<< /Type /Annot /Subtype /Stamp /AP << >> >>]"),
        PageReading::Damaged);
  }
  void aPageIsReadAsFarAsItGoes() {
    QFETCH(QByteArray, pdf);
    const auto file = PdfFile::open(pdf);
    QVERIFY2(file.ok(), qPrintable(file ? QString() : file.error().message));
    QTEST(int(readingOf(**file, 0)), "reading");
  }

  void whatCannotBeReadIsNotHandedOutAsAnEmptyPage() {
    const auto engine = openPdf(pageOf({}), context_);
    QVERIFY(engine.ok());
    const QString sentence = "the file is damaged; nothing of its page can be read";
    const auto image = (*engine)->render(whole());
    QVERIFY(!image.ok());
    QCOMPARE(image.error().message, sentence);
    QVERIFY(image.error().kind == ErrorKind::NotParsable);
    for (const VectorFormat format : {VectorFormat::Pdf, VectorFormat::Eps, VectorFormat::Svg}) {
      const auto made = (*engine)->compose(cut(format));
      QVERIFY(!made.ok());
      QCOMPARE(made.error().message, sentence);
    }
    const auto file = (*engine)->pdf({everyPage, std::nullopt, false});
    QVERIFY(!file.ok());
    QCOMPARE(file.error().message, sentence);
  }

  void ofSeveralPagesTheOneThatIsLostIsNamedAndTheOthersAreHandedOut() {
    const QByteArray pdf =
        madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                 "<< /Type /Page /Parent 2 0 R " + kBox + " /Contents 9 0 R >>",
                 "<< /Type /Page /Parent 2 0 R " + kBox + " /Contents 5 0 R >>", stream(kSquare)});
    const auto engine = openPdf(pdf, context_);
    QVERIFY(engine.ok());
    const auto first = (*engine)->render(whole());
    QVERIFY(!first.ok());
    QCOMPARE(first.error().message, "the file is damaged; nothing of page 1 can be read");
    RenderRequest second = whole();
    second.page = 1;
    QVERIFY((*engine)->render(second).ok());
    const auto file = (*engine)->pdf({everyPage, std::nullopt, false});
    QVERIFY(file.ok());
    QCOMPARE(file->report.warnings, QStringList{damagedFile()});
  }

  void everyPageBeyondItsMediumIsDrawnAsItself() {
    const QByteArray box = " /MediaBox [0 0 100 100] /CropBox [-10 0 90 100] ";
    const QByteArray pdf =
        madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
                 "<< /Type /Page /Parent 2 0 R" + box + "/Contents 5 0 R >>",
                 "<< /Type /Page /Parent 2 0 R" + box + "/Contents 6 0 R >>",
                 stream("1 0 0 rg 0 0 100 100 re f"), stream("0 0 1 rg 0 0 100 100 re f")});
    const auto engine = openPdf(pdf, context_);
    QVERIFY(engine.ok());
    for (const auto& [page, color] :
         {std::pair(0, QColor(Qt::red)), std::pair(1, QColor(Qt::blue)), std::pair(0, QColor(Qt::red))}) {
      RenderRequest request = whole();
      request.page = page;
      const auto drawn = (*engine)->render(request);
      QVERIFY(drawn.ok());
      QCOMPARE(kit::imageOf(*drawn).pixelColor(50, 50), color);
    }
  }

  void whatIsDamagedInPartIsHandedOutAndTold() {
    const auto engine = openPdf(pageOf(spoilt(60)), context_);
    QVERIFY(engine.ok());
    QCOMPARE((*engine)->facts()->warnings, QStringList());  // the contents are not read for the facts
    QVERIFY((*engine)->render(whole()).ok());
    QCOMPARE((*engine)->drawingRemarks(), QStringList{damagedFile()});
    for (const VectorFormat format : {VectorFormat::Pdf, VectorFormat::Eps, VectorFormat::Svg}) {
      const auto made = (*engine)->compose(cut(format));
      QVERIFY2(made.ok(), qPrintable(made ? QString() : made.error().message));
      QVERIFY(made->report.warnings.contains(damagedFile()));
    }
    const auto examined = (*engine)->examine({Examination::Contents, 0});
    QVERIFY(examined.ok());
    QVERIFY(decodePageContents(examined->bytes)->remarks.contains(damagedFile()));
  }

  void whichPageIsLostIsToldWhereThereAreSeveral() {
    QCOMPARE(nothingCanBeRead(0, 1).message, "the file is damaged; nothing of its page can be read");
    QCOMPARE(nothingCanBeRead(everyPage, 1).message, "the file is damaged; nothing of its page can be read");
    QCOMPARE(nothingCanBeRead(everyPage, 2).message, "the file is damaged; nothing of its pages can be read");
    QCOMPARE(nothingCanBeRead(1, 2).message, "the file is damaged; nothing of page 2 can be read");
    QCOMPARE(nothingCanBeRead(1, 2).kind, ErrorKind::NotParsable);
  }

  void onePixelIsPaintWhereverItIs() {
    Bitmap bitmap = *Bitmap::create({5, 4});
    QVERIFY(isUnpainted(bitmap));
    for (const QPoint place : {QPoint(0, 0), QPoint(4, 0), QPoint(2, 2), QPoint(4, 3)}) {
      bitmap.row(place.y())[place.x()] = 0x01000000;
      QVERIFY(!isUnpainted(bitmap));
      bitmap.row(place.y())[place.x()] = 0;
    }
  }

  void aPageThatIsMeantToBeEmptyIsDrawn() {
    const auto engine = openPdf(onePage({}, kBox), context_);
    QVERIFY(engine.ok());
    QVERIFY((*engine)->render(whole()).ok());
    QVERIFY((*engine)->compose(cut(VectorFormat::Svg)).ok());
    QCOMPARE((*engine)->drawingRemarks(), QStringList());
  }
};

NORVEX_TEST(PageReadingTest)
#include "page_reading_test.moc"
