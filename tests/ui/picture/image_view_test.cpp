// The small picture of an inspector.
#include <QImage>
#include <QSet>

#include "base/background_work.h"
#include "kit/test_main.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "ui/picture/zy_image_view.h"

using namespace norvex;

namespace {

const QColor kGround(20, 160, 60);

QImage plain(QSize size, const QColor& color) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(color);
  return image;
}

/// What the view paints, without the window behind it.
QImage drawn(ZyImageView& view) {
  QImage shown = plain(view.size(), Qt::transparent);
  view.render(&shown, {}, {}, QWidget::RenderFlags());
  return shown;
}

}  // namespace

class ImageViewTest : public QObject {
  Q_OBJECT
 private slots:
  void theImageFillsTheRoomWithinTheMarginAsFarAsItsShapeAllows_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("its shape") << QSize(400, 200) << QRect(8, 8, 200, 100);
    QTest::newRow("smaller") << QSize(20, 10) << QRect(8, 8, 200, 100);
    QTest::newRow("high") << QSize(100, 200) << QRect(83, 8, 50, 100);
    QTest::newRow("wide") << QSize(800, 200) << QRect(8, 33, 200, 50);
  }
  void theImageFillsTheRoomWithinTheMarginAsFarAsItsShapeAllows() {
    QFETCH(QSize, size);
    QFETCH(QRect, expected);
    ZyImageView view;
    view.resize(216, 116);
    view.setUseBackgroundColor(true);
    view.setBackgroundColor(kGround);
    view.setImage(plain(size, Qt::red));
    const QImage shown = drawn(view);
    const auto red = [&](int x, int y) { return shown.pixelColor(x, y) == QColor(Qt::red); };
    const QRect within = expected.adjusted(1, 1, -1, -1), around = expected.adjusted(-2, -2, 2, 2);
    QVERIFY(red(within.left(), within.top()) && red(within.right(), within.bottom()));
    for (const QPoint& beside : {QPoint(around.left(), 58), QPoint(around.right(), 58),
                                 QPoint(108, around.top()), QPoint(108, around.bottom())})
      QCOMPARE(shown.pixelColor(beside), kGround);
  }

  void theGroundHasRoundCornersAndALineAround() {
    ZyImageView view;
    view.resize(100, 80);
    view.setUseBackgroundColor(true);
    view.setBackgroundColor(kGround);
    const QImage shown = drawn(view);
    for (const QPoint& corner : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 79), QPoint(99, 79)})
      QCOMPARE(shown.pixelColor(corner).alpha(), 0);
    QCOMPARE(shown.pixelColor(50, 79), shown.pixelColor(50, 0));
    QCOMPARE(shown.pixelColor(99, 40), shown.pixelColor(0, 40));
    for (const QPoint& edge : {QPoint(50, 0), QPoint(50, 79), QPoint(0, 40), QPoint(99, 40)}) {
      QVERIFY(shown.pixelColor(edge).alpha() > 0);
      QVERIFY(shown.pixelColor(edge) != kGround);
    }
    for (const QPoint& inner : {QPoint(50, 2), QPoint(50, 77), QPoint(2, 40), QPoint(97, 40), QPoint(5, 5)})
      QCOMPARE(shown.pixelColor(inner), kGround);
    view.setImageFrameStyle(ZyImageView::GrayBezel);
    QVERIFY(qGray(drawn(view).pixel(50, 1)) < qGray(shown.pixel(50, 1)) ||
            qGray(drawn(view).pixel(50, 0)) < qGray(shown.pixel(50, 0)));
  }

  void withoutAGroundOfItsOwnThereIsACheckerboard() {
    ZyImageView view;
    view.resize(100, 80);
    view.setBackgroundColor(kGround);
    const QImage shown = drawn(view);
    QSet<QRgb> colours;
    for (int y = 20; y < 60; ++y)
      for (int x = 20; x < 80; ++x) colours << shown.pixel(x, y);
    QCOMPARE(colours.size(), 2);
    QVERIFY(!colours.contains(kGround.rgb()));
  }

  void copyingPutsTheImageInThePlaceOfTheGroundAndCoveringOverIt() {
    ZyImageView view;
    view.resize(116, 116);
    view.setUseBackgroundColor(true);
    view.setBackgroundColor(kGround);
    view.setImage(plain({100, 100}, Qt::transparent));
    QCOMPARE(drawn(view).pixelColor(58, 58), kGround);
    view.setCompositingOperation(ZyImageView::Copy);
    QCOMPARE(drawn(view).pixelColor(58, 58).alpha(), 0);
    QCOMPARE(drawn(view).pixelColor(4, 58), kGround);
  }

  void nothingIsShownWhereThereIsNoRoom() {
    ZyImageView view;
    view.setUseBackgroundColor(true);
    view.setBackgroundColor(kGround);
    view.setImage(plain({10, 10}, Qt::red));
    view.resize(40, 16);
    QCOMPARE(drawn(view).pixelColor(20, 8), kGround);
  }

  void aPictureIsAskedForWhereThereIsRoomForIt() {
    MemoryPictureService service;
    const WaitingThreadsEnd threadsEnd;
    const auto rep = NSPDFImageRep::imageRepWithData(service, emptyPdf({200, 100}));
    QVERIFY(rep.ok());
    const auto process = service.lastProcess();
    const int before = process->calls(PictureCall::Render);
    ZyImageView view;
    view.resize(40, 16);
    view.show();
    view.setImageRep(*rep);
    QTest::qWait(50);
    QCOMPARE(process->calls(PictureCall::Render), before);
    view.resize(216, 116);
    QTRY_VERIFY(process->calls(PictureCall::Render) > before);
    view.setImageRep(nullptr);
  }
};

NORVEX_TEST(ImageViewTest)
#include "image_view_test.moc"
