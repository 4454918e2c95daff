// The inks of the picture in a window: separated once they are looked at, put together as they are chosen.
#include <QAction>
#include <QPushButton>

#include "kit/test_main.h"
#include "ui/picture/message_bar.h"
#include "window/inks/inks_fixture.h"
#include "window/viewing/live_file.h"
#include "window/viewing/pages_command.h"

using namespace norvex;

class InksCommandTest : public QObject {
  Q_OBJECT
 private slots:
  void nothingIsSeparatedBeforeItIsLookedAt() {
    InksFixture f(1, {612, 792});
    f.openPdf();
    f.controller->inspectorWindow->show();
    QTest::qWait(50);
    QVERIFY(f.requests().isEmpty());
    f.look();
    QVERIFY(f.listsInks());
    const QList<ExamineRequest> requests = f.requests();
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests[0].what, Examination::Inks);
    QCOMPARE(requests[0].page, 0);
    QCOMPARE(requests[0].dpi, 144.0);
    QVERIFY(!requests[0].overprint);
    QCOMPARE(f.image().pixel(0, 0), qRgb(0, 173, 239));
    QCOMPARE(f.image().pixel(1, 0), qRgb(255, 242, 0));
  }

  void thePageIsSeparatedAsFinelyAsItIsSmall_data() {
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<double>("dpi");
    QTest::newRow("icon") << QSizeF(16, 16) << 2400.0;
    QTest::newRow("small") << QSizeF(250, 112) << 360.0;
    QTest::newRow("letter") << QSizeF(612, 792) << 144.0;
    QTest::newRow("two million points") << QSizeF(2000, 1000) << 72.0;
    QTest::newRow("enormous") << QSizeF(200'000, 100'000) << 1.0;
  }
  void thePageIsSeparatedAsFinelyAsItIsSmall() {
    QFETCH(QSizeF, page);
    InksFixture f(1, page);
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    QTEST(f.requests().first().dpi, "dpi");
  }

  void withoutAPictureThatIsSaid() {
    InksFixture f;
    f.controller = &f.open("", "a.pdf", "com.adobe.pdf");
    f.controller->window();
    f.look();
    QCOMPARE(f.sentence(), QString("There is no picture."));
    QVERIFY(f.requests().isEmpty());
  }

  void aSwitchAsksTheEngineNothing() {
    InksFixture f;
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    f.list().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QVERIFY(QTest::qWaitFor([&] { return f.image().pixel(0, 0) == qRgb(255, 255, 255); }, 20000));
    QCOMPARE(f.image().pixel(1, 0), qRgb(255, 242, 0));
    QCOMPARE(f.requests().size(), 1);
  }

  void overprintingIsSeparatedAnew() {
    InksFixture f;
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    for (auto* box : f.page().findChildren<QCheckBox*>())
      if (box->text() == "Simulate overprinting") box->click();
    QVERIFY(QTest::qWaitFor([&] { return f.requests().size() == 2; }, 20000));
    QVERIFY(f.requests().last().overprint);
    QVERIFY(f.listsInks());
  }

  void anotherPageHasItsOwnInks() {
    InksFixture f(2);
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    f.controller->findChild<PagesCommand*>()->show(1);
    QVERIFY(QTest::qWaitFor([&] { return f.requests().size() == 2; }, 20000));
    QCOMPARE(f.requests().last().page, 1);
  }

  void whatCannotBeSeparatedIsASentence() {
    InksFixture f;
    f.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Examine, {ErrorKind::Limit, "the plates are too large"});
    });
    f.openPdf();
    f.look();
    QVERIFY(QTest::qWaitFor([&] { return f.sentence() == "The plates are too large."; }, 20000));
  }

  void stopEndsTheSeparationAndTheNextLookTriesAgain() {
    InksFixture f;
    QList<std::function<void()>> alarms;
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Examine); });
    MainWindowController& c = f.openPdf();
    c.setAlarm([&](int, QObject*, const std::function<void()>& ring) { alarms << ring; });
    f.look();
    const auto process = f.service.lastProcess();
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    QCOMPARE(alarms.size(), 1);
    alarms.first()();
    for (auto* button : c.messageBar()->findChildren<QPushButton*>())
      if (button->text() == "Stop") button->click();
    QVERIFY(QTest::qWaitFor([&] { return !c.work().isUnderWay(); }, 20000));
    QCOMPARE(process->cancelledCalls(), 1);
    QCOMPARE(c.messageBar()->message(), QString());  // the picture is drawn as before
    QVERIFY(!f.sentence().isEmpty());
    process->release(PictureCall::Examine);
    c.inspectorWindow->hide();
    c.inspectorWindow->show();
    QVERIFY(f.listsInks());
  }

  void aFileThatChangesDoesNotWaitForTheInksOfTheOldOne() {
    InksFixture f;
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Examine); });
    MainWindowController& c = f.openPdf();
    c.window()->show();
    c.window()->findChild<QAction*>("reloadByItselfAction")->setChecked(true);
    f.look();
    QVERIFY(f.service.lastProcess()->waitUntilHeld(PictureCall::Examine));
    QVERIFY(c.findChild<LiveFile*>()->reloadsByItself());
    const int number = c.work().begin(WindowWork::Kind::Copying, "Copying…", {});
    QVERIFY(!c.findChild<LiveFile*>()->reloadsByItself());
    c.work().end(number);
    c.window()->findChild<QAction*>("reloadByItselfAction")->setChecked(false);
  }

  void theSwitchOfOverprintingKeepsTheKeyboard() {
    InksFixture f;
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    QCheckBox* overprint = nullptr;
    for (auto* box : f.page().findChildren<QCheckBox*>())
      if (box->text() == "Simulate overprinting") overprint = box;
    f.controller->inspectorWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(f.controller->inspectorWindow));
    overprint->setFocus();
    const auto process = f.service.lastProcess();
    process->hold(PictureCall::Examine);
    QTest::keyClick(overprint, Qt::Key_Space);
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    QVERIFY(overprint->hasFocus() && !f.list().isEnabled());
    process->release(PictureCall::Examine);
    QVERIFY(f.listsInks());
    QVERIFY(overprint->hasFocus() && f.list().isEnabled());
  }

  void aWindowThatIsClosedDoesNotWaitForItsInks() {
    InksFixture f;
    f.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Examine); });
    f.openPdf();
    f.look();
    const auto process = f.service.lastProcess();
    QVERIFY(process->waitUntilHeld(PictureCall::Examine));
    f.controller->window()->close();
    QVERIFY(QTest::qWaitFor([&] { return process->cancelledCalls() > 0; }, 20000));
  }

  void thePointerReadsTheInks() {
    InksFixture f;
    f.openPdf();
    f.look();
    QVERIFY(f.listsInks());
    emit f.page().pointed({1, 0});
    QCOMPARE(f.list().topLevelItem(0)->text(2), "0 %");
    QCOMPARE(f.list().topLevelItem(4)->text(2), "100 %");
    emit f.page().pointed({-1, -1});
    QCOMPARE(f.list().topLevelItem(4)->text(2), "");
  }
};

NORVEX_TEST(InksCommandTest)
#include "inks_command_test.moc"
