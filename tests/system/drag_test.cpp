// What happens beside the picture and in the middle of a drag, with a real mouse in a real X server.
#include <QLibrary>

#include "kit/test_main.h"
#include "system/painted_screen.h"
#include "system/x_session.h"

using namespace norvex;
using kit::count;
using kit::isBlue;
using kit::isRed;
using kit::paperIn;
using kit::XSession;

namespace {

constexpr int kMarked = 100;  // pixels of a mark's colour at least

/// The shape of the pointer as the X server has it.
class Pointer {
 public:
  explicit Pointer(const QString& display) {
    x_.load();
    fixes_.load();
    const auto open = reinterpret_cast<void* (*)(const char*)>(x_.resolve("XOpenDisplay"));
    get_ = reinterpret_cast<Image* (*)(void*)>(fixes_.resolve("XFixesGetCursorImage"));
    if (open && get_) display_ = open(display.toLatin1().constData());
  }
  ~Pointer() {
    const auto close = reinterpret_cast<int (*)(void*)>(x_.resolve("XCloseDisplay"));
    if (display_ && close) close(display_);
  }
  Pointer(const Pointer&) = delete;
  Pointer& operator=(const Pointer&) = delete;

  [[nodiscard]] bool isKnown() const { return display_ != nullptr; }
  /// Its pixels; empty: it has none.
  [[nodiscard]] QList<unsigned long> shape() const {
    const Image* image = get_(display_);
    QList<unsigned long> pixels;
    for (int i = 0; image && i < image->width * image->height; ++i) pixels << image->pixels[i];
    return pixels;
  }

 private:
  /// The beginning of XFixesCursorImage.
  struct Image {
    short x, y;
    unsigned short width, height, xhot, yhot;
    unsigned long serial;
    unsigned long* pixels;
  };
  QLibrary x_{"X11", 6}, fixes_{"Xfixes", 3};
  Image* (*get_)(void*) = nullptr;
  void* display_ = nullptr;
};

}  // namespace

class DragSystemTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    if (const QString program = XSession::missing(); !program.isEmpty())
      QSKIP(qPrintable(program + " is not installed: no window can be worked here"));
    session_ = std::make_unique<XSession>();
  }
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }
  void cleanup() { session_->stop(); }
  void cleanupTestCase() { session_.reset(); }

  void aClickBesideThePictureLeavesTheSelection() {
    QVERIFY(open());
    session_->key("ctrl+a");
    QVERIFY(kit::waitUntil([this] { return blue() > kMarked; }));
    const int marked = blue();
    for (const QPoint& at : beside()) session_->click(at);
    session_->moveTo({3, 3});
    session_->waitUntilStill();
    QCOMPARE(blue(), marked);
    session_->click(paper_.center());  // and one in it does not
    QVERIFY(kit::waitUntil([this] { return blue() == 0; }));
  }

  void aDragWhollyBesideThePicturePlacesNothing() {
    QVERIFY(open());
    const QImage before = screen();
    for (const QPoint& at : beside()) session_->drag(at, at + QPoint(4, 12));
    session_->waitUntilStill();
    QCOMPARE(count(screen(), paper_, isRed), 0);
    QCOMPARE(count(screen(), around(), isRed), count(before, around(), isRed));
    // The next drag in the picture is the first one.
    session_->drag(paper_.center(), paper_.center() + QPoint(20, 10));
    QVERIFY(kit::waitUntil([this] { return red() > kMarked; }));
    QCOMPARE(blue(), 0);
  }

  void thePointerIsACrossOverThePictureAlone() {
    QVERIFY(open());
    const Pointer pointer(session_->display());
    if (!pointer.isKnown()) QSKIP("libXfixes is not installed: the pointer cannot be seen");
    session_->moveTo(session_->windowRect("a.eps").topLeft() + QPoint(8, 8));
    session_->waitUntilStill();
    const auto arrow = pointer.shape();
    session_->moveTo(paper_.center());
    QVERIFY(kit::waitUntil([&] { return pointer.shape() != arrow; }));
    const auto cross = pointer.shape();
    for (const QPoint& at : beside()) {
      session_->moveTo(at);
      QVERIFY(kit::waitUntil([&] { return pointer.shape() == arrow; }, 5));
    }
    session_->moveTo(paper_.topLeft() + QPoint(12, 12));
    QVERIFY(kit::waitUntil([&] { return pointer.shape() == cross; }, 5));
  }

  void theWheelInTheMiddleOfADragZoomsAndScrollsNothing() {
    QVERIFY(open());
    const QPoint middle = paper_.center();
    session_->press(middle);
    session_->moveTo(middle + QPoint(10, 5));
    for (const char* wheel : {"4", "4", "5"}) {
      session_->xdo({"keydown", "ctrl", "click", wheel, "keyup", "ctrl"});
      session_->xdo({"click", wheel});
    }
    session_->moveTo(middle + QPoint(20, 10));
    session_->release();
    QVERIFY(kit::waitUntil([this] { return red() > kMarked; }));
    // The marks of the start point divide what paperIn() looks for.
    const QImage marked = session_->screen();
    QCOMPARE(kit::boundsOf(around(), [&](int x, int y) { return kit::isPaper(marked.pixel(x, y)); }), paper_);
    // With the button up the same turn of the wheel zooms.
    session_->xdo({"keydown", "ctrl", "click", "4", "keyup", "ctrl"});
    QVERIFY(kit::waitUntil([this] {
      const QImage zoomed = session_->screen();
      return kit::boundsOf(around(), [&](int x, int y) { return kit::isPaper(zoomed.pixel(x, y)); }) !=
             paper_;
    }));
  }

  void aLostFocusInTheMiddleOfADragChangesNothing() {
    QVERIFY(open());
    const QPoint middle = paper_.center(), start = middle + QPoint(-40, 30), end = middle + QPoint(45, -35);
    session_->drag(middle, start);
    QVERIFY(kit::waitUntil([this] { return red() > kMarked; }));
    session_->press(middle);
    session_->moveTo(middle + QPoint(10, -10));
    QVERIFY(kit::waitUntil([this] { return blue() > kMarked; }));
    QProcess other;
    other.setProcessEnvironment(environment());
    other.start("xclock", {"-title", "other", "-geometry", "100x100+1400+900"});
    QVERIFY(kit::waitUntil([this] { return !session_->windowsOf("other").isEmpty(); }));
    session_->activate("other");
    session_->moveTo(end);
    QVERIFY2(blue() > kMarked, "the rectangle went with the focus");
    session_->release();
    session_->moveTo({3, 3});
    session_->waitUntilStill();
    const QImage marked = session_->screen();
    // Where its size does not cover the line.
    QVERIFY(kit::near(marked, QPoint(start.x(), start.y() - 8), isBlue));
    QVERIFY(kit::near(marked, QPoint(end.x(), end.y() + 8), isBlue));
    other.kill();
    other.waitForFinished();
  }

 private:
  bool open() {
    QFile file(folder_->filePath("a.eps"));
    if (!file.open(QIODevice::WriteOnly) || file.write(kit::kEps) != kit::kEps.size()) return false;
    file.close();
    const bool shown =
        session_->start({file.fileName()}, "a.eps") && kit::waitUntil([this] {
          return paperIn(session_->screen()).size() == QSize(int(kit::kWidth), int(kit::kHeight));
        });
    paper_ = paperIn(session_->screen());
    return shown;
  }
  /// The screen without what the pointer makes of it.
  QImage screen() {
    session_->moveTo({3, 3});
    session_->waitUntilStill();
    return session_->screen();
  }
  int blue() { return count(session_->screen(), around(), isBlue); }
  int red() { return count(session_->screen(), paper_, isRed); }
  /// The picture and some of the canvas.
  [[nodiscard]] QRect around() const { return paper_.adjusted(-20, -20, 20, 20); }
  /// On the canvas, away from the handles.
  [[nodiscard]] QList<QPoint> beside() const {
    return {paper_.topLeft() + QPoint(-40, 30), paper_.bottomRight() + QPoint(40, -40)};
  }
  [[nodiscard]] QProcessEnvironment environment() const {
    QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    own.insert("DISPLAY", session_->display());
    return own;
  }

  QRect paper_;
  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<XSession> session_;
};

NORVEX_TEST(DragSystemTest)
#include "drag_test.moc"
