// norvex: pictures in windows, or the command line.
#include <memory>

#include "cli/command_line.h"
#include "platform/picture/worker_service.h"
#include "platform/qt/alert.h"
#include "platform/qt/application.h"
#include "platform/qt/document_application.h"
#include "window/main_window_controller.h"
#include "window/string_tables.h"

int main(int argc, char** argv) {
  using namespace norvex;
  WorkerService service;
  static_cast<void>(service.start());  // before anything of Qt's: both then start at once
  if (isCommandLine(argc, argv)) return runCommandLine(argc, argv, service);

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
