// Drawing, coordinates, the selection report and the small overrides of the picture view.
#include "display/norvex_view.h"

#include <cmath>
#include <limits>

#include "display/view_fixture.h"
#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;
using norvex::kit::QuarteredImageRep;
using norvex::kit::RecordingDelegate;
using norvex::kit::ViewFixture;

class NorvexViewTest : public QObject {
  Q_OBJECT
 private slots:
  void aFreshViewHoldsItsStartingValues() {
    const NorvexView view(QRectF(10, 20, 300, 200));
    QCOMPARE(view.rotate(), 3.4028234663852886e38);
    QCOMPARE(view.precisionX(), 2834.6456692913384);
    QCOMPARE(view.precisionY(), 2834.6456692913384);
    QCOMPARE(view.scaleX(), 1.0);
    QCOMPARE(view.scaleY(), 1.0);
    QCOMPARE(view.downPoint(), QPointF(160, 120));
    QCOMPARE(view.selectRect(), QRectF(160, 120, 0, 0));
    QVERIFY(view.title().isNull());
    QVERIFY(view.printJobTitle().isNull());
    QVERIFY(!view.imageRep());
    QVERIFY(!view.flippedCoordinate());
    QVERIFY(!view.delegateFlag());
    QCOMPARE(view.arrowKeysString(), QString::fromUtf16(u"\uF703\uF700\uF702\uF701"));
  }

  void theFirstRotationToZeroStillResizes() {
    NorvexView view(QRectF(0, 0, 10, 10));
    MemoryViewHost host;
    view.setHost(&host);
    view.setImageSize({200, 100});
    view.setRotate(0, false);
    QCOMPARE(view.rotate(), 0.0);
    QCOMPARE(view.frame(), QRectF(0, 0, 200, 100));
    QCOMPARE(view.bounds(), QRectF(-100, -50, 200, 100));
    QCOMPARE(host.calls, QStringList{"frameDidChange"});
  }

  void thePlacedStartPointReportsOnlyTheStart() {
    for (const bool clockwise : {false, true}) {
      ViewFixture f;
      f.delegate.clockwise = clockwise;
      f.drag({{-50, -20}});
      const QString y = clockwise ? "70" : "30";
      QCOMPARE(f.delegate.last, (QStringList{"50\t" + y, "", ""}));
    }
  }

  void aSelectionOfNoWidthReportsThreeEmptyTexts() {
    ViewFixture f;
    f.drag({{10, 10}});
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({10, 40});  // width 0, height 30
    QCOMPARE(f.view.selectRect(), QRectF(10, 10, 0, 30));
    QCOMPARE(f.delegate.last, (QStringList{"", "", ""}));
  }

  void cornersOfNoWidthAreNotDrawnAndStayWhatTheyWere() {
    ViewFixture f;
    f.drag({{10, 10}});
    QVERIFY(f.view.mouseDown());
    f.view.mouseDragged({30, 40});
    QCOMPARE(f.view.bottomRight(), QPointF(130, 90));
    f.view.mouseDragged({10, 40});
    QCOMPARE(f.view.bottomRight(), QPointF(130, 90));
  }

