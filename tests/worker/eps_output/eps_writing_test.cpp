// How images stand in an EPS beside what stays vectors.
#include "worker/eps_output/eps_writing.h"

#include "kit/test_main.h"
#include "worker/kit/bitmap_images.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

EpsImage imageAt(const QRectF& rect, QSize pixels) {
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::red);
  return {rect, kit::bitmapOf(image)};
}

QByteArray textWith(const QList<EpsImage>& images) {
  return writeEps({100, 100}, {"", "", "1 1 moveto\n"}, images);
}

}  // namespace

class EpsWritingTest : public QObject {
  Q_OBJECT
 private slots:
  /// Two points for a pixel, so that half of one is a point.
  void vectorsReachHalfAPixelUnderAnImage() {
    const QByteArray text = textWith({imageAt({10, 20, 40, 20}, {20, 10})});
    QVERIFY(text.contains("11 21 moveto 38 0 rlineto 0 18 rlineto -38 0 rlineto closepath\neoclip"));
    QVERIFY(text.contains("gsave\n10 20 translate 40 20 scale\n"));
  }

  void nothingReachesUnderItAtTheEdgesOfThePage() {
    QVERIFY(textWith({imageAt({0, 0, 40, 20}, {20, 10})})
                .contains("-1 -1 moveto 40 0 rlineto 0 20 rlineto -40 0 rlineto closepath\neoclip"));
    QVERIFY(textWith({imageAt({60, 80, 40, 20}, {20, 10})})
                .contains("61 81 moveto 40 0 rlineto 0 20 rlineto -40 0 rlineto closepath\neoclip"));
  }

  void anImageOfOnePixelHidesNothing() {
    QVERIFY(!textWith({imageAt({10, 20, 1, 1}, {1, 1})}).contains("10.5 20.5 moveto"));
  }

  void eachImageHasAHoleOfItsOwn() {
    const QByteArray text =
        textWith({imageAt({10, 20, 40, 20}, {20, 10}), imageAt({10, 60, 20, 20}, {10, 10})});
    QVERIFY(text.contains("11 21 moveto 38 0 rlineto"));
    QVERIFY(text.contains("11 61 moveto 18 0 rlineto 0 18 rlineto"));
    QCOMPARE(text.count("eoclip"), 1);
  }
};

NORVEX_TEST(EpsWritingTest)
#include "eps_writing_test.moc"
