#include "ui/panels/window_keys.h"

#include <QAction>
#include <QDialog>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressDialog>

#include "kit/test_main.h"

using namespace norvex;

class WindowKeysTest : public QObject {
  Q_OBJECT

  int quits_ = 0;
  WindowKeys key_{[this] { ++quits_; }};

  int afterPressing(QWidget& widget, Qt::Key key) {
    quits_ = 0;
    QTest::keyClick(&widget, key, Qt::ControlModifier);
    QCoreApplication::processEvents();
    return quits_;
  }
  static void show(QWidget& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
  }

 private slots:
  void aPanelWithoutAMenuIsLeft() {
    QWidget panel;
    QLineEdit search(&panel);
    show(panel);
    QCOMPARE(afterPressing(search, Qt::Key_Q), 1);
    QCOMPARE(afterPressing(search, Qt::Key_W), 0);
  }

  void aSheetInFrontOfAWindowIsLeft() {
    QMainWindow window;
    show(window);
    QDialog sheet(&window);
    QLineEdit name(&sheet);
    sheet.setModal(true);
    show(sheet);
    QCOMPARE(afterPressing(name, Qt::Key_Q), 1);
  }

  void aFieldThatRecordsKeysTakesThem() {
    QDialog panel;
    QKeySequenceEdit field(&panel);
    show(panel);
    QCOMPARE(afterPressing(field, Qt::Key_Q), 0);
    QCOMPARE(field.keySequence(), QKeySequence(Qt::CTRL | Qt::Key_Q));
  }

  void whatIsUnderWayIsNotBrokenOff() {
    QProgressDialog progress("Writing", "Cancel", 0, 10);
    progress.setModal(true);
    show(progress);
    QCOMPARE(afterPressing(progress, Qt::Key_Q), 0);
  }

  void theKeysAreThoseThatTheUserGaveToTheCommand() {
    QMainWindow window;
    QAction quit(&window);
    quit.setObjectName("quitAction");
    quit.setShortcut(Qt::CTRL | Qt::Key_B);
    QWidget panel;
    QLineEdit search(&panel);
    show(panel);
    QCOMPARE(afterPressing(search, Qt::Key_B), 1);
    QCOMPARE(afterPressing(search, Qt::Key_Q), 0);
  }

  void aWindowWithoutAMenuIsClosedAndASheetThatAsksIsNot() {
    QWidget panel;
    QLineEdit search(&panel);
    show(panel);
    QCOMPARE(afterPressing(search, Qt::Key_W), 0);
    QVERIFY(!panel.isVisible());
    QMainWindow window;
    QAction close(&window);
    close.setObjectName("closeAction");
    close.setShortcut(Qt::CTRL | Qt::Key_B);
    show(panel);
    afterPressing(search, Qt::Key_W);
    QVERIFY(panel.isVisible());
    QDialog sheet(&panel);
    QLineEdit name(&sheet);
    sheet.setModal(true);
    show(sheet);
    afterPressing(name, Qt::Key_B);
    QVERIFY(sheet.isVisible() && panel.isVisible());
    sheet.hide();
    afterPressing(search, Qt::Key_B);
    QVERIFY(!panel.isVisible());
  }
};

NORVEX_TEST(WindowKeysTest)
#include "window_keys_test.moc"
