#include "window/export/export_command.h"

#include <QFileInfo>
#include <QMainWindow>

#include <utility>

#include "base/atomic_file.h"
#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "base/state_folder.h"
#include "desktop/alert.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "picture/localized_error.h"
#include "picture/pdf_image_rep.h"
#include "ui/export/export_dialog.h"
#include "ui/picture/brief_note.h"
#include "window/commands/copy_command.h"
#include "window/commands/window_parts.h"
#include "window/export/export_settings.h"
#include "window/export/exported_picture.h"

namespace norvex {
namespace {

constexpr int kRestMs = 200;
constexpr int kPreviewSide = 700;  // pixels

QString startFolder(const QUrl& picture) {
  const QFileInfo folder(QFileInfo(picture.toLocalFile()).absolutePath());
  if (!picture.isEmpty() && folder.isDir()) return folder.filePath();
  return picturesFolder();
}

ExportOffer offerOf(const WindowParts& parts) {
  const NorvexView& view = *parts.view();
  ExportOffer offer;
  for (const FormatRow& row : formatTable)
    if (isWritten(row)) offer.formats << row.id;
  const QRectF& selected = view.selectRect();
  if (selected.width() > 0 && selected.height() > 0)
    offer.areas << ExportOffer::Area{ExportArea::Selection, selected.size()};
  offer.areas << ExportOffer::Area{ExportArea::Page, view.bounds().size()};
  if (view.visibleRect() != view.bounds())
    offer.areas << ExportOffer::Area{ExportArea::Visible, view.visibleRect().size()};
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(view.imageRep().get());
  if (pdf && pdf->pageCount() > 1) {
    offer.areas << ExportOffer::Area{ExportArea::Document, view.imageSize()}
                << ExportOffer::Area{ExportArea::Pages, view.imageSize()};
    offer.pageCount = pdf->pageCount();
    offer.shownPage = pdf->page();
  }
  const QUrl url = parts.document() ? parts.document()->fileURL() : QUrl();
  const NSImageRep* const rep = view.imageRep().get();
  offer.drawsSvg = !rep || rep->pictureKind() != PictureKind::Svg;
  offer.folder = startFolder(url);
  offer.name = pathWithoutExtension(url.fileName());
  return offer;
}

QRectF rectOf(const NorvexView& view, ExportArea area) {
  switch (area) {
    case ExportArea::Selection:
      return view.selectRect();
    case ExportArea::Visible:
      return view.visibleRect();
    default:
      return view.bounds();
  }
}

}  // namespace

/// A file that is being made, for whoever shows or writes it.
struct ExportCommand::Making {
  ExportChoice choice;
  PictureSnapshot snapshot;
  CancelToken cancel;
  std::unique_ptr<PromisedValue<std::shared_ptr<const ExportedPicture>>> file;
  QImage preview;  ///< belongs to the thread that makes it until it is told
};

ExportCommand::ExportCommand(WindowParts& parts, const CopyCommand& copying, QObject* parent)
    : QObject(parent), parts_(parts), copying_(copying) {
  rest_.setSingleShot(true);
  rest_.setInterval(kRestMs);
  connect(&rest_, &QTimer::timeout, this, &ExportCommand::make);
}

ExportCommand::~ExportCommand() {
  drop();
}

void ExportCommand::drop() {
  if (making_) making_->cancel.cancel();
  making_.reset();
}

ExportDialog* ExportCommand::dialog() const {
  return dialog_;
}

void ExportCommand::run() {
  if (dialog_ || !parts_.validateUserInterfaceItem()) return;
  const ExportOffer offer = offerOf(parts_);
  ExportChoice first = storedExportChoice();
  first.area = offer.areas.first().area;
  dialog_ = new ExportDialog(parts_.mainWindow(), offer, first);
  dialog_->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog_, &ExportDialog::changed, this, [this] {
    drop();
    dialog_->showMaking();
    rest_.start();
  });
  connect(dialog_, &ExportDialog::chosen, this, &ExportCommand::write);
  connect(dialog_, &QDialog::finished, this, [this] {
    rest_.stop();
    drop();
  });
  make();
  dialog_->open();
}

