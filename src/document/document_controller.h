// DocumentController: the open documents, and how a file becomes one of them.
#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>
#include <QUrl>

#include "base/cancel_token.h"
#include "document/document.h"
#include "document/open_failure.h"

namespace norvex {

/// Reads files on worker threads, several at once, and makes their documents. Owns the documents. Main thread
/// only.
class DocumentController : public QObject {
  Q_OBJECT
 public:
  /// `service` and what `factory` refers to must outlive the controller.
  DocumentController(PictureService& service, DocumentWindowControllerFactory factory,
                     QObject* parent = nullptr);
  /// Waits for reads under way and destroys the documents.
  ~DocumentController() override;

  /// Opens each file in a window of its own and returns at once. A file that is open already, by whatever
  /// name, is brought to the front instead; one that is being read is not read twice.
  void openDocuments(const QList<QUrl>& urls);

  /// In the order in which they were opened.
  [[nodiscard]] QList<Document*> documents() const { return documents_; }
  /// The open document of that file; null when there is none.
  [[nodiscard]] Document* documentForURL(const QUrl& url) const;
  /// True if files are still being read.
  [[nodiscard]] bool isReading() const { return !reading_.isEmpty(); }

 signals:
  /// Its window controller is there, its window is not.
  void documentWillShow(norvex::Document* document);
  /// Its window is on the screen.
  void documentOpened(norvex::Document* document);
  /// It is no longer among documents() and is about to be destroyed.
  void documentClosed(norvex::Document* document);
  void openFailed(const norvex::OpenFailure& failure);
  /// Every file that was asked for is open or has failed.
  void readingFinished();

 private:
  struct Read;
  static Read readFile(const Document& document, const QUrl& url);
  void finishRead(Document* document, const QString& key, const Read& read);
  void show(Document* document);
  void remove(Document* document);

  PictureService& service_;
  DocumentWindowControllerFactory factory_;
  QList<Document*> documents_;
  QSet<QString> reading_;  ///< keys of the files under way
  QThreadPool threads_;
  CancelToken ending_;
};

}  // namespace norvex
