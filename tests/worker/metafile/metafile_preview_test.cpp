// Metafiles made here, pixel by pixel.
#include "worker/metafile/metafile_preview.h"

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/kit/made_metafile.h"
#include "worker/metafile/device_bitmap.h"
#include "worker/metafile/metafile_records.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madeMetafile;
using kit::metafileRecord;

namespace {

// Objects 0, 1 and 2 of a file: a red brush, no pen, a blue pen of 4 units.
const QByteArray kObjects = metafileRecord(0x2FC, {0, 0x00FF, 0, 0}) +
                            metafileRecord(0x2FA, {5, 0, 0, 0, 0}) +
                            metafileRecord(0x2FA, {0, 4, 0, 0, 0x00FF});
QByteArray selected(int index) {
  return metafileRecord(0x12D, {index});
}
const QByteArray kFill = kObjects + selected(0) + selected(1);

QByteArray pixel(const NSBitmapImageRep& image, int x, int y) {
  return image.data.mid(qsizetype(y) * image.bytesPerRow + 3 * x, 3).toHex();
}

/// All that is dark of 40 × 30 pixels.
QRect darkBox(const NSBitmapImageRep& image) {
  QRect dark;
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x)
      if (pixel(image, x, y) < QByteArray("a")) dark |= QRect(x, y, 1, 1);
  return dark;
}

// 2 × 2 pixels of 24 bits, bottom row first: blue, white; top row: red, green.
QByteArray bitmap() {
  return kit::words({40, 0, 2, 0, 2, 0, 1, 24, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}) + QByteArray::fromHex(
                                                                                          "ff0000ffffff0000"
                                                                                          "0000ff00ff000000");
}

const QByteArray kRed = "ff0000", kGreen = "00ff00", kBlue = "0000ff", kWhite = "ffffff", kBlack = "000000";

}  // namespace