void ExportCommand::make() {
  rest_.stop();
  if (!dialog_ || !parts_.validateUserInterfaceItem()) return;
  dialog_->showMaking();
  auto making = std::make_shared<Making>();
  making->choice = dialog_->choice();
  making->snapshot = copying_.snapshot();
  making->snapshot.rect = rectOf(*parts_.view(), making->choice.area);
  const bool asInTheFile =
      making->choice.area == ExportArea::Document || making->choice.area == ExportArea::Pages;
  if (asInTheFile) making->snapshot = wholeOf(making->snapshot);
  making->file = std::make_unique<PromisedValue<std::shared_ptr<const ExportedPicture>>>(
      [snapshot = making->snapshot, choice = making->choice, cancel = making->cancel] {
        return std::make_shared<const ExportedPicture>(exportedPicture(snapshot, choice, cancel));
      });
  making_ = making;
  workInBackground(
      this,
      [making] {
        if (making->cancel.cancelled()) return;
        if (const auto file = making->file->get())
          making->preview = previewOf(*file, making->snapshot, making->choice, kPreviewSide, making->cancel);
      },
      [this, making] { take(making); });
}

void ExportCommand::take(const std::shared_ptr<Making>& making) {
  if (!dialog_ || making_ != making) return;  // other choices were made meanwhile
  const auto file = making->file->get();
  if (file && !file->bytes.isEmpty()) {
    QStringList remarks;
    for (const QString& remark : file->remarks) remarks << localizedSentence(remark);
    dialog_->showMade(making->preview, file->bytes.size(), remarks);
  } else
    dialog_->showProblem(file && file->error ? localizedError(*file->error).sentence
                                             : localizedString("The picture is too large."));
}

bool ExportCommand::mayReplace(const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  if (!parts_.alerts()) return false;
  Alert question;
  question.style = AlertStyle::Warning;
  question.messageText = localizedString("“%1” exists already.").arg(QFileInfo(path).fileName());
  question.informativeText = localizedString("What it holds will be lost.");
  question.buttons = {localizedString("Cancel"), localizedString("Replace")};
  return parts_.alerts()->runModal(question) == 1;
}

void ExportCommand::write() {
  dialog_->takeTyped();  // Return presses the button from within a field; other choices are made anew
  const QString path = dialog_->path();
  if (path.isEmpty()) return;
  const QPointer<ExportCommand> self(this);
  if (!mayReplace(path) || !self || !dialog_) return;
  if (!making_) make();
  if (!making_) return;  // there is no picture any more
  const std::shared_ptr<Making> making = std::exchange(making_, nullptr);
  storeExportChoice(making->choice);
  dialog_->accept();
  const int number =
      parts_.work().begin(WindowWork::Kind::Writing, localizedString("Writing…"), making->cancel);
  workInBackground(
      this, [path, making] { return written(path, *making); },
      [this, path, number](const Result<void>& result) { end(path, number, result); });
}

Result<void> ExportCommand::written(const QString& path, Making& making) {
  const auto file = making.file->get();
  if (making.cancel.cancelled())
    return Error{ErrorKind::Cancelled, localizedString("The writing was stopped")};
  if (!file || file->bytes.isEmpty())
    return file && file->error ? *file->error
                               : Error{ErrorKind::CannotWrite,
                                       localizedString("The picture cannot be written in this format")};
  return writeFileAtomically(path, file->bytes, IfExists::Replace);
}

void ExportCommand::end(const QString& path, int number, const Result<void>& result) {
  const QPointer<ExportCommand> self(this);
  const bool failed = !result && result.error().kind != ErrorKind::Cancelled;
  if (failed) parts_.showWriteFailure(result.error(), path);
  if (!self) return;  // while the message was on the screen
  if (failed)
    parts_.work().fail(number);
  else
    parts_.work().end(number);
  if (result)
    BriefNote::tell(*parts_.scrollArea(), localizedString("Exported “%1”").arg(QFileInfo(path).fileName()));
  emit ended(path, result.ok());
}

}  // namespace norvex
