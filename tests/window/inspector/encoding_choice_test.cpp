// The encoding in which the source of an EPS file is read: guessed, chosen, remembered.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QWheelEvent>

#include "base/background_threads.h"
#include "base/background_work.h"
#include "kit/test_main.h"
#include "metadata/text_encoding.h"
#include "ui/controls/zy_form.h"
#include "ui/source/source_text_view.h"
#include "window/inspector/chosen_encodings.h"
#include "window/inspector/usual_encodings.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// Decodes in none of the encodings that are tried; as Mac Roman the title is "Résumé".
const QByteArray kInNoEncoding = epsBytes()
                                     .replace("A picture", "R\x8Esum\x8E")
                                     .replace("By hand", "")
                                     .replace("%%EOF", "% \xFF\x80\xFD\xA0\xFF\n%%EOF");

class EncodingFixture : public WindowFixture {
 public:
  MainWindowController& show(const QByteArray& bytes, const QString& name = QStringLiteral("a.eps")) {
    MainWindowController& made = loaded(bytes, name, NorvexEPSType);
    page = made.inspectorWindow->findChild<QWidget*>(QStringLiteral("pictureFacts"));
    popUp = made.inspectorWindow->findChild<QComboBox*>(QStringLiteral("encodingPopUp"));
    note = made.inspectorWindow->findChild<QLabel*>(QStringLiteral("encodingNote"));
    guess = made.inspectorWindow->findChild<ZyForm*>(QStringLiteral("guessForm"));
    return made;
  }
  void choose(const QString& name) const {
    popUp->setCurrentText(name);
    emit popUp->activated(popUp->currentIndex());
    if (!reads) return;
    waitForWork(waitingThreads());
    QCoreApplication::processEvents();
  }
  [[nodiscard]] bool isShown(const QWidget* widget) const { return widget->isVisibleTo(page); }

  QWidget* page = nullptr;
  bool reads = true;  ///< what is chosen is read before the test goes on
  QComboBox* popUp = nullptr;
  QLabel* note = nullptr;
  ZyForm* guess = nullptr;
};

QString title(const MainWindowController& c) {
  return c.titleForm()->cellAtIndex(0)->text();
}

}  // namespace