class MetafilePreviewTest : public QObject {
  Q_OBJECT
 private slots:
  void recordsAreDrawn_data() {
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QList<QPoint>>("places");
    QTest::addColumn<QList<QByteArray>>("colours");
    const auto row = [](const char* name, const QByteArray& records, const QList<QPoint>& places,
                        const QList<QByteArray>& colours) {
      QTest::newRow(name) << records << places << colours;
    };
    row("nothing", "", {{0, 0}, {39, 29}}, {kWhite, kWhite});
    row("rectangle", kFill + metafileRecord(0x41B, {20, 30, 5, 10}), {{11, 6}, {29, 19}, {9, 6}, {31, 19}},
        {kRed, kRed, kWhite, kWhite});
    row("ellipse", kFill + metafileRecord(0x418, {25, 30, 5, 10}), {{20, 15}, {11, 6}}, {kRed, kWhite});
    row("rounded rectangle", kFill + metafileRecord(0x61C, {8, 8, 25, 30, 5, 10}),
        {{20, 15}, {10, 5}, {20, 6}}, {kRed, kWhite, kRed});
    row("rectangle with corners of no width", kFill + metafileRecord(0x61C, {8, 0, 25, 30, 5, 10}),
        {{11, 6}, {29, 24}, {31, 6}}, {kRed, kRed, kWhite});
    row("polygon", kFill + metafileRecord(0x324, {3, 0, 0, 40, 0, 0, 30}), {{5, 5}, {35, 25}},
        {kRed, kWhite});
    row("polygons with a hole",
        kFill + metafileRecord(0x538, {2, 4, 4, 0, 0, 40, 0, 40, 30, 0, 30, 10, 10, 20, 10, 20, 20, 10, 20}),
        {{5, 5}, {15, 15}}, {kRed, kWhite});
    row("filled by winding",
        kFill + metafileRecord(0x106, {2}) +
            metafileRecord(0x538, {2, 4, 4, 0, 0, 40, 0, 40, 30, 0, 30, 10, 10, 20, 10, 20, 20, 10, 20}),
        {{5, 5}, {15, 15}}, {kRed, kRed});
    row("pie", kFill + metafileRecord(0x81A, {15, 40, 0, 20, 30, 40, 0, 0}), {{13, 8}, {27, 8}, {13, 24}},
        {kRed, kWhite, kRed});
    row("chord", kFill + metafileRecord(0x830, {15, 40, 0, 20, 30, 40, 0, 0}), {{13, 8}, {27, 8}, {33, 4}},
        {kRed, kRed, kWhite});
    row("arc", kFill + selected(2) + metafileRecord(0x817, {15, 40, 0, 20, 30, 40, 0, 0}),
        {{1, 15}, {20, 28}, {34, 4}, {20, 15}}, {kBlue, kBlue, kWhite, kWhite});
    row("lines", kObjects + selected(2) + metafileRecord(0x214, {10, 5}) + metafileRecord(0x213, {10, 35}),
        {{20, 9}, {20, 11}, {20, 14}}, {kBlue, kBlue, kWhite});
    row("polyline", kObjects + selected(2) + metafileRecord(0x325, {2, 5, 10, 35, 10}), {{20, 10}, {20, 14}},
        {kBlue, kWhite});
    row("a deleted object's place is taken",
        kObjects + metafileRecord(0x1F0, {0}) + metafileRecord(0x2FC, {0, 0xFF00, 0, 0}) + selected(0) +
            selected(1) + metafileRecord(0x41B, {20, 30, 5, 10}),
        {{20, 10}}, {kGreen});
    row("clipped", kFill + metafileRecord(0x416, {30, 20, 0, 0}) + metafileRecord(0x41B, {30, 40, 0, 0}),
        {{10, 10}, {30, 10}}, {kRed, kWhite});
    row("saved and restored",
        kFill + metafileRecord(0x1E, {}) + metafileRecord(0x416, {30, 20, 0, 0}) +
            metafileRecord(0x127, {0xFFFF}) + metafileRecord(0x41B, {30, 40, 0, 0}),
        {{10, 10}, {30, 10}}, {kRed, kRed});
    row("restored to the first of two",
        kFill + metafileRecord(0x1E, {}) + metafileRecord(0x416, {30, 20, 0, 0}) + metafileRecord(0x1E, {}) +
            metafileRecord(0x416, {10, 20, 0, 0}) + metafileRecord(0x127, {1}) +
            metafileRecord(0x41B, {30, 40, 0, 0}),
        {{10, 20}, {30, 10}}, {kRed, kRed});
    row("dashed",
        kObjects + metafileRecord(0x2FA, {1, 2, 0, 0, 0x00FF}) + selected(3) +
            metafileRecord(0x214, {10, 0}) + metafileRecord(0x213, {10, 40}),
        {{6, 10}, {13, 10}, {14, 10}, {22, 10}}, {kBlue, kWhite, kWhite, kBlue});
    row("dotted",
        kObjects + metafileRecord(0x2FA, {2, 2, 0, 0, 0x00FF}) + selected(3) +
            metafileRecord(0x214, {10, 0}) + metafileRecord(0x213, {10, 40}),
        {{2, 10}, {5, 10}, {6, 10}, {9, 10}, {13, 10}}, {kBlue, kWhite, kWhite, kBlue, kWhite});
    row("another window", metafileRecord(0x20B, {-15, -20}) + kFill + metafileRecord(0x41B, {0, 0, -15, -20}),
        {{5, 5}, {25, 5}, {5, 20}}, {kRed, kWhite, kWhite});
    row("a bitmap", metafileRecord(0xF43, {0x20, 0xCC, 0, 2, 2, 0, 0, 20, 20, 5, 10}, bitmap()),
        {{12, 7}, {28, 7}, {12, 23}, {28, 23}, {5, 7}}, {kRed, kGreen, kBlue, kWhite, kWhite});
    row("a part of one", metafileRecord(0xB41, {0x20, 0xCC, 1, 1, 1, 0, 20, 20, 5, 10}, bitmap()),
        {{12, 7}, {28, 23}, {32, 7}}, {kRed, kRed, kWhite});
    row("a bitmap in its own pixels", metafileRecord(0xD33, {0, 2, 0, 0, 0, 2, 2, 5, 10}, bitmap()),
        {{10, 5}, {11, 5}, {10, 6}, {12, 5}}, {kRed, kGreen, kBlue, kWhite});
    row("a bitmap that is not stretched", metafileRecord(0x940, {0x20, 0xCC, 0, 0, 2, 2, 5, 10}, bitmap()),
        {{10, 5}, {11, 5}, {10, 6}, {12, 5}}, {kRed, kGreen, kBlue, kWhite});
    row("bars", kFill + metafileRecord(0x61D, {0x21, 0xF0, 10, 10, 5, 5}), {{7, 7}, {17, 7}}, {kRed, kWhite});
  }
  void recordsAreDrawn() {
    QFETCH(QByteArray, records);
    QFETCH(QList<QPoint>, places);
    QFETCH(QList<QByteArray>, colours);
    const auto image = decodeMetafile(madeMetafile(records), {});
    QVERIFY2(image.ok(), image ? "" : qPrintable(image.error().message));
    QVERIFY(image->isConsistent());
    QCOMPARE(QSize(image->pixelsWide, image->pixelsHigh), QSize(40, 30));
    for (int i = 0; i < places.size(); ++i) {
      QVERIFY2(pixel(*image, places[i].x(), places[i].y()) == colours[i],
               qPrintable(QStringLiteral("at %1, %2: %3")
                              .arg(places[i].x())
                              .arg(places[i].y())
                              .arg(QString::fromLatin1(pixel(*image, places[i].x(), places[i].y())))));
    }
  }

