// What the desktop asks a running program for, as the bus calls it.
#include "application/desktop_service.h"

#include <QSettings>
#include <QSignalSpy>

#include "kit/test_main.h"

using namespace norvex;

class DesktopServiceTest : public QObject {
  Q_OBJECT

  DesktopService service_;

 private slots:
  void init() { qunsetenv("XDG_ACTIVATION_TOKEN"); }

  void filesAreOpenedAndNoneIsAsGoodAsAClickOnTheProgram() {
    const QSignalSpy activated(&service_, &DesktopService::activated);
    const QSignalSpy opened(&service_, &DesktopService::filesOpened);
    service_.Activate({});
    QCOMPARE(activated.size(), 1);
    service_.Open({}, {});
    QCOMPARE(activated.size(), 2);
    QCOMPARE(opened.size(), 0);
    service_.Open({"file:///a%20b.eps", "https://example.org/c.pdf"}, {});
    QCOMPARE(activated.size(), 2);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened[0][0].value<QList<QUrl>>(),
             (QList<QUrl>{QUrl::fromLocalFile("/a b.eps"), QUrl("https://example.org/c.pdf")}));
  }

  void everyActionOfTheDesktopFileIsKnown() {
    QSettings file(NORVEX_SOURCE_DIR "/packaging/com.norvex.Norvex.desktop", QSettings::IniFormat);
    const QStringList actions = file.value("Desktop Entry/Actions").toString().split(';', Qt::SkipEmptyParts);
    QCOMPARE(actions, QStringList{"new-window"});
    const QSignalSpy requested(&service_, &DesktopService::startPanelRequested);
    service_.ActivateAction(actions.first(), {}, {});
    QCOMPARE(requested.size(), 1);
    service_.ActivateAction("another", {}, {});
    QCOMPARE(requested.size(), 1);
  }

  void theLeaveToTakeTheFocusIsHandedToTheWindowSystem() {
    service_.Activate({});
    QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    service_.Activate({{"activation-token", "one"}});
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "one");
    service_.Open({"file:///a.eps"}, {{"activation-token", "two"}});
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "two");
    service_.ActivateAction("new-window", {}, {{"activation-token", "three"}});
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "three");
  }
};

NORVEX_TEST(DesktopServiceTest)
#include "desktop_service_test.moc"
