// The built program on a small screen: whatever is done to its window, it is wholly seen.
#include "kit/test_main.h"
#include "system/windows/pictures_on_screen.h"

using namespace norvex;
using kit::XSession;

class WindowSeenTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
  }

  void whatPanelsAndFullScreenDoToAWindowIsWhollySeen_data() { smallScreens(); }
  void whatPanelsAndFullScreenDoToAWindowIsWhollySeen() {
    QFETCH(QString, scale);
    QFETCH(QString, manager);
    PicturesOnScreen s({1024, 600}, scale, manager);
    QVERIFY(s.open("b letter.eps"));
    SEEN(s);
    const QRect opened = s.frame();
    QVERIFY(s.press({"ctrl+9"}));
    SEEN(s);
    for (const char* keys : {"F11", "Escape", "ctrl+f", "ctrl+minus"}) {
      QVERIFY(s.press({keys}));
      SEEN(s);
    }
    QVERIFY(s.session().quit());
    QVERIFY(s.open("b letter.eps"));
    SEEN(s);
    // Nothing of this was a choice of the user's; what surrounds a window is no guess any more, and may be
    // less.
    QCOMPARE(s.frame().width(), opened.width());
    QVERIFY2(s.frame().height() >= opened.height(), text(s.frame()));
  }

  void aSecondWindowIsBesideTheFirstAndSeenToo() {
    PicturesOnScreen s({1024, 600});
    QVERIFY(s.session().start({s.path("c middle.eps"), s.path("a small.svg")}, "c middle.eps"));
    QVERIFY(s.goTo("c middle.eps"));
    SEEN(s);
    const QRect first = s.frame();
    QVERIFY(s.goTo("a small.svg"));
    SEEN(s);
    QVERIFY(s.frame().topLeft() != first.topLeft());
  }

  void aFrameThatIsDrawnLateIsBroughtOntoTheScreen() {
    PicturesOnScreen s({1024, 600}, "1", "");
    QDir(s.session().home()).mkpath("norvex");
    QFile kept(QDir(s.session().home()).filePath("norvex/windows.ini"));
    QVERIFY(kept.open(QIODevice::WriteOnly));
    // As a desktop without frames leaves it.
    kept.write("[frames]\nMainWindowController=@Rect(0 0 940 760)\nmargins=0, 0, 0, 0\n");
    kept.close();
    s.session().startManager("openbox");
    QVERIFY(s.open("b letter.eps"));
    SEEN(s);
    QVERIFY2(s.frame().height() > 500, text(s.frame()));
  }
};

NORVEX_TEST(WindowSeenTest)
#include "window_seen_test.moc"
