// The set-up: every control, whatever the document; what was read of the file; and the last step.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QThread>

#include <utility>

#include "base/localized_string.h"
#include "display/skt_zooming_scroll_view.h"
#include "document/document.h"
#include "picture/web_image_rep.h"
#include "ui/controls/color_well.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/path_control.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_view.h"
#include "ui/style/quiet_text.h"
#include "ui_MainWindowController.h"
#include "window/document_contents.h"
#include "window/main_window_controller.h"
#include "window/reading/layers_command.h"
#include "window/reading/password_command.h"
#include "window/viewing/live_file.h"
#include "window/viewing/pages_command.h"

namespace norvex {

namespace {

/// The positive pattern has no leading zero digit, the negative one has.
const QString kAngleFormat = QStringLiteral("#,###.0000;0.0000;-#,##0.0000");
constexpr double kSourcePointSize = 10;

void setUpItem(QAction& item, const char* label, const char* tip) {
  const QString text = localizedString(label);
  item.setText(text);
  item.setIconText(text);
  item.setToolTip(tip ? localizedString(tip) : text);
}

}  // namespace

void MainWindowController::setUpControls() {
  setUpTitles();
  setUpToolbarItems();
  useBackgroundSwitch()->setText(localizedString("Use"));
  inspector_.applyBackground(useBackgroundSwitch()->checkState());
  previewImageView()->setBackgroundColor(scrollArea_->backgroundColor());
  setUpTexts();
  const QUrl url = document_ ? document_->fileURL() : QUrl();
  pathControl->setToolTip(localizedString("Filename"));
  pathControl->setUrl(url);
  window_->setWindowTitle(document_ ? document_->displayName() : QString());
  window_->setWindowFilePath(url.toLocalFile());
  previewImageView()->setEditable(false);
  previewImageView()->setUseBackgroundColor(true);
  if (inspectorWindow->isVisible()) inspector_.title();  // otherwise when it is shown
}

void MainWindowController::setUpTitles() {
  backgroundColorWell()->setColor(scrollArea_->backgroundColor());
  backgroundColorWell()->setToolTip(localizedString("OrderfrontColorWell"));
  windowBackgroundColorTitle()->setText(localizedString("BackgroundColor"));
  rotateField()->setNumberFormat(NumberFormat(kAngleFormat));
  rotateTitle()->setText(localizedString("AngleOfRotation"));
  rotateField()->setToolTip(localizedString("D.M.S."));
  colorSpaceNameForm()->setTitle(0, localizedString("ColorSpaceName:"));
  colorSpaceNameForm()->calcSize();
  for (QLabel* field : {startPoint, endPoint}) {
    field->clear();
    field->setToolTip(localizedString("SelectedRectangle"));
  }
  dialKnob()->setTickMarks(Qt::black, std::nullopt, 4);
  dialKnob()->setBordered(false);
  dialKnob()->setEditable(true);
  dialKnob()->setDmsTextField(rotateField());
  dialKnob()->setToolTip(localizedString("RotateImageByMousedragg"));
  inspectorWindow->setWindowTitle(QString());
}

void MainWindowController::setUpToolbarItems() {
  setUpItem(*inspectorToolbarItem, "Inspector", nullptr);
  setUpItem(*copyToolbarItem, "Copy",
            "The range of the selection or visible rect are copied onto the paste board.");
  setUpItem(*doPrintingToolbarItem, "Print", "The range of the selection or visible rect are printed.");
  setUpItem(*doSaveToToolbarItem, "SaveTo", "Selected range of image data is written or displayed.");
}

void MainWindowController::setUpTexts() {
  titleForm()->setToolTip(localizedString("Title"));
  epsMatrix->setToolTip(localizedString("ViewBox"));
  encodingForm()->setToolTip(localizedString("Encoding"));
  sourceTextView->setFixedPitchFont(kSourcePointSize);
  sourceTextView->setLineWrapping(false);
  sourceTextView->setToolTip(localizedString("SourceCode"));
  struct Titled {
    ZyForm* form;
    const char* title;
  };
  const Titled all[] = {{titleForm(), "Title:"},          {creatorForm(), "Creator:"},
                        {creationDateForm(), "Created:"}, {forForm(), "For:"},
                        {copyrightForm(), "Copyright:"},  {encodingForm(), "Encoding:"}};
  ui_->boundingBoxForm->setTitle(0, localizedString("Bounding box:"));
  ui_->boundingBoxForm->setTitle(1, localizedString("High resolution:"));
  ui_->usesForm->setTitle(0, localizedString("Fonts:"));
  ui_->usesForm->setTitle(1, localizedString("Colors used:"));
  QList<ZyForm*> forms{colorSpaceNameForm(), ui_->usesForm, ui_->boundingBoxForm, ui_->guessForm};
  for (const Titled& each : all) {
    each.form->setTitle(0, localizedString(each.title));
    forms << each.form;
  }
  ZyForm::alignTitles(forms);
  ui_->encodingTitle->setMinimumWidth(titleForm()->titleAtIndex(0)->minimumWidth());
  makeQuiet(*previewField);
}

void MainWindowController::take(const DocumentContents& contents, bool again) {
  auto* passwords = findChild<PasswordCommand*>();
  const bool stays = again && !contents.imageRep;
  if (stays) {
    findChild<LiveFile*>()->documentDidStay();
    findChild<LayersCommand*>()->documentDidStay();
  }
  // Nothing has failed yet: the window keeps its size for the picture.
  if (contents.error && passwords->take(*contents.error)) return finishSetUp();
  if (stays) return messages_.pictureStays(contents.error.value_or(Error{ErrorKind::CannotRead, {}}));
  if (contents.imageRep) passwords->documentDidOpen();
  setUpControls();
  showContents(contents);
  finishSetUp();
  takeFirstView();
  if (!again) tell(contents.lost);
  emit documentShown();
}

void MainWindowController::showContents(const DocumentContents& contents) {
  messageBar_->clearMessage();
  if (contents.kind == DocumentKind::Svg) QObject::disconnect(svgObservation_);
  const auto svg = std::dynamic_pointer_cast<ZyWebImageRep>(contents.imageRep);
  if (svg && QThread::currentThread() == qApp->thread())
    svgObservation_ = connect(svg.get(), &ZyWebImageRep::pdfImageRepDidLoad, this,
                              &MainWindowController::pdfImageRepDidLoad);
  contents_.show(contents);
  encoding_.show(contents.imageRep, contents.chosenEncoding, contents.guess);
  if (const auto space = ContentsDisplay::colorSpace(contents.header)) windowColorSpace_ = *space;
  colorSpaceNameForm()->setText(0, windowColorSpace_.description());
  resetRotationAndZoom();
  messages_.watchPicture(contents.process);
  if (contents.error) messages_.showProblem(*contents.error);
}

void MainWindowController::pdfImageRepDidLoad(bool success, const Error& error) {
  QObject::disconnect(svgObservation_);
  const auto rep = std::dynamic_pointer_cast<ZyWebImageRep>(view()->imageRep());
  if (!rep) return;
  if (!success) return messages_.showPdfFailure(error);
  viewWidget_->update();
  const QVariant pdf = rep->valueForKey(QString::fromLatin1(ZyWebViewPDFImageRepKey));
  previewImageView()->setImageRep(pdf.value<std::shared_ptr<NSImageRep>>());
}

void MainWindowController::resetRotationAndZoom() {
  rotateField()->setDoubleValue(0.0);
  rotateChange(0.0);
  viewWidget_->setToolTip(localizedString("Selection is determined by dragging the mouse twice."));
  if (!observing_) {
    observing_ = true;
    // While the factor changes the clip is still scaled as before; the rule needs the factor alone.
    connect(zoomingScrollView(), &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, this,
            &MainWindowController::setWindowSize);
  }
  setZoomFactor(1.0);
  setWindowSize();
  zoomingScrollView()->bind(factorBindingName, this, "zoomFactor");
  scrollArea_->scrollToTop();
}

void MainWindowController::takeFirstView() {
  const std::optional<PictureView> first = std::exchange(firstView_, std::nullopt);
  if (!first || !validateUserInterfaceItem()) return;
  dialKnob()->turnTo(first->degrees);
  zoomingScrollView()->zoomTo(first->zoom);
  if (auto* pages = findChild<PagesCommand*>()) pages->show(first->page);
}

std::optional<PictureView> MainWindowController::pictureView() const {
  if (!validateUserInterfaceItem()) return std::nullopt;
  return PictureView{zoomFactor_, dialKnob()->degreeValue(), view()->imageRep()->page()};
}

void MainWindowController::finishSetUp() {
  view()->setDelegate(this);
  const bool hasPicture = view()->imageRep() != nullptr;
  dialKnob()->setEnabled(hasPicture);
  rotateField()->setEnabled(hasPicture);
  useBackgroundSwitch()->setEnabled(hasPicture);
  backgroundColorWell()->setEnabled(hasPicture);
  validateCommands();
}

}  // namespace norvex
