// The built program on a small screen: from picture to picture its window stays wholly on it, frame and all.
#include <cstdlib>

#include "kit/test_main.h"
#include "system/windows/pictures_on_screen.h"

using namespace norvex;
using kit::XSession;

class WindowPlaceTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
  }

  void throughTheFolderWithFitEveryWindowIsWhollySeen_data() { smallScreens(); }
  void throughTheFolderWithFitEveryWindowIsWhollySeen() {
    QFETCH(QString, scale);
    QFETCH(QString, manager);
    PicturesOnScreen s({1024, 600}, scale, manager);
    QVERIFY(s.open("a small.svg"));
    SEEN(s);
    QVERIFY(s.press({"ctrl+9"}));
    for (const char* next : {"b letter.eps", "c middle.eps", "d broad.svg", "e broken.pdf"}) {
      QVERIFY(s.press("alt+Right", next));
      SEEN(s);
    }
    for (const char* before : {"d broad.svg", "c middle.eps"}) {
      QVERIFY(s.press("alt+Left", before));
      SEEN(s);
    }
  }

  void fromPictureToPictureTheWindowComesBackToItsPlace() {
    PicturesOnScreen s({1024, 600});
    QVERIFY(s.open("a small.svg"));
    const QRect small = s.frame();
    QVERIFY(s.press("alt+Right", "b letter.eps"));
    const QRect letter = s.frame();
    SEEN(s);
    QVERIFY(s.press("alt+Left", "a small.svg"));
    QVERIFY2(isNear(s.frame(), small), text(s.frame()));
    QVERIFY(s.press("alt+Right", "b letter.eps"));
    QVERIFY2(isNear(s.frame(), letter), text(s.frame()));
  }

  void aWindowThatHasRoomWhereItStandsIsNotMovedForTheNextPicture() {
    PicturesOnScreen s({1024, 600});
    QVERIFY(s.open("a small.svg"));
    QVERIFY(s.press({"ctrl+9"}));
    const QRect small = s.frame();
    QVERIFY(s.press("alt+Right", "b letter.eps"));  // as narrow, fitted
    QVERIFY2(std::abs(s.frame().left() - small.left()) <= kNear, text(s.frame()));
  }
};

NORVEX_TEST(WindowPlaceTest)
#include "window_place_test.moc"
