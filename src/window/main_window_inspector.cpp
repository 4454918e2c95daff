// The inspector: its window, rotation, background.
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>

#include "display/norvex_view.h"
#include "platform/qt/color_well.h"
#include "platform/qt/dms_angle.h"
#include "platform/qt/number_field.h"
#include "platform/qt/zooming_scroll_area.h"
#include "platform/qt/zy_dial_knob.h"
#include "platform/qt/zy_image_view.h"
#include "ui_MainWindowController.h"
#include "window/main_window_controller.h"

namespace norvex {

void MainWindowController::showInspectorWindow(QObject*) {
  if (inspectorWindow->windowTitle().isEmpty())
    inspectorWindow->setWindowTitle(QStringLiteral("%1 %2").arg(window_->windowTitle(), QStringLiteral("Inspector")));
  if (inspectorWindow->isVisible()) {
    inspectorWindow->hide();
    return;
  }
  placeInspector();
  inspectorWindow->show();
  inspectorWindow->raise();
  inspectorWindow->activateWindow();
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
  inspectorWindow->move(x, std::clamp(beside.top(), screen.top(), std::max(screen.top(), screen.bottom() - size.height() - 40)));
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

void MainWindowController::showRotationText() { ui_->rotateReadout->setText(dms::text(dialKnob()->DMSValue())); }

}  // namespace norvex
