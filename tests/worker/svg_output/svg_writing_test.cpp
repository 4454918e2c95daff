#include <QImage>

#include <cmath>

#include "kit/test_main.h"
#include "worker/svg_output/svg_gradient.h"
#include "worker/svg_output/svg_jpeg.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_pixels.h"
#include "worker/svg_output/svg_writing.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray segment(char marker, const QByteArray& data) {
  const auto length = data.size() + 2;
  return QByteArray("\xff") + marker + char(length >> 8) + char(length) + data;
}

QByteArray madeJpeg(const QByteArray& aside, char frame = '\xc0') {
  return "\xff\xd8" + aside + segment(frame, QByteArray("\x08\0\x02\0\x03\x03", 6)) +
         segment('\xda', "scan") + "data";
}

QImage drawn(const SvgPixels& pixels) {
  return QImage::fromData(pngOf(pixels, 0, pixels.height)).convertToFormat(QImage::Format_ARGB32);
}

}  // namespace

class SvgWritingTest : public QObject {
  Q_OBJECT
 private slots:
  void numbersAreShort() {
    QCOMPARE(svgNumber(0.5, 3), ".5");
    QCOMPARE(svgNumber(-0.5, 3), "-.5");
    QCOMPARE(svgNumber(12.3404, 3), "12.34");
    QCOMPARE(svgNumber(100, 3), "100");
    QCOMPARE(svgNumber(-0.0001, 3), "0");
    QCOMPARE(svgNumber(0.007, 3), ".007");
    QCOMPARE(svgNumber(std::nan(""), 3), "0");
  }

  // Each of them makes a document that no reader opens, or that some read as two lines.
  void whatNoDocumentMayHoldIsASpace() {
    QString text;
    for (const char32_t c : {U'\t', U'\n', U'\r', U'\x1f', U' ', U'~', U'\x7f', U'\x80', U'\x9f', U'\xa0',
                             U'\ud7ff', U'\ue000', U'\ufffd', U'\ufffe', U'\uffff', U'\U0001f600'})
      text += QString::fromUcs4(&c, 1);
    QCOMPARE(QString::fromUtf8(xmlText(text)),
             QString(u"\t\n   ~   \u00a0\ud7ff\ue000\ufffd  \U0001f600"_qs));
    QCOMPARE(QString::fromUtf8(xmlText(QString(QChar(0xd800)) + 'a' + QChar(0xdfff))),
             QString(u"\ufffda\ufffd"_qs));
  }

  void numbersInAPathRunTogetherWhereTheyCan() {
    QByteArray text = "l";
    for (const qint64 units : {150, -50, 50, 25, 300, 40}) appendPathNumber(text, units, 2);
    QCOMPARE(text, "l1.5-.5.5.25 3 .4");
  }

  void pathsAreRelativeAndEachCommandIsSaidOnce() {
    SvgPathWriter writer(2);
    writer.moveTo({10, 10});
    writer.lineTo({20, 10});
    writer.lineTo({20, 30});
    writer.lineTo({25, 35});
    writer.lineTo({26, 37});
    writer.close();
    QCOMPARE(writer.take().data, "M10 10h10v20l5 5 1 2z");
  }

  void aCurveThatGoesOnSmoothlyIsShort() {
    SvgPathWriter writer(0);
    writer.moveTo({0, 0});
    writer.curveTo({0, 5}, {5, 10}, {10, 10});
    writer.curveTo({15, 10}, {20, 5}, {20, 0});
    QCOMPARE(writer.take().data, "M0 0c0 5 5 10 10 10s10-5 10-10");
  }

  void aCurveBehindALineGoesOnFromWhereThatEnds() {
    SvgPathWriter writer(0);
    writer.moveTo({0, 0});
    writer.curveTo({0, 5}, {5, 10}, {10, 10});
    writer.lineTo({20, 20});
    writer.curveTo({20, 20}, {30, 20}, {30, 10});
    QCOMPARE(writer.take().data, "M0 0c0 5 5 10 10 10l10 10s10 0 10-10");
  }

