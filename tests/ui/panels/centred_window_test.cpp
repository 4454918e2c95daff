// Windows that belong to another one: where they come up, and how large.
#include "ui/panels/centred_window.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <cmath>
#include <memory>

#include "kit/test_main.h"
#include "ui/panels/window_place.h"

using namespace norvex;

namespace {

QRect screenRoom() {
  return roomOn(*QGuiApplication::primaryScreen());
}

/// What it has for a window's contents.
QSize mostOfScreen() {
  return screenRoom().marginsRemoved(usualFrame).size();
}

QFont fontOf(int pixels) {
  QFont font = QApplication::font();
  font.setPixelSize(pixels);
  return font;
}

}  // namespace

class CentredWindowTest : public QObject {
  Q_OBJECT
 private slots:
  void itComesUpOverTheMiddleOfAnotherWindow() {
    QWidget other;
    other.setGeometry(200, 150, 400, 300);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QWidget window;
    window.resize(200, 100);
    centreOver(window, &other);
    const QPoint off = window.geometry().center() - other.frameGeometry().center();
    QVERIFY(std::abs(off.x()) <= 1 && std::abs(off.y()) <= 1);
    window.resize(200, 100);
    other.move(-350, -250);  // most of it is beside the screen
    centreOver(window, &other);
    QVERIFY(window.screen()->availableGeometry().contains(window.geometry()));
  }

  void withoutAnotherWindowItComesUpInTheMiddleOfTheScreen() {
    QWidget window;
    window.resize(200, 100);
    centreOver(window, nullptr);
    const QPoint off = window.geometry().center() - screenRoom().marginsRemoved(usualFrame).center();
    QVERIFY(std::abs(off.x()) <= 1 && std::abs(off.y()) <= 1);
  }

  void besideAnotherWindowItStandsAsHigh() {
    QWidget other;
    other.setGeometry(60, 150, 300, 300);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QWidget window;
    window.resize(200, 100);
    placeBeside(window, other);
    QCOMPARE(window.size(), QSize(200, 100));
    const QRect outside = window.geometry().marginsAdded(usualFrame);
    QCOMPARE(outside.left(), other.frameGeometry().right() + 1 + 8);
    QCOMPARE(outside.top(), other.frameGeometry().top());
  }

  void aSizeFollowsTheTextsAndEndsAtTheScreen_data() {
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QSize>("usual");
    QTest::addColumn<QSize>("got");
    const QSize most = mostOfScreen();
    QTest::newRow("usual texts") << 14 << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("small texts") << 7 << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("large texts") << 28 << QSize(300, 200) << QSize(600, 400);
    QTest::newRow("larger than the screen") << 14 << QSize(9000, 200) << QSize(most.width(), 200);
    QTest::newRow("larger for its texts") << 28 << QSize(300, 700) << QSize(600, most.height());
  }
  void aSizeFollowsTheTextsAndEndsAtTheScreen() {
    QFETCH(int, pixels);
    QFETCH(QSize, usual);
    QWidget window;
    window.setFont(fontOf(pixels));
    QTEST(sizeForTexts(window, usual), "got");
  }

  void aPreviewLeavesASmallScreenToTheRest() {
    const QWidget window;
    const QSize screen = screenRoom().size();
    QCOMPARE(leastPreview(window, {100, 90}), QSize(100, 90));
    QCOMPARE(leastPreview(window, {9000, 90}), QSize(screen.width() / 3, 90));
    QCOMPARE(leastPreview(window, {100, 9000}), QSize(100, screen.height() / 2));
  }
};

NORVEX_TEST(CentredWindowTest)
#include "centred_window_test.moc"
