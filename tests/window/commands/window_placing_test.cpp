// What is kept of windows between them: their places, and what a desktop draws around them.
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QWindow>

#include "kit/test_main.h"
#include "ui/panels/window_place.h"
#include "window/place/window_frames.h"
#include "window/place/window_placing.h"

using namespace norvex;

namespace {

/// A window around which nothing is drawn, and its place.
struct Placed {
  Placed() {
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.resize(300, 200);
    placing.setWindow(&window);
    placing.appears();
  }
  QTemporaryDir folder;
  QMainWindow window;
  WindowPlacing placing;
};

}  // namespace

class WindowPlacingTest : public QObject {
  Q_OBJECT
 private slots:
  void aPlaceBeyondEveryDesktopIsNone_data() {
    QTest::addColumn<QRect>("kept");
    QTest::addColumn<bool>("counts");
    QTest::newRow("on a desktop") << QRect(-5000, 3000, 700, 500) << true;
    QTest::newRow("at the edge of all") << QRect(-100'000, -100'000, 700, 500) << true;
    QTest::newRow("at the other edge") << QRect(QPoint(99'000, 99'000), QPoint(100'000, 100'000)) << true;
    QTest::newRow("far to the left") << QRect(-100'001, 0, 700, 500) << false;
    QTest::newRow("far above") << QRect(0, -100'001, 700, 500) << false;
    QTest::newRow("far to the right") << QRect(99'302, 0, 700, 500) << false;
    QTest::newRow("far below") << QRect(0, 99'502, 700, 500) << false;
    QTest::newRow("beyond all numbers")
        << QRect(QPoint(2'147'483'000, 0), QPoint(2'147'483'647, 500)) << false;
    QTest::newRow("the smallest") << QRect(0, 0, 100, 100) << true;
    QTest::newRow("too narrow") << QRect(0, 0, 99, 500) << false;
    QTest::newRow("too low") << QRect(0, 0, 700, 99) << false;
  }
  void aPlaceBeyondEveryDesktopIsNone() {
    QFETCH(QRect, kept);
    QFETCH(bool, counts);
    QTemporaryDir folder;
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    saveWindowFrame("a", kept);
    QCOMPARE(savedWindowFrame("a"), counts ? kept : QRect());
  }

  void aFrameThatNoDesktopDrawsIsNone_data() {
    QTest::addColumn<QMargins>("kept");
    QTest::addColumn<bool>("counts");
    QTest::newRow("none at all") << QMargins(0, 0, 0, 0) << true;
    QTest::newRow("a usual one") << QMargins(1, 20, 3, 5) << true;
    QTest::newRow("the broadest") << QMargins(100, 100, 100, 100) << true;
    QTest::newRow("broader") << QMargins(1, 101, 1, 5) << false;
    QTest::newRow("less than none") << QMargins(1, 20, -1, 5) << false;
  }
  void aFrameThatNoDesktopDrawsIsNone() {
    QFETCH(QMargins, kept);
    QFETCH(bool, counts);
    QTemporaryDir folder;
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    QCOMPARE(savedFrameMargins(), usualFrame);
    saveFrameMargins(kept);
    QCOMPARE(savedFrameMargins(), counts ? kept : usualFrame);
  }

  void aFrameThatIsYetToBeDrawnIsNotRememberedAsNone() {
    Placed p;
    saveFrameMargins({1, 20, 3, 5});
    p.window.show();
    QVERIFY(!p.window.windowHandle()->isExposed());
    p.placing.settle();
    QCOMPARE(savedFrameMargins(), QMargins(1, 20, 3, 5));
    QVERIFY(QTest::qWaitForWindowExposed(&p.window));
    p.placing.settle();
    QCOMPARE(savedFrameMargins(), QMargins());
  }

  void aWindowThatIsNotShownTellsNothingOfTheDesktop() {
    Placed p;
    saveFrameMargins({1, 20, 3, 5});
    p.placing.settle();
    QCOMPARE(savedFrameMargins(), QMargins(1, 20, 3, 5));
  }
};

NORVEX_TEST(WindowPlacingTest)
#include "window_placing_test.moc"
