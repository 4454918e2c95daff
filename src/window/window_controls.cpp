#include "window/window_controls.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QUrl>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "ui/controls/color_well.h"
#include "ui/controls/copyable_label.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/path_control.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/message_bar.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_view.h"
#include "ui/style/quiet_text.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"

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

void WindowControls::take(Ui::MainWindowController& ui) {
  ui_ = &ui;
  takeOutlets();
  takeProperties();
}

void WindowControls::takeOutlets() {
  MainWindowController& c = controller_;
  c.startPoint = ui_->startPoint;
  c.endPoint = ui_->endPoint;
  c.inspectorToolbarItem = ui_->inspectorToolbarItem;
  c.copyToolbarItem = ui_->copyToolbarItem;
  c.doPrintingToolbarItem = ui_->doPrintingToolbarItem;
  c.doSaveToToolbarItem = ui_->doSaveToToolbarItem;
  c.inspectorWindow = ui_->inspectorWindow;
  c.pathControl = ui_->pathControl;
  c.descriptionView = ui_->descriptionView;
  c.sourceTextView = ui_->sourceTextView;
  c.epsMatrix = ui_->epsMatrix;
  c.epsMatrixBox = ui_->epsMatrixBox;
  c.previewField = ui_->previewField;
  c.doSaveToPopUp = ui_->doSaveToPopUp;
  c.doSaveToImageView = ui_->doSaveToImageView;
  c.doSaveToAccessoryView = ui_->doSaveToAccessoryView;
  c.menuBar = ui_->menuBar;
  c.toolbar = ui_->toolbar;
  c.inspectorTabs = ui_->inspectorTabs;
  c.sourcePage = ui_->sourcePage;
  c.boundingBoxForm = ui_->boundingBoxForm;
  c.usesForm = ui_->usesForm;
  c.noteField = ui_->noteField;
  c.rotateReadout = ui_->rotateReadout;
  c.doSaveToNote = ui_->doSaveToNote;
}

void WindowControls::takeProperties() {
  MainWindowController& c = controller_;
  c.setUseBackgroundSwitch(ui_->useBackgroundSwitch);
  c.setWindowBackgroundColorTitle(ui_->windowBackgroundColorTitle);
  c.setRotateTitle(ui_->rotateTitle);
  c.setRotateField(ui_->rotateField);
  c.setBackgroundColorWell(ui_->backgroundColorWell);
  c.setDialKnob(ui_->dialKnob);
  c.setPreviewImageView(ui_->previewImageView);
  c.setColorSpaceNameForm(ui_->colorSpaceNameForm);
  c.setEncodingForm(ui_->encodingForm);
  c.setTitleForm(ui_->titleForm);
  c.setCreatorForm(ui_->creatorForm);
  c.setCreationDateForm(ui_->creationDateForm);
  c.setForForm(ui_->forForm);
  c.setCopyrightForm(ui_->copyrightForm);
  c.setView(&c.viewWidget()->view());
  c.setZoomingScrollView(&c.scrollArea()->scrollView());
}

void WindowControls::connect() {
  MainWindowController* const c = &controller_;
  for (QLabel* field : {c->startPoint, c->endPoint}) makeCopyable(*field);
  QObject::connect(c->backgroundColorWell(), &ColorWell::colorChosen, c, &MainWindowController::takeColor);
  QObject::connect(c->useBackgroundSwitch(), &QCheckBox::stateChanged, c,
                   &MainWindowController::useBackgroundAction);
  QObject::connect(c->rotateField(), &NumberField::valueEdited, c, &MainWindowController::rotateChange);
  QObject::connect(c->dialKnob(), &ZyDialKnob::turned, c, &MainWindowController::doRotateFromKnob);
  MessagesCommand* const messages = &commands_.messages;
  QObject::connect(c->viewWidget(), &NorvexViewWidget::drawn, messages, &MessagesCommand::followRendering,
                   Qt::QueuedConnection);
  QObject::connect(c->loadingCard(), &LoadingCard::cancelled, c,
                   [&stopping = commands_.stopping] { stopping.stop(); });
  QObject::connect(c->messageBar(), &MessageBar::actionChosen, messages, &MessagesCommand::actionChosen);
  QObject::connect(c->messageBar(), &MessageBar::otherChosen, messages, &MessagesCommand::otherChosen);
}