class EncodingChoiceTest : public QObject {
  Q_OBJECT
 private slots:
  void aGuessStandsApartAndIsMarkedAsOne() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    QCOMPARE(title(c), QString());
    QCOMPARE(c.sourceTextView->string(), QString());
    QVERIFY(f.isShown(f.guess) && f.isShown(f.note));
    QCOMPARE(f.note->text(),
             QStringLiteral("A guess, as nothing says how the source is encoded. Read as macintosh:"));
    QCOMPARE(f.guess->cellAtIndex(0)->text(), QStringLiteral("Résumé"));
    QCOMPARE(f.guess->titles(),
             QStringList({"Title:", "Creator:", "Created:", "For:", "Copyright:", "Description:"}));
    QVERIFY(f.isShown(f.guess->cellAtIndex(0)));
    QVERIFY(!f.isShown(f.guess->cellAtIndex(1)));  // no creator
  }

  void aSourceThatDecodesNeedsNoGuess() {
    EncodingFixture f;
    f.show(epsBytes());
    QVERIFY(!f.isShown(f.guess) && !f.isShown(f.note));
    QVERIFY(f.isShown(f.popUp));
    QCOMPARE(f.popUp->currentText(), QStringLiteral("Automatic"));
  }

  void everyEncodingCanBeChosen() {
    EncodingFixture f;
    f.show(epsBytes());
    for (const QString& name : encodingNames()) QVERIFY2(f.popUp->findData(name) > 0, qPrintable(name));
    for (const char* usual : usualEncodings) QVERIFY2(encodingNames().contains(QLatin1String(usual)), usual);
    QVERIFY(encodingNames().size() > 150);
  }

  void aChoiceReadsHeaderAndTextAgain() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    f.choose("macintosh");
    QCOMPARE(title(c), QStringLiteral("Résumé"));
    QCOMPARE(c.encodingForm()->cellAtIndex(0)->text(), QStringLiteral("macintosh"));
    QVERIFY(c.sourceTextView->string().contains(QStringLiteral("%%Title: Résumé\n")));
    QVERIFY(!f.isShown(f.guess) && !f.isShown(f.note));
    f.choose("ISO-8859-1");
    QCOMPARE(title(c), QString::fromLatin1("R\x8Esum\x8E"));
  }

  void theLastOfSeveralChoicesHolds() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    f.choose("macintosh");
    f.reads = false;
    f.choose("Shift_JIS");
    f.choose("ISO-8859-1");
    f.reads = true;
    f.choose("macintosh");  // as it was: nothing is to be read
    QCOMPARE(title(c), QStringLiteral("Résumé"));
    QCOMPARE(f.popUp->currentText(), QStringLiteral("macintosh"));
    QVERIFY(!f.isShown(f.note));
  }

  void whatWasChosenForAnotherPictureIsNotShown() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    f.reads = false;
    f.choose("macintosh");
    f.write(epsBytes(), "a.eps");
    f.revert();
    waitForWork(waitingThreads());
    QCoreApplication::processEvents();
    QCOMPARE(title(c), QStringLiteral("A picture"));
    QCOMPARE(f.popUp->currentText(), QStringLiteral("Automatic"));
    QCOMPARE(chosenEncoding(f.document.fileURL().toLocalFile()), QString());
  }

  void whatIsNotValidInAnEncodingStaysAsItWas() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    f.choose("macintosh");
    f.choose("Shift_JIS");
    QCOMPARE(f.note->text(), QStringLiteral("The source is not valid in Shift_JIS."));
    QVERIFY(f.isShown(f.note));
    QCOMPARE(f.popUp->currentText(), QStringLiteral("macintosh"));
    QCOMPARE(title(c), QStringLiteral("Résumé"));
    QCOMPARE(chosenEncoding(f.document.fileURL().toLocalFile()), QStringLiteral("macintosh"));
  }

  void aChoiceIsRememberedForThatFileAlone() {
    EncodingFixture f;
    f.show(kInNoEncoding);
    f.choose("macintosh");
    f.revert();
    QCOMPARE(title(f.controller()), QStringLiteral("Résumé"));
    QCOMPARE(f.popUp->currentText(), QStringLiteral("macintosh"));
    f.document.setFileURL(QUrl::fromLocalFile(f.folder.filePath("b.eps")));
    f.write(kInNoEncoding, "b.eps");
    f.revert();
    QCOMPARE(title(f.controller()), QString());
    QCOMPARE(f.popUp->currentText(), QStringLiteral("Automatic"));
  }

  void automaticForgetsTheChoice() {
    EncodingFixture f;
    const MainWindowController& c = f.show(kInNoEncoding);
    f.choose("macintosh");
    f.choose("Automatic");
    QCOMPARE(title(c), QString());
    QVERIFY(f.isShown(f.guess));
    QCOMPARE(chosenEncoding(f.document.fileURL().toLocalFile()), QString());
    f.revert();
    QCOMPARE(title(c), QString());
  }

  void aChoiceThatNoLongerFitsIsPassedOver() {
    EncodingFixture f;
    const MainWindowController& c = f.show(epsBytes());
    rememberEncoding(f.document.fileURL().toLocalFile(), "UTF-8");
    f.write(kInNoEncoding, "a.eps");
    f.revert();
    QCOMPARE(title(c), QString());
    QVERIFY(f.isShown(f.guess));
  }

  void onlyTheLatestChoicesAreKept() {
    EncodingFixture f;
    f.show(epsBytes());
    for (int i = 0; i < 201; ++i) rememberEncoding(QStringLiteral("/nowhere/%1 x.eps").arg(i), "UTF-8");
    QCOMPARE(chosenEncoding("/nowhere/0 x.eps"), QString());
    QCOMPARE(chosenEncoding("/nowhere/1 x.eps"), QStringLiteral("UTF-8"));
    QCOMPARE(chosenEncoding("/nowhere/200 x.eps"), QStringLiteral("UTF-8"));
  }

  void withoutAPictureAChoiceIsNothing() {
    EncodingFixture f;
    MainWindowController& c = f.show(kInNoEncoding);
    c.view()->setImageRep(nullptr);
    f.write("no picture", "a.eps");
    f.revert();
    f.choose("windows-1252");
    QCOMPARE(title(c), QString());
  }

  void otherPicturesHaveNoEncodingToChoose() {
    EncodingFixture f;
    f.show(epsBytes());
    f.write("%PDF-1.4", "a.eps");
    f.document.setFileType(UTTypePDF().identifier());
    f.revert();
    QVERIFY(!f.isShown(f.popUp) && !f.isShown(f.guess));
  }

  void theWheelScrollsOverTheListWithoutChoosing() {
    EncodingFixture f;
    MainWindowController& c = f.show(epsBytes());
    c.window()->show();
    c.showInspectorWindow();
    QWheelEvent wheel({5, 5}, f.popUp->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(f.popUp, &wheel);
    QCOMPARE(f.popUp->currentText(), QStringLiteral("Automatic"));
    QTest::mousePress(f.popUp, Qt::LeftButton);
    QVERIFY(f.popUp->view()->isVisible());
    f.popUp->hidePopup();
    QApplication::setActiveWindow(c.inspectorWindow);
    f.popUp->setFocus();
    QTest::keyClick(f.popUp, Qt::Key_Down);
    QVERIFY(f.popUp->currentText() != QStringLiteral("Automatic"));
  }
};

NORVEX_TEST(EncodingChoiceTest)
#include "encoding_choice_test.moc"
