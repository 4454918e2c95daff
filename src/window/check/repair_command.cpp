#include "window/check/repair_command.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>

#include <algorithm>

#include "base/atomic_file.h"
#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "check/mending.h"
#include "desktop/alert.h"
#include "desktop/save_panel.h"
#include "document/document.h"
#include "picture/document_file.h"
#include "picture/localized_error.h"
#include "types/uniform_type.h"
#include "ui/check/finding_text.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

Result<RepairedPicture> repairedFile(PictureService& service, const QString& from, const QString& to,
                                     PreviewUse preview, const CancelToken& cancel) {
  const Result<QByteArray> bytes = readDocumentFile(from);
  if (!bytes) return bytes.error();
  Result<RepairedPicture> repaired = repairedPicture(service, *bytes, from, preview, PictureLimits(), cancel);
  if (!repaired) return repaired.error();
  if (cancel.cancelled()) return Error{ErrorKind::Cancelled, localizedString("The writing was stopped")};
  const Result<void> written = writeFileAtomically(to, repaired->bytes, IfExists::Replace);
  if (!written) return written.error();
  return repaired;
}

QUrl folderOf(const QUrl& file) {
  return file.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
}

/// A file that cannot be mended is refused with a finding, which has the words of the check.
Error toldByCheck(const Error& error) {
  return toldError(error).details.isEmpty() ? Error{error.kind, figuresOf(error.message)} : error;
}

}  // namespace

RepairCommand::RepairCommand(WindowParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), accessory_(new QWidget), preview_(new QComboBox(accessory_)) {
  auto* row = new QHBoxLayout(accessory_);
  row->setContentsMargins(0, 6, 0, 6);
  auto* title = new QLabel(localizedString("Preview:"), accessory_);
  title->setBuddy(preview_);
  preview_->setAccessibleName(localizedString("Preview"));
  preview_->addItem(localizedString("As it is"), int(PreviewUse::Keep));
  preview_->addItem(localizedString("Made anew"), int(PreviewUse::Rebuild));
  preview_->addItem(localizedString("Left out"), int(PreviewUse::Drop));
  row->addWidget(title);
  row->addWidget(preview_);
  row->addStretch(1);
}

RepairCommand::~RepairCommand() {
  delete accessory_;
}

PreviewUse RepairCommand::proposedPreview(const Findings& findings) {
  const auto isOfPreview = [](const Finding& each) { return mendingOf(*each.rule) == Mending::Preview; };
  const bool isBad = std::any_of(findings.cbegin(), findings.cend(), [&](const Finding& each) {
    return isOfPreview(each) && each.severity != Severity::Note;
  });
  const bool isAll = !findings.isEmpty() && std::all_of(findings.cbegin(), findings.cend(), isOfPreview);
  return isBad || isAll ? PreviewUse::Rebuild : PreviewUse::Keep;
}

void RepairCommand::run(const Findings& findings) {
  const Document* document = parts_.document();
  if (!document || document->fileURL().isEmpty() || repairing_) return;
  preview_->setCurrentIndex(preview_->findData(int(proposedPreview(findings))));
  const QUrl file = document->fileURL();
  SavePanelSettings settings;
  settings.title = localizedString("Repair");
  settings.message = localizedString("A mended copy of the file is written. What it draws stays the same.");
  if (const auto type = UTType::typeWithIdentifier(document->fileType()))
    settings.allowedContentTypes << *type;
  settings.directoryURL = folderOf(file);
  const QString extension = pathExtension(file.path());
  const QString name = pathWithoutExtension(file.fileName()) + QStringLiteral("_repaired");
  settings.nameFieldStringValue = extension.isEmpty() ? name : name + u'.' + extension;
  settings.accessoryView = accessory_;
  parts_.savePanel().beginSheetModalForWindow(
      parts_.mainWindow(), settings, [self = QPointer<RepairCommand>(this)](const SavePanelAnswer& answer) {
        if (self && answer.ok)
          self->repair(answer.url.toLocalFile(), PreviewUse(self->preview_->currentData().toInt()));
      });
}

void RepairCommand::repair(const QString& path, PreviewUse preview) {
  Document* document = parts_.document();
  if (!document || repairing_ || path.isEmpty()) return;
  repairing_ = true;
  const CancelToken cancel;
  const int number = parts_.work().begin(WindowWork::Kind::Writing, localizedString("Repairing…"), cancel);
  workInBackground(
      this,
      [&service = document->pictureService(), from = document->fileURL().toLocalFile(), path, preview,
       cancel] { return repairedFile(service, from, path, preview, cancel); },
      [this, path, number](const Result<RepairedPicture>& repaired) { end(path, number, repaired); });
}

// The work ends last: a window that closes when it is done must not go under a message.
void RepairCommand::end(const QString& path, int number, const Result<RepairedPicture>& repaired) {
  const QPointer<RepairCommand> self(this);
  const bool failed = !repaired && repaired.error().kind != ErrorKind::Cancelled;
  if (repaired)
    tell(path, *repaired);
  else if (failed)
    parts_.showWriteFailure(toldByCheck(repaired.error()), path);
  if (!self) return;  // while the message was on the screen
  repairing_ = false;
  if (failed)
    parts_.work().fail(number);
  else
    parts_.work().end(number);
  emit ended(path, repaired.ok());
}

void RepairCommand::tell(const QString& path, const RepairedPicture& repaired) {
  if (!parts_.alerts()) return;
  QStringList lines;
  for (const QString& change : repaired.changes) lines << QStringLiteral("• ") + localizedSentence(change);
  if (lines.isEmpty()) lines << localizedString("Nothing had to be changed.");
  if (!repaired.remaining.isEmpty()) {
    lines << QString() << localizedString("This stays as it is:");
    for (const QString& sentence : repaired.remaining) lines << QStringLiteral("• ") + figuresOf(sentence);
  }
  Alert alert;
  alert.style = AlertStyle::Informational;
  alert.messageText = localizedString("“%1” is written.").arg(QFileInfo(path).fileName());
  alert.informativeText = lines.join(u'\n');
  const QString open = localizedString("Open It");
  alert.buttons = {open, localizedString("Close")};
  if (alert.buttons.value(parts_.alerts()->runModal(alert)) != open) return;
  // As if the desktop had asked for it.
  QCoreApplication::postEvent(qApp, new QFileOpenEvent(QUrl::fromLocalFile(path)));
}

}  // namespace norvex
