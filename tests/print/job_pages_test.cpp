// The pages of a job, and the sheets that they take.
#include "print/job_pages.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Three small pages, of which the second is shown.
PrintSource source() {
  PrintSource source;
  source.pages = {{QSizeF(10, 10), {}}, {QSizeF(20, 20), {}}, {QSizeF(30, 30), {}}};
  source.shown = source.pages.at(1);
  source.shownPage = 1;
  source.pageCount = 3;
  return source;
}

QList<int> numbersOf(const PrintSource& source, const NSPrintInfo& info) {
  QList<int> numbers;
  if (const auto job = JobPages::of(source, info))
    for (const JobPage& page : job->pages()) numbers << page.number;
  return numbers;
}

}  // namespace

class JobPagesTest : public QObject {
  Q_OBJECT
 private slots:
  void theShownPageAllOrARangeIsPrinted() {
    NSPrintInfo info;
    info.setDocumentPages(DocumentPages::Shown);
    QCOMPARE(numbersOf(source(), info), QList<int>{1});
    info.setDocumentPages(DocumentPages::All);
    QCOMPARE(numbersOf(source(), info), QList<int>({0, 1, 2}));
    info.setDocumentPages(DocumentPages::Range);
    info.setDocumentPageRange(2, 9);
    QCOMPARE(numbersOf(source(), info), QList<int>({1, 2}));
    PrintSource single = source();
    single.pages.clear();
    QCOMPARE(numbersOf(single, info), QList<int>{-1});
  }

  void aRangeBehindTheDocumentIsAnError() {
    NSPrintInfo info;
    info.setDocumentPages(DocumentPages::Range);
    info.setDocumentPageRange(4, 5);
    const auto none = JobPages::of(source(), info);
    QVERIFY(!none);
    QCOMPARE(none.error().message, "there are no such pages: the document has 3");
    PrintSource more = source();
    more.pageCount = 5;
    const auto unknown = JobPages::of(more, info);
    QVERIFY(!unknown);
    QCOMPARE(unknown.error().message,
             "the document has 5 pages, and only the first 3 of them can be printed");
  }

  void sheetsFollowTheirPages() {
    NSPrintInfo info;
    info.setDocumentPages(DocumentPages::All);
    const auto job = JobPages::of(source(), info);
    QVERIFY(job.ok());
    QCOMPARE(job->sheetCount(), 3);
    for (int sheet = 0; sheet < 3; ++sheet) {
      QCOMPARE(job->placeOf(sheet).page, sheet);
      QCOMPARE(job->placeOf(sheet).tile, 0);
    }
  }
};

NORVEX_TEST(JobPagesTest)
#include "job_pages_test.moc"
