// Save To: the selected part as a new file in one of the formats of the pasteboard and some more.
#include "window/main_window_save_to.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QtConcurrent>

#include "base/atomic_file.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "base/waiting_threads.h"
#include "desktop/alert.h"
#include "types/type_description.h"
#include "ui/panels/sheet_save_panel.h"
#include "ui/picture/loading_card.h"
#include "ui/picture/zy_image_view.h"
#include "ui_MainWindowController.h"

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
  return writeFileAtomically(path, bytes, IfExists::Replace);
}

}  // namespace

QUrl urlWithExtension(const QUrl& url, const QString& extension) {
  if (extension.isEmpty() || pathExtension(url.path()) == extension) return url;
  QUrl target = url;
  target.setPath(pathWithoutExtension(url.path()) + u'.' + extension);
  return target;
}

QString MainWindowController::clipName() const {
  return QStringLiteral("%1_clip").arg(pathWithoutExtension(window_->windowFilePath().section(u'/', -1)));
}

NSSavePanel& MainWindowController::savePanel() {
  if (savePanel_) return *savePanel_;
  if (!ownSavePanel_) ownSavePanel_ = std::make_unique<QtSavePanel>();
  return *ownSavePanel_;
}

void MainWindowController::doSaveTo(QObject*) {
  const PictureSnapshot shown = snapshot();
  auto sheet = std::make_shared<SaveToSheet>();
  sheet->formats = pboardTypesAndDataObjects();
  appendRasterFormats(sheet->formats, shown);
  fillSaveToAccessory(sheet);

  SavePanelSettings settings;
  settings.title = localizedString("Save Selection");
  settings.message = localizedString("Selected range of image data is written or displayed.");
  settings.allowedContentTypes = sheet->formats.UTIs;
  settings.canSelectHiddenExtension = true;
  settings.extensionHidden = true;
  settings.allowsOtherFileTypes = false;
  settings.directoryURL = startFolder();
  settings.nameFieldStringValue = clipName();
  settings.accessoryView = doSaveToAccessoryView;
  settings.target = [sheet, popUp = doSaveToPopUp](const QUrl& url, int) {
    const int row = popUp->currentIndex();
    return row < 0 || row >= sheet->formats.count()
               ? url
               : urlWithExtension(url, sheet->formats.UTIs.at(row).preferredFilenameExtension());
  };
  savePanel().beginSheetModalForWindow(window_, settings, [this, sheet](const SavePanelAnswer& answer) {
    sheet->open = false;
    if (answer.ok) saveTo(sheet, answer.url);
  });
}

void MainWindowController::fillSaveToAccessory(const std::shared_ptr<SaveToSheet>& sheet) {
  doSaveToPopUp->clear();
  for (const UTType& type : sheet->formats.UTIs) doSaveToPopUp->addItem(localizedDescription(type));
  if (sheet->formats.count() > 0) doSaveToPopUp->setCurrentIndex(0);
  ui_->doSaveToNote->clear();
  doSaveToImageView->setImage({});
  makeSaveToFormats(sheet);
}

void MainWindowController::makeSaveToFormats(const std::shared_ptr<SaveToSheet>& sheet) {
  QPointer<MainWindowController> self(this);
  const std::weak_ptr<SaveToSheet> kept = sheet;  // a closed sheet ends the making
  // The program may have ended by the time that there is something to tell.
  const QPointer<QCoreApplication> application(qApp);
  const auto tell = [self, kept,
                     application](const std::function<void(MainWindowController&, SaveToSheet&)>& news) {
    if (!application) return;
    QMetaObject::invokeMethod(application.data(), [self, kept, news] {
      const auto shown = kept.lock();
      if (self && shown && shown->open) news(*self, *shown);
    });
  };
  // One after the other, the preview first; a format that is to be written meanwhile does not wait for its
  // turn.
  static_cast<void>(QtConcurrent::run(
      &waitingThreads(), [tell, rep = sheet->formats.pdfImageRep, all = sheet->formats.DataObjects,
                          cancel = sheet->formats.cancel] {
        if (rep)
          tell([made = rep->get()](MainWindowController& c, SaveToSheet&) {
            c.doSaveToImageView->setImageRep(made);
          });
        for (const std::shared_ptr<PromisedData>& data : all) {
          if (cancel.cancelled()) return;
          if (data->get().isEmpty())
            tell([data](MainWindowController& c, SaveToSheet& shown) { c.removeSaveToFormat(shown, data); });
        }
      }));
}

void MainWindowController::removeSaveToFormat(SaveToSheet& sheet, const std::shared_ptr<PromisedData>& data) {
  const qsizetype row = sheet.formats.DataObjects.indexOf(data);
  if (row < 0) return;
  ui_->doSaveToNote->setText(localizedString("Not possible for this picture: %1")
                                 .arg(localizedDescription(sheet.formats.UTIs.at(row))));
  const bool chosen = doSaveToPopUp->currentIndex() == row;
  sheet.formats.removeAt(row);
  doSaveToPopUp->removeItem(int(row));
  if (chosen && sheet.formats.count() > 0) doSaveToPopUp->setCurrentIndex(0);
}

void MainWindowController::saveTo(const std::shared_ptr<SaveToSheet>& sheet, const QUrl& url) {
  const int row = doSaveToPopUp->currentIndex();
  if (row < 0 || row >= sheet->formats.count()) return;
  const std::shared_ptr<PromisedData> data = sheet->formats.DataObjects.at(row);
  const QString path =
      urlWithExtension(url, sheet->formats.UTIs.at(row).preferredFilenameExtension()).toLocalFile();
  const CancelToken cancel = sheet->formats.cancel;
  const int number = work_.begin(WindowWork::Kind::Writing, localizedString("Writing…"), cancel);
  QPointer<MainWindowController> self(this);
  // The sheet is held until the file is written: letting go of it ends what is being made.
  QtConcurrent::run(&waitingThreads(), [path, data, cancel] {
    return writeTo(path, data, cancel);
  }).then(qApp, [self, sheet, path, url, number](const Result<void>& written) {
    if (!self) return;
    if (!written) self->showWriteFailure(written.error(), path);
    self->work_.end(number);
    QSettings().setValue(kSaveTo, url);
    emit self->savedTo(path, written.ok());
  });
}

void MainWindowController::showWriteFailure(const Error& error, const QString& path) {
  if (error.kind == ErrorKind::Cancelled) return;
  closesWhenDone_ = false;  // what could not be written can be tried again as long as there is a window
  Alert alert;
  alert.style = AlertStyle::Warning;
  alert.messageText = error.message;
  alert.informativeText = path;
  if (alerts_) alerts_->runModal(alert);
}

}  // namespace norvex
