// Windows stand wholly on a screen.
#include <QRandomGenerator>
#include <QScreen>
#include <QTest>

#include <algorithm>

#include "kit/test_main.h"
#include "ui/panels/window_place.h"

using namespace norvex;

namespace {

/// Screens side by side or one above the other, of any size, with panels at their edges; a window on them or
/// far from them.
struct Desktop {
  explicit Desktop(quint32 seed) : random(seed) {
    QPoint at(random.bounded(-3000, 3000), random.bounded(-3000, 3000));
    for (int i = 0, n = random.bounded(1, 4); i < n; ++i) {
      const QSize size(random.bounded(320, 3000), random.bounded(240, 2000));
      const QRect screen(at, size);
      room.screens << screen.adjusted(random.bounded(0, 60), random.bounded(0, 60), -random.bounded(0, 60),
                                      -random.bounded(0, 60));
      at = random.bounded(2) == 0 ? screen.topRight() + QPoint(1, random.bounded(-200, 200))
                                  : screen.bottomLeft() + QPoint(random.bounded(-200, 200), 1);
    }
    room.frame =
        QMargins(random.bounded(0, 12), random.bounded(0, 60), random.bounded(0, 12), random.bounded(0, 12));
    least = QSize(random.bounded(0, 700), random.bounded(0, 500));
    contents = QRect(QPoint(random.bounded(-6000, 6000), random.bounded(-6000, 6000)),
                     QSize(random.bounded(1, 2500), random.bounded(1, 2000)).expandedTo(least));
  }
  [[nodiscard]] QRect placed() const { return placedOnScreens(contents, room, least); }
  [[nodiscard]] QRect outside(const QRect& inside) const { return inside.marginsAdded(room.frame); }
  /// The screen that holds all of it; null: none does.
  [[nodiscard]] const QRect* holder(const QRect& inside) const {
    for (const QRect& screen : room.screens)
      if (screen.contains(outside(inside))) return &screen;
    return nullptr;
  }
  [[nodiscard]] bool leastFitsEverywhere() const {
    return std::all_of(room.screens.cbegin(), room.screens.cend(), [this](const QRect& screen) {
      const QSize needs = least.grownBy(room.frame);
      return needs.width() <= screen.width() && needs.height() <= screen.height();
    });
  }

  QRandomGenerator random;
  WindowRoom room;
  QSize least;
  QRect contents;
};

constexpr quint32 kDesktops = 20'000;

}  // namespace

class WindowPlaceTest : public QObject {
  Q_OBJECT
 private slots:
  void aWindowIsWhollyOnAScreenThatHasRoomForIt() {
    int fitting = 0;
    for (quint32 seed = 0; seed < kDesktops; ++seed) {
      const Desktop d(seed);
      if (!d.leastFitsEverywhere()) continue;
      ++fitting;
      QVERIFY2(d.holder(d.placed()), qPrintable(QString::number(seed)));
    }
    QVERIFY(fitting > 1000);
  }

  void itIsMadeSmallerOnlyWhereThereIsNoRoomAndNeverTooSmall() {
    for (quint32 seed = 0; seed < kDesktops; ++seed) {
      const Desktop d(seed);
      const QSize size = d.placed().size();
      const QByteArray which = QByteArray::number(seed);
      QVERIFY2(size.boundedTo(d.contents.size()) == size, which);
      QVERIFY2(size.expandedTo(d.least) == size, which);
      const QSize outside = d.contents.size().grownBy(d.room.frame);
      const bool fits =
          std::all_of(d.room.screens.cbegin(), d.room.screens.cend(), [&outside](const QRect& screen) {
            return outside.width() <= screen.width() && outside.height() <= screen.height();
          });
      if (fits) QVERIFY2(size == d.contents.size(), which);
    }
  }

  void whatIsThereAlreadyStaysAsItIs() {
    int there = 0;
    for (quint32 seed = 0; seed < kDesktops; ++seed) {
      Desktop d(seed);
      const QRect screen = d.room.screens.at(d.random.bounded(int(d.room.screens.size())));
      const QRect inside = screen.marginsRemoved(d.room.frame);
      const QSize size(d.random.bounded(1, inside.width() + 1), d.random.bounded(1, inside.height() + 1));
      d.contents = QRect(inside.topLeft() + QPoint(d.random.bounded(inside.width() - size.width() + 1),
                                                   d.random.bounded(inside.height() - size.height() + 1)),
                         size);
      ++there;
      QVERIFY2(placedOnScreens(d.contents, d.room, d.least) == d.contents, qPrintable(QString::number(seed)));
    }
    QCOMPARE(there, int(kDesktops));
  }

  void placedAgainItStaysWhereItWasPlaced() {
    for (quint32 seed = 0; seed < kDesktops; ++seed) {
      const Desktop d(seed);
      const QRect once = d.placed();
      QVERIFY2(placedOnScreens(once, d.room, d.least) == once, qPrintable(QString::number(seed)));
    }
  }

