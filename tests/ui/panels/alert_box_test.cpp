// Alerts on the screen.
#include "ui/panels/alert_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QMessageBox* shownBox() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

}  // namespace

class AlertBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void whoAsksCanTakeTheQuestionBack() {
    Alert alert;
    alert.messageText = "Is it still going on?";
    alert.buttons = {"Wait", "Stop", "Leave"};
    std::function<void()> dismiss;
    alert.willShow = [&dismiss](std::function<void()> given) { dismiss = std::move(given); };
    bool wasShown = false;
    QTimer::singleShot(0, this, [&] {
      wasShown = shownBox() != nullptr;
      dismiss();
    });
    QCOMPARE(QtAlertPresenter().runModal(alert), -1);
    QVERIFY(wasShown);
    dismiss();  // too late, and nothing
  }

  void anAnswerIsNotTakenBack() {
    Alert alert;
    alert.buttons = {"Wait", "Stop", "Leave"};
    std::function<void()> dismiss;
    alert.willShow = [&dismiss](std::function<void()> given) { dismiss = std::move(given); };
    QTimer::singleShot(0, this, [&dismiss] {
      for (QAbstractButton* button : shownBox()->buttons())
        if (button->text() == "Stop") button->click();
      dismiss();
    });
    QCOMPARE(QtAlertPresenter().runModal(alert), 1);
  }

  void escapeAnswersAQuestionByWhatChangesNothing_data() {
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("one that can be cancelled") << QStringList{"Replace", "Cancel"} << 1;
    QTest::newRow("one that can be closed") << QStringList{"Try Again", "Close"} << 1;
    QTest::newRow("files that were open")
        << QStringList{"Open the Others", "Do Not Open", "Open All Again"} << 1;
    QTest::newRow("a window to close")
        << QStringList{"Close When Finished", "Stop and Close", "Keep Open"} << 2;
  }
  void escapeAnswersAQuestionByWhatChangesNothing() {
    QFETCH(QStringList, buttons);
    Alert alert;
    alert.buttons = buttons;
    QTimer::singleShot(0, this, [] { QTest::keyClick(shownBox(), Qt::Key_Escape); });
    QTimer::singleShot(20000, this, [] {
      if (QMessageBox* const left = shownBox()) left->reject();
    });
    QTEST(QtAlertPresenter().runModal(alert), "answer");
  }

  // One that takes the place of its window, for example, closes that without asking.
  void itGoesWithItsWindow() {
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    Alert alert;
    alert.buttons = {"Wait", "Stop"};
    bool wasOfTheWindow = false;
    QTimer::singleShot(0, this, [&] {
      wasOfTheWindow = shownBox() && shownBox()->parent() == window.get();
      window.reset();
    });
    QCOMPARE(QtAlertPresenter().runModal(alert), -1);
    QVERIFY(wasOfTheWindow);
  }

  void theButtonOfItsWindowIsAnAnswer() {
    Alert alert;
    alert.buttons = QStringList{"Do Not Open", "Open It Again"};
    QTimer::singleShot(0, this, [] { shownBox()->close(); });
    QTimer::singleShot(20000, this, [] {
      if (QMessageBox* const left = shownBox()) left->reject();
    });
    QCOMPARE(QtAlertPresenter().runModal(alert), 0);
  }
};

NORVEX_TEST(AlertBoxTest)
#include "alert_box_test.moc"
