// The seam before the print service: so that printing is tested without one, and so that nothing above it
// knows CUPS.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "base/cancel_token.h"
#include "base/result.h"

namespace norvex {

enum class PrinterState { Idle, Printing, Stopped };

struct Printer {
  QString name;         ///< the identifier
  QString description;  ///< as people call it; the name where there is none
  PrinterState state = PrinterState::Idle;
  bool acceptsJobs = true;
  bool isDefault = false;
};

/// The options of a printer job besides the pages.
struct PrintTicket {
  QString printer;  ///< an identifier; empty: the default printer
  QString title;
  int copies = 1;
  QString media;  ///< the paper's keyword
  bool landscape = false;
};

/// Thread-safe. Calls block, but no longer than some seconds where nobody answers, and come back soon when
/// they are cancelled. Errors are plain sentences: CannotWrite when the service cannot be reached or does not
/// answer, there is no such printer, it takes no jobs, wants a password, or the job could not be handed over
/// whole (then there is none); Cancelled.
class PrintSpooler {
 public:
  virtual ~PrintSpooler() = default;

  virtual Result<QList<Printer>> printers(const CancelToken& cancel = {}) = 0;
  /// Hands a PDF over; the job's number.
  virtual Result<int> print(const PrintTicket& ticket, const QByteArray& pdf,
                            const CancelToken& cancel = {}) = 0;
};

/// The printer of that identifier (empty: the default one); why there is none otherwise.
[[nodiscard]] Result<Printer> printerNamed(PrintSpooler& spooler, const QString& name,
                                           const CancelToken& cancel = {});

/// "Ready", "Printing", "Stopped", "Takes no jobs".
[[nodiscard]] QString stateText(const Printer& printer);

/// No print service at all.
class NullPrintSpooler final : public PrintSpooler {
 public:
  Result<QList<Printer>> printers(const CancelToken&) override { return unreachable(); }
  Result<int> print(const PrintTicket&, const QByteArray&, const CancelToken&) override {
    return unreachable();
  }

  [[nodiscard]] static Error unreachable() {
    return {ErrorKind::CannotWrite, QStringLiteral("the print service cannot be reached")};
  }
};

}  // namespace norvex
