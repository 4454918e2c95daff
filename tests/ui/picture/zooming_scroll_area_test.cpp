// Layout of bars and menu, wheel, keys, panning and what is painted.
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

using namespace norvex;

namespace {

/// An area of 500 × 400 around a view of 1000 × 800.
struct Area {
  Area() {
    area.setDocumentWidget(widget);
    widget->view().setImageSize({1000, 800});
    widget->view().setRotate(0, false);
    area.resize(500, 400);
    area.show();
    if (!QTest::qWaitForWindowExposed(&area)) qFatal("no window");
    area.scrollView().setFactor(1);
    area.scrollToTop();
  }
  void wheel(QPoint angle, Qt::KeyboardModifiers modifiers, QPointF at = {100, 50}) {
    QWheelEvent event(at, area.mapToGlobal(at), {}, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&area, &event);
  }
  /// As a touchpad tells it, at (300, 120).
  void gesture(Qt::NativeGestureType type, double value, QPointF delta) {
    const QPointF at(300, 120);
    QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, at, at,
                              widget->mapToGlobal(at), value, delta);
    QCoreApplication::sendEvent(widget, &event);
  }
  /// A picture that can be selected from, of that size.
  void givePicture(const QSizeF& size = {1000, 800}) {
    static MemoryPictureService pictures;
    const auto made = NSPDFImageRep::imageRepWithData(pictures, emptyPdf(size));
    if (!made) qFatal("no picture");
    widget->view().setImageRep(*made);
    widget->view().setImageSize(size);
    widget->view().setRotate(0, false);
    area.scrollToTop();
  }
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
  }
  ZoomingScrollArea area;
  NorvexViewWidget* widget = new NorvexViewWidget;
};

}  // namespace

class ZoomingScrollAreaTest : public QObject {
  Q_OBJECT
 private slots:
  void theMenuHasElevenTitles() {
    Area a;
    QCOMPARE(a.area.popUp()->count(), 11);
    QCOMPARE(a.area.popUp()->itemText(0), QStringLiteral("10%"));
    QCOMPARE(a.area.popUp()->itemData(0).toDouble(), 0.10000000149011612);
    QCOMPARE(a.area.popUp()->itemText(10), QStringLiteral("1600%"));
  }

  void aFactorBesideTheMenuIsAsClearAsThoseOfIt() {
    Area a;
    const auto darkest = [&a] {
      QCoreApplication::processEvents();
      // The text alone, not the arrow and the frame.
      const QImage shown = a.area.popUp()->grab().toImage();
      int least = 255;
      for (int y = 4; y < shown.height() - 4; ++y)
        for (int x = 4; x < shown.width() / 2; ++x) least = std::min(least, qGray(shown.pixel(x, y)));
      return least;
    };
    QPalette faint = a.area.palette();
    faint.setColor(QPalette::PlaceholderText, faint.color(QPalette::Button));
    a.area.popUp()->setPalette(faint);
    const int ofTheMenu = darkest();
    a.area.popUp()->setPlaceholderText("111%");
    a.area.popUp()->setCurrentIndex(-1);
    QVERIFY2(std::abs(darkest() - ofTheMenu) < 24, qPrintable(QString::number(darkest())));
  }

  void theMenuStandsLeftOfTheBarAndHidesWhenThereIsNoRoom() {
    Area a;
    QVERIFY(a.area.popUp()->x() >= 0);
    QVERIFY(a.area.horizontalBar()->x() >= a.area.popUp()->geometry().right());
    a.area.resize(a.area.popUp()->width() + 60, 400);
    QCoreApplication::processEvents();
    QVERIFY(a.area.popUp()->geometry().right() < 0);
    QCOMPARE(a.area.horizontalBar()->x(), 0);
  }

