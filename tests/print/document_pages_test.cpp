// Jobs of documents with several pages, with the shipped picture program.
#include <QFileInfo>
#include <QTemporaryDir>

#include "kit/program.h"
#include "kit/test_main.h"
#include "picture/client/worker_service.h"
#include "picture/pdf_image_rep.h"
#include "print/job_pages.h"
#include "print/memory_printing.h"
#include "print/print_job.h"
#include "protocol/limits.h"

using namespace norvex;
using kit::MemorySpooler;
using kit::run;

namespace {

/// Pages of these sizes with the words Page1, Page2, … `image`: 512 by 1024 grey pixels on each of them.
QByteArray document(const QList<QSizeF>& pages, const QByteArray& image = {}) {
  QByteArray kids;
  QList<QByteArray> objects{
      "<< /Type /Catalog /Pages 2 0 R >>", {}, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"};
  for (const QSizeF& size : pages) {
    const int number = int(objects.size()) + 1;
    kids += QByteArray::number(number) + " 0 R ";
    const QByteArray contents =
        (image.isEmpty() ? "" : "q 40 0 0 80 150 10 cm /I Do Q ") +
        ("BT /F 12 Tf 10 10 Td (Page" + QByteArray::number((number - 4) / 2 + 1) + ") Tj ET");
    objects << "<< /Type /Page /Parent 2 0 R /Contents " + QByteArray::number(number + 1) +
                   " 0 R /Resources << /Font << /F 3 0 R >>" +
                   (image.isEmpty()
                        ? QByteArray()
                        : " /XObject << /I " + QByteArray::number(4 + 2 * pages.size()) + " 0 R >>") +
                   " >> /MediaBox [0 0 " + QByteArray::number(size.width()) + ' ' +
                   QByteArray::number(size.height()) + "] >>"
            << "<< /Length " + QByteArray::number(contents.size()) + " >>\nstream\n" + contents +
                   "\nendstream";
  }
  if (!image.isEmpty())
    objects << "<< /Type /XObject /Subtype /Image /Width 512 /Height 1024 /BitsPerComponent 8 /ColorSpace "
               "/DeviceGray /Length " +
                   QByteArray::number(image.size()) + " >>\nstream\n" + image + "\nendstream";
  objects[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>";
  QByteArray pdf = "%PDF-1.4\n";
  for (qsizetype i = 0; i < objects.size(); ++i)
    pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
  return pdf + "trailer << /Root 1 0 R /Size " + QByteArray::number(objects.size() + 1) + " >>\n%%EOF\n";
}

NSPrintInfo a4() {
  NSPrintInfo info;
  info.setPaper(*paperNamed("A4"));
  info.setOrientation(NSPaperOrientation::Landscape);
  for (const char* margin : {NSPrintLeftMargin, NSPrintRightMargin, NSPrintTopMargin, NSPrintBottomMargin})
    info.set(margin, 0.0);
  return info;
}

}  // namespace

class DocumentPagesTest : public QObject {
  Q_OBJECT

  std::unique_ptr<WorkerService> service_;
  QTemporaryDir folder_;

  /// The view of a window that shows the page `shown` (from 0) of that document.
  PrintSource viewOf(const QList<QSizeF>& pages, int shown, double rotate = 0, const QByteArray& image = {}) {
    const auto first = NSPDFImageRep::imageRepWithData(*service_, document(pages, image));
    if (!first) qFatal("%s", qPrintable(first.error().message));
    const auto page = (*first)->imageRepWithPage(shown);
    if (!page) qFatal("%s", qPrintable(page.error().message));
    NorvexView view;
    view.setImageSize(pages.at(shown));
    view.setImageRep(*page);
    view.setRotate(rotate, false);
    view.setPrintJobTitle("A book");
    view.setTitle("file:///tmp/A book.pdf");
    return PrintableNorvexView(view).printSource();
  }
  Result<void> print(const PrintSource& source, NSPrintInfo info) {
    MemorySpooler spooler;
    info.setJobSavingPath(folder_.filePath("out.pdf"));
    return runJob(source, info, *service_, spooler);
  }
  QByteArray words() { return run("pdftotext", {folder_.filePath("out.pdf"), "-"}).out.simplified(); }
  QByteArray facts() { return run("pdfinfo", {"-f", "1", "-l", "99", folder_.filePath("out.pdf")}).out; }

 private slots:
  void initTestCase() {
    service_ = std::make_unique<WorkerService>(QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker"));
  }
  void cleanupTestCase() { service_.reset(); }

  void whatIsShownIsPrintedUnlessMoreIsChosen() {
    QVERIFY(print(viewOf({{200, 100}, {200, 100}, {200, 100}}, 1), a4()).ok());
    QCOMPARE(words(), QByteArray("Page2"));
  }

  void allPagesFollowOneAnotherInOneFile() {
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    QVERIFY(print(viewOf({{200, 100}, {1500, 100}, {200, 100}}, 2), info).ok());
    QCOMPARE(words(), QByteArray("Page1 Page2 Page3"));
    QVERIFY2(facts().contains("Pages:           4\n"), facts());  // the second takes two sheets
    QVERIFY2(facts().contains("Title:           A book\n"), facts());
    QVERIFY2(facts().contains("Page    4 size:  841.89 x 595.276 pts (A4)\n"), facts());
    QCOMPARE(run("qpdf", {"--check", folder_.filePath("out.pdf")}).exitCode, 0);
    QCOMPARE(run("pdfimages", {"-list", folder_.filePath("out.pdf")}).out.count('\n'), 2);
  }

  void theJobTellsWhichOfItsPagesItDraws() {
    NSPrintInfo info = a4();
    info.setDocumentPageRange(2, 3);
    info.setJobSavingPath(folder_.filePath("out.pdf"));
    kit::MemorySpooler spooler;
    QList<std::pair<int, int>> told;
    QVERIFY(runJob(viewOf({{200, 100}, {1500, 100}, {200, 100}, {200, 100}}, 0), info, *service_, spooler, {},
                   [&](int page, int pages) { told << std::pair(page, pages); })
                .ok());
    QCOMPARE(told, (QList<std::pair<int, int>>{{1, 2}, {2, 2}}));
  }

  void whatAllPagesOfABookShareIsPrintedOnce() {
#if defined(__SANITIZE_THREAD__)
    QSKIP("150 MB take minutes where every access is watched");
#endif
    // Each page comes with half a megabyte of the same: 150 MB together, of which half a one is left.
    constexpr int kPages = 300;
    QByteArray image(512 * 1024, '\0');
    quint32 noise = 1;
    for (char& byte : image) byte = char((noise = noise * 1664525u + 1013904223u) >> 24);
    QList<QSizeF> sizes;
    for (int i = 0; i < kPages; ++i) sizes << QSizeF(200, 100);
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    QVERIFY(print(viewOf(sizes, 7, 0, image), info).ok());
    QCOMPARE(words().count("Page"), qsizetype(kPages));
    QVERIFY(words().startsWith("Page1 Page2 Page3 ") && words().endsWith(" Page299 Page300"));
    QVERIFY2(facts().contains("Pages:           300\n"), facts());
    const qint64 size = QFileInfo(folder_.filePath("out.pdf")).size();
    QVERIFY2(size > image.size() / 2 && size < 4 * image.size(), qPrintable(QString::number(size)));
    QCOMPARE(run("qpdf", {"--check", folder_.filePath("out.pdf")}).exitCode, 0);
  }

  void aRangeOfPagesIsPrintedAloneAndSheetsAreCountedOverAllOfThem() {
    NSPrintInfo info = a4();
    info.setDocumentPageRange(2, 3);
    const PrintSource source = viewOf({{200, 100}, {1500, 100}, {200, 100}, {200, 100}}, 0);
    QVERIFY(print(source, info).ok());
    QCOMPARE(words(), QByteArray("Page2 Page3"));
    info.setPageRange(2, 3);
    QVERIFY(print(source, info).ok());
    QCOMPARE(words(), QByteArray("Page3"));  // the first sheet of the second page is left out
    QVERIFY2(facts().contains("Pages:           2\n"), facts());
  }

  void pagesThatAreNotThereAreTold() {
    NSPrintInfo info = a4();
    info.setDocumentPageRange(3, 9);
    const Result<void> printed = print(viewOf({{200, 100}, {200, 100}}, 0), info);
    QVERIFY(!printed.ok());
    QCOMPARE(printed.error().message, QString("there are no such pages: the document has 2"));
  }

  void everyPageIsTurnedAsTheShownOneIs() {
    const PrintSource source = viewOf({{200, 100}, {300, 50}}, 0, 1.5707963267948966);
    QCOMPARE(source.pages.size(), qsizetype(2));
    QVERIFY(std::abs(source.pages.at(1).size.width() - 50) < 1e-6);
    QVERIFY(std::abs(source.pages.at(1).size.height() - 300) < 1e-6);
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    info.setHorizontallyCentered(false);
    QVERIFY(print(source, info).ok());
    run("pdftotext", {"-bbox", folder_.filePath("out.pdf"), folder_.filePath("boxes.html")});
    QFile boxes(folder_.filePath("boxes.html"));
    QVERIFY(boxes.open(QIODevice::ReadOnly));
    const QByteArray told = boxes.readAll();
    // The words stand upright along the paper's left edge, taller than wide.
    const auto value = [&](const char* name) {
      const qsizetype at = told.indexOf(name, told.lastIndexOf("<word")) + qsizetype(qstrlen(name)) + 2;
      return told.mid(at, told.indexOf('"', at) - at).toDouble();
    };
    QVERIFY2(value("yMax") - value("yMin") > value("xMax") - value("xMin"), told);
    QVERIFY2(value("xMax") < 60, told);
  }

  void headersAreOnTheSheetsOfEveryPage() {
    NSPrintInfo info = a4();
    info.setDocumentPages(DocumentPages::All);
    info.setPrintsHeaderAndFooter(true);
    QVERIFY(print(viewOf({{200, 100}, {200, 100}}, 0), info).ok());
    QCOMPARE(words().count("A book.pdf"), qsizetype(2));
  }

  void pagesBehindThoseThatAreKnownAreRefused() {
    PrintSource source;
    source.shown.size = {100, 100};
    for (int i = 0; i < 3; ++i) source.pages << PrintPage{{100, 100}, {}};
    source.pageCount = 5;
    NSPrintInfo info = a4();
    QVERIFY(JobPages::of(source, info).ok());
    const auto isRefused = [&] {
      const auto job = JobPages::of(source, info);
      return !job && job.error().kind == ErrorKind::Limit &&
             job.error().message == "the document has 5 pages, and only the first 3 of them can be printed";
    };
    info.setDocumentPages(DocumentPages::All);
    QVERIFY(isRefused());
    info.setDocumentPageRange(2, 4);
    QVERIFY(isRefused());
    info.setDocumentPageRange(2, 3);
    QCOMPARE(JobPages::of(source, info)->sheetCount(), 2);
    info.setDocumentPages(DocumentPages::All);
    source.pageCount = 3;
    QCOMPARE(JobPages::of(source, info)->sheetCount(), 3);
  }

  void moreSheetsThanAJobMayHaveAreRefused() {
    PrintSource source;
    source.shown.size = {100, 100};
    for (int i = 0; i <= limits::maximumSheets; ++i) source.pages << PrintPage{{100, 100}, {}};
    NSPrintInfo info = a4();
    QCOMPARE(JobPages::of(source, info)->sheetCount(), 1);
    info.setDocumentPages(DocumentPages::All);
    const auto all = JobPages::of(source, info);
    QVERIFY(!all.ok());
    QCOMPARE(all.error().kind, ErrorKind::Limit);
    info.setDocumentPageRange(2, limits::maximumSheets + 1);
    const auto some = JobPages::of(source, info);
    QVERIFY(some.ok());
    QCOMPARE(some->sheetCount(), limits::maximumSheets);
    QCOMPARE(some->pages().first().number, 1);
    QCOMPARE(some->placeOf(limits::maximumSheets - 1).page, qsizetype(limits::maximumSheets - 1));
  }
};

NORVEX_TEST(DocumentPagesTest)
#include "document_pages_test.moc"
