// Opening without waiting: the window first, the picture when it comes, Cancel in between.
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>

#include "kit/test_main.h"
#include "protocol/program_stop.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QString kStillWorking = QStringLiteral("Still working: wait, or stop and show what there is.");

/// Alarms that ring when the test says so.
class Alarms {
 public:
  [[nodiscard]] Alarm alarm() {
    return [this](int milliseconds, QObject*, std::function<void()> ring) {
      set_ << milliseconds;
      rings_ << std::move(ring);
    };
  }
  /// Every time that was set since the last ring.
  [[nodiscard]] QList<int> set() const { return set_; }
  /// All that were set ring.
  void ring() {
    set_.clear();
    for (const auto& each : std::exchange(rings_, {})) each();
  }

 private:
  QList<int> set_;
  QList<std::function<void()>> rings_;
};

/// The bar's button of that title; null: there is none to be seen.
QPushButton* button(const MainWindowController& c, const QString& title) {
  for (auto* each : c.messageBar()->findChildren<QPushButton*>())
    if (each->text() == title && !each->isHidden()) return each;
  return nullptr;
}

}  // namespace

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
    QStringList factors;
    for (const QComboBox* each : c.scrollArea()->findChildren<QComboBox*>()) factors << each->currentText();
    QCOMPARE(factors, QStringList{"100%"});
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

  void aChangeWhileTheFileIsReadIsShownWhenThatIsDone() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(c.view()->imageRep() && !c.isReading());
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    const auto first = fixture.service.lastProcess();
    c.fileDidChangeOnDisk();
    QTRY_VERIFY(fixture.service.lastProcess() != first);
    const auto second = fixture.service.lastProcess();
    QVERIFY(second->waitUntilHeld(PictureCall::Facts));
    c.fileDidChangeOnDisk();  // once more, of which the reading that goes on knows nothing
    fixture.service.setPrepare({});
    second->release(PictureCall::Facts);
    QTRY_VERIFY(fixture.service.lastProcess() != second);
    QTRY_VERIFY(!c.isReading());
    QCOMPARE(c.view()->imageRep()->process()->facts().ok(), true);
    QCOMPARE(c.messageBar()->message(), QString());
  }

  void aReadingForWhichThereIsNoMemoryIsTold() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess&) { throw std::bad_alloc(); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("There is not enough memory for the picture."));
    QVERIFY(!c.isReading() && !c.view()->imageRep());
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

  void aProcessThatDiesAtOpeningIsToldAndCanBeTriedAgain() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& made) {
      made.fail(PictureCall::Facts, {ErrorKind::Died, "the picture process ended without an answer"});
    });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("The picture process ended without an answer."));
    QVERIFY(!c.view()->imageRep());
    QPushButton* again = button(c, "Try Again");
    QVERIFY(again);
    fixture.service.setPrepare({});
    again->click();
    QTRY_VERIFY(c.view()->imageRep());
    QCOMPARE(c.messageBar()->message(), QString());
  }

  void whatTheDocumentIsCannotBeTriedAgain() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& made) {
      made.fail(PictureCall::Facts, {ErrorKind::Unsupported, "it is no picture"});
    });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("It is no picture."));
    QVERIFY(!button(c, "Try Again"));
  }

  void aLongOpeningAsksWhetherToGoOn() {
    WindowFixture fixture;
    Alarms alarms;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.setAlarm(alarms.alarm());
    c.showWindow();
    QTRY_VERIFY(fixture.service.lastProcess());
    QCOMPARE(alarms.set(), QList<int>{20'000});
    QCOMPARE(c.messageBar()->message(), QString());
    alarms.ring();
    QCOMPARE(c.messageBar()->message(), kStillWorking);
    QVERIFY(c.isReading());
    button(c, "Wait")->click();
    QCOMPARE(c.messageBar()->message(), QString());
    QVERIFY(c.isReading());
    alarms.ring();  // as long again
    QCOMPARE(c.messageBar()->message(), kStillWorking);
    button(c, "Stop")->click();
    QVERIFY(!c.isReading());
    QCOMPARE(c.messageBar()->message(), QStringLiteral("Opening was stopped."));
    QTRY_COMPARE(fixture.service.lastProcess()->cancelledCalls(), 1);
  }

  void theQuestionGoesWhenThePictureComes() {
    WindowFixture fixture;
    Alarms alarms;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.setAlarm(alarms.alarm());
    c.showWindow();
    QTRY_VERIFY(fixture.service.lastProcess());
    alarms.ring();
    QCOMPARE(c.messageBar()->message(), kStillWorking);
    fixture.service.lastProcess()->release(PictureCall::Facts);
    QTRY_VERIFY(c.view()->imageRep() && c.view()->imageRep()->isSharp());
    QTRY_COMPARE(c.messageBar()->message(), QString());
    alarms.ring();  // of waits that are over
    QCOMPARE(c.messageBar()->message(), QString());
  }

  void aLongDrawingAsksAndStopsWithWhatThereIs() {
    WindowFixture fixture;
    Alarms alarms;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Render); });
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.setAlarm(alarms.alarm());
    c.showWindow();
    QTRY_VERIFY(c.view()->imageRep() && c.view()->imageRep()->isRendering());
    QTRY_VERIFY(!alarms.set().isEmpty());
    QTRY_VERIFY(c.messageBar()->message().isEmpty());
    QVERIFY(fixture.service.lastProcess()->waitUntilHeld(PictureCall::Render));
    QTRY_VERIFY((alarms.ring(), c.messageBar()->message() == kStillWorking));
    button(c, "Stop")->click();
    QCOMPARE(c.messageBar()->message(), QStringLiteral("The drawing was stopped."));
    QVERIFY(c.view()->imageRep());
    QVERIFY(button(c, "Try Again"));
  }

  void aProgramThatIsStoppedShowsWhatItHadDrawn() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.paint = [](const RenderRequest& request) {
      QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
      image.fill(request.page == begunPage ? Qt::red : Qt::blue);
      return image;
    };
    fixture.service.setPicture(picture);
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Render); });
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_VERIFY(c.view()->imageRep() && c.view()->imageRep()->isRendering());
    QVERIFY(fixture.service.lastProcess()->waitUntilHeld(PictureCall::Render));
    emit c.window()->findChild<LoadingCard*>()->cancelled();
    fixture.service.lastProcess()->release(PictureCall::Render);
    QTRY_COMPARE(c.messageBar()->message(),
                 QStringLiteral("The drawing was stopped. What is shown is what it had drawn until then."));
    QVERIFY(c.view()->imageRep()->isSharp());
    QCOMPARE(fixture.service.lastProcess()->renderRequests().last().page, begunPage);
    QVERIFY(button(c, "Try Again"));
  }

  void aProgramThatIsTriedAgainAndStoppedAgainSaysSoAgain() {
    const QString begun =
        QStringLiteral("The drawing was stopped. What is shown is what it had drawn until then.");
    WindowFixture fixture;
    MemoryPicture picture;
    picture.paint = [](const RenderRequest& request) {
      return QImage(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
    };
    fixture.service.setPicture(picture);
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Render); });
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_VERIFY(c.view()->imageRep() && c.view()->imageRep()->isRendering());
    const auto process = fixture.service.lastProcess();
    QVERIFY(process->waitUntilHeld(PictureCall::Render));
    auto* card = c.window()->findChild<LoadingCard*>();
    emit card->cancelled();
    process->release(PictureCall::Render);
    QTRY_COMPARE(c.messageBar()->message(), begun);
    process->fail(PictureCall::Render, {ErrorKind::Died, "the picture process ended without an answer"});
    c.zoomingScrollView()->zoomTo(2.0);  // what had begun is not there at every size
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("The drawing was stopped."));
    process->succeed(PictureCall::Render);
    process->hold(PictureCall::Render);
    button(c, "Try Again")->click();
    QVERIFY(process->waitUntilHeld(PictureCall::Render));
    emit card->cancelled();
    process->release(PictureCall::Render);
    QTRY_COMPARE(c.messageBar()->message(), begun);
  }

  void theQuestionWaitsUntilAnotherMessageWasRead() {
    WindowFixture fixture;
    Alarms alarms;
    fixture.service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.setAlarm(alarms.alarm());
    c.showWindow();
    QTRY_VERIFY(fixture.service.lastProcess());
    c.messageBar()->showMessage(MessageBar::Kind::Information, QStringLiteral("Something else."));
    alarms.ring();
    QCOMPARE(c.messageBar()->message(), QStringLiteral("Something else."));
    c.messageBar()->clearMessage();
    alarms.ring();
    QCOMPARE(c.messageBar()->message(), kStillWorking);
  }

  void aPictureThatStoppedInTheMiddleIsShownWithABanner() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.facts.stoppedBy = "PostScript error: undefined in x";
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_COMPARE(c.messageBar()->message(), QStringLiteral("The PostScript program stops with an error. "
                                                           "What is shown is what it had drawn until then."));
    QCOMPARE(c.messageBar()->details(), QStringLiteral("undefined in x"));
    QVERIFY(c.view()->imageRep() && c.view()->imageRep()->isSharp());
    // Read once, it does not come again with every drawing.
    c.messageBar()->clearMessage();
    c.zoomingScrollView()->zoomTo(2.0);
    QTRY_VERIFY(c.view()->imageRep()->isSharp());
    QTest::qWait(50);
    QCOMPARE(c.messageBar()->message(), QString());
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
};

NORVEX_TEST(MainWindowOpeningTest)
#include "main_window_opening_test.moc"
