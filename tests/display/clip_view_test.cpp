// Scrolling and scaling of the document behind the clip view.
#include "display/clip_view.h"

#include <QRandomGenerator>

#include <limits>

#include "kit/test_main.h"

using namespace norvex;

namespace {

ClipView clip(const QSizeF& frame, const QSizeF& document) {
  ClipView view;
  view.setFrameSize(frame);
  view.setDocumentSize(document);
  return view;
}

}  // namespace

class ClipViewTest : public QObject {
  Q_OBJECT
 private slots:
  void aSmallDocumentIsCentred() {
    const ClipView view = clip({400, 300}, {100, 50});
    QCOMPARE(view.bounds(), QRectF(-150, -125, 400, 300));
    QCOMPARE(view.documentVisibleRect(), QRectF(0, 0, 100, 50));
    QCOMPARE(view.scrollOffset(), QPointF(-150, -125));
    QCOMPARE(view.scrollRange(), QSizeF(0, 0));
  }

  void theDocumentIsScrolledNoFurtherThanItsEdges() {
    ClipView view = clip({400, 300}, {1000, 800});
    view.setScrollOffset({5000, -20});
    QCOMPARE(view.scrollOffset(), QPointF(600, 0));
    QCOMPARE(view.bounds(), QRectF(600, 500, 400, 300));
    QCOMPARE(view.scrollRange(), QSizeF(600, 500));
  }

  void theScaledDocumentIsScrolled() {
    ClipView view = clip({400, 300}, {1000, 800});
    view.setScale(2, view.frameCentre());
    QCOMPARE(view.scrollRange(), QSizeF(1600, 1300));
    view.setScale(0.25, view.frameCentre());
    QCOMPARE(view.scrollRange(), QSizeF(0, 0));
  }

  void theUpperLeftCornerStaysWhenTheFrameGrows() {
    ClipView view = clip({400, 300}, {1000, 800});
    view.setScrollOffset({100, 50});
    view.setFrameSize({500, 350});
    QCOMPARE(view.scrollOffset(), QPointF(100, 50));
  }

  void scrollingShowsARectangleWithTheLeastMovement() {
    ClipView view = clip({400, 300}, {1000, 800});
    view.setScrollOffset({0, 500});
    QCOMPARE(view.bounds(), QRectF(0, 0, 400, 300));
    QVERIFY(!view.scrollRectToVisible({10, 10, 50, 50}));
    QVERIFY(view.scrollRectToVisible({390, 290, 50, 50}));
    QCOMPARE(view.bounds(), QRectF(40, 40, 400, 300));
    QVERIFY(view.scrollRectToVisible({0, 0, 900, 700}));  // as much as has room, from its lower left corner
    QCOMPARE(view.bounds().topLeft(), QPointF(0, 0));
  }

  void autoscrollFollowsThePointToTheEdge() {
    ClipView view = clip({400, 300}, {1000, 800});
    view.setScrollOffset({0, 500});
    QVERIFY(!view.autoscroll({100, 100}));
    QVERIFY(view.autoscroll({430, 100}));
    QCOMPARE(view.bounds(), QRectF(30, 0, 400, 300));
    QVERIFY(view.autoscroll({2000, 2000}));
    QCOMPARE(view.bounds(), QRectF(600, 500, 400, 300));
    QVERIFY(!view.autoscroll({2000, 2000}));
  }

  void pointsGoThereAndBack() {
    QRandomGenerator random(3);
    for (int i = 0; i < 2000; ++i) {
      ClipView view = clip({random.bounded(900.0) + 1, random.bounded(900.0) + 1},
                           {random.bounded(3000.0), random.bounded(3000.0)});
      view.setScale(random.bounded(16.0) + 0.1, view.frameCentre());
      view.setScrollOffset({random.bounded(2000.0), random.bounded(2000.0)});
      const QPointF point(random.bounded(900.0), random.bounded(900.0));
      const QPointF back = view.documentToFrame().map(view.frameToDocument(point));
      QVERIFY(qAbs(back.x() - point.x()) < 1e-6 && qAbs(back.y() - point.y()) < 1e-6);
    }
  }

  void sizesThatAreNoneCountAsZero() {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ClipView view = clip({400, 300}, {nan, -5});
    QCOMPARE(view.documentSize(), QSizeF(0, 0));
    QVERIFY(view.documentVisibleRect().isEmpty());
    view.setScale(nan, {0, 0});
    view.setScale(-2, {0, 0});
    QCOMPARE(view.scale(), 1.0);
    view.setDocumentSize({1000, 800});
    view.setScrollOffset({nan, nan});
    QVERIFY(!qIsNaN(view.bounds().x()) && !qIsNaN(view.bounds().y()));
  }

  void aHugeDocumentScrollsToItsFarEnd() {
    ClipView view = clip({400, 300}, {1e9, 1e9});
    view.setScale(16, view.frameCentre());
    view.setScrollOffset({1e12, 1e12});
    QCOMPARE(view.bounds().x(), 1e9 - 25);
    QCOMPARE(view.bounds().y(), 0.0);
  }
};

NORVEX_TEST(ClipViewTest)
#include "clip_view_test.moc"
