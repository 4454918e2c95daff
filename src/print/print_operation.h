// NSPrintOperation: one view printed once.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "base/cancel_token.h"
#include "base/result.h"
#include "print/print_info.h"
#include "print/printable_view.h"

namespace norvex {

class NSPrintOperation;
class PictureService;
class PrintSpooler;

/// The choices of a print panel; values of NSPrintPanel::options().
enum NSPrintPanelOption {
  NSPrintPanelShowsCopies = 1,
  NSPrintPanelShowsPageRange = 2,
  NSPrintPanelShowsPaperSize = 4,
  NSPrintPanelShowsOrientation = 8,
  NSPrintPanelShowsScaling = 16,
  NSPrintPanelShowsPreview = 131072,
};

class NSPrintPanel {
 public:
  [[nodiscard]] int options() const { return options_; }
  void setOptions(int options) { options_ = options; }

 private:
  int options_ = NSPrintPanelShowsCopies | NSPrintPanelShowsPageRange | NSPrintPanelShowsPreview;
};

/// The seam between printing and the person at the screen. Main thread.
class PrintInteraction {
 public:
  virtual ~PrintInteraction() = default;

  /// Lets a person change the operation's settings. False: the job shall not be printed.
  virtual bool runPrintPanel(NSPrintOperation& operation) = 0;
  /// Opens the page-layout sheet on the window with a copy of these settings and returns; `end` is told the
  /// sheet's settings and 1 when it was confirmed, 0 otherwise.
  virtual void beginPageLayout(const NSPrintInfo& printInfo,
                               std::function<void(const NSPrintInfo&, int)> end) = 0;
  /// The picture of a job to come is being made, before its panel; cancelling the token ends that. Gives it a
  /// number of its own.
  virtual int preparationDidBegin(const QString& title, const CancelToken& cancel) = 0;
  /// The picture of that number is made; or it could not be, for a reason in a plain sentence, and no job
  /// follows.
  virtual void preparationDidEnd(int number, const QString& title, const Result<void>& result) = 0;
  /// A job runs now; cancelling the token ends it. Gives the job a number of its own: several may run at a
  /// time, under one title.
  virtual int jobDidBegin(const QString& title, const CancelToken& cancel) = 0;
  /// The job of that number comes to a page, from 1, of so many.
  virtual void jobDidAdvance(int job, const QString& title, int page, int pages) = 0;
  /// The job of that number is printed or written, or it failed with a plain sentence.
  virtual void jobDidEnd(int job, const QString& title, const Result<void>& result) = 0;
};

/// The surroundings of a job besides the view; none is owned, all outlive the operation.
struct PrintServices {
  PictureService* pictures = nullptr;
  PrintSpooler* spooler = nullptr;
  PrintInteraction* interaction = nullptr;  ///< null: nobody is asked and nobody is told
};

/// Main thread. Destroying it cancels a running job and waits for its end.
class NSPrintOperation final : public QObject {
  Q_OBJECT
 public:
  /// The settings are copied: what is chosen for this job stays with it.
  static std::unique_ptr<NSPrintOperation> printOperationWithView(std::unique_ptr<PrintableView> view,
                                                                  const NSPrintInfo& printInfo,
                                                                  const PrintServices& services);
  ~NSPrintOperation() override;

  [[nodiscard]] NSPrintInfo& printInfo() { return printInfo_; }
  [[nodiscard]] NSPrintPanel& printPanel() { return printPanel_; }
  [[nodiscard]] const PrintableView& view() const { return *view_; }
  [[nodiscard]] const PrintServices& services() const { return services_; }
  [[nodiscard]] bool showsPrintPanel() const { return showsPrintPanel_; }
  void setShowsPrintPanel(bool shows) { showsPrintPanel_ = shows; }
  [[nodiscard]] bool canSpawnSeparateThread() const { return canSpawnSeparateThread_; }
  /// With true, the job runs on a thread of its own, on what the view was when it began.
  void setCanSpawnSeparateThread(bool can) { canSpawnSeparateThread_ = can; }
  void setCancelToken(const CancelToken& cancel) { cancel_ = cancel; }

  /// Shows the panel (where there is somebody to ask) and runs the job. False: it was dismissed in the panel,
  /// or failed here and now. With a thread of its own it returns when that has begun; finished() tells the
  /// end. Call once.
  bool runOperation();
  /// How the job ended; nothing before it has.
  [[nodiscard]] const std::optional<Result<void>>& result() const { return result_; }

 signals:
  /// The job is over (or was dismissed in the panel). The operation may be destroyed from here with
  /// deleteLater().
  void finished();

 private:
  NSPrintOperation(std::unique_ptr<PrintableView> view, const NSPrintInfo& printInfo,
                   const PrintServices& services);
  void advance(int page, int pages);
  void end(const Result<void>& result);

  std::unique_ptr<PrintableView> view_;
  NSPrintInfo printInfo_;
  PrintServices services_;
  NSPrintPanel printPanel_;
  bool showsPrintPanel_ = true, canSpawnSeparateThread_ = false;
  CancelToken cancel_;
  QString title_;
  int job_ = 0;  ///< what the interaction calls it
  std::thread thread_;
  std::optional<Result<void>> result_;
};

}  // namespace norvex
