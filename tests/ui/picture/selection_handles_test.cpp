// The selected rectangle taken hold of by its handles, beside the two drags that make one.
#include "ui/picture/selection_handles.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

using namespace norvex;

namespace {

/// A picture of 300 × 200 points in the middle of a larger window, with nothing selected.
struct Shown {
  explicit Shown(double degrees = 0) {
    area.setDocumentWidget(widget);
    static MemoryPictureService pictures;
    const auto made = NSPDFImageRep::imageRepWithData(pictures, emptyPdf({300, 200}));
    if (!made) qFatal("no picture");
    view().setImageRep(*made);
    view().setImageSize({300, 200});
    view().setRotate(degrees * M_PI / 180, false);
    area.resize(560, 520);
    area.show();
    if (!QTest::qWaitForWindowExposed(&area)) qFatal("no window");
    area.scrollView().setFactor(1);
    area.scrollToTop();
  }
  [[nodiscard]] NorvexView& view() const { return widget->view(); }
  /// A view point as a pixel of the widget.
  [[nodiscard]] QPoint at(double x, double y) const { return widget->fromView({x, y}).toPoint(); }
  void drag(QPoint from, QPoint to) const {
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, (from + to) / 2);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
  }
  /// The two drags: the rectangle from (-60, -40) to (60, 40).
  void select() const {
    drag(at(0, 0), at(-60, -40));
    drag(at(0, 0), at(60, 40));
    if (view().selection().state() != Selection::State::Rectangle) qFatal("nothing is selected");
  }
  [[nodiscard]] QRectF rect() const { return view().selectRect(); }
  /// Where the handles of the edges are, by the same rule that the widget has.
  [[nodiscard]] QPoint handle(Qt::Edges edges) const { return handles().square(edges).center().toPoint(); }
  [[nodiscard]] QPoint label() const { return handles().label().center().toPoint(); }
  [[nodiscard]] SelectionHandles handles() const {
    const QRectF device =
        QRectF(widget->fromView(rect().topLeft()), widget->fromView(rect().bottomRight())).normalized();
    const QRectF seen(widget->rect());
    const QRectF picture =
        QRectF(widget->fromView(view().bounds().topLeft()), widget->fromView(view().bounds().bottomRight()))
            .normalized();
    return SelectionHandles(device, seen, picture & seen, widget->font(), QStringLiteral("120 × 80 pt"),
                            true);
  }
  [[nodiscard]] Qt::CursorShape pointerOver(QPoint point) const {
    QTest::mouseMove(widget, point);
    return widget->cursor().shape();
  }

  ZoomingScrollArea area;
  NorvexViewWidget* widget = new NorvexViewWidget;
};

bool isNear(const QRectF& a, const QRectF& b) {
  return std::abs(a.x() - b.x()) < 1.6 && std::abs(a.y() - b.y()) < 1.6 &&
         std::abs(a.width() - b.width()) < 1.6 && std::abs(a.height() - b.height()) < 1.6;
}

}  // namespace

class SelectionHandlesTest : public QObject {
  Q_OBJECT
 private slots:
  void eachHandleMovesItsEdgesAlone_data() {
    QTest::addColumn<Qt::Edges>("edges");
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QRectF>("expected");  // after the pointer went 10 to the right and 6 up
    const QRectF from(-60, -40, 120, 80);
    const auto row = [&](const char* name, Qt::Edges edges, double left, double bottom, double right,
                         double top) {
      for (const double degrees : {0.0, 30.0, 90.0})
        QTest::addRow("%s at %g", name, degrees)
            << edges << degrees << from.adjusted(left, bottom, right, top);
    };
    row("upper right", Qt::TopEdge | Qt::RightEdge, 0, 0, 10, 6);
    row("upper left", Qt::TopEdge | Qt::LeftEdge, 10, 0, 0, 6);
    row("lower right", Qt::BottomEdge | Qt::RightEdge, 0, 6, 10, 0);
    row("lower left", Qt::BottomEdge | Qt::LeftEdge, 10, 6, 0, 0);
    row("upper", Qt::TopEdge, 0, 0, 0, 6);
    row("lower", Qt::BottomEdge, 0, 6, 0, 0);
    row("left", Qt::LeftEdge, 10, 0, 0, 0);
    row("right", Qt::RightEdge, 0, 0, 10, 0);
  }
  void eachHandleMovesItsEdgesAlone() {
    QFETCH(Qt::Edges, edges);
    QFETCH(double, degrees);
    QFETCH(QRectF, expected);
    const Shown f(degrees);
    f.select();
    const QPoint from = f.handle(edges);
    f.drag(from, from + QPoint(10, -6));
    QVERIFY2(isNear(f.rect(), expected), qPrintable(QStringLiteral("%1 %2 %3 × %4")
                                                        .arg(f.rect().x())
                                                        .arg(f.rect().y())
                                                        .arg(f.rect().width())
                                                        .arg(f.rect().height())));
  }

