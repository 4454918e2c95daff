// What the user does in the window: rotating, background, selecting, zooming, and the inspector.
#include <QAction>
#include <QCheckBox>
#include <QLabel>

#include <cmath>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QAction* action(MainWindowController& c, const char* name) {
  return c.window()->findChild<QAction*>(QString::fromLatin1(name));
}

void drag(NorvexViewWidget* widget, QPoint from, QPoint to) {
  QTest::mousePress(widget, Qt::LeftButton, {}, from);
  QTest::mouseMove(widget, (from + to) / 2);
  QTest::mouseMove(widget, to);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

/// A widget point of a point of the view.
QPoint at(MainWindowController& c, double x, double y) {
  return c.viewWidget()->fromView({x, y}).toPoint();
}

}  // namespace

class MainWindowCommandsTest : public QObject {
  Q_OBJECT
 private slots:
  void theInspectorTogglesAndIsTitledOnce() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("a.eps Inspector"));
    QVERIFY(c.inspectorWindow->isVisible() && c.inspectorToolbarItem->isChecked());
    c.window()->setWindowTitle("other");
    c.showInspectorWindow();
    QVERIFY(!c.inspectorWindow->isVisible() && !c.inspectorToolbarItem->isChecked());
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("a.eps Inspector"));
    c.showInspectorWindow();
    fixture.revert();
    QCOMPARE(c.inspectorWindow->windowTitle(), QString());
  }

  void aColourChosenWhileUseIsOffChangesThePreviewAlone() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.useBackgroundSwitch()->setChecked(true);
    c.takeColor(Qt::red);
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::red));
    c.useBackgroundSwitch()->setChecked(false);
    c.takeColor(Qt::blue);
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::red));
    QCOMPARE(c.previewImageView()->backgroundColor(), QColor(Qt::blue));
  }

  void onlyTheStateOnTakesAColourButMixedDrawsOne() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.backgroundColorWell()->setColor(Qt::green);
    c.useBackgroundSwitch()->setTristate(true);
    c.useBackgroundSwitch()->setCheckState(Qt::PartiallyChecked);
    QVERIFY(c.scrollArea()->drawsBackground());
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::green));
    c.takeColor(Qt::red);
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::green));
  }

  void switchingUseOffShowsWhatIsBehindAndOnAgainTheColour() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.backgroundColorWell()->setColor(Qt::yellow);
    c.useBackgroundSwitch()->setChecked(false);
    QVERIFY(!c.scrollArea()->drawsBackground());
    QCOMPARE(c.window()->property("opaque").toBool(), false);
    c.useBackgroundSwitch()->setChecked(true);
    QVERIFY(c.scrollArea()->drawsBackground());
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::yellow));
    QCOMPARE(c.window()->property("opaque").toBool(), true);
  }

  void typing90TurnsByAQuarterAndZeroBack() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateField()->selectAll();
    QTest::keyClicks(c.rotateField(), "90");
    QTest::keyClick(c.rotateField(), Qt::Key_Return);
    QCOMPARE(c.view()->rotate(), M_PI / 2);
    QCOMPARE(c.view()->frame().size().toSize(), QSize(100, 200));
    QCOMPARE(c.dialKnob()->DMSValue(), 90.0);
    c.rotateField()->selectAll();
    QTest::keyClicks(c.rotateField(), "0");
    QTest::keyClick(c.rotateField(), Qt::Key_Return);
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.view()->frame().size().toSize(), QSize(200, 100));
  }

  void anSvgTurnsTheOtherWay() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("<svg/>", "a.svg", UTTypeSVG().identifier());
    c.rotateChange(90);
    QCOMPARE(c.view()->rotate(), 3 * M_PI / 2);
  }

  void theKnobTurnsTheViewAndTheFieldFollows() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.dialKnob()->turnTo(180);
    QCOMPARE(c.view()->rotate(), M_PI);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("180.0000"));
  }

  void rotateCommandsTurnAsSeenWhateverTheSense_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("EPS") << "a.eps" << NorvexEPSType;
    QTest::newRow("SVG") << "a.svg" << UTTypeSVG().identifier();
  }
  void rotateCommandsTurnAsSeenWhateverTheSense() {
    QFETCH(QString, name);
    QFETCH(QString, type);
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded(epsBytes(), name, type);
    action(c, "rotateLeftAction")->trigger();
    QCOMPARE(c.view()->rotate(), M_PI / 2);
    action(c, "rotateRightAction")->trigger();
    action(c, "rotateRightAction")->trigger();
    QCOMPARE(c.view()->rotate(), 3 * M_PI / 2);
    action(c, "resetRotationAction")->trigger();
    QCOMPARE(std::fmod(c.view()->rotate(), 2 * M_PI), 0.0);
  }

  void twoDragsSelectAndEscapeClears() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    drag(c.viewWidget(), at(c, 0, 0), at(c, -50, 30));
    QCOMPARE(c.startPoint->text(), QStringLiteral("(    50.00,    80.00)"));
    QCOMPARE(c.endPoint->text(), QString());
    drag(c.viewWidget(), at(c, 10, 10), at(c, 20, -10));
    QCOMPARE(c.view()->selectRect(), QRectF(-50, -10, 70, 40));
    QCOMPARE(c.startPoint->text(), QStringLiteral("(    50.00,    40.00)"));
    QCOMPARE(c.endPoint->text(), QStringLiteral("(   120.00,    80.00)"));
    QTest::keyClick(c.viewWidget(), Qt::Key_Right);
    QCOMPARE(c.view()->selectRect(), QRectF(-49, -10, 70, 40));
    QTest::keyClick(c.viewWidget(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(c.view()->selectRect(), QRectF(-49, -10, 70, 41));
    QTest::keyClick(c.viewWidget(), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(c.view()->selectRect(), QRectF(-49, -20, 70, 41));
    QTest::keyClick(c.viewWidget(), Qt::Key_Escape);
    QCOMPARE(c.view()->selectRect().size(), QSizeF(0, 0));
    QCOMPARE(c.startPoint->text(), QString());
    QCOMPARE(c.endPoint->text(), QString());
  }

  void selectAllMarksTheWholeBounds() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    action(c, "selectAllAction")->trigger();
    QCOMPARE(c.view()->selectRect(), c.view()->bounds());
    action(c, "deselectAction")->trigger();
    QCOMPARE(c.view()->selectRect().size(), QSizeF(0, 0));
  }

  void selectionTextsAreNumbersInNineCharacters() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.norvexView(*c.view(), "12.5\t3", "", "");
    QCOMPARE(c.startPoint->text(), QStringLiteral("(    12.50,     3.00)"));
    QCOMPARE(c.endPoint->text(), QString());
    c.norvexView(*c.view(), "1\t2", "7\tx", "");
    QCOMPARE(c.endPoint->text(), QStringLiteral("(     7.00,     2.00)"));
    c.norvexView(*c.view(), "", "1\t2", "");
    QCOMPARE(c.startPoint->text() + c.endPoint->text(), QString());
  }

  void zoomCommands() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    action(c, "zoomInAction")->trigger();
    QCOMPARE(c.zoomFactor(), 1.25);
    action(c, "zoomOutAction")->trigger();
    action(c, "zoomOutAction")->trigger();
    QCOMPARE(c.zoomFactor(), 0.75);
    action(c, "actualSizeAction")->trigger();
    QCOMPARE(c.zoomFactor(), 1.0);
    action(c, "fitAction")->trigger();
    const QSizeF shown = c.view()->frame().size() * c.zoomFactor();
    const QSizeF room = c.scrollArea()->contentSize();
    QVERIFY(shown.width() <= room.width() && shown.height() <= room.height());
    QVERIFY(room.width() - shown.width() < 1 || room.height() - shown.height() < 1);
    QCOMPARE(c.zoomingScrollView()->factor(), c.zoomFactor());
  }

  void withoutAPictureEveryCommandOfTheControllerIsDisabled() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("nothing", "a.eps", NorvexEPSType);
    for (const char* name : {"inspectorToolbarItem", "copyToolbarItem", "doPrintingToolbarItem",
                             "doSaveToToolbarItem", "zoomInAction", "selectAllAction"})
      QVERIFY2(!action(c, name)->isEnabled(), name);
  }

  void aChangedFileIsOfferedAndReloadStartsOver() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateChange(30);
    c.zoomingScrollView()->zoomTo(2.0);
    fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    c.fileDidChangeOnDisk();
    QCOMPARE(c.messageBar()->message(), QStringLiteral("The file has changed on disk."));
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("A picture"));
    emit c.messageBar()->actionChosen();
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("Another"));
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.zoomFactor(), 1.0);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("0.0000"));
  }

  void theTouchBarsReloadStartsOverAsWell() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateChange(30);
    c.performTouchBarAction(TouchBarAction::RevertDocumentToSaved);
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("0.0000"));
  }

  void aWindowOnTheScreenDoesNotWaitForTheFileToBeReadAgain() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.window()->show();
    const auto before = c.view()->imageRep();
    fixture.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Facts); });
    action(c, "reloadAction")->trigger();
    QVERIFY(c.isReading());
    QCOMPARE(c.view()->imageRep(), before);
    c.rotateChange(30);  // the window works on with what it has
    QVERIFY(fixture.service.lastProcess()->waitUntilHeld(PictureCall::Facts));
    fixture.service.lastProcess()->release(PictureCall::Facts);
    QTRY_VERIFY(!c.isReading());
    QVERIFY(c.view()->imageRep() && c.view()->imageRep() != before);
    QCOMPARE(c.view()->rotate(), 0.0);
  }

  void theReloadCommandStartsOver() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateChange(30);
    c.zoomingScrollView()->zoomTo(2.0);
    action(c, "reloadAction")->trigger();
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.zoomFactor(), 1.0);
  }

  void whatCannotBeReadAgainLeavesThePicture_data() {
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<bool>("inPlace");
    for (const bool deleted : {true, false})
      for (const bool inPlace : {true, false})
        QTest::addRow("%s, %s", deleted ? "deleted" : "damaged", inPlace ? "from the bar" : "by the command")
            << deleted << inPlace;
  }
  void whatCannotBeReadAgainLeavesThePicture() {
    QFETCH(bool, deleted);
    QFETCH(bool, inPlace);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const auto picture = c.view()->imageRep();
    c.rotateChange(30);
    c.zoomingScrollView()->zoomTo(2.0);
    if (deleted)
      QVERIFY(QFile::remove(fixture.folder.filePath("a.eps")));
    else
      fixture.write("nothing", "a.eps");
    if (inPlace) {
      c.fileDidChangeOnDisk();
      emit c.messageBar()->actionChosen();
    } else {
      action(c, "reloadAction")->trigger();
    }
    QCOMPARE(c.view()->imageRep(), picture);
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("A picture"));
    QCOMPARE(c.rotateField()->text(), QStringLiteral("30.0000"));
    QCOMPARE(c.zoomFactor(), 2.0);
    QVERIFY(action(c, "copyToolbarItem")->isEnabled());
    QVERIFY2(c.messageBar()->message().endsWith(". What is shown was read before."),
             qPrintable(c.messageBar()->message()));
    QVERIFY(c.messageBar()->message().at(0).isUpper());
    // Whole again, it is read.
    fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    emit c.messageBar()->actionChosen();
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("Another"));
    QCOMPARE(c.zoomFactor(), 1.0);
    QVERIFY(c.messageBar()->message().isEmpty());
  }
};

NORVEX_TEST(MainWindowCommandsTest)
#include "main_window_commands_test.moc"
