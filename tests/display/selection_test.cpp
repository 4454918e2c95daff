// The two drags, clicks, keys and everything else that changes what is selected.
#include "display/selection.h"

#include <QRandomGenerator>

#include <limits>

#include "display/view_fixture.h"
#include "kit/test_main.h"

using namespace norvex;
using norvex::kit::ViewFixture;

namespace {

/// A view with the rectangle (-50, -20, 40, 30), and the calls so far forgotten.
struct WithRectangle : ViewFixture {
  WithRectangle() {
    drag({{-50, -20}});
    drag({{-10, 10}});
    host.calls.clear();
  }
};

}  // namespace

class SelectionTest : public QObject {
  Q_OBJECT
 private slots:
  void theFirstDragPlacesTheStartPointWhereItEnds() {
    ViewFixture f;
    f.drag({{1, 2}, {3, 4}, {5, 6}});
    QCOMPARE(f.view.selectRect(), QRectF(5, 6, 1, 0));
    QCOMPARE(f.view.downPoint(), QPointF(5, 6));
    QCOMPARE(f.view.selection().state(), Selection::State::StartPoint);
  }

  void everyTrackedEventScrollsThenDisplaysThenReports() {
    ViewFixture f;
    f.host.visible = QRectF(-20, -10, 40, 20);
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({10, 5});
    f.view.mouseUp({11, 5});
    const QStringList expected{"makeFirstResponder",        "periodicEvents on", "autoscroll 10,5",
                               "displayRect -20,-10 40x20", "report 110\t55||",  "autoscroll 11,5",
                               "displayRect -20,-10 40x20", "report 111\t55||",  "periodicEvents off"};
    QCOMPARE(f.host.calls, expected);
  }

