// The pixels of a page that can be looked at while an interpreter draws it.
#include <sys/stat.h>
#include <unistd.h>

#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "protocol/interpreter_request.h"
#include "worker/drawing/bitmap.h"
#include "worker/interpreter/interpreter_kit.h"
#include "worker/postscript/program_watch.h"

using namespace norvex;
using namespace norvex::engine;
using kit::Interpreters;

namespace {

constexpr PictureLimits kLimits{60, 256, 1};
constexpr Argb32 kRed = 0xFFFF0000, kBlue = 0xFF0000FF, kWhite = 0xFFFFFFFF;
const QByteArray kPage = "%!\n<< /PageSize [60 40] /HWResolution [72 72] >> setpagedevice\n";
/// A program that goes on for ever without drawing.
const QByteArray kWaits = "{ } loop\n";

/// A program that is being drawn by an interpreter of its own.
class Drawn {
 public:
  explicit Drawn(const QByteArray& program) {
    auto child = GhostscriptChild::fork(interpreters_.program().asking(), kLimits, InterpreterDevice::Canvas);
    if (!child) return;
    child_ = std::move(*child);
    child_->begin({kPage + program});
  }
  [[nodiscard]] bool valid() const { return child_ != nullptr; }
  /// Looks until this pixel has this colour.
  [[nodiscard]] bool becomes(QPoint place, Argb32 colour) {
    return kit::eventually([&] {
      child_->step(5);
      seen_ = bitmapOfCanvas(child_->memory(), kLimits);
      return !seen_.isEmpty() && seen_.row(place.y())[place.x()] == colour;
    });
  }
  [[nodiscard]] const Bitmap& seen() const { return seen_; }
  [[nodiscard]] CanvasHeader header() const {
    CanvasHeader header;
    return ::pread(child_->memory(), &header, sizeof header, 0) == ssize_t(sizeof header) ? header
                                                                                          : CanvasHeader();
  }
  [[nodiscard]] qint64 bytes() const {
    struct stat facts {};
    return ::fstat(child_->memory(), &facts) == 0 ? facts.st_size : -1;
  }
  void step() { child_->step(5); }

 private:
  Interpreters interpreters_;
  std::shared_ptr<GhostscriptChild> child_;
  Bitmap seen_;
};

}  // namespace

class CanvasDeviceTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsDrawnIsSeenBeforeTheProgramEnds() {
    Drawn drawn("1 0 0 setrgbcolor 0 0 30 20 rectfill flushpage\n" + kWaits);
    QVERIFY(drawn.valid());
    QVERIFY(drawn.becomes({10, 30}, kRed));
    QCOMPARE(drawn.seen().size(), QSize(60, 40));
    QCOMPARE(drawn.seen().row(39)[0], kRed);
    QCOMPARE(drawn.seen().row(20)[29], kRed);
    QCOMPARE(drawn.seen().row(20)[30], kWhite);
    QCOMPARE(drawn.seen().row(19)[0], kWhite);
  }

  void itIsToldHowThePixelsLie() {
    Drawn drawn("0 0 1 setrgbcolor 0 0 60 40 rectfill flushpage\n" + kWaits);
    QVERIFY(drawn.valid());
    QVERIFY(drawn.becomes({0, 0}, kBlue));
    const CanvasHeader header = drawn.header();
    QCOMPARE(header.width, 60);
    QCOMPARE(header.height, 40);
    QVERIFY(header.bytesPerRow >= 240);
    QVERIFY(drawn.bytes() >= canvasPixels + 40 * header.bytesPerRow);
  }

  /// A second page would paint the first one over.
  void theFirstPageStays() {
    Drawn drawn(
        "1 0 0 setrgbcolor 0 0 60 40 rectfill showpage 0 0 1 setrgbcolor 0 0 60 40 rectfill flushpage\n" +
        kWaits);
    QVERIFY(drawn.valid());
    QVERIFY(drawn.becomes({5, 5}, kRed));
    for (int i = 0; i < 40; ++i) drawn.step();
    QVERIFY(drawn.becomes({5, 5}, kRed));
  }
};

NORVEX_TEST(CanvasDeviceTest)
#include "canvas_device_test.moc"
