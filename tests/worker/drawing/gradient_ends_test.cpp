#include "worker/drawing/gradient_ends.h"

#include <QList>

#include <array>
#include <cmath>

#include "kit/test_main.h"
#include "worker/drawing/bitmap.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

CairoPattern linear(const QList<double>& stops) {
  CairoPattern pattern(cairo_pattern_create_linear(10, 0, 30, 0));
  for (qsizetype i = 0; i < stops.size(); ++i)
    cairo_pattern_add_color_stop_rgba(pattern.get(), stops[i], i == 0, i == 1, i == 2, i == 3 ? 0.5 : 1);
  return pattern;
}

CairoPattern radial(double r0, double r1) {
  CairoPattern pattern(cairo_pattern_create_radial(20, 20, r0, 22, 20, r1));
  for (const double offset : {0.0, 0.0, 1.0, 1.0})
    cairo_pattern_add_color_stop_rgba(pattern.get(), offset, offset, double(r0 > 3), 0.5, 1);
  return pattern;
}

/// What `pattern` paints on 40 by 40 pixels.
QList<Argb32> painted(cairo_pattern_t* pattern) {
  QList<Argb32> pixels(40 * 40, 0);
  const CairoSurface surface(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(pixels.data()),
                                                                 CAIRO_FORMAT_ARGB32, 40, 40, 160));
  const CairoContext context(cairo_create(surface.get()));
  cairo_set_source(context.get(), pattern);
  cairo_paint(context.get());
  cairo_surface_flush(surface.get());
  return pixels;
}

/// How far the colours of two pictures are apart, in the mean of all samples.
double difference(const QList<Argb32>& a, const QList<Argb32>& b) {
  double sum = 0;
  for (qsizetype i = 0; i < a.size(); ++i)
    sum += std::abs(red(a[i]) - red(b[i])) + std::abs(green(a[i]) - green(b[i])) +
           std::abs(blue(a[i]) - blue(b[i])) + std::abs(alpha(a[i]) - alpha(b[i]));
  return sum / double(a.size()) / 4;
}

QList<double> offsets(cairo_pattern_t* pattern) {
  int count = 0;
  cairo_pattern_get_color_stop_count(pattern, &count);
  QList<double> all;
  for (int i = 0; i < count; ++i) {
    double offset = 0;
    cairo_pattern_get_color_stop_rgba(pattern, i, &offset, nullptr, nullptr, nullptr, nullptr);
    all << offset;
  }
  return all;
}

class GradientEndsTest : public QObject {
  Q_OBJECT
 private slots:
  void gradientsThatBeginAndEndSmoothlyNeedNone() {
    QVERIFY(!withEndsOfItsOwn(linear({0, 1}).get()));
    QVERIFY(!withEndsOfItsOwn(linear({0.2, 0.5, 0.5, 0.9}).get()));
    QVERIFY(!withEndsOfItsOwn(linear({0.5}).get()));
    QVERIFY(!withEndsOfItsOwn(linear({}).get()));
    const CairoPattern plain(cairo_pattern_create_rgb(1, 0, 0));
    QVERIFY(!withEndsOfItsOwn(plain.get()));
  }

  void thoseThatAreRepeatedNeedNone() {
    const CairoPattern pattern = linear({0, 0.5, 0.5});
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_REPEAT);
    QVERIFY(!withEndsOfItsOwn(pattern.get()));
  }

  void outermostColoursGetAStopOfTheirOwn() {
    QCOMPARE(offsets(withEndsOfItsOwn(linear({0.5, 0.5}).get()).get()), QList<double>({0, 0.5, 0.5, 1}));
    QCOMPARE(offsets(withEndsOfItsOwn(linear({0, 0.5, 0.5}).get()).get()), QList<double>({0, 0.5, 0.5, 1}));
    QCOMPARE(offsets(withEndsOfItsOwn(linear({0.25, 0.25, 1}).get()).get()),
             QList<double>({0, 0.25, 0.25, 1}));
  }

  /// There is no place for a stop beyond 0 and 1: the gradient becomes as long again on that side.
  void whereItBeginsOrEndsItBecomesLonger() {
    const CairoPattern longer = withEndsOfItsOwn(linear({0, 0, 1, 1}).get());
    const QList<double> expected{0, 1.0 / 3, 1.0 / 3, 2.0 / 3, 2.0 / 3, 1};
    const QList<double> got = offsets(longer.get());
    QCOMPARE(got.size(), expected.size());
    for (qsizetype i = 0; i < got.size(); ++i) QVERIFY(std::abs(got[i] - expected[i]) < 1e-12);
    double x0 = 0, x1 = 0, y = 0;
    cairo_pattern_get_linear_points(longer.get(), &x0, &y, &x1, &y);
    QCOMPARE(x0, -10.0);
    QCOMPARE(x1, 50.0);
  }

  void itLooksTheSame_data() {
    QTest::addColumn<QList<double>>("stops");
    QTest::newRow("two halves") << QList<double>{0.5, 0.5};
    QTest::newRow("end") << QList<double>{0, 0.6, 0.6};
    QTest::newRow("beginning") << QList<double>{0.3, 0.3, 1};
    QTest::newRow("both, at the ends") << QList<double>{0, 0, 1, 1};
    QTest::newRow("all at one place") << QList<double>{0, 0, 0};
    QTest::newRow("all at the last place") << QList<double>{1, 1};
  }
  void itLooksTheSame() {
    QFETCH(QList<double>, stops);
    const CairoPattern pattern = linear(stops);
    cairo_matrix_t matrix;
    cairo_matrix_init_rotate(&matrix, 0.4);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    const CairoPattern longer = withEndsOfItsOwn(pattern.get());
    QVERIFY(longer != nullptr);
    QVERIFY(difference(painted(longer.get()), painted(pattern.get())) < 0.5);
  }

  void circlesLookTheSame() {
    for (const auto& [r0, r1] :
         QList<std::pair<double, double>>{{0, 12}, {4, 12}, {1, 16}, {12, 4}, {12, 0}}) {
      const CairoPattern pattern = radial(r0, r1), longer = withEndsOfItsOwn(pattern.get());
      QVERIFY(longer != nullptr);
      QCOMPARE(cairo_pattern_status(longer.get()), CAIRO_STATUS_SUCCESS);
      const double apart = difference(painted(longer.get()), painted(pattern.get()));
      QVERIFY2(apart < 1, qPrintable(QString("%1 to %2: %3").arg(r0).arg(r1).arg(apart)));
    }
  }

  void anotherGradientIsFoundOut() {
    // That the comparisons above can fail at all.
    QVERIFY(difference(painted(linear({0.5, 0.5}).get()), painted(linear({0.6, 0.6}).get())) > 1);
  }
};

}  // namespace

NORVEX_TEST(GradientEndsTest)
#include "gradient_ends_test.moc"
