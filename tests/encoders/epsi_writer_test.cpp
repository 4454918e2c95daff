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

QByteArrayList previewLines(int width, int height) {
  const QByteArray text = insertEpsiPreview(QByteArray("%!PS\n%%EndComments\nx"), grey(width, height));
  return text.split('\n').mid(2);
}

}  // namespace

class EpsiWriterTest : public QObject {
  Q_OBJECT
 private slots:
  void aRowBelow1024BitsIsOneLine() {
    const QByteArrayList lines = previewLines(100, 2);
    QCOMPARE(lines.at(0), QByteArray("%%BeginPreview: 100 2 8 2"));
    QCOMPARE(lines.at(1), '%' + QByteArray(200, '0'));
    QCOMPARE(lines.at(2), '%' + QByteArray(200, '0'));
    QCOMPARE(lines.at(3), QByteArray("%%EndPreview"));
    QCOMPARE(lines.at(4), QByteArray());
    QCOMPARE(lines.at(5), QByteArray("x"));
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
    const QByteArrayList lines = previewLines(width, height);
    const qsizetype count = height * bytesOfTheLines.size();
    QCOMPARE(lines.at(0),
             "%%BeginPreview: " + QByteArray::number(width) + " 3 8 " + QByteArray::number(count));
    for (qsizetype i = 0; i < count; ++i) {
      QCOMPARE(lines.at(1 + i).size(), 1 + 2 * bytesOfTheLines.at(i % bytesOfTheLines.size()));
    }
    QCOMPARE(lines.at(1 + count), QByteArray("%%EndPreview"));
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
    QVERIFY(insertEpsiPreview(QByteArray("%%EndComments"), rep).contains(QByteArray("\n%00FFA5\n")));
  }
  void withoutEndCommentsTheBoundingBoxIsTheHead() {
    const QByteArray out =
        insertEpsiPreview(QByteArray("%!PS\n%%BoundingBox: 0 0 612 792\nbody"), grey(1, 1));
    QCOMPARE(
        out,
        QByteArray(
            "%!PS\n%%BoundingBox: 0 0 612 792\n%%EndComments\n%%BeginPreview: 1 1 8 1\n%00\n%%EndPreview\n"
            "\nbody"));
  }
  void aRealBoundingBoxStopsAtItsPoint() {
    const QByteArray out = insertEpsiPreview(QByteArray("%%BoundingBox: 1 2 30.5 40\n"), grey(1, 1));
    QVERIFY2(out.startsWith(QByteArray("%%BoundingBox: 1 2 30 30\n%%EndComments\n")), out.constData());
    QVERIFY2(out.endsWith(QByteArray("%%EndPreview\n.5 40\n")), out.constData());
  }
  void numbersOfABoxKeepTheirSign() {
    const QByteArray out = insertEpsiPreview(QByteArray("%%BoundingBox: -5 -6 +7 +8\nx"), grey(1, 1));
    QVERIFY2(out.startsWith(QByteArray("%%BoundingBox: -5 -6 7 8\n%%EndComments\n")), out.constData());
    QVERIFY2(out.endsWith(QByteArray("%%EndPreview\n\nx")), out.constData());
  }
  void aTextWithoutAPlaceGivesNothing() {
    QVERIFY(insertEpsiPreview(QByteArray("%!PS\n"), grey(1, 1)).isNull());
  }
  void numbersBeyond32BitsDoNotOverflow() {
    const QByteArray out =
        insertEpsiPreview(QByteArray("%%BoundingBox: 99999999999999999999 0 1 1"), grey(1, 1));
    QVERIFY(out.startsWith(QByteArray("%%BoundingBox: 2147483647 0 1 1\n")));
  }
  void aKeywordWithinALineDoesNotMoveThePreview() {
    const QByteArray head = "%!PS\n%%Title: a %%BoundingBox: 7 7 8 8 %%EndComments quit\n";
    QVERIFY(insertEpsiPreview(head + "%%EndComments\nx", grey(1, 1))
                .startsWith(head + "%%EndComments\n%%BeginPreview: 1 1 8 1\n"));
    QVERIFY(insertEpsiPreview(head + "%%BoundingBox: 0 0 1 1\nx", grey(1, 1))
                .startsWith(head + "%%BoundingBox: 0 0 1 1\n%%EndComments\n%%BeginPreview: 1 1 8 1\n"));
  }
  void whatFollowsOnTheLineStaysAComment() {
    QVERIFY(insertEpsiPreview("%%EndComments quit\nx", grey(1, 1)).endsWith("%%EndPreview\n% quit\nx"));
    QVERIFY(insertEpsiPreview("%%BoundingBox: 0 0 1 1 quit\rx", grey(1, 1)).endsWith("\n% quit\rx"));
    QVERIFY(insertEpsiPreview("%!PS\n%%Title: a %%EndComments quit", grey(1, 1)).endsWith("\n% quit"));
  }
  void aBoxThatStandsAtTheEndStaysThere() {
    const QByteArray head = "%!PS\n%%BoundingBox: (atend)";
    const QByteArray out = insertEpsiPreview(head + "\nx\n%%BoundingBox: 0 0 9 9\n", grey(1, 1));
    QVERIFY2(out.startsWith(head + "\n%%EndComments\n%%BeginPreview: 1 1 8 1\n"), out.constData());
    QVERIFY(out.endsWith("%%EndPreview\n\nx\n%%BoundingBox: 0 0 9 9\n"));
  }
  void bytesOfNoEncodingGoOver() {
    constexpr char bytes[] = "\n(\xFF\x80\xFD) show\n\0\x81";
    const QByteArray program(bytes, sizeof bytes - 1);
    QVERIFY(
        insertEpsiPreview("%!PS\n%%EndComments" + program, grey(1, 1)).endsWith("%%EndPreview\n" + program));
  }
  void dataThatAreTooShortAreNotReadBeyond() {
    NSBitmapImageRep rep = grey(2, 2);
    rep.data.truncate(1);
    QVERIFY(insertEpsiPreview(QByteArray("%%EndComments"), rep).contains(QByteArray("%00FF\n%FFFF\n")));
  }
};

NORVEX_TEST(EpsiWriterTest)
#include "epsi_writer_test.moc"
