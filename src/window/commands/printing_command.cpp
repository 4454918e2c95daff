#include "window/commands/printing_command.h"

#include "display/norvex_view.h"
#include "print/cups_spooler.h"
#include "ui/print/print_interaction.h"
#include "window/commands/window_parts.h"

namespace norvex {

PrintingCommand::PrintingCommand(WindowParts& parts) : parts_(parts) {}

PrintingCommand::~PrintingCommand() = default;

void PrintingCommand::setServices(const PrintServices& services) {
  services_ = services;
  if (parts_.document()) parts_.document()->setPrintServices(services);
}

void PrintingCommand::setUp() {
  if (!jobs_) {
    jobs_ = std::make_unique<PrintJobs>();
    connect(jobs_.get(), &PrintJobs::ended, this, &PrintingCommand::ended);
  }
  if (!services_.spooler) {
    static CupsSpooler spooler;
    services_.spooler = &spooler;
  }
  if (!services_.interaction) {
    ownInteraction_ =
        std::make_unique<QtPrintInteraction>(*services_.spooler, parts_.mainWindow(), parts_.alerts());
    services_.interaction = ownInteraction_.get();
  }
  if (parts_.document()) parts_.document()->setPrintServices(services_);
}

void PrintingCommand::printPart() {
  if (!parts_.document() || !parts_.view()) return;
  setUp();
  jobs_->printRectangle(*parts_.view(), parts_.chosenRect(), *parts_.document(),
                        parts_.mainWindow()->windowTitle(), services_);
}

void PrintingCommand::printWhole() {
  if (!parts_.document()) return;
  setUp();
  jobs_->run(parts_.document()->printOperationWithSettings({}));
}

void PrintingCommand::runPageLayout() {
  if (parts_.document()) parts_.document()->runPageLayout(this);
}

void PrintingCommand::cancelAll() {
  if (jobs_) jobs_->cancelAll();
}

}  // namespace norvex
