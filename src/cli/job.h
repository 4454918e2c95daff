// One run of the command line.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

#include "cli/arguments/arguments.h"
#include "cli/arguments/exit_code.h"
#include "cli/conversion.h"
#include "cli/convert_plan.h"
#include "cli/document_info.h"
#include "cli/files/console.h"
#include "cli/reader/reader_options.h"
#include "picture/process/picture_process.h"

namespace norvex {

struct CheckedPicture;
struct RepairedPicture;
template <typename Made>
class WorkInOrder;

/// Does what arguments ask for. Everything that the command line can do is here, so that tests drive it
/// without a program. The console and the service are borrowed and must outlive the job. Main thread only;
/// the work on files runs on threads of its own.
class Job {
 public:
  Job(Console& console, PictureService& service) : console_(console), service_(service) {}
  virtual ~Job() = default;

  /// `given`: the arguments behind the program's name.
  ExitCode run(const QStringList& given);

 protected:
  /// See PrintingJob; a job of this class says that it does not print.
  virtual ExitCode print(const Arguments& arguments);
  /// Does a command with every file of an archive, or tells of a state. See cli/archive/archive_job.h; a job
  /// of this class says that it takes no archives.
  virtual ExitCode archive(const Arguments& arguments);
  /// Arguments in which nothing is wrong.
  ExitCode dispatch(const Arguments& arguments);
  /// Bytes of a result to a file, or to standard output for "-".
  ExitCode writeOutput(const QString& output, const QByteArray& bytes, bool force);
  /// Tells on standard error that the arguments are wrong.
  ExitCode complain(Command command, const QString& complaint);
  /// What the arguments tell of the reader; nothing: what is wrong with them was told, as a fault of usage.
  std::optional<ReaderOptions> readerOf(const Arguments& arguments);
  /// Tells on standard error that something is wrong with a file.
  virtual ExitCode fail(const QString& file, const Error& error);
  /// Hears why a file that was looked at is not as it should be, which the command itself tells in its own
  /// way.
  virtual void noteFault(const QString& sentence) { (void)sentence; }
  /// Tells on standard error that standard output cannot be written; nothing where nobody reads it.
  ExitCode failToWrite();
  /// Tells on standard error what there is to know about a file that was done; nothing where that is nothing.
  void remark(const QString& file, const QStringList& sentences);

  Console& console_;
  PictureService& service_;

 private:
  ExitCode info(const Arguments& arguments);
  ExitCode source(const Arguments& arguments);
  ExitCode text(const Arguments& arguments);
  ExitCode preview(const Arguments& arguments);
  ExitCode thumbnail(const Arguments& arguments);
  ExitCode convert(const Arguments& arguments);
  ExitCode check(const Arguments& arguments);
  /// Tells why a file could not be checked; of one that could, its worst finding decides.
  ExitCode codeOf(const QString& file, const CheckedPicture& checked);
  ExitCode reportChecks(const Arguments& arguments, WorkInOrder<CheckedPicture>& checks);
  ExitCode repair(const Arguments& arguments);
  ExitCode inks(const Arguments& arguments);
  /// What was changed and what stays, a line each.
  void tellRepair(const QString& file, const RepairedPicture& repaired);
  ExitCode reportConversions(const ConvertPlan& plan, WorkInOrder<ConvertedFile>& files);
  /// Tells what became of one file; of one that goes to standard output, writes it.
  ExitCode reportConversion(const ConvertPlan& plan, const ConvertTask& task, const Conversion& conversion);
  ExitCode sandboxStatus();

  /// Text to standard output.
  ExitCode show(const QString& text);
};

}  // namespace norvex
