#include "worker/eps_output/postscript_path.h"

#include <GfxState.h>

#include <QPointF>

#include <initializer_list>

#include "kit/test_main.h"

using namespace norvex::engine;

namespace {

QByteArray written(const GfxPath& path) {
  QByteArray text;
  appendPath(text, path);
  return text;
}

QByteArray polygon(std::initializer_list<QPointF> corners) {
  GfxPath path;
  path.moveTo(corners.begin()->x(), corners.begin()->y());
  for (auto corner = corners.begin() + 1; corner != corners.end(); ++corner)
    path.lineTo(corner->x(), corner->y());
  path.close();
  return written(path);
}

}  // namespace

class PostscriptPathTest : public QObject {
  Q_OBJECT
 private slots:
  void uprightRectanglesAreOneLine() {
    const QByteArray line = "10 20 30 40 re\n";
    QCOMPARE(polygon({{10, 20}, {40, 20}, {40, 60}, {10, 60}, {10, 20}}), line);
    QCOMPARE(polygon({{40, 60}, {40, 20}, {10, 20}, {10, 60}, {40, 60}}), line);
    const QByteArray slanted = polygon({{10, 20}, {40, 21}, {40, 60}, {10, 60}, {10, 20}});
    QCOMPARE(slanted, QByteArray("10 20 m\n40 21 l\n40 60 l\n10 60 l\n10 20 l\nh\n"));
  }

  void linesCurvesAndSubpathsKeepTheirOrder() {
    GfxPath path;
    path.moveTo(1, 2);
    path.curveTo(3, 4, 5, 6, 7.5, 8);
    path.lineTo(9, -1);
    path.moveTo(0, 0);
    path.lineTo(1, 0);
    path.close();
    QCOMPARE(written(path), QByteArray("1 2 m\n3 4 5 6 7.5 8 c\n9 -1 l\n0 0 m\n1 0 l\n0 0 l\nh\n"));
    QCOMPARE(written(GfxPath()), QByteArray());
  }
};

NORVEX_TEST(PostscriptPathTest)
#include "postscript_path_test.moc"
