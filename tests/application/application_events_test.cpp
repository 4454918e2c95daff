#include "application/application_events.h"

#include <QPushButton>
#include <QSignalSpy>

#include <new>

#include "application/application.h"
#include "document/document.h"
#include "document/unimplemented_method.h"
#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"

using namespace norvex;

class ApplicationEventsTest : public QObject {
  Q_OBJECT
 private slots:
  void anUnimplementedMethodEndsItsEventAndIsTold() {
    ApplicationEvents events;
    QSignalSpy failed(&events, &ApplicationEvents::operationFailed);
    NullPictureService service;
    const Document document(service, nullptr);
    QVERIFY(events.guard([&] { return document.readFromData(QByteArray("x"), "public.png"); }));
    QVERIFY(failed.isEmpty());  // not in the middle of the event's handling
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().toString(), QString("readFromData:ofType:error: is unimplemented"));
  }

  void whatCanBeDoneIsToldInPlaceOfWhatIsNotDone() {
    ApplicationEvents events;
    QSignalSpy failed(&events, &ApplicationEvents::operationFailed);
    events.guard(
        []() -> bool { throw UnimplementedMethod("dataOfType:error:", "Please retry with other format."); });
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().toString(), QString("Please retry with other format"));
  }

  void anExceptionPassesThroughSignalsAndSlots() {
    ApplicationEvents events;
    QSignalSpy failed(&events, &ApplicationEvents::operationFailed);
    NullPictureService service;
    const Document document(service, nullptr);
    QPushButton button;
    connect(&button, &QPushButton::clicked, &button,
            [&] { document.readFromData(QByteArray("x"), "public.gif"); });
    bool wentOn = false;
    events.guard([&] {
      button.click();
      wentOn = true;
      return true;
    });
    QVERIFY(!wentOn);
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(events.guard([] { return true; }));
  }

  void runningOutOfMemoryIsSurvivedToo() {
    ApplicationEvents events;
    QSignalSpy failed(&events, &ApplicationEvents::operationFailed);
    events.guard([]() -> bool { throw std::bad_alloc(); });
    QTRY_COMPARE(failed.size(), 1);
  }

  void whatTheEventAnswersIsHandedOn() {
    ApplicationEvents events;
    QVERIFY(!events.guard([] { return false; }));
  }

  void losingTheActiveStateIsToldOnce() {
    ApplicationEvents events;
    QSignalSpy resigned(&events, &ApplicationEvents::didResignActive);
    events.setState(Qt::ApplicationActive);
    events.setState(Qt::ApplicationInactive);
    QTRY_COMPARE(resigned.size(), 1);
    events.setState(Qt::ApplicationHidden);
    QTest::qWait(2 * ApplicationEvents::handOverMilliseconds);
    QCOMPARE(resigned.size(), 1);
    events.setState(Qt::ApplicationActive);
    events.setState(Qt::ApplicationInactive);
    QTRY_COMPARE(resigned.size(), 2);
  }

  void aStateThatWasNeverActiveCannotBeLost() {
    ApplicationEvents events;
    QSignalSpy resigned(&events, &ApplicationEvents::didResignActive);
    events.setState(Qt::ApplicationInactive);
    QTest::qWait(2 * ApplicationEvents::handOverMilliseconds);
    QVERIFY(resigned.isEmpty());
  }

  void focusOnItsWayBetweenTwoWindowsIsNoLoss() {
    ApplicationEvents events;
    QSignalSpy resigned(&events, &ApplicationEvents::didResignActive);
    events.setState(Qt::ApplicationActive);
    events.setState(Qt::ApplicationInactive);
    events.setState(Qt::ApplicationActive);
    QTest::qWait(2 * ApplicationEvents::handOverMilliseconds);
    QVERIFY(resigned.isEmpty());
  }

  void fileArgumentsArePathsOrAddresses() {
    const QList<QUrl> urls =
        fileURLs({"norvex", "/tmp/a%20b.eps", "file:///tmp/c%20d.eps", "e.svg", "--", "--odd.pdf", "--"});
    QCOMPARE(urls.size(), 5);
    QCOMPARE(urls[0].toLocalFile(), QString("/tmp/a%20b.eps"));
    QCOMPARE(urls[1].toLocalFile(), QString("/tmp/c d.eps"));
    QCOMPARE(urls[2].toLocalFile(), QDir::currentPath() + "/e.svg");
    QCOMPARE(urls[3].toLocalFile(), QDir::currentPath() + "/--odd.pdf");
    QCOMPARE(urls[4].toLocalFile(), QDir::currentPath() + "/--");
  }
};

NORVEX_TEST(ApplicationEventsTest)
#include "application_events_test.moc"
