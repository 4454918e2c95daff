// Zoom: the table, the menu, its bindings, the layout of the bar, and what stays in place.
#include "display/skt_zooming_scroll_view.h"

#include <QSignalSpy>

#include <limits>

#include "display/norvex_view.h"
#include "display/zoom_factors.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Has what the window controller has: a zoom factor that tells of its changes.
class Controller : public QObject {
  Q_OBJECT
  Q_PROPERTY(double zoomFactor READ zoomFactor WRITE setZoomFactor NOTIFY zoomFactorDidChange)
 public:
  [[nodiscard]] double zoomFactor() const { return zoomFactor_; }
  void setZoomFactor(double factor) {
    zoomFactor_ = factor;
    emit zoomFactorDidChange();
  }

 signals:
  void zoomFactorDidChange();

 private:
  double zoomFactor_ = 1.0;
};

struct Fixture {
  Fixture() {
    view.setImageSize({1000, 800});
    view.setRotate(0, false);
    scrollView.setDocumentView(&view);
    scrollView.clipView()->setFrameSize({400, 300});
  }
  void bind() { scrollView.bind("factor", &controller, "zoomFactor"); }

  Controller controller;
  NorvexView view;
  SKTZoomingScrollView scrollView;
};

}  // namespace

class SktZoomingScrollViewTest : public QObject {
  Q_OBJECT
 private slots:
  void theElevenFactorsAndTitles() {
    const QList<double> factors{0.10000000149011612, 0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 4, 8, 16};
    const QStringList titles{"10%",  "25%",  "50%",  "75%",  "100%", "125%",
                             "150%", "200%", "400%", "800%", "1600%"};
    QCOMPARE(FactorPopUp::titles(), titles);
    for (int i = 0; i < 11; ++i) QVERIFY(FactorPopUp::representedFactor(i) == factors.at(i));
    QVERIFY(FactorPopUp::representedFactor(0) == double(0.1f));
    QVERIFY(FactorPopUp::representedFactor(0) != 0.1);
    QCOMPARE(FactorPopUp::representedFactor(11), 0.0);
    QCOMPARE(FactorPopUp::representedFactor(-1), 0.0);
  }

  void thePopUpIsMadeOnFirstNeedAndOnce() {
    SKTZoomingScrollView scrollView;
    QVERIFY(!scrollView.factorPopUpButton());
    scrollView.validateFactorPopUpButton();
    FactorPopUp* made = scrollView.factorPopUpButton();
    QVERIFY(made);
    scrollView.validateFactorPopUpButton();
    QCOMPARE(scrollView.factorPopUpButton(), made);
    SKTZoomingScrollView tiled;
    (void)tiled.tile(QRectF(), QSizeF());
    QVERIFY(tiled.factorPopUpButton());
  }

  void theFactorIsZeroUntilItIsSet() {
    Fixture f;
    QCOMPARE(f.scrollView.factor(), 0.0);
    QCOMPARE(f.scrollView.clipView()->bounds().size(), QSizeF(400, 300));  // unscaled
  }

  void bindingDeliversTheControllersFactor() {
    Fixture f;
    f.bind();
    QCOMPARE(f.scrollView.property("factor").toDouble(), 1.0);
    QCOMPARE(f.scrollView.factorPopUpButton()->selectedIndex(), 4);
  }

  void choosingTwoHundredPercent() {
    Fixture f;
    f.bind();
    QSignalSpy told(&f.scrollView, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange);
    f.scrollView.factorPopUpButton()->choose(7);
    QCOMPARE(f.controller.zoomFactor(), 2.0);
    QCOMPARE(f.scrollView.factor(), 2.0);
    QCOMPARE(f.scrollView.clipView()->bounds().size(), QSizeF(200, 150));
    QCOMPARE(told.size(), 1);
  }

  void theNotificationComesBeforeTheRescale() {
    Fixture f;
    QSizeF seen;
    double factor = 0;
    connect(&f.scrollView, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, &f.scrollView, [&] {
      seen = f.scrollView.clipView()->bounds().size();
      factor = f.scrollView.factor();
    });
    f.scrollView.setFactor(4);
    QCOMPARE(seen, QSizeF(400, 300));
    QCOMPARE(factor, 4.0);
    QCOMPARE(f.scrollView.clipView()->bounds().size(), QSizeF(100, 75));
  }

