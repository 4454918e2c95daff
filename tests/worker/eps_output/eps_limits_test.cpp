// Pages that reach a limit of the EPS output: it gets coarser, and never longer than that.
#include <QFile>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/eps_output/transparent_regions.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// Spots so far apart that each is a region of its own.
QList<QRect> regionsOf(int spots) {
  constexpr int kApart = 32, kAcross = 60;
  const Bitmap one = *Bitmap::create({kApart * kAcross, kApart * (spots / kAcross + 1)});
  Bitmap other = *Bitmap::create(one.size());
  for (int i = 0; i < spots; ++i)
    other.row(i / kAcross * kApart + kApart / 2)[i % kAcross * kApart + kApart / 2] = 0xff000000;
  return differingRegions(one, other);
}

/// A page with a few letters of a whole font, in a file of so many objects.
QByteArray withFont(const QByteArray& font, int objects) {
  QList<QByteArray> more{
      "<< /Type /Font /Subtype /TrueType /BaseFont /DejaVuSans /Encoding /WinAnsiEncoding /FontDescriptor 6 "
      "0 "
      "R >>",
      "<< /Type /FontDescriptor /FontName /DejaVuSans /Flags 32 /FontBBox [-1021 -463 1793 1232] "
      "/ItalicAngle 0 /Ascent 928 /Descent -236 /CapHeight 730 /StemV 80 /FontFile2 7 0 R >>",
      kit::stream(font, "/Length1 " + QByteArray::number(font.size()))};
  QByteArray states;
  while (more.size() + 4 < objects) {
    more << "<< /LW 1 >>";
    states += "/S" + QByteArray::number(more.size()) + ' ' + QByteArray::number(more.size() + 4) + " 0 R ";
  }
  return kit::onePage(
      "BT /A 24 Tf 20 60 Td (ABC) Tj ET",
      "/MediaBox [0 0 200 100] /Resources << /Font << /A 5 0 R >> /ExtGState << " + states + ">> >>", more);
}

}  // namespace

class EpsLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void manyPlacesBecomeFewRegions() {
    QCOMPARE(regionsOf(int(limits::maximumImageRegions)).size(), limits::maximumImageRegions);
    QVERIFY(regionsOf(int(limits::maximumImageRegions) + 1).size() <= limits::maximumImageRegions);
    QCOMPARE(regionsOf(20 * int(limits::maximumImageRegions) + 1).size(), 1);
  }

  /// A region is some cells of eight pixels and a frame: it tells how large the pixels were.
  void aHugePageIsComparedMoreCoarsely() {
    const auto regionIn = [](double side) {
      const QByteArray number = QByteArray::number(side), middle = QByteArray::number(side / 2);
      const QByteArray box = "/MediaBox [0 0 " + number + ' ' + number + ']';
      const auto regions = transparentRegions(kit::onePage(middle + ' ' + middle + " 1 1 re f", box),
                                              {side, side}, kit::onePage("", box), {side, side}, {});
      return regions && regions->size() == 1 ? regions->first().width() : 0;
    };
    const double sharp = regionIn(100), side = 4 * std::sqrt(limits::maximumComparedPixels);
    QVERIFY(sharp > 0 && sharp < 16);
    QVERIFY2(regionIn(side) >= 4 * 8, qPrintable(QString::number(regionIn(side))));
  }

  /// Regions far apart are drawn one by one, and come out as those that are drawn as one image.
  void regionsFarApartAreDrawnOneByOne() {
    const auto page = [](int side) {
      const QByteArray far = QByteArray::number(side - 30), number = QByteArray::number(side);
      return kit::onePage(
          "0 1 0 rg 0 0 25 40 re f /G gs 1 0 0 rg 10 10 20 20 re f 0 0 1 rg " + far + ' ' + far +
              " 20 20 re f",
          "/MediaBox [0 0 " + number + ' ' + number + "] /Resources << /ExtGState << /G << /ca .5 >> >> >>");
    };
    constexpr int kNear = 200, kFar = 1200;
    QVERIFY((kFar - 50.) * (kFar - 50) * (300. / 72) * (300. / 72) > limits::maximumPixelsTogether);
    for (const int side : {kNear, kFar}) {
      kit::Converted converted(page(side));
      QVERIFY2(!converted.eps().isEmpty(), qPrintable(converted.error().message));
      QCOMPARE(converted.report().regionsRasterised, 2);
      const QImage image = converted.byGhostscript();
      QVERIFY(!image.isNull());
      const auto isNear = [&](QPoint place, QRgb colour) {  // in points
        const QRgb seen = image.pixel(place.x() * 2, image.height() - 1 - place.y() * 2);
        return std::abs(qRed(seen) - qRed(colour)) < 4 && std::abs(qGreen(seen) - qGreen(colour)) < 4 &&
               std::abs(qBlue(seen) - qBlue(colour)) < 4;
      };
      QVERIFY(isNear({15, 20}, qRgb(128, 128, 0)));    // red on green
      QVERIFY(isNear({28, 20}, qRgb(255, 128, 128)));  // red on white
      QVERIFY(isNear({side - 20, side - 20}, qRgb(128, 128, 255)));
      QVERIFY(isNear({side / 2, side / 2}, qRgb(255, 255, 255)));
    }
  }

  void fontsOfFilesWithObjectsWithoutEndStayWhole() {
    QFile file("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    if (!file.open(QIODevice::ReadOnly)) QSKIP("no DejaVu Sans");
    const QByteArray font = file.readAll();
    kit::Converted few(withFont(font, 10)), many(withFont(font, limits::maximumThinnedObjects + 10));
    QVERIFY(!few.eps().isEmpty() && few.eps().size() < font.size() / 2);
    QVERIFY2(many.eps().size() > font.size(), qPrintable(QString::number(many.eps().size())));
  }
};

NORVEX_TEST(EpsLimitsTest)
#include "eps_limits_test.moc"
