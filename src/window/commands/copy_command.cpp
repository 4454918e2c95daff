#include "window/commands/copy_command.h"

#include <QApplication>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "display/length_text.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "ui/controls/zy_dial_knob.h"
#include "ui/panels/qt_pasteboard.h"
#include "ui/picture/brief_note.h"
#include "ui/picture/drag_source.h"
#include "ui/picture/message_bar.h"
#include "window/commands/window_parts.h"

namespace norvex {

namespace {

NSPasteboardItem itemOf(const PictureFormats& formats, const PictureFormats& translated) {
  NSPasteboardItem item;
  for (qsizetype i = 0; i < formats.count(); ++i) {
    const QByteArray bytes = formats.DataObjects.at(i)->get();
    if (!bytes.isEmpty()) item.setData(bytes, formats.UTIs.at(i).identifier());
  }
  for (qsizetype i = 0; i < translated.count(); ++i) {
    const QByteArray bytes = translated.DataObjects.at(i)->get();
    if (!bytes.isEmpty()) item.setFallback(bytes, translated.UTIs.at(i).identifier());
  }
  return item;
}

/// The best format that other programs take as a file: SVG where there is one, otherwise PDF.
qsizetype bestFileFormat(const PictureFormats& formats) {
  const qsizetype svg = formats.indexOf(UTTypeSVG());
  return svg >= 0 ? svg : formats.indexOf(UTTypePDF());
}

/// The format at `row`, which begins to be made; none for a row that is not there.
std::optional<DraggedFile> draggedOf(const PictureFormats& offered, qsizetype row, const QString& name) {
  if (row < 0) return std::nullopt;
  const std::shared_ptr<PromisedData> data = offered.DataObjects.at(row);
  startWork(waitingThreads(), [data] { static_cast<void>(data->get()); });  // the drag takes a while: use it
  const QString extension = offered.UTIs.at(row).preferredFilenameExtension();
  // When nobody can ask for the file any more its making ends.
  const std::shared_ptr<void> asked(nullptr, [cancel = offered.cancel](void*) { cancel.cancel(); });
  return DraggedFile{name + u'.' + extension, [data, asked] { return data->get(); }};
}

}  // namespace

void CopyCommand::beep() const {
  if (beep_)
    beep_();
  else
    QApplication::beep();
}

PictureSnapshot CopyCommand::snapshot() const {
  PictureSnapshot shown;
  const NorvexView* const view = parts_.view();
  if (!view) return shown;
  shown.imageRep = view->imageRep();
  shown.placement = {QPointF(view->imageSize().width() * 0.5, view->imageSize().height() * 0.5),
                     view->rotate()};
  shown.rect = parts_.chosenRect();
  shown.frame = view->frame();
  shown.clockwise = parts_.dialKnob() && parts_.dialKnob()->clockwise();
  shown.flippedCoordinate = view->flippedCoordinate();
  if (parts_.document()) shown.surroundings = usualSurroundings(parts_.document()->pictureService());
  shown.home = thread();
  const QColorSpace& space = parts_.windowColorSpace();
  shown.surroundings.iccProfile = space.isValid() ? space.iccProfile() : QByteArray();
  return shown;
}

PictureFormats CopyCommand::formats() const {
  const PictureSnapshot shown = snapshot();
  if (!shown.imageRep) {
    beep();
    return {};
  }
  return selectionFormats(shown);
}

void CopyCommand::copyPart() {
  const PictureFormats made = formats();
  writeWhenMade(made, snapshot());
}

void CopyCommand::copyWhole() {
  const PictureSnapshot shown = wholeOf(snapshot());
  if (!shown.imageRep) return beep();
  writeWhenMade(wholePictureFormats(shown), shown);
}

void CopyCommand::writeWhenMade(const PictureFormats& formats, const PictureSnapshot& shown) {
  stop();  // what was copied last counts
  if (formats.count() == 0) return;
  const PictureFormats translated = translatedFormats(formats, shown);
  copying_ = formats.cancel;
  number_ = parts_.work().begin(WindowWork::Kind::Copying, localizedString("Copying…"), formats.cancel);
  workInBackground(
      this,
      // One after the other: the picture process serves one at a time, and the other threads are left to what
      // is on the screen.
      [all = formats.DataObjects + translated.DataObjects] {
        for (const std::shared_ptr<PromisedData>& data : all) static_cast<void>(data->get());
      },
      [this, formats, translated, size = shown.rect.size()] {
        if (formats.cancel.cancelled()) return;
        copying_.reset();
        parts_.work().end(number_);
        write(itemOf(formats, translated), size);
      });
}

void CopyCommand::write(const NSPasteboardItem& item, const QSizeF& size) {
  QtPasteboard general;
  NSPasteboard& pasteboard = pasteboard_ ? *pasteboard_ : general;
  bool written = false;
  if (!item.types().isEmpty()) {
    pasteboard.clearContents();
    written = pasteboard.writeObjects({item});
  }
  if (written)
    BriefNote::tell(*parts_.scrollArea(), localizedString("Copied %1 pt").arg(sizeText(size)));
  else
    parts_.messageBar()->showMessage(
        MessageBar::Kind::Warning,
        localizedString("The picture could not be copied. The clipboard holds what it held before."));
  emit ended(written);
}

bool CopyCommand::stop() {
  if (!copying_) return false;
  copying_->cancel();
  copying_.reset();
  parts_.work().end(number_);
  return true;
}

std::optional<DraggedFile> CopyCommand::draggedFile() const {
  const PictureFormats offered = formats();
  return draggedOf(offered, bestFileFormat(offered), parts_.clipName());
}

std::optional<DraggedFile> CopyCommand::draggedWhole() const {
  const PictureFormats whole = wholePictureFormats(wholeOf(snapshot()));
  const QString name = parts_.document() ? parts_.document()->displayName() : QString();
  return draggedOf(whole, whole.count() > 0 ? 0 : -1, pathWithoutExtension(name));
}

}  // namespace norvex
