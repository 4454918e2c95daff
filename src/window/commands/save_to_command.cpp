#include "window/commands/save_to_command.h"

#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QSettings>

#include <algorithm>

#include "base/atomic_file.h"
#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "desktop/save_panel.h"
#include "document/document.h"
#include "encoders/output_check.h"
#include "types/type_description.h"
#include "ui/picture/zy_image_view.h"
#include "window/commands/copy_command.h"
#include "window/commands/picture_formats.h"
#include "window/commands/window_parts.h"

namespace norvex {

namespace {

const QString kSaveTo = QStringLiteral("SaveTo");

QUrl startFolder() {
  const QUrl last = QSettings().value(kSaveTo).toUrl();
  return last.isLocalFile() ? last.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash) : QUrl();
}

/// The bytes, whole or not at all; off the window's thread.
Result<void> writeTo(const QString& path, const std::shared_ptr<PromisedData>& data,
                     const CancelToken& cancel) {
  const QByteArray bytes = data->get();
  if (cancel.cancelled()) return Error{ErrorKind::Cancelled, localizedString("The writing was stopped")};
  if (bytes.isEmpty())
    return Error{ErrorKind::CannotWrite, localizedString("The picture cannot be written in this format")};
  if (const Result<void> opens = checkOutput(bytes); !opens) return opens.error();
  return writeFileAtomically(path, bytes, IfExists::Replace);
}

}  // namespace

/// Shared by the sheet and what is made for it in the background. Main thread.
struct SaveToCommand::Sheet {
  PictureFormats formats;  ///< the rows of the pop-up list, in its order
  bool open = true;        ///< the sheet is on the screen
  ~Sheet() { formats.cancel.cancel(); }
};

QUrl urlWithExtension(const QUrl& url, const QString& extension) {
  if (extension.isEmpty() || pathExtension(url.path()) == extension) return url;
  QUrl target = url;
  target.setPath(pathWithoutExtension(url.path()) + u'.' + extension);
  return target;
}

void SaveToCommand::run() {
  const PictureSnapshot shown = copying_.snapshot();
  auto sheet = std::make_shared<Sheet>();
  sheet->formats = copying_.formats();
  appendRasterFormats(sheet->formats, shown);
  fillAccessory(sheet);

  SavePanelSettings settings;
  settings.title = localizedString("Save Selection");
  settings.message = localizedString("Selected range of image data is written or displayed.");
  settings.allowedContentTypes = sheet->formats.UTIs;
  settings.canSelectHiddenExtension = true;
  settings.extensionHidden = true;
  settings.allowsOtherFileTypes = false;
  settings.directoryURL = startFolder();
  if (parts_.document())
    settings.ownDirectoryURL =
        parts_.document()->fileURL().adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
  settings.nameFieldStringValue = parts_.clipName();
  settings.accessoryView = parts_.doSaveToAccessoryView;
  settings.typed = [sheet, popUp = parts_.doSaveToPopUp](const UTType& type) {
    const qsizetype row = sheet->formats.indexOf(type);
    if (row >= 0) popUp->setCurrentIndex(int(row));
  };
  settings.target = [sheet, popUp = parts_.doSaveToPopUp](const QUrl& url, int) {
    const int row = popUp->currentIndex();
    return row < 0 || row >= sheet->formats.count()
               ? url
               : urlWithExtension(url, sheet->formats.UTIs.at(row).preferredFilenameExtension());
  };
  parts_.savePanel().beginSheetModalForWindow(parts_.mainWindow(), settings,
                                              [this, sheet](const SavePanelAnswer& answer) {
                                                sheet->open = false;
                                                if (answer.ok) write(sheet, answer.url);
                                              });
}

int previewHeight(int screen) {
  constexpr int kBesides = 330;  // title, folder, seven files, name and message
  return std::clamp(screen - kBesides, 64, 130);
}

void SaveToCommand::fillAccessory(const std::shared_ptr<Sheet>& sheet) {
  parts_.doSaveToPopUp->clear();
  for (const UTType& type : sheet->formats.UTIs) parts_.doSaveToPopUp->addItem(localizedDescription(type));
  if (sheet->formats.count() > 0) parts_.doSaveToPopUp->setCurrentIndex(0);
  parts_.doSaveToNote->clear();
  parts_.doSaveToImageView->setImage({});
  parts_.doSaveToImageView->setFixedHeight(
      previewHeight(parts_.mainWindow()->screen()->availableGeometry().height()));
  makeFormats(sheet);
}

void SaveToCommand::makeFormats(const std::shared_ptr<Sheet>& sheet) {
  const std::weak_ptr<Sheet> kept = sheet;  // a closed sheet ends the making
  const auto tell = [back = WayBack(this), kept](const std::function<void(Sheet&)>& news) {
    back.tell([kept, news] {
      const auto shown = kept.lock();
      if (shown && shown->open) news(*shown);
    });
  };
  // One after the other, the preview first; a format that is to be written meanwhile does not wait for its
  // turn.
  startWork(waitingThreads(), [this, tell, rep = sheet->formats.pdfImageRep, all = sheet->formats.DataObjects,
                               cancel = sheet->formats.cancel] {
    if (rep) tell([this, made = rep->get()](Sheet&) { parts_.doSaveToImageView->setImageRep(made); });
    for (const std::shared_ptr<PromisedData>& data : all) {
      if (cancel.cancelled()) return;
      if (data->get().isEmpty())
        tell([this, data](Sheet& shown) { removeFormat(shown, shown.formats.DataObjects.indexOf(data)); });
    }
  });
}

void SaveToCommand::removeFormat(Sheet& sheet, qsizetype row) {
  if (row < 0) return;
  parts_.doSaveToNote->setText(localizedString("Not possible for this picture: %1")
                                   .arg(localizedDescription(sheet.formats.UTIs.at(row))));
  QComboBox& popUp = *parts_.doSaveToPopUp;
  const bool chosen = popUp.currentIndex() == row;
  sheet.formats.removeAt(row);
  popUp.removeItem(int(row));
  if (chosen && sheet.formats.count() > 0) popUp.setCurrentIndex(0);
}

void SaveToCommand::write(const std::shared_ptr<Sheet>& sheet, const QUrl& url) {
  const int row = parts_.doSaveToPopUp->currentIndex();
  if (row < 0 || row >= sheet->formats.count()) return;
  const std::shared_ptr<PromisedData> data = sheet->formats.DataObjects.at(row);
  const QString path =
      urlWithExtension(url, sheet->formats.UTIs.at(row).preferredFilenameExtension()).toLocalFile();
  const CancelToken cancel = sheet->formats.cancel;
  const int number = parts_.work().begin(WindowWork::Kind::Writing, localizedString("Writing…"), cancel);
  // The sheet is held until the file is written: letting go of it ends what is being made.
  workInBackground(
      this, [path, data, cancel] { return writeTo(path, data, cancel); },
      [this, sheet, path, url, number](const Result<void>& written) {
        const QPointer<SaveToCommand> self(this);
        if (!written && written.error().kind != ErrorKind::Cancelled) {
          parts_.showWriteFailure(written.error(), path);
          if (!self) return;  // while the message was on the screen
          emit failed();
        }
        parts_.work().end(number);
        QSettings().setValue(kSaveTo, url);
        emit ended(path, written.ok());
      });
}

}  // namespace norvex