  void withoutAClipViewNothingIsRescaled() {
    SKTZoomingScrollView scrollView;
    QSignalSpy told(&scrollView, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange);
    scrollView.setFactor(2);
    QCOMPARE(scrollView.factor(), 2.0);
    QCOMPARE(told.size(), 1);
    QVERIFY(!scrollView.clipView());
    QVERIFY(scrollView.documentViewVisibleRect().isEmpty());
  }

  void theControllersChangeSelectsTheItem() {
    Fixture f;
    f.bind();
    f.controller.setZoomFactor(0.5);
    QCOMPARE(f.scrollView.factorPopUpButton()->selectedIndex(), 2);
    f.controller.setZoomFactor(0.33);
    QCOMPARE(f.scrollView.factorPopUpButton()->selectedIndex(), -1);
    QCOMPARE(f.scrollView.factor(), 0.33);
  }

  void anotherNameLeavesThePopUpUnbound() {
    Fixture f;
    f.scrollView.bind("objectName", &f.controller, "objectName");
    QVERIFY(!f.scrollView.factorPopUpButton());
    f.controller.setObjectName("main");
    QCOMPARE(f.scrollView.objectName(), QString("main"));
    f.scrollView.validateFactorPopUpButton();
    QVERIFY(!f.scrollView.factorPopUpButton()->isBound());
  }

  void unbindingTheFactorUnbindsThePopUpToo() {
    Fixture f;
    f.bind();
    QVERIFY(f.scrollView.factorPopUpButton()->isBound());
    f.scrollView.unbind("factor");
    QVERIFY(!f.scrollView.factorPopUpButton()->isBound());
    f.controller.setZoomFactor(8);
    QCOMPARE(f.scrollView.factor(), 1.0);
    f.scrollView.factorPopUpButton()->choose(0);
    QCOMPARE(f.controller.zoomFactor(), 8.0);
  }

  void bindingAgainAfterARevertStillTellsOnce() {
    Fixture f;
    f.bind();
    f.bind();
    QSignalSpy told(&f.scrollView, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange);
    f.controller.setZoomFactor(2);
    QCOMPARE(told.size(), 1);
  }

  void aControllerThatIsGoneOrLacksThePropertyIsHarmless() {
    Fixture f;
    {
      Controller brief;
      f.scrollView.bind("factor", &brief, "zoomFactor");
    }
    f.scrollView.factorPopUpButton()->choose(7);
    f.scrollView.zoomTo(4);
    QCOMPARE(f.scrollView.factor(), 4.0);
    f.scrollView.bind("factor", &f.controller, "noSuchKey");
    f.scrollView.zoomTo(2);
    QCOMPARE(f.scrollView.factor(), 2.0);
    f.scrollView.bind("factor", nullptr, "zoomFactor");
  }

  void theBarIsDividedWhenThereIsRoom() {
    SKTZoomingScrollView scrollView;
    const TiledBar roomy = scrollView.tile(QRectF(5, 285, 150, 15), QSizeF(70, 22));
    QCOMPARE(roomy.popUp, QRectF(5, 285, 70, 15));
    QCOMPARE(roomy.bar, QRectF(75, 285, 80, 15));
    const TiledBar exact = scrollView.tile(QRectF(5, 285, 150, 15), QSizeF(78, 22));
    QCOMPARE(exact.popUp, QRectF(-1000, -1000, 78, 22));
    QCOMPARE(exact.bar, QRectF(5, 285, 150, 15));
    const TiledBar none = scrollView.tile(QRectF(), QSizeF(70, 22));
    QCOMPARE(none.popUp.topLeft(), QPointF(-1000, -1000));
  }

  void zoomingKeepsTheVisibleCentre() {
    Fixture f;
    f.bind();
    f.scrollView.clipView()->setScrollOffset({300, 250});
    const QPointF centre = f.scrollView.documentViewVisibleRect().center();
    f.controller.setZoomFactor(4);
    QCOMPARE(f.scrollView.documentViewVisibleRect().center(), centre);
    f.controller.setZoomFactor(1);
    QCOMPARE(f.scrollView.documentViewVisibleRect().center(), centre);
  }

