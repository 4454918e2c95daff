// Document: one opened file, its type and its window.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "document/document_error.h"
#include "document/document_window_controller.h"
#include "print/print_info.h"
#include "print/print_operation.h"
#include "print/print_spooler.h"

namespace norvex {

class AlertPresenter;
class PictureProducers;
class PictureService;

/// One for every opened file. It keeps no picture: the window controller reads the file again when its window
/// loads. Main thread only, but for readFromData(), which may run on any thread for several documents at
/// once.
class Document : public QObject {
  Q_OBJECT
 public:
  /// `service` and what `factory` refers to must outlive the document.
  Document(PictureService& service, DocumentWindowControllerFactory factory, QObject* parent = nullptr);
  ~Document() override;

  /// True for every type.
  [[nodiscard]] static bool canConcurrentlyReadDocumentsOfType(const QString& typeIdentifier);

  /// Checks that the type is accepted and that there are bytes (zero of them are bytes; nothing is not).
  /// Stores nothing. Throws UnimplementedMethod for an unaccepted type and then leaves `error` alone;
  /// otherwise false with code 1 when `data` is absent. Touches no shared state.
  virtual bool readFromData(const std::optional<QByteArray>& data, const QString& ofType,
                            DocumentError* error = nullptr) const;

  /// Makes the one window controller. Call once, after reading.
  void makeWindowControllers();
  /// Null before makeWindowControllers().
  [[nodiscard]] DocumentWindowController* windowController() const { return windowController_.get(); }

  /// Shows the file as it is now, without asking: reads it, then runs the window's set-up again and redraws.
  /// A file that can no longer be read is the set-up's business.
  void revertDocumentToSaved();

  /// Writes the shown picture to `url`, whole or not at all: under an SVG type with the compressed extension
  /// gzip bytes, otherwise what dataOfType() returns. Throws UnimplementedMethod like it; false (with
  /// `error`) when the bytes could not be written. The document keeps its own file and type.
  bool writeToURL(const QUrl& url, const QString& ofType, DocumentError* error = nullptr);
  /// The shown picture as bytes of a type. For EPS it asks whether a preview is wanted. Every failure (no
  /// bytes, a type that is not written, "Cancel") throws UnimplementedMethod; `error` is never delivered.
  QByteArray dataOfType(const QString& type, DocumentError* error = nullptr);
  /// Shows the questions; not owned, outlives the document. Null: nobody can be asked; EPS goes without a
  /// preview then, and what lacks something replaces no file.
  void setAlertPresenter(AlertPresenter* presenter) { alerts_ = presenter; }
  /// Compressed SVG bytes on their way from writeToURL() to dataOfType(); otherwise nothing.
  [[nodiscard]] const std::optional<QByteArray>& compressedData() const { return compressedData_; }

  // ---- printing
  /// Of a new document: the page layout that was confirmed last, in whatever document; the defaults without
  /// one.
  [[nodiscard]] const NSPrintInfo& printInfo() const { return printInfo_; }
  /// Nothing of it can be undone: no undo action is registered.
  void setPrintInfo(const NSPrintInfo& info) { printInfo_ = info; }
  /// The printers, and who asks; the pictures are the document's own. Not owned, outlive the document.
  void setPrintServices(const PrintServices& services);
  /// Opens the page-layout sheet with the document's settings; when their printer is gone, with the shared
  /// ones. Whether it is gone is asked on another thread: the sheet opens when that is answered, and does not
  /// where that was cancelled. Nothing happens while nobody can be asked, or an answer is awaited.
  void runPageLayout(QObject* sender = nullptr);
  /// Return code 1 (confirmed): the sheet's settings become the document's and are remembered for later
  /// documents.
  void pageLayoutDidEnd(const NSPrintInfo& pageLayout, int returnCode, void* contextInfo = nullptr);
  /// Prints the picture of the window as it is turned. The given settings win over the document's; they are
  /// this job's alone. Null without a window; `error` is never set.
  [[nodiscard]] std::unique_ptr<NSPrintOperation> printOperationWithSettings(const QVariantMap& settings,
                                                                             DocumentError* error = nullptr);

  /// Tells closed(); whoever holds the document then destroys it. Further calls do nothing.
  void close();

  /// Empty for an untitled document.
  [[nodiscard]] QUrl fileURL() const { return fileURL_; }
  void setFileURL(const QUrl& url);
  [[nodiscard]] QString fileType() const { return fileType_; }
  void setFileType(const QString& typeIdentifier) { fileType_ = typeIdentifier; }
  /// The file's name, or "Untitled".
  [[nodiscard]] QString displayName() const;
  [[nodiscard]] PictureService& pictureService() const { return service_; }

 signals:
  void closed(norvex::Document* document);
  void fileURLChanged();
  /// revertDocumentToSaved() has read what is on disk now.
  void reverted();

 private:
  /// Gives the controller its document, or takes it away.
  void addWindowController(DocumentWindowController& controller);
  void removeWindowController(DocumentWindowController& controller);
  // document_printing.cpp
  void openPageLayout(const NSPrintInfo& info);
  void takePrinter(int preparation, const Result<Printer>& printer);
  // document_writing.cpp
  [[nodiscard]] PictureProducers* producers() const;
  QByteArray encapsulatedPostScript(PictureProducers& producers, QString* failure);
  QByteArray scalableVectorGraphics(PictureProducers& producers);
  [[nodiscard]] bool mayReplace(const QUrl& url) const;

  std::unique_ptr<DocumentWindowController> windowController_;
  std::optional<QByteArray> compressedData_;
  PictureService& service_;
  DocumentWindowControllerFactory factory_;
  QUrl fileURL_;
  QString fileType_;
  AlertPresenter* alerts_ = nullptr;
  NSPrintInfo printInfo_;
  PrintServices printServices_;
  std::optional<CancelToken> printerSearch_;  ///< that a page-layout sheet waits for
  bool closed_ = false;
};

}  // namespace norvex