  void theLabelMovesTheRectangleAsFarAsThePictureGoes() {
    const Shown f;
    f.select();
    f.drag(f.label(), f.label() + QPoint(20, -15));
    QVERIFY(isNear(f.rect(), QRectF(-40, -25, 120, 80)));
    f.drag(f.label(), f.label() + QPoint(400, -400));
    QCOMPARE(f.rect().right(), f.view().bounds().right());
    QCOMPARE(f.rect().bottom(), f.view().bounds().bottom());
    QVERIFY(std::abs(f.rect().width() - 120) < 1.6 && std::abs(f.rect().height() - 80) < 1.6);
  }

  void whatIsAsLargeAsThePictureCannotBeMoved() {
    const Shown shown;
    shown.view().selectBounds();
    QVERIFY(shown.pointerOver(shown.label()) != Qt::SizeAllCursor);
    shown.view().resizeSelection({0, -10});
    QTest::mouseMove(shown.widget, QPoint(1, 1));
    QCOMPARE(shown.pointerOver(shown.label()), Qt::SizeAllCursor);
  }

  void anEdgeStopsAtThePicturesEdgeAndTurnsOverAtTheOppositeOne() {
    const Shown f;
    f.select();
    const QPoint right = f.handle(Qt::RightEdge);
    f.drag(right, right + QPoint(300, 0));
    QCOMPARE(f.rect().right(), f.view().bounds().right());
    const QPoint upper = f.handle(Qt::TopEdge);
    f.drag(upper, upper + QPoint(0, 110));
    QVERIFY2(std::abs(f.rect().bottom() + 40) < 1.6, "the lower edge has become the upper one");
    QVERIFY(std::abs(f.rect().height() - 30) < 1.6);
  }

  void aPressInsideOrOnTheOutlineBeginsAnotherSelection_data() {
    QTest::addColumn<QPointF>("point");
    QTest::newRow("inside") << QPointF(10, 10);
    QTest::newRow("where the second drag ended") << QPointF(60, 40);
    QTest::newRow("on the left line") << QPointF(-60, 0);
    QTest::newRow("on the upper line") << QPointF(0, 40);
    QTest::newRow("in the picture beside it") << QPointF(120, -80);
  }
  void aPressInsideOrOnTheOutlineBeginsAnotherSelection() {
    QFETCH(QPointF, point);
    const Shown f;
    f.select();
    f.drag(f.at(point.x(), point.y()), f.at(5, 5));
    QCOMPARE(f.view().selection().state(), Selection::State::StartPoint);
    QVERIFY(std::abs(f.rect().x() - 5) < 1 && std::abs(f.rect().y() - 5) < 1);
  }

  void aClickOnAHandleRemovesTheSelectionAsEverywhereElse() {
    const Shown f;
    f.select();
    QTest::mouseClick(f.widget, Qt::LeftButton, {}, f.handle(Qt::TopEdge | Qt::RightEdge));
    QCOMPARE(f.view().selection().state(), Selection::State::None);
    f.select();
    QTest::mouseClick(f.widget, Qt::LeftButton, {}, f.label());
    QCOMPARE(f.view().selection().state(), Selection::State::None);
  }

  void thePointerTellsWhatAPressWouldDo() {
    const Shown f;
    QCOMPARE(f.pointerOver(f.at(0, 0)), Qt::CrossCursor);
    f.select();
    QCOMPARE(f.pointerOver(f.handle(Qt::TopEdge | Qt::RightEdge)), Qt::SizeBDiagCursor);
    QCOMPARE(f.pointerOver(f.handle(Qt::BottomEdge | Qt::RightEdge)), Qt::SizeFDiagCursor);
    QCOMPARE(f.pointerOver(f.handle(Qt::LeftEdge)), Qt::SizeHorCursor);
    QCOMPARE(f.pointerOver(f.handle(Qt::BottomEdge)), Qt::SizeVerCursor);
    QCOMPARE(f.pointerOver(f.label()), Qt::SizeAllCursor);
    QCOMPARE(f.pointerOver(f.at(0, 0)), Qt::CrossCursor);
  }

  void aSmallRectangleKeepsItsCornersAlone() {
    const SelectionHandles small({100, 100, 20, 60}, {0, 0, 400, 400}, {0, 0, 400, 400}, {}, "x", true);
    QVERIFY(small.square(Qt::TopEdge).isNull());
    QVERIFY(!small.square(Qt::LeftEdge).isNull());
    QVERIFY(!small.square(Qt::TopEdge | Qt::LeftEdge).isNull());
  }

  void handlesOfEdgesThatAreScrolledAwayAreNotThere() {
    const SelectionHandles wide({-200, 50, 1000, 100}, {0, 0, 400, 400}, {0, 0, 400, 400}, {}, "x", true);
    QVERIFY(wide.square(Qt::LeftEdge).isNull());
    QVERIFY(wide.square(Qt::TopEdge | Qt::RightEdge).isNull());
    QCOMPARE(wide.square(Qt::TopEdge).center().x(), 200.0);
  }

