// Inflating compressed SVG: what comes out, and what is refused.
#include "worker/svg/gzip_inflate.h"

#include <QByteArray>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "types/gzip_mark.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using kit::gzipped;

namespace {

QByteArray noise(qsizetype size) {
  QByteArray bytes(size, Qt::Uninitialized);
  quint32 state = 12345;
  for (char& byte : bytes) {
    state = state * 1664525u + 1013904223u;
    byte = char(state >> 24);
  }
  return bytes;
}

}  // namespace

class GzipInflateTest : public QObject {
  Q_OBJECT
 private slots:
  void onlyTheMagicBytesMakeItGzip() {
    QVERIFY(isGzip(gzipped("a")));
    QVERIFY(!isGzip("<svg/>"));
    QVERIFY(!isGzip("\x1f"));
    QVERIFY(!isGzip({}));
  }

  void whatWasCompressedComesBack_data() {
    QTest::addColumn<QByteArray>("plain");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a little") << QByteArray("<svg/>");
    QTest::newRow("more than a chunk") << noise(700'000);
    QTest::newRow("exactly a chunk") << noise(256 * 1024);
  }
  void whatWasCompressedComesBack() {
    QFETCH(QByteArray, plain);
    const Result<QByteArray> inflated = inflateGzip(gzipped(plain));
    QVERIFY(inflated);
    QCOMPARE(*inflated, plain);
  }

  void severalMembersAreOneText() {
    const Result<QByteArray> inflated = inflateGzip(gzipped("<svg>") + gzipped("</svg>"));
    QVERIFY(inflated);
    QCOMPARE(*inflated, QByteArray("<svg></svg>"));
  }

  void paddingBehindTheDataIsIgnored() {
    const Result<QByteArray> inflated = inflateGzip(gzipped("<svg/>") + QByteArray(512, '\0'));
    QVERIFY(inflated);
    QCOMPARE(*inflated, QByteArray("<svg/>"));
  }

  void everyCutIsRefused() {
    const QByteArray whole = gzipped("<svg xmlns='http://www.w3.org/2000/svg'/>");
    for (qsizetype size = 2; size < whole.size(); ++size) {
      const Result<QByteArray> inflated = inflateGzip(whole.left(size));
      QVERIFY2(!inflated, qPrintable(QString::number(size)));
      QCOMPARE(inflated.error().kind, ErrorKind::NotParsable);
      QCOMPARE(inflated.error().message, QStringLiteral("the compressed data is cut off"));
    }
  }

  void damageIsRefused() {
    QByteArray bytes = gzipped(noise(1000));
    bytes[bytes.size() - 6] = char(bytes[bytes.size() - 6] ^ 1);  // the checksum
    const Result<QByteArray> inflated = inflateGzip(bytes);
    QVERIFY(!inflated);
    QCOMPARE(inflated.error().kind, ErrorKind::NotParsable);
    QCOMPARE(inflated.error().message, QStringLiteral("the compressed data is damaged"));
  }

  void somethingElseBehindTheDataIsRefused() {
    QVERIFY(!inflateGzip(gzipped("<svg/>") + "rubbish that is no gzip member"));
  }

  void aBombIsStoppedByItsRatio() {
    const QByteArray bomb = gzipped(gzipped(QByteArray(64 << 20, ' ')));
    const QByteArray inner = *inflateGzip(bomb);
    const Result<QByteArray> inflated = inflateGzip(inner);
    QVERIFY(!inflated);
    QCOMPARE(inflated.error().kind, ErrorKind::Limit);
    QCOMPARE(inflated.error().message,
             QStringLiteral("the compressed data grows to more than 1000 times its size"));
  }

  void aHighRatioBelowOneMebibyteIsFine() {
    const QByteArray plain(1 << 20, ' ');
    const Result<QByteArray> inflated = inflateGzip(gzipped(plain));
    QVERIFY(inflated);
    QCOMPARE(inflated->size(), plain.size());
  }

  void tooMuchDataIsStopped() {
    // Noise in front keeps the ratio far below its own limit.
    QByteArray compressed = gzipped(noise(2 << 20));
    const QByteArray spaces = gzipped(QByteArray(128 << 20, ' '));
    compressed += spaces + spaces;
    const Result<QByteArray> inflated = inflateGzip(compressed);
    QVERIFY(!inflated);
    QCOMPARE(inflated.error().kind, ErrorKind::Limit);
    QCOMPARE(inflated.error().message, QStringLiteral("the compressed data holds more than 256 MiB"));
  }
};

NORVEX_TEST(GzipInflateTest)
#include "gzip_inflate_test.moc"
