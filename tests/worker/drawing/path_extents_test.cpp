#include "worker/drawing/path_extents.h"

#include <QRectF>

#include <array>
#include <cmath>
#include <functional>
#include <optional>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

using Drawn = std::function<void(cairo_t*)>;

CairoSurface paper() {
  return CairoSurface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
}

/// The box of what is drawn in a context turned by `degrees` and scaled; nothing where cairo is to be asked.
std::optional<QRectF> boxOf(const Drawn& draw, double degrees, double scale = 64) {
  const CairoSurface surface = paper();
  const CairoContext context(cairo_create(surface.get()));
  cairo_rotate(context.get(), degrees * M_PI / 180);
  cairo_scale(context.get(), scale, scale);
  draw(context.get());
  std::array<double, 4> at{};
  if (!turnedPathExtents(context.get(), &at[0], &at[1], &at[2], &at[3])) return {};
  return QRectF(QPointF(at[0], at[1]), QPointF(at[2], at[3]));
}

QRectF byCairo(const Drawn& draw) {
  const CairoSurface surface = paper();
  const CairoContext context(cairo_create(surface.get()));
  cairo_scale(context.get(), 64, 64);
  draw(context.get());
  std::array<double, 4> at{};
  cairo_path_extents(context.get(), &at[0], &at[1], &at[2], &at[3]);
  return {QPointF(at[0], at[1]), QPointF(at[2], at[3])};
}

bool isClose(const QRectF& one, const QRectF& other) {
  return std::abs(one.left() - other.left()) < 0.01 && std::abs(one.top() - other.top()) < 0.01 &&
         std::abs(one.right() - other.right()) < 0.01 && std::abs(one.bottom() - other.bottom()) < 0.01;
}

void square(cairo_t* context) {
  cairo_rectangle(context, 10, 20, 30, 40);
}

class PathExtentsTest : public QObject {
  Q_OBJECT
 private slots:
  void levelAndUprightCairosOwnAreRight() {
    for (const double scale : {1.0, 64.0}) {
      QVERIFY(!boxOf(square, 0, scale));
      QVERIFY(!boxOf(
          [](cairo_t* context) {
            const cairo_matrix_t quarter{0, 2, -2, 0, 5, 5};
            cairo_set_matrix(context, &quarter);
            square(context);
          },
          0, scale));
    }
  }

  void aTurnedPathKeepsItsBox_data() {
    QTest::addColumn<int>("shape");
    for (const int shape : {0, 1, 2, 3, 4, 5}) QTest::addRow("shape %d", shape) << shape;
  }
  void aTurnedPathKeepsItsBox() {
    QFETCH(int, shape);
    const std::array<Drawn, 6> shapes{
        square,
        [](cairo_t* context) { cairo_arc(context, 50, 40, 30, 0, 2 * M_PI); },
        [](cairo_t* context) {  // turns back along both axes
          cairo_move_to(context, 0, 0);
          cairo_curve_to(context, 100, -30, -60, 80, 40, 10);
        },
        [](cairo_t* context) {  // of second degree: the equation for its turning points is linear
          cairo_move_to(context, 0, 0);
          cairo_curve_to(context, 20, 40, 40, 40, 60, 0);
        },
        [](cairo_t* context) {  // two parts, and a move to where nothing is drawn
          cairo_rectangle(context, 0, 0, 5, 5);
          cairo_move_to(context, 20, 30);
          cairo_line_to(context, 25, 28);
          cairo_move_to(context, 500, 500);
        },
        [](cairo_t* context) {  // goes on where the part before it was closed
          cairo_move_to(context, 3, 4);
          cairo_line_to(context, 9, 4);
          cairo_line_to(context, 9, 9);
          cairo_close_path(context);
          cairo_line_to(context, 1, 2);
        }};
    const QRectF right = byCairo(shapes[size_t(shape)]);
    QVERIFY(right.width() > 1 && right.height() > 1);
    for (const double degrees : {1.0, 33.3, 45.0, 135.0, 200.0, 301.0}) {
      const auto box = boxOf(shapes[size_t(shape)], degrees);
      QVERIFY(box);
      QVERIFY2(isClose(*box, right), qPrintable(QString("%1: %2 %3 %4 %5")
                                                    .arg(degrees)
                                                    .arg(box->left())
                                                    .arg(box->top())
                                                    .arg(box->right())
                                                    .arg(box->bottom())));
    }
  }

  void cairosOwnIsLargerWhenTurned() {
    // That the comparison above can fail at all.
    const CairoSurface surface = paper();
    const CairoContext context(cairo_create(surface.get()));
    cairo_rotate(context.get(), M_PI / 4);
    cairo_rectangle(context.get(), 0, 0, 100, 100);
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    cairo_path_extents(context.get(), &x0, &y0, &x1, &y1);
    QVERIFY(x1 - x0 > 190);
  }

  void aPathWithoutASegmentHasNoBox() {
    QCOMPARE(boxOf([](cairo_t*) {}, 30), QRectF());
    QCOMPARE(boxOf([](cairo_t* context) { cairo_move_to(context, 7, 8); }, 30), QRectF());
  }

  void aStraightLineHasABoxWithoutHeight() {
    const auto box = boxOf(
        [](cairo_t* context) {
          cairo_move_to(context, 2, 5);
          cairo_line_to(context, 12, 5);
        },
        30);
    QVERIFY(box && isClose(*box, QRectF(2, 5, 10, 0)));
  }
};

}  // namespace

NORVEX_TEST(PathExtentsTest)
#include "path_extents_test.moc"
