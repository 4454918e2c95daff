// The print service as CUPS provides it.
#pragma once

#include "print/print_spooler.h"

namespace norvex {

/// Talks to the server that CUPS's own settings name (CUPS_SERVER, client.conf), over a connection of its own
/// for each call. Starts nothing and keeps nothing. Nobody is asked for a password: a queue that wants one
/// refuses the job.
class CupsSpooler final : public PrintSpooler {
 public:
  Result<QList<Printer>> printers(const CancelToken& cancel = {}) override;
  Result<int> print(const PrintTicket& ticket, const QByteArray& pdf,
                    const CancelToken& cancel = {}) override;
};

}  // namespace norvex
