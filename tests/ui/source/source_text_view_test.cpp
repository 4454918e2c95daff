// The source pane: long texts, finding, what is coloured, the keys.
#include <QAbstractButton>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

#include "kit/test_main.h"
#include "ui/source/source_find_bar.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"

using namespace norvex;

namespace {

const QString kPostScript =
    QStringLiteral("%!PS-Adobe-3.0\n%%Title: Box\n0 0 moveto\n10 0 LINETO\n0 10 lineto % up\nlineto\n");

struct Pane {
  explicit Pane(const QString& text) {
    view.setFixedPitchFont(10);
    view.setLineWrapping(false);
    view.resize(420, 300);
    view.setString(text);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view)) qFatal("the pane is not shown");
  }
  [[nodiscard]] QString selected() const { return view.textEdit()->textCursor().selectedText(); }
  [[nodiscard]] QLineEdit* needle() const { return view.findBar()->findChild<QLineEdit*>(); }
  SourceTextView view;
};

}  // namespace

class SourceTextViewTest : public QObject {
  Q_OBJECT
 private slots:
  void theTextIsKeptAsItIs() {
    Pane pane(QStringLiteral("a\r\nb\rc"));
    QCOMPARE(pane.view.string(), QStringLiteral("a\r\nb\rc"));
    QCOMPARE(pane.view.textEdit()->toPlainText(), QStringLiteral("a\nb\nc"));
    QVERIFY(pane.view.textEdit()->isReadOnly());
  }

  void nothingIsTypedIntoIt() {
    Pane pane(QStringLiteral("a\n"));
    QVERIFY2(!pane.view.textEdit()->testAttribute(Qt::WA_InputMethodEnabled),
             "a keyboard on the screen comes");
    QTest::keyClicks(pane.view.textEdit(), "x");
    QCOMPARE(pane.view.textEdit()->toPlainText(), QStringLiteral("a\n"));
  }

  void theMarginIsAsWideAsTheLastNumberAndNeverNarrowerThanThreeDigits() {
    const auto margin = [](int lines) {
      Pane pane(QString(lines - 1, u'\n'));
      return pane.view.textEdit()->viewport()->x();
    };
    QCOMPARE(margin(5), margin(999));
    QVERIFY(margin(1000) > margin(999));
    QVERIFY(margin(10000) > margin(1000));
  }