  void bitmapsOfAPaletteAreRead() {
    // 2 × 1 pixels of a bit: the second colour, the first.
    const QByteArray two =
        kit::words({40, 0, 2, 0, 1, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0}) + QByteArray::fromHex(
                                                                                        "00ff0000"
                                                                                        "ff000000"
                                                                                        "80000000");
    const auto image = decodeMetafile(
        madeMetafile(metafileRecord(0xF43, {0x20, 0xCC, 0, 1, 2, 0, 0, 30, 40, 0, 0}, two)), {});
    QVERIFY(image.ok());
    QCOMPARE(pixel(*image, 2, 15), kBlue);
    QCOMPARE(pixel(*image, 37, 15), kGreen);
  }

  // The older header: sizes of 16 bits, three bytes a colour, always all of them.
  void bitmapsWithTheOlderHeaderAreRead() {
    const QByteArray palette = QByteArray::fromHex(
                                   "ff0000"
                                   "00ff00") +
                               QByteArray(254 * 3, '\0');
    const auto image =
        deviceBitmap(kit::words({12, 0, 2, 1, 1, 8}) + palette + QByteArray::fromHex("01000000"));
    QVERIFY(image.ok());
    QCOMPARE(QSize(image->width(), image->height()), QSize(2, 1));
    QCOMPARE(image->row(0)[0], 0xFF00FF00);
    QCOMPARE(image->row(0)[1], 0xFF0000FF);
  }

