// `norvex convert` of documents with several pages: which are written where, and that none is left out
// without a word.
#include <QImage>
#include <QJsonObject>

#include "cli/arguments/page_list.h"
#include "cli/cli_files.h"
#include "kit/test_main.h"
#include "protocol/shared_errors.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

/// Three pages; the last is the smallest.
MemoryPicture threePages() {
  MemoryPicture picture;
  picture.facts.pageCount = 3;
  picture.facts.pageBounds = {QRectF(0, 0, 30, 20), QRectF(0, 0, 20, 10), QRectF(0, 0, 10, 5)};
  return picture;
}

class Document : public CommandLine {
 public:
  Document() { service.setPicture(threePages()); }
  const QString pdf = write("a.pdf", emptyPdf({30, 20}));

  int convert(const QStringList& arguments) { return run(QStringList{"convert", pdf} + arguments); }
  [[nodiscard]] QSize sizeOf(const QString& name) const { return QImage::fromData(contents(name)).size(); }
};

const QString kOnlyFirst =
    "only page 1 of 3 is in the result (--page N chooses another one, --pages all makes a file of each)";

}  // namespace

class ConvertPagesTest : public QObject {
  Q_OBJECT
 private slots:
  void pagesThatAreLeftOutAreTold_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("told");
    for (const char* format : {"svg", "png", "tiff", "eps", "epsi", "jpeg", "gif", "webp", "svgz"})
      QTest::newRow(format) << QStringList{"--format", format} << true;
    QTest::newRow("pdf") << QStringList{"--format", "pdf"} << false;
    QTest::newRow("a cut of the pdf") << QStringList{"--format", "pdf", "--crop", "0,0,5,5"} << true;
    QTest::newRow("one is chosen") << QStringList{"--format", "png", "--page", "1"} << false;
  }
  void pagesThatAreLeftOutAreTold() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, told);
    Document document;
    QCOMPARE(document.convert(QStringList{"-o", document.path("b")} + arguments), 0);
    QCOMPARE(document.console.messages.contains(kOnlyFirst), told);
    QCOMPARE(document.convert(QStringList{"-o", document.path("c"), "--json"} + arguments), 0);
    QCOMPARE(jsonOf(document).at(0)["warnings"].toArray().contains(kOnlyFirst), told);
  }

  void eachPageBecomesAFileWithItsNumber() {
    Document document;
    QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", "all"}), 0);
    QCOMPARE(document.console.messages, QString());
    QCOMPARE(document.entries(), QStringList({"a.pdf", "b-1.png", "b-2.png", "b-3.png"}));
    QCOMPARE(document.sizeOf("b-1.png"), QSize(30, 20));
    QCOMPARE(document.sizeOf("b-2.png"), QSize(20, 10));
    QCOMPARE(document.sizeOf("b-3.png"), QSize(10, 5));
    QCOMPARE(document.service.openCount(), 1);
  }

  void pagesAreChosenByNumbersAndRanges() {
    Document document;
    QVERIFY(QDir(document.path(".")).mkdir("to"));
    QCOMPARE(
        document.convert({"--to", document.path("to"), "--format", "svg", "--pages", "3,1,2-,3", "--json"}),
        0);
    const QJsonArray all = jsonOf(document);
    QCOMPARE(all.size(), 3);
    for (qsizetype i = 0; i < all.size(); ++i) {
      const int page = QList{3, 1, 2}[i];
      QCOMPARE(all[i]["page"].toInt(), page);
      QCOMPARE(all[i]["output"].toString(), document.path(QString("to/a-%1.svg").arg(page)));
      QCOMPARE(all[i]["file"].toString(), document.pdf);
    }
  }

  void aPageThatIsNotThereIsToldBeforeAnyIsWritten() {
    Document document;
    for (const QString& pages : {QString("2,4"), QString("2-4"), QString("4-")}) {
      QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", pages}), 3);
      QCOMPARE(document.console.messages,
               QString("norvex: %1: there is no page 4, the document has 3\n").arg(document.pdf));
    }
    QCOMPARE(document.entries(), QStringList{"a.pdf"});
  }

  void noPageIsWrittenWhereOneWouldOverwrite() {
    Document document;
    const QString there = document.write("b-3.png", "mine");
    QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", "all"}), 4);
    QCOMPARE(document.console.messages,
             QString("norvex: %1: %2 exists already (--force overwrites it)\n").arg(document.pdf, there));
    QCOMPARE(document.entries(), QStringList({"a.pdf", "b-3.png"}));
    QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", "all", "--force"}), 0);
    QCOMPARE(document.sizeOf("b-3.png"), QSize(10, 5));
  }

  void aPictureWithoutPagesHasOne() {
    CommandLine line;
    const QString eps = line.write("a.eps", kEps);
    QCOMPARE(line.run({"convert", eps, "-o", line.path("b.png"), "--pages", "all"}), 0);
    QCOMPARE(line.entries(), QStringList({"a.eps", "b-1.png"}));
  }

  void aPageThatFailsDoesNotHoldUpTheOthers() {
    Document document;
    document.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Render, {ErrorKind::NotParsable, "it cannot be drawn"}, 1);
    });
    QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", "all"}), 1);
    QCOMPARE(document.console.messages, QString("norvex: %1: it cannot be drawn\n").arg(document.pdf));
    QCOMPARE(document.entries(), QStringList({"a.pdf", "b-2.png", "b-3.png"}));
  }

  void ofSeveralPagesTheOneThatIsPrintedIsTold() {
    Document document;
    const QString only = "only page 1 of 3 is printed (--page N chooses another one)";
    // Memory knows no sheets of paper, so that nothing is printed in the end.
    (void)document.run({"print", document.pdf, "-o", document.path("p.pdf")});
    QVERIFY2(document.console.messages.contains(only), qPrintable(document.console.messages));
    (void)document.run({"print", document.pdf, "-o", document.path("p.pdf"), "--page", "2"});
    QVERIFY(!document.console.messages.contains(only));
    QCOMPARE(document.run({"print", document.pdf, "-o", document.path("p.pdf"), "--page", "4"}), 3);
    QCOMPARE(document.console.messages,
             QString("norvex: %1: there is no page 4, the document has 3\n").arg(document.pdf));
  }

  void wrongListsAreTold() {
    Document document;
    for (const char* list : {"0", "1-0", "3-2", "a", "1,,2", "-3", "1;2", "ALL", "99999999"}) {
      QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", list}), 2);
      QVERIFY2(document.console.messages.contains("--pages is all, or numbers and ranges from 1: 1,3-5,8-"),
               list);
    }
    QCOMPARE(document.convert({"-o", document.path("b.png"), "--pages", "all", "--page", "1"}), 2);
    QCOMPARE(document.convert({"-o", "-", "--format", "png", "--pages", "all"}), 2);
    QCOMPARE(document.convert({"--to", document.path("."), "--format", "png", "--pages", "all", "--state",
                               document.path("state")}),
             2);
    QVERIFY(document.console.messages.contains("--pages does not go with --state"));
    QCOMPARE(document.entries(), QStringList{"a.pdf"});
  }

  void theNumberStandsBeforeTheExtension() {
    QCOMPARE(outputOfPage("d.x/a.b.png", 3), "d.x/a.b-3.png");
    QCOMPARE(outputOfPage("d.x/a", 12), "d.x/a-12");
    QCOMPARE(outputOfPage(".a", 1), ".a-1");
  }

  void whatIsDamagedIsToldByEveryCommandThatDrawsIt() {
    MemoryPicture picture = threePages();
    picture.facts.warnings = {damagedFile()};
    Document document;
    document.service.setPicture(picture);
    const QString told = QString("norvex: %1: %2").arg(document.pdf, damagedFile());
    QCOMPARE(document.run({"thumbnail", document.pdf, document.path("t.png")}), 0);
    QCOMPARE(document.console.messages, told + '\n');
    (void)document.run({"print", document.pdf, "-o", document.path("p.pdf")});  // memory knows no sheets
    QVERIFY2(document.console.messages.startsWith(told), qPrintable(document.console.messages));
    QCOMPARE(document.convert({"-o", document.path("c.png"), "--page", "1"}), 0);
    QCOMPARE(document.console.messages, told + '\n');
  }
};

NORVEX_TEST(ConvertPagesTest)
#include "convert_pages_test.moc"