  void aLongTextIsLaidOutPieceByPiece() {
    SourceTextView view;
    view.resize(420, 300);
    view.setString((QString(400, u'x') + u'\n').repeated(2000));
    view.show();
    QVERIFY(!view.textEdit()->isComplete());
    QVERIFY(view.textEdit()->document()->blockCount() < 2000);
    QTRY_VERIFY_WITH_TIMEOUT(view.textEdit()->isComplete(), 30'000);
    QCOMPARE(view.textEdit()->document()->blockCount(), 2001);
  }

  void aLineIsShownByItsNumberInTheMargin() {
    QString text = QString(1200, u'a') + "\rsecond\r\nthird\n";
    for (int i = 4; i <= 5000; ++i) text += QStringLiteral("line %1\n").arg(i);
    Pane pane(text);
    pane.view.showLine(2);
    QCOMPARE(pane.selected(), QStringLiteral("second"));
    pane.view.showLine(4321);
    QCOMPARE(pane.selected(), QStringLiteral("line 4321"));
    QVERIFY(pane.view.textEdit()->viewport()->rect().contains(pane.view.textEdit()->cursorRect()));
    pane.view.showLine(1);
    QVERIFY(pane.selected().startsWith(QString(500, u'a')) && pane.selected().size() <= 501);
    QCOMPARE(pane.view.textEdit()->horizontalScrollBar()->value(), 0);  // where it begins
    pane.view.showLine(9999);
    QCOMPARE(pane.selected(), QString());  // behind the last end
    QVERIFY(pane.view.textEdit()->textCursor().atEnd());
  }

  void nothingIsLaidOutBeforeItIsShown() {
    SourceTextView view;
    view.setString(kPostScript);
    QCOMPARE(view.string(), kPostScript);
    QVERIFY(!view.textEdit()->isComplete());
    QVERIFY(view.textEdit()->document()->isEmpty());
  }

  void ofAVeryLongTextTheBeginningIsThereAtOnceAndTheRestFollows() {
    QString text;
    for (int i = 0; i < 60000; ++i) text += QStringLiteral("%1 0 moveto\n").arg(i);
    Pane pane(text);
    SourceTextEdit* edit = pane.view.textEdit();
    QVERIFY(edit->document()->firstBlock().text().startsWith("0 0 moveto"));
    QTRY_VERIFY(edit->isComplete());
    QCOMPARE(edit->document()->blockCount(), 60001);
    QCOMPARE(edit->verticalScrollBar()->value(), 0);
  }

  void aHitFarAwayIsReachedWhileTheTextStillFollows() {
    QString text;
    for (int i = 0; i < 60000; ++i) text += QStringLiteral("%1 0 moveto\n").arg(i);
    SourceTextView view;
    view.setLineWrapping(false);
    view.setString(text + QStringLiteral("needle\n"));
    view.findBar()->setNeedle(QStringLiteral("needle"));
    QCOMPARE(view.textEdit()->textCursor().selectedText(), QStringLiteral("needle"));
    QCOMPARE(view.textEdit()->textCursor().blockNumber(), 60000);
  }

  void aLineOfMegabytesIsShownInPiecesAndFoundAcrossThem() {
    QString line(3000000, u'x');
    line.replace(SourceBlocks::longestBlock - 2, 4, QStringLiteral("GOAL"));
    Pane pane(line);
    pane.view.findBar()->setNeedle(QStringLiteral("goal"));
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("1 of 1"));
    QVERIFY(pane.view.textEdit()->document()->firstBlock().length() <= SourceBlocks::longestBlock + 1);
    pane.view.textEdit()->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("GOAL"));
  }

  void selectAllAndCopyGiveTheWholeText() {
    const QString text = QString(500000, u'y') + QStringLiteral("\r\nend");
    Pane pane(text);
    pane.view.textEdit()->setFocus();
    QTest::keyClick(pane.view.textEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(pane.view.textEdit(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString(500000, u'y') + QStringLiteral("\nend"));
  }

  void findingCountsAndGoesRound() {
    Pane pane(kPostScript);
    QTest::keyClick(pane.view.textEdit(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(pane.view.findBar()->isVisible());
    QTest::keyClicks(pane.needle(), "lineto");
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("1 of 3"));
    QCOMPARE(pane.selected(), QStringLiteral("LINETO"));
    QTest::keyClick(pane.needle(), Qt::Key_Return);
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("2 of 3"));
    QTest::keyClick(pane.needle(), Qt::Key_Return);
    QTest::keyClick(pane.needle(), Qt::Key_F3);
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("1 of 3"));
    QTest::keyClick(pane.needle(), Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("3 of 3"));
  }

  void theButtonsGoFromHitToHitAndCloseTheBar() {
    Pane pane(kPostScript);
    pane.view.showFindBar();
    pane.view.findBar()->setNeedle(QStringLiteral("lineto"));
    const auto press = [&](const char* name) {
      for (auto* button : pane.view.findBar()->findChildren<QAbstractButton*>())
        if (button->accessibleName() == QLatin1String(name)) return button->click();
      qFatal("no button %s", name);
    };
    press("Next");
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("2 of 3"));
    press("Previous");
    press("Previous");
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("3 of 3"));
    press("Close the find bar");
    QVERIFY(!pane.view.findBar()->isVisible());
    pane.view.findBar()->showFoundNowhere();
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("Not found"));
  }

  void everyHitInSightIsMarkedAsLongAsItIs() {
    for (const bool prose : {false, true}) {
      Pane pane(QStringLiteral("lineto and LINETO\nlineto\n"));
      pane.view.setLineWrapping(prose);
      pane.view.findBar()->setNeedle(QStringLiteral("lineto"));
      pane.view.textEdit()->viewport()->repaint();
      QStringList marked;
      for (const QTextEdit::ExtraSelection& each : pane.view.textEdit()->extraSelections())
        marked << each.cursor.selectedText();
      QCOMPARE(marked, QStringList({"lineto", "LINETO", "lineto"}));
    }
  }

  void whatComesIntoSightBelowIsColouredToo() {
    Pane pane(QStringLiteral("%!PS\n") + QStringLiteral("0 % zero\n").repeated(500));
    pane.view.textEdit()->viewport()->repaint();
    const qsizetype before = pane.view.textEdit()->markedParts();
    QVERIFY(before >= 5);
    pane.view.resize(420, 900);
    QTRY_VERIFY(pane.view.textEdit()->markedParts() > 2 * before);
  }

  void whatIsNotThereIsSaidAndTheButtonsRest() {
    Pane pane(kPostScript);
    pane.view.showFindBar();
    pane.view.findBar()->setNeedle(QStringLiteral("nowhere"));
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("Not found"));
    QVERIFY(!pane.view.findNext());
    for (QAbstractButton* button : pane.view.findBar()->findChildren<QAbstractButton*>())
      if (button->accessibleName() == QLatin1String("Next")) QVERIFY(!button->isEnabled());
    pane.view.findBar()->setNeedle(QString());
    QCOMPARE(pane.view.findBar()->outcome(), QString());
  }

  void whatIsNotThereLeavesNoOlderHitSelected() {
    Pane pane(kPostScript);
    pane.view.showFindBar();
    QTest::keyClicks(pane.needle(), "moveto");
    const qsizetype place = pane.view.textEdit()->selectionStart();
    QCOMPARE(pane.selected(), QStringLiteral("moveto"));
    QTest::keyClicks(pane.needle(), "x");
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("Not found"));
    QCOMPARE(pane.selected(), QString());
    QCOMPARE(pane.view.textEdit()->selectionStart(), place);
    QTest::keyClick(pane.needle(), Qt::Key_Backspace);
    QCOMPARE(pane.selected(), QStringLiteral("moveto"));
    QCOMPARE(pane.view.textEdit()->selectionStart(), place);
  }

  void escapeClosesTheBarAndTheHitStaysSelected() {
    Pane pane(kPostScript);
    pane.view.showFindBar();
    QTest::keyClicks(pane.needle(), "moveto");
    QTest::keyClick(pane.needle(), Qt::Key_Escape);
    QVERIFY(!pane.view.findBar()->isVisible());
    QCOMPARE(pane.selected(), QStringLiteral("moveto"));
  }

  void theBarBeginsWithWhatIsSelected() {
    Pane pane(kPostScript);
    pane.view.textEdit()->selectSource(0, 4);
    pane.view.showFindBar();
    QCOMPARE(pane.needle()->text(), QStringLiteral("%!PS"));
  }

  void anotherTextClosesTheBarAndIsSearchedAnew() {
    Pane pane(kPostScript);
    pane.view.showFindBar();
    pane.view.findBar()->setNeedle(QStringLiteral("moveto"));
    pane.view.setString(QStringLiteral("moveto moveto"));
    QVERIFY(!pane.view.findBar()->isVisible());
    QVERIFY(pane.view.findNext());
    QCOMPARE(pane.view.findBar()->outcome(), QStringLiteral("1 of 2"));
  }

  void theKeysAreAboutTheTextAlthoughTheWindowHasThemToo() {
    QMainWindow window;
    auto* view = new SourceTextView(&window);
    view->setString(kPostScript);
    window.setCentralWidget(view);
    int commands = 0;
    auto* command = new QAction(&window);
    command->setShortcuts({QKeySequence(QKeySequence::Find), QKeySequence(Qt::Key_Escape)});
    connect(command, &QAction::triggered, this, [&] { ++commands; });
    window.addAction(command);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view->textEdit()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(view->findBar()->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!view->findBar()->isVisible());
    QCOMPARE(commands, 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(commands, 1);
  }

  void onlyWhatIsVisibleIsColoured() {
    Pane pane(QStringLiteral("%!PS\n") + QStringLiteral("0 % zero\n").repeated(5000));
    pane.view.textEdit()->viewport()->repaint();
    const qsizetype marked = pane.view.textEdit()->markedParts();
    QVERIFY(marked >= 5 && marked <= 60);
    pane.view.textEdit()->verticalScrollBar()->setValue(3000);
    pane.view.textEdit()->viewport()->repaint();
    QVERIFY(pane.view.textEdit()->markedParts() >= 5 && pane.view.textEdit()->markedParts() <= 60);
    const int first = pane.view.textEdit()->extraSelections().first().cursor.blockNumber();
    QCOMPARE(first, 3000);
  }

  void proseHasNeitherNumbersNorColours() {
    SourceTextView view;
    view.setLineWrapping(true);
    view.setString(kPostScript);
    view.resize(300, 200);
    view.show();
    view.textEdit()->viewport()->repaint();
    QCOMPARE(view.textEdit()->markedParts(), qsizetype(0));
    QCOMPARE(view.textEdit()->viewport()->x(), 0);
  }

  void theLineNumbersAreAsWideAsTheLastOne() {
    Pane pane(kPostScript);
    const int narrow = pane.view.textEdit()->lineNumberWidth();
    QVERIFY(narrow > pane.view.textEdit()->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    QVERIFY(pane.view.textEdit()->viewport()->x() >= narrow);
    pane.view.setString(QStringLiteral("\n").repeated(20000));
    QVERIFY(pane.view.textEdit()->lineNumberWidth() > narrow);
  }
};

NORVEX_TEST(SourceTextViewTest)
#include "source_text_view_test.moc"
