// How the set-up leaves the controls of the inspector, and the properties that lead to them.
#include <QCheckBox>
#include <QFontInfo>
#include <QLabel>
#include <QMainWindow>

#include <cstddef>
#include <optional>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_find_bar.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// A property stores exactly what it is given, nothing included; the control of the window comes back.
template <typename Control>
bool stores(MainWindowController& c, Control* (MainWindowOutlets::*get)() const,
            void (MainWindowOutlets::*set)(Control*)) {
  Control* const own = (c.*get)();
  // Only compared, never looked into.
  alignas(16) static std::byte place[16];
  auto* const another = reinterpret_cast<Control*>(place);
  (c.*set)(another);
  const bool kept = (c.*get)() == another;
  (c.*set)(nullptr);
  const bool cleared = (c.*get)() == nullptr;
  (c.*set)(own);
  return kept && cleared && own && (c.*get)() == own;
}

}  // namespace

class SetUpTest : public QObject {
  Q_OBJECT
 private slots:
  void everyPropertyStoresWhatItIsGiven() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    using O = MainWindowOutlets;
    QVERIFY(stores(c, &O::useBackgroundSwitch, &O::setUseBackgroundSwitch));
    QVERIFY(stores(c, &O::windowBackgroundColorTitle, &O::setWindowBackgroundColorTitle));
    QVERIFY(stores(c, &O::rotateTitle, &O::setRotateTitle));
    QVERIFY(stores(c, &O::rotateField, &O::setRotateField));
    QVERIFY(stores(c, &O::backgroundColorWell, &O::setBackgroundColorWell));
    QVERIFY(stores(c, &O::dialKnob, &O::setDialKnob));
    QVERIFY(stores(c, &O::previewImageView, &O::setPreviewImageView));
    QVERIFY(stores(c, &O::colorSpaceNameForm, &O::setColorSpaceNameForm));
    QVERIFY(stores(c, &O::encodingForm, &O::setEncodingForm));
    QVERIFY(stores(c, &O::titleForm, &O::setTitleForm));
    QVERIFY(stores(c, &O::creatorForm, &O::setCreatorForm));
    QVERIFY(stores(c, &O::creationDateForm, &O::setCreationDateForm));
    QVERIFY(stores(c, &O::forForm, &O::setForForm));
    QVERIFY(stores(c, &O::copyrightForm, &O::setCopyrightForm));
    QVERIFY(stores(c, &O::view, &O::setView));
    QVERIFY(stores(c, &O::zoomingScrollView, &O::setZoomingScrollView));
    c.setZoomFactor(2.5);  // the seventeenth
    QCOMPARE(c.zoomFactor(), 2.5);
  }

  void theDialHasBlackMarksOfFourNoBorderAndIsTurnedByTheUser() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    ZyDialKnob& dial = *c.dialKnob();
    ZyDialKnob twin(dial.parentWidget());
    twin.resize(dial.size());
    const auto lookAlike = [&](double width, bool bordered, const QColor& marks) {
      twin.setTickMarks(marks, std::nullopt, width);
      twin.setBordered(bordered);
      return twin.grab().toImage() == dial.grab().toImage();
    };
    QVERIFY(lookAlike(4, false, Qt::black));
    QVERIFY(!lookAlike(6, false, Qt::black));
    QVERIFY(!lookAlike(4, true, Qt::black));
    QVERIFY(!lookAlike(4, false, Qt::red));
    QTest::keyClick(&dial, Qt::Key_PageUp);
    QVERIFY(dial.degreeValue() != 0);
  }

  void theSourceIsInTheFixedPitchFontOfTenPoints() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.showInspectorWindow();
    const SourceTextEdit& edit = *c.sourceTextView->textEdit();
    QCOMPARE(edit.font().pointSizeF(), 10.0);
    QVERIFY(QFontInfo(edit.font()).fixedPitch());
    QVERIFY(edit.isReadOnly());
  }

  void linesOfTheSourceAreNotBroken() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QCOMPARE(c.sourceTextView->textEdit()->lineWrapMode(), QPlainTextEdit::NoWrap);
  }

  void sourceAndDescriptionHaveAFindBar() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    for (SourceTextView* view : {c.sourceTextView, c.descriptionView}) {
      QVERIFY(view->findBar()->isHidden());
      view->showFindBar();
      QVERIFY(!view->findBar()->isHidden());
    }
  }

  void thePreviewIsForLookingAtAndOnItsBackground() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open(epsBytes(), "a.eps", NorvexEPSType);
    c.window();
    c.previewImageView()->setEditable(true);
    c.previewImageView()->setUseBackgroundColor(false);
    c.windowDidLoad();
    QVERIFY(!c.previewImageView()->isEditable());
    QVERIFY(c.previewImageView()->usesBackgroundColor());
  }

  void aFailureOfThePdfFormWithoutWordsGetsTheNameOfWhatFailed() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>", "a.svg",
                       UTTypeSVG().identifier());
    fixture.alerts.shown.clear();
    c.pdfImageRepDidLoad(false, {ErrorKind::Unsupported, {}});
    QCOMPARE(fixture.alerts.shown.size(), 1);
    QCOMPARE(fixture.alerts.shown[0].messageText, QStringLiteral("ZyWebImageRep"));
    c.pdfImageRepDidLoad(false, {ErrorKind::Unsupported, "PostScript error: undefined in x"});
    QCOMPARE(fixture.alerts.shown[1].messageText,
             QStringLiteral("The PostScript program stops with an error."));
    QCOMPARE(fixture.alerts.shown[1].details, QStringLiteral("undefined in x"));
  }
};

NORVEX_TEST(SetUpTest)
#include "set_up_test.moc"