  void bitmapsOfRunsAreRead_data() {
    QTest::addColumn<int>("bits");
    QTest::addColumn<QByteArray>("runs");
    QTest::addColumn<QList<QByteArray>>("rows");  // from the top, 4 × 2 pixels
    const QByteArray oneRow = kWhite + kWhite + kWhite + kWhite;
    QTest::newRow("a run and single pixels of eight bits")
        << 8
        << QByteArray::fromHex(
               "03010102"
               "0000"
               "000301020300"
               "0001")
        << QList<QByteArray>{kRed + kGreen + kBlue + kWhite, kRed + kRed + kRed + kGreen};
    QTest::newRow("a run and single pixels of four bits")
        << 4
        << QByteArray::fromHex(
               "0412"
               "0000"
               "00031230"
               "0001")
        << QList<QByteArray>{kRed + kGreen + kBlue + kWhite, kRed + kGreen + kRed + kGreen};
    QTest::newRow("a move") << 8 << QByteArray::fromHex("0002020102030001")
                            << QList<QByteArray>{kWhite + kWhite + kBlue + kBlue, oneRow};
    QTest::newRow("beyond the right edge")
        << 8 << QByteArray::fromHex("ff010001") << QList<QByteArray>{oneRow, kRed + kRed + kRed + kRed};
    QTest::newRow("cut short") << 8 << QByteArray::fromHex("0201000501")
                               << QList<QByteArray>{oneRow, kRed + kRed + kWhite + kWhite};
    QTest::newRow("colours that are none")
        << 8 << QByteArray::fromHex("01090001") << QList<QByteArray>{oneRow, oneRow};
  }
  void bitmapsOfRunsAreRead() {
    QFETCH(int, bits);
    QFETCH(QByteArray, runs);
    QFETCH(QList<QByteArray>, rows);
    const QByteArray header =
        kit::words({40, 0, 4, 0, 2, 0, 1, bits, bits == 8 ? 1 : 2, 0, 0, 0, 0, 0, 0, 0, 4, 0, 0, 0}) +
        QByteArray::fromHex(
            "ffffff00"
            "0000ff00"
            "00ff0000"
            "ff000000");  // white, red, green, blue
    const auto image = decodeMetafile(
        madeMetafile(metafileRecord(0xF43, {0x20, 0xCC, 0, 2, 4, 0, 0, 30, 40, 0, 0}, header + runs)), {});
    QVERIFY(image.ok());
    QList<QByteArray> found;
    for (const int y : {7, 22}) {
      QByteArray row;
      for (const int x : {5, 15, 25, 35})  // beside the middle of a pixel its neighbour is seen a little
        for (const char part : QByteArray::fromHex(pixel(*image, x, y)))
          row += uchar(part) < 128 ? "00" : "ff";
      found << row;
    }
    QCOMPARE(found, rows);
  }

  void aBitmapWithoutAllOfItsRowsIsNone() {
    QVERIFY(deviceBitmap(bitmap()).ok());
    QVERIFY(!deviceBitmap(bitmap().chopped(1)).ok());
    QVERIFY(!deviceBitmap(bitmap().chopped(8)).ok());
  }

  void fewRunsMayStandForALargeBitmap() {
    const auto ofRuns = [](int side) {
      return deviceBitmap(kit::words({40, 0, side, 0, side, 0, 1, 8, 1, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0}) +
                          QByteArray::fromHex("0000ff0000ff000002010001"));
    };
    const auto bitmap = ofRuns(1000);
    QVERIFY(bitmap.ok());
    QCOMPARE(bitmap->row(999)[1], 0xFF00FF00);
    QCOMPARE(bitmap->row(999)[2], 0xFFFF0000);
    QCOMPARE(bitmap->row(0)[999], 0xFFFF0000);
    QVERIFY(!ofRuns(32000).ok());  // more than any preview has
  }