  void barsFollowTheViewAndMoveIt() {
    Area a;
    const QSizeF room = a.area.contentSize();
    QCOMPARE(a.area.horizontalBar()->maximum(), int(1000 - room.width()));
    QCOMPARE(a.area.verticalBar()->maximum(), int(800 - room.height()));
    QCOMPARE(a.widget->toView({0, 0}), QPointF(-500, 400));
    a.area.horizontalBar()->setValue(30);
    a.area.verticalBar()->setValue(40);
    QCOMPARE(a.widget->toView({0, 0}), QPointF(-470, 360));
    QCOMPARE(a.widget->fromView({-470, 360}), QPointF(0, 0));
    QCOMPARE(a.widget->visibleRect(), QRectF(-470, 360 - room.height(), room.width(), room.height()));
  }

  void theVerticalBarTakesRoomOnlyWhileThereIsSomethingToScroll() {
    Area a;
    const int bar = ZoomingScrollArea::barExtent();
    QVERIFY(a.area.verticalBar()->isVisible());
    QCOMPARE(a.area.contentSize().width(), 500.0 - bar);
    QCOMPARE(a.area.roomWithoutBar().width(), 500.0);
    a.area.scrollView().setFactor(a.area.fittingFactor());
    QTRY_VERIFY(!a.area.verticalBar()->isVisible());
    QCOMPARE(a.area.contentSize(), a.area.roomWithoutBar());
    QCOMPARE(a.area.clip()->width(), 500);
    QCOMPARE(a.area.horizontalBar()->maximum(), 0);
    a.area.scrollView().setFactor(2);
    QTRY_VERIFY(a.area.verticalBar()->isVisible());
    QCOMPARE(a.area.clip()->width(), 500 - bar);
  }

  void theFactorThatFitsTheWidthLeavesNothingToScrollSideways() {
    Area a;
    a.area.resize(500, 300);  // too low for the height of it
    a.area.scrollView().setFactor(a.area.fittingWidthFactor());
    QTRY_VERIFY(a.area.verticalBar()->isVisible());
    QTRY_COMPARE(a.area.horizontalBar()->maximum(), 0);
    a.area.resize(500, 600);
    a.area.scrollView().setFactor(a.area.fittingWidthFactor());
    QCOMPARE(a.area.scrollView().factor(), 0.5);
    QTRY_VERIFY(!a.area.verticalBar()->isVisible());
  }

  void wheelScrollsAndShiftMakesItSideways() {
    Area a;
    a.wheel({0, -120}, Qt::NoModifier);
    QCOMPARE(a.area.verticalBar()->value(), 72);
    a.wheel({0, -120}, Qt::ShiftModifier);
    QCOMPARE(a.area.horizontalBar()->value(), 72);
    a.wheel({0, 240}, Qt::NoModifier);
    QCOMPARE(a.area.verticalBar()->value(), 0);
  }

  void controlWheelZoomsAtThePointer() {
    Area a;
    a.area.verticalBar()->setValue(200);
    a.area.horizontalBar()->setValue(200);
    const QPointF under = a.widget->toView({100, 50});
    a.wheel({0, 120}, Qt::ControlModifier);
    QCOMPARE(a.area.scrollView().factor(), 1.25);
    const QPointF now = a.widget->toView({100, 50});
    QVERIFY(std::abs(now.x() - under.x()) <= 0.5 && std::abs(now.y() - under.y()) <= 0.5);
  }

  void aPinchZoomsBetweenTheFingers() {
    Area a;
    a.area.verticalBar()->setValue(200);
    a.area.horizontalBar()->setValue(200);
    const QPointF under = a.widget->toView({300, 120});
    a.gesture(Qt::ZoomNativeGesture, 0.25, {});
    a.gesture(Qt::ZoomNativeGesture, 0.2, {});
    QCOMPARE(a.area.scrollView().factor(), 1.5);
    const QPointF now = a.widget->toView({300, 120});
    QVERIFY(std::abs(now.x() - under.x()) <= 0.5 && std::abs(now.y() - under.y()) <= 0.5);
    for (int i = 0; i < 40; ++i) a.gesture(Qt::ZoomNativeGesture, 0.5, {});
    QCOMPARE(a.area.scrollView().factor(), 16.0);
    for (int i = 0; i < 40; ++i) a.gesture(Qt::ZoomNativeGesture, -0.9, {});
    QCOMPARE(a.area.scrollView().factor(), 0.01);
  }

