// Copy: what the picture offers to other programs, made in the background and put on the clipboard in one
// step.
#include <QApplication>
#include <QFuture>
#include <QPointer>
#include <QtConcurrent>

#include "base/localized_string.h"
#include "base/waiting_threads.h"
#include "document/document.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/panels/qt_pasteboard.h"
#include "ui/picture/message_bar.h"
#include "window/main_window_controller.h"

namespace norvex {

namespace {

/// Makes every format, one after the other: the picture process serves one at a time, and the other threads
/// are left to what is on the screen.
QFuture<void> madeInBackground(const PictureFormats& formats, const std::shared_ptr<PromisedData>& fallback) {
  QList<std::shared_ptr<PromisedData>> all = formats.DataObjects;
  if (fallback) all << fallback;
  return QtConcurrent::run(&waitingThreads(), [all] {
    for (const std::shared_ptr<PromisedData>& data : all) static_cast<void>(data->get());
  });
}

NSPasteboardItem itemOf(const PictureFormats& formats, const std::shared_ptr<PromisedData>& png) {
  NSPasteboardItem item;
  for (qsizetype i = 0; i < formats.count(); ++i) {
    const QByteArray bytes = formats.DataObjects.at(i)->get();
    if (!bytes.isEmpty()) item.setData(bytes, formats.UTIs.at(i).identifier());
  }
  const QByteArray pixels = png ? png->get() : QByteArray();
  if (!pixels.isEmpty()) item.setFallback(pixels, UTTypePNG().identifier());
  return item;
}

}  // namespace

void MainWindowController::NSBeep() const {
  if (beep_)
    beep_();
  else
    QApplication::beep();
}

PictureSnapshot MainWindowController::snapshot() const {
  PictureSnapshot shown;
  if (!view()) return shown;
  shown.imageRep = view()->imageRep();
  shown.placement = {QPointF(view()->imageSize().width() * 0.5, view()->imageSize().height() * 0.5),
                     view()->rotate()};
  const QRectF& selected = view()->selectRect();
  shown.rect = selected.width() > 0 && selected.height() > 0 ? selected : view()->visibleRect();
  shown.frame = view()->frame();
  shown.clockwise = dialKnobClockwise();
  shown.flippedCoordinate = view()->flippedCoordinate();
  if (document_) shown.surroundings = usualSurroundings(document_->pictureService());
  shown.home = thread();
  shown.surroundings.iccProfile = windowColorSpace_.isValid() ? windowColorSpace_.iccProfile() : QByteArray();
  return shown;
}

PictureFormats MainWindowController::pboardTypesAndDataObjects() {
  const PictureSnapshot shown = snapshot();
  if (!shown.imageRep) {
    NSBeep();
    return {};
  }
  return selectionFormats(shown);
}

void MainWindowController::doCopy(QObject*) {
  const PictureFormats formats = pboardTypesAndDataObjects();
  writeWhenMade(formats, pngOf(formats, snapshot()));
}

void MainWindowController::copy(QObject*) {
  const PictureSnapshot shown = snapshot();
  if (!shown.imageRep) return NSBeep();
  writeWhenMade(wholePictureFormats(shown), nullptr);
}

void MainWindowController::writeWhenMade(const PictureFormats& formats,
                                         const std::shared_ptr<PromisedData>& png) {
  stopCopying();  // what was copied last counts
  if (formats.count() == 0) return;
  copying_ = formats.cancel;
  copyingNumber_ = work_.begin(WindowWork::Kind::Copying, localizedString("Copying…"), formats.cancel);
  QPointer<MainWindowController> self(this);
  madeInBackground(formats, png).then(qApp, [self, formats, png] {
    if (!self || formats.cancel.cancelled()) return;
    self->copying_.reset();
    self->work_.end(self->copyingNumber_);
    self->write(itemOf(formats, png));
  });
}

void MainWindowController::write(const NSPasteboardItem& item) {
  QtPasteboard general;
  NSPasteboard& pasteboard = pasteboard_ ? *pasteboard_ : general;
  bool written = false;
  if (!item.types().isEmpty()) {
    pasteboard.clearContents();
    written = pasteboard.writeObjects({item});
  }
  if (!written)
    messageBar_->showMessage(
        MessageBar::Kind::Warning,
        localizedString("The picture could not be copied. The clipboard holds what it held before."));
  emit copied(written);
}

void MainWindowController::stopCopying() {
  if (!copying_) return;
  copying_->cancel();
  copying_.reset();
  work_.end(copyingNumber_);
}

}  // namespace norvex
