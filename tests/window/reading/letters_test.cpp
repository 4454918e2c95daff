// The letters of a page as places.
#include "window/reading/letters.h"

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Two lines of letters of 10 × 10 points, the first at y = 50: "Ab cd" and "ef".
PageText twoLines() {
  PageText page;
  page.text = QStringLiteral("Ab cd\nef\n");
  for (int i = 0; i < 5; ++i) page.places << (i == 2 ? QRectF() : QRectF(10 * i, 50, 10, 10));
  page.places << QRectF();
  for (int i = 0; i < 2; ++i) page.places << QRectF(10 * i, 30, 10, 10);
  page.places << QRectF();
  return page;
}

}  // namespace

class LettersTest : public QObject {
  Q_OBJECT
 private slots:
  void aRunCoversAPieceOfEachLine() {
    QCOMPARE(placesOf(twoLines(), {0, 5}), QList<QRectF>{QRectF(0, 50, 50, 10)});
    QCOMPARE(placesOf(twoLines(), {3, 4}), (QList<QRectF>{QRectF(30, 50, 20, 10), QRectF(0, 30, 10, 10)}));
    QCOMPARE(placesOf(twoLines(), {2, 1}), QList<QRectF>());
    QCOMPARE(placesOf(twoLines(), {7, 100}), QList<QRectF>{QRectF(10, 30, 10, 10)});
  }

  void columnsAreNotBridged() {
    PageText page = twoLines();
    page.places[3].translate(200, 0);
    page.places[4].translate(200, 0);
    QCOMPARE(placesOf(page, {0, 5}), (QList<QRectF>{QRectF(0, 50, 20, 10), QRectF(230, 50, 20, 10)}));
  }

  void aGapOfOneAndAHalfHeightsIsOne() {
    PageText page;
    page.text = QStringLiteral("ab");
    page.places = {QRectF(0, 0, 10, 10), QRectF(24, 0, 10, 10)};
    QCOMPARE(placesOf(page, {0, 2}).size(), 1);
    page.places[1].moveLeft(25);
    QCOMPARE(placesOf(page, {0, 2}).size(), 2);
  }

  void lettersOfOneLineShareHalfOfTheirHeight() {
    PageText page;
    page.text = QStringLiteral("ab");
    page.places = {QRectF(0, 0, 10, 10), QRectF(10, 4.5, 10, 10)};
    QCOMPARE(placesOf(page, {0, 2}).size(), 1);
    page.places[1].moveTop(5.5);
    QCOMPARE(placesOf(page, {0, 2}).size(), 2);
  }

  void aWideLetterIsNearAllOverItsWidth() {
    PageText page;
    page.text = QStringLiteral("Wi");
    page.places = {QRectF(0, 0, 100, 10), QRectF(100, 0, 4, 10)};
    QCOMPARE(letterNear(page, {95, 5}), 0);
    QCOMPARE(letterNear(page, {101, 5}), 1);
    QCOMPARE(letterNear(page, {-40, 5}), 0);
  }

  void theNearestLetterIsOneOfTheSameLine() {
    QCOMPARE(letterNear(twoLines(), {15, 55}), 1);
    QCOMPARE(letterNear(twoLines(), {500, 52}),
             4);  // far to the right, where the other line is no farther off
    QCOMPARE(letterNear(twoLines(), {500, 32}), 7);
    QCOMPARE(letterNear(twoLines(), {25, 55}), 1);  // of two that are as near the first
    QCOMPARE(letterNear(PageText(), {1, 1}), -1);
  }

  void bothEndsAreSelected() {
    QCOMPARE(runBetween(twoLines(), 1, 4), (LetterRun{1, 4}));
    QCOMPARE(runBetween(twoLines(), 4, 1), (LetterRun{1, 4}));
    QCOMPARE(runBetween(twoLines(), 4, -1), LetterRun());
    PageText pair;
    pair.text = QString::fromUcs4(U"a\U0001F600", 2);
    pair.places.resize(3);
    QCOMPARE(runBetween(pair, 0, 1), (LetterRun{0, 3}));
  }

  void wordsAreFoundInAnyCaseAndAcrossLines() {
    QCOMPARE(runsWith(twoLines(), "AB"), QList<LetterRun>{LetterRun({0, 2})});
    QCOMPARE(runsWith(twoLines(), "cd ef"), QList<LetterRun>{LetterRun({3, 5})});
    QCOMPARE(runsWith(twoLines(), "x"), QList<LetterRun>());
    QCOMPARE(runsWith(twoLines(), ""), QList<LetterRun>());
  }

  void theUppermostLinkCounts() {
    PageText page;
    page.links = {{QRectF(0, 0, 10, 10), "below", -1}, {QRectF(5, 0, 10, 10), "above", -1}};
    QCOMPARE(linkAt(page, {7, 5})->address, QString("above"));
    QCOMPARE(linkAt(page, {2, 5})->address, QString("below"));
    QVERIFY(!linkAt(page, {50, 5}));
  }
};

NORVEX_TEST(LettersTest)
#include "letters_test.moc"