  void roundingErrorsDoNotAddUp() {
    SvgPathWriter writer(1);
    writer.moveTo({0, 0});
    for (int i = 1; i <= 100; ++i) writer.lineTo({i * 0.04, i * 0.04});
    const QByteArray data = writer.take().data;
    const double x = 0.1 * double(data.count(".1")) / 2;
    QVERIFY2(std::abs(x - 4) < 0.01, data);
  }

  void aStraightFunctionNeedsTwoStops() {
    QCOMPARE(gradientStops([](double t) { return Rgb{t, 0, 1 - t}; }).size(), size_t(2));
  }

  void aBentFunctionIsFollowed() {
    const auto colour = [](double t) { return Rgb{t * t, std::sqrt(t), 0.5}; };
    const auto stops = gradientStops(colour);
    QVERIFY(stops.size() > 4 && stops.size() < 60);
    for (size_t i = 1; i < stops.size(); ++i) {
      const double middle = (stops[i - 1].offset + stops[i].offset) / 2;
      QVERIFY(std::abs((stops[i - 1].colour.red + stops[i].colour.red) / 2 - colour(middle).red) < 1.5 / 255);
    }
  }

  void aStepIsTwoStopsAtOnePlace() {
    const auto stops = gradientStops([](double t) { return t < 0.3 ? Rgb{1, 0, 0} : Rgb{0, 0, 1}; });
    QCOMPARE(stops.size(), size_t(4));
    QCOMPARE(stops[1].offset, stops[2].offset);
    QVERIFY(std::abs(stops[1].offset - 0.3) < 1e-4);
  }

  void coloursAreShort() {
    QCOMPARE(colourText({1, 0, 0.2}), "#f03");
    QCOMPARE(colourText({0.5, 0, 2}), "#8000ff");
  }

  void everyFormOfPixelsComesBack() {
    for (const int colours : {2, 3, 15, 200, 4096})
      for (const bool grey : {false, true})
        for (const bool clear : {false, true}) {
          SvgPixels pixels{64, 64, {}};
          for (int i = 0; i < 64 * 64; ++i) {
            const quint32 value = quint32(i % colours * (grey ? 1 : 16));
            const quint32 colour = grey ? (value & 255) * 0x10101u : value * 0x101u & 0xffffff;
            pixels.argb.push_back(colour | (clear && i % 2 ? 0x80000000u : 0xff000000u));
          }
          const QImage image = drawn(pixels);
          QCOMPARE(image.size(), QSize(64, 64));
          for (int i = 0; i < 64 * 64; ++i) QCOMPARE(image.pixel(i % 64, i / 64), pixels.argb[size_t(i)]);
        }
  }

  void whatAJpegSaysBesideItsPictureIsTakenOut() {
    const QByteArray told = segment('\xe1', "Exif where it was taken") + segment('\xfe', "a comment");
    const QByteArray kept = segment('\xe0', "JFIF") + segment('\xee', "Adobe");
    QCOMPARE(bareJpeg(madeJpeg(kept + told), 3, 2, 3), madeJpeg(kept));
  }

  void aJpegOfAnotherKindIsNone() {
    QVERIFY(bareJpeg(madeJpeg({}, '\xc9'), 3, 2, 3).isEmpty());   // arithmetic coding
    QVERIFY(bareJpeg(madeJpeg({}), 3, 2, 4).isEmpty());           // inks
    QVERIFY(bareJpeg(madeJpeg({}), 2, 2, 3).isEmpty());           // another size
    QVERIFY(bareJpeg(madeJpeg({}).left(15), 3, 2, 3).isEmpty());  // cut off
    QVERIFY(bareJpeg("GIF89a", 3, 2, 3).isEmpty());
  }
};

NORVEX_TEST(SvgWritingTest)
#include "svg_writing_test.moc"
