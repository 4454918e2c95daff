// Where things stand in the start panel, on a usual screen and on a low one.
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

#include "application/recent_files.h"
#include "application/start_panel.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

constexpr char kLowScreen[] =
    R"({"screens": [{"name": "low", "x": 0, "y": 0, "width": 512, "height": 300, "logicalDpi": 96,
        "logicalBaseDpi": 96, "dpr": 1}]})";

QRect placeIn(const QWidget& panel, const QWidget& part) {
  return {part.mapTo(&panel, QPoint()), part.size()};
}

/// What is seen of the panel and read or pressed.
QList<QWidget*> partsOf(const StartPanel& panel) {
  QList<QWidget*> parts;
  for (QWidget* each : panel.findChildren<QWidget*>())
    if (each->isVisible() && (qobject_cast<QLabel*>(each) || qobject_cast<QPushButton*>(each))) parts << each;
  return parts;
}

}  // namespace

class StartPanelTest : public QObject {
  Q_OBJECT
 private slots:
  void everythingHasAPlaceOfItsOwn() {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    RecentFiles recent(settings);
    StartPanel panel(recent);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const QList<QWidget*> parts = partsOf(panel);
    QCOMPARE(parts.size(),
             7);  // icon, name, subtitle, Open, hint, heading and what stands there without files
    QVERIFY(std::any_of(parts.begin(), parts.end(), [](const QWidget* part) {
      const auto* label = qobject_cast<const QLabel*>(part);
      return label && label->text() == "Norvex";
    }));
    const QRect room = panel.screen()->availableGeometry();
    QVERIFY(panel.width() <= room.width() && panel.height() <= room.height());
    for (const QWidget* part : parts) {
      const QRect place = placeIn(panel, *part);
      QVERIFY2(panel.rect().contains(place), qPrintable(part->metaObject()->className()));
      const int needed =
          part->hasHeightForWidth() ? part->heightForWidth(part->width()) : part->minimumSizeHint().height();
      QVERIFY2(part->height() >= needed, "a text is cut off");
      for (const QWidget* other : parts)
        if (other != part) QVERIFY2(!place.intersects(placeIn(panel, *other)), "one lies over the other");
    }
  }

  /// The screen of a program is there before its tests are: another one of them has a low screen.
  void onALowScreenToo() {
    if (QGuiApplication::primaryScreen()->size() == QSize(512, 300)) QSKIP("this is the other one");
    const QTemporaryDir folder;
    QFile screen(folder.filePath("screen.json"));
    QVERIFY(screen.open(QIODevice::WriteOnly) && screen.write(kLowScreen) > 0);
    screen.close();
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName());
    other.setProcessEnvironment(environment);
    other.setProcessChannelMode(QProcess::MergedChannels);
    other.start(QCoreApplication::applicationFilePath(), {"--case", "start_panel_test"});
    QVERIFY(other.waitForFinished(60000));
    const QByteArray told = other.readAll();
    QVERIFY2(other.exitStatus() == QProcess::NormalExit && other.exitCode() == 0, told.constData());
    QVERIFY2(told.contains("this is the other one"), told.constData());
  }
};

NORVEX_TEST(StartPanelTest)
#include "start_panel_test.moc"
