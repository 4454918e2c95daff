// The built program on real screens, small and large: its windows stay wholly on them, frame and all.
#include <algorithm>
#include <cstdlib>

#include "kit/test_main.h"
#include "system/x_session.h"

using namespace norvex;
using kit::XSession;

namespace {

const QByteArray kSmall =
    "<svg xmlns='http://www.w3.org/2000/svg' width='300' height='200'><rect width='100%' height='100%' "
    "fill='#ffe633'/></svg>";
const QByteArray kBroad =
    "<svg xmlns='http://www.w3.org/2000/svg' width='1400' height='300'><rect width='100%' height='100%' "
    "fill='#33ffe6'/></svg>";
const QByteArray kMiddle =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 500 260\n%%EndComments\n0 0.5 0.9 setrgbcolor 0 0 500 260 "
    "rectfill\n%%EOF\n";
const QByteArray kLetter =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 612 792\n%%EndComments\n0 0.5 0.1 setrgbcolor 20 20 572 752 "
    "rectfill\n%%EOF\n";

/// Window managers put a window where it is wanted within so many pixels.
constexpr int kNear = 2;

bool isNear(const QRect& one, const QRect& other) {
  return (one.topLeft() - other.topLeft()).manhattanLength() <= kNear &&
         (one.bottomRight() - other.bottomRight()).manhattanLength() <= kNear;
}

QByteArray text(const QRect& rect) {
  return QStringLiteral("%1, %2, %3 × %4")
      .arg(rect.x())
      .arg(rect.y())
      .arg(rect.width())
      .arg(rect.height())
      .toUtf8();
}

/// A folder of pictures of every kind of size, of which one is shown.
class Screen {
 public:
  explicit Screen(const QSize& size, const QString& scale = "1", const QString& manager = "openbox")
      : size_(size), session_(size, manager) {
    session_.setEnvironment("QT_SCALE_FACTOR", scale);
    write("a small.svg", kSmall);
    write("b letter.eps", kLetter);
    write("c middle.eps", kMiddle);
    write("d broad.svg", kBroad);
    write("e broken.pdf", "%PDF-1.4 broken");
  }
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  bool open(const QString& name) { return session_.start({path(name)}, name) && rests(name); }
  bool goTo(const QString& name) { return session_.activate(name) && rests(name); }
  /// Presses the keys in the window that is shown; a window called `shows` comes of it.
  bool press(const QString& keys, const QString& shows) {
    session_.activate(shown_);
    session_.key(keys);
    if (shows == shown_) QThread::msleep(400);
    return goTo(shows);
  }
  /// The same one after the other.
  bool press(const QStringList& all) {
    return std::all_of(all.cbegin(), all.cend(), [this](const QString& keys) { return press(keys, shown_); });
  }
  [[nodiscard]] const QRect& frame() const { return frame_; }
  [[nodiscard]] const QString& shown() const { return shown_; }
  [[nodiscard]] bool isWhollySeen() const { return QRect(QPoint(0, 0), size_).contains(frame_); }
  XSession& session() { return session_; }

 private:
  void write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
  }
  /// Waits until the window has stopped moving: what is known late of it has been seen to.
  bool rests(const QString& name) {
    shown_ = name;
    int same = 0;
    return kit::waitUntil([&] {
      QThread::msleep(250);
      const QRect now = session_.frameRect(name);
      same = now == frame_ && !now.isEmpty() ? same + 1 : 0;
      frame_ = now;
      return same >= 4;
    });
  }

  QSize size_;
  QTemporaryDir folder_;
  XSession session_;
  QString shown_;
  QRect frame_;
};

}  // namespace

#define SEEN(screen)                \
  QVERIFY2((screen).isWhollySeen(), \
           ((screen).shown().toUtf8() + " stands at " + text((screen).frame())).constData())

class WindowPlaceTest : public QObject {
  Q_OBJECT

  static void smallScreens() {
    QTest::addColumn<QString>("scale");
    QTest::addColumn<QString>("manager");
    QTest::newRow("with frames") << "1"
                                 << "openbox";
    QTest::newRow("scale 1.5") << "1.5"
                               << "openbox";
    QTest::newRow("without a window manager") << "1"
                                              << "";
  }

 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
  }

  void throughTheFolderWithFitEveryWindowIsWhollySeen_data() { smallScreens(); }
  void throughTheFolderWithFitEveryWindowIsWhollySeen() {
    QFETCH(QString, scale);
    QFETCH(QString, manager);
    Screen s({1024, 600}, scale, manager);
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
    Screen s({1024, 600});
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
    Screen s({1024, 600});
    QVERIFY(s.open("a small.svg"));
    QVERIFY(s.press({"ctrl+9"}));
    const QRect small = s.frame();
    QVERIFY(s.press("alt+Right", "b letter.eps"));  // as narrow, fitted
    QVERIFY2(std::abs(s.frame().left() - small.left()) <= kNear, text(s.frame()));
  }

  void whatPanelsAndFullScreenDoToAWindowIsWhollySeen_data() { smallScreens(); }
  void whatPanelsAndFullScreenDoToAWindowIsWhollySeen() {
    QFETCH(QString, scale);
    QFETCH(QString, manager);
    Screen s({1024, 600}, scale, manager);
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
    Screen s({1024, 600});
    QVERIFY(s.session().start({s.path("c middle.eps"), s.path("a small.svg")}, "c middle.eps"));
    QVERIFY(s.goTo("c middle.eps"));
    SEEN(s);
    const QRect first = s.frame();
    QVERIFY(s.goTo("a small.svg"));
    SEEN(s);
    QVERIFY(s.frame().topLeft() != first.topLeft());
  }

  void aFrameThatIsDrawnLateIsBroughtOntoTheScreen() {
    Screen s({1024, 600}, "1", "");
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

NORVEX_TEST(WindowPlaceTest)
#include "window_place_test.moc"
