#include "print/print_spooler.h"

#include "base/localized_string.h"

namespace norvex {

Result<Printer> printerNamed(PrintSpooler& spooler, const QString& name, const CancelToken& cancel) {
  const Result<QList<Printer>> all = spooler.printers(cancel);
  if (!all) return all.error();
  for (const Printer& printer : *all)
    if (name.isEmpty() ? printer.isDefault : printer.name == name) return printer;
  if (name.isEmpty())
    return Error{ErrorKind::CannotWrite, all->isEmpty() ? QStringLiteral("there is no printer")
                                                        : QStringLiteral("no printer is the default one")};
  return Error{ErrorKind::CannotWrite, QStringLiteral("there is no printer named “%1”").arg(name)};
}

QString stateText(const Printer& printer) {
  if (!printer.acceptsJobs) return localizedString("Takes no jobs");
  switch (printer.state) {
    case PrinterState::Idle:
      return localizedString("Ready");
    case PrinterState::Printing:
      return localizedString("Printing");
    case PrinterState::Stopped:
      break;
  }
  return localizedString("Stopped");
}

}  // namespace norvex
