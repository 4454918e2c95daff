#include <tiffio.h>

#include <QFile>
#include <QTemporaryDir>

#include <utility>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/engine/engine.h"
#include "worker/tiff/tiff_preview.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

struct Made {
  int width = 4, height = 2, bits = 8, samples = 1;
  int photometric = PHOTOMETRIC_MINISBLACK;
  int compression = COMPRESSION_NONE;
  int planar = PLANARCONFIG_CONTIG;
  int extra = -1;  ///< EXTRASAMPLE_…
  int tile = 0;    ///< side of the tiles; 0: strips
  double dpi = 0;
  int unit = RESUNIT_INCH;
};

// A TIFF of `made` whose rows (of each plane, one plane after the other) are `rows`.
QByteArray madeTiff(const Made& made, const QByteArray& rows, const QList<quint16>& palette = {}) {
  QTemporaryDir folder;
  const QString path = folder.filePath("made.tif");
  TIFF* file = TIFFOpen(QFile::encodeName(path).constData(), "w");
  TIFFSetField(file, TIFFTAG_IMAGEWIDTH, made.width);
  TIFFSetField(file, TIFFTAG_IMAGELENGTH, made.height);
  TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, made.bits);
  TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, made.samples);
  TIFFSetField(file, TIFFTAG_PHOTOMETRIC, made.photometric);
  TIFFSetField(file, TIFFTAG_COMPRESSION, made.compression);
  TIFFSetField(file, TIFFTAG_PLANARCONFIG, made.planar);
  if (made.photometric == PHOTOMETRIC_SEPARATED) TIFFSetField(file, TIFFTAG_INKSET, INKSET_CMYK);
  if (made.extra >= 0) {
    const quint16 kind = quint16(made.extra);
    TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, &kind);
  }
  if (made.dpi > 0) {
    TIFFSetField(file, TIFFTAG_XRESOLUTION, made.dpi);
    TIFFSetField(file, TIFFTAG_YRESOLUTION, made.dpi);
    TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, made.unit);
  }
  if (!palette.isEmpty()) {
    const qsizetype third = palette.size() / 3;
    TIFFSetField(file, TIFFTAG_COLORMAP, palette.constData(), palette.constData() + third,
                 palette.constData() + 2 * third);
  }
  const int planes = made.planar == PLANARCONFIG_SEPARATE ? made.samples : 1;
  if (made.tile > 0) {
    TIFFSetField(file, TIFFTAG_TILEWIDTH, made.tile);
    TIFFSetField(file, TIFFTAG_TILELENGTH, made.tile);
    QByteArray tile(TIFFTileSize(file), '\0');
    for (int y = 0; y < made.height; y += made.tile)
      for (int x = 0; x < made.width; x += made.tile) {
        for (int r = 0; r < made.tile && y + r < made.height; ++r)
          for (int c = 0; c < made.tile && x + c < made.width; ++c)
            for (int s = 0; s < made.samples; ++s)
              tile[(r * made.tile + c) * made.samples + s] =
                  rows[((y + r) * made.width + x + c) * made.samples + s];
        TIFFWriteTile(file, tile.data(), uint32_t(x), uint32_t(y), 0, 0);
      }
  } else {
    TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, 1);
    const qsizetype rowBytes = TIFFScanlineSize(file);
    QByteArray copy = rows;
    for (int plane = 0; plane < planes; ++plane)
      for (int y = 0; y < made.height; ++y)
        TIFFWriteScanline(file, copy.data() + (plane * made.height + y) * rowBytes, uint32_t(y),
                          uint16_t(plane));
  }
  TIFFClose(file);
  QFile result(path);
  return result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
}

NSBitmapImageRep decoded(const QByteArray& bytes) {
  const auto image = decodeTiff(bytes, {});
  return image ? *image : NSBitmapImageRep{};
}

QByteArray hex(const char* digits) {
  return QByteArray::fromHex(digits);
}

}  // namespace

