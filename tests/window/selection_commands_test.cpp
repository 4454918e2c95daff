// The way to the selection without a mouse: commands with keys, and words for screen readers.
#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include "kit/test_main.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/selection_description.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// A window with a picture of 200 × 100 points that has the keyboard.
struct Shown {
  Shown() : c(fixture.loadedEps()) {
    c.window()->show();
    c.window()->activateWindow();
    ready = QTest::qWaitForWindowActive(c.window());
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(c.window()->windowHandle(), key, modifiers);
  }
  /// The rectangle (-50, -20, 40, 30).
  void select() {
    c.view()->selectBounds();
    c.view()->resizeSelection({-160, -70});
    c.view()->moveSelection({50, 30});
  }
  [[nodiscard]] QAction* find(const char* name) const {
    return c.window()->findChild<QAction*>(QString::fromLatin1(name));
  }

  WindowFixture fixture;
  MainWindowController& c;
  bool ready = false;
};

const QRectF kSelected(-50, -20, 40, 30);

}  // namespace

class SelectionCommandsTest : public QObject {
  Q_OBJECT
 private slots:
  void keysMoveAndSize_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QRectF>("after");
    const int none = Qt::NoModifier, shift = Qt::ShiftModifier, control = Qt::ControlModifier;
    QTest::newRow("left") << int(Qt::Key_Left) << none << QRectF(-51, -20, 40, 30);
    QTest::newRow("right") << int(Qt::Key_Right) << none << QRectF(-49, -20, 40, 30);
    QTest::newRow("up") << int(Qt::Key_Up) << none << QRectF(-50, -19, 40, 30);
    QTest::newRow("down") << int(Qt::Key_Down) << none << QRectF(-50, -21, 40, 30);
    QTest::newRow("ten to the left") << int(Qt::Key_Left) << shift << QRectF(-60, -20, 40, 30);
    QTest::newRow("ten upwards") << int(Qt::Key_Up) << shift << QRectF(-50, -10, 40, 30);
    QTest::newRow("wider") << int(Qt::Key_Right) << control << QRectF(-50, -20, 41, 30);
    QTest::newRow("narrower") << int(Qt::Key_Left) << control << QRectF(-50, -20, 39, 30);
    QTest::newRow("higher") << int(Qt::Key_Up) << control << QRectF(-50, -20, 40, 31);
    QTest::newRow("lower by ten") << int(Qt::Key_Down) << (control | shift) << QRectF(-50, -20, 40, 20);
    QTest::newRow("wider by ten") << int(Qt::Key_Right) << (control | shift) << QRectF(-50, -20, 50, 30);
  }
  void keysMoveAndSize() {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QRectF, after);
    Shown shown;
    QVERIFY(shown.ready);
    shown.select();
    QCOMPARE(shown.c.view()->selectRect(), kSelected);
    shown.key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(shown.c.view()->selectRect(), after);
    // The picture is 200 × 100 points: its corner is 100 and 50 points from the middle.
    QCOMPARE(shown.c.startPoint->text(), QString::asprintf("(%9.2f,%9.2f)", after.x() + 100, after.y() + 50));
    QCOMPARE(shown.c.endPoint->text(), QString::asprintf("(%9.2f,%9.2f)", after.x() + after.width() + 100,
                                                         after.y() + after.height() + 50));
  }

  void controlAMarksAndEscapeRemoves() {
    Shown shown;
    QVERIFY(shown.ready);
    shown.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shown.c.view()->selectRect(), QRectF(-100, -50, 200, 100));
    shown.key(Qt::Key_Escape);
    QCOMPARE(shown.c.view()->selectRect(), QRectF(-100, -50, 0, 0));
    QCOMPARE(shown.c.startPoint->text(), QString());
  }

  void theCommandsAreThereExactlyWhileThereIsARectangle() {
    Shown shown;
    const QAction* deselect = shown.find("deselectAction");
    const QAction* move = shown.find("moveSelectionMenu");
    const QAction* resize = shown.find("resizeSelectionMenu");
    QVERIFY(deselect && move && resize);
    const QList<QAction*> commands = move->menu()->actions(), sizes = resize->menu()->actions();
    QCOMPARE(commands.size(), 9);  // eight and the line between them
    QCOMPARE(sizes.size(), 9);
    QCOMPARE(commands.last()->objectName(), "moveSelectionDownBy10Action");  // own shortcuts are kept by it
    QCOMPARE(sizes.first()->objectName(), "resizeSelectionLeftBy1Action");
    QVERIFY(!deselect->isEnabled() && !commands.first()->isEnabled() && !sizes.last()->isEnabled());
    shown.select();
    QVERIFY(deselect->isEnabled() && commands.first()->isEnabled() && sizes.last()->isEnabled());
    commands.first()->trigger();
    QCOMPARE(shown.c.view()->selectRect(), kSelected.translated(-1, 0));
    shown.c.view()->clearSelectRect();
    QVERIFY(!deselect->isEnabled() && !commands.first()->isEnabled());
  }

  void arrowsScrollWithoutASelection() {
    Shown shown;
    QVERIFY(shown.ready);
    shown.c.setZoomFactor(16);
    QCoreApplication::processEvents();
    const int before = shown.c.scrollArea()->verticalBar()->value();
    shown.key(Qt::Key_Down);
    QVERIFY(shown.c.scrollArea()->verticalBar()->value() > before);
    QCOMPARE(shown.c.view()->selectRect().size(), QSizeF(0, 0));
  }

  void aListKeepsItsArrowKeys() {
    Shown shown;
    QVERIFY(shown.ready);
    shown.select();
    shown.c.scrollArea()->popUp()->setFocus();
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.c.view()->selectRect(), kSelected);
  }

  void theViewTakesNoKeyboardFocus() {
    Shown shown;
    QVERIFY(shown.ready);
    QVERIFY(!shown.c.view()->acceptsFirstResponder());
    QCOMPARE(shown.c.viewWidget()->focusPolicy(), Qt::NoFocus);
    QTest::mouseClick(shown.c.viewWidget(), Qt::LeftButton);
    QCOMPARE(shown.c.window()->focusWidget(), shown.c.scrollArea());
  }

  void nothingElseHappensDuringADrag() {
    Shown shown;
    QVERIFY(shown.ready);
    QWidget* widget = shown.c.viewWidget();
    const QPoint middle = widget->rect().center();
    QTest::mousePress(widget, Qt::LeftButton, {}, middle);
    QTest::mouseMove(widget, middle + QPoint(5, 5));
    const QRectF dragged = shown.c.view()->selectRect();
    QCOMPARE(dragged.width(), 1.0);
    shown.key(Qt::Key_A, Qt::ControlModifier);
    shown.key(Qt::Key_Escape);
    QCOMPARE(shown.c.view()->selectRect(), dragged);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, middle + QPoint(5, 5));
    shown.key(Qt::Key_Escape);
    QCOMPARE(shown.c.view()->selectRect().width(), 0.0);
  }

  void theSelectionIsToldToScreenReaders() {
    Shown shown;
    QVERIFY(shown.ready);
    QCOMPARE(shown.c.viewWidget()->accessibleDescription(), QStringLiteral("Nothing is selected."));
    shown.select();
    shown.key(Qt::Key_Right);
    const QString words = QStringLiteral("Selected from 51, 30 to 91, 60: 40 by 30 points.");
    QCOMPARE(shown.c.viewWidget()->accessibleDescription(), words);
    QCOMPARE(shown.c.scrollArea()->accessibleDescription(), words);
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(shown.c.viewWidget());
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Picture"));
    QCOMPARE(face->text(QAccessible::Description), words);
  }

  void theFieldsCanBeCopiedWithKeysAlone() {
    Shown shown;
    QVERIFY(shown.ready);
    shown.select();
    for (QLabel* field : {shown.c.startPoint, shown.c.endPoint}) {
      QCOMPARE(field->focusPolicy(), Qt::StrongFocus);
      QVERIFY(field->textInteractionFlags() & Qt::TextSelectableByMouse);
      field->setFocus(Qt::TabFocusReason);
      QGuiApplication::clipboard()->clear();
      shown.key(Qt::Key_A, Qt::ControlModifier);
      shown.key(Qt::Key_C, Qt::ControlModifier);
      QCOMPARE(QGuiApplication::clipboard()->text(), field->text());
    }
    QCOMPARE(shown.c.view()->selectRect(), kSelected);
  }

  void theWordsFollowTheReport() {
    QCOMPARE(selectionDescription({}, {}, {}), QStringLiteral("Nothing is selected."));
    QCOMPARE(selectionDescription(QStringLiteral("50\t30"), {}, {}),
             QStringLiteral("The selection starts at 50, 30."));
    QCOMPARE(
        selectionDescription(QStringLiteral("    50.00\t    40.00"), QStringLiteral("    90.00\t    60.00"),
                             QStringLiteral("    40.00\t    30.00")),
        QStringLiteral("Selected from 50.00, 40.00 to 90.00, 60.00: 40.00 by 30.00 points."));
  }
};

NORVEX_TEST(SelectionCommandsTest)
#include "selection_commands_test.moc"
