#include "print/pagination.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// A4 without margins, 100 %.
NSPrintInfo a4(NSPaperOrientation orientation) {
  NSPrintInfo info;
  info.setPaper(*paperNamed("A4"));
  info.setOrientation(orientation);
  for (const char* margin : {NSPrintLeftMargin, NSPrintRightMargin, NSPrintTopMargin, NSPrintBottomMargin})
    info.set(margin, 0.0);
  return info;
}

constexpr double kShort = 210 * 72 / 25.4, kLong = 297 * 72 / 25.4;
const QSizeF kLarge(3000, 2000);

bool near(double a, double b) {
  return std::abs(a - b) < 0.001;
}

}  // namespace

class PaginationTest : public QObject {
  Q_OBJECT
 private slots:
  void aLargePictureTakesAsManyPagesAsItNeeds_data() {
    QTest::addColumn<int>("orientation");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::newRow("portrait at 100 %") << 0 << 1.0 << 6 << 3;
    QTest::newRow("landscape at 100 %") << 1 << 1.0 << 4 << 4;
    QTest::newRow("portrait at 50 %") << 0 << 0.5 << 3 << 2;
    QTest::newRow("landscape at 50 %") << 1 << 0.5 << 2 << 2;
  }
  void aLargePictureTakesAsManyPagesAsItNeeds() {
    QFETCH(int, orientation);
    QFETCH(double, scale);
    QFETCH(int, columns);
    QFETCH(int, rows);
    NSPrintInfo info = a4(NSPaperOrientation(orientation));
    info.setScalingFactor(scale);
    const Result<Pagination> pages = paginate(kLarge, info);
    QVERIFY(pages.ok());
    QCOMPARE(pages->columns, columns);
    QCOMPARE(pages->rows, rows);
    QCOMPARE(pages->tiles.size(), columns * rows);
    // Every point of the picture is on exactly one page, at the scale, inside the paper.
    double area = 0;
    for (const PageTile& tile : pages->tiles) {
      area += tile.source.width() * tile.source.height();
      QVERIFY(near(tile.target.width(), tile.source.width() * scale) &&
              near(tile.target.height(), tile.source.height() * scale));
      QVERIFY(QRectF(QPointF(0, 0), pages->sheet).adjusted(-0.01, -0.01, 0.01, 0.01).contains(tile.target));
      QVERIFY(QRectF(QPointF(0, 0), kLarge).adjusted(-0.01, -0.01, 0.01, 0.01).contains(tile.source));
      for (const PageTile& other : pages->tiles) {
        const QRectF common = tile.source.intersected(other.source);
        QVERIFY(&tile == &other || common.width() < 0.001 || common.height() < 0.001);
      }
    }
    QVERIFY(near(area / (kLarge.width() * kLarge.height()), 1));
  }

  void theFirstPageIsTheUpperLeftCorner() {
    const Result<Pagination> pages = paginate(kLarge, a4(NSPaperOrientation::Portrait));
    QVERIFY(near(pages->tiles.first().source.left(), 0) && near(pages->tiles.first().source.bottom(), 2000));
    QVERIFY(near(pages->tiles.first().source.width(), kShort) &&
            near(pages->tiles.first().source.height(), kLong));
    QVERIFY(near(pages->tiles.at(1).source.left(), kShort));
    // Pages that meet begin at the paper's edges, the last ones as well.
    const PageTile& last = pages->tiles.last();
    QVERIFY(near(last.target.left(), 0) && near(last.target.bottom(), kLong));
    QVERIFY(near(last.target.width(), 3000 - 5 * kShort) && near(last.target.height(), 2000 - 2 * kLong));
  }

  void fitMakesItOnePage_data() {
    QTest::addColumn<int>("orientation");
    QTest::newRow("portrait") << 0;
    QTest::newRow("landscape") << 1;
  }
  void fitMakesItOnePage() {
    QFETCH(int, orientation);
    NSPrintInfo info = a4(NSPaperOrientation(orientation));
    info.setHorizontalPagination(NSPrintingPaginationMode::Fit);
    info.setVerticalPagination(NSPrintingPaginationMode::Fit);
    const Result<Pagination> pages = paginate(kLarge, info);
    QCOMPARE(pages->tiles.size(), 1);
    const double width = orientation ? kLong : kShort, height = orientation ? kShort : kLong;
    QVERIFY(near(pages->scale, std::min(width / 3000, height / 2000)));
    const QRectF target = pages->tiles.first().target;
    QVERIFY(near(target.center().x(), width / 2) && near(target.center().y(), height / 2));
  }

