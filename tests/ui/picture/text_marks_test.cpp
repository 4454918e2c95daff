// The sheet over a picture that marks its text, and selects it.
#include "ui/picture/text_marks.h"

#include <QMouseEvent>
#include <QSignalSpy>

#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

using namespace norvex;

namespace {

/// A picture of 200 × 100 points in natural size, in the middle of a larger window.
struct Shown {
  Shown() {
    area.setDocumentWidget(widget);
    static MemoryPictureService pictures;
    const auto made = NSPDFImageRep::imageRepWithData(pictures, emptyPdf({200, 100}));
    if (!made) qFatal("no picture");
    widget->view().setImageRep(*made);
    widget->view().setImageSize({200, 100});
    widget->view().setRotate(0, false);
    area.resize(400, 300);
    area.show();
    if (!QTest::qWaitForWindowExposed(&area)) qFatal("no window");
    area.scrollView().setFactor(1);
    marks = new TextMarks(*widget);
  }
  /// Where a point of the picture is shown.
  [[nodiscard]] QPointF at(double x, double y) const { return widget->fromView({x - 100, y - 50}); }
  void send(QEvent::Type type, QPointF point, Qt::MouseButton button, Qt::MouseButtons down) const {
    QMouseEvent event(type, point, marks->mapToGlobal(point), button, down, Qt::NoModifier);
    QCoreApplication::sendEvent(marks, &event);
  }

  ZoomingScrollArea area;
  NorvexViewWidget* widget = new NorvexViewWidget;
  TextMarks* marks = nullptr;
};

}  // namespace

class TextMarksTest : public QObject {
  Q_OBJECT
 private slots:
  void theyAreThereWhileSomethingIsMarkedOrSelected() {
    const Shown s;
    QVERIFY(s.marks->isHidden());
    s.marks->setFound({{10, 10, 20, 10}}, {});
    QVERIFY(!s.marks->isHidden());
    s.marks->setFound({}, {});
    QVERIFY(s.marks->isHidden());
    s.marks->setFound({}, {{10, 10, 20, 10}});
    QVERIFY(!s.marks->isHidden());
    s.marks->setFound({}, {});
    s.marks->setSelected({{10, 10, 20, 10}});
    QVERIFY(!s.marks->isHidden());
    s.marks->setSelected({});
    QVERIFY(s.marks->isHidden());
    s.marks->setSelecting(true);
    QVERIFY(!s.marks->isHidden());
    QCOMPARE(s.marks->geometry(), s.widget->rect());
  }

  void aMarkCoversItsPlaceAndHalfAPointAroundIt() {
    Shown s;
    s.area.setBackgroundColor(Qt::white);
    s.marks->setSelected({{50, 40, 20, 10}});
    const QImage shown = s.widget->grab().toImage();
    const auto isBlue = [&](double x, double y) {
      const QColor color = shown.pixelColor(s.at(x, y).toPoint());
      return color.blue() > color.red() + 20;
    };
    QVERIFY(isBlue(51, 45) && isBlue(68, 45) && isBlue(60, 42) && isBlue(60, 49));
    QVERIFY(!isBlue(48, 45) && !isBlue(72, 45) && !isBlue(60, 38) && !isBlue(60, 53));
  }

  void whileItSelectsItTellsWhereThePointerIsInThePicture() {
    const Shown s;
    s.marks->setSelecting(true);
    QSignalSpy pressed(s.marks, &TextMarks::pressed), dragged(s.marks, &TextMarks::dragged),
        released(s.marks, &TextMarks::released), hovered(s.marks, &TextMarks::hovered);
    s.send(QEvent::MouseMove, s.at(20, 30), Qt::NoButton, Qt::NoButton);
    QCOMPARE(hovered.value(0).value(0).toPointF(), QPointF(20, 30));
    s.send(QEvent::MouseButtonPress, s.at(30, 40), Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(pressed.value(0).value(0).toPointF(), QPointF(30, 40));
    s.send(QEvent::MouseMove, s.at(60, 45), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dragged.value(0).value(0).toPointF(), QPointF(60, 45));
    s.send(QEvent::MouseButtonRelease, s.at(70, 50), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(released.value(0).value(0).toPointF(), QPointF(70, 50));
    QCOMPARE(hovered.size(), 1);
    s.send(QEvent::MouseButtonPress, s.at(30, 40), Qt::RightButton, Qt::RightButton);
    s.send(QEvent::MouseButtonRelease, s.at(30, 40), Qt::RightButton, Qt::NoButton);
    QCOMPARE(pressed.size(), 1);
    QCOMPARE(released.size(), 1);
  }

  void whileSpaceIsHeldADragIsTheViewsUntilItEnds() {
    Shown s;
    s.marks->setSelecting(true);
    QCOMPARE(s.marks->cursor().shape(), Qt::IBeamCursor);
    QSignalSpy pressed(s.marks, &TextMarks::pressed), dragged(s.marks, &TextMarks::dragged),
        released(s.marks, &TextMarks::released), hovered(s.marks, &TextMarks::hovered);
    QTest::keyPress(&s.area, Qt::Key_Space);
    QVERIFY(s.marks->cursor().shape() != Qt::IBeamCursor);
    s.send(QEvent::MouseMove, s.at(20, 30), Qt::NoButton, Qt::NoButton);
    s.send(QEvent::MouseButtonPress, s.at(30, 40), Qt::LeftButton, Qt::LeftButton);
    QTest::keyRelease(&s.area, Qt::Key_Space);
    s.send(QEvent::MouseMove, s.at(60, 45), Qt::NoButton, Qt::LeftButton);
    s.send(QEvent::MouseButtonRelease, s.at(60, 45), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(pressed.size() + dragged.size() + released.size() + hovered.size(), 0);
    s.send(QEvent::MouseButtonPress, s.at(30, 40), Qt::LeftButton, Qt::LeftButton);
    QTest::keyPress(&s.area, Qt::Key_Space);  // too late for this drag
    s.send(QEvent::MouseMove, s.at(60, 45), Qt::NoButton, Qt::LeftButton);
    s.send(QEvent::MouseButtonRelease, s.at(60, 45), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(pressed.size(), 1);
    QCOMPARE(dragged.size(), 1);
    QCOMPARE(released.size(), 1);
  }

  void whatIsRevealedHasRoomAroundItAndMoreBelow() {
    Shown s;
    s.area.scrollView().setFactor(8);
    s.area.setScrollOffset({0, 0});
    s.marks->reveal({150, 30, 10, 5});
    const QRectF place(s.at(150, 35), s.at(160, 30));
    const QRectF seen(s.widget->rect());
    QVERIFY(seen.contains(place.adjusted(-23, -23, 23, 71)));
  }
};

NORVEX_TEST(TextMarksTest)
#include "text_marks_test.moc"
