// Printers and people without either.
#pragma once

#include <QList>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

#include "print/print_operation.h"
#include "print/print_spooler.h"

namespace norvex::kit {

/// Takes every job for the printers that it was given, or fails. Thread-safe.
class MemorySpooler final : public PrintSpooler {
 public:
  struct Job {
    PrintTicket ticket;
    QByteArray pdf;
  };

  explicit MemorySpooler(QList<Printer> printers = {}) : printers_(std::move(printers)) {}

  Result<QList<Printer>> printers(const CancelToken& cancel) override {
    if (waitForPrinters) waitForPrinters(cancel);
    const std::lock_guard lock(mutex_);
    if (error) return *error;
    return printers_;
  }
  Result<int> print(const PrintTicket& ticket, const QByteArray& pdf, const CancelToken& cancel) override {
    if (wait) wait(cancel);
    const std::lock_guard lock(mutex_);
    if (cancel.cancelled()) return Error{ErrorKind::Cancelled, "the printing was cancelled"};
    if (error) return *error;
    jobs_.append({ticket, pdf});
    return int(jobs_.size());
  }
  [[nodiscard]] QList<Job> jobs() const {
    const std::lock_guard lock(mutex_);
    return jobs_;
  }

  void setPrinters(const QList<Printer>& printers) {
    const std::lock_guard lock(mutex_);
    printers_ = printers;
  }

  std::optional<Error> error;                               ///< set before use
  std::function<void(const CancelToken&)> wait;             ///< runs before a job is taken
  std::function<void(const CancelToken&)> waitForPrinters;  ///< runs before they are told

 private:
  mutable std::mutex mutex_;
  QList<Printer> printers_;
  QList<Job> jobs_;
};

/// Answers every panel with what a test decided and writes down what it was told.
class ScriptedInteraction final : public PrintInteraction {
 public:
  bool runPrintPanel(NSPrintOperation& operation) override {
    ++panels;
    panelOptions = operation.printPanel().options();
    shownInfo = operation.printInfo();
    if (onPanel) onPanel(operation);
    return printsFromPanel;
  }
  void beginPageLayout(const NSPrintInfo& printInfo,
                       std::function<void(const NSPrintInfo&, int)> end) override {
    ++sheets;
    shownInfo = printInfo;
    endSheet = std::move(end);
  }
  int preparationDidBegin(const QString& title, const CancelToken& cancel) override {
    prepared << title;
    preparation = cancel;
    return int(prepared.size());
  }
  void preparationDidEnd(int number, const QString&, const Result<void>& result) override {
    endedPreparations << number;
    preparationMessages << (result ? QString() : result.error().message);
  }
  int jobDidBegin(const QString& title, const CancelToken& cancel) override {
    begun << title;
    token = cancel;
    return int(begun.size());
  }
  void jobDidAdvance(int job, const QString&, int page, int pages) override {
    advances << QStringLiteral("%1: %2 of %3").arg(job).arg(page).arg(pages);
  }
  void jobDidEnd(int job, const QString& title, const Result<void>& result) override {
    ended << title;
    endedJobs << job;
    messages << (result ? QString() : result.error().message);
  }

  bool printsFromPanel = true;
  std::function<void(NSPrintOperation&)> onPanel;
  int panels = 0, sheets = 0, panelOptions = 0;
  NSPrintInfo shownInfo;
  std::function<void(const NSPrintInfo&, int)> endSheet;
  QStringList begun, ended, messages, advances;
  QList<int> endedJobs, endedPreparations;
  QStringList prepared, preparationMessages;
  CancelToken token, preparation;
};

}  // namespace norvex::kit
