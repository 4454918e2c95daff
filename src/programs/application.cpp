// The application behind `norvex`: pictures in windows, or the whole command line.
#include <memory>
#include <utility>

#include "cli/command_line.h"
#include "cli/printing_job.h"
#include "platform/picture/worker_service.h"
#include "platform/qt/alert.h"
#include "platform/qt/application.h"
#include "platform/qt/document_application.h"
#include "programs/application_entry.h"
#include "window/main_window_controller.h"
#include "window/string_tables.h"

namespace norvex {
namespace {

int runWindows(int argc, char** argv, WorkerService& service) {
  service.yieldToWindows();
  Application application(argc, argv);
  installStringTables();
  QtAlertPresenter alerts;
  DocumentApplication documents(application.events(), service, [&alerts] {
    auto controller = std::make_unique<MainWindowController>();
    controller->setAlertPresenter(&alerts);
    return controller;
  });
  documents.start(Application::fileArguments());
  return Application::exec();
}

}  // namespace
}  // namespace norvex

extern "C" __attribute__((visibility("default"))) int norvexApplication(int argc, char** argv,
                                                                        norvex::StartedPrograms* started) {
  using namespace norvex;
  WorkerService service({}, std::move(started->worker), std::move(started->picture));
  if (!isCommandLine(argc, argv)) return runWindows(argc, argv, service);
  StandardConsole console;
  PrintingJob job(console, service);
  return runCommandLine(argc, argv, job);
}
