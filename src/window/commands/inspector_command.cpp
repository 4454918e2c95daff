#include "window/commands/inspector_command.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QTabWidget>

#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "metadata/eps_resources.h"
#include "picture/eps_image_rep.h"
#include "picture/localized_error.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/page_names.h"
#include "picture/web_image_rep.h"
#include "ui/controls/color_well.h"
#include "ui/controls/dms_angle.h"
#include "ui/controls/number_field.h"
#include "ui/controls/number_matrix.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/controls/zy_form.h"
#include "ui/panels/centred_window.h"
#include "ui/picture/zooming_scroll_area.h"
#include "ui/picture/zy_image_view.h"
#include "ui/source/source_text_edit.h"
#include "ui/source/source_text_view.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

/// As the comments of a PostScript file say it: left, bottom, right, top.
QString corners(const QRectF& box) {
  const auto number = [](double value) { return QString::number(value, 'g', 9); };
  return QStringList{number(box.left()), number(box.top()), number(box.right()), number(box.bottom())}.join(
      u' ');
}

/// A sentence about the plates of a separated picture; none without any.
QStringList platesNote(const QList<EpsPlate>& plates) {
  QStringList told;
  for (const EpsPlate& plate : plates)
    told << (plate.file.isEmpty()
                 ? QStringLiteral("%1 (%2)").arg(plate.ink, QLocale().formattedDataSize(plate.length))
                 : QStringLiteral("%1 (%2)").arg(plate.ink, plate.file));
  if (told.isEmpty()) return {};
  return {localizedString("The picture is separated into plates: %1").arg(told.join(QStringLiteral(", ")))};
}

}  // namespace

InspectorCommand::~InspectorCommand() {
  naming_.cancel();
}

void InspectorCommand::title() {
  if (parts_.inspectorWindow->windowTitle().isEmpty())
    parts_.inspectorWindow->setWindowTitle(
        QStringLiteral("%1 %2").arg(parts_.mainWindow()->windowTitle(), QStringLiteral("Inspector")));
}

void InspectorCommand::toggle() {
  title();
  const bool shown = parts_.inspectorWindow->isVisible();
  if (showPanel_) return showPanel_(!shown);
  if (shown) {
    parts_.inspectorWindow->hide();
    return;
  }
  place();
  parts_.inspectorWindow->show();
  parts_.inspectorWindow->raise();
  parts_.inspectorWindow->activateWindow();
}

void InspectorCommand::showBoundingBoxes(const NSImageRep* rep) {
  const auto* eps = qobject_cast<const NSEPSImageRep*>(rep);
  parts_.boundingBoxForm->setVisible(eps != nullptr);
  const auto highResolution = eps ? eps->hiResBoundingBox() : std::nullopt;
  parts_.boundingBoxForm->setText(0, eps ? corners(eps->boundingBox()) : QString());
  parts_.boundingBoxForm->setText(1, highResolution ? corners(*highResolution) : QString());
}

void InspectorCommand::showNotes(const NSImageRep* rep) {
  parts_.noteField->clear();
  parts_.noteField->hide();
  addNotes(rep ? rep->warnings() : QStringList());
  showDrawingRemarks();
}

void InspectorCommand::showDrawingRemarks() {
  if (const NSImageRep* rep = parts_.view()->imageRep().get()) addNotes(rep->process()->drawingRemarks());
}

void InspectorCommand::addNotes(const QStringList& sentences) {
  if (sentences.isEmpty()) return;
  QStringList notes = parts_.noteField->text().split(u'\n', Qt::SkipEmptyParts);
  for (const QString& sentence : sentences)
    if (const QString note = localizedSentence(sentence); !note.isEmpty() && !notes.contains(note))
      notes << note;
  parts_.noteField->setText(notes.join(u'\n'));
  parts_.noteField->show();
}

void InspectorCommand::showResources(const NSImageRep* rep) {
  QStringList fonts, colors;
  if (const auto* eps = qobject_cast<const NSEPSImageRep*>(rep)) {
    EpsResources told = epsResources(eps->sourceBytes());
    fonts = std::move(told.fonts);
    colors = std::move(told.colors);
    addNotes(platesNote(told.plates));
  }
  naming_.cancel();
  unnamed_.reset();
  drawn_ = false;
  if (const auto* pdf = qobject_cast<const NSPDFImageRep*>(rep)) unnamed_ = pdf->process();
  if (const auto* svg = qobject_cast<const ZyWebImageRep*>(rep)) {
    fonts = svg->facts().fonts;
    colors = svg->facts().colorSpaces;
  }
  showNames(fonts, colors);
  watch(unnamed_ ? rep : nullptr);
  if (!unnamed_) return;
  parts_.usesForm->parentWidget()->installEventFilter(this);  // once, however often it is done
}

