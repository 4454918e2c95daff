// Tiles that abut let nothing shine through.
#include "worker/postscript/tile_seams.h"

#include <QTemporaryDir>

#include <cstdlib>

#include "kit/test_main.h"
#include "worker/engine/engine.h"
#include "worker/kit/bitmap_images.h"
#include "worker/pdf/pdf_render.h"
#include "worker/postscript/distill.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// X Y WIDTH HEIGHT at: an image clipped to that rectangle; it reaches beyond it on every side, as those of
/// flattened pictures do.
const QByteArray kProcedures =
    "/paint { gsave translate scale 2 2 8 [2 0 0 2 0 0] {<64646464>} image grestore } bind def\n"
    "/at { gsave 4 copy rectclip 4 dict begin /h exch def /w exch def /y exch def /x exch def\n"
    "  w 6 add h 6 add x 3 sub y 3 sub paint end grestore } bind def\n";

const QSizeF kSize(60, 40);

QByteArray distilled(const QByteArray& body) {
  QTemporaryDir folder;
  EngineContext context;
  context.scratchFolder = folder.path();
  context.limits.seconds = 60;
  const auto made =
      distill("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 60 40\n%%EndComments\n" + kProcedures + body,
              QRectF({0, 0}, kSize), context);
  return made ? made->pdf : QByteArray();
}

QImage drawn(const QByteArray& pdf) {
  RenderRequest request;
  request.pixelSize = kSize.toSize();
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, kSize.height());
  const auto image = kit::imageOf(PdfRenderer(pdf).render(request, kSize, {}));
  return image ? *image : QImage();
}

/// Whether every pixel within is the tiles' grey and nothing else.
bool isGrey(const QImage& image, const QRect& within) {
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x)
      if (std::abs(qRed(image.pixel(x, y)) - 0x64) > 1 || qAlpha(image.pixel(x, y)) < 254) return false;
  return !image.isNull();
}

/// Four rectangles with edges in the middle of pixels, before white.
const QByteArray kFour =
    "1 setgray 0 0 60 40 rectfill\n"
    "5 5 20.5 15.5 at 25.5 5 20.5 15.5 at 5 20.5 20.5 15.5 at 25.5 20.5 20.5 15.5 at\n";

}  // namespace

class TileSeamsTest : public QObject {
  Q_OBJECT
 private slots:
  void tilesThatAbutShowNoLine() {
    const QByteArray pdf = distilled(kFour);
    const QRect edge(7, 8, 35, 24);
    QVERIFY(!isGrey(drawn(pdf), edge));  // a line as it comes
    // But for the one point at which all four meet.
    const QImage image = drawn(withoutSeams(pdf));
    QVERIFY(isGrey(image, {7, 8, 17, 24}) && isGrey(image, {27, 8, 15, 24}));
    QVERIFY(isGrey(image, {7, 8, 35, 10}) && isGrey(image, {7, 22, 35, 10}));
  }

  void theOutsideOfTilesStaysAsItIs() {
    const QByteArray pdf = distilled(kFour);
    const QImage before = drawn(pdf), after = drawn(withoutSeams(pdf));
    QVERIFY(before != after);
    for (int y = 0; y < 40; ++y)
      for (int x = 0; x < 60; ++x)
        if (y != 19 && (!QRect(4, 3, 44, 34).contains(x, y) || QRect(45, 3, 4, 34).contains(x, y)))
          QCOMPARE(after.pixel(x, y), before.pixel(x, y));
  }

  void anEdgeThatIsSharedInPartGrowsInPart() {
    const QByteArray pdf = distilled(
        "1 setgray 0 0 60 40 rectfill\n5 5 20.5 30 at 25.5 10 20.5 10 at 25.5 20 20.5 6 at 2 2 1 1 at\n");
    const QImage before = drawn(pdf), after = drawn(withoutSeams(pdf));
    QVERIFY(isGrey(after, {8, 16, 35, 12}));
    for (const int y : {8, 32}) QCOMPARE(after.pixel(25, y), before.pixel(25, y));  // nobody is beside it
  }

  void slantedAndRoundEdgesGrowToo() {
    const QByteArray pdf = distilled(
        "1 setgray 0 0 60 40 rectfill\n"
        "gsave newpath 5 5 moveto 20 5 lineto 30 20 20 25 40 35 curveto 5 35 lineto closepath clip newpath\n"
        "60 40 0 0 paint grestore\n"
        "gsave newpath 20 5 moveto 50 5 lineto 50 35 lineto 40 35 lineto 20 25 30 20 20 5 curveto closepath "
        "clip\n"
        "newpath 60 40 0 0 paint grestore 1 1 1 1 at 2 2 1 1 at\n");
    QVERIFY(!isGrey(drawn(pdf), {8, 8, 40, 24}));
    QVERIFY(isGrey(drawn(withoutSeams(pdf)), {8, 8, 40, 24}));
  }

  void tilesThatDoNotMeetAndOtherPicturesStayByteForByte_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("apart") << QByteArray("5 5 10 10 at 20 5 10 10 at 35 5 10 10 at 5 20 10 10 at\n");
    QTest::newRow("over each other") << QByteArray("5 5 10 10 at 7 6 10 10 at 9 7 10 10 at 11 9 10 10 at\n");
    QTest::newRow("no images") << QByteArray("0 setgray 5 5 10 10 rectfill 15 5 10 10 rectfill\n");
  }
  void tilesThatDoNotMeetAndOtherPicturesStayByteForByte() {
    QFETCH(QByteArray, body);
    const QByteArray pdf = distilled(body);
    QVERIFY(!pdf.isEmpty());
    QCOMPARE(withoutSeams(pdf), pdf);
  }

  void whatIsNoPdfStays() {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("%PDF-1.4 nothing")})
      QCOMPARE(withoutSeams(bytes), bytes);
  }
};

NORVEX_TEST(TileSeamsTest)
#include "tile_seams_test.moc"
