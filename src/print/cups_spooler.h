// The print service as CUPS provides it.
#pragma once

#include "print/print_spooler.h"
#include "protocol/limits.h"

namespace norvex {

/// Talks to the server that CUPS's own settings name (CUPS_SERVER, client.conf), over a connection of its own
/// for each call. Starts nothing and keeps nothing. Nobody is asked for a password: a queue that wants one
/// refuses the job.
class CupsSpooler final : public PrintSpooler {
 public:
  /// How long a service that says nothing is waited for.
  struct Patience {
    int connectMilliseconds = limits::printerConnects;
    double lookSeconds = limits::printerLookSeconds;
    int looks = limits::maximumPrinterLooks;
    int stepLooks = limits::maximumPrinterStepLooks;
  };

  CupsSpooler() = default;
  explicit CupsSpooler(const Patience& patience) : patience_(patience) {}

  Result<QList<Printer>> printers(const CancelToken& cancel = {}) override;
  Result<int> print(const PrintTicket& ticket, const QByteArray& pdf,
                    const CancelToken& cancel = {}) override;

 private:
  Patience patience_;
};

}  // namespace norvex
