// The card that tells what is under way.
#include "ui/picture/loading_card.h"

#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// As long to paint as a picture may be.
class Painted final : public QWidget {
 public:
  using QWidget::QWidget;
  int times = 0;

 protected:
  void paintEvent(QPaintEvent*) override { ++times; }
};

}  // namespace

class LoadingCardTest : public QObject {
  Q_OBJECT
 private slots:
  void itTakesTheWidthThatItsWordsNeed() {
    LoadingCard card;
    card.begin("Drawing");
    QTRY_VERIFY(card.isVisible());
    const auto* words = card.findChild<QLabel*>();
    QVERIFY(!words->wordWrap());
    QVERIFY(words->width() >= words->fontMetrics().horizontalAdvance(words->text()));
    QVERIFY(card.findChild<QProgressBar*>()->width() > 40);
  }

  void whereThereIsLessItsWordsTakeSeveralLinesAndAreAllThere() {
    QWidget window;
    window.resize(400, 300);
    LoadingCard card(&window);
    card.begin("The page of the document is being separated into its inks, and that takes its time");
    window.show();
    QTRY_VERIFY(card.isVisible());
    const auto* words = card.findChild<QLabel*>();
    for (const int width : {380, 300, 240}) {
      card.setGeometry(0, 0, width, card.heightForWidth(width));
      QTRY_VERIFY(words->wordWrap());
      QTRY_VERIFY2(words->height() >= words->heightForWidth(words->width()),
                   qPrintable(QString::number(width)));
      QVERIFY(words->geometry().right() < card.findChild<QProgressBar*>()->geometry().left());
    }
    const int narrow = card.heightForWidth(240);
    card.resize(1000, card.heightForWidth(1000));
    QVERIFY(!words->wordWrap());
    QVERIFY(card.height() < narrow);
  }

  void whatMovesInItOrIsToldAgainDoesNotPaintThePictureBelow() {
    QWidget window;
    window.resize(400, 300);
    Painted picture(&window);
    picture.resize(window.size());
    LoadingCard card(&window);
    card.begin("Drawing");
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(card.isVisible());
    card.repaint();
    QVERIFY(picture.times > 0);
    picture.times = 0;
    card.findChild<QProgressBar*>()->repaint();
    QCOMPARE(picture.times, 0);
    card.begin("Drawing");  // as it is told for each frame that is asked for
    QCoreApplication::processEvents();
    QCOMPARE(picture.times, 0);
  }
};

NORVEX_TEST(LoadingCardTest)
#include "loading_card_test.moc"