void InspectorCommand::watch(const NSImageRep* rep) {
  watched_.change(rep);
  if (!rep) return;
  connect(rep, &NSImageRep::renderingArrived, this, &InspectorCommand::pictureWasDrawn);
  connect(rep, &NSImageRep::renderingFailed, this, &InspectorCommand::pictureWasDrawn);
}

void InspectorCommand::pictureWasDrawn() {
  drawn_ = true;
  if (parts_.usesForm->parentWidget()->isVisible()) askForNames();
}

bool InspectorCommand::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && watched == parts_.usesForm->parentWidget() && drawn_) askForNames();
  return QObject::eventFilter(watched, event);
}

void InspectorCommand::askForNames() {
  if (!unnamed_) return;
  naming_ = CancelToken();
  workInBackground(
      this, [process = std::exchange(unnamed_, {}), cancel = naming_] { return pageNames(*process, cancel); },
      [this, cancel = naming_](const Result<PageNames>& names) {
        if (names && !cancel.cancelled()) showNames(names->fonts, names->colorSpaces);
      });
}

void InspectorCommand::showNames(const QStringList& fonts, const QStringList& colors) {
  const QString separator = QStringLiteral(", ");
  parts_.usesForm->setText(0, fonts.join(separator));
  parts_.usesForm->setText(1, colors.join(separator));
  parts_.usesForm->setVisible(!fonts.isEmpty() || !colors.isEmpty());
}

void InspectorCommand::showSource() {
  if (!parts_.inspectorWindow->isVisible()) toggle();
  parts_.inspectorTabs->setCurrentWidget(parts_.sourcePage);
  parts_.inspectorWindow->activateWindow();
}

void InspectorCommand::order() {
  // From top to bottom, as it is read; the interface file cannot name what is inside our own controls.
  QList<QWidget*> order{parts_.dialKnob(), parts_.rotateField(), parts_.backgroundColorWell(),
                        parts_.useBackgroundSwitch()};
  for (const ZyForm* form :
       {parts_.titleForm(), parts_.creatorForm(), parts_.creationDateForm(), parts_.forForm(),
        parts_.copyrightForm(), parts_.encodingForm(), parts_.colorSpaceNameForm()})
    order << form->cellAtIndex(0);
  order << parts_.usesForm->cellAtIndex(0) << parts_.usesForm->cellAtIndex(1);
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 2; ++column) order << parts_.epsMatrix->cellAtRow(row, column);
  order << parts_.boundingBoxForm->cellAtIndex(0) << parts_.boundingBoxForm->cellAtIndex(1)
        << parts_.descriptionView->textEdit();
  for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

void InspectorCommand::place() {
  // Once it was shown the user decides where it is.
  if (std::exchange(placed_, true)) return;
  QWidget& inspector = *parts_.inspectorWindow;
  inspector.resize(sizeForTexts(inspector, inspector.size()));
  placeBeside(inspector, *parts_.mainWindow());
}

void InspectorCommand::takeColor(const QColor& color) {
  if (parts_.useBackgroundSwitch()->checkState() == Qt::Checked)
    parts_.scrollArea()->setBackgroundColor(color);
  parts_.previewImageView()->setBackgroundColor(color);
}

void InspectorCommand::useBackground(int state) {
  if (state != Qt::Unchecked) {
    const QColor color = parts_.backgroundColorWell()->color();
    parts_.scrollArea()->setBackgroundColor(color);
    parts_.previewImageView()->setBackgroundColor(color);
  }
  applyBackground(state);
  parts_.redisplay();
}

void InspectorCommand::applyBackground(int state) {
  parts_.scrollArea()->setDrawsBackground(state != Qt::Unchecked);
  // There are no windows to see through here: where the background is clear a checkerboard stands for what is
  // behind.
  parts_.mainWindow()->setProperty("opaque", state != Qt::Unchecked);
}

void InspectorCommand::rotateChange(double dmsValue) {
  parts_.dialKnob()->setDMSValue(dmsValue);
  rotateFromKnob();
}

void InspectorCommand::rotateFromKnob() {
  const ZyDialKnob& knob = *parts_.dialKnob();
  parts_.view()->setRotate(knob.radianValue(), knob.clockwise());
  parts_.rotateReadout->setText(dms::text(knob.DMSValue()));
  emit turned();
}

void InspectorCommand::showFacts(const NSImageRep* rep) {
  showBoundingBoxes(rep);
  showNotes(rep);
  showResources(rep);
}

}  // namespace norvex