  void twoFingersTakeThePictureAlong() {
    Area a;
    QWheelEvent event({100, 50}, a.area.mapToGlobal(QPointF(100, 50)), {-30, -70}, {-15, -35}, Qt::NoButton,
                      Qt::NoModifier, Qt::ScrollUpdate, false);
    QCoreApplication::sendEvent(&a.area, &event);
    QCOMPARE(a.area.horizontalBar()->value(), 30);  // to the pixel, not in notches
    QCOMPARE(a.area.verticalBar()->value(), 70);
    a.gesture(Qt::PanNativeGesture, 0, {-10, 20});
    QCOMPARE(a.area.horizontalBar()->value(), 40);
    QCOMPARE(a.area.verticalBar()->value(), 50);
    QCOMPARE(a.area.scrollView().factor(), 1.0);
  }

  void theMiddleButtonPans() {
    Area a;
    a.area.verticalBar()->setValue(200);
    QTest::mousePress(a.widget, Qt::MiddleButton, {}, {100, 100});
    QTest::mouseMove(a.widget, {90, 70});
    QTest::mouseRelease(a.widget, Qt::MiddleButton, {}, {90, 70});
    QCOMPARE(a.area.verticalBar()->value(), 230);
    QCOMPARE(a.area.horizontalBar()->value(), 10);
  }

  void arrowsScrollWhereNothingIsSelected() {
    Area a;
    QTest::keyClick(a.widget, Qt::Key_Down);
    QCOMPARE(a.area.verticalBar()->value(), 24);
    QTest::keyClick(a.widget, Qt::Key_End);
    QCOMPARE(a.area.verticalBar()->value(), a.area.verticalBar()->maximum());
  }

  void aSmallViewIsCentredOnWholePixels() {
    Area a;
    a.widget->view().setImageSize({101, 51});
    a.widget->view().setRotate(0.1, false);
    a.widget->view().setRotate(0, false);
    const QPointF corner = a.widget->fromView({-50.5, 25.5});
    QCOMPARE(corner, QPointF(corner.toPoint()));
    const QSizeF room = a.area.contentSize();
    QVERIFY(std::abs(corner.x() - (room.width() - 101) / 2) <= 0.5);
  }

  void theBackgroundIsAColourOrACheckerboard() {
    Area a;
    a.area.setBackgroundColor(QColor(10, 200, 30));
    QCOMPARE(a.widget->grab().toImage().pixelColor(200, 200), QColor(10, 200, 30));
    a.area.setDrawsBackground(false);
    QVERIFY(a.widget->grab().toImage().pixelColor(200, 200) != QColor(10, 200, 30));
    QCOMPARE(a.area.backgroundColor(), QColor(10, 200, 30));
  }

  // ---- the left button, which is the view's

