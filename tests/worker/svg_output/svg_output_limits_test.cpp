// Pages that reach a limit of the SVG output.
#include <PDFDoc.h>
#include <Stream.h>

#include <QRegularExpression>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/eps_output/postscript_device.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"
#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_sheet.h"

using namespace norvex;
using namespace norvex::engine;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

QByteArray page(const QByteArray& contents, const QByteArray& resources, const QList<QByteArray>& more,
                const QByteArray& box = "[0 0 200 100]") {
  return onePage(contents, "/MediaBox " + box + " /Resources << " + resources + " >>", more);
}

SvgSheet sheet() {
  return SvgSheet({100, 100}, 2, 256 << 20);
}

/// Cells with a gap between them, so many of them.
MadeSvg withCells(int count) {
  const QByteArray width = QByteArray::number(count * 2 - 1);
  return MadeSvg(page("/Pattern cs /P scn 0 0 " + width + " 2 re f", "/Pattern << /P 5 0 R >>",
                      {stream("1 0 0 rg 0 0 m 1 0 l 0 1 l f",
                              "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 1 1] /XStep 2 /YStep 4 "
                              "/Resources << >>")},
                      "[0 0 1000 2]"));
}

/// A letter in each of so many fonts.
MadeSvg withFonts(int count) {
  QByteArray names, text("BT ");
  QList<QByteArray> fonts;
  for (int i = 0; i < count; ++i) {
    const QByteArray number = QByteArray::number(i);
    names += "/F" + number + ' ' + QByteArray::number(i + 5) + " 0 R ";
    text += "/F" + number + " 9 Tf 1 0 0 1 10 50 Tm (A) Tj ";
    fonts << "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";
  }
  return MadeSvg(page(text + "ET", "/Font << " + names + ">>", fonts));
}

/// An image of four pixels, large on its page, with a mask of so many pixels a side.
MadeSvg withMask(int side) {
  const QByteArray size = QByteArray::number(side);
  const QByteArray shades = qCompress(QByteArray(qsizetype(side) * side, '\x7f')).mid(4);
  return MadeSvg(page("100 0 0 100 0 0 cm /I Do", "/XObject << /I 5 0 R >>",
                      {stream(QByteArray(12, 'a'),
                              "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 "
                              "/ColorSpace /DeviceRGB /SMask 6 0 R"),
                       stream(shades, "/Type /XObject /Subtype /Image /Width " + size + " /Height " + size +
                                          " /BitsPerComponent 8 /ColorSpace /DeviceGray /Filter "
                                          "/FlateDecode")}));
}

}  // namespace

class SvgOutputLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void elementsHaveAnEnd() {
    SvgSheet page = sheet();
    page.add(QByteArray("<g/>").repeated(limits::maximumSvgElements), false, QRectF(0, 0, 9, 9), {});
    QVERIFY(!page.isFull());
    page.add("<g/>", false, QRectF(0, 0, 9, 9), {});
    QVERIFY(page.isFull());
  }

  void layersWithinLayersHaveAnEnd() {
    SvgSheet page = sheet();
    for (int i = 1; i < limits::maximumSvgDepth; ++i) page.beginLayer(0);
    QVERIFY(!page.isFull());
    page.beginLayer(0);
    QVERIFY(page.isFull());
  }

  /// Elements are counted with what they refer to.
  void referencesHaveAWeight() {
    const auto isFullAfter = [](double uses) {
      SvgSheet page = sheet();
      const QByteArray name = page.define("<g>" + QByteArray("<a/>").repeated(9'999) + "</g>");
      for (double i = 0; i < uses && !page.isFull(); ++i)
        page.add("<use xlink:href=\"#" + name + "\"/>", false, QRectF(0, 0, 9, 9), {});
      return page.isFull();
    };
    const double uses = limits::maximumSvgWeight / 10'000;
    QVERIFY(!isFullAfter(uses * 0.99));
    QVERIFY(isFullAfter(uses * 1.01));
  }

  void cellsArePlacedOneByOneUpToANumber() {
    QCOMPARE(withCells(int(limits::maximumSvgCells) / 2).count("<pattern"), 0);
    QCOMPARE(withCells(int(limits::maximumSvgCells) + 50).count("<pattern"), 1);
  }

  void aShadingOfAHugePageIsAnImageOfNoMorePixels() {
    const QByteArray triangle("\0\0\0\xff\0\0\0\xff\0\0\xff\0\0\x80\xff\0\0\xff", 18);
    const MadeSvg made(
        page("/M sh", "/Shading << /M 5 0 R >>",
             {stream(triangle,
                     "/ShadingType 4 /ColorSpace /DeviceRGB /BitsPerCoordinate 8 "
                     "/BitsPerComponent 8 /BitsPerFlag 8 /Decode [0 4000 0 4000 0 1 0 1 0 1]")},
             "[0 0 4000 4000]"));
    QCOMPARE(made.count("<image"), 1);
    QVERIFY(4000. * 4000 * 150 / 72 * 150 / 72 > limits::maximumSvgShadingPixels);
    const double side = std::sqrt(limits::maximumSvgShadingPixels);
    QVERIFY2(std::abs(made.report().rasterisedDpi - 72 * side / 4000) < 1,
             qPrintable(QString::number(made.report().rasterisedDpi)));
  }

  void fontsAndTheirLettersAreKeptUpToANumber() {
    const MadeSvg within = withFonts(3), beyond = withFonts(int(limits::maximumSvgFonts) + 1);
    QVERIFY(!within.error() && !beyond.error());
    QCOMPARE(within.count("<use"), 3);
    QCOMPARE(beyond.count("<use"), int(limits::maximumSvgFonts));
    const QStringList told{"letters of more fonts or shapes than are granted were left out"};
    QCOMPARE(within.report().warnings, QStringList());
    QCOMPARE(beyond.report().warnings, told);
  }

  void outlinesAreKeptUpToANumber() {
    const QByteArray pdf = page("BT /F 9 Tf 10 50 Td (ABCDABCD) Tj ET",
                                "/Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >>", {});
    const auto draw = [&](qsizetype mostGlyphs) {
      keepPopplerSettings();
      PDFDoc document(new MemStream(pdf.constData(), 0, pdf.size(), Object(objNull)));
      SvgSheet made = sheet();
      SvgDevice device(made, {}, {}, false, mostGlyphs);
      document.displayPage(&device, 1, 72, 72, 0, false, true, false);
      const auto defined = int(made.document({}).count("<path"));
      return std::pair(defined, device.leftOutLetters());
    };
    QCOMPARE(draw(limits::maximumSvgGlyphs), std::pair(4, false));
    QCOMPARE(draw(3), std::pair(3, true));
  }

  void anImageAndItsMaskBecomeOneUpToANumberOfPixels() {
    const int most = int(std::sqrt(limits::maximumSvgMaskedPixels));
    const MadeSvg few = withMask(most / 100), many = withMask(most + 2);
    QVERIFY(!few.error() && !many.error());
    QCOMPARE(few.count("<mask"), 0);
    QCOMPARE(few.count("<image"), 1);
    QCOMPARE(many.count("<mask"), 1);
  }
};

NORVEX_TEST(SvgOutputLimitsTest)
#include "svg_output_limits_test.moc"
