#include "worker/metafile/bitmap_runs.h"

#include <QPoint>

#include <limits>

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QList<QPoint> placesTold(const QByteArray& packed, int bits = 8, QSize size = {4, 2}) {
  QList<QPoint> places;
  readRuns(packed, bits, size, [&](int x, int y, int) { places << QPoint(x, y); });
  return places;
}

const QList<QPoint> kFirstRow{{0, 0}, {1, 0}, {2, 0}, {3, 0}};
const QByteArray kEndOfLine("\0\0", 2);

}  // namespace

class BitmapRunsTest : public QObject {
  Q_OBJECT
 private slots:
  void aLineWithoutEndNeverComesBackToItsBeginning_data() {
    QTest::addColumn<QByteArray>("step");
    QTest::newRow("runs") << QByteArray::fromHex("ff01");
    QTest::newRow("moves to the right") << QByteArray::fromHex("0002ff00");
  }
  void aLineWithoutEndNeverComesBackToItsBeginning() {
    QFETCH(QByteArray, step);
    // More than an int counts, and as much again: a number that wrapped around would be a column once more.
    const qsizetype steps = 2 * (qsizetype(std::numeric_limits<int>::max()) / 255 + 1) + 4;
    for (const int bits : {4, 8})
      QCOMPARE(placesTold(QByteArray::fromHex("0401") + step.repeated(steps), bits), kFirstRow);
  }

  void whatFollowsBeyondTheEdgeIsReadOn() {
    for (const char* beyond : {"ff01", "000400010203"}) {
      const QByteArray runs = QByteArray::fromHex("0401") + QByteArray::fromHex(beyond) + kEndOfLine;
      QCOMPARE(placesTold(runs + QByteArray::fromHex("0201")), kFirstRow + (QList<QPoint>{{0, 1}, {1, 1}}));
    }
  }

  void aRunOfFourBitsTakesTurnsBeyondTheEdgeToo() {
    QList<int> colours;
    readRuns(QByteArray::fromHex("0912") + kEndOfLine + QByteArray::fromHex("0334"), 4, {4, 2},
             [&](int, int, int colour) { colours << colour; });
    QCOMPARE(colours, (QList<int>{1, 2, 1, 2, 3, 4, 3}));
  }

  // Pixels one by one fill whole words, whatever they are.
  void whatFollowsAListBeginsAtTheNextWord() {
    const auto colours = [](const char* list, int bits) {
      QList<int> told;
      readRuns(QByteArray::fromHex(list) + QByteArray::fromHex("0177"), bits, {9, 1},
               [&](int, int, int colour) { told << colour; });
      return told;
    };
    QCOMPARE(colours("00041234", 4), (QList<int>{1, 2, 3, 4, 7}));
    QCOMPARE(colours("0005123450ff", 4), (QList<int>{1, 2, 3, 4, 5, 7}));
    QCOMPARE(colours("0003010203ff", 8), (QList<int>{1, 2, 3, 0x77}));
    QCOMPARE(colours("000401020304", 8), (QList<int>{1, 2, 3, 4, 0x77}));
  }

  void aMoveAtTheEndPaintsNothing() {
    QVERIFY(placesTold(QByteArray::fromHex("00020101")).isEmpty());
    QCOMPARE(placesTold(QByteArray::fromHex("000201010105")), (QList<QPoint>{{1, 1}}));
  }
  void aMoveAboveTheTopEndsIt() { QVERIFY(placesTold(QByteArray::fromHex("000200ff0401")).isEmpty()); }
};

NORVEX_TEST(BitmapRunsTest)
#include "bitmap_runs_test.moc"
