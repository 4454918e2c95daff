// gzip streams: readable by gzip, the same bytes every time.
#include "picture/gzip_stream.h"

#include <QProcess>
#include <QTemporaryFile>

#include "kit/test_main.h"
#include "picture/web_image_rep.h"
#include "types/gzip_mark.h"

using namespace norvex;

class GzipStreamTest : public QObject {
  Q_OBJECT
 private slots:
  void gzipItselfReadsTheStream_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("text") << QByteArray("<svg/>\n").repeated(1000);
    QByteArray noise(300000, '\0');
    quint32 state = 1;
    for (char& byte : noise) byte = char((state = state * 1664525 + 1013904223) >> 24);
    QTest::newRow("incompressible, several output buffers") << noise;
    QTest::newRow("exactly one output buffer") << noise.first(64 << 10);
  }
  void gzipItselfReadsTheStream() {
    QFETCH(QByteArray, bytes);
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(ZyWebImageRep::gzip(bytes));
    file.flush();
    QProcess gzip;
    gzip.setStandardInputFile(file.fileName());
    gzip.start("gzip", {"-dc"});
    QVERIFY(gzip.waitForFinished());
    QCOMPARE(gzip.exitCode(), 0);
    QCOMPARE(gzip.readAllStandardError(), QByteArray());
    QCOMPARE(gzip.readAllStandardOutput(), bytes);
  }

  void theHeaderHasNoTimeNoNameAndNoSystem() {
    const QByteArray stream = *gzipStream("<svg/>");
    QCOMPARE(stream.first(4), QByteArray("\x1f\x8b\x08\x00", 4));
    QCOMPARE(stream.mid(4, 4), QByteArray(4, '\0'));
    QCOMPARE(stream.at(9), char(255));
    QCOMPARE(*gzipStream("<svg/>"), stream);
  }

  void gzipIsToldByItsFirstTwoBytes() {
    QVERIFY(isGzip(*gzipStream({})));
    QVERIFY(!isGzip({}));
    QVERIFY(!isGzip("\x1f"));
    QVERIFY(!isGzip("<svg/>"));
  }
};

NORVEX_TEST(GzipStreamTest)
#include "gzip_stream_test.moc"
