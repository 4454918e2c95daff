// The inspector: its actions, its properties and what can be done with its values.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTabWidget>

#include <cmath>

#include "base/background_threads.h"
#include "base/background_work.h"
#include "kit/test_main.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "window/contents_display.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QString copied(QLineEdit* field, const std::function<void()>& deed) {
  QGuiApplication::clipboard()->setText(QStringLiteral("before"));
  Q_UNUSED(field)
  deed();
  return QGuiApplication::clipboard()->text();
}

void type(MainWindowController& c, const char* angle) {
  c.rotateField()->selectAll();
  QTest::keyClicks(c.rotateField(), QString::fromLatin1(angle));
  QTest::keyClick(c.rotateField(), Qt::Key_Return);
}

}  // namespace

class InspectorTest : public QObject {
  Q_OBJECT
 private slots:
  void openingItTwiceHidesIt() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow(this);  // whoever sends it
    QVERIFY(c.inspectorWindow->isVisible());
    c.showInspectorWindow();
    QVERIFY(!c.inspectorWindow->isVisible());
  }

  void itComesUpWhollyOnTheScreenAndStaysWhereItIsTakenTo() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.inspectorWindow->resize(360, 5000);
    c.showInspectorWindow();
    QVERIFY(QTest::qWaitForWindowExposed(c.inspectorWindow));
    QVERIFY(c.window()->screen()->availableGeometry().contains(c.inspectorWindow->frameGeometry()));
    QCOMPARE(c.inspectorWindow->width(), 360);
    c.inspectorWindow->move(31, 47);
    c.showInspectorWindow();
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->pos(), QPoint(31, 47));
  }

  void itsTitleIsComposedOnceAndAgainAfterARevert() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QCOMPARE(c.inspectorWindow->windowTitle(), QString());
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("a.eps Inspector"));
    c.window()->setWindowTitle("b");
    c.showInspectorWindow();
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("a.eps Inspector"));
    // Shown, it is never without a title of its own.
    fixture.revert();
    QVERIFY(c.inspectorWindow->isVisible());
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("a.eps Inspector"));
    c.showInspectorWindow();
    fixture.revert();
    QCOMPARE(c.inspectorWindow->windowTitle(), QString());
    c.window()->setWindowTitle("c");
    c.showInspectorWindow();
    QCOMPARE(c.inspectorWindow->windowTitle(), QStringLiteral("c Inspector"));
  }

  void propertiesStoreWhatTheyAreGiven() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    ZyDialKnob knob;
    ZyDialKnob* const own = c.dialKnob();
    c.setDialKnob(&knob);
    QCOMPARE(c.dialKnob(), &knob);
    c.setDialKnob(nullptr);
    QVERIFY(!c.dialKnob() && !c.dialKnobClockwise());
    c.setDialKnob(own);
  }

  void settingTheZoomFactorTellsObservers() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QSignalSpy told(&c, &MainWindowController::zoomFactorDidChange);
    c.setZoomFactor(2.5);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toDouble(), 2.5);
    QCOMPARE(c.zoomingScrollView()->factor(), 2.5);
  }

  void takeColorIsForThePictureOnlyWhileUseIsExactlyOn_data() {
    QTest::addColumn<Qt::CheckState>("state");
    QTest::addColumn<bool>("taken");
    QTest::newRow("off") << Qt::Unchecked << false;
    QTest::newRow("mixed") << Qt::PartiallyChecked << false;
    QTest::newRow("on") << Qt::Checked << true;
  }
  void takeColorIsForThePictureOnlyWhileUseIsExactlyOn() {
    QFETCH(Qt::CheckState, state);
    QFETCH(bool, taken);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.backgroundColorWell()->setColor(Qt::green);
    c.useBackgroundAction(Qt::Checked);
    c.useBackgroundSwitch()->setTristate(true);
    c.useBackgroundSwitch()->setCheckState(state);
    c.takeColor(Qt::red);
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(taken ? Qt::red : Qt::green));
    QCOMPARE(c.previewImageView()->backgroundColor(), QColor(Qt::red));
  }

  void theSetUpGivesTheWellThePicturesBackground() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.backgroundColorWell()->setColor(Qt::green);
    c.useBackgroundAction(Qt::Checked);
    c.useBackgroundSwitch()->setCheckState(Qt::Unchecked);
    c.backgroundColorWell()->setColor(Qt::red);
    c.takeColor(Qt::red);  // for the preview alone
    c.windowDidLoad();
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::green));
    QCOMPARE(c.backgroundColorWell()->color(), QColor(Qt::green));
    QCOMPARE(c.previewImageView()->backgroundColor(), QColor(Qt::green));
  }

  void useIsOnInEveryStateButOff_data() {
    QTest::addColumn<int>("state");
    QTest::newRow("mixed") << int(Qt::PartiallyChecked);
    QTest::newRow("on") << int(Qt::Checked);
  }
  void useIsOnInEveryStateButOff() {
    QFETCH(int, state);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.useBackgroundAction(Qt::Unchecked);
    QVERIFY(!c.scrollArea()->drawsBackground());
    QCOMPARE(c.window()->property("opaque").toBool(), false);
    const QColor kept = c.scrollArea()->backgroundColor();
    c.backgroundColorWell()->setColor(Qt::magenta);
    QCOMPARE(c.scrollArea()->backgroundColor(), kept);
    c.useBackgroundAction(state);
    QVERIFY(c.scrollArea()->drawsBackground());
    QCOMPARE(c.scrollArea()->backgroundColor(), QColor(Qt::magenta));
    QCOMPARE(c.previewImageView()->backgroundColor(), QColor(Qt::magenta));
    QCOMPARE(c.window()->property("opaque").toBool(), true);
  }

  void typing90TurnsAQuarterAndResizesAndZeroRestores() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded(epsBytes().replace("10 20 210 120", "0 0 900 500"), "a.eps", NorvexEPSType);
    const QSize flat = c.window()->maximumSize();
    type(c, "90");
    QCOMPARE(c.view()->rotate(), M_PI / 2);
    QCOMPARE(c.view()->frame().size().toSize(), QSize(500, 900));
    // The window is lower than the picture now, and has the scroll bar beside it.
    QCOMPARE(c.window()->maximumSize(), flat + QSize(-400 + ZoomingScrollArea::barExtent(), 400));
    type(c, "0");
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.window()->maximumSize(), flat);
  }

  void anglesAreShownByTheirFormat_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("negative") << "-12.3"
                              << "-12.3000";
    QTest::newRow("negative below 1") << "-0.5"
                                      << "-0.5000";
    QTest::newRow("positive below 1") << "0.5"
                                      << ".5000";
    QTest::newRow("zero") << "0"
                          << "0.0000";
    QTest::newRow("thousands") << "1080"
                               << "1,080.0000";
  }
  void anglesAreShownByTheirFormat() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateField()->setDoubleValue(typed.toDouble());
    c.rotateChange(typed.toDouble());
    QCOMPARE(c.rotateField()->text(), shown);
    QCOMPARE(c.dialKnob()->DMSValue(), typed.toDouble());
  }

  void theDialTurnsTheViewInItsOwnSense_data() {
    QTest::addColumn<bool>("clockwise");
    QTest::addColumn<double>("rotate");
    QTest::newRow("counter-clockwise") << false << M_PI / 2;
    QTest::newRow("clockwise") << true << 3 * M_PI / 2;
  }
  void theDialTurnsTheViewInItsOwnSense() {
    QFETCH(bool, clockwise);
    QFETCH(double, rotate);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.dialKnob()->setClockwise(clockwise);
    c.dialKnob()->turnTo(90);
    QCOMPARE(c.view()->rotate(), rotate);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("90.0000"));
  }

  void turningTheDialWritesTheFieldThroughTheDialAlone() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.dialKnob()->setDmsTextField(nullptr);
    c.dialKnob()->turnTo(45);
    QCOMPARE(c.view()->rotate(), M_PI / 4);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("0.0000"));
  }

  void everyFieldCopiesItsValueWithoutSelecting() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    QLineEdit* title = c.titleForm()->cellAtIndex(0);
    QCOMPARE(copied(title, [&] { title->findChild<QAction*>("copyValueAction")->trigger(); }),
             QStringLiteral("A picture"));
    title->setFocus();
    title->deselect();
    QCOMPARE(copied(title, [&] { QTest::keyClick(title, Qt::Key_C, Qt::ControlModifier); }),
             QStringLiteral("A picture"));
    title->setSelection(2, 7);
    QCOMPARE(copied(title, [&] { QTest::keyClick(title, Qt::Key_C, Qt::ControlModifier); }),
             QStringLiteral("picture"));
    for (const ZyForm* form : {c.titleForm(), c.creatorForm(), c.creationDateForm(), c.forForm(),
                               c.copyrightForm(), c.encodingForm(), c.colorSpaceNameForm()})
      QVERIFY(form->cellAtIndex(0)->findChild<QAction*>("copyValueAction"));
    QLineEdit* width = c.epsMatrix->cellAtRow(0, 1);
    QCOMPARE(copied(width, [&] { width->findChild<QAction*>("copyValueAction")->trigger(); }),
             QStringLiteral("200"));
  }

  void theCopyButtonIsThereWhileTheFieldIsInUseAndHasAValue() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    QVERIFY(QTest::qWaitForWindowActive(c.inspectorWindow));
    QLineEdit* title = c.titleForm()->cellAtIndex(0);
    const QAction* button = title->findChild<QAction*>("copyValueAction");
    QVERIFY(!button->isVisible());
    title->setFocus();
    QVERIFY(button->isVisible());
    title->clear();
    QVERIFY(!button->isVisible());
    c.dialKnob()->setFocus();
    title->setText("x");
    QVERIFY(!button->isVisible());
  }

  void anEpsFileShowsBothBoundingBoxes() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded(epsBytes("%%HiResBoundingBox: 10.25 20.5 209.75 119.125\n"), "a.eps", NorvexEPSType);
    auto* form = c.inspectorWindow->findChild<ZyForm*>("boundingBoxForm");
    QVERIFY(form->isVisibleTo(c.inspectorWindow->findChild<QWidget*>("pictureFacts")));
    QCOMPARE(form->cellAtIndex(0)->text(), QStringLiteral("10 20 210 120"));
    QCOMPARE(form->cellAtIndex(1)->text(), QStringLiteral("10.25 20.5 209.75 119.125"));
    QVERIFY(form->cellAtIndex(0)->findChild<QAction*>("copyValueAction"));
    fixture.write(epsBytes(), "a.eps");
    fixture.revert();
    QCOMPARE(form->cellAtIndex(1)->text(), QString());
  }

  void otherPicturesHaveNoBoundingBoxComments() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    auto* form = c.inspectorWindow->findChild<ZyForm*>("boundingBoxForm");
    QVERIFY(!form->isVisibleTo(c.inspectorWindow->findChild<QWidget*>("pictureFacts")));
  }

  void fontsAndColoursOfThePictureAreShownWhereTheyAreKnown() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded(epsBytes("%%DocumentFonts: Helvetica\n%%DocumentCustomColors: (PANTONE 186 C)\n"),
                       "a.eps", NorvexEPSType);
    auto* form = c.inspectorWindow->findChild<ZyForm*>("usesForm");
    const auto isShown = [&] {
      return form->isVisibleTo(c.inspectorWindow->findChild<QWidget*>("pictureFacts"));
    };
    QVERIFY(isShown());
    QCOMPARE(form->cellAtIndex(0)->text(), QStringLiteral("Helvetica"));
    QCOMPARE(form->cellAtIndex(1)->text(), QStringLiteral("PANTONE 186 C"));
    QVERIFY(form->cellAtIndex(0)->findChild<QAction*>("copyValueAction"));
    fixture.write(epsBytes(), "a.eps");
    fixture.revert();
    QVERIFY(!isShown());

    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 100, 50)};
    picture.facts.fonts = {"Times-Roman", "Symbol"};
    picture.facts.colorSpaces = {"DeviceRGB"};
    fixture.service.setPicture(picture);
    fixture.write("%PDF-1.4", "a.eps");
    fixture.document.setFileType(UTTypePDF().identifier());
    fixture.revert();
    c.window()->show();
    c.inspectorWindow->show();
    QTRY_VERIFY(isShown());
    QCOMPARE(form->cellAtIndex(0)->text(), QStringLiteral("Times-Roman, Symbol"));
    QCOMPARE(form->cellAtIndex(1)->text(), QStringLiteral("DeviceRGB"));
  }

  void theNamesInAPdfAreAskedForWhenTheyAreSeen() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 100, 50)};
    picture.facts.fonts = {"Symbol"};
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.inspectorWindow->hide();
    QSignalSpy drawn(c.view()->imageRep().get(), &NSImageRep::renderingArrived);
    c.window()->show();
    QVERIFY(!drawn.isEmpty() || drawn.wait(20'000));
    waitForWork(waitingThreads());  // would ask for them
    const auto process = fixture.service.lastProcess();
    QCOMPARE(process->calls(PictureCall::Examine), 0);
    c.inspectorWindow->show();
    QTRY_COMPARE(c.inspectorWindow->findChild<ZyForm*>("usesForm")->cellAtIndex(0)->text(),
                 QStringLiteral("Symbol"));
    QCOMPARE(process->calls(PictureCall::Examine), 1);
  }

  void theNamesInAPdfDoNotFollowWhatAPictureBeforeItDraws() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    const std::shared_ptr<NSImageRep> before = c.view()->imageRep();
    fixture.revert();
    QVERIFY(c.view()->imageRep() != before);
    c.inspectorWindow->show();
    emit before->renderingArrived();
    waitForWork(waitingThreads());  // would ask for them
    QCOMPARE(fixture.service.lastProcess()->calls(PictureCall::Examine), 0);
    emit c.view()->imageRep()->renderingArrived();
    QTRY_COMPARE(fixture.service.lastProcess()->calls(PictureCall::Examine), 1);
  }

  void whatWasNoticedAtOpeningIsSaidInPlainSentences() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 100, 50)};
    picture.facts.warnings = {
        "this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork"};
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.loaded("%PDF-1.4", "a.ai", NorvexIllustratorType);
    auto* note = c.inspectorWindow->findChild<QLabel*>("noteField");
    QVERIFY(note->isVisibleTo(note->parentWidget()));
    QCOMPARE(note->text(), QStringLiteral("This Illustrator file was saved without PDF content, so it shows "
                                          "a notice instead of the artwork."));
    picture.facts.warnings.clear();
    fixture.service.setPicture(picture);
    fixture.revert();
    QVERIFY(!note->isVisibleTo(note->parentWidget()));
  }

  void fontsThatOthersStandInForAreToldOnceThePictureIsDrawn() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.drawingRemarks = {"the font A is missing, B stands in for it"};
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.loadedEps();
    auto* note = c.inspectorWindow->findChild<QLabel*>("noteField");
    QVERIFY(!note->isVisibleTo(note->parentWidget()));
    c.window()->show();
    QTRY_COMPARE(note->text(), QStringLiteral("The font A is missing, B stands in for it."));
    QVERIFY(note->isVisibleTo(note->parentWidget()));
  }

  void anEpsThatIsCutOffIsSaidToBe() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded(epsBytes("%AI9_PrivateDataBegin\n"), "a.eps", NorvexEPSType);
    auto* note = c.inspectorWindow->findChild<QLabel*>("noteField");
    QVERIFY(note->isVisibleTo(note->parentWidget()));
    QCOMPARE(note->text(), QStringLiteral("The file seems cut off: its PostScript stops before its end."));
  }

  void theColourSpaceIsTheHeadersWhereItHasOne() {
    const auto of = [](const QVariant& value) {
      return ContentsDisplay::colorSpace({{header::ColorSpace, value}});
    };
    const QColorSpace own(QColorSpace::DisplayP3);
    QVERIFY(of(QVariant::fromValue(own)) == own);
    QVERIFY(!of(QVariant::fromValue(QColorSpace())));
    QVERIFY(!of(QStringLiteral("sRGB")));
    QVERIFY(!ContentsDisplay::colorSpace({}));
  }
};

NORVEX_TEST(InspectorTest)
#include "inspector_test.moc"
