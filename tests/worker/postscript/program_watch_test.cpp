#include "worker/postscript/program_watch.h"

#include <sys/mman.h>
#include <unistd.h>

#include "base/file_descriptor.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const PictureLimits kLimits{10, 64, 0.001};  // a thousand pixels

/// What an interpreter would have written: a header, and rows of this byte.
FileDescriptor canvas(const CanvasHeader& header, qsizetype bytes, char byte = '\x40') {
  FileDescriptor file(::memfd_create("canvas", MFD_CLOEXEC));
  const QByteArray pixels(bytes, byte);
  if (::pwrite(file.get(), &header, sizeof header, 0) != ssize_t(sizeof header) ||
      ::pwrite(file.get(), pixels.constData(), size_t(bytes), canvasPixels) != bytes)
    qFatal("no file in memory");
  return file;
}

}  // namespace

class ProgramWatchTest : public QObject {
  Q_OBJECT
 private slots:
  /// 1600 along the longer side, and no more than four a point.
  void asManyPixelsAreDrawnAsAScreenShows() {
    const auto dpiOf = [](const QSizeF& points) { return ProgramWatch(points).deviceParameters(); };
    const QByteArray smooth = " /TextAlphaBits 4 /GraphicsAlphaBits 4";
    QCOMPARE(dpiOf({400, 100}), "/HWResolution [288 288]" + smooth);
    QCOMPARE(dpiOf({100, 3200}), "/HWResolution [36 36]" + smooth);
    QCOMPARE(dpiOf({1, 1}), "/HWResolution [288 288]" + smooth);
  }

  void pixelsAreReadRowByRow() {
    const FileDescriptor file = canvas({3, 2, 20}, 40);
    const Bitmap bitmap = bitmapOfCanvas(file.get(), kLimits);
    QCOMPARE(bitmap.size(), QSize(3, 2));
    QCOMPARE(bitmap.row(1)[2], Argb32(0xFF404040));
  }

  void whiteIsNothing() {
    const FileDescriptor file = canvas({3, 2, 12}, 24, '\xFF');
    QVERIFY(bitmapOfCanvas(file.get(), kLimits).isEmpty());
  }

  void onePixelIsSomethingWhereverItIs() {
    for (const qint64 place : {0, 12}) {
      const FileDescriptor file = canvas({3, 2, 12}, 24, '\xFF');
      QCOMPARE(::pwrite(file.get(), "", 1, canvasPixels + place), ssize_t(1));
      QCOMPARE(bitmapOfCanvas(file.get(), kLimits).size(), QSize(3, 2));
    }
  }

  void asManyPixelsAsAreAllowedAndAreThere() {
    const FileDescriptor most = canvas({25, 40, 100}, 4000), more = canvas({25, 41, 100}, 4100);
    QCOMPARE(bitmapOfCanvas(most.get(), kLimits).size(), QSize(25, 40));
    QVERIFY(bitmapOfCanvas(more.get(), kLimits).isEmpty());
    const FileDescriptor cut = canvas({25, 40, 100}, 3999);
    QVERIFY(bitmapOfCanvas(cut.get(), kLimits).isEmpty());
  }

  void whatCannotBeTrueIsNothing_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("bytesPerRow");
    QTest::newRow("nothing yet") << 0 << 0 << 0;
    QTest::newRow("less than nothing") << -3 << -2 << 12;
    QTest::newRow("a side below zero") << 3 << -2 << 12;
    QTest::newRow("more rows than there are") << 3 << 11 << 12;
    QTest::newRow("longer rows than there are") << 3 << 2 << 1000;
    QTest::newRow("rows that overlap") << 3 << 2 << 4;
    QTest::newRow("rows that go backwards") << 3 << 2 << -12;
    QTest::newRow("a number that overflows") << 0x40000000 << 0x40000000 << 0x7fffffff;
  }
  void whatCannotBeTrueIsNothing() {
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, bytesPerRow);
    const FileDescriptor file = canvas({width, height, bytesPerRow}, 120);
    QVERIFY(bitmapOfCanvas(file.get(), kLimits).isEmpty());
  }

  void aFileWithoutAHeaderIsNothing() {
    const FileDescriptor file(::memfd_create("canvas", MFD_CLOEXEC));
    QVERIFY(bitmapOfCanvas(file.get(), kLimits).isEmpty());
    QVERIFY(bitmapOfCanvas(-1, kLimits).isEmpty());
  }
};

NORVEX_TEST(ProgramWatchTest)
#include "program_watch_test.moc"
