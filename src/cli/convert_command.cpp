// `norvex convert`: pictures into other formats, several at once, each written whole or not at all.
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include "base/atomic_file.h"
#include "base/interruption.h"
#include "base/open_files.h"
#include "base/time_limit.h"
#include "cli/arguments/conversion_use.h"
#include "cli/conversion_report.h"
#include "cli/files/input_file.h"
#include "cli/files/json_output.h"
#include "cli/files/output_file.h"
#include "cli/job.h"
#include "cli/work_in_order.h"
#include "metadata/full_date.h"

namespace norvex {
namespace {

Conversion refused(ErrorKind kind, const QString& message) {
  Conversion conversion;
  conversion.report.error = Error{kind, message};
  return conversion;
}

Conversion interrupted() {
  return refused(ErrorKind::Cancelled, QStringLiteral("it was interrupted"));
}

/// The task of one of a file's pages.
ConvertTask taskOf(const ConvertTask& task, const Conversion& conversion) {
  return conversion.page > 0 ? ConvertTask{task.file, outputOfPage(task.output, conversion.page)} : task;
}

/// Writes what was made, unless it is for standard output.
Conversion written(Conversion conversion, const QString& output, bool force) {
  if (conversion.report.error || output == QLatin1String("-")) return conversion;
  const auto done = writeFileAtomically(output, conversion.bytes, force ? IfExists::Replace : IfExists::Fail);
  if (!done)
    conversion.report.error =
        Error{done.error().kind, QStringLiteral("%1: %2").arg(output, done.error().message)};
  conversion.bytes.clear();
  return conversion;
}

/// All pages that the plan asks for, or one failure for all of them.
QList<Conversion> convertPagesOf(PictureService& service, const ConvertTask& task, const ConvertPlan& plan,
                                 const QByteArray& bytes, const CancelToken& cancel) {
  QList<Conversion> conversions;
  PageTaker taker;
  taker.begin = [&](const QList<int>& pages) -> std::optional<Error> {
    for (const int page : pages)
      if (auto refusal = outputRefusal(task.file, outputOfPage(task.output, page), plan.force))
        return refusal;
    return std::nullopt;
  };
  taker.take = [&](Conversion conversion) {
    if (cancel.cancelled()) return false;
    const QString output = outputOfPage(task.output, conversion.page);
    conversions << written(std::move(conversion), output, plan.force);
    return true;
  };
  const Result<void> done =
      convertPages(service, sourceOfInput(bytes, task.file), plan.options, *plan.pages, taker, cancel);
  if (!done) conversions = {refused(done.error().kind, done.error().message)};
  if (cancel.cancelled()) conversions << interrupted();
  return conversions;
}

/// Converts and writes one file: one conversion, or one a page. `input`: the bytes of standard input.
/// Thread-safe.
QList<Conversion> convertFile(PictureService& service, const ConvertTask& task, const ConvertPlan& plan,
                              const Result<QByteArray>& input, const CancelToken& cancel) {
  if (cancel.cancelled()) return {interrupted()};
  if (!plan.pages)
    if (const auto refusal = outputRefusal(task.file, task.output, plan.force))
      return {refused(refusal->kind, refusal->message)};
  const bool isInput = task.file == QLatin1String("-");
  const Result<QByteArray> bytes = isInput ? input : readInputFile(task.file);
  if (!bytes) return {refused(bytes.error().kind, bytes.error().message)};
  if (plan.pages) return convertPagesOf(service, task, plan, *bytes, cancel);

  const TimeLimit limit(std::chrono::seconds(plan.options.limits.seconds), cancel);
  Conversion conversion =
      convertPicture(service, sourceOfInput(*bytes, task.file), plan.options, limit.token());
  if (cancel.cancelled()) return {interrupted()};
  if (conversion.report.error) conversion.report.error = limit.explained(*conversion.report.error);
  return {written(std::move(conversion), task.output, plan.force)};
}

/// Two files of one run must not be written to one place: neither is then the right one.
QString doubleTarget(const QList<ConvertTask>& tasks) {
  QSet<QString> seen;
  for (const ConvertTask& task : tasks) {
    const QString path = QFileInfo(task.output).absoluteFilePath();
    if (seen.contains(path)) return task.output;
    seen.insert(path);
  }
  return {};
}

}  // namespace

ExitCode Job::convert(const Arguments& arguments) {
  ReadPlan read = readConvertPlan(arguments);
  if (!read.complaint.isEmpty()) return complain(Command::Convert, read.complaint);
  std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  read.plan.options.reader = std::move(*reader);
  const ConvertPlan& plan = read.plan;
  if (const QString path = doubleTarget(plan.tasks); !path.isEmpty()) {
    return complain(Command::Convert, QStringLiteral("more than one file would become %1").arg(path));
  }
  const bool isWhole = plan.options.rotateDegrees == 0 && !plan.options.crop;
  service_.openOnlyFor(useOfConversion(plan.options.format, isWhole));
  // ICU reads its tables at the first date of all: now the picture process starts, later somebody waits.
  if (rowOf(plan.options.format).kind == DocumentKind::Eps)
    (void)fullDate(QDateTime::currentDateTime(), userDateLocale());
  const bool fromInput = arguments.files.contains(QStringLiteral("-"));
  const Result<QByteArray> input =
      fromInput ? readInput(console_, QStringLiteral("-")) : Result(QByteArray());

  const Interruption interruption;
  const CancelToken cancel = interruption.token();
  const auto convertTask = [&](qsizetype index) {
    return ConvertedFile{convertFile(service_, plan.tasks[index], plan, input, cancel)};
  };
  const auto failed = [](const Error& error) { return ConvertedFile{{refused(error.kind, error.message)}}; };
  // One more than are drawn at a time: another is being read or written meanwhile.
  const int threads = threadsWithinOpenFiles(plan.jobs > 1 ? plan.jobs + 1 : 1);
  WorkInOrder<ConvertedFile> files(plan.tasks.size(), threads, convertTask, failed);
  const ExitCode code = reportConversions(plan, files);
  return cancel.cancelled() ? ExitCode::Interrupted : code;
}

ExitCode Job::reportConversions(const ConvertPlan& plan, WorkInOrder<ConvertedFile>& files) {
  QList<ExitCode> codes;
  QJsonArray objects;
  const qsizetype count = plan.tasks.size();
  for (qsizetype i = 0; i < count; ++i) {
    const ConvertTask& task = plan.tasks[i];
    if (!plan.quiet && count > 1) {
      console_.progress(QStringLiteral("%1 of %2: %3").arg(i + 1).arg(count).arg(task.file));
    }
    const ConvertedFile file = files.take(i);
    for (const Conversion& conversion : file.conversions) {
      const ConvertTask told = taskOf(task, conversion);
      if (plan.json) objects.append(conversionObject(told, plan.options, conversion));
      codes << reportConversion(plan, told, conversion);
    }
  }
  console_.progress({});
  if (const qsizetype undone = codes.count(ExitCode::Interrupted); undone > 0) {
    console_.message(
        QStringLiteral("norvex: interrupted; %1 of %2 files not converted").arg(undone).arg(count));
  }
  if (plan.json && !console_.write(jsonOutput(QJsonDocument(objects)))) {
    return failToWrite();
  }
  return exitCodeOfAll(codes);
}

ExitCode Job::reportConversion(const ConvertPlan& plan, const ConvertTask& task,
                               const Conversion& conversion) {
  const auto& error = conversion.report.error;
  // An interruption may leave hundreds of files undone; they are told as one number.
  if (error && error->kind == ErrorKind::Cancelled) return ExitCode::Interrupted;
  if (error) return fail(task.file, *error);
  const QString remarks = conversionRemarks(plan.options, conversion);
  if (!plan.quiet && !remarks.isEmpty()) {
    console_.message(QStringLiteral("norvex: %1: %2").arg(task.file, remarks));
  }
  if (task.output != QLatin1String("-")) return ExitCode::Done;
  return writeOutput(task.output, conversion.bytes, false);
}

}  // namespace norvex
