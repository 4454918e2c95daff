// A run over an archive: one thread reads names, many work, one tells.
#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "cli/archive/archive_plan.h"
#include "cli/archive/file_result.h"
#include "cli/archive/run_tally.h"
#include "cli/archive/state/output_register.h"
#include "cli/archive/state/run_state.h"
#include "cli/archive/work_places.h"
#include "cli/archive/work_window.h"
#include "cli/files/console.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// Tests make these small.
struct RunSizes {
  WorkWindow::Size window;
  std::chrono::milliseconds slowAfter{2000};
  std::chrono::milliseconds logEvery{60'000};  ///< a line on the progress where there is no terminal
  int brokenInARow = 32;  ///< so many results in a row that could not be written end the run
};

/// Does the plan once. What is borrowed must outlive it. Made and used on the main thread.
class ArchiveRun {
 public:
  ArchiveRun(Console& console, PictureService& service, const ArchivePlan& plan, const CancelToken& cancel,
             const RunSizes& sizes = {});

  ExitCode run();

 private:
  ExitCode checkNames();
  ExitCode openState();
  void work();
  ExitCode tell();
  bool tellOne(const FileResult& result);
  void tellProgress();
  bool keep(const FileResult& result);
  bool keepWhatWaits();
  void breakOff(const Error& error, const QByteArray& path);
  void message(const QByteArray& path, const QString& sentence);

  Console& console_;
  PictureService& service_;
  const ArchivePlan& plan_;
  const CancelToken cancel_;
  const CancelToken ending_;  ///< wakes whoever reads names when the run ends
  const RunSizes sizes_;
  WorkPlaces places_;
  WorkWindow window_;
  std::unique_ptr<RunState> state_;
  std::optional<OutputRegister> claims_;  ///< of names that cannot be checked beforehand
  std::optional<qint64> total_;
  std::optional<RunTally> tally_;
  QList<RunEntry> unkept_;
  std::chrono::steady_clock::time_point lastKept_, lastTold_;
  std::chrono::steady_clock::duration keepEvery_{};  ///< as long as the disk makes worth while
  int brokenInARow_ = 0;
  std::mutex breakMutex_;
  std::optional<std::pair<QByteArray, Error>> broken_;  ///< why the run was broken off
};

}  // namespace norvex
