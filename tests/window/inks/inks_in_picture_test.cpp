// The inks in the place of the picture: as sharp as it is shown, and gone with what they belong to.
#include <QApplication>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QSemaphore>

#include <cmath>

#include "kit/test_main.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/inks/inks_fixture.h"
#include "window/inks/inks_in_picture.h"
#include "window/viewing/pages_command.h"

using namespace norvex;

namespace {

/// The pointer goes to a point of the picture.
void moveOver(MainWindowController& c, const QPointF& picture) {
  NorvexViewWidget* const widget = c.viewWidget();
  const QPointF at = widget->pictureToDevice().map(picture) / widget->devicePixelRatioF();
  QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(widget, &move);
}

}  // namespace

class InksInPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void theInksAreShownInThePictureAtTheResolutionShown() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    c.window()->show();
    f.look();
    QVERIFY(f.listsInks());
    QVERIFY(c.viewWidget()->standIns().isEmpty());
    f.switchOn("Show the inks in the picture");
    QVERIFY(QTest::qWaitFor([&] { return c.viewWidget()->standIns().size() == 2; }, 20000));
    const ExamineRequest asked = f.requests().last();
    QVERIFY(asked.part);
    const double scale = c.viewWidget()->pictureToDevice().m11();
    QVERIFY(std::abs(asked.dpi - 144 * scale) < 1e-6);
    QVERIFY(QRectF(0, 0, 200, 100).adjusted(-1, -1, 1, 1).contains(*asked.part));
    QCOMPARE(c.viewWidget()->standIns().first().place, QRectF(0, 0, 200, 100));
    QCOMPARE(c.viewWidget()->standIns().last().place, *asked.part);
    QCOMPARE(c.viewWidget()->standIns().last().image.pixel(0, 0), qRgb(0, 173, 239));
    const QPoint left = (c.viewWidget()->pictureToDevice().map(QPointF(20, 50))).toPoint();
    QCOMPARE(c.viewWidget()->grab().toImage().pixel(left), qRgb(0, 173, 239));
    // What stands still is not separated again.
    const qsizetype requests = f.requests().size();
    c.viewWidget()->repaint();
    QTest::qWait(3 * InksInPicture::restMs);
    QCOMPARE(f.requests().size(), requests);
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 2);
    QVERIFY(QTest::qWaitFor([&] { return f.requests().size() > requests; }, 20000));
    QVERIFY(std::abs(f.requests().last().dpi - 2 * asked.dpi) < 1e-6);
  }

  void zoomingDoesNotWaitForTheInksOfTheOldView() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    auto& scroll = c.scrollArea()->scrollView();
    scroll.setFactor(scroll.factor() * 2);
    QVERIFY(f.waitsForInks());
    const int cancelled = process->cancelledCalls();
    scroll.setFactor(scroll.factor() * 2);
    QVERIFY(QTest::qWaitFor([&] { return process->cancelledCalls() > cancelled; }, 20000));
    QVERIFY(f.waitsForInks());
    process->release(PictureCall::Examine);
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
  }

  void whoZoomsOnAndBackHasTheInksSharpAgain() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    auto& scroll = c.scrollArea()->scrollView();
    const double factor = scroll.factor();
    scroll.setFactor(factor * 2);
    QVERIFY(f.waitsForInks());
    scroll.setFactor(factor * 4);
    c.viewWidget()->repaint();
    scroll.setFactor(factor * 2);
    c.viewWidget()->repaint();
    process->release(PictureCall::Examine);
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
  }

  void anotherPageIsNeverShownInTheInksOfTheOldOne() {
    InksFixture f(2);
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 2);
    QVERIFY(f.waitsForInks());
    const int cancelled = process->cancelledCalls();
    c.findChild<PagesCommand*>()->show(1);
    QVERIFY(c.viewWidget()->standIns().isEmpty());
    QVERIFY(QTest::qWaitFor([&] { return process->cancelledCalls() > cancelled; }, 20000));
    process->release(PictureCall::Examine);
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
    QCOMPARE(f.requests().last().page, 1);
  }

  void noPartIsSeparatedBeforeTheWholePage() {
    InksFixture f(2);
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const auto process = f.service.lastProcess();
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 2);
    c.viewWidget()->repaint();  // and it is waited for a rest
    process->hold(PictureCall::Examine);
    const int before = process->calls(PictureCall::Examine);
    c.findChild<PagesCommand*>()->show(1);
    QVERIFY(f.waitsForInks());
    QTest::qWait(3 * InksInPicture::restMs);
    QCOMPARE(process->calls(PictureCall::Examine), before + 1);
    process->release(PictureCall::Examine);
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
  }

  void theInksOfTheWholePageAreThereBeforeThoseOfItsPart() {
    QSemaphore goesOn;  // outlives the threads that wait for it
    InksFixture f(2);
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    MemoryPicture picture = f.picture;
    picture.examine = [&](const ExamineRequest& request) {
      if (request.part) goesOn.acquire();
      return encodePageInks(twoPixels());
    };
    f.service.setPicture(picture);
    const auto end = qScopeGuard([&] { goesOn.release(1000); });
    f.revert();
    QTRY_COMPARE(c.viewWidget()->standIns().size(), 1);
    QCOMPARE(c.viewWidget()->standIns().first().place, QRectF(0, 0, 200, 100));
  }

  void aWindowIsClosedWhileThePartIsSeparated() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 2);
    QVERIFY(f.waitsForInks());
    const int cancelled = process->cancelledCalls();
    c.window()->close();
    QVERIFY(QTest::qWaitFor([&] { return process->cancelledCalls() > cancelled; }, 20000));
  }

  void withoutTheInksThePictureIsAsBefore() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    c.window()->show();
    f.look();
    QVERIFY(f.listsInks());
    const auto drawn = [&c] { return c.viewWidget()->grab().toImage(); };
    QTest::qWait(200);
    const QImage before = drawn();
    f.switchOn("Show the inks in the picture");
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
    QVERIFY(drawn() != before);
    f.switchOn("Show the inks in the picture", false);
    QVERIFY(c.viewWidget()->standIns().isEmpty());
    QCOMPARE(drawn(), before);
  }

  void theInksStandWhereTheTurnedAndScrolledPictureIs() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    auto* widget = c.viewWidget();
    widget->view().setRotate(M_PI / 2, false);
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 3);
    QVERIFY(QTest::qWaitFor([&] { return f.standsSharp(); }, 20000));
    // Of the whole page's plates the left half is cyan, the right one gold.
    widget->setStandIns({widget->standIns().first()});
    const QImage drawn = widget->grab().toImage();
    for (const QPointF point : {QPointF(20, 50), QPointF(40, 20), QPointF(160, 50), QPointF(180, 80)}) {
      const QPoint at = widget->pictureToDevice().map(point).toPoint();
      if (drawn.rect().contains(at))
        QCOMPARE(drawn.pixelColor(at), point.x() < 100 ? QColor(0, 173, 239) : QColor(255, 242, 0));
    }
  }

  void aSwitchIsSeenInThePictureAndAsksTheEngineNothing() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const qsizetype requests = f.requests().size();
    f.list().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QVERIFY(QTest::qWaitFor(
        [&] { return c.viewWidget()->standIns().last().image.pixel(0, 0) == qRgb(255, 255, 255); }, 20000));
    QCOMPARE(c.viewWidget()->standIns().first().image.pixel(0, 0), qRgb(255, 255, 255));
    QCOMPARE(f.requests().size(), requests);
  }

  void thePictureComesBackWithThePageOfTheInspector() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    c.inspectorTabs->setCurrentIndex(0);
    QVERIFY(c.viewWidget()->standIns().isEmpty());
    f.look();
    QVERIFY(QTest::qWaitFor([&] { return !c.viewWidget()->standIns().isEmpty(); }, 20000));
  }

  void thePointerOverThePictureReadsTheInks() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    moveOver(c, {20, 50});
    QCOMPARE(f.list().topLevelItem(0)->text(2), "100 %");
    moveOver(c, {180, 50});
    QCOMPARE(f.list().topLevelItem(0)->text(2), "0 %");
    QCOMPARE(f.list().topLevelItem(4)->text(2), "100 %");
    moveOver(c, {-10, 50});
    QCOMPARE(f.list().topLevelItem(4)->text(2), "");
  }

  void thePointerReadsTheSharperPlates() {
    InksFixture f;
    f.picture.examine = [](const ExamineRequest& request) {
      PageInks page = twoPixels();
      if (request.part) page.plates[0] = '\x80';  // seen from near it is half as much cyan
      return encodePageInks(page);
    };
    f.service.setPicture(f.picture);
    MainWindowController& c = f.openPdf();
    c.window()->show();
    f.look();
    QVERIFY(f.listsInks());
    f.switchOn("Show the inks in the picture");
    QTRY_COMPARE(c.viewWidget()->standIns().size(), 2);
    moveOver(c, {20, 50});
    QCOMPARE(f.list().topLevelItem(0)->text(2), "50 %");
  }

  void paintingOnDoesNotKeepTheInksFromGettingSharp() {
    InksFixture f;
    MainWindowController& c = f.openPdf();
    f.showInPicture();
    const qsizetype requests = f.requests().size();
    c.scrollArea()->scrollView().setFactor(c.scrollArea()->scrollView().factor() * 2);
    QVERIFY(QTest::qWaitFor(
        [&] {
          c.viewWidget()->repaint();
          return f.requests().size() > requests;
        },
        20000));
  }
};

NORVEX_TEST(InksInPictureTest)
#include "inks_in_picture_test.moc"