  void theWheelKeepsThePointUnderThePointer() {
    Fixture f;
    f.bind();
    f.scrollView.clipView()->setScrollOffset({300, 250});
    const QPointF pointer(100, 50), held = f.scrollView.clipToDocumentView(pointer);
    f.scrollView.wheelZoom(120, pointer);
    QCOMPARE(f.controller.zoomFactor(), 1.25);
    QCOMPARE(f.scrollView.clipToDocumentView(pointer), held);
    f.scrollView.wheelZoom(240, pointer);
    QCOMPARE(f.controller.zoomFactor(), 2.0);
    QCOMPARE(f.scrollView.clipToDocumentView(pointer), held);
  }

  void theWheelStepsThroughTheTableAndStopsAtItsEnds() {
    Fixture f;
    f.bind();
    f.scrollView.wheelZoom(120 * 50, {0, 0});
    QCOMPARE(f.controller.zoomFactor(), 16.0);
    QSignalSpy told(&f.scrollView, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange);
    f.scrollView.wheelZoom(120, {0, 0});
    QCOMPARE(told.size(), 0);
    for (int i = 0; i < 10; ++i) f.scrollView.wheelZoom(-120, {0, 0});
    QVERIFY(f.controller.zoomFactor() == 0.10000000149011612);
  }

  void aFineWheelAddsUpToASteps() {
    Fixture f;
    f.bind();
    for (int i = 0; i < 7; ++i) f.scrollView.wheelZoom(15, {0, 0});
    QCOMPARE(f.controller.zoomFactor(), 1.0);
    f.scrollView.wheelZoom(15, {0, 0});
    QCOMPARE(f.controller.zoomFactor(), 1.25);
    f.scrollView.wheelZoom(100, {0, 0});
    f.scrollView.wheelZoom(-60, {0, 0});  // turning back forgets what was left over
    QCOMPARE(f.controller.zoomFactor(), 1.25);
    f.scrollView.wheelZoom(-60, {0, 0});
    QCOMPARE(f.controller.zoomFactor(), 1.0);
  }

  void steppingFromAFactorBetweenTwoItems() {
    QCOMPARE(steppedZoomFactor(0.3, 1), 0.5);
    QCOMPARE(steppedZoomFactor(0.3, -1), 0.25);
    QCOMPARE(steppedZoomFactor(100, 1), 16.0);
    QCOMPARE(steppedZoomFactor(100, -1), 16.0);
    QVERIFY(steppedZoomFactor(0, 1) == 0.10000000149011612);
    QVERIFY(steppedZoomFactor(0.01, -1) == 0.10000000149011612);
    QVERIFY(qIsNaN(steppedZoomFactor(std::numeric_limits<double>::quiet_NaN(), 1)));
  }

  void factorsThatScaleNothingAreStoredOnly() {
    Fixture f;
    f.scrollView.setFactor(2);
    for (const double factor : {0.0, -1.0, std::numeric_limits<double>::infinity()}) {
      f.scrollView.setFactor(factor);
      QCOMPARE(f.scrollView.factor(), factor);
      QCOMPARE(f.scrollView.clipView()->bounds().size(), QSizeF(200, 150));
    }
  }

  void theVisiblePartIsToldInTheViewsCoordinates() {
    Fixture f;
    f.scrollView.setFactor(2);
    f.scrollView.clipView()->setScrollOffset({0, 0});
    QCOMPARE(f.scrollView.documentViewVisibleRect(), QRectF(-500, 250, 200, 150));  // the upper left corner
    const QTransform toClip = f.scrollView.documentViewToClip();
    QCOMPARE(toClip.map(QPointF(-500, 400)), QPointF(0, 0));
    QCOMPARE(toClip.map(QPointF(-300, 250)), QPointF(400, 300));
    QCOMPARE(f.scrollView.clipToDocumentView({400, 300}), QPointF(-300, 250));
  }

  void aTurnedPictureKeepsItsPlace() {
    Fixture f;
    f.scrollView.setFactor(2);
    const QPointF centre = f.scrollView.documentViewVisibleRect().center();
    f.view.setRotate(1.2, false);
    f.scrollView.documentFrameDidChange();
    const QPointF now = f.scrollView.documentViewVisibleRect().center();
    QVERIFY(qAbs(now.x() - centre.x()) < 1e-9 && qAbs(now.y() - centre.y()) < 1e-9);
  }
};

NORVEX_TEST(SktZoomingScrollViewTest)
#include "skt_zooming_scroll_view_test.moc"
