#include "ui/panels/quit_key.h"

#include <QAction>
#include <QDialog>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressDialog>

#include "kit/test_main.h"

using namespace norvex;

class QuitKeyTest : public QObject {
  Q_OBJECT

  int quits_ = 0;
  QuitKey key_{[this] { ++quits_; }};

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
};

NORVEX_TEST(QuitKeyTest)
#include "quit_key_test.moc"
