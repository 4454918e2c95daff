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
};

NORVEX_TEST(AlertBoxTest)
#include "alert_box_test.moc"