  void aSquareStandsEightPixelsOffItsEdgeAndIsHitWithinFive() {
    const SelectionHandles shown({100, 100, 60, 50}, {0, 0, 400, 400}, {0, 0, 400, 400}, {}, "x", true);
    QCOMPARE(shown.square(Qt::RightEdge), QRectF(164, 121, 8, 8));
    QCOMPARE(shown.square(Qt::TopEdge | Qt::LeftEdge), QRectF(88, 88, 8, 8));
    for (const QPointF& off : {QPointF(5, 0), QPointF(-5, 5), QPointF(0, -5)})
      QCOMPARE(shown.at(QPointF(168, 125) + off).value_or(Qt::Edges()), Qt::Edges(Qt::RightEdge));
    for (const QPointF& off : {QPointF(5.5, 0), QPointF(-5.5, 0), QPointF(0, 5.5), QPointF(0, -5.5)})
      QVERIFY(!shown.at(QPointF(168, 125) + off));
  }

  void theSizeStandsBelowTheRightCornerWithRoomForItsGrip() {
    const QRectF room(0, 0, 400, 400), selected(100, 100, 200, 50);
    const QFont font;
    const QFontMetricsF metrics(font);
    const QString text = QStringLiteral("200 × 50 pt");
    const QRectF fixed = SelectionHandles(selected, room, room, font, text, false).label();
    QCOMPARE(fixed.size(), QSizeF(metrics.horizontalAdvance(text) + 12, metrics.height() + 4));
    QCOMPARE(fixed.topRight(), QPointF(300, 165));
    const QRectF movable = SelectionHandles(selected, room, room, font, text, true).label();
    QCOMPARE(movable.width() - fixed.width(), 10.0);
    QCOMPARE(movable.right(), 300.0);
    // Above the lower line where there is nothing below it, and never beside the picture.
    const QRectF low = SelectionHandles({100, 100, 200, 290}, room, room, font, text, false).label();
    QCOMPARE(low.bottom(), 375.0);
    QCOMPARE(SelectionHandles({0, 100, 10, 50}, room, room, font, text, false).label().left(), 0.0);
    QVERIFY(SelectionHandles(selected, room, {0, 0, 20, 400}, font, text, false).label().isNull());
    QVERIFY(SelectionHandles(selected, room, {0, 0, 400, 8}, font, text, false).label().isNull());
  }

  void squaresAreBlueRoundWhiteAndTheGripIsOnlyWhereTheLabelMoves() {
    const QRectF room(0, 0, 400, 400);
    const auto drawn = [&room](bool movable) {
      QImage image(400, 400, QImage::Format_RGB32);
      image.fill(QColor(90, 90, 90));
      QPainter painter(&image);
      SelectionHandles({100, 100, 200, 50}, room, room, {}, QStringLiteral(" "), movable).draw(painter);
      return image;
    };
    const QImage shown = drawn(true);
    QCOMPARE(shown.pixelColor(88, 88), QColor(0, 0, 255));
    QCOMPARE(shown.pixelColor(95, 95), QColor(0, 0, 255));
    QCOMPARE(shown.pixelColor(89, 89), QColor(Qt::white));
    QCOMPARE(shown.pixelColor(94, 94), QColor(Qt::white));
    QVERIFY(qGray(shown.pixel(87, 92)) > 200);  // its halo
    QCOMPARE(shown.pixelColor(86, 92), QColor(90, 90, 90));
    const QRectF label = SelectionHandles({100, 100, 200, 50}, room, room, {}, " ", true).label();
    // Two columns of three dots, each alike.
    const int left = int(std::round(label.left())) + 7, middle = int(std::round(label.center().y()));
    const auto bright = [&](const QImage& image, int x, int y) {
      int most = 0;
      for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx) most = std::max(most, qGray(image.pixel(x + dx, y + dy)));
      return most;
    };
    const QImage still = drawn(false);
    for (const int x : {left, left + 4})
      for (const int y : {middle - 4, middle, middle + 4}) {
        QVERIFY(bright(shown, x, y) > 110);
        QVERIFY(bright(still, x, y) < 100);
      }
  }

  void whatFillsTheWindowHasItsHandlesWithin() {
    const QRectF all(0, 0, 400, 300);
    const SelectionHandles whole(all, all, all, {}, "400 × 300 pt", false);
    for (const Qt::Edges edges : {Qt::TopEdge | Qt::LeftEdge, Qt::BottomEdge | Qt::RightEdge})
      QVERIFY(all.contains(whole.square(edges)));
    QVERIFY2(!whole.at(whole.label().center()), "there is nowhere to move it");
  }

  void theOutsideFadesByChoice() {
    const Shown f;
    const auto drawn = [&](double x, double y) { return f.widget->grab().toImage().pixelColor(f.at(x, y)); };
    f.select();
    f.widget->setBackground(QColor(10, 120, 10));
    const QColor plain = drawn(120, 80);
    f.widget->setDimsOutside(true);
    QVERIFY(drawn(120, 80) != plain);
    QCOMPARE(drawn(0, 0), QColor(10, 120, 10));
    f.view().clearSelectRect();
    QCOMPARE(drawn(120, 80), plain);
  }
};

NORVEX_TEST(SelectionHandlesTest)
#include "selection_handles_test.moc"
