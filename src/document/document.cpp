#include "document/document.h"

#include <QSettings>

#include <utility>

#include "base/bundle.h"
#include "base/localized_string.h"
#include "document/document_types.h"
#include "document/print_settings.h"
#include "document/unimplemented_method.h"
#include "picture/document_file.h"

namespace norvex {

Document::Document(PictureService& service, DocumentWindowControllerFactory factory, QObject* parent)
    : QObject(parent),
      service_(service),
      factory_(std::move(factory)),
      printInfo_(newDocumentPrintInfo(QSettings())) {
  printServices_.pictures = &service_;
}

Document::~Document() {
  if (printerSearch_) printerSearch_->cancel();
  if (windowController_) removeWindowController(*windowController_);
  windowController_.reset();
}

bool Document::canConcurrentlyReadDocumentsOfType(const QString&) {
  return true;
}

bool Document::readFromData(const std::optional<QByteArray>& data, const QString& ofType,
                            DocumentError* error) const {
  const QString domain = errorDomain();
  if (!isAcceptedDocumentType(ofType))
    throw UnimplementedMethod(QStringLiteral("readFromData:ofType:error:"));
  if (data) return true;
  if (error) *error = {domain, int(DocumentErrorCode::MissingData), localizedString("Bad data.")};
  return false;
}

void Document::makeWindowControllers() {
  if (windowController_) return;
  windowController_ = factory_();
  windowController_->setShouldCloseDocument(true);
  addWindowController(*windowController_);
}

void Document::addWindowController(DocumentWindowController& controller) {
  controller.setDocument(this);
}

void Document::removeWindowController(DocumentWindowController& controller) {
  controller.setDocument(nullptr);
}

void Document::revertDocumentToSaved() {
  std::optional<QByteArray> bytes;
  if (Result<QByteArray> file = readDocumentFile(fileURL_.toLocalFile())) bytes = std::move(*file);
  readFromData(bytes, fileType_);
  emit reverted();
  if (!windowController_) return;
  windowController_->windowDidLoad();
  windowController_->display();
}

void Document::close() {
  if (std::exchange(closed_, true)) return;
  emit closed(this);
}

void Document::setFileURL(const QUrl& url) {
  if (url == fileURL_) return;
  fileURL_ = url;
  emit fileURLChanged();
}

QString Document::displayName() const {
  return fileURL_.isEmpty() ? localizedString("Untitled") : fileURL_.fileName();
}

}  // namespace norvex
