#include "window/check/check_command.h"

#include <QEvent>
#include <QFileDialog>
#include <QMainWindow>
#include <QTabWidget>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/sentence.h"
#include "check/profile.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "picture/document_file.h"
#include "picture/localized_error.h"
#include "picture_check/picture_check.h"
#include "ui/check/check_page.h"
#include "ui/check/finding_text.h"
#include "ui/panels/file_dialogs.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/picture_mark.h"
#include "ui/source/source_text_view.h"
#include "window/commands/window_parts.h"
#include "window/place/window_frames.h"

namespace norvex {
namespace {

const QString kProfile = QStringLiteral("check/profile");

/// The bytes of `request` are those of the file that it names.
CheckedPicture checkedFile(PictureService& service, CheckRequest request, const CancelToken& cancel) {
  const Result<QByteArray> bytes = readDocumentFile(request.fileName);
  if (!bytes) return {{}, bytes.error()};
  request.bytes = *bytes;
  return checkPicture(service, request, cancel);
}

}  // namespace

CheckCommand::CheckCommand(WindowParts& parts, CheckPage& page, QObject* parent)
    : QObject(parent), parts_(parts), page_(page) {
  page_.setProfile(savedViewText(kProfile));
  page_.installEventFilter(this);
  connect(&page_, &CheckPage::checkWanted, this, &CheckCommand::start);
  connect(&page_, &CheckPage::stopWanted, this, [this] {
    if (stop()) page_.showProblem(localizedString("The check was stopped."));
  });
  connect(&page_, &CheckPage::profileChosen, this, [this] { useProfile(page_.profile()); });
  connect(&page_, &CheckPage::profileFileWanted, this, &CheckCommand::askForProfile);
  connect(&page_, &CheckPage::findingChosen, this, &CheckCommand::show);
}

CheckCommand::~CheckCommand() {
  stop();
}

bool CheckCommand::stop() {
  if (!checking_) return false;
  checking_->cancel();
  checking_.reset();
  return true;
}

void CheckCommand::documentDidChange() {
  stop();
  stale_ = true;
  if (parts_.viewWidget()) PictureMark::hide(*parts_.viewWidget());
  if (page_.isVisible()) start();
}

void CheckCommand::fileDidChange() {
  if (stop()) page_.showProblem(localizedString("The file has changed while it was checked."));
}

bool CheckCommand::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && stale_) start();
  return QObject::eventFilter(watched, event);
}

void CheckCommand::start() {
  stop();
  Document* document = parts_.document();
  const QString path = document ? document->fileURL().toLocalFile() : QString();
  if (path.isEmpty()) return page_.showProblem(localizedString("There is no file to check."));
  stale_ = false;
  const QString name = page_.profile();
  const Result<Profile> profile = name.isEmpty() ? Result(Profile()) : profileNamed(name);
  if (!profile) return page_.showProblem(figuresOf(profile.error().message));
  CheckRequest request;
  request.fileName = path;
  request.profile = *profile;
  if (password_) request.password = password_();
  page_.showChecking();
  checking_ = CancelToken();
  workInBackground(
      this,
      // A Result, so that a check for which there was no memory is not one without findings.
      [cancel = *checking_, &service = document->pictureService(), request]() -> Result<CheckedPicture> {
        return cancel.cancelled() ? CheckedPicture() : checkedFile(service, request, cancel);
      },
      [this, cancel = *checking_](const Result<CheckedPicture>& checked) {
        if (cancel.cancelled()) return;  // another check is wanted by now
        checking_.reset();
        take(checked ? *checked : CheckedPicture{{}, checked.error()});
      });
}

void CheckCommand::take(const CheckedPicture& checked) {
  findings_ = checked.findings;
  QString incomplete;
  if (checked.error) {
    const QString why = localizedError(*checked.error).sentence;
    incomplete = localizedString("Not everything could be checked. %1").arg(why);
  }
  page_.showFindings(findings_, incomplete);
  emit this->checked();
}

void CheckCommand::useProfile(const QString& nameOrFile) {
  saveViewText(kProfile, nameOrFile);
  start();
}

void CheckCommand::askForProfile() {
  auto* dialog = new QFileDialog(page_.window(), localizedString("Profile"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setNameFilter(localizedString("Profiles (*.toml)"));
  settleFileDialog(*dialog);
  connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
    page_.setProfile(path);
    useProfile(path);
  });
  dialog->open();
}

void CheckCommand::show(const Finding& finding) {
  if (!parts_.validateUserInterfaceItem()) return;
  if (finding.page > 0) emit pageWanted(finding.page - 1);
  if (finding.rect) return PictureMark::show(*parts_.viewWidget(), *finding.rect);
  if (!finding.line) return;
  parts_.inspectorTabs->setCurrentWidget(parts_.sourcePage);
  parts_.sourceTextView->showLine(*finding.line);
  parts_.sourceTextView->setFocus(Qt::OtherFocusReason);
}

}  // namespace norvex
