// Which pixels are asked for, and in which pieces.
#include "picture/rendering/render_rects.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

const RenderRectLimits kLimits{.wholePixels = 10'000, .visiblePixels = 90'000, .tile = 100};
const QRect kBox(-30, -20, 2000, 1000);

QRegion covered(const QList<QRect>& pieces) {
  QRegion region;
  for (const QRect& piece : pieces) region += piece;
  return region;
}

}  // namespace

class RenderRectsTest : public QObject {
  Q_OBJECT
 private slots:
  void aSmallPictureIsWantedWhole() {
    QCOMPARE(wantedRect({10, 10, 5, 5}, {0, 0, 100, 100}, kLimits, false), QRect(0, 0, 100, 100));
    QCOMPARE(wantedRect({10, 10, 5, 5}, {0, 0, 101, 100}, kLimits, false), QRect(0, 0, 100, 100));  // a tile
    QCOMPARE(wantedRect({99, 10, 2, 5}, {0, 0, 101, 100}, kLimits, false), QRect(0, 0, 101, 100));  // two
  }

  void theTilesThatAreSeenAreWanted() {
    QCOMPARE(wantedRect({100, 200, 100, 100}, kBox, kLimits, false), QRect(100, 200, 100, 100));
    QCOMPARE(wantedRect({99, 200, 102, 1}, kBox, kLimits, false), QRect(0, 200, 300, 100));
    QCOMPARE(wantedRect({-1, -1, 2, 2}, kBox, kLimits, false), QRect(-30, -20, 130, 120));  // not beyond it
  }

  void theMarginIsATile() {
    QCOMPARE(wantedRect({300, 300, 100, 100}, kBox, kLimits, true), QRect(200, 200, 300, 300));
  }

  void aViewThatIsTooLargeIsWantedAroundItsMiddle() {
    QCOMPARE(wantedRect({0, 0, 300, 300}, kBox, kLimits, false), QRect(0, 0, 300, 300));
    QCOMPARE(wantedRect({0, 0, 1001, 501}, kBox, kLimits, false), QRect(300, 100, 400, 300));
  }

  void fewDistantRectanglesStayApart() {
    const QRegion corners = QRegion(0, 0, 10, 10) + QRegion(90, 90, 10, 10);
    QCOMPARE(piecesOf(corners), QList<QRect>({{0, 0, 10, 10}, {90, 90, 10, 10}}));
  }

  void rectanglesThatFillMoreThanHalfBecomeOne() {
    const QRegion half = QRegion(0, 0, 10, 10) + QRegion(10, 10, 10, 10);  // 200 of 400
    QCOMPARE(piecesOf(half).size(), 2);
    const QRegion more = half + QRegion(10, 0, 1, 10);
    QCOMPARE(piecesOf(more), QList<QRect>({{0, 0, 20, 20}}));
  }

  void moreThanFourRectanglesBecomeOne() {
    QRegion dots;
    for (int i = 0; i < 4; ++i) dots += QRect(100 * i, 100 * i, 1, 1);
    QCOMPARE(piecesOf(dots).size(), 4);
    dots += QRect(400, 400, 1, 1);
    QCOMPARE(piecesOf(dots), QList<QRect>({{0, 0, 401, 401}}));
  }

  void noPieceIsLongerThanItMayBe() {
    const QRect rect(-7, 3, 4097, 8192);
    const QList<QRect> pieces = piecesOf(rect);
    QCOMPARE(pieces,
             QList<QRect>(
                 {{-7, 3, 4096, 4096}, {4089, 3, 1, 4096}, {-7, 4099, 4096, 4096}, {4089, 4099, 1, 4096}}));
    QCOMPARE(covered(pieces), QRegion(rect));
  }

  void ofNothingThereIsNoPiece() { QVERIFY(piecesOf({}).isEmpty()); }
};

NORVEX_TEST(RenderRectsTest)
#include "render_rects_test.moc"
