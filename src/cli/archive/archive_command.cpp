#include "cli/archive/archive_command.h"

#include "base/atomic_file.h"
#include "base/file_name.h"
#include "base/interruption.h"
#include "cli/archive/archive_run.h"
#include "cli/archive/file_job.h"
#include "cli/archive/state/state_summary.h"
#include "cli/archive/state_report.h"
#include "cli/files/json_output.h"
#include "cli/files/output_file.h"

namespace norvex {
namespace {

/// The command's complaint about its own options: tried with a file that is not there and no output, so that
/// it shows before anything is read or written. Empty: nothing.
QString complaintOfCommand(PictureService& service, const Arguments& arguments) {
  Arguments sample = argumentsForFile(arguments, {}, {}, false);
  sample.values.remove(Option::Json);
  if (rowOf(Option::Output).commands & only(arguments.command))
    sample.values.insert(Option::Output, QStringLiteral("-"));
  const FileAnswer answer = doWithFile(service, sample);
  return answer.code == ExitCode::Usage ? answer.messages.trimmed() : QString();
}

}  // namespace

ExitCode ArchiveCommand::start(const Arguments& arguments) {
  if (arguments.command == Command::Status) return status(arguments);
  const ReadArchivePlan read = readArchivePlan(arguments);
  if (!read.complaint.isEmpty()) return complain(arguments.command, read.complaint);
  if (const QString wrong = complaintOfCommand(service_, arguments); !wrong.isEmpty()) {
    console_.message(wrong);
    return ExitCode::Usage;
  }
  const QString report = fileNameText(read.plan.report);
  if (const auto refusal = reportRefusal(report, arguments.has(Option::Force))) return fail(report, *refusal);
  const Interruption interruption;
  const ExitCode code = ArchiveRun(console_, service_, read.plan, interruption.token()).run();
  if (read.plan.report.isEmpty() || code == ExitCode::Usage) return code;
  const ExitCode reported = writeReport(read.plan.state, read.plan.report);
  return reported == ExitCode::Done ? code : reported;
}

/// A report is renewed with every run; nothing else gives way to one.
std::optional<Error> ArchiveCommand::reportRefusal(const QString& report, bool force) const {
  if (report.isEmpty()) return std::nullopt;
  return outputRefusal({}, report, force || isStateReport(fileNameBytes(report)));
}

ExitCode ArchiveCommand::status(const Arguments& arguments) {
  const QString file = arguments.files.first();
  const QByteArray path = fileNameBytes(file);
  const QStringList others = arguments.lists.value(Option::Merge) + arguments.files.mid(1);
  const QString report = arguments.values.value(Option::Report);
  if (const auto refusal = reportRefusal(report, arguments.has(Option::Force))) return fail(report, *refusal);
  // Before the state that takes them is made: one that is not there shall not leave an empty one.
  for (const QString& other : others)
    if (const auto opened = RunState::openToRead(fileNameBytes(other)); !opened)
      return fail(other, {ErrorKind::CannotRead, opened.error().message});
  auto state = others.isEmpty() ? RunState::openToRead(path) : RunState::openForRun(path);
  if (!state) return fail(file, {ErrorKind::CannotRead, state.error().message});
  for (const QString& other : others)
    if (const auto merged = (*state)->merge(fileNameBytes(other)); !merged)
      return fail(other, merged.error());
  const Result<StateSummary> summary = summaryOf((*state)->database());
  if (!summary) return fail(file, {ErrorKind::CannotRead, summary.error().message});
  const QByteArray text = arguments.has(Option::Json) ? jsonOutput(QJsonDocument(summaryObject(*summary)))
                                                      : summaryText(*summary).toUtf8();
  if (!console_.write(text)) return failToWrite();
  state->reset();
  return report.isEmpty() ? ExitCode::Done : writeReport(path, fileNameBytes(report));
}

ExitCode ArchiveCommand::writeReport(const QByteArray& state, const QByteArray& report) {
  if (!report.endsWith(".html") && !report.endsWith(".jsonl"))
    return complain(Command::Status, QStringLiteral("a report ends in .html or .jsonl"));
  const auto opened = RunState::openToRead(state);
  if (!opened) return fail(fileNameText(state), {ErrorKind::CannotRead, opened.error().message});
  const Result<void> written = writeStateReport(absolutePath(state), (*opened)->database(), service_, report);
  return written ? ExitCode::Done : fail(fileNameText(report), written.error());
}

}  // namespace norvex
