#include "print/print_info.h"

#include <QCborMap>

#include "kit/test_main.h"
#include "print/print_info_archive.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

NSPrintInfo unusual() {
  NSPrintInfo info;
  info.setOrientation(NSPaperOrientation::Landscape);
  info.setLeftMargin(1.5);
  info.setRightMargin(2);
  info.setTopMargin(3);
  info.setBottomMargin(4);
  info.setVerticallyCentered(false);
  info.setHorizontallyCentered(true);
  info.setVerticalPagination(NSPrintingPaginationMode::Fit);
  info.setHorizontalPagination(NSPrintingPaginationMode::Clip);
  info.setPrintsHeaderAndFooter(true);
  info.setPaper(*paperNamed("Legal"));
  info.setScalingFactor(0.5);
  info.setPrinterName("Office");
  return info;
}

}  // namespace

class PrintInfoTest : public QObject {
  Q_OBJECT
 private slots:
  void thePlatformsValuesAreItsNumbers() {
    QCOMPARE(int(NSPaperOrientation::Landscape), 1);
    QCOMPARE(int(NSPrintingPaginationMode::Automatic), 0);
    QCOMPARE(QString(NSPrintHeaderAndFooter), QString("NSPrintHeaderAndFooter"));
  }

  void landscapePaperLies() {
    NSPrintInfo info;
    info.setPaper(*paperNamed("a4"));
    QCOMPARE(qRound(info.paperSize().width()), 595);
    QCOMPARE(qRound(info.paperSize().height()), 842);
    info.setOrientation(NSPaperOrientation::Landscape);
    QCOMPARE(qRound(info.paperSize().width()), 842);
    QCOMPARE(qRound(info.paperSize().height()), 595);
  }

  void entriesThatAreGivenWin() {
    NSPrintInfo info;
    info.setScalingFactor(0.5);
    info.setCopies(3);
    info.addEntries({{NSPrintScalingFactor, 2.0}, {"Mine", "kept"}});
    QCOMPARE(info.scalingFactor(), 2.0);
    QCOMPARE(info.copies(), 3);
    QCOMPARE(info.dictionary().value("Mine").toString(), QString("kept"));
  }

  void nonsenseInTheDictionaryReadsAsTheDefault() {
    NSPrintInfo info;
    info.addEntries({{NSPrintScalingFactor, -1.0},
                     {NSPrintCopies, 1e9},
                     {NSPrintOrientation, 7},
                     {NSPrintLeftMargin, "wide"},
                     {NSPrintVerticallyCentered, 3},
                     {NSPrintPaperName, "no paper"},
                     {NSPrintHorizontalPagination, 1.5},
                     {NSPrintTopMargin, std::numeric_limits<double>::quiet_NaN()}});
    QCOMPARE(info.scalingFactor(), 1.0);
    QCOMPARE(info.copies(), 1);
    QCOMPARE(info.orientation(), NSPaperOrientation::Portrait);
    QCOMPARE(info.leftMargin(), 72.0);
    QCOMPARE(info.topMargin(), 90.0);
    QVERIFY(info.isVerticallyCentered());
    QCOMPARE(info.paper().name, localePaper().name);
    QCOMPARE(info.horizontalPagination(), NSPrintingPaginationMode::Automatic);
  }

  void aRangeOfPagesIsTheJobs() {
    NSPrintInfo info;
    QVERIFY(info.printsAllPages());
    info.setPageRange(2, 3);
    QCOMPARE(info.firstPage(), 2);
    QCOMPARE(info.lastPage(), 3);
    info.setPrintsAllPages();
    QCOMPARE(info.firstPage(), 1);
    QVERIFY(info.lastPage() > 1000);
  }

  void anArchiveGivesTheSameSettings() {
    const std::optional<NSPrintInfo> read = unarchivedPrintInfo(archivedPrintInfo(unusual()));
    QVERIFY(read);
    QCOMPARE(read->orientation(), NSPaperOrientation::Landscape);
    QCOMPARE(read->margins(), QMarginsF(1.5, 3, 2, 4));
    QVERIFY(!read->isVerticallyCentered() && read->isHorizontallyCentered() && read->printsHeaderAndFooter());
    QCOMPARE(read->verticalPagination(), NSPrintingPaginationMode::Fit);
    QCOMPARE(read->horizontalPagination(), NSPrintingPaginationMode::Clip);
    QCOMPARE(read->paper().name, QString("Legal"));
    QCOMPARE(read->scalingFactor(), 0.5);
    QCOMPARE(read->printerName(), QString("Office"));
    QCOMPARE(archivedPrintInfo(*read), archivedPrintInfo(unusual()));
  }

