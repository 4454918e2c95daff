#include "worker/drawing/seams/edge_outline.h"

#include <cmath>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex::engine;

namespace {

/// A path of a context of its own, in pixels.
class Path {
 public:
  Path()
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_A8, 8, 8)), context_(cairo_create(surface_.get())) {}
  ~Path() {
    if (path_) cairo_path_destroy(path_);
  }
  Path(const Path&) = delete;
  Path& operator=(const Path&) = delete;

  Path& rectangle(double x, double y, double width, double height) {
    cairo_rectangle(context_.get(), x, y, width, height);
    return *this;
  }
  Path& lines(const std::vector<std::pair<double, double>>& points) {
    for (const auto& [x, y] : points) cairo_line_to(context_.get(), x, y);
    return *this;
  }
  cairo_path_t& copied() {
    path_ = cairo_copy_path(context_.get());
    return *path_;
  }
  [[nodiscard]] QPointF point(int element) const {
    return {path_->data[element].point.x, path_->data[element].point.y};
  }

 private:
  CairoSurface surface_;
  CairoContext context_;
  cairo_path_t* path_ = nullptr;
};

double whole(double place) {
  return std::round(place);
}

}  // namespace

class EdgeOutlineTest : public QObject {
  Q_OBJECT
 private slots:
  void aRectangleHasTwoEdgesAlongEachAxis() {
    Path path;
    const EdgeOutline outline(path.rectangle(1.25, 2.5, 3, 4).copied());
    QVERIFY(outline.isOnePart());
    QCOMPARE(outline.uprights(), (std::vector<double>{1.25, 1.25, 4.25, 4.25}));
    QCOMPARE(outline.levels(), (std::vector<double>{2.5, 2.5, 6.5, 6.5}));
    QCOMPARE(outline.edges().size(), size_t(4));
    QCOMPARE(outline.edges()[0].upright, false);
    QCOMPARE(outline.edges()[0].place, 2.5);
    QCOMPARE(outline.edges()[0].from, 1.25);
    QCOMPARE(outline.edges()[0].to, 4.25);
  }

  void itsCornersGoWhereItsEdgesGo() {
    Path path;
    EdgeOutline outline(path.rectangle(1.25, 2.5, 3, 4).copied());
    QVERIFY(outline.move(whole, [](double place) { return place + 0.25; }));
    QCOMPARE(path.point(1), QPointF(1, 2.75));
    QCOMPARE(path.point(5), QPointF(4, 6.75));
  }

  void slantedEdgesStayWhereTheyAre() {
    Path path;
    EdgeOutline outline(path.lines({{0.375, 0.375}, {3.375, 1.375}, {2.375, 5.375}}).copied());
    QVERIFY(outline.uprights().empty());
    QVERIFY(outline.levels().empty());
    QVERIFY(outline.move(whole, whole));
    QCOMPARE(path.point(1), QPointF(0.375, 0.375));
  }

  void nothingMovesWhereOneEdgeWouldComeToAnother() {
    Path path;
    EdgeOutline outline(path.rectangle(1.125, 1.125, 0.25, 4).copied());
    QVERIFY(!outline.move(whole, whole));
    QCOMPARE(path.point(1), QPointF(1.125, 1.125));
  }

  void nothingMovesWhereLessThanHalfWouldBeLeft() {
    Path path;
    EdgeOutline outline(path.rectangle(1, 1, 4, 4).copied());
    QVERIFY(!outline.move([](double place) { return place < 3 ? 1 : 2.9; }, whole));
    QVERIFY(outline.move([](double place) { return place < 3 ? 1 : 3; }, whole));
  }

  void severalPartsAreCounted() {
    Path path;
    QVERIFY(!EdgeOutline(path.rectangle(1, 1, 2, 2).rectangle(4, 4, 2, 2).copied()).isOnePart());
  }

  void aLineIsAPart() {
    Path path;
    QVERIFY(EdgeOutline(path.lines({{1.25, 1.25}, {4.25, 3.25}}).copied()).isOnePart());
  }

  /// Cairo goes to a place behind each closed part.
  void aPlaceWithoutALineIsNoPart() {
    Path path;
    cairo_path_t& closed = path.rectangle(1, 1, 2, 2).copied();
    QCOMPARE(closed.data[closed.num_data - 2].header.type, CAIRO_PATH_MOVE_TO);
    QVERIFY(EdgeOutline(closed).isOnePart());
  }

  void whatComesBackToItsBeginWithoutClosingIsOneCorner() {
    Path path;
    EdgeOutline outline(path.lines({{1.25, 1.25}, {4.25, 1.25}, {3, 5}, {1.25, 1.25}}).copied());
    QVERIFY(outline.move(whole, whole));
    QCOMPARE(path.point(1), QPointF(1.25, 1));
    QCOMPARE(path.point(7), path.point(1));
  }
};

NORVEX_TEST(EdgeOutlineTest)
#include "edge_outline_test.moc"
