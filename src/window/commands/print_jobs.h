// The print jobs of one document window, as PrintingCommand orders them.
#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

#include "base/background_work.h"
#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/pdf_image_rep.h"
#include "print/print_info.h"
#include "print/print_operation.h"

namespace norvex {

class Document;
class NorvexView;

/// Keeps the operations of a window until their jobs are over. Main thread; destroying it cancels what still
/// runs and waits for its end.
class PrintJobs final : public QObject {
  Q_OBJECT
 public:
  explicit PrintJobs(QObject* parent = nullptr) : QObject(parent) {}
  ~PrintJobs() override;

  /// Prints the part `rect` of `view` (view coordinates) as a view of its own, with its own picture of it.
  /// That picture is made beside the window, with progress and Cancel, before the panel is shown; when it
  /// cannot be made the interaction is told, and there is no panel. Without a picture the pages are empty.
  /// One part is prepared at a time: what is asked for meanwhile is nothing.
  void printRectangle(const NorvexView& view, const QRectF& rect, Document& document,
                      const QString& windowTitle, PrintServices services);
  /// Runs the operation and keeps it as long as it takes. Null is nothing.
  void run(std::unique_ptr<NSPrintOperation> operation);
  /// True if a job is under way, or its picture is being made.
  [[nodiscard]] bool isPrinting() const { return preparing_ != nullptr || operations_.size() > inPanels_; }
  /// True if somebody is asked in a panel what is to be printed: nothing is under way for that yet.
  [[nodiscard]] bool isAsking() const { return inPanels_ > 0; }
  void cancelAll();

 signals:
  /// A job is over; `printed` is false when it failed, but true when it was only cancelled.
  void ended(bool printed);

 private:
  using Picture = Result<std::shared_ptr<NSPDFImageRep>>;
  /// The job, but for its picture.
  struct Part {
    QSizeF size;
    QString jobTitle, pageTitle;
    NSPrintInfo info;
    PrintServices services;
  };
  /// A part whose picture is being made.
  struct Preparing {
    Part part;
    CancelToken cancel;
    int number = 0;  ///< what the interaction calls it
    BackgroundWork work;
  };

  void runPart(const Part& part, const std::shared_ptr<NSImageRep>& picture);
  void takePicture(const Picture& picture);
  void drop(NSPrintOperation* operation);

  std::unique_ptr<Preparing> preparing_;
  std::vector<std::unique_ptr<NSPrintOperation>> operations_;
  std::vector<CancelToken> cancels_;  ///< of the operations, in the same order
  std::size_t inPanels_ = 0;          ///< so many of them
};

}  // namespace norvex
