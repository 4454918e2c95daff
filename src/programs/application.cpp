// The application behind `norvex`: pictures in windows, or the whole command line.
#include <QFile>
#include <QProcess>
#include <QThread>

#include <fontconfig/fontconfig.h>

#include <memory>
#include <thread>
#include <utility>

#include "application/application.h"
#include "application/desktop_service.h"
#include "application/document_application.h"
#include "application/memory_keeper.h"
#include "application/string_tables.h"
#include "base/system_log.h"
#include "cli/archive/archive_job.h"
#include "cli/arguments/command_table.h"
#include "cli/command_line.h"
#include "cli/printing_job.h"
#include "picture/client/spawned_worker.h"
#include "picture/client/worker_service.h"
#include "picture/client/worker_starter.h"
#include "picture/early_picture.h"
#include "programs/application_entry.h"
#include "protocol/start_trace.h"
#include "ui/controls/control_accessible.h"
#include "ui/panels/alert_box.h"
#include "ui/panels/clipboard_keeper.h"
#include "window/about_box.h"
#include "window/main_window_controller.h"
#include "window/viewing/view_preferences.h"

namespace norvex {
namespace {

void answerDesktop(DesktopService& desktop, DocumentApplication& documents) {
  QObject::connect(&desktop, &DesktopService::activated, &documents, &DocumentApplication::activate);
  QObject::connect(&desktop, &DesktopService::filesOpened, &documents, &DocumentApplication::openFiles);
  QObject::connect(&desktop, &DesktopService::startPanelRequested, &documents,
                   &DocumentApplication::showStartPanel);
}

/// Only what reads documents knows what confines it.
QString toldConfinement() {
  QProcess program;
  program.start(WorkerStarter::defaultProgram(), {QStringLiteral("--sandbox-status")}, QIODevice::ReadOnly);
  return program.waitForFinished() ? QString::fromUtf8(program.readAllStandardOutput()) : QString();
}

/// One file and nothing else: what most starts are.
QString onlyFile(int argc, char** argv) {
  return argc == 2 && argv[1][0] != '-' ? QFile::decodeName(argv[1]) : QString();
}

int runWindows(int argc, char** argv, WorkerService& worker) {
  // Qt takes the first thread that uses it for the one whose events are the application's: this one, before
  // there are others.
  (void)QThread::currentThread();
  sendMessagesToSystemLog();  // whoever started the window from a terminal is not to read along
  worker.yieldToWindows();
  EarlyPictureService service(worker);
  if (const QString file = onlyFile(argc, argv); !file.isEmpty()) service.begin(file);
  // The application object waits for the display most of its time; the first text waits for the fonts.
  std::thread fonts([] { (void)FcInit(); });
  Application application(argc, argv);
  traceStep("application object made");
  fonts.join();
  installStringTables();
  installControlAccessibility();
  setConfinementWords(toldConfinement);
  QtAlertPresenter alerts;
  DocumentApplication documents(application.events(), service, [&alerts] {
    auto controller = std::make_unique<MainWindowController>();
    controller->setAlertPresenter(&alerts);
    return controller;
  });
  documents.setPreferences(viewPreferences());
  const MemoryKeeper memory(documents.documents());
  DesktopService desktop;
  answerDesktop(desktop, documents);
  if (argc > 1 && asksForDesktopService(argv[1])) {
    if (!desktop.offer()) return kNotLoaded;
    documents.startForDesktop(DesktopService::patienceMilliseconds);
  } else {
    documents.start(Application::fileArguments());
    QMetaObject::invokeMethod(&desktop, &DesktopService::offer, Qt::QueuedConnection);
  }
  const int code = Application::exec();
  leaveClipboardTo(partOfProgram("norvex-clipboard"));
  return code;
}

}  // namespace
}  // namespace norvex

extern "C" __attribute__((visibility("default"))) int norvexApplication(int argc, char** argv,
                                                                        norvex::StartedPrograms* started) {
  using namespace norvex;
  WorkerService service({}, std::move(started->worker), std::move(started->picture));
  if (!isCommandLine(argc, argv)) return runWindows(argc, argv, service);
  StandardConsole console;
  ArchiveJob<PrintingJob> job(console, service);
  return runCommandLine(argc, argv, job);
}
