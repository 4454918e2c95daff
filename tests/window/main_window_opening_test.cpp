// Opening without waiting: the window first, the picture when it comes, Cancel in between.
#include <QPushButton>
#include <QSignalSpy>

#include "kit/test_main.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_frames.h"
#include "window/window_fixture.h"

using namespace norvex;

class MainWindowOpeningTest : public QObject {
  Q_OBJECT
 private slots:
  void theWindowDoesNotWaitForThePicture() {
    WindowFixture fixture;
    std::shared_ptr<MemoryPictureProcess> process;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    QSignalSpy shown(&c, &MainWindowController::documentShown);
    c.showWindow();
    QVERIFY(c.window()->isVisible());
    QVERIFY(c.isReading() && !c.view()->imageRep());
    auto* card = c.window()->findChild<LoadingCard*>();
    QVERIFY(card && card->isUnderWay());
    QTRY_VERIFY(card->isVisible());
    fixture.service.lastProcess()->release(PictureCall::Facts);
    QTRY_COMPARE(shown.size(), 1);
    QVERIFY(c.view()->imageRep() && !c.isReading());
    QVERIFY(c.validateUserInterfaceItem());
  }

  void cancelEndsTheReadingAndTheWindowLivesOn() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(fixture.service.lastProcess());
    QVERIFY(fixture.service.lastProcess()->waitUntilHeld(PictureCall::Facts));
    auto* card = c.window()->findChild<LoadingCard*>();
    emit card->cancelled();
    QVERIFY(!c.isReading() && c.window()->isVisible());
    QCOMPARE(c.messageBar()->message(), QStringLiteral("Opening was stopped."));
    QTRY_COMPARE(fixture.service.lastProcess()->cancelledCalls(), 1);
    fixture.service.setPrepare({});
    emit c.messageBar()->actionChosen();
    QTRY_VERIFY(c.view()->imageRep());
  }

  void closingWhileReadingCancels() {
    auto fixture = std::make_unique<WindowFixture>();
    fixture->service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture->open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    QSignalSpy closed(&fixture->document, &Document::closed);
    c.showWindow();
    QTRY_VERIFY(fixture->service.lastProcess());
    const auto process = fixture->service.lastProcess();
    c.window()->close();
    QTRY_COMPARE(closed.size(), 1);
    QTRY_COMPARE(process->cancelledCalls(), 1);
  }

  void aRenderingThatFailsIsToldInTheWindowAndCanBeTriedAgain() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& made) {
      made.fail(PictureCall::Render, {ErrorKind::Died, "the picture process ended without an answer"});
    });
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("The picture process ended without an answer."));
    QVERIFY(c.validateUserInterfaceItem());
    fixture.service.lastProcess()->succeed(PictureCall::Render);
    c.messageBar()->findChild<QPushButton*>()->click();
    QTRY_VERIFY(c.view()->imageRep()->isSharp());
    QCOMPARE(c.messageBar()->message(), QString());
  }

  void cancellingARenderingStopsItUntilItIsTriedAgain() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Render); });
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_VERIFY(c.view()->imageRep());
    auto* card = c.window()->findChild<LoadingCard*>();
    QTRY_VERIFY(card->isVisible());
    emit card->cancelled();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("The drawing was stopped."));
    fixture.service.lastProcess()->release(PictureCall::Render);
    c.messageBar()->findChild<QPushButton*>()->click();
    QTRY_VERIFY(c.view()->imageRep()->isSharp());
  }

  void theFrameIsRemembered() {
    WindowFixture fixture;
    {
      MainWindowController first;
      first.window()->resize(613, 517);
      first.window()->move(101, 83);
      first.window()->show();
      first.window()->close();
    }
    MainWindowController second;
    QCOMPARE(second.window()->size(), QSize(613, 517));
    QCOMPARE(second.window()->pos(), QPoint(101, 83));
    second.window()->show();
    QCOMPARE(second.window()->pos(), QPoint(101, 83));
    // The next one does not hide it.
    MainWindowController third;
    QCOMPARE(third.window()->pos(), QPoint(125, 107));
  }

  void aFrameIsNeverOffTheScreen_data() {
    QTest::addColumn<QRect>("saved");
    QTest::addColumn<QRect>("placed");
    QTest::newRow("on the first") << QRect(10, 20, 300, 200) << QRect(10, 20, 300, 200);
    QTest::newRow("on the second") << QRect(1100, 100, 300, 200) << QRect(1100, 100, 300, 200);
    QTest::newRow("over the right edge") << QRect(1700, 650, 300, 200) << QRect(1500, 500, 300, 200);
    QTest::newRow("between both, more on the first") << QRect(800, 20, 300, 200) << QRect(700, 20, 300, 200);
    QTest::newRow("on a screen that is gone") << QRect(3000, -900, 300, 200) << QRect(1500, 0, 300, 200);
    QTest::newRow("left of everything") << QRect(-900, 300, 300, 200) << QRect(0, 300, 300, 200);
    QTest::newRow("larger than the screen") << QRect(-50, -60, 2000, 2000) << QRect(0, 0, 1000, 800);
  }
  void aFrameIsNeverOffTheScreen() {
    QFETCH(QRect, saved);
    QTEST(placedOnScreens(saved, {QRect(0, 0, 1000, 800), QRect(1000, 0, 800, 700)}), "placed");
  }
};

NORVEX_TEST(MainWindowOpeningTest)
#include "main_window_opening_test.moc"
