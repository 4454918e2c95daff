// The commands behind `norvex` that open no window and print nothing, without what windows and printers take.
#include <utility>

#include "cli/archive/archive_job.h"
#include "cli/command_line.h"
#include "picture/client/worker_service.h"
#include "programs/application_entry.h"

extern "C" __attribute__((visibility("default"))) int norvexApplication(int argc, char** argv,
                                                                        norvex::StartedPrograms* started) {
  using namespace norvex;
  WorkerService service({}, std::move(started->worker), std::move(started->picture));
  StandardConsole console;
  ArchiveJob<Job> job(console, service);
  return runCommandLine(argc, argv, job);
}
