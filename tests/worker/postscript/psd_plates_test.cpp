// The plates that Ghostscript writes, as a Photoshop file of a channel for each ink.
#include "worker/postscript/psd_plates.h"

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "protocol/page_inks.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray number(quint32 value) {
  return QByteArray(1, char(value >> 24)) + char(value >> 16) + char(value >> 8) + char(value);
}

/// A file by hand.
QByteArray psd(int channels, quint32 width, quint32 height, const QByteArray& resources,
               const QByteArray& samples) {
  return QByteArray("8BPS\0\1\0\0\0\0\0\0\0", 13) + char(channels) + number(height) + number(width) +
         QByteArray("\0\x08\0\4", 4) + number(0) + number(quint32(resources.size())) + resources + number(0) +
         QByteArray("\0\0", 2) + samples;
}

/// Two pixels with one spot channel.
QByteArray psd(const QByteArray& resources) {
  return psd(5, 2, 1, resources, QByteArray("\xff\x00", 2).repeated(5));
}

const QByteArray kNames("8BIM\3\xee\0\0\0\0\0\5\4Gold\0", 18);
const QByteArray kColours("8BIM\3\xef\0\0\0\0\0\x0e\0\2\xff\xff\xcc\xcc\0\0\x99\x99\0\0\2\0", 26);

/// Without the samples: what is not too large for them is found to be cut off.
ErrorKind refusal(int channels, quint32 width, quint32 height) {
  return platesOfPsd(psd(channels, width, height, {}, {})).error().kind;
}

}  // namespace

class PsdPlatesTest : public QObject {
  Q_OBJECT
 private slots:
  void aPhotoshopFileIsReadByItsChannels() {
    const Result<PageInks> page = platesOfPsd(psd(kNames + kColours));
    QVERIFY2(page.ok(), qPrintable(page ? QString() : page.error().message));
    QCOMPARE(page->pixels, QSize(2, 1));
    QCOMPARE(page->inks.size(), 5);
    QCOMPARE(page->inks[4].name, "Gold");
    QVERIFY(page->inks[4].alternate == (ProcessInks{0, 51, 255, 102}));
    QCOMPARE(page->plates, QByteArray("\x00\xff", 2).repeated(5));
    QCOMPARE(page->inks[4].coverage, 0.5);
    QVERIFY(platesOfPsd(psd(kNames + kColours) + "8BPS another page").ok());
    QVERIFY(!platesOfPsd(psd(kNames))->inks[4].alternate);
  }

  void anotherPhotoshopFileIsRefused() {
    const QByteArray good = psd(kNames + kColours);
    for (qsizetype length = 0; length < good.size(); ++length)
      QVERIFY2(!platesOfPsd(good.left(length)), qPrintable(QString::number(length)));
    const auto changed = [&](qsizetype at, char byte) {
      return QByteArray(good).replace(at, 1, QByteArray(1, byte));
    };
    QVERIFY(!platesOfPsd(changed(0, '9')));
    QVERIFY(!platesOfPsd(changed(5, 2)));    // version
    QVERIFY(!platesOfPsd(changed(13, 3)));   // fewer channels than process inks
    QVERIFY(!platesOfPsd(changed(13, 6)));   // more than it has
    QVERIFY(!platesOfPsd(changed(17, 0)));   // no rows
    QVERIFY(!platesOfPsd(changed(23, 16)));  // other samples
    QVERIFY(!platesOfPsd(changed(25, 3)));   // other colours
    QVERIFY(!platesOfPsd(psd({})));          // a channel without a name
  }

  void namesAreUtf8OrLatin1AndHaveAnEnd() {
    QCOMPARE(inkName("Gr\xc3\xbcn"), QString::fromUtf8("Grün"));
    QCOMPARE(inkName("Gr\xfcn"), QString::fromUtf8("Grün"));
    QCOMPARE(inkName(QByteArray(limits::maximumNameLength, 'x')).size(), limits::maximumNameLength);
    QCOMPARE(inkName(QByteArray(limits::maximumNameLength + 1, 'x')).size(), limits::maximumNameLength);
  }