  void thePressItselfChangesNothingThatIsSeen() {
    WithRectangle f;
    QVERIFY(f.view.mouseDown());
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 1, 0));
    QCOMPARE(f.host.calls, (QStringList{"makeFirstResponder", "periodicEvents on"}));
  }

  void aClickRemovesARectangle() {
    WithRectangle f;
    f.click({7, 8});
    QCOMPARE(f.view.selectRect(), QRectF(7, 8, 0, 0));
    QCOMPARE(f.delegate.last, (QStringList{"", "", ""}));
    QCOMPARE(f.host.calls.last(), QString("report ||"));
  }

  void aClickOnNothingReportsEmptyTextsToo() {
    ViewFixture f;
    f.click({7, 8});
    QCOMPARE(f.view.selection().state(), Selection::State::None);
    QCOMPARE(f.delegate.last, (QStringList{"", "", ""}));
    QCOMPARE(f.delegate.reports, 2);  // the button going up, then the clearing
  }

  void theSecondDragMayStartAnywhereAndGoAnyway_data() {
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("up right") << QPointF(40, 30) << QRectF(10, 20, 30, 10);
    QTest::newRow("down right") << QPointF(40, -30) << QRectF(10, -30, 30, 50);
    QTest::newRow("up left") << QPointF(-40, 30) << QRectF(-40, 20, 50, 10);
    QTest::newRow("down left") << QPointF(-40, -30) << QRectF(-40, -30, 50, 50);
  }
  void theSecondDragMayStartAnywhereAndGoAnyway() {
    QFETCH(QPointF, end);
    QFETCH(QRectF, rect);
    ViewFixture f;
    f.drag({{10, 20}});
    f.drag({{99, -49}, end});
    QCOMPARE(f.view.selectRect(), rect);
    QCOMPARE(f.view.downPoint(), QPointF(10, 20));
    QCOMPARE(f.view.selection().state(), Selection::State::Rectangle);
  }

  /// Y runs up: the bottom edge is that of the smaller numbers.
  void aHeldEdgeFollowsThePointerAndTheOthersStay_data() {
    QTest::addColumn<Qt::Edges>("edges");
    QTest::addColumn<QPointF>("step");
    QTest::addColumn<QRectF>("rect");
    const auto row = [](const char* name, Qt::Edges edges, const QPointF& step, const QRectF& rect) {
      QTest::newRow(name) << edges << step << rect;
    };
    const Qt::Edges all = Qt::LeftEdge | Qt::RightEdge | Qt::TopEdge | Qt::BottomEdge;
    row("left, outwards", Qt::LeftEdge, {-10, 7}, {-60, -20, 50, 30});
    row("left, inwards", Qt::LeftEdge, {10, 7}, {-40, -20, 30, 30});
    row("right", Qt::RightEdge, {10, 7}, {-50, -20, 50, 30});
    row("bottom", Qt::BottomEdge, {7, -10}, {-50, -30, 40, 40});
    row("top", Qt::TopEdge, {7, 5}, {-50, -20, 40, 35});
    row("upper right corner", Qt::RightEdge | Qt::TopEdge, {10, 5}, {-50, -20, 50, 35});
    row("lower left corner", Qt::LeftEdge | Qt::BottomEdge, {-10, -5}, {-60, -25, 50, 35});
    row("left, beyond the right one", Qt::LeftEdge, {60, 0}, {-10, -20, 20, 30});
    row("right, beyond the left one", Qt::RightEdge, {-60, 0}, {-70, -20, 20, 30});
    row("left, onto the right one", Qt::LeftEdge, {40, 0}, {-10, -20, 1, 30});
    row("left, out of the view", Qt::LeftEdge, {-500, 0}, {-100, -20, 90, 30});
    row("right, out of the view", Qt::RightEdge, {500, 0}, {-50, -20, 150, 30});
    row("all", all, {10, 5}, {-40, -15, 40, 30});
    row("all, out of the view", all, {500, 500}, {60, 20, 40, 30});
    row("all, out of the view on the other side", all, {-500, -500}, {-100, -50, 40, 30});
  }
  void aHeldEdgeFollowsThePointerAndTheOthersStay() {
    QFETCH(Qt::Edges, edges);
    QFETCH(QPointF, step);
    WithRectangle f;
    QVERIFY(f.view.mouseDownOnHandle(edges, {3, 4}));
    f.view.mouseDragged(QPointF(3, 4) + step / 2);
    f.view.mouseUp(QPointF(3, 4) + step);
    QTEST(f.view.selectRect(), "rect");
    QCOMPARE(f.view.selection().state(), Selection::State::Rectangle);
  }

  void aClickOnAHeldEdgeIsAClick() {
    WithRectangle f;
    QVERIFY(f.view.mouseDownOnHandle(Qt::LeftEdge, {-50, 0}));
    f.view.mouseUp({-50, 0});
    QCOMPARE(f.view.selection().state(), Selection::State::None);
  }

  void aSecondDragWithoutAreaLeavesTheStartPoint_data() {
    QTest::addColumn<QPointF>("end");
    QTest::newRow("row, to the right") << QPointF(40, 20);
    QTest::newRow("row, to the left") << QPointF(-40, 20);
    QTest::newRow("column, up") << QPointF(10, 45);
    QTest::newRow("column, down") << QPointF(10, -45);
    QTest::newRow("the point itself") << QPointF(10, 20);
  }
  void aSecondDragWithoutAreaLeavesTheStartPoint() {
    QFETCH(QPointF, end);
    ViewFixture f;
    f.drag({{10, 20}});
    f.drag({{50, 40}, end});
    QCOMPARE(f.view.selectRect(), QRectF(10, 20, 1, 0));
    QCOMPARE(f.delegate.last, (QStringList{"110\t70", "", ""}));
    QVERIFY(f.host.calls.at(f.host.calls.size() - 2).startsWith("displayRect"));
    f.drag({{30, 30}});  // ready for another second drag
    QCOMPARE(f.view.selectRect(), QRectF(10, 20, 20, 10));
  }

  void aSecondClickAwayFromTheStartPointStretchesToIt() {
    ViewFixture f;
    f.drag({{10, 20}});
    f.click({30, 40});
    QCOMPARE(f.view.selectRect(), QRectF(10, 20, 20, 20));
  }

  void aTinyRectangleIsDroppedByStrictComparison_data() {
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("kept");
    QTest::newRow("2 x 2.9") << QSizeF(2, 2.9) << false;
    QTest::newRow("2 x 3") << QSizeF(2, 3) << true;
    QTest::newRow("3 x 2") << QSizeF(3, 2) << true;
    QTest::newRow("0.5 x 50") << QSizeF(0.5, 50) << true;
    QTest::newRow("2.99 x 2.99") << QSizeF(2.99, 2.99) << false;
  }
  void aTinyRectangleIsDroppedByStrictComparison() {
    QFETCH(QSizeF, size);
    QFETCH(bool, kept);
    ViewFixture f;
    f.drag({{0, 0}});
    f.drag({{50, 50}, {size.width(), size.height()}});
    QCOMPARE(f.view.selection().state() == Selection::State::Rectangle, kept);
    QCOMPARE(f.view.selectRect(), kept ? QRectF(QPointF(0, 0), size) : QRectF(0, 0, 0, 0));
    QCOMPARE(f.delegate.last.at(0).isEmpty(), !kept);
  }

  void aKeptRectangleIsNotDisplayedOnceMore() {
    ViewFixture f;
    f.drag({{0, 0}});
    f.host.calls.clear();
    f.drag({{30, 30}});
    QCOMPARE(f.host.calls.filter("displayRect").size(), 2);  // one a tracked event
    QCOMPARE(f.host.calls.last(), QString("periodicEvents off"));
  }

  void draggingBeyondTheEdgeScrollsAndPinsToTheBounds() {
    ViewFixture f;
    f.drag({{-90, -40}});
    f.host.calls.clear();
    f.drag({{500, 400}});
    QVERIFY(f.host.calls.contains("autoscroll 500,400"));
    QCOMPARE(f.view.selectRect(), QRectF(-90, -40, 190, 90));
    f.drag({{-1000, 7}});
    QCOMPARE(f.view.selectRect(), QRectF(-100, 7, 1, 0));
  }

  void ticksScrollOnlyWhileThePointerIsOutside() {
    ViewFixture f;
    f.view.periodicEvent({500, 0});  // nothing is dragged
    QVERIFY(f.host.calls.isEmpty());
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({10, 10});
    f.host.calls.clear();
    f.view.periodicEvent({10, 10});
    QVERIFY(f.host.calls.isEmpty());
    f.view.periodicEvent({150, 10});
    QCOMPARE(f.host.calls.first(), QString("autoscroll 150,10"));
    QCOMPARE(f.view.selectRect(), QRectF(100, 10, 1, 0));
  }

  void aPressHeldOutsideIsStillAClick() {
    WithRectangle f;
    QVERIFY(f.view.mouseDown());
    f.host.calls.clear();
    for (int tick = 0; tick < 5; ++tick) f.view.periodicEvent({150, 10});
    QVERIFY(f.host.calls.isEmpty());
    f.view.mouseUp({150, 10});
    QCOMPARE(f.view.selectRect().size(), QSizeF(0, 0));
    QCOMPARE(f.delegate.last, (QStringList{"", "", ""}));
    f.drag({{10, 20}});
    QVERIFY(f.view.mouseDown());  // nor does it stretch anything
    f.view.periodicEvent({150, 40});
    QCOMPARE(f.view.selectRect(), QRectF(10, 20, 1, 0));
  }

  void aPressNeedsAPictureAndAnAgreeingWindow() {
    ViewFixture f;
    f.host.agreesToFirstResponder = false;
    f.drag({{1, 1}});
    QCOMPARE(f.view.selection().state(), Selection::State::None);
    f.host.agreesToFirstResponder = true;
    f.view.setImageRep(nullptr);
    f.host.calls.clear();
    f.drag({{1, 1}});
    QVERIFY(f.host.calls.isEmpty());  // the window is not even asked
    f.view.mouseDragged({5, 5});
    f.view.mouseUp({5, 5});
    QVERIFY(f.host.calls.isEmpty());
  }

  void clearingNothingDoesNothing() {
    ViewFixture f;
    f.view.clearSelectRect();
    QVERIFY(f.host.calls.isEmpty());
    f.view.selectBounds();
    f.host.calls.clear();
    f.view.clearSelectRect();
    QCOMPARE(f.view.selectRect(), QRectF(-100, -50, 0, 0));  // the origin stays
    QCOMPARE(f.host.calls, (QStringList{"displayRect -100,-50 200x100", "report ||"}));
    f.view.clearSelectRect();
    QCOMPARE(f.host.calls.size(), 2);
  }

  void selectBoundsTakesTheWholeTurnedPicture() {
    ViewFixture f;
    f.view.selectBounds();
    QCOMPARE(f.view.selectRect(), QRectF(-100, -50, 200, 100));
    QCOMPARE(f.host.calls, (QStringList{"displayRect -100,-50 200x100", "report 0\t0|200\t100|200\t100"}));
    f.drag({{5, 5}});  // from a rectangle, a drag starts over
    QCOMPARE(f.view.selectRect(), QRectF(5, 5, 1, 0));
  }

  void aPictureThatDiesDuringADragLeavesTheSelectionAlive() {
    ViewFixture f;
    f.drag({{-50, -20}});
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({0, 0});
    f.rep->dead = true;
    f.view.mouseDragged({-20, 0});
    f.view.setImageRep(nullptr);
    f.view.mouseUp({-10, 10});
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 40, 30));
    QCOMPARE(f.delegate.last, (QStringList{"50\t30", "90\t60", "40\t30"}));
  }

  void aLostPointerEndsTheDragWhereItWasLastSeen() {
    ViewFixture f;
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({10, 10});
    f.view.endTracking();
    QCOMPARE(f.view.selectRect(), QRectF(10, 10, 1, 0));
    QVERIFY(f.host.calls.contains("periodicEvents off"));
    f.host.calls.clear();
    f.view.mouseUp({20, 20});
    f.view.endTracking();
    QVERIFY(f.host.calls.isEmpty());
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({30, 40});
    f.view.endTracking();
    QCOMPARE(f.view.selectRect(), QRectF(10, 10, 20, 30));
  }

  void aPointerLostBeforeTheSecondDragMovedLeavesTheStartPoint() {
    ViewFixture f;
    f.drag({{-50, -20}});
    QVERIFY(f.view.mouseDown());
    f.view.endTracking();
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 1, 0));
  }

  void aReloadDuringADragKeepsTheSelectionInTheNewBounds() {
    ViewFixture f;
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({90, 40});
    f.view.setImageSize({20, 10});
    f.view.setRotate(2 * M_PI, false);
    f.view.mouseUp({90, 40});
    QCOMPARE(f.view.selectRect(), QRectF(10, 5, 1, 0));
  }

  void aCoordinateThatIsNoNumberIsIgnored() {
    ViewFixture f;
    f.drag({{5, 5}, {std::numeric_limits<double>::quiet_NaN(), 1}});
    QCOMPARE(f.view.selectRect(), QRectF(5, 5, 1, 0));
    f.drag({{5, 5}, {1, std::numeric_limits<double>::quiet_NaN()}});
    QCOMPARE(f.view.selectRect(), QRectF(5, 5, 1, 0));
  }

  void arrowKeysMoveTheRectangleInsideTheBounds() {
    WithRectangle f;
    QVERIFY(f.view.moveSelection({1, 0}));
    QCOMPARE(f.view.selectRect(), QRectF(-49, -20, 40, 30));
    QCOMPARE(f.host.calls, (QStringList{"scrollRectToVisible -49,-20 40x30", "displayRect -100,-50 200x100",
                                        "report 51\t30|91\t60|40\t30"}));
    QVERIFY(f.view.moveSelection({0, -10}));
    QVERIFY(f.view.moveSelection({-500, 500}));
    QCOMPARE(f.view.selectRect(), QRectF(-100, 20, 40, 30));
    f.host.calls.clear();
    QVERIFY(!f.view.moveSelection({-1, 1}));  // already in the corner
    QVERIFY(f.host.calls.isEmpty());
  }

  void arrowKeysSizeTheRectangle() {
    WithRectangle f;
    QVERIFY(f.view.resizeSelection({10, 1}));
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 50, 31));
    QVERIFY(f.view.resizeSelection({500, 500}));
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 150, 70));
    QVERIFY(f.view.resizeSelection({-500, -500}));
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 1, 1));
    QVERIFY(!f.view.resizeSelection({-1, 0}));
  }

  void keysNeedARectangle() {
    ViewFixture f;
    QVERIFY(!f.view.moveSelection({1, 0}));
    f.drag({{5, 5}});
    QVERIFY(!f.view.moveSelection({1, 0}));
    QVERIFY(!f.view.resizeSelection({1, 1}));
    f.drag({{50, 40}});
    QVERIFY(f.view.mouseDown());
    QVERIFY(!f.view.resizeSelection({1, 1}));
  }

  /// Whatever is done, the selection stays inside the view and its size tells one of the three states at
  /// rest.
  void noSequenceOfGesturesLeavesTheView() {
    QRandomGenerator random(20260101);
    ViewFixture f;
    f.host.paint = nullptr;
    const auto anywhere = [&] { return QPointF(random.bounded(600) - 300, random.bounded(600) - 300); };
    for (int i = 0; i < 3000; ++i) {
      switch (random.bounded(6)) {
        case 0:
          f.click(anywhere());
          break;
        case 1:
          f.drag({anywhere(), anywhere()});
          break;
        case 2:
          f.drag({anywhere()});
          break;
        case 3:
          f.view.setRotate(random.bounded(7.0), random.bounded(2) == 1);
          break;
        case 4:
          f.view.moveSelection(anywhere());
          break;
        default:
          f.view.resizeSelection(anywhere());
          break;
      }
      const QRectF r = f.view.selectRect(), b = f.view.bounds();
      if (f.view.selection().state() == Selection::State::None) continue;
      const double slack = 1e-9;
      QVERIFY(r.x() >= b.x() - slack && r.y() >= b.y() - slack);
      QVERIFY(r.x() <= b.x() + b.width() + slack && r.y() <= b.y() + b.height() + slack);
      if (r.height() > 0) QVERIFY(r.x() + r.width() <= b.x() + b.width() + slack);
      if (r.height() == 0) QCOMPARE(f.view.downPoint(), r.topLeft());
    }
  }
};

NORVEX_TEST(SelectionTest)
#include "selection_test.moc"
