// Printing from the document window: the rectangle that is selected or visible, the whole picture, the page
// layout.
#pragma once

#include <QObject>

#include <memory>

#include "window/commands/print_jobs.h"

namespace norvex {

class WindowParts;

/// Asks the document and the view for what is to be printed, and the platform's service for the printing
/// unless it was given another. The parts outlive it. Main thread.
class PrintingCommand final : public QObject {
  Q_OBJECT
 public:
  explicit PrintingCommand(WindowParts& parts);
  ~PrintingCommand() override;

  /// Another print service or other panels than the platform's; not owned. What is null stays the platform's.
  void setServices(const PrintServices& services);
  /// Once the window is loaded: makes what was not given.
  void setUp();
  /// The selected rectangle, or the visible one without a selection, as it is turned.
  void printPart();
  /// The whole picture as it is turned: the document's own printing.
  void printWhole();
  void runPageLayout();
  [[nodiscard]] bool isPrinting() const { return jobs_ && jobs_->isPrinting(); }
  /// A print panel is on the screen.
  [[nodiscard]] bool isAsking() const { return jobs_ && jobs_->isAsking(); }
  void cancelAll();
  /// Cancels everything and waits for its end: the window goes.
  void end() { jobs_.reset(); }

 signals:
  /// A job is over; false when it failed, true when it was only cancelled.
  void ended(bool printed);

 private:
  WindowParts& parts_;
  PrintServices services_;
  std::unique_ptr<PrintInteraction> ownInteraction_;
  std::unique_ptr<PrintJobs> jobs_;  ///< ends before the interaction that it tells
};

}  // namespace norvex