  /// Names and data of an odd length have a byte more.
  void otherResourcesArePassedOver() {
    const QByteArray odd = QByteArray("8BIM\3\xe8\3abc\0\0\0\3xyz\0", 18);
    const QByteArray even = QByteArray("8BIM\3\xe9\2ab\0\0\0\0\2xy", 16);
    const Result<PageInks> page = platesOfPsd(psd(odd + even + kNames + even + kColours + odd));
    QVERIFY(page.ok());
    QCOMPARE(page->inks[4].name, "Gold");
    QVERIFY(page->inks[4].alternate == (ProcessInks{0, 51, 255, 102}));
  }

  void otherSectionsArePassedOver() {
    QByteArray file = psd(kNames + kColours);
    const qsizetype layers = 34 + kNames.size() + kColours.size();
    file.replace(layers, 4, number(3) + "abc");
    file.replace(26, 4, number(5) + "12345");
    const Result<PageInks> page = platesOfPsd(file);
    QVERIFY(page.ok());
    QCOMPARE(page->inks[4].name, "Gold");
    QCOMPARE(page->plates, QByteArray("\x00\xff", 2).repeated(5));
  }

  void packedSamplesAreRefused() {
    QByteArray file = psd(kNames + kColours);
    const qsizetype packing = 38 + kNames.size() + kColours.size();
    QVERIFY(platesOfPsd(file).ok());
    QVERIFY(!platesOfPsd(file.replace(packing, 2, QByteArray("\0\1", 2))).ok());
  }

  void aColourThatNobodyKnowsIsNone() {
    const auto alternate = [](const QByteArray& colours) {
      return platesOfPsd(psd(kNames + colours))->inks[4].alternate;
    };
    QVERIFY(alternate(kColours));
    QVERIFY(!alternate(QByteArray(kColours).replace(13, 1, QByteArray(1, '\0'))));  // of RGB
    QVERIFY(!alternate(QByteArray(kColours).replace(14, 8, QByteArray(8, '\xff'))));
  }

  void inkIsMeasuredByPlacesAndByAmount() {
    const Result<PageInks> page =
        platesOfPsd(psd(4, 4, 1, {}, QByteArray("\xff\xcc\x99\x00", 4) + QByteArray(12, '\xff')));
    QVERIFY(page.ok());
    QCOMPARE(page->inks.size(), 4);
    QCOMPARE(page->inks[0].name, "Cyan");
    QCOMPARE(page->inks[0].coverage, 0.75);
    QCOMPARE(page->inks[0].amount, (51 + 102 + 255) / 255.0 / 4);
    QVERIFY(!page->inks[0].isSpot);
    QCOMPARE(page->inks[3].name, "Black");
    QCOMPARE(page->inks[3].amount, 0.0);
  }

  void soManyPixelsAndInksAreALimit() {
    QCOMPARE(platesOfPsd(psd(4, 4000, 4001, {}, {})).error().message,
             "the plates of the page have more pixels than can be handled; a lower resolution helps");
    QCOMPARE(platesOfPsd("none").error().message, "Ghostscript did not separate the page");
    QCOMPARE(refusal(4, 4000, 4000), ErrorKind::NotParsable);  // 16 million pixels
    QCOMPARE(refusal(4, 4000, 4001), ErrorKind::Limit);
    QCOMPARE(refusal(4, 0x7fffffff, 0x7fffffff), ErrorKind::Limit);
    QCOMPARE(refusal(60, 2, 1), ErrorKind::NotParsable);
    QCOMPARE(refusal(61, 2, 1), ErrorKind::Limit);
    QCOMPARE(refusal(16, 4000, 4000), ErrorKind::NotParsable);  // of all plates together 256 million
    QCOMPARE(refusal(17, 4000, 4000), ErrorKind::Limit);
  }
};

NORVEX_TEST(PsdPlatesTest)
#include "psd_plates_test.moc"
