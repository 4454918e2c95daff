#include "encoders/epsi_writer.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

NSBitmapImageRep grey(int width, int height, char value = '\xFF') {
  NSBitmapImageRep rep;
  rep.pixelsWide = width;
  rep.pixelsHigh = height;
  rep.bytesPerRow = width;
  rep.colorSpaceName = QLatin1String(NSCalibratedWhiteColorSpace);
  rep.data = QByteArray(qsizetype(width) * height, value);
  return rep;
}

QStringList previewLines(int width, int height) {
  const QString text = insertEpsiPreview(QStringLiteral("%!PS\n%%EndComments\nx"), grey(width, height));
  return text.split(u'\n').mid(2);
}

}  // namespace

class EpsiWriterTest : public QObject {
  Q_OBJECT
 private slots:
  void aRowBelow1024BitsIsOneLine() {
    const QStringList lines = previewLines(100, 2);
    QCOMPARE(lines.at(0), QStringLiteral("%%BeginPreview: 100 2 8 2"));
    QCOMPARE(lines.at(1), u'%' + QString(200, u'0'));
    QCOMPARE(lines.at(2), u'%' + QString(200, u'0'));
    QCOMPARE(lines.at(3), QStringLiteral("%%EndPreview"));
    QCOMPARE(lines.at(4), QString());
    QCOMPARE(lines.at(5), QStringLiteral("x"));
  }
  void aRowIsSplitIntoEqualLines_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<int>>("bytesOfTheLines");
    QTest::newRow("127") << 127 << QList<int>{127};
    QTest::newRow("128") << 128 << QList<int>{64, 64};
    QTest::newRow("255") << 255 << QList<int>{127, 127, 1};
    QTest::newRow("300") << 300 << QList<int>{100, 100, 100};
  }
  void aRowIsSplitIntoEqualLines() {
    QFETCH(int, width);
    QFETCH(QList<int>, bytesOfTheLines);
    const int height = 3;
    const QStringList lines = previewLines(width, height);
    const qsizetype count = height * bytesOfTheLines.size();
    QCOMPARE(lines.at(0), QStringLiteral("%%BeginPreview: %1 3 8 %2").arg(width).arg(count));
    for (qsizetype i = 0; i < count; ++i) {
      QCOMPARE(lines.at(1 + i).size(), 1 + 2 * bytesOfTheLines.at(i % bytesOfTheLines.size()));
    }
    QCOMPARE(lines.at(1 + count), QStringLiteral("%%EndPreview"));
  }
  void noLineIsLongerThan255Characters() {
    for (int width = 1; width < 3000; ++width) {
      const EpsiRowLayout layout = epsiRowLayout(width * 8);
      QVERIFY(1 + 2 * layout.bytes <= 255);
      QCOMPARE(layout.lines * layout.bytes + layout.rest, width);
    }
  }
  void bitsAreInverted() {
    NSBitmapImageRep rep = grey(3, 1);
    rep.data = QByteArray("\xFF\x00\x5A", 3);
    QVERIFY(insertEpsiPreview(QStringLiteral("%%EndComments"), rep).contains(QStringLiteral("\n%00FFA5\n")));
  }
  void withoutEndCommentsTheBoundingBoxIsTheHead() {
    const QString out =
        insertEpsiPreview(QStringLiteral("%!PS\n%%BoundingBox: 0 0 612 792\nbody"), grey(1, 1));
    QCOMPARE(
        out,
        QStringLiteral(
            "%!PS\n%%BoundingBox: 0 0 612 792\n%%EndComments\n%%BeginPreview: 1 1 8 1\n%00\n%%EndPreview\n"
            "\nbody"));
  }
  void aRealBoundingBoxStopsAtItsPoint() {
    const QString out = insertEpsiPreview(QStringLiteral("%%BoundingBox: 1 2 30.5 40\n"), grey(1, 1));
    QVERIFY2(out.startsWith(QStringLiteral("%%BoundingBox: 1 2 30 30\n%%EndComments\n")), qPrintable(out));
    QVERIFY2(out.endsWith(QStringLiteral("%%EndPreview\n.5 40\n")), qPrintable(out));
  }
  void aTextWithoutAPlaceGivesNothing() {
    QVERIFY(insertEpsiPreview(QStringLiteral("%!PS\n"), grey(1, 1)).isNull());
  }
  void numbersBeyond32BitsDoNotOverflow() {
    const QString out =
        insertEpsiPreview(QStringLiteral("%%BoundingBox: 99999999999999999999 0 1 1"), grey(1, 1));
    QVERIFY(out.startsWith(QStringLiteral("%%BoundingBox: 2147483647 0 1 1\n")));
  }
  void dataThatAreTooShortAreNotReadBeyond() {
    NSBitmapImageRep rep = grey(2, 2);
    rep.data.truncate(1);
    QVERIFY(
        insertEpsiPreview(QStringLiteral("%%EndComments"), rep).contains(QStringLiteral("%00FF\n%FFFF\n")));
  }
};

NORVEX_TEST(EpsiWriterTest)
#include "epsi_writer_test.moc"