  void aHatchHasLinesAndWhatLiesBetweenThem_data() {
    QTest::addColumn<int>("hatch");
    QTest::addColumn<int>("lines");  // pixels of a tile of 8 × 8
    QTest::addColumn<QPoint>("on");
    QTest::addColumn<QPoint>("off");
    QTest::newRow("across") << 0 << 8 << QPoint(9, 12) << QPoint(12, 9);
    QTest::newRow("down") << 1 << 8 << QPoint(12, 9) << QPoint(9, 12);
    QTest::newRow("falling") << 2 << 8 << QPoint(10, 10) << QPoint(10, 13);
    QTest::newRow("rising") << 3 << 8 << QPoint(10, 13) << QPoint(10, 10);
    QTest::newRow("crossed") << 4 << 15 << QPoint(12, 9) << QPoint(9, 9);
    QTest::newRow("crossed slants") << 5 << 16 << QPoint(10, 13) << QPoint(10, 12);
  }
  void aHatchHasLinesAndWhatLiesBetweenThem() {
    QFETCH(int, hatch);
    QFETCH(int, lines);
    QFETCH(QPoint, on);
    QFETCH(QPoint, off);
    const auto drawn = [&](int backgroundMode) {
      return decodeMetafile(
          madeMetafile(kObjects + metafileRecord(0x2FC, {2, 0x00FF, 0, hatch}) + selected(0) + selected(1) +
                       metafileRecord(0x41B, {30, 40, 0, 0}) + metafileRecord(0x201, {0xFF00, 0}) +
                       metafileRecord(0x102, {backgroundMode}) + selected(3) +
                       metafileRecord(0x41B, {24, 32, 0, 0})),
          {});
    };
    const auto image = drawn(2);
    QVERIFY(image.ok());
    QCOMPARE(pixel(*image, on.x(), on.y()), kRed);
    QCOMPARE(pixel(*image, off.x(), off.y()), kGreen);
    int red = 0;
    for (int y = 8; y < 16; ++y)
      for (int x = 8; x < 16; ++x) red += pixel(*image, x, y) == kRed;
    QCOMPARE(red, lines);
    // Without a background what is there already is seen between the lines.
    QCOMPARE(pixel(*drawn(1), off.x(), off.y()), kRed);
  }

  void aPatternIsRepeated() {
    const auto image =
        decodeMetafile(madeMetafile(kObjects + metafileRecord(0x142, {5, 0}, bitmap()) + selected(3) +
                                    selected(1) + metafileRecord(0x41B, {20, 30, 4, 10})),
                       {});
    QVERIFY(image.ok());
    for (const int by : {0, 2, 8}) {
      QCOMPARE(pixel(*image, 12 + by, 6 + by), kRed);
      QCOMPARE(pixel(*image, 13 + by, 6 + by), kGreen);
      QCOMPARE(pixel(*image, 12 + by, 7 + by), kBlue);
    }
    QCOMPARE(pixel(*image, 8, 6), kWhite);
  }

  void aPatternThatIsNotKnownIsGrey() {
    const auto image = decodeMetafile(madeMetafile(kObjects + metafileRecord(0x1F9, {0}) + selected(3) +
                                                   selected(1) + metafileRecord(0x41B, {20, 30, 4, 10})),
                                      {});
    QVERIFY(image.ok());
    QCOMPARE(pixel(*image, 20, 12), "808080");
    QCOMPARE(pixel(*image, 8, 6), kWhite);
  }

  void theHeightOfALineIsLargerThanThatOfItsLetters() {
    const auto heightOfLetters = [](int height) {
      const QByteArray font =
          metafileRecord(0x2FB, {height, 0, 0, 0, 400, 0, 0, 0, 0}, QByteArray("sans-serif\0", 11));
      const auto image =
          decodeMetafile(madeMetafile(font + selected(0) + metafileRecord(0x521, {2, 0x4848, 2, 2})), {});
      return image ? darkBox(*image).height() : 0;
    };
    const int ofLetters = heightOfLetters(-20), ofLine = heightOfLetters(20);
    QVERIFY2(ofLine < ofLetters && 2 * ofLine > ofLetters,
             qPrintable(QStringLiteral("%1, %2").arg(ofLine).arg(ofLetters)));
  }

  void textIsDark() {
    const QByteArray font = metafileRecord(0x2FB, {-20, 0, 0, 0, 700, 0, 0, 0, 0}, QByteArray("Arial\0", 6));
    const auto image =
        decodeMetafile(madeMetafile(font + selected(0) + metafileRecord(0x521, {2, 0x4848, 2, 2})), {});
    QVERIFY(image.ok());
    QVERIFY(image->data.count('\0') > 100);
  }