  void ofAWindowThatIsTooLargeTheTitleBarIsSeen() {
    int tooLarge = 0;
    for (quint32 seed = 0; seed < kDesktops; ++seed) {
      const Desktop d(seed);
      const QRect placed = d.placed(), outside = d.outside(placed);
      if (d.holder(placed)) continue;
      ++tooLarge;
      const bool isSeen =
          std::any_of(d.room.screens.cbegin(), d.room.screens.cend(), [&](const QRect& screen) {
            const bool corner = screen.contains(outside.topLeft());
            const bool wide = outside.width() > screen.width(), high = outside.height() > screen.height();
            return corner && (wide || high) && (!wide || outside.left() == screen.left()) &&
                   (!high || outside.top() == screen.top()) && (wide || outside.right() <= screen.right()) &&
                   (high || outside.bottom() <= screen.bottom());
          });
      QVERIFY2(isSeen, qPrintable(QString::number(seed)));
    }
    QVERIFY(tooLarge > 500);
  }

  void windowsDoNotHideEachOther() {
    for (quint32 seed = 0; seed < 2000; ++seed) {
      const Desktop d(seed);
      if (!d.leastFitsEverywhere()) continue;
      const QRect first = d.placed();
      QList<QPoint> taken;
      for (int i = 0; i < 5; ++i) {
        const QRect next = placedOnScreens(d.contents, d.room, d.least, taken);
        QVERIFY2(d.holder(next), qPrintable(QString::number(seed)));
        const QSize spare = d.holder(next)->size() - d.outside(next).size();
        if (spare.width() > 200 && spare.height() > 200)
          QVERIFY2(!taken.contains(next.topLeft()), qPrintable(QString::number(seed)));
        taken << next.topLeft();
      }
      QCOMPARE(taken.first(), first.topLeft());
    }
  }

  void aPlaceOffTheScreensGoesToTheNearest_data() {
    QTest::addColumn<QRect>("saved");
    QTest::addColumn<QRect>("placed");
    QTest::newRow("on the first") << QRect(10, 20, 300, 200) << QRect(10, 20, 300, 200);
    QTest::newRow("on the second") << QRect(1100, 100, 300, 200) << QRect(1100, 100, 300, 200);
    QTest::newRow("over the right edge") << QRect(1700, 650, 300, 200) << QRect(1500, 500, 300, 200);
    QTest::newRow("between both, more on the first") << QRect(800, 20, 300, 200) << QRect(700, 20, 300, 200);
    QTest::newRow("on a screen that is gone") << QRect(3000, -900, 300, 200) << QRect(1500, 0, 300, 200);
    QTest::newRow("left of everything") << QRect(-900, 300, 300, 200) << QRect(0, 300, 300, 200);
    QTest::newRow("larger than the screen") << QRect(-50, -60, 2000, 2000) << QRect(0, 0, 1000, 800);
    QTest::newRow("beyond all numbers")
        << QRect(QPoint(2'147'483'000, -2'147'483'000), QSize(300, 2'147'483'000))
        << QRect(1500, 0, 300, 700);
  }
  void aPlaceOffTheScreensGoesToTheNearest() {
    QFETCH(QRect, saved);
    QTEST(placedOnScreens(saved, {{QRect(0, 0, 1000, 800), QRect(1000, 0, 800, 700)}, {}}), "placed");
  }

  void theFrameIsWithinTheScreenToo() {
    const WindowRoom room{{QRect(0, 0, 1024, 600)}, {1, 20, 1, 5}};
    QCOMPARE(placedOnScreens(QRect(0, 0, 940, 760), room), QRect(1, 20, 940, 575));
    QCOMPARE(placedOnScreens(QRect(300, 200, 420, 500), room), QRect(300, 95, 420, 500));
    QCOMPARE(placedOnScreens(QRect(0, 0, 940, 760), room, {420, 700}), QRect(1, 20, 940, 700));
  }

  void withoutScreensAWindowStaysWhereItIs() {
    QCOMPARE(placedOnScreens(QRect(-5, -6, 70, 80), {}), QRect(-5, -6, 70, 80));
  }

  void besideAnotherWindowItHidesNothingOfIt_data() {
    QTest::addColumn<QRect>("other");
    QTest::addColumn<QSize>("contents");
    QTest::addColumn<QRect>("placed");
    const QSize usual(300, 200);
    QTest::newRow("to the right") << QRect(100, 50, 400, 300) << usual << QRect(509, 70, 300, 200);
    QTest::newRow("just to the right") << QRect(290, 50, 400, 300) << usual << QRect(699, 70, 300, 200);
    QTest::newRow("to the left") << QRect(310, 50, 400, 300) << usual << QRect(1, 70, 300, 200);
    QTest::newRow("over it at the edge") << QRect(309, 50, 400, 300) << usual << QRect(699, 70, 300, 200);
    QTest::newRow("low") << QRect(100, 500, 400, 300) << usual << QRect(509, 395, 300, 200);
    QTest::newRow("above the screen") << QRect(100, -50, 400, 300) << usual << QRect(509, 20, 300, 200);
    QTest::newRow("as high as the screen")
        << QRect(100, 50, 400, 300) << QSize(300, 900) << QRect(509, 20, 300, 575);
  }
  void besideAnotherWindowItHidesNothingOfIt() {
    QFETCH(QRect, other);
    QFETCH(QSize, contents);
    QTEST(placedBeside(other, contents, QRect(0, 0, 1000, 600), {1, 20, 1, 5}), "placed");
  }

  void ofEveryScreenThereIsRoom() {
    QCOMPARE(roomOnScreens().size(), QGuiApplication::screens().size());
    QCOMPARE(roomOnScreens().constFirst(), QGuiApplication::primaryScreen()->availableGeometry());
  }
};

NORVEX_TEST(WindowPlaceTest)
#include "window_place_test.moc"
