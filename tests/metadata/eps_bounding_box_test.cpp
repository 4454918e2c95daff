// The boxes of an EPS header.
#include "metadata/eps_bounding_box.h"

#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/text_encoding.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

QByteArray eps(const QByteArray& lines) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n" + lines + "%%EndComments\nshowpage\n";
}

std::optional<QRectF> box(const QByteArray& source) {
  return epsBoundingBoxes(source).boundingBox;
}

}  // namespace

class EpsBoundingBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void wholeNumbers() {
    const auto found = box(eps("%%BoundingBox: 10 20 110 220\n"));
    QVERIFY(found);
    QCOMPARE(*found, QRectF(10, 20, 100, 200));
  }

  void realNumbers() {
    const auto found = box(eps("%%BoundingBox: -0.5 .5\t99.5 1e2\n"));
    QVERIFY(found);
    QCOMPARE(*found, QRectF(-0.5, 0.5, 100, 99.5));
  }

  void hiResStandsBesideIt() {
    const auto boxes =
        epsBoundingBoxes(eps("%%BoundingBox: 0 0 531 500\n%%HiResBoundingBox: 0.25 0 530.9731 499.9882\n"));
    QCOMPARE(boxes.boundingBox.value_or(QRectF()), QRectF(0, 0, 531, 500));
    QCOMPARE(boxes.hiResBoundingBox.value_or(QRectF()),
             QRectF(QPointF(0.25, 0), QPointF(530.9731, 499.9882)));
  }

  void hiResAloneIsNoBoundingBox() {
    const auto boxes = epsBoundingBoxes(eps("%%HiResBoundingBox: 0 0 5 5\n"));
    QVERIFY(!boxes.boundingBox);
    QVERIFY(boxes.hiResBoundingBox);
  }

  void thePictureIsShownInTheBoundingBoxOrTheHiResOneInWholePoints() {
    const auto shown = [](const QByteArray& comments) {
      return epsPictureBox(epsBoundingBoxes(eps(comments))).value_or(QRectF());
    };
    QCOMPARE(shown("%%BoundingBox: 0 0 6 6\n%%HiResBoundingBox: 0 0 5.5 5.5\n"), QRectF(0, 0, 6, 6));
    QCOMPARE(shown("%%HiResBoundingBox: 0.5 0 5.1 5\n"), QRectF(0, 0, 6, 5));
    QCOMPARE(shown(""), QRectF());
  }

  void atEndSendsToTheLastOne() {
    const QByteArray source = eps("%%BoundingBox: (atend)\n%%HiResBoundingBox:(atend)\n") +
                              "%%BoundingBox: 1 1 2 2\n%%Trailer\n%%BoundingBox: 0 0 30 40\n"
                              "%%HiResBoundingBox: 0 0 29.5 39.5\n%%EOF\n";
    const auto boxes = epsBoundingBoxes(source);
    QCOMPARE(boxes.boundingBox.value_or(QRectF()), QRectF(0, 0, 30, 40));
    QCOMPARE(boxes.hiResBoundingBox.value_or(QRectF()), QRectF(0, 0, 29.5, 39.5));
  }

  void theLastBoxThatIsOneCountsAtTheEnd() {
    const QByteArray begin = eps("%%BoundingBox: (atend)\n") + "%%Trailer\n%%BoundingBox: 0 0 30 40\n";
    for (const char* behind :
         {"(%%BoundingBox: 1 1 2 2) show\n", "%%BoundingBox: none\n", "%%BoundingBox: 0 0 0 0\n"})
      QCOMPARE(box(begin + behind).value_or(QRectF()), QRectF(0, 0, 30, 40));
  }

  void atEndWithoutATrailerIsNoBox() { QVERIFY(!box(eps("%%BoundingBox: (atend)\n"))); }

  void theFirstOneOfTheHeaderCounts() {
    const QByteArray source =
        eps("%%BoundingBox: 0 0 1 1\n%%BoundingBox: 0 0 2 2\n") + "%%BoundingBox: 0 0 3 3\n";
    QCOMPARE(box(source).value_or(QRectF()), QRectF(0, 0, 1, 1));
  }

  void aHeaderWithoutItFallsBackToTheBody() {
    QCOMPARE(box(eps("") + "%%BoundingBox: 0 0 3 3\n").value_or(QRectF()), QRectF(0, 0, 3, 3));
  }

  /// A comment of the header is an answer, whatever it says.
  void theBodysFirstBoxThatIsOneCounts() {
    const QByteArray boxes = "%%BoundingBox: none\n%%BoundingBox: 0 0 3 3\n";
    QCOMPARE(box(eps("") + boxes).value_or(QRectF()), QRectF(0, 0, 3, 3));
    QVERIFY(!box(eps(boxes)));
  }

  void onlyTheStartOfALineCounts() {
    QCOMPARE(box(eps("% %%BoundingBox: 0 0 1 1\n%%BoundingBox: 0 0 2 2\n")).value_or(QRectF()),
             QRectF(0, 0, 2, 2));
  }

  void everyLineEnd() {
    for (const char* end : {"\n", "\r", "\r\n"}) {
      QByteArray source = eps("%%Title: t\n%%BoundingBox: 1 2 3 4\n");
      QCOMPARE(box(source.replace("\n", end)).value_or(QRectF()), QRectF(1, 2, 2, 2));
    }
  }

  void cornersInTheWrongOrderArePutRight() {
    QCOMPARE(box(eps("%%BoundingBox: 30 40 10 20\n")).value_or(QRectF()), QRectF(10, 20, 20, 20));
  }

  void noBox_data() {
    QTest::addColumn<QByteArray>("line");
    for (const char* line :
         {"", "%%BoundingBox:", "%%BoundingBox: 1 2 3", "%%BoundingBox: a b c d", "%%BoundingBox: 0 0 0 5",
          "%%BoundingBox: 0 0 5 0", "%%BoundingBox: 0 0 nan 5", "%%BoundingBox: 0 0 inf 5",
          "%%BoundingBox: -1e308 0 1e308 5", "%%Boundingbox: 0 0 5 5"})
      QTest::newRow(line[0] ? line : "none") << QByteArray(line);
  }
  void noBox() {
    QFETCH(QByteArray, line);
    QVERIFY(!box(eps(line + "\n")));
  }

  void numbersOnTheNextLineAreNotTheBoxs() { QVERIFY(!box(eps("%%BoundingBox: 0 0\n5 5\n"))); }

  void binaryEpsIsReadInItsSectionAlone() {
    QCOMPARE(box(binaryEps(eps("%%BoundingBox: 0 0 7 8\n"), "\n%%BoundingBox: 0 0 1 1\n")).value_or(QRectF()),
             QRectF(0, 0, 7, 8));
  }

  void marksAreNoHindrance() {
    const QByteArray source = "%%BoundingBox: 0 0 7 8\n";
    QCOMPARE(box("\xEF\xBB\xBF" + source).value_or(QRectF()), QRectF(0, 0, 7, 8));
    const QByteArray wide = encodeText(QString::fromLatin1(source), encoding::Utf16).value();
    QCOMPARE(box(wide).value_or(QRectF()), QRectF(0, 0, 7, 8));
  }

  void shortSources() {
    for (const char* source : {"", "%", "%%", "\xC5\xD0", "%%BoundingBox:"}) QVERIFY(!box(source));
  }
};

NORVEX_TEST(EpsBoundingBoxTest)
#include "eps_bounding_box_test.moc"