  void textStandsWhereItIsAligned_data() {
    QTest::addColumn<int>("align");
    QTest::addColumn<int>("angle");  // tenths of a degree, against the clock
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QRect>("box");  // all that is dark lies in it, and near each of its sides
    const QByteArray plain = metafileRecord(0x521, {2, 0x4848, 15, 20});
    const QByteArray framed = metafileRecord(0xA32, {15, 20, 2, 4, 0, 0, 40, 30, 0x4848});
    const QByteArray upwards = metafileRecord(0x20B, {30, 0}) + metafileRecord(0x20C, {-30, 40});
    QTest::newRow("from the place to the right, below it") << 0 << 0 << plain << QRect(20, 15, 16, 12);
    QTest::newRow("to the place") << 2 << 0 << plain << QRect(4, 15, 16, 12);
    QTest::newRow("around it") << 6 << 0 << plain << QRect(12, 15, 16, 12);
    QTest::newRow("on the line") << 24 << 0 << plain << QRect(20, 6, 16, 10);
    QTest::newRow("above its place") << 8 << 0 << plain << QRect(20, 4, 16, 10);
    QTest::newRow("upwards") << 24 << 900 << plain << QRect(10, -1, 11, 16);
    QTest::newRow("with more told") << 24 << 0 << metafileRecord(0xA32, {15, 20, 2, 0, 0x4848})
                                    << QRect(20, 6, 16, 10);
    QTest::newRow("with a rectangle") << 24 << 0 << framed << QRect(20, 6, 16, 10);
    QTest::newRow("where y points upwards") << 24 << 0 << upwards + plain << QRect(20, 6, 16, 10);
  }
  void textStandsWhereItIsAligned() {
    QFETCH(int, align);
    QFETCH(int, angle);
    QFETCH(QByteArray, text);
    QFETCH(QRect, box);
    const QByteArray font =
        metafileRecord(0x2FB, {-10, 0, angle, 0, 400, 0, 0, 0, 0}, QByteArray("sans-serif\0", 11));
    const auto image =
        decodeMetafile(madeMetafile(font + selected(0) + metafileRecord(0x12E, {align}) + text), {});
    QVERIFY(image.ok());
    const QRect dark = darkBox(*image);
    const QRect inner = box.adjusted(3, 3, -3, -3);
    QVERIFY2(
        box.contains(dark) && dark.contains(inner),
        qPrintable(
            QStringLiteral("%1 %2 %3 %4").arg(dark.x()).arg(dark.y()).arg(dark.width()).arg(dark.height())));
  }

  void aFontWhoseNameIsNoUtf8StopsNothing() {
    const QByteArray font =
        metafileRecord(0x2FB, {-20, 0, 0, 0, 400, 0, 0, 0, 0}, QByteArray("Gro\xDF\xE4\0", 6));
    const auto image =
        decodeMetafile(madeMetafile(kFill + font + selected(3) + metafileRecord(0x521, {2, 0x4848, 2, 2}) +
                                    metafileRecord(0x41B, {30, 40, 20, 30})),
                       {});
    QVERIFY2(image.ok(), image ? "" : qPrintable(image.error().message));
    QVERIFY(image->data.count('\0') > 100);
    QCOMPARE(pixel(*image, 35, 25), kRed);
  }

  void aFrameTellsTheSize() {
    const auto image =
        decodeMetafile(kit::placeableMetafile(kFill + metafileRecord(0x41B, {115, 120, 100, 100})), {});
    QVERIFY(image.ok());
    QCOMPARE(image->pointsWide, 144.0);
    QCOMPARE(image->pointsHigh, 108.0);
    QCOMPARE(QSize(image->pixelsWide, image->pixelsHigh), QSize(288, 216));
    QCOMPARE(pixel(*image, 10, 10), kRed);
    QCOMPARE(pixel(*image, 200, 10), kWhite);
  }

