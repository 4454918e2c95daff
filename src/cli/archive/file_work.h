// The work on one file of an archive: the command, tried again where that helps, and what there is to keep.
#pragma once

#include "cli/archive/archive_plan.h"
#include "cli/archive/file_job.h"
#include "cli/archive/file_result.h"
#include "cli/archive/work_places.h"

namespace norvex {

/// Borrows all that it is made with. Any thread.
class FileWork {
 public:
  FileWork(PictureService& service, const ArchivePlan& plan, WorkPlaces& places, const CancelToken& cancel)
      : service_(service), plan_(plan), places_(places), cancel_(cancel) {}

  /// Waits for its place. A file that changes meanwhile is done again, and so is one whose time was over
  /// after the program had been stopped; one whose picture process ends is tried once more while nothing else
  /// runs, then set
  /// aside, unless no picture can be read: that is no fault of the file.
  [[nodiscard]] FileResult run(const FileTask& task) const;

 private:
  [[nodiscard]] FileAnswer attempt(const FileTask& task, bool replace) const;
  [[nodiscard]] bool canReadPictures(const QByteArray& path) const;
  [[nodiscard]] int memoryOf(const QByteArray& path) const;
  void judge(FileResult& result, const FileTask& task, const FileAnswer& answer) const;
  void keepOutput(FileResult& result, const FileTask& task, const FileAnswer& answer, qint64 since) const;
  void lose(FileResult& result, const FileTask& task, const QString& sentence) const;

  PictureService& service_;
  const ArchivePlan& plan_;
  WorkPlaces& places_;
  const CancelToken cancel_;
};

/// How a file is told in a state before there is a result.
[[nodiscard]] RunEntry begunEntry(const ArchivePlan& plan, const FileTask& task);

}  // namespace norvex
