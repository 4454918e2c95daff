// The mark around a place of the picture.
#include "ui/picture/picture_mark.h"

#include <QScrollBar>

#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

using namespace norvex;

namespace {

/// A picture of 200 × 100 points in a window that is smaller than the zoomed picture.
class Shown {
 public:
  Shown() {
    area.setDocumentWidget(widget);
    area.resize(300, 220);
    area.show();
    if (!QTest::qWaitForWindowExposed(&area)) qFatal("the picture is not shown");
    const auto rep = NSPDFImageRep::imageRepWithData(service, emptyPdf({200, 100}));
    if (!rep) qFatal("no picture");
    widget->view().setImageRep(*rep);
    widget->view().setImageSize({200, 100});
    widget->view().setRotate(0, false);
  }
  [[nodiscard]] PictureMark* mark() const { return widget->findChild<PictureMark*>(); }
  [[nodiscard]] QRectF frame() const { return mark()->frame().boundingRect(); }

  MemoryPictureService service;
  ZoomingScrollArea area;
  NorvexViewWidget* widget = new NorvexViewWidget;
};

}  // namespace

class PictureMarkTest : public QObject {
  Q_OBJECT
 private slots:
  void aPlaceThatIsNotSeenIsScrolledToAndFramed() {
    Shown shown;
    shown.area.scrollView().zoomTo(8);
    shown.area.setScrollOffset({0, 0});
    PictureMark::show(*shown.widget, {190, 5, 4, 2});
    QVERIFY(shown.mark()->isVisible());
    QVERIFY2(QRectF(shown.widget->rect()).contains(shown.frame()), "beside the window");
    const QRectF place(shown.widget->fromView({90, -45}), shown.widget->fromView({94, -43}));
    QVERIFY(shown.frame().contains(place.normalized()));
  }

  void aDotHasAFrameThatCanBeSeen() {
    Shown shown;
    PictureMark::show(*shown.widget, {100, 50, 0, 0});
    QCOMPARE(shown.frame().size(), QSizeF(18, 18));
    PictureMark::show(*shown.widget, {100, 50, 40, 20});
    const double zoom = shown.widget->fromView({1, 0}).x() - shown.widget->fromView({0, 0}).x();
    QCOMPARE(shown.frame().size(), QSizeF(40, 20) * zoom + QSizeF(10, 10));
  }

  void theFrameTurnsAndZoomsWithThePicture() {
    Shown shown;
    PictureMark::show(*shown.widget, {50, 40, 100, 20});
    const QRectF flat = shown.frame();
    const QPolygonF corners = shown.mark()->frame();
    QCOMPARE(corners[0] + corners[2], corners[1] + corners[3]);
    QVERIFY(corners[1] != corners[3]);
    shown.widget->view().setRotate(M_PI / 2, false);
    QVERIFY(qAbs(shown.frame().width() - flat.height()) < 1e-6);
    QVERIFY(qAbs(shown.frame().height() - flat.width()) < 1e-6);
    shown.area.scrollView().zoomTo(2);
    QVERIFY(shown.frame().height() > 1.8 * flat.width());
  }

  void theNextTakesItsPlaceAndAPressTakesItAway() {
    Shown shown;
    PictureMark::show(*shown.widget, {0, 0, 10, 10});
    PictureMark::show(*shown.widget, {100, 50, 10, 10});
    QCOMPARE(shown.widget->findChildren<PictureMark*>().size(), 1);
    for (const QEvent::Type type : {QEvent::Leave, QEvent::Enter}) {
      QEvent event(type);
      QCoreApplication::sendEvent(shown.widget, &event);
    }
    QVERIFY(shown.mark()->isVisible());
    QTest::mousePress(shown.widget, Qt::LeftButton);
    QVERIFY(!shown.mark()->isVisible());
  }

  void itGoesByItself() {
    Shown shown;
    PictureMark::show(*shown.widget, {0, 0, 10, 10});
    QTRY_VERIFY_WITH_TIMEOUT(!shown.mark()->isVisible(), 3 * PictureMark::shownMs);
  }

  void withoutAPictureNothingIsMarked() {
    Shown shown;
    shown.widget->view().setImageRep(nullptr);
    PictureMark::show(*shown.widget, {0, 0, 10, 10});
    QVERIFY(!shown.mark());
  }
};

NORVEX_TEST(PictureMarkTest)
#include "picture_mark_test.moc"