  void whatIsDamagedIsTold_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("sentence");
    const QString damaged = QStringLiteral("the embedded Windows metafile is damaged");
    QTest::newRow("nothing") << QByteArray() << damaged;
    QTest::newRow("something else") << QByteArray("metafile, but none at all") << damaged;
    QTest::newRow("no size") << kit::words({1, 9, 0x300, 0, 0, 0, 0, 0, 0}) + metafileRecord(0, {})
                             << QStringLiteral("the embedded Windows metafile tells no size");
    QTest::newRow("a first record that goes beyond the end")
        << kit::words({1, 9, 0x300, 0, 0, 0, 0, 0, 0}) + kit::words({500, 0, 0x20C, 30, 40}) << damaged;
  }
  void whatIsDamagedIsTold() {
    QFETCH(QByteArray, bytes);
    const auto image = decodeMetafile(bytes, {});
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::NotParsable);
    QTEST(image.error().message, "sentence");
  }

  /// What is saved beyond the limit is not kept: the state before it comes back.
  void statesAreSavedUpToANumber() {
    const auto colourAfter = [](size_t saved) {
      const QByteArray green = metafileRecord(0x2FC, {0, 0xFF00, 0, 0}) + selected(3);
      const auto image = decodeMetafile(
          madeMetafile(kFill + metafileRecord(0x1E, {}).repeated(qsizetype(saved) - 1) + green +
                       metafileRecord(0x1E, {}) + selected(0) + metafileRecord(0x127, {0xFFFF}) +
                       metafileRecord(0x41B, {30, 40, 0, 0})),
          {});
      return image ? pixel(*image, 20, 15) : image.error().message.toUtf8();
    };
    QCOMPARE(colourAfter(limits::maximumMetafileStates), kGreen);
    QCOMPARE(colourAfter(limits::maximumMetafileStates + 1), kRed);
  }

  /// One that is thrown away leaves its place to the next one.
  void objectsAreKeptUpToANumber() {
    const QByteArray pen = metafileRecord(0x2FA, {5, 0, 0, 0, 0}), erased = metafileRecord(0x1F0, {7});
    const QByteArray green = metafileRecord(0x2FC, {0, 0xFF00, 0, 0});
    const auto image =
        decodeMetafile(madeMetafile(kFill + pen.repeated(qsizetype(limits::maximumMetafileObjects)) + erased +
                                    green + selected(7) + metafileRecord(0x41B, {30, 40, 0, 0})),
                       {});
    QVERIFY2(image.ok(), image ? "" : qPrintable(image.error().message));
    QCOMPARE(pixel(*image, 20, 15), kGreen);
  }

  void recordsThatAreCutShortAreHarmless() {
    const QByteArray whole = kFill + metafileRecord(0x41B, {20, 30, 5, 10}) +
                             metafileRecord(0xF43, {0x20, 0xCC, 0, 2, 2, 0, 0, 20, 20, 5, 10}, bitmap()) +
                             metafileRecord(0x538, {2, 4, 9000, 0, 0, 40, 0, 40, 30});
    const QByteArray file = madeMetafile(whole);
    for (qsizetype cut = 0; cut <= file.size(); ++cut) {
      const auto image = decodeMetafile(file.first(cut), {});
      QVERIFY(!image.ok() || image->isConsistent());
    }
  }

  void hugeExtentsAreMadeSmaller() {
    const auto image = decodeMetafile(madeMetafile(metafileRecord(0x20C, {30000, 32000})), {});
    QVERIFY(image.ok());
    const auto huge = decodeMetafile(
        kit::words({1, 9, 0x300, 0, 0, 0, 0, 0, 0}) + metafileRecord(0x20C, {30000, 32000}), {});
    QVERIFY(huge.ok());
    QCOMPARE(QSize(huge->pixelsWide, huge->pixelsHigh), QSize(2048, 1920));
  }
};

NORVEX_TEST(MetafilePreviewTest)
#include "metafile_preview_test.moc"
