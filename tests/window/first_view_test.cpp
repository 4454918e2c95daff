// A picture that was shown before comes back as it was shown.
#include <cmath>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/window_fixture.h"

using namespace norvex;

class FirstViewTest : public QObject {
  Q_OBJECT
 private slots:
  void zoomAndAngleComeBackAtTheFirstReading() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    QVERIFY(!c.pictureView());
    c.setFirstView({2, 30.5, 0});
    c.windowDidLoad();
    const auto view = c.pictureView();
    QVERIFY(view.has_value());
    QCOMPARE(view->zoom, 2.0);
    QVERIFY2(std::abs(view->degrees - 30.5) < 1e-9, qPrintable(QString::number(view->degrees)));
    QVERIFY(std::abs(c.view()->rotate() - view->degrees * M_PI / 180) < 1e-9);
  }

  void thePageComesBackToo() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 300, 400)};
    picture.facts.pageCount = 2;
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.open(emptyPdf({200, 100}), "a.pdf", UTTypePDF().identifier());
    c.setFirstView({2, 0, 1});
    c.windowDidLoad();
    const auto view = c.pictureView();
    QVERIFY(view.has_value());
    QCOMPARE(view->page, 1);
    QCOMPARE(view->zoom, 2.0);
    QCOMPARE(c.view()->imageRep()->page(), 1);
  }

  void aZoomThatFollowsTheWindowComesBackAsOne() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.setFirstView({7, 0, 0, KeptFit::Width});
    c.windowDidLoad();
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    QVERIFY(c.pictureView()->fit == KeptFit::Width);
    const auto fits = [&c] {
      return std::abs(c.scrollArea()->fittingWidthFactor() / c.zoomFactor() - 1) < 0.01;
    };
    QTRY_VERIFY2(fits(), qPrintable(QString::number(c.zoomFactor())));
    c.window()->resize(500, 500);
    QTRY_VERIFY2(fits(), qPrintable(QString::number(c.zoomFactor())));
    c.zoomingScrollView()->zoomTo(1);
    QVERIFY(c.pictureView()->fit == KeptFit::Nothing);
  }

  void theNaturalSizeTakesNothingOfTheWindowFromALargerPicture() {
    for (const PictureView& view : {PictureView{8, 0, 0}, PictureView{1, 0, 0, KeptFit::Whole}}) {
      WindowFixture fixture;
      MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
      c.setFirstView(view);
      c.window()->resize(700, 640);
      c.windowDidLoad();
      QVERIFY2(c.window()->width() == 700, qPrintable(QString::number(c.window()->width())));
      c.window()->show();
      QVERIFY(QTest::qWaitForWindowExposed(c.window()));
      QCOMPARE(c.window()->width(), 700);
    }
  }

  void readAgainItStartsOver() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.setFirstView({2, 90, 0});
    c.windowDidLoad();
    fixture.revert();
    QVERIFY(c.pictureView() == PictureView());
  }

  void aFileThatIsNoPictureHasNoView() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "no picture"});
    });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.setFirstView({2, 90, 0});
    c.windowDidLoad();
    QVERIFY(!c.pictureView());
  }
};

NORVEX_TEST(FirstViewTest)
#include "first_view_test.moc"
