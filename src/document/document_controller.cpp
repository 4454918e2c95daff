#include "document/document_controller.h"

#include <QFileInfo>

#include <optional>
#include <utility>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "document/file_identity.h"
#include "document/unimplemented_method.h"
#include "picture/document_file.h"
#include "picture/localized_error.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

QString keyOf(const QUrl& url) {
  return fileIdentity(url.toLocalFile());
}

/// Why a file could not be read. Addresses of files are text: a name of other bytes cannot come this far
/// unharmed.
QString readingFailure(const QUrl& url, const Error& error) {
  const bool nameWasHarmed =
      url.toLocalFile().contains(QChar::ReplacementCharacter) && !QFileInfo::exists(url.toLocalFile());
  return nameWasHarmed ? localizedString("The file's name is not text in UTF-8. Please rename the file.")
                       : localizedError(error).sentence;
}

}  // namespace

/// The worker thread's result: a type, or a failure.
struct DocumentController::Read {
  QString type;
  std::optional<OpenFailure> failure;
};

DocumentController::DocumentController(PictureService& service, DocumentWindowControllerFactory factory,
                                       QObject* parent)
    : QObject(parent), service_(service), factory_(std::move(factory)) {}

DocumentController::~DocumentController() {
  ending_.cancel();
  threads_.clear();
  waitForWork(threads_);
  for (Document* document : std::exchange(documents_, {})) delete document;
}

Document* DocumentController::documentForURL(const QUrl& url) const {
  const QString key = keyOf(url);
  for (Document* document : documents_)
    if (keyOf(document->fileURL()) == key) return document;
  return nullptr;
}

void DocumentController::openDocuments(const QList<QUrl>& urls) {
  for (const QUrl& url : urls) {
    if (!url.isLocalFile()) {
      emit openFailed({url, localizedString("Only files on this computer can be opened."), {}});
      continue;
    }
    if (Document* open = documentForURL(url)) {
      open->windowController()->showWindow();
      continue;
    }
    const QString key = keyOf(url);
    if (reading_.contains(key)) continue;
    reading_.insert(key);
    // A child of this object until it is a document: nothing leaks when the end comes while it is being read.
    auto* document = new Document(service_, factory_, this);
    document->setFileURL(url);
    workInBackground(
        this,
        [document, url, ending = ending_] { return ending.cancelled() ? Read() : readFile(*document, url); },
        [this, document, key](const Read& read) { finishRead(document, key, read); }, threads_);
  }
  if (reading_.isEmpty()) emit readingFinished();
}

DocumentController::Read DocumentController::readFile(const Document& document, const QUrl& url) {
  const Result<QByteArray> bytes = readDocumentFile(url.toLocalFile());
  if (!bytes) return {{}, OpenFailure{url, readingFailure(url, bytes.error()), {}}};
  const QString type = identifyType(*bytes, url.fileName()).identifier();
  try {
    DocumentError error;
    if (!document.readFromData(*bytes, type, &error))
      return {{}, OpenFailure{url, error.recoverySuggestion, {}}};
  } catch (const UnimplementedMethod& exception) {
    return {{},
            OpenFailure{url, localizedString("This is not an EPS, Illustrator, PDF or SVG picture."),
                        exception.reason()}};
  }
  return {type, {}};
}

void DocumentController::finishRead(Document* document, const QString& key, const Read& read) {
  reading_.remove(key);
  if (read.failure) {
    delete document;
    emit openFailed(*read.failure);
  } else {
    document->setFileType(read.type);
    show(document);
  }
  if (reading_.isEmpty()) emit readingFinished();
}

void DocumentController::show(Document* document) {
  connect(document, &Document::closed, this, &DocumentController::remove);
  documents_.append(document);
  document->makeWindowControllers();
  emit documentWillShow(document);
  document->windowController()->showWindow();
  emit documentOpened(document);
}

void DocumentController::remove(Document* document) {
  if (documents_.removeAll(document) == 0) return;
  emit documentClosed(document);
  document->deleteLater();  // its window may still be handling the event that closed it
}

}  // namespace norvex
