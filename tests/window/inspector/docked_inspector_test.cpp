// The inspector as a panel of the document's window.
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QTabBar>
#include <QTabWidget>

#include "kit/test_main.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/place/window_frames.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QAction* docking(MainWindowController& c) {
  return c.window()->findChild<QAction*>("inspectorInWindowAction");
}

QDockWidget* panel(MainWindowController& c) {
  return c.window()->findChild<QDockWidget*>("inspectorDock");
}

MainWindowController& shown(WindowFixture& fixture) {
  MainWindowController& c =
      fixture.loaded(epsBytes().replace("10 20 210 120", "0 0 430 300"), "a.eps", NorvexEPSType);
  c.window()->show();
  if (!QTest::qWaitForWindowExposed(c.window())) qFatal("the window is not shown");
  return c;
}

}  // namespace

class DockedInspectorTest : public QObject {
  Q_OBJECT
 private slots:
  void itIsAWindowUntilThatIsChosenOtherwise() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    QVERIFY(!docking(c)->isChecked() && !panel(c));
    c.showInspectorWindow();
    QVERIFY(c.inspectorWindow->isWindow());
  }

  void closeIsAboutTheWindowThatHasTheFocus() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    auto* close = c.window()->findChild<QAction*>("closeAction");
    c.showInspectorWindow();
    QTRY_COMPARE(QApplication::activeWindow(), c.inspectorWindow);
    close->trigger();
    QVERIFY(!c.inspectorWindow->isVisible());
    QVERIFY(c.window()->isVisible());
    QVERIFY(!c.inspectorToolbarItem->isChecked());
    c.showInspectorWindow();
    c.window()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(c.window()));
    close->trigger();
    QVERIFY(!c.window()->isVisible());
  }

  void theCommandPutsItBesideThePictureAndBack() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    QVERIFY(panel(c)->isVisible() && c.inspectorWindow->isVisible() && !c.inspectorWindow->isWindow());
    QCOMPARE(c.inspectorWindow->window(), static_cast<QWidget*>(c.window()));
    QVERIFY(c.inspectorToolbarItem->isChecked());
    docking(c)->trigger();
    QVERIFY(!panel(c) && c.inspectorWindow->isWindow() && c.inspectorWindow->isVisible());
    c.showInspectorWindow();
    QVERIFY(!c.inspectorWindow->isVisible());
  }

  void theToggleShowsAndHidesThePanel() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.showInspectorWindow();
    QVERIFY(!panel(c)->isVisible() && !c.inspectorWindow->isVisible());
    QVERIFY(!c.inspectorToolbarItem->isChecked());
    c.showInspectorWindow();
    QVERIFY(panel(c)->isVisible() && c.inspectorWindow->isVisible() && c.inspectorToolbarItem->isChecked());
  }

  void aFullScreenIsThePicturesAlone() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    QCOMPARE(panel(c)->windowTitle(), QStringLiteral("Inspector"));
    auto* full = c.window()->findChild<QAction*>("fullScreenAction");
    full->trigger();
    QTRY_VERIFY(!panel(c)->isVisible());
    QTest::mouseClick(c.window(), Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!panel(c)->isVisible());
    full->trigger();
    QTRY_VERIFY(panel(c)->isVisible());
    c.showInspectorWindow();  // and one that was hidden stays so
    full->trigger();
    full->trigger();
    QCoreApplication::processEvents();
    QVERIFY(!panel(c)->isVisible());
  }

  void aPanelWhoseInspectorWasHiddenIsTakenOutUnseen() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.showInspectorWindow();
    docking(c)->trigger();
    QVERIFY(!panel(c) && !c.inspectorWindow->isVisible());
    WindowFixture next;
    qputenv("XDG_STATE_HOME", fixture.folder.path().toUtf8());
    saveView("views/inspectorInWindow", true);
    QVERIFY(!panel(shown(next))->isVisible());
  }

  void thePanelIsThereBeforeAnybodyHidIt() {
    WindowFixture fixture;
    saveView("views/inspectorInWindow", true);
    QVERIFY(panel(shown(fixture))->isVisible());
  }

  void theWindowGrowsByThePanelAndThePictureKeepsItsRoom() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    const int picture = c.scrollArea()->width(), window = c.window()->width();
    docking(c)->trigger();
    QTRY_COMPARE(c.scrollArea()->width(), picture);
    QVERIFY(c.window()->width() > window + 250);
    QVERIFY(c.window()->width() <= c.window()->maximumWidth());
    c.showInspectorWindow();
    QTRY_COMPARE(c.window()->width(), window);
    QCOMPARE(c.scrollArea()->width(), picture);
  }

  void thePanelIsNoPartOfThePicturesSize() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    const QSize most = c.window()->maximumSize();
    docking(c)->trigger();
    QTRY_VERIFY(c.window()->maximumWidth() > most.width() + 250);
    QCOMPARE(c.window()->maximumHeight(), most.height());
  }

  void nothingOfItIsBelowALowWindow() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.window()->resize(c.window()->width(), c.window()->minimumSizeHint().height());
    const int bottom = c.inspectorWindow->mapTo(c.window(), QPoint(0, c.inspectorWindow->height())).y();
    QVERIFY(bottom <= c.window()->height());
    docking(c)->trigger();
    QVERIFY(c.inspectorWindow->minimumHeight() >= 300);
  }

  void theNextWindowBeginsAsThisOneWas() {
    WindowFixture fixture;
    docking(shown(fixture))->trigger();
    for (const bool shows : {true, false}) {
      WindowFixture next;
      qputenv("XDG_STATE_HOME", fixture.folder.path().toUtf8());
      MainWindowController& c = shown(next);
      QVERIFY(docking(c)->isChecked());
      QCOMPARE(panel(c)->isVisible(), shows);
      if (shows) c.showInspectorWindow();
    }
  }

  void thePictureHasItsRoomBesideAPanelThatIsThereFromTheStart() {
    WindowFixture fixture;
    docking(shown(fixture))->trigger();
    WindowFixture next;
    qputenv("XDG_STATE_HOME", fixture.folder.path().toUtf8());
    MainWindowController& c = shown(next);
    QVERIFY(panel(c)->isVisible());
    const QSizeF room = c.scrollArea()->contentSize();
    QVERIFY2(room.width() >= 430, qPrintable(QString::number(room.width())));
  }

  void aPanelIsAsWideAsItWasDrawnInTheNextWindowToo() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.window()->findChild<QAction*>("windowFitsPictureAction")->setChecked(false);
    c.window()->resize(1100, 500);
    QCoreApplication::processEvents();
    const int before = panel(c)->width();
    const QPoint edge(panel(c)->x() - 2, panel(c)->y() + 100);
    QTest::mousePress(c.window(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(c.window(), edge - QPoint(60, 0));
    QTest::mouseMove(c.window(), edge - QPoint(90, 0));
    QTRY_VERIFY(panel(c)->width() > before + 50);
    QTest::mouseRelease(c.window(), Qt::LeftButton, {}, edge - QPoint(90, 0));
    QCoreApplication::processEvents();
    const int drawn = panel(c)->width();
    QVERIFY2(drawn > before + 50, qPrintable(QString("%1 after %2").arg(drawn).arg(before)));
    WindowFixture next;
    qputenv("XDG_STATE_HOME", fixture.folder.path().toUtf8());
    MainWindowController& other = shown(next);
    other.window()->resize(1100, 500);
    QTRY_COMPARE(panel(other)->width(), drawn);
  }

  void aWidthThatTheWindowGaveIsNotTakenForADrawnOne_data() {
    QTest::addColumn<int>("pressed");  // from the panel's edge
    QTest::newRow("a press beside the edge") << -60;
    QTest::newRow("a press on the edge that moved nothing") << -2;
  }
  void aWidthThatTheWindowGaveIsNotTakenForADrawnOne() {
    QFETCH(int, pressed);
    WindowFixture fixture;
    saveViewLength("views/inspectorWidth", 700);
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.window()->findChild<QAction*>("windowFitsPictureAction")->setChecked(false);
    c.window()->resize(1600, 500);
    QTRY_COMPARE(panel(c)->width(), 700);
    const QPoint at(panel(c)->x() + pressed, panel(c)->y() + 100);
    QTest::mousePress(c.window(), Qt::LeftButton, {}, at);
    if (c.window()->isSeparator(at)) {
      QTest::mouseRelease(c.window(), Qt::LeftButton, {}, at);
      QCoreApplication::processEvents();
    }
    c.window()->resize(1000, 500);
    QTRY_VERIFY(panel(c)->width() <= 500);
    QTest::mouseRelease(c.window(), Qt::LeftButton, {}, QPoint(5, 100));
    QCoreApplication::processEvents();
    QCOMPARE(savedViewLength("views/inspectorWidth"), 700);
  }

  void aPanelNeverTakesMoreThanHalfOfTheWindow() {
    WindowFixture fixture;
    saveViewLength("views/inspectorWidth", 700);
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.window()->findChild<QAction*>("windowFitsPictureAction")->setChecked(false);
    for (const int width : {1600, 1000, 700}) {
      c.window()->resize(width, 500);
      QTRY_VERIFY2(panel(c)->width() <= c.window()->width() / 2,
                   qPrintable(QString::number(panel(c)->width())));
    }
    c.window()->resize(1600, 500);  // and it comes back
    QTRY_COMPARE(panel(c)->width(), 700);
  }

  void aWidthThatNobodyCanHaveDrawnIsNone() {
    WindowFixture fixture;
    for (const int wrong : {-5, 0, 100'000}) {
      saveViewLength("views/inspectorWidth", wrong);
      QCOMPARE(savedViewLength("views/inspectorWidth"), 0);
    }
  }

  void theSourceIsFoundInThePanelToo() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    c.showInspectorWindow();
    c.window()->findChild<QAction*>("findAction")->trigger();
    QVERIFY(panel(c)->isVisible());
    QCOMPARE(c.inspectorTabs->currentWidget(), c.sourcePage);
  }

  void theKeyGoesFromThePictureToThePanelAndBack() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    QApplication::setActiveWindow(c.window());
    c.scrollArea()->setFocus();
    auto* change = c.window()->findChild<QAction*>("switchFocusAction");
    change->trigger();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(c.inspectorTabs->tabBar()));
    change->trigger();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(c.scrollArea()));
    c.showInspectorWindow();
    change->trigger();  // shows it where it is not seen
    QVERIFY(panel(c)->isVisible());
  }

  void theKeyboardComesBackToThePictureWhenThePanelGoes() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture);
    docking(c)->trigger();
    QApplication::setActiveWindow(c.window());
    c.inspectorTabs->tabBar()->setFocus();
    c.showInspectorWindow();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(c.scrollArea()));
  }
};

NORVEX_TEST(DockedInspectorTest)
#include "docked_inspector_test.moc"
