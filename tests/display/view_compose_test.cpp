// Vector output of the views: which rectangle of which rotation the picture process is asked for.
#include "display/view_compose.h"

#include <cmath>
#include <limits>

#include "display/norvex_rendering_view.h"
#include "display/view_fixture.h"
#include "kit/test_main.h"

using namespace norvex;
using norvex::kit::QuarteredImageRep;
using norvex::kit::ViewFixture;

class ViewComposeTest : public QObject {
  Q_OBJECT
 private slots:
  void theViewAsksForItsOwnCoordinates() {
    ViewFixture f;
    f.view.setRotate(0.5, false);
    QVERIFY(f.view.dataWithPDFInsideRect({-10, -20, 30, 40}).startsWith("%PDF"));
    QVERIFY(f.view.dataWithEPSInsideRect({1, 2, 3, 4}).startsWith("%!PS"));
    const auto requests = f.rep->memory->composeRequests();
    QCOMPARE(requests.size(), 2);
    QCOMPARE(requests[0].format, VectorFormat::Pdf);
    QCOMPARE(requests[0].rect, QRectF(-10, -20, 30, 40));
    QCOMPARE(requests[0].rotate, 0.5);
    QCOMPARE(requests[0].page, 0);
    QCOMPARE(requests[1].format, VectorFormat::Eps);
    QCOMPARE(requests[1].rect, QRectF(1, 2, 3, 4));
  }

  void theRenderingViewHasThePicturesCornerAtItsOrigin() {
    QuarteredImageRep rep({200, 100});
    const NorvexRenderingView view(QRectF(0, 0, 200, 100), &rep);
    QVERIFY(!view.dataWithPDFInsideRect({0, 0, 200, 100}).isEmpty());
    QVERIFY(!view.dataWithEPSInsideRect({10, 20, 30, 40}).isEmpty());
    const auto requests = rep.memory->composeRequests();
    QCOMPARE(requests[0].rect, QRectF(-100, -50, 200, 100));
    QCOMPARE(requests[0].rotate, 0.0);
    QCOMPARE(requests[1].rect, QRectF(-90, -30, 30, 40));
  }

  /// A size that was set from outside moves the picture's centre off the view's origin; the page follows.
  void aSizeOtherThanThePicturesOwnShiftsTheRectangle() {
    ViewFixture f;
    f.view.setImageSize({220, 140});  // the picture's centre is drawn at R·(-10, -20)
    f.view.setRotate(M_PI / 2, false);
    QVERIFY(!f.view.dataWithPDFInsideRect({0, 0, 10, 10}).isEmpty());
    const QRectF rect = f.rep->memory->composeRequests().last().rect;
    QCOMPARE(rect.x(), -20.0);
    QCOMPARE(rect.y(), 10.0);
    QCOMPARE(rect.size(), QSizeF(10, 10));
  }

  void nothingIsAskedForWhatCannotBe() {
    ViewFixture f;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QRectF& rect :
         {QRectF(), QRectF(0, 0, 0, 5), QRectF(0, 0, 5, -1), QRectF(nan, 0, 5, 5), QRectF(0, 0, nan, 5),
          QRectF(0, 0, std::numeric_limits<double>::infinity(), 5)}) {
      QVERIFY(f.view.dataWithPDFInsideRect(rect).isEmpty());
      QVERIFY(f.view.dataWithEPSInsideRect(rect).isEmpty());
    }
    f.view.setRotate(nan, false);
    QVERIFY(f.view.dataWithPDFInsideRect({0, 0, 5, 5}).isEmpty());
    QCOMPARE(f.rep->memory->calls(PictureCall::Compose), 0);
    f.view.setImageRep(nullptr);
    const auto none = f.view.composeInsideRect(VectorFormat::Pdf, {0, 0, 5, 5});
    QVERIFY(!none);
    QCOMPARE(none.error().kind, ErrorKind::CannotRead);
    QCOMPARE(none.error().message, "there is no picture");
  }

  void aDeadProcessIsAnErrorAndNoBytes() {
    ViewFixture f;
    f.rep->memory->fail(PictureCall::Compose, {ErrorKind::Died, "gone"});
    QVERIFY(f.view.dataWithEPSInsideRect(f.view.bounds()).isEmpty());
    const auto made = f.view.composeInsideRect(VectorFormat::Pdf, f.view.bounds());
    QVERIFY(!made);
    QCOMPARE(made.error().kind, ErrorKind::Died);
    f.rep->memory->succeed(PictureCall::Compose);
    QVERIFY(!f.view.dataWithEPSInsideRect(f.view.bounds()).isEmpty());
  }

  void aCancelledRequestIsToldAsOne() {
    ViewFixture f;
    CancelToken cancel;
    cancel.cancel();
    f.rep->memory->hold(PictureCall::Compose);
    const auto made = f.view.composeInsideRect(VectorFormat::Pdf, f.view.bounds(), cancel);
    QVERIFY(!made);
    QCOMPARE(made.error().kind, ErrorKind::Cancelled);
  }
};

NORVEX_TEST(ViewComposeTest)
#include "view_compose_test.moc"
