// The bars over a picture: what is told, what is asked, what is answered.
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/password_bar.h"

using namespace norvex;

namespace {

QPushButton* buttonOf(const QWidget& bar, const QString& title) {
  for (QPushButton* button : bar.findChildren<QPushButton*>())
    if (button->text() == title && !button->isHidden()) return button;
  return nullptr;
}

QColor ground(QWidget& bar) {
  return bar.grab().toImage().pixelColor(bar.width() / 2, 4);
}

}  // namespace

class BarsTest : public QObject {
  Q_OBJECT
 private slots:
  void aMessageHasTheButtonsThatItNamesAndNoOthers() {
    MessageBar bar;
    QVERIFY(bar.isHidden());
    bar.showMessage(MessageBar::Kind::Warning, "It is damaged.", "Repair", {}, "Ignore");
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.message(), QStringLiteral("It is damaged."));
    QCOMPARE(bar.accessibleName(), QStringLiteral("It is damaged."));
    QVERIFY(buttonOf(bar, "Repair") && buttonOf(bar, "Ignore"));
    QVERIFY(bar.findChild<QToolButton*>("detailsButton")->isHidden());
    bar.showMessage(MessageBar::Kind::Information, "It changed.");
    QVERIFY(!buttonOf(bar, {}) && !buttonOf(bar, "Repair") && !buttonOf(bar, "Ignore"));
  }

  void eachAnswerIsToldAndTheBarGoes() {
    MessageBar bar;
    QSignalSpy chosen(&bar, &MessageBar::actionChosen), other(&bar, &MessageBar::otherChosen);
    bar.showMessage(MessageBar::Kind::Warning, "It is damaged.", "Repair", {}, "Ignore");
    buttonOf(bar, "Repair")->click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(other.size(), 0);
    QVERIFY(bar.isHidden() && bar.message().isEmpty());
    bar.showMessage(MessageBar::Kind::Warning, "It is damaged.", "Repair", {}, "Ignore");
    buttonOf(bar, "Ignore")->click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(other.size(), 1);
    QVERIFY(bar.isHidden());
  }

  void detailsAreShownWhenTheyAreAskedForAndForgottenWithTheNextMessage() {
    MessageBar bar;
    bar.showMessage(MessageBar::Kind::Warning, "It is damaged.", {}, "xref: 12");
    auto* ask = bar.findChild<QToolButton*>("detailsButton");
    QVERIFY(!ask->isHidden());
    QCOMPARE(bar.details(), QStringLiteral("xref: 12"));
    const auto* details = bar.findChildren<QLabel*>().at(1);
    QVERIFY(details->isHidden());
    ask->click();
    QVERIFY(!details->isHidden());
    QCOMPARE(details->text(), QStringLiteral("xref: 12"));
    bar.showMessage(MessageBar::Kind::Warning, "Another.", {}, "trailer");
    QVERIFY(details->isHidden());
    bar.clearMessage();
    QVERIFY(bar.details().isEmpty());
  }

  void textsAreShownToTheLetter() {
    MessageBar bar;
    bar.showMessage(MessageBar::Kind::Warning, "<b>x</b>", {}, "<i>y</i>");
    const QList<QLabel*> labels = bar.findChildren<QLabel*>();
    QVERIFY(!labels.isEmpty());
    for (const QLabel* label : labels) {
      QCOMPARE(label->textFormat(), Qt::PlainText);
      QVERIFY(label->wordWrap());
    }
  }

  void aWarningHasAnotherGroundThanANews() {
    MessageBar bar;
    bar.showMessage(MessageBar::Kind::Warning, "It is damaged.");
    bar.resize(400, 60);
    const QColor warning = ground(bar);
    bar.showMessage(MessageBar::Kind::Information, "It changed.");
    const QColor news = ground(bar);
    QVERIFY2(warning.red() > warning.blue(), "a warning is warm");
    QVERIFY2(news.blue() > news.red(), "news are cool");
  }

  void aPasswordIsToldOnceAndForgotten() {
    PasswordBar bar;
    QVERIFY(bar.question().isEmpty());
    QSignalSpy given(&bar, &PasswordBar::passwordGiven);
    bar.ask(false);
    const QString first = bar.question();
    QVERIFY(!first.isEmpty());
    QVERIFY(!bar.openButton()->isEnabled());
    QTest::keyClick(bar.passwordField(), Qt::Key_Return);
    QCOMPARE(given.size(), 0);
    QTest::keyClicks(bar.passwordField(), "sesame");
    QCOMPARE(bar.passwordField()->echoMode(), QLineEdit::Password);
    QVERIFY(bar.openButton()->isEnabled());
    bar.openButton()->click();
    QCOMPARE(given.size(), 1);
    QCOMPARE(given.first().first().toString(), QStringLiteral("sesame"));
    QVERIFY(bar.isHidden() && bar.passwordField()->text().isEmpty());
    bar.ask(true);
    QVERIFY(bar.question() != first && !bar.question().isEmpty());
    QCOMPARE(bar.accessibleName(), bar.question());
  }

  void escapeTakesTheQuestionAwayWhateverTheWindowDoesWithIt() {
    PasswordBar bar;
    QSignalSpy given(&bar, &PasswordBar::passwordGiven);
    bar.ask(false);
    QTest::keyClicks(bar.passwordField(), "sesame");
    QKeyEvent other(QEvent::ShortcutOverride, Qt::Key_F5, Qt::NoModifier);
    other.ignore();
    QCoreApplication::sendEvent(&bar, &other);
    QVERIFY(!other.isAccepted());
    QKeyEvent escape(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();
    QCoreApplication::sendEvent(&bar, &escape);
    QVERIFY(escape.isAccepted());
    QTest::keyClick(&bar, Qt::Key_Escape);
    QVERIFY(bar.isHidden() && bar.passwordField()->text().isEmpty());
    QCOMPARE(given.size(), 0);
  }

  void noPasswordIsLongerThanWhatIsTried() {
    const PasswordBar bar;
    bar.passwordField()->setText(QString(limits::maximumPasswordLength + 1, u'x'));
    QCOMPARE(bar.passwordField()->text().size(), limits::maximumPasswordLength);
  }
};

NORVEX_TEST(BarsTest)
#include "bars_test.moc"
