// windowDidLoad(): what the controls show after each kind of document.
#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QToolButton>

#include <cmath>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "picture/bitmap_image.h"
#include "picture/eps_image_rep.h"
#include "picture/first_image.h"
#include "picture/pdf_image_rep.h"
#include "picture/web_image_rep.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/path_control.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_view.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

const QColor kGreen = QColor::fromRgbF(0.917645f, 1.0f, 0.909804f);
const QColor kPink = QColor::fromRgbF(1.0f, 0.913725f, 0.949019f);
const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg'/>";

QStringList cells(const MainWindowController& c) {
  return {c.epsMatrix->cellAtRow(0, 0)->text(), c.epsMatrix->cellAtRow(1, 0)->text(),
          c.epsMatrix->cellAtRow(0, 1)->text(), c.epsMatrix->cellAtRow(1, 1)->text()};
}

QStringList formTexts(const MainWindowController& c) {
  QStringList all;
  for (ZyForm* form : {c.titleForm(), c.creatorForm(), c.creationDateForm(), c.forForm(), c.copyrightForm(),
                       c.encodingForm()})
    all << form->cellAtIndex(0)->text();
  return all;
}

/// How often all that is seen of the widget that it watches has been painted.
struct Paints : QObject {
  int count = 0;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && static_cast<QPaintEvent*>(event)->rect().contains(
                                              static_cast<QWidget*>(watched)->visibleRegion().boundingRect()))
      ++count;
    return false;
  }
};

NSBitmapImageRep smallPreview() {
  QImage image(4, 3, QImage::Format_RGB32);
  image.fill(Qt::red);
  return bitmapFromImage(image);
}

MemoryPicture svgPicture(std::optional<QRectF> viewBox, std::optional<bool> fixedX = {},
                         std::optional<bool> fixedY = {}) {
  MemoryPicture picture;
  picture.facts.viewBox = viewBox;
  picture.facts.fixedRatioX = fixedX;
  picture.facts.fixedRatioY = fixedY;
  return picture;
}

}  // namespace

