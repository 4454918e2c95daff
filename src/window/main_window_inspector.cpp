// The inspector: its window, rotation, background.
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>

#include "display/norvex_view.h"
#include "metadata/eps_resources.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/web_image_rep.h"
#include "ui/controls/color_well.h"
#include "ui/controls/dms_angle.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"

namespace norvex {

namespace {

/// As the comments of a PostScript file say it: left, bottom, right, top.
QString corners(const QRectF& box) {
  const auto number = [](double value) { return QString::number(value, 'g', 9); };
  return QStringList{number(box.left()), number(box.top()), number(box.right()), number(box.bottom())}.join(
      u' ');
}

}  // namespace

void MainWindowController::titleInspector() {
  if (inspectorWindow->windowTitle().isEmpty())
    inspectorWindow->setWindowTitle(
        QStringLiteral("%1 %2").arg(window_->windowTitle(), QStringLiteral("Inspector")));
}

void MainWindowController::showInspectorWindow(QObject*) {
  titleInspector();
  if (inspectorWindow->isVisible()) {
    inspectorWindow->hide();
    return;
  }
  placeInspector();
  inspectorWindow->show();
  inspectorWindow->raise();
  inspectorWindow->activateWindow();
}

void MainWindowController::showBoundingBoxes(const NSImageRep* rep) {
  const auto* eps = qobject_cast<const NSEPSImageRep*>(rep);
  ui_->boundingBoxForm->setVisible(eps != nullptr);
  const auto highResolution = eps ? eps->hiResBoundingBox() : std::nullopt;
  ui_->boundingBoxForm->setText(0, eps ? corners(eps->boundingBox()) : QString());
  ui_->boundingBoxForm->setText(1, highResolution ? corners(*highResolution) : QString());
}

void MainWindowController::showNotes(const NSImageRep* rep) {
  ui_->noteField->clear();
  ui_->noteField->hide();
  addNotes(rep ? rep->warnings() : QStringList());
  showDrawingRemarks();
}

void MainWindowController::showDrawingRemarks() {
  if (const NSImageRep* rep = view()->imageRep().get()) addNotes(rep->process()->drawingRemarks());
}

void MainWindowController::addNotes(const QStringList& sentences) {
  if (sentences.isEmpty()) return;
  QStringList notes = ui_->noteField->text().split(u'\n', Qt::SkipEmptyParts);
  for (QString note : sentences) {
    if (!note.isEmpty()) note[0] = note.at(0).toUpper();
    if (!note.endsWith(u'.')) note += u'.';
    if (!notes.contains(note)) notes << note;
  }
  ui_->noteField->setText(notes.join(u'\n'));
  ui_->noteField->show();
}

void MainWindowController::showResources(const NSImageRep* rep) {
  QStringList fonts, colors;
  if (const auto* eps = qobject_cast<const NSEPSImageRep*>(rep)) {
    EpsResources told = epsResources(eps->sourceBytes());
    fonts = std::move(told.fonts);
    colors = std::move(told.colors);
  }
  const PictureFacts* facts = nullptr;
  if (const auto* pdf = qobject_cast<const NSPDFImageRep*>(rep)) facts = &pdf->facts();
  if (const auto* svg = qobject_cast<const ZyWebImageRep*>(rep)) facts = &svg->facts();
  if (facts) {
    fonts = facts->fonts;
    colors = facts->colorSpaces;
  }
  const QString separator = QStringLiteral(", ");
  ui_->usesForm->setText(0, fonts.join(separator));
  ui_->usesForm->setText(1, colors.join(separator));
  ui_->usesForm->setVisible(!fonts.isEmpty() || !colors.isEmpty());
}

void MainWindowController::showSource() {
  if (!inspectorWindow->isVisible()) showInspectorWindow();
  ui_->inspectorTabs->setCurrentWidget(ui_->sourcePage);
  inspectorWindow->activateWindow();
}

void MainWindowController::orderInspector() {
  // From top to bottom, as it is read; the interface file cannot name what is inside our own controls.
  QList<QWidget*> order{dialKnob(), rotateField(), backgroundColorWell(), useBackgroundSwitch()};
  for (const ZyForm* form : {titleForm(), creatorForm(), creationDateForm(), forForm(), copyrightForm(),
                             encodingForm(), colorSpaceNameForm()})
    order << form->cellAtIndex(0);
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 2; ++column) order << epsMatrix->cellAtRow(row, column);
  order << ui_->usesForm->cellAtIndex(0) << ui_->usesForm->cellAtIndex(1)
        << ui_->boundingBoxForm->cellAtIndex(0) << ui_->boundingBoxForm->cellAtIndex(1)
        << descriptionView->textEdit();
  for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

void MainWindowController::placeInspector() {
  // Once it was shown the user decides where it is.
  if (std::exchange(inspectorPlaced_, true)) return;
  const QRect beside = window_->frameGeometry();
  const QRect screen = window_->screen()->availableGeometry();
  QSize size = inspectorWindow->size().boundedTo(screen.size() - QSize(0, 48));
  inspectorWindow->resize(size);
  int x = beside.right() + 8;
  if (x + size.width() > screen.right()) x = beside.left() - size.width() - 8;
  if (x < screen.left()) x = screen.right() - size.width() - 8;
  inspectorWindow->move(x, std::clamp(beside.top(), screen.top(),
                                      std::max(screen.top(), screen.bottom() - size.height() - 40)));
}

void MainWindowController::takeColor(const QColor& color) {
  if (useBackgroundSwitch()->checkState() == Qt::Checked) scrollArea_->setBackgroundColor(color);
  previewImageView()->setBackgroundColor(color);
}

void MainWindowController::useBackgroundAction(int state) {
  if (state != Qt::Unchecked) {
    const QColor color = backgroundColorWell()->color();
    scrollArea_->setBackgroundColor(color);
    previewImageView()->setBackgroundColor(color);
  }
  applyBackgroundState(state);
  display();
}

void MainWindowController::rotateChange(double senderValue) {
  dialKnob()->setDMSValue(senderValue);
  view()->setRotate(dialKnob()->radianValue(), dialKnob()->clockwise());
  showRotationText();
  setWindowSize();
}

void MainWindowController::doRotateFromKnob() {
  view()->setRotate(dialKnob()->radianValue(), dialKnob()->clockwise());
  showRotationText();
  setWindowSize();
}

void MainWindowController::showRotationText() {
  ui_->rotateReadout->setText(dms::text(dialKnob()->DMSValue()));
}

}  // namespace norvex
