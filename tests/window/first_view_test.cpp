// A picture that was shown before comes back as it was shown.
#include <cmath>

#include "kit/test_main.h"
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