  void whileADragLastsNothingElseIsHandled() {
    Area a;
    a.givePicture();
    QTest::mousePress(a.widget, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(a.widget, {150, 120});
    a.wheel({0, 120}, Qt::ControlModifier);
    a.wheel({0, -120}, Qt::NoModifier);
    QTest::keyClick(&a.area, Qt::Key_PageDown);
    QTest::mousePress(a.widget, Qt::MiddleButton, {}, {150, 120});
    QTest::mouseMove(a.widget, {150, 100});
    QTest::mouseRelease(a.widget, Qt::MiddleButton, {}, {150, 100});
    QCOMPARE(a.area.scrollView().factor(), 1.0);
    QCOMPARE(a.area.scrollOffset(), QPointF(0, 0));
    QTest::mouseRelease(a.widget, Qt::LeftButton, {}, {150, 100});
    QCOMPARE(a.widget->view().selectRect().size(), QSizeF(1, 0));
    a.wheel({0, 120}, Qt::ControlModifier);
    QCOMPARE(a.area.scrollView().factor(), 1.25);
  }

  void losingTheFocusDoesNotEndADrag() {
    Area a;
    a.givePicture();
    a.drag({100, 100}, {150, 120});
    QTest::mousePress(a.widget, Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(a.widget, {200, 200});
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(a.widget, &deactivate);
    QTest::mouseMove(a.widget, {250, 180});
    QTest::mouseRelease(a.widget, Qt::LeftButton, {}, {250, 180});
    QCOMPARE(a.widget->view().selectRect(), QRectF(a.widget->toView({150, 180}), QSizeF(100, 60)));
  }

  void pressesBesideThePictureAreNoneOfTheViews() {
    Area a;
    a.givePicture({100, 80});
    const QPoint beside(20, 20), inside = a.widget->rect().center();
    a.drag(beside, beside + QPoint(10, 10));
    QCOMPARE(a.widget->view().selectRect().size(), QSizeF(0, 0));
    a.widget->view().selectBounds();
    QTest::mouseClick(a.widget, Qt::LeftButton, {}, beside);
    QCOMPARE(a.widget->view().selectRect(), a.widget->view().bounds());
    QTest::mouseClick(a.widget, Qt::LeftButton, {}, inside);
    QCOMPARE(a.widget->view().selectRect().size(), QSizeF(0, 0));
    // A drag that began on the picture may leave it.
    a.drag(inside, beside);
    QCOMPARE(a.widget->view().selectRect(), QRectF(QPointF(-50, 40), QSizeF(1, 0)));
  }

  void theCrosshairIsShownOverThePictureAlone() {
    Area a;
    a.givePicture({100, 80});
    const QPoint inside = a.widget->rect().center();
    QTest::mouseMove(a.widget, inside);
    QCOMPARE(a.widget->cursor().shape(), Qt::CrossCursor);
    QTest::mouseMove(a.widget, QPoint(20, 20));
    QCOMPARE(a.widget->cursor().shape(), Qt::ArrowCursor);
    a.area.scrollView().setFactor(4);
    QTest::mouseMove(a.widget, QPoint(60, 60));
    QCOMPARE(a.widget->cursor().shape(), Qt::CrossCursor);
  }

  // ---- the keyboard's focus, and Space

  void aLineTellsOfTheFocusThatCameWithTabAlone() {
    Area a;
    a.area.setBackgroundColor(QColor(10, 200, 30));
    QPalette marked = a.area.palette();
    marked.setColor(QPalette::Highlight, Qt::magenta);
    a.area.setPalette(marked);
    const auto hasLine = [&a] {
      return a.widget->grab().toImage().pixelColor(1, 200) == QColor(Qt::magenta);
    };
    for (const auto& [reason, expected] :
         {std::pair(Qt::TabFocusReason, true), std::pair(Qt::BacktabFocusReason, true),
          std::pair(Qt::OtherFocusReason, false), std::pair(Qt::MouseFocusReason, false)}) {
      QFocusEvent in(QEvent::FocusIn, reason), out(QEvent::FocusOut, Qt::OtherFocusReason);
      QCoreApplication::sendEvent(&a.area, &in);
      QCOMPARE(hasLine(), expected);
      QCoreApplication::sendEvent(&a.area, &out);
      QVERIFY(!hasLine());
    }
  }

  void spaceMakesTheLeftButtonPan() {
    Area a;
    a.givePicture();
    const QPoint from(200, 200), to(170, 150);
    QTest::keyPress(&a.area, Qt::Key_Space);
    QVERIFY(a.area.holdsSpace());
    QCOMPARE(a.widget->cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(a.widget, Qt::LeftButton, {}, from);
    QCOMPARE(a.widget->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseMove(a.widget, to);
    QTest::mouseRelease(a.widget, Qt::LeftButton, {}, to);
    QCOMPARE(a.area.scrollOffset(), QPointF(30, 50));
    QCOMPARE(a.widget->cursor().shape(), Qt::OpenHandCursor);
    QTest::keyRelease(&a.area, Qt::Key_Space);
    QVERIFY(!a.area.holdsSpace());
    QVERIFY(a.widget->cursor().shape() != Qt::OpenHandCursor);
    QCOMPARE(a.widget->view().selectRect().size(), QSizeF(0, 0));
  }

  void spaceIsTheAreasHoweverOftenTheKeyboardRepeatsIt() {
    Area a;
    const auto sent = [&a](QEvent::Type type, int key, bool repeated) {
      QKeyEvent event(type, key, Qt::NoModifier, QStringLiteral(" "), repeated);
      QCoreApplication::sendEvent(&a.area, &event);
      return event.isAccepted();
    };
    QVERIFY(sent(QEvent::KeyPress, Qt::Key_Space, false));
    QVERIFY(sent(QEvent::KeyRelease, Qt::Key_Space, true));
    QVERIFY2(a.area.holdsSpace(), "a repetition let it go");
    QVERIFY(sent(QEvent::KeyPress, Qt::Key_Space, true));
    QVERIFY(sent(QEvent::KeyRelease, Qt::Key_Space, false));
    QVERIFY(!a.area.holdsSpace());
    QVERIFY(!sent(QEvent::KeyPress, Qt::Key_A, false));
    QVERIFY(!sent(QEvent::KeyRelease, Qt::Key_A, false));
  }

  // ---- cards

  void cardsAreCentredAndStackedAtTheirEdge() {
    struct Card final : QWidget {
      explicit Card(QSize size) : size_(size) {}
      QSize sizeHint() const override { return size_; }
      QSize size_;
    };
    Area a;
    a.area.resize(900, 400);
    Card upper({50, 30}), hidden({50, 60}), next({50, 20}), lower({100, 40}), above({2000, 10});
    for (Card* card : {&upper, &hidden, &next}) a.area.addCard(card, Qt::TopEdge);
    for (Card* card : {&lower, &above}) a.area.addCard(card, Qt::BottomEdge);
    for (Card* card : {&upper, &next, &lower, &above}) card->show();
    hidden.hide();
    const int width = a.area.clip()->width(), height = a.area.clip()->height();
    QCOMPARE(upper.geometry(), QRect((width - 640) / 2, 12, 640, 30));
    QCOMPARE(next.geometry(), QRect((width - 640) / 2, 54, 640, 20));
    QCOMPARE(lower.geometry(), QRect((width - 100) / 2, height - 52, 100, 40));
    QCOMPARE(above.geometry(), QRect((width - 640) / 2, height - 74, 640, 10));
    a.area.resize(400, 400);
    QCOMPARE(upper.width(), a.area.clip()->width() - 24);
    upper.hide();
    QCOMPARE(next.y(), 12);
    for (Card* card : {&upper, &hidden, &next, &lower, &above}) card->setParent(nullptr);
  }

  void withoutBarsThereIsNothingButThePicture() {
    Area a;
    a.area.setBare(true);
    QCOMPARE(a.area.clip()->size(), QSize(500, 400));
    QVERIFY(!a.area.popUp()->isVisible() && !a.area.horizontalBar()->isVisible() &&
            !a.area.verticalBar()->isVisible());
    a.area.setBare(false);
    QVERIFY(a.area.popUp()->isVisible());
    // What stands below the picture has room for the menu, with two pixels above and below it.
    QCOMPARE(a.area.height() - a.area.clip()->height(),
             std::max(a.area.popUp()->sizeHint().height() + 4, 22));
    QVERIFY(!a.area.popUp()->hasFrame());
  }

  void aPointOutsideScrollsOnlyALittle() {
    Area a;
    QVERIFY(a.widget->autoscroll(a.widget->toView({5000, 100})));
    QCOMPARE(a.area.horizontalBar()->value(), 40);
    QVERIFY(!a.widget->autoscroll(a.widget->toView({100, 100})));
  }

  void aCardThatGoesGivesTheFocusToThePicture() {
    Area f;
    auto* card = new QWidget;
    auto* button = new QPushButton(card);
    QLineEdit beside(&f.area);
    beside.show();
    f.area.addCard(card, Qt::TopEdge);
    QWidget::setTabOrder(button, &beside);
    card->show();
    button->setFocus();
    QVERIFY(button->hasFocus());
    card->hide();
    QVERIFY(f.area.hasFocus());
    card->show();
    beside.setFocus();
    card->hide();
    QVERIFY(beside.hasFocus());  // which it never had
  }
};

NORVEX_TEST(ZoomingScrollAreaTest)
#include "zooming_scroll_area_test.moc"
