// How an exported file is shown before it is written: by its own pixels where it has some.
#include "window/export/exported_picture.h"

#include <QBuffer>

#include "display/norvex_view.h"
#include "kit/test_main.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QByteArray file(const QSize& size, const char* format) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(200, 30, 30));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes;
}

QImage preview(const ExportedPicture& exported, const PictureSnapshot& snapshot, PictureFormat format,
               int side) {
  ExportChoice choice;
  choice.format = format;
  choice.area = ExportArea::Page;
  return previewOf(exported, snapshot, choice, side, {});
}

bool isRed(const QColor& color) {
  return color.red() > 190 && color.green() < 50 && color.blue() < 50;
}

}  // namespace

class ExportedPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void theFilesOwnPixelsAreShown_data() {
    QTest::addColumn<int>("format");
    QTest::newRow("PNG") << int(PictureFormat::Png);
    QTest::newRow("JPEG") << int(PictureFormat::Jpeg);
  }
  void theFilesOwnPixelsAreShown() {
    QFETCH(int, format);
    const char* name = format == int(PictureFormat::Png) ? "PNG" : "JPEG";
    const auto shown = [&](const QSize& size) {
      return preview({file(size, name), {}, {}}, {}, PictureFormat(format), 100);
    };
    QVERIFY(isRed(shown({60, 40}).pixelColor(30, 20)));
    QCOMPARE(shown({60, 40}).size(), QSize(60, 40));
    QCOMPARE(shown({100, 100}).size(), QSize(100, 100));
    QCOMPARE(shown({400, 100}).size(), QSize(100, 25));
    QCOMPARE(shown({50, 200}).size(), QSize(25, 100));
  }

  void whatHasNoPixelsToReadIsDrawnAtTheSameSize() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    PictureSnapshot snapshot;
    snapshot.imageRep = c.view()->imageRep();
    snapshot.rect = c.view()->bounds();
    const ExportedPicture made{"%PDF", {}, {}};
    QCOMPARE(preview(made, snapshot, PictureFormat::Pdf, 700).size(), QSize(700, 350));
    QVERIFY(preview({}, snapshot, PictureFormat::Pdf, 700).isNull());  // there is no file
  }
};

NORVEX_TEST(ExportedPictureTest)
#include "exported_picture_test.moc"