void WindowControls::setUp() {
  MainWindowController& c = controller_;
  setUpTitles();
  setUpToolbarItems();
  c.useBackgroundSwitch()->setText(localizedString("Use"));
  commands_.inspector.applyBackground(c.useBackgroundSwitch()->checkState());
  c.previewImageView()->setBackgroundColor(c.scrollArea()->backgroundColor());
  setUpTexts();
  showFile();
  c.previewImageView()->setEditable(false);
  c.previewImageView()->setUseBackgroundColor(true);
  if (c.inspectorWindow->isVisible()) commands_.inspector.title();  // otherwise when it is shown
}

void WindowControls::showFile() {
  MainWindowController& c = controller_;
  const Document* const document = c.document();
  const QUrl url = document ? document->fileURL() : QUrl();
  c.pathControl->setToolTip(localizedString("Filename"));
  c.pathControl->setUrl(url);
  c.mainWindow()->setWindowTitle(document ? document->displayName() : QString());
  c.mainWindow()->setWindowFilePath(url.toLocalFile());
}

void WindowControls::setUpTitles() {
  MainWindowController& c = controller_;
  c.backgroundColorWell()->setColor(c.scrollArea()->backgroundColor());
  c.backgroundColorWell()->setToolTip(localizedString("OrderfrontColorWell"));
  c.windowBackgroundColorTitle()->setText(localizedString("BackgroundColor"));
  c.rotateField()->setNumberFormat(NumberFormat(kAngleFormat));
  c.rotateTitle()->setText(localizedString("AngleOfRotation"));
  c.rotateField()->setToolTip(localizedString("D.M.S."));
  c.colorSpaceNameForm()->setTitle(0, localizedString("ColorSpaceName:"));
  c.colorSpaceNameForm()->calcSize();
  for (QLabel* field : {c.startPoint, c.endPoint}) {
    field->clear();
    field->setToolTip(localizedString("SelectedRectangle"));
  }
  c.dialKnob()->setTickMarks(Qt::black, std::nullopt, 4);
  c.dialKnob()->setBordered(false);
  c.dialKnob()->setEditable(true);
  c.dialKnob()->setDmsTextField(c.rotateField());
  c.dialKnob()->setToolTip(localizedString("RotateImageByMousedragg"));
  c.inspectorWindow->setWindowTitle(QString());
}

void WindowControls::setUpToolbarItems() {
  MainWindowController& c = controller_;
  setUpItem(*c.inspectorToolbarItem, "Inspector", nullptr);
  setUpItem(*c.copyToolbarItem, "Copy",
            "The range of the selection or visible rect are copied onto the paste board.");
  setUpItem(*c.doPrintingToolbarItem, "Print", "The range of the selection or visible rect are printed.");
  setUpItem(*c.doSaveToToolbarItem, "SaveTo", "Selected range of image data is written or displayed.");
}

void WindowControls::setUpTexts() {
  MainWindowController& c = controller_;
  c.titleForm()->setToolTip(localizedString("Title"));
  c.epsMatrix->setToolTip(localizedString("ViewBox"));
  c.encodingForm()->setToolTip(localizedString("Encoding"));
  c.sourceTextView->setFixedPitchFont(kSourcePointSize);
  c.sourceTextView->setLineWrapping(false);
  c.sourceTextView->setToolTip(localizedString("SourceCode"));
  const std::pair<ZyForm*, const char*> titled[] = {
      {c.titleForm(), "Title:"}, {c.creatorForm(), "Creator:"},     {c.creationDateForm(), "Created:"},
      {c.forForm(), "For:"},     {c.copyrightForm(), "Copyright:"}, {c.encodingForm(), "Encoding:"}};
  c.boundingBoxForm->setTitle(0, localizedString("Bounding box:"));
  c.boundingBoxForm->setTitle(1, localizedString("High resolution:"));
  c.usesForm->setTitle(0, localizedString("Fonts:"));
  c.usesForm->setTitle(1, localizedString("Colors used:"));
  QList<ZyForm*> forms{c.colorSpaceNameForm(), c.usesForm, c.boundingBoxForm, ui_->guessForm};
  for (const auto& [form, title] : titled) {
    form->setTitle(0, localizedString(title));
    forms << form;
  }
  ZyForm::alignTitles(forms);
  ui_->encodingTitle->setMinimumWidth(c.titleForm()->titleAtIndex(0)->minimumWidth());
  makeQuiet(*c.previewField);
}

void WindowControls::validate() {
  const bool hasPicture = controller_.view()->imageRep() != nullptr;
  controller_.dialKnob()->setEnabled(hasPicture);
  controller_.rotateField()->setEnabled(hasPicture);
  controller_.useBackgroundSwitch()->setEnabled(hasPicture);
  controller_.backgroundColorWell()->setEnabled(hasPicture);
}

}  // namespace norvex