  void whatBelongsToOneJobIsNotArchived() {
    NSPrintInfo info = unusual();
    info.setCopies(9);
    info.setPageRange(2, 2);
    info.setJobSavingPath("/tmp/a.pdf");
    const std::optional<NSPrintInfo> read = unarchivedPrintInfo(archivedPrintInfo(info));
    QCOMPARE(read->copies(), 1);
    QVERIFY(read->printsAllPages() && read->jobSavingPath().isEmpty());
  }

  void anUnreadableArchiveIsNothing_data() {
    QTest::addColumn<QByteArray>("archive");
    const QByteArray good = archivedPrintInfo(unusual());
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("PrintInfo");
    QTest::newRow("cut") << good.chopped(3);
    QTest::newRow("longer") << good + "x";
    QTest::newRow("another version")
        << QCborMap{{"version", 2}, {"settings", QCborMap()}}.toCborValue().toCbor();
    QTest::newRow("no settings") << QCborMap{{"version", 1}}.toCborValue().toCbor();
    QTest::newRow("a wrong type")
        << QCborMap{{"version", 1}, {"settings", QCborMap{{"NSLeftMargin", "wide"}}}}.toCborValue().toCbor();
    QTest::newRow("a list") << QCborValue(QCborArray{1, 2}).toCbor();
    QTest::newRow("huge") << QByteArray(1 << 20, '\xa0');
  }
  void anUnreadableArchiveIsNothing() {
    QFETCH(QByteArray, archive);
    QVERIFY(!unarchivedPrintInfo(archive));
  }

  void anArchiveIsAsLongAsSettingsAre() {
    const auto isRead = [](qsizetype letters, qsizetype more = 0) {
      const QCborMap settings{{NSPrintPaperName, QString(letters, u'x')}};
      const QCborMap whole{{"version", 1}, {"settings", settings}, {"more", QByteArray(more, ' ')}};
      return unarchivedPrintInfo(whole.toCborValue().toCbor()).has_value();
    };
    QVERIFY(isRead(limits::maximumSettingsText));
    QVERIFY(!isRead(limits::maximumSettingsText + 1));
    QVERIFY(isRead(1, limits::maximumSettingsBytes / 2));
    QVERIFY(!isRead(1, limits::maximumSettingsBytes));
  }

  void pageNumbersHaveAnEnd() {
    NSPrintInfo info;
    info.setPageRange(limits::maximumPrintPages, limits::maximumPrintPages);
    QCOMPARE(info.firstPage(), limits::maximumPrintPages);
    info.setPageRange(limits::maximumPrintPages + 1, limits::maximumPrintPages + 1);
    QCOMPARE(info.firstPage(), 1);
    QCOMPARE(info.lastPage(), limits::maximumPrintPages);
  }

  void everyCutArchiveIsNothing() {
    const QByteArray good = archivedPrintInfo(unusual());
    for (qsizetype i = 0; i < good.size(); ++i) QVERIFY(!unarchivedPrintInfo(good.left(i)));
  }

  void anEntryOfALaterProgramIsPassedOver() {
    const QCborMap settings{{"NSLeftMargin", 5}, {"Later", QCborArray{1}}};
    const auto read =
        unarchivedPrintInfo(QCborMap{{"version", 1}, {"settings", settings}}.toCborValue().toCbor());
    QVERIFY(read);
    QCOMPARE(read->leftMargin(), 5.0);
  }

  void paperHasNamesAndKeywords() {
    QCOMPARE(paperNamed("A4")->keyword, QString("iso_a4_210x297mm"));
    QCOMPARE(paperNamed("ISO_A4_210x297mm")->name, QString("A4"));
    QCOMPARE(paperNamed("letter")->size, QSizeF(612, 792));
    QVERIFY(!paperNamed("nothing") && !paperNamed("") && !paperNamed("A4 extra"));
    QCOMPARE(paperNamed("custom_mine_100x200mm")->size.toSize(), QSize(283, 567));
    QCOMPARE(paperOfSize({842, 595}).name, QString("A4"));
    QVERIFY(paperNamed(paperOfSize({300, 400}).keyword));
    QVERIFY(!localePaper().keyword.isEmpty());
  }
};

NORVEX_TEST(PrintInfoTest)
#include "print_info_test.moc"