  void fitNeverEnlarges() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setHorizontalPagination(NSPrintingPaginationMode::Fit);
    info.setVerticalPagination(NSPrintingPaginationMode::Fit);
    QCOMPARE(paginate({10, 10}, info)->scale, 1.0);
  }

  void fitInOneDirectionLeavesTheOtherToItsPages() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setHorizontalPagination(NSPrintingPaginationMode::Fit);
    const Result<Pagination> pages = paginate({1000, 3000}, info);
    QCOMPARE(pages->columns, 1);
    QVERIFY(near(pages->scale, kShort / 1000));
    QCOMPARE(pages->rows, 3);
  }

  void clipLeavesOutWhatIsBeyondTheFirstPage() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setHorizontalPagination(NSPrintingPaginationMode::Clip);
    info.setVerticalPagination(NSPrintingPaginationMode::Clip);
    const Result<Pagination> pages = paginate(kLarge, info);
    QCOMPARE(pages->tiles.size(), 1);
    const PageTile& tile = pages->tiles.first();
    QVERIFY(near(tile.source.left(), 0) && near(tile.source.bottom(), 2000));
    QVERIFY(near(tile.source.width(), kShort) && near(tile.source.height(), kLong));
  }

  void aSmallPictureIsCentred() {
    const Result<Pagination> pages = paginate({10, 10}, a4(NSPaperOrientation::Landscape));
    QCOMPARE(pages->tiles.size(), 1);
    const PageTile& tile = pages->tiles.first();
    QCOMPARE(tile.source, QRectF(0, 0, 10, 10));
    QVERIFY(near(tile.target.left(), (kLong - 10) / 2) && near(tile.target.top(), (kShort - 10) / 2));
    QVERIFY(near(tile.target.width(), 10) && near(tile.target.height(), 10));
  }

  void withoutCentringItBeginsAtTheUpperLeft() {
    NSPrintInfo info = a4(NSPaperOrientation::Landscape);
    info.setHorizontallyCentered(false);
    info.setVerticallyCentered(false);
    info.setLeftMargin(20);
    info.setTopMargin(30);
    const QRectF target = paginate({10, 10}, info)->tiles.first().target;
    QVERIFY(near(target.left(), 20) && near(target.bottom(), kShort - 30));
  }

  void itIsCentredBetweenTheMargins() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setLeftMargin(100);
    info.setBottomMargin(200);
    const QRectF target = paginate({10, 10}, info)->tiles.first().target;
    QVERIFY(near(target.center().x(), 100 + (kShort - 100) / 2) &&
            near(target.center().y(), 200 + (kLong - 200) / 2));
  }

  void aPictureOfThePapersSizeIsOnePage() {
    QCOMPARE(paginate({kShort, kLong}, a4(NSPaperOrientation::Portrait))->tiles.size(), 1);
    // As it comes rounded to whole numbers of other programs.
    QCOMPARE(paginate({595.28, 841.89}, a4(NSPaperOrientation::Portrait))->tiles.size(), 1);
    QCOMPARE(paginate({595.28 * 2, 841.89}, a4(NSPaperOrientation::Portrait))->tiles.size(), 2);
  }

  void headerAndFooterKeepARoomOfTheirOwn() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    const Result<Pagination> pages = paginate(kLarge, info, true, true);
    QVERIFY(pages->header && pages->footer);
    for (const PageTile& tile : pages->tiles)
      QVERIFY(!tile.target.intersects(*pages->header) && !tile.target.intersects(*pages->footer));
    const QRectF sheet(QPointF(0, 0), pages->sheet);
    QVERIFY(sheet.contains(*pages->header) && sheet.contains(*pages->footer));
    QVERIFY(pages->header->top() > pages->imageable.bottom() - 0.001 &&
            pages->footer->bottom() < pages->imageable.top() + 0.001);
    // Margins that are large enough hold them already.
    info.setTopMargin(90);
    info.setBottomMargin(90);
    QCOMPARE(paginate(kLarge, info, true, true)->imageable, paginate(kLarge, info)->imageable);
    QVERIFY(!paginate(kLarge, info)->header && !paginate(kLarge, info)->footer);
  }

  void withoutAPictureThereIsOneBlankPage() {
    const Result<Pagination> pages = paginate({}, a4(NSPaperOrientation::Portrait));
    QCOMPARE(pages->tiles.size(), 1);
    QVERIFY(pages->tiles.first().target.isEmpty());
  }

  void marginsWithoutRoomAreRefused() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setLeftMargin(300);
    info.setRightMargin(300);
    const Result<Pagination> pages = paginate(kLarge, info);
    QVERIFY(!pages.ok());
    QCOMPARE(pages.error().message, QString("the margins leave no room on the paper"));
  }

  void tooManySheetsAreRefused() {
    NSPrintInfo info = a4(NSPaperOrientation::Portrait);
    info.setScalingFactor(100);
    const Result<Pagination> pages = paginate({1e7, 1e7}, info);
    QVERIFY(!pages.ok());
    QCOMPARE(pages.error().message, QString("the picture would take more than 2000 sheets of paper"));
    const auto sheets = [](double columns, double rows) {
      const auto made = paginate({columns * kShort, rows * kLong}, a4(NSPaperOrientation::Portrait));
      return made ? made->tiles.size() : 0;
    };
    QCOMPARE(sheets(50, 40), 2000);
    QCOMPARE(sheets(3, 667), 0);  // 2001
  }
};

NORVEX_TEST(PaginationTest)
#include "pagination_test.moc"
