// Printing on the screen: panel, page-layout sheet, progress and failures.
#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

#include "print/print_operation.h"

class QProgressDialog;

namespace norvex {

class AlertPresenter;
class PrintSpooler;

/// Of one window. Main thread.
class QtPrintInteraction final : public PrintInteraction {
 public:
  /// All are borrowed and outlive this; `alerts` null: the platform's own.
  QtPrintInteraction(PrintSpooler& spooler, QWidget* window, AlertPresenter* alerts = nullptr);
  ~QtPrintInteraction() override;

  bool runPrintPanel(NSPrintOperation& operation) override;
  void beginPageLayout(const NSPrintInfo& printInfo,
                       std::function<void(const NSPrintInfo&, int)> end) override;
  /// As with a job.
  int preparationDidBegin(const QString& title, const CancelToken& cancel) override;
  void preparationDidEnd(int number, const QString& title, const Result<void>& result) override;
  /// Shows progress with Cancel when the job takes longer than a moment.
  int jobDidBegin(const QString& title, const CancelToken& cancel) override;
  /// Of several pages it tells which; a single one says nothing.
  void jobDidAdvance(int job, const QString& title, int page, int pages) override;
  /// Tells a failure in one alert; a cancelled job is none.
  void jobDidEnd(int job, const QString& title, const Result<void>& result) override;

 private:
  int showProgress(const QString& text, const CancelToken& cancel);

  PrintSpooler& spooler_;
  QPointer<QWidget> window_;
  AlertPresenter* alerts_;
  QHash<int, QPointer<QProgressDialog>> progress_;  ///< by the job's number
  int lastJob_ = 0;
};

}  // namespace norvex