class TiffPreviewTest : public QObject {
  Q_OBJECT
 private slots:
  void samplesAreTakenAsTheyAre_data() {
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("space");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("bytesPerRow");
    const QString grey = NSCalibratedWhiteColorSpace, rgb = NSCalibratedRGBColorSpace,
                  cmyk = NSDeviceCMYKColorSpace;
    const QByteArray eight = hex("0010207f 80f0ff01");
    QTest::newRow("grey") << madeTiff({}, eight) << eight << grey << 8 << 1 << 4;
    Made made;
    made.photometric = PHOTOMETRIC_MINISWHITE;
    QTest::newRow("grey, white is zero")
        << madeTiff(made, eight) << hex("ffefdf80 7f0f00fe") << grey << 8 << 1 << 4;
    made = {};
    made.bits = 1, made.width = 12;
    QTest::newRow("one bit") << madeTiff(made, hex("a5f0 1230")) << hex("a5f0 1230") << grey << 1 << 1 << 2;
    made.photometric = PHOTOMETRIC_MINISWHITE;
    QTest::newRow("one bit, white is zero")
        << madeTiff(made, hex("a5f0 1230")) << hex("5a0f edcf") << grey << 1 << 1 << 2;
    made.photometric = PHOTOMETRIC_MINISBLACK;
    made.bits = 2, made.width = 5;
    QTest::newRow("two bits") << madeTiff(made, hex("1bc0 e440")) << hex("1bc0 e440") << grey << 2 << 1 << 2;
    made.bits = 4, made.width = 3;
    QTest::newRow("four bits") << madeTiff(made, hex("1230 4560")) << hex("1230 4560") << grey << 4 << 1 << 2;
    made = {};
    made.samples = 3, made.photometric = PHOTOMETRIC_RGB, made.width = 2;
    const QByteArray colours = hex("ff0000 00ff00 0000ff 102030");
    QTest::newRow("RGB") << madeTiff(made, colours) << colours << rgb << 8 << 3 << 6;
    made.compression = COMPRESSION_LZW;
    QTest::newRow("RGB, LZW") << madeTiff(made, colours) << colours << rgb << 8 << 3 << 6;
    made.compression = COMPRESSION_PACKBITS;
    QTest::newRow("RGB, PackBits") << madeTiff(made, colours) << colours << rgb << 8 << 3 << 6;
    made.compression = COMPRESSION_NONE, made.planar = PLANARCONFIG_SEPARATE;
    QTest::newRow("RGB in planes") << madeTiff(made, hex("ff00 0010 00ff 0020 0000 ff30")) << colours << rgb
                                   << 8 << 3 << 6;
    made = {};
    made.samples = 4, made.photometric = PHOTOMETRIC_SEPARATED, made.width = 1;
    QTest::newRow("CMYK") << madeTiff(made, hex("01020304 05060708")) << hex("01020304 05060708") << cmyk << 8
                          << 4 << 4;
    made.photometric = PHOTOMETRIC_RGB, made.extra = EXTRASAMPLE_ASSOCALPHA;
    QTest::newRow("RGB with opacity")
        << madeTiff(made, hex("10203040 ffffffff")) << hex("10203040 ffffffff") << rgb << 8 << 4 << 4;
    made.extra = EXTRASAMPLE_UNASSALPHA;
    QTest::newRow("RGB with opacity, not premultiplied")
        << madeTiff(made, hex("ff804080 11223300")) << hex("80402080 00000000") << rgb << 8 << 4 << 4;
    QTest::newRow("RGB hardly to be seen, to the nearest step")
        << madeTiff(made, hex("807fff01 00000000")) << hex("01000101 00000000") << rgb << 8 << 4 << 4;
    made.extra = EXTRASAMPLE_UNSPECIFIED;
    QTest::newRow("RGB with a sample that means nothing")
        << madeTiff(made, hex("10203040 50607080")) << hex("102030 506070") << rgb << 8 << 3 << 3;
    made = {};
    made.tile = 16, made.width = 20, made.height = 17;
    QByteArray many;
    for (int i = 0; i < 340; ++i) many.append(char(i));
    QTest::newRow("tiles") << madeTiff(made, many) << many << grey << 8 << 1 << 20;
  }
  void samplesAreTakenAsTheyAre() {
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, data);
    QFETCH(QString, space);
    QFETCH(int, bits);
    QFETCH(int, samples);
    QFETCH(int, bytesPerRow);
    const NSBitmapImageRep image = decoded(source);
    QVERIFY(image.isConsistent());
    QCOMPARE(image.data.toHex(), data.toHex());
    QCOMPARE(image.colorSpaceName, space);
    QCOMPARE(image.bitsPerSample, bits);
    QCOMPARE(image.samplesPerPixel, samples);
    QCOMPARE(image.bitsPerPixel, bits * samples);
    QCOMPARE(image.bytesPerRow, bytesPerRow);
    QVERIFY(!image.isPlanar);
  }

  void opacityIsTold() {
    Made made;
    made.samples = 4, made.photometric = PHOTOMETRIC_RGB, made.width = 1;
    made.extra = EXTRASAMPLE_ASSOCALPHA;
    QVERIFY(decoded(madeTiff(made, hex("10203040 ffffffff"))).hasAlpha);
    made.extra = EXTRASAMPLE_UNSPECIFIED;
    QVERIFY(!decoded(madeTiff(made, hex("10203040 ffffffff"))).hasAlpha);
  }

  void sixteenBitsStayInNativeOrder() {
    Made made;
    made.bits = 16, made.width = 2, made.height = 1;
    const quint16 samples[2] = {0x1234, 0xfedc};
    const QByteArray rows(reinterpret_cast<const char*>(samples), sizeof samples);
    const NSBitmapImageRep image = decoded(madeTiff(made, rows));
    QCOMPARE(image.bitsPerSample, 16);
    QCOMPARE(image.data, rows);
  }

  void opacityIsNotTurnedWithTheGrey() {
    for (const int bits : {8, 16}) {
      Made made;
      made.bits = bits, made.width = 2, made.height = 1, made.samples = 2;
      made.photometric = PHOTOMETRIC_MINISWHITE, made.extra = EXTRASAMPLE_ASSOCALPHA;
      QCOMPARE(decoded(madeTiff(made, hex(bits == 8 ? "0fff f0ee" : "1234fedc 0102fefd"))).data.toHex(),
               QByteArray(bits == 8 ? "f0ff0fee" : "edcbfedcfefdfefd"));
    }
  }

  void tilesOfHalfBytesStandBesideOneAnother() {
    Made made;
    made.tile = 16, made.width = 20, made.height = 1;
    QByteArray bytes = madeTiff(made, hex("123456789abcdef0 1122334455667788 c0ffee01"));
    bytes[bytes.indexOf(hex("0201")) + 8] = 4;  // the tag of their bits, and its value
    const NSBitmapImageRep image = decoded(bytes);
    QCOMPARE(image.bytesPerRow, 10);
    QCOMPARE(image.data.toHex(), QByteArray("123456789abcdef0c0ff"));
  }

  // Some programs write them though the format asks for sixteenths.
  void tilesMayBeOfAnyWidth() {
    Made made;
    made.tile = 16, made.width = 12, made.height = 2;
    QByteArray bytes = madeTiff(made, hex("000102030405060708090a0b 101112131415161718191a1b"));
    bytes[bytes.indexOf(hex("4201")) + 8] = 12;  // the tag of their width, and its value
    const NSBitmapImageRep image = decoded(bytes);
    QCOMPARE(image.data.toHex(), QByteArray("000102030405060708090a0b000000001011121314151617"));
  }

  void aPaletteBecomesRgb() {
    QList<quint16> palette(768, 0);
    palette[1] = 0xffff;        // entry 1 red
    palette[256 + 2] = 0x8080;  // entry 2 half green
    Made made;
    made.photometric = PHOTOMETRIC_PALETTE, made.width = 3, made.height = 1;
    const NSBitmapImageRep image = decoded(madeTiff(made, hex("000102"), palette));
    QVERIFY(image.isConsistent());
    QCOMPARE(image.colorSpaceName, QString(NSCalibratedRGBColorSpace));
    QCOMPARE(image.data.toHex(), QByteArray("000000ff0000008000"));
    QCOMPARE(image.bytesPerRow, 9);
  }

  void theSizeInPointsComesFromTheResolution() {
    Made made;
    made.dpi = 144;
    QCOMPARE(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsWide, 2.0);
    QCOMPARE(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsHigh, 1.0);
    made.dpi = 144 / 2.54, made.unit = RESUNIT_CENTIMETER;
    QVERIFY(std::abs(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsWide - 2) < 1e-4);
    made.unit = RESUNIT_NONE;
    QCOMPARE(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsWide, 0.0);
    QCOMPARE(decoded(madeTiff({}, QByteArray(8, 'x'))).pointsWide, 0.0);
  }

  void whatIsNoTiffIsAnError() {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("II*"), QByteArray("II*\0\x08\0\0\0", 8),
                                    QByteArray("GIF89a"), QByteArray(1000, '\xff')}) {
      const auto image = decodeTiff(bytes, {});
      QVERIFY(!image.ok());
      QCOMPARE(image.error().kind, ErrorKind::NotParsable);
      QCOMPARE(image.error().message, QStringLiteral("the preview is not a readable TIFF image"));
    }
  }

  void everyTruncationIsAnAnswer() {
    Made made;
    made.samples = 3, made.photometric = PHOTOMETRIC_RGB, made.compression = COMPRESSION_LZW;
    const QByteArray whole = madeTiff(made, QByteArray(24, '\x5a'));
    for (qsizetype length = 0; length < whole.size(); ++length) {
      const auto image = decodeTiff(whole.left(length), {});
      QVERIFY(!image.ok() || image->isConsistent());
    }
  }

  void everyChangedByteIsAnAnswer() {
    PictureLimits limits;
    limits.memoryMiB = 64;
    limits.megapixels = 1;
    const QByteArray whole = madeTiff({}, QByteArray(8, '\x5a'));
    for (qsizetype i = 0; i < whole.size(); ++i)
      for (const int value : {0, 1, 0x7f, 0xff}) {
        QByteArray changed = whole;
        changed[i] = char(value);
        const auto image = decodeTiff(changed, limits);
        QVERIFY(!image.ok() || image->isConsistent());
      }
  }

  // To the last byte that is granted: a mebibyte of samples, or of pixels at eight bytes each.
  void asMuchMemoryAsIsGrantedIsUsed() {
    PictureLimits limits;
    limits.memoryMiB = 1;
    const auto isRead = [&](int width, int height, int photometric) {
      Made made;
      made.width = width, made.height = height, made.photometric = photometric;
      const QList<quint16> palette(photometric == PHOTOMETRIC_PALETTE ? 768 : 0, 7);
      return decodeTiff(madeTiff(made, QByteArray(qsizetype(width) * height, 'x'), palette), limits).ok();
    };
    QVERIFY(isRead(1024, 1024, PHOTOMETRIC_MINISBLACK));
    QVERIFY(!isRead(1024, 1025, PHOTOMETRIC_MINISBLACK));
    QVERIFY(isRead(512, 256, PHOTOMETRIC_PALETTE));
    QVERIFY(!isRead(512, 257, PHOTOMETRIC_PALETTE));
  }

  void aSideIsALimit() {
    for (const int more : {0, 1}) {
      Made made;
      made.height = 1, made.width = limits::maximumSide + more;
      const auto wide = decodeTiff(madeTiff(made, QByteArray(made.width, 'x')), {});
      QCOMPARE(wide.ok(), more == 0);
      if (more) QCOMPARE(wide.error().kind, ErrorKind::Limit);
      std::swap(made.width, made.height);
      QCOMPARE(decodeTiff(madeTiff(made, QByteArray(made.height, 'x')), {}).ok(), more == 0);
    }
  }

  void aSizeInPointsThatIsNoneIsNotTaken() {
    Made made;
    made.dpi = 4 * 72 / (limits::maximumPoints * 1.01);
    QCOMPARE(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsWide, 0.0);
    made.dpi = 4 * 72 / (limits::maximumPoints * 0.99);
    QVERIFY(decoded(madeTiff(made, QByteArray(8, 'x'))).pointsWide > limits::maximumPoints * 0.98);
  }

  void tooManyPixelsAreALimit() {
    PictureLimits limits;
    limits.megapixels = 0.000005;
    const auto image = decodeTiff(madeTiff({}, QByteArray(8, 'x')), limits);
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Limit);
  }
};

NORVEX_TEST(TiffPreviewTest)
#include "tiff_preview_test.moc"