  void anUprightPictureReportsTheShortestForm() {
    ViewFixture f;
    f.drag({{-50, -20}});
    f.drag({{-10, 10}});
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 40, 30));
    QCOMPARE(f.delegate.last, (QStringList{"50\t30", "90\t60", "40\t30"}));
  }

  void aFlippedPictureReportsNineWideWithTwoDecimals() {
    ViewFixture f;
    f.delegate.clockwise = true;
    f.drag({{-50, -20}});
    f.drag({{-10, 10}});
    QCOMPARE(f.delegate.last,
             (QStringList{"    50.00\t    40.00", "    90.00\t    60.00", "    40.00\t    30.00"}));
  }

  void theShortFormIsUsedForAStartPointInBothSenses() {
    for (const bool clockwise : {false, true}) {
      ViewFixture f;
      f.delegate.clockwise = clockwise;
      f.drag({{-49.5, -20.125}});
      QCOMPARE(f.view.selectRect().size(), QSizeF(1, 0));
      QCOMPARE(f.delegate.last, (QStringList{clockwise ? "50.5\t70.125" : "50.5\t29.875", "", ""}));
    }
  }

  void whereTheSensesAgreeThePictureIsUpright() {
    for (const bool sense : {false, true}) {
      ViewFixture f;
      f.delegate.clockwise = sense;
      f.view.setFlippedCoordinate(sense);
      f.drag({{-50, -20}});
      f.drag({{-10, 10}});
      QCOMPARE(f.delegate.last, (QStringList{"50\t30", "90\t60", "40\t30"}));
      f.view.setFlippedCoordinate(!sense);
      f.view.infoSelectedArea();
      QCOMPARE(f.delegate.last,
               (QStringList{"    50.00\t    40.00", "    90.00\t    60.00", "    40.00\t    30.00"}));
    }
  }

  void aFlippedTurnedPictureRotatesItsEndPointPlainly() {
    ViewFixture f;
    f.delegate.clockwise = true;
    f.view.setRotate(1.5 * M_PI, true);  // the sense turns it into a quarter turn
    f.host.visible = f.view.bounds();
    f.drag({{-30, -40}});
    f.drag({{-10, 20}});
    const double x = -30, upper = 20, right = -10, s = std::sin(f.view.rotate()),
                 c = std::cos(f.view.rotate());
    const auto pair = [](double a, double b) { return QString::asprintf("%9.2f\t%9.2f", a, b); };
    QCOMPARE(f.delegate.last.at(0), pair(100 + c * x + s * upper, 50 + s * x - c * upper));
    QCOMPARE(f.delegate.last.at(0), QString("   120.00\t    20.00"));
    QCOMPARE(f.delegate.last.at(1), pair(100 + c * right - s * upper, 50 + s * right + c * upper));
    QCOMPARE(f.delegate.last.at(1), QString("    80.00\t    40.00"));
  }

  void theReportIsOnlyMadeToADelegateThatWantsIt() {
    ViewFixture f;
    f.delegate.responds = false;
    f.view.setDelegate(&f.delegate);
    QVERIFY(!f.view.delegateFlag());
    f.view.selectBounds();
    QCOMPARE(f.delegate.reports, 0);
    f.view.setDelegate(nullptr);
    f.view.setDelegateFlag(true);
    f.view.selectBounds();  // a flag without a delegate is no reason to fall
    f.delegate.responds = true;
    f.view.setDelegate(&f.delegate);
    QVERIFY(f.view.delegateFlag());
    f.view.selectBounds();
    QCOMPARE(f.delegate.reports, 1);
  }

  void thePictureIsDrawnUprightAndTurnedCounterClockwise() {
    ViewFixture f;
    QImage image = f.paint();
    QCOMPARE(image.size(), QSize(200, 100));
    QCOMPARE(image.pixelColor(20, 80), QColor(Qt::red));  // pixels run downwards
    QCOMPARE(image.pixelColor(180, 80), QColor(Qt::green));
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::blue));
    f.view.setRotate(M_PI / 2, false);
    image = f.paint();
    QCOMPARE(image.size(), QSize(100, 200));
    QCOMPARE(image.pixelColor(80, 180), QColor(Qt::red));  // the lower left corner went to the lower right
    QCOMPARE(image.pixelColor(80, 20), QColor(Qt::green));
    QCOMPARE(image.pixelColor(20, 180), QColor(Qt::blue));
  }

  void noBackgroundIsDrawn() {
    ViewFixture f;
    QVERIFY(!f.view.isOpaque());
    f.rep->dead = true;
    const QImage image = f.paint();
    QImage untouched = image;
    untouched.fill(Qt::black);
    QCOMPARE(image, untouched);
  }

  void printingAndCopyingNeverShowTheSelection() {
    ViewFixture f;
    const QImage plain = f.paint();
    f.view.selectBounds();
    QVERIFY(f.paint() != plain);
    QCOMPARE(f.paint(DrawingDestination::Printer), plain);
    QCOMPARE(f.paint(DrawingDestination::Data), plain);
    f.view.clearSelectRect();
    f.drag({{3, 4}});
    QVERIFY(f.paint() != plain);
    QCOMPARE(f.paint(DrawingDestination::Printer), plain);
  }

  void drawingLeavesThePainterAsItWas() {
    ViewFixture f;
    f.view.selectBounds();
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setTransform(QTransform(0.1, 0, 0, -0.1, 10, 5));
    const QTransform before = painter.transform();
    f.view.drawRect(painter, f.view.bounds(), DrawingDestination::Screen);
    QCOMPARE(painter.transform(), before);
  }

  void theCornersAreCurrentEvenWhenNothingCouldBeDrawn() {
    ViewFixture f;
    f.host.paint = nullptr;  // a minimised window
    f.drag({{-50, -20}});
    f.drag({{-10, 10}});
    QCOMPARE(f.delegate.last, (QStringList{"50\t30", "90\t60", "40\t30"}));
  }

  void theCrosshairCursorCoversTheVisiblePart() {
    ViewFixture f;
    f.host.visible = QRectF(-10, -5, 20, 10);
    f.view.resetCursorRects();
    QCOMPARE(f.host.calls, QStringList{"addCrosshairCursorRect -10,-5 20x10"});
    f.host.visible = QRectF();
    f.view.resetCursorRects();
    QCOMPARE(f.host.calls.size(), 1);
  }

  void theFirstClickActivatesAndSelects() {
    ViewFixture f;
    QVERIFY(f.view.acceptsFirstMouse());
    f.host.agreesToFirstResponder = false;
    QVERIFY(!f.view.acceptsFirstMouse());
    QVERIFY(!f.view.acceptsFirstResponder());
    QVERIFY(!f.view.knowsPageRange());
  }

  void anArrivedRenderingIsShownWithoutAReport() {
    ViewFixture f;
    emit f.rep->renderingArrived();
    QCOMPARE(f.host.calls, QStringList{"setNeedsDisplay"});
    const auto old = f.rep;
    f.view.setImageRep(nullptr);
    emit old->renderingArrived();  // of a picture that is no longer shown
    QCOMPARE(f.host.calls.size(), 1);
  }

  void aPictureOutlivingItsViewTellsNobody() {
    auto rep = std::make_shared<QuarteredImageRep>(QSizeF(10, 10));
    MemoryViewHost host;
    {
      NorvexView view;
      view.setHost(&host);
      view.setImageRep(rep);
    }
    emit rep->renderingArrived();
    QVERIFY(host.calls.isEmpty());
  }

  void withoutAPictureNothingButTheOverlayIsDrawn() {
    ViewFixture f;
    f.view.setImageRep(nullptr);
    f.view.selectBounds();
    const QImage image = f.paint();
    QVERIFY(image.pixelColor(0, 50) != QColor(Qt::black));
    QCOMPARE(image.pixelColor(100, 50), QColor(Qt::black));
  }

  void noMouseMarksAnythingWithoutAPicture() {
    ViewFixture f;
    f.drag({{-50, -20}});
    f.drag({{-10, 10}});
    f.view.setImageRep(nullptr);
    QVERIFY(!f.view.mouseDown());
    QVERIFY(!f.view.mouseDownOnHandle(Qt::RightEdge, {-10, 0}));
    f.view.mouseUp({30, 30});
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 40, 30));
  }

  void noMouseMarksAnythingInAWindowThatDoesNotBecomeActive() {
    ViewFixture f;
    f.drag({{-50, -20}});
    f.drag({{-10, 10}});
    f.host.agreesToFirstResponder = false;
    QVERIFY(!f.view.mouseDown());
    QVERIFY(!f.view.mouseDownOnHandle(Qt::RightEdge, {-10, 0}));
    f.host.agreesToFirstResponder = true;
    QVERIFY(f.view.mouseDownOnHandle(Qt::RightEdge, {-10, 0}));
    f.view.mouseDragged({-5, 0});
    f.view.mouseUp({-5, 0});
    QCOMPARE(f.view.selectRect(), QRectF(-50, -20, 45, 30));
  }

  void aPictureWithoutHostTakesNoMouse() {
    NorvexView view(QRectF(0, 0, 50, 50));
    view.setImageRep(std::make_shared<QuarteredImageRep>(QSizeF(50, 50)));
    view.selectBounds();
    QVERIFY(!view.mouseDown());
    QVERIFY(!view.mouseDownOnHandle(Qt::RightEdge, {50, 25}));
  }

  void aViewWithoutHostWorks() {
    NorvexView view(QRectF(0, 0, 50, 50));
    view.setRotate(1, false);
    view.selectBounds();
    view.clearSelectRect();
    view.resetCursorRects();
    QVERIFY(!view.mouseDown());
    QVERIFY(!view.acceptsFirstMouse());
    QCOMPARE(view.visibleRect(), view.bounds());
  }

  void anAngleThatIsNoNumberDrawsNothing() {
    ViewFixture f;
    f.view.setRotate(std::numeric_limits<double>::quiet_NaN(), false);
    QVERIFY(std::isnan(f.view.rotate()));
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    const QImage before = image;
    QPainter painter(&image);
    f.view.selectBounds();
    f.view.drawRect(painter, QRectF(), DrawingDestination::Screen);
    painter.end();
    QCOMPARE(image, before);
  }

  void aHugeBoxIsDrawnAndSelectedInPart() {
    ViewFixture f;
    f.host.paint = nullptr;
    f.view.setImageSize({1e9, 1e9});
    f.view.setRotate(0.5, false);
    f.view.selectBounds();
    QCOMPARE(f.view.selectRect().width(), f.view.bounds().width());
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setTransform(QTransform(16, 0, 0, -16, 32, 32));
    f.view.drawRect(painter, QRectF(-2, -2, 4, 4), DrawingDestination::Screen);
    painter.end();
    QVERIFY(f.delegate.last.at(2).contains('\t'));
  }

  void theOldBitmapIsTurnedAtOnce() {
    MemoryPictureService service;
    const auto rep = NSPDFImageRep::imageRepWithData(service, "%PDF-1.4");
    QVERIFY(rep.ok());
    ViewFixture f;
    f.view.setImageRep(rep.value());
    f.paint();
    QTRY_VERIFY(f.host.calls.contains("setNeedsDisplay"));
    QTRY_VERIFY((f.paint(), rep.value()->isSharp()));
    const QColor lowerLeft = f.image.pixelColor(5, 95), upperRight = f.image.pixelColor(195, 5);
    QVERIFY(lowerLeft != QColor(Qt::black) && upperRight != lowerLeft);
    service.lastProcess()->hold(PictureCall::Render);  // nothing new arrives from now on
    f.view.setRotate(M_PI, false);
    f.paint();
    QVERIFY(!rep.value()->isSharp());
    const auto near = [](const QColor& a, const QColor& b) {
      return std::abs(a.red() - b.red()) < 8 && std::abs(a.green() - b.green()) < 8;
    };
    QVERIFY(near(f.image.pixelColor(194, 4), lowerLeft));
    QVERIFY(near(f.image.pixelColor(4, 94), upperRight));
    service.lastProcess()->release(PictureCall::Render);
  }

  void aPictureWithoutSizeIsNoReasonToFall() {
    ViewFixture f(QSizeF(0, 0));
    QCOMPARE(f.view.frame().size(), QSizeF(0, 0));
    f.drag({{5, 5}});
    QCOMPARE(f.view.selectRect().topLeft(), QPointF(0, 0));
    f.drag({{9, 9}});
    f.view.selectBounds();
    QCOMPARE(f.delegate.last, (QStringList{"", "", ""}));
  }
};

NORVEX_TEST(NorvexViewTest)
#include "norvex_view_test.moc"
