// The edge of a page: its shadow and its line, which leave the page itself alone.
#include "ui/picture/page_edge.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QImage drawn(const QPolygonF& page) {
  QImage image(200, 200, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  QPalette palette;
  palette.setColor(QPalette::WindowText, Qt::black);
  drawPageEdge(painter, page, palette);
  return image;
}

}  // namespace

class PageEdgeTest : public QObject {
  Q_OBJECT
 private slots:
  void thePageItselfStaysAsItIsAndALineOfAPixelIsAroundIt() {
    const QRect page(50, 60, 100, 80);
    const QImage shown = drawn(QPolygonF(QRectF(page)));
    for (int y = page.top(); y <= page.bottom(); ++y)
      for (int x = page.left(); x <= page.right(); ++x) QCOMPARE(shown.pixel(x, y), qRgb(255, 255, 255));
    for (const QPoint& beside : {QPoint(49, 100), QPoint(150, 100), QPoint(100, 59), QPoint(100, 140)})
      QVERIFY2(qGray(shown.pixel(beside)) < 185, qPrintable(QString::number(beside.x())));
    for (const QPoint& next : {QPoint(48, 100), QPoint(151, 100), QPoint(100, 58), QPoint(100, 141)})
      QVERIFY2(qGray(shown.pixel(next)) > 200, qPrintable(QString::number(next.x())));
  }

  void theShadowFallsDownAndEndsSoon() {
    const QImage shown = drawn(QPolygonF(QRectF(50, 60, 100, 80)));
    const auto grey = [&](int x, int y) { return qGray(shown.pixel(x, y)); };
    for (int away = 3; away <= 7; ++away) QVERIFY(grey(100, 139 + away) < grey(100, 60 - away));
    QCOMPARE(grey(47, 100), grey(152, 100));
    QVERIFY(grey(100, 147) < 255);  // half of the widest line below the page, and the fall
    QCOMPARE(grey(100, 149), 255);
    QVERIFY(grey(100, 56) < 255);
    QCOMPARE(grey(100, 55), 255);
    QVERIFY(grey(44, 100) < 255);
    QCOMPARE(grey(43, 100), 255);
  }

  void aPageBeyondAllMeasureHasNone() {
    const QRectF large(100, 100, 1e6, 50);
    QCOMPARE(qGray(drawn(QPolygonF(large)).pixel(99, 125)), 255);
    QCOMPARE(qGray(drawn(QPolygonF(large.transposed())).pixel(99, 125)), 255);
    QVERIFY(qGray(drawn(QPolygonF(QRectF(100, 100, 9e5, 50))).pixel(99, 125)) < 255);
  }
};

NORVEX_TEST(PageEdgeTest)
#include "page_edge_test.moc"