class MainWindowLoadingTest : public QObject {
  Q_OBJECT
 private slots:
  void anUntitledDocumentShowsNothing() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    const QSize before = c.window()->size();
    c.windowDidLoad();
    QCOMPARE(formTexts(c), QStringList({"", "", "", "", "", ""}));
    QCOMPARE(cells(c), QStringList({"", "", "", ""}));
    QCOMPARE(c.descriptionView->string(), QString());
    QCOMPARE(c.epsMatrixBox->title(), QString());
    QCOMPARE(c.previewField->text(), QString());
    QCOMPARE(c.previewImageView()->imageFrameStyle(), 2);
    QVERIFY(c.previewImageView()->image().isNull());
    QCOMPARE(c.rotateField()->text(), QString());
    for (QWidget* control :
         {static_cast<QWidget*>(c.dialKnob()), static_cast<QWidget*>(c.rotateField()),
          static_cast<QWidget*>(c.useBackgroundSwitch()), static_cast<QWidget*>(c.backgroundColorWell())})
      QVERIFY(!control->isEnabled());
    QCOMPARE(c.window()->size(), before);
    QVERIFY(!c.validateUserInterfaceItem());
    QCOMPARE(fixture.service.openCount(), 0);
  }

  void anEpsFileShowsBoxHeaderAndSource() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QVERIFY(dynamic_cast<NSEPSImageRep*>(c.view()->imageRep().get()));
    QCOMPARE(c.epsMatrixBox->title(), QStringLiteral("Bounds"));
    QCOMPARE(cells(c), QStringList({"10", "20", "200", "100"}));
    QCOMPARE(c.epsMatrix->backgroundColor(), kGreen);
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("A picture"));
    QCOMPARE(c.creatorForm()->cellAtIndex(0)->text(), QStringLiteral("By hand"));
    QVERIFY(c.sourceTextView->string().startsWith("%!PS-Adobe-3.0 EPSF-3.0"));
    QCOMPARE(c.view()->coordinateRect(), QRectF(10, 20, 200, 100));
    QCOMPARE(c.view()->imageSize(), QSizeF(200, 100));
    QCOMPARE(c.view()->frame().size(), QSizeF(200, 100));
    QCOMPARE(c.view()->bounds(), QRectF(-100, -50, 200, 100));
    QCOMPARE(c.view()->scaleX(), 1.0);
    QVERIFY(!c.dialKnob()->clockwise());
    QVERIFY(!c.view()->flippedCoordinate());
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.zoomFactor(), 1.0);
    QCOMPARE(c.pathControl->url(), fixture.document.fileURL());
    QVERIFY(c.dialKnob()->isEnabled() && c.rotateField()->isEnabled() &&
            c.useBackgroundSwitch()->isEnabled());
    QVERIFY(c.validateUserInterfaceItem());
  }

  void anEpsiFileIsTreatedAsEps() {
    WindowFixture fixture;
    MainWindowController& c =
        fixture.loaded(epsBytes("%%BeginPreview: 8 1 1 1\n% FF\n%%EndPreview\n"), "a.epsi", NorvexEPSIType);
    QVERIFY(dynamic_cast<NSEPSImageRep*>(c.view()->imageRep().get()));
    QCOMPARE(cells(c), QStringList({"10", "20", "200", "100"}));
    QCOMPARE(c.epsMatrixBox->title(), QStringLiteral("Bounds"));
    QCOMPARE(c.previewField->text(), QStringLiteral("Include Preview"));
    QCOMPARE(c.previewImageView()->image().size(), QSize(8, 1));
  }

  void anIllustratorFileThatIsPostScriptGetsTheEpsHeader() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded(epsBytes(), "a.ai", NorvexIllustratorType);
    QCOMPARE(cells(c), QStringList({"10", "20", "200", "100"}));
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("A picture"));
  }

  void anIllustratorFileThatIsPdfGetsThePdfHeaderAndBounds() {
    WindowFixture fixture;
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(5, 6, 70, 80)};
    picture.facts.attributes = {{"Title", "Inside"}};
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.loaded("%PDF-1.4 and so on", "a.ai", NorvexIllustratorType);
    QVERIFY(dynamic_cast<NSPDFImageRep*>(c.view()->imageRep().get()));
    QCOMPARE(cells(c), QStringList({"5", "6", "70", "80"}));
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("Inside"));
    QVERIFY(!c.dialKnob()->clockwise());
    QCOMPARE(c.sourceTextView->string(), QString());
  }

  void anSvgFileShowsItsViewBox() {
    WindowFixture fixture;
    fixture.service.setPicture(svgPicture(QRectF(1, 2, 400, 50)));
    MainWindowController& c = fixture.loaded(kSvg, "a.svg", UTTypeSVG().identifier());
    QCOMPARE(c.epsMatrixBox->title(), QStringLiteral("ViewBox"));
    QCOMPARE(cells(c), QStringList({"1", "2", "400", "50"}));
    QCOMPARE(c.view()->coordinateRect(), QRectF(1, 2, 400, 50));
    QCOMPARE(c.view()->imageSize(), QSizeF(200, 100));
    QCOMPARE(c.view()->scaleX(), 0.5);
    QCOMPARE(c.view()->scaleY(), 2.0);
    QVERIFY(c.dialKnob()->clockwise());
    QVERIFY(!c.view()->flippedCoordinate());
    QCOMPARE(c.colorSpaceNameForm()->cellAtIndex(0)->text(), QStringLiteral("sRGB"));
  }

  void anSvgWithoutAViewBoxHasZeroCellsAndInfiniteScales() {
    WindowFixture fixture;
    fixture.service.setPicture(svgPicture(std::nullopt));
    MainWindowController& c = fixture.loaded(kSvg, "a.svg", UTTypeSVG().identifier());
    QCOMPARE(cells(c), QStringList({"0", "0", "0", "0"}));
    QVERIFY(std::isinf(c.view()->scaleX()) && std::isinf(c.view()->scaleY()));
  }

  void theMatrixIsPinkWhenOneRatioIsNotFixed_data() {
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QColor>("color");
    QTest::newRow("both fixed") << 1 << 1 << kGreen;
    QTest::newRow("x fixed, y not") << 1 << 0 << kPink;
    QTest::newRow("y fixed, x not") << 0 << 1 << kPink;
    QTest::newRow("neither") << 0 << 0 << kPink;
    QTest::newRow("no keys") << -1 << -1 << kGreen;
    QTest::newRow("one key only") << 0 << -1 << kGreen;
  }
  void theMatrixIsPinkWhenOneRatioIsNotFixed() {
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(QColor, color);
    const auto key = [](int value) {
      return value < 0 ? std::optional<bool>() : std::optional<bool>(value == 1);
    };
    WindowFixture fixture;
    fixture.service.setPicture(svgPicture(QRectF(0, 0, 1, 1), key(x), key(y)));
    MainWindowController& c = fixture.loaded(kSvg, "a.svg", UTTypeSVG().identifier());
    QCOMPARE(c.epsMatrix->backgroundColor(), color);
  }

  void aWindowsMetafileIsShownAndToldWithItsSize() {
    WindowFixture fixture;
    fixture.service.setPreview(smallPreview());
    const QByteArray program = epsBytes(), metafile(3000, 'w');
    QByteArray header = QByteArray("\xC5\xD0\xD3\xC6", 4);
    for (const qsizetype value :
         {qsizetype(30), program.size(), 30 + program.size(), metafile.size(), qsizetype(0), qsizetype(0)})
      header += testdata::littleEndian(quint32(value));
    header += "\xFF\xFF";
    MainWindowController& c = fixture.loaded(header + program + metafile, "a.eps", NorvexEPSType);
    QCOMPARE(c.previewField->text(), "Windows metafile, " + QLocale().formattedDataSize(3000));
    QCOMPARE(c.previewImageView()->image().size(), QSize(4, 3));
    // One that cannot be drawn is no preview.
    WindowFixture other;
    QCOMPARE(other.loaded(header + program + metafile, "a.eps", NorvexEPSType).previewField->text(),
             QStringLiteral("Image"));
  }

  void thePlatesOfASeparatedPictureAreTold() {
    WindowFixture fixture;
    const QByteArray plates =
        "%%PlateFile: (Cyan) EPS #02000 3000\n%%PlateFile: (Gold Foil) EPS Local gold.eps\n";
    MainWindowController& c = fixture.loaded(epsBytes(plates), "a.eps", NorvexEPSType);
    QVERIFY2(c.noteField->text().contains("The picture is separated into plates: Cyan (" +
                                          QLocale().formattedDataSize(3000) + "), Gold Foil (gold.eps)."),
             qPrintable(c.noteField->text()));
    WindowFixture plain;
    QVERIFY(!plain.loaded(epsBytes(), "a.eps", NorvexEPSType).noteField->text().contains("plates"));
  }

  void aPreviewInTheFileIsShown() {
    WindowFixture fixture;
    fixture.service.setPreview(smallPreview());
    MainWindowController& c = fixture.loaded(testdata::binaryEps(epsBytes(), "II*"), "a.eps", NorvexEPSType);
    QCOMPARE(c.previewField->text(), QStringLiteral("Include Preview"));
    QCOMPARE(c.previewImageView()->imageFrameStyle(), 2);
    QCOMPARE(c.previewImageView()->compositingOperation(), 2);
    QCOMPARE(c.previewImageView()->image().size(), QSize(4, 3));
    QVERIFY(!c.previewImageView()->imageRep());
    QCOMPARE(firstImageOf(*c.view()->imageRep()).size(),
             QSize(4, 3));  // and in the picture's place before it
  }

  void aViewIsPaintedAgainWhenItsPictureCannotBeDrawn() {
    WindowFixture fixture;
    fixture.service.setPreview(smallPreview());
    MainWindowController& c = fixture.loaded(testdata::binaryEps(epsBytes(), "II*"), "a.eps", NorvexEPSType);
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    emit c.view()->imageRep()->renderingFailed({ErrorKind::NotParsable, "there is an error in the program"});
    QTRY_VERIFY(c.messageBar()->isVisible());
    QTest::qWait(200);  // all that moves for the message has moved
    Paints paints;
    c.viewWidget()->installEventFilter(&paints);
    emit c.view()->imageRep()->renderingFailed({ErrorKind::NotParsable, "there is an error in the program"});
    QTRY_VERIFY(paints.count > 0);
  }

  void aPictureThatWasReadBeforeTellsNothingMore() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const auto before = c.view()->imageRep();
    fixture.revert();
    QVERIFY(c.view()->imageRep() != before);
    emit before->renderingFailed({ErrorKind::NotParsable, "there is an error in the program"});
    QCOMPARE(c.messageBar()->message(), QString());
    emit c.view()->imageRep()->renderingFailed({ErrorKind::NotParsable, "there is an error in the program"});
    QVERIFY(!c.messageBar()->message().isEmpty());
  }

  void aFileWithoutPreviewShowsThePictureItself() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QCOMPARE(c.previewField->text(), QStringLiteral("Image"));
    QCOMPARE(c.previewImageView()->imageFrameStyle(), 255);
    QCOMPARE(c.previewImageView()->imageRep(), c.view()->imageRep());
    QVERIFY(firstImageOf(*c.view()->imageRep()).isNull());
  }

  void anSvgPreviewComesWithItsPdfForm() {
    WindowFixture fixture;
    fixture.service.setPicture(svgPicture(QRectF(0, 0, 10, 10)));
    MainWindowController& c = fixture.loaded(kSvg, "a.svg", UTTypeSVG().identifier());
    QCOMPARE(c.previewField->text(), QStringLiteral("Image"));
    QVERIFY(!c.previewImageView()->imageRep());
    QTRY_VERIFY(c.previewImageView()->imageRep());
    QVERIFY(dynamic_cast<NSPDFImageRep*>(c.previewImageView()->imageRep().get()));
    QVERIFY(fixture.alerts.shown.isEmpty());
  }

  void anSvgWhosePdfFormFailsIsToldOnce() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Pdf, {ErrorKind::Unsupported, "the filter is unknown"});
    });
    MainWindowController& c = fixture.loaded(kSvg, "a picture.svg", UTTypeSVG().identifier());
    QTRY_COMPARE(fixture.alerts.shown.size(), 1);
    QCOMPARE(fixture.alerts.shown.first().style, AlertStyle::Warning);
    QCOMPARE(fixture.alerts.shown.first().messageText, QStringLiteral("The filter is unknown."));
    QCOMPARE(fixture.alerts.shown.first().informativeText,
             "file://" + fixture.folder.filePath("a picture.svg"));
    QVERIFY(fixture.alerts.shown.first().buttons.isEmpty());
    QVERIFY(!c.previewImageView()->imageRep());
    std::static_pointer_cast<ZyWebImageRep>(c.view()->imageRep())->loadPDFImageRep();
    QTest::qWait(50);
    QCOMPARE(fixture.alerts.shown.size(), 1);
  }

  void revertingRunsTheWholeSetUpAgain() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.rotateField()->setDoubleValue(30);
    c.rotateChange(30);
    c.zoomingScrollView()->zoomTo(2.0);
    c.inspectorWindow->setWindowTitle("something");
    fixture.write("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 50 60\n%%Title: Another\n%%EndComments\n",
                  "a.eps");
    fixture.revert();
    QCOMPARE(c.view()->rotate(), 0.0);
    QCOMPARE(c.zoomFactor(), 1.0);
    QCOMPARE(c.zoomingScrollView()->factor(), 1.0);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("0.0000"));
    QCOMPARE(cells(c), QStringList({"0", "0", "50", "60"}));
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("Another"));
    QCOMPARE(c.inspectorWindow->windowTitle(), QString());
  }

  void revertingWithAFileThatIsGoneLeavesThePictureAndSaysSoOnce() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const auto picture = c.view()->imageRep();
    QVERIFY(QFile::remove(fixture.folder.filePath("a.eps")));
    fixture.revert();
    QCOMPARE(c.view()->imageRep(), picture);
    QVERIFY(c.dialKnob()->isEnabled());
    QCOMPARE(c.messageBar()->message(),
             QStringLiteral("No such file or directory. What is shown was read before."));
    QVERIFY(fixture.alerts.shown.isEmpty());
  }

  void aProgramThatNoLongerDrawsLeavesThePicture() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const auto picture = c.view()->imageRep();
    c.rotateChange(30);
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Render, {ErrorKind::NotParsable, "there is an error in the program"});
    });
    fixture.write(epsBytes().replace("A picture", "Another"), "a.eps");
    fixture.revert();
    QCOMPARE(c.view()->imageRep(), picture);
    QCOMPARE(c.rotateField()->text(), QStringLiteral("30.0000"));
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("A picture"));
    QCOMPARE(c.messageBar()->message(),
             QStringLiteral("There is an error in the program. What is shown was read before."));
    fixture.service.setPrepare({});
    emit c.messageBar()->actionChosen();
    QCOMPARE(c.titleForm()->cellAtIndex(0)->text(), QStringLiteral("Another"));
    QCOMPARE(c.view()->rotate(), 0.0);
    QVERIFY(c.messageBar()->message().isEmpty());
  }

  void wordsOfALibraryStandBehindDetails() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "PostScript error: undefined in x"});
    });
    MainWindowController& c = fixture.loaded("nothing", "a.svg", UTTypeSVG().identifier());
    c.window()->show();
    QCOMPARE(c.messageBar()->message(), QStringLiteral("The PostScript program stops with an error."));
    QCOMPARE(c.messageBar()->details(), QStringLiteral("undefined in x"));
    auto* button = c.messageBar()->findChild<QToolButton*>("detailsButton");
    QLabel* details = nullptr;
    for (QLabel* label : c.messageBar()->findChildren<QLabel*>())
      if (label->text() == c.messageBar()->details()) details = label;
    QVERIFY(button->isVisible() && details && !details->isVisible());
    const int closed = c.messageBar()->height();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(details->isVisible());
    QTRY_VERIFY(c.messageBar()->height() > closed);
    c.messageBar()->showMessage(MessageBar::Kind::Information, "Something else.");
    QVERIFY(!button->isVisible() && !details->isVisible());
  }

  void aFileThatWentAwayIsTold() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.fileDidDisappear();
    QCOMPARE(c.messageBar()->message(),
             QStringLiteral("The file was deleted or moved. What is shown was read before."));
    QVERIFY(c.view()->imageRep());
  }

  void anotherTypeLoadsNothing() {
    WindowFixture fixture;
    MainWindowController& c = fixture.open(epsBytes(), "a.txt", "public.plain-text");
    c.window();
    c.dialKnob()->setClockwise(true);
    c.view()->setFlippedCoordinate(true);
    c.windowDidLoad();
    QCOMPARE(c.epsMatrixBox->title(), QStringLiteral("Bounds"));
    QCOMPARE(cells(c), QStringList({"0", "0", "0", "0"}));
    QCOMPARE(c.previewField->text(), QStringLiteral("Image"));
    QVERIFY(c.dialKnob()->clockwise() && c.view()->flippedCoordinate());
    QCOMPARE(fixture.service.openCount(), 0);
  }

  void aFileThatCannotBeLoadedHasAZeroFrameAndTheSmallestWindow() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("not PostScript", "a.eps", NorvexEPSType);
    QVERIFY(!c.view()->imageRep());
    QCOMPARE(c.view()->imageSize(), QSizeF(0, 0));
    QCOMPARE(c.view()->frame().size(), QSizeF(0, 0));
    QCOMPARE(c.window()->width(), c.window()->minimumWidth());
    QCOMPARE(formTexts(c), QStringList({"", "", "", "", "", ""}));
    QVERIFY(!c.rotateField()->isEnabled());
    QVERIFY(!c.validateUserInterfaceItem());
  }

  void anSvgThatCannotBeLoadedKeepsTheViewsNumbers() {
    WindowFixture fixture;
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "no XML"});
    });
    MainWindowController& c = fixture.loaded("nothing", "a.svg", UTTypeSVG().identifier());
    QCOMPARE(c.epsMatrixBox->title(), QStringLiteral("ViewBox"));
    QCOMPARE(c.view()->imageSize(), QSizeF(0, 0));
    QCOMPARE(c.view()->scaleX(), 1.0);
    QVERIFY(!c.dialKnob()->clockwise());
    QCOMPARE(c.messageBar()->message(), QStringLiteral("No XML."));
  }

  void anSvgThatCannotBeLoadedAgainLeavesThePicture() {
    WindowFixture fixture;
    fixture.service.setPicture(svgPicture(QRectF(1, 2, 400, 50)));
    MainWindowController& c = fixture.loaded(kSvg, "a.svg", UTTypeSVG().identifier());
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "no XML"});
    });
    fixture.revert();
    QVERIFY(c.view()->imageRep());
    QCOMPARE(c.view()->imageSize(), QSizeF(200, 100));
    QCOMPARE(c.view()->coordinateRect(), QRectF(1, 2, 400, 50));
    QCOMPARE(c.view()->scaleX(), 0.5);
    QCOMPARE(c.view()->scaleY(), 2.0);
    QVERIFY(c.rotateField()->isEnabled());
  }

  void theFixedTextsAndNumbersOfTheSetUp() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QCOMPARE(c.backgroundColorWell()->toolTip(), QStringLiteral("OrderfrontColorWell"));
    QCOMPARE(c.windowBackgroundColorTitle()->text(), QStringLiteral("BackgroundColor"));
    QCOMPARE(c.rotateTitle()->text(), QStringLiteral("AngleOfRotation"));
    QCOMPARE(c.rotateField()->toolTip(), QStringLiteral("D.M.S."));
    QCOMPARE(c.rotateField()->text(), QStringLiteral("0.0000"));
    QCOMPARE(c.colorSpaceNameForm()->titleAtIndex(0)->text(), QStringLiteral("ColorSpaceName:"));
    for (const QLabel* point : {c.startPoint, c.endPoint}) {
      QCOMPARE(point->toolTip(), QStringLiteral("SelectedRectangle"));
      QCOMPARE(point->text(), QString());
    }
    QCOMPARE(c.titleForm()->toolTip(), QStringLiteral("Title"));
    QCOMPARE(c.epsMatrix->toolTip(), QStringLiteral("ViewBox"));
    QCOMPARE(c.encodingForm()->toolTip(), QStringLiteral("Encoding"));
    QCOMPARE(c.copyToolbarItem->text(), QStringLiteral("Copy"));
    QCOMPARE(c.doPrintingToolbarItem->text(), QStringLiteral("Print"));
    QCOMPARE(c.dialKnob()->toolTip(), QStringLiteral("RotateImageByMousedragg"));
    QCOMPARE(c.inspectorToolbarItem->text(), QStringLiteral("Inspector"));
    QCOMPARE(c.copyToolbarItem->toolTip(),
             QStringLiteral("The range of the selection or visible rect are copied onto the paste board."));
    QCOMPARE(c.doPrintingToolbarItem->toolTip(),
             QStringLiteral("The range of the selection or visible rect are printed."));
    QCOMPARE(c.doSaveToToolbarItem->toolTip(),
             QStringLiteral("Selected range of image data is written or displayed."));
    QCOMPARE(c.doSaveToToolbarItem->text(), QStringLiteral("SaveTo"));
    QCOMPARE(c.useBackgroundSwitch()->text(), QStringLiteral("Use"));
    QCOMPARE(c.pathControl->toolTip(), QStringLiteral("Filename"));
    QCOMPARE(c.sourceTextView->toolTip(), QStringLiteral("SourceCode"));
    QCOMPARE(c.viewWidget()->toolTip(),
             QStringLiteral("Selection is determined by dragging the mouse twice."));
    QCOMPARE(c.inspectorWindow->windowTitle(), QString());
  }

  void theDestructorUnhooksTheViewAndTellsTheController() {
    auto fixture = std::make_unique<WindowFixture>();
    MainWindowController& c = fixture->loadedEps();
    QObject* told = nullptr;
    connect(&c, &MainWindowController::windowWillClose, this, [&](QObject* object) { told = object; });
    QObject* const expected = &c;
    fixture.reset();
    QCOMPARE(told, expected);
  }
};

NORVEX_TEST(MainWindowLoadingTest)
#include "main_window_loading_test.moc"
