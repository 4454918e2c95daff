// `norvex convert`: pictures into other formats, several at once, each written whole or not at all.
#include <QJsonArray>
#include <QJsonDocument>
#include <QThreadPool>
#include <QtConcurrent>

#include "base/atomic_file.h"
#include "base/file_name.h"
#include "base/interruption.h"
#include "base/open_files.h"
#include "base/time_limit.h"
#include "cli/arguments/conversion_use.h"
#include "cli/conversion_report.h"
#include "cli/input_file.h"
#include "cli/job.h"
#include "cli/json_output.h"
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

/// The failure that is known before the work is done: its result could not be kept.
std::optional<Conversion> refusalOf(const ConvertTask& task, const ConvertPlan& plan) {
  if (task.output == QLatin1String("-")) return std::nullopt;
  if (const auto error = overwritesInput(task.file, task.output)) return refused(error->kind, error->message);
  if (!plan.force && fileExists(task.output)) {
    return refused(ErrorKind::CannotWrite,
                   QStringLiteral("%1 exists already (--force overwrites it)").arg(task.output));
  }
  if (!folderExists(QFileInfo(task.output).path())) {
    return refused(ErrorKind::CannotWrite,
                   QStringLiteral("%1: the folder to write to does not exist").arg(task.output));
  }
  return std::nullopt;
}

/// Converts and writes one file. `input`: the bytes of standard input. Thread-safe.
Conversion convertFile(PictureService& service, const ConvertTask& task, const ConvertPlan& plan,
                       const Result<QByteArray>& input, const CancelToken& cancel) {
  if (cancel.cancelled()) return interrupted();
  if (auto refusal = refusalOf(task, plan)) return *refusal;
  const bool isInput = task.file == QLatin1String("-");
  const Result<QByteArray> bytes = isInput ? input : readInputFile(task.file);
  if (!bytes) return refused(bytes.error().kind, bytes.error().message);

  const TimeLimit limit(std::chrono::seconds(plan.options.limits.seconds), cancel);
  Conversion conversion =
      convertPicture(service, sourceOfInput(*bytes, task.file), plan.options, limit.token());
  if (cancel.cancelled()) return interrupted();
  if (conversion.report.error) conversion.report.error = limit.explained(*conversion.report.error);
  if (conversion.report.error || task.output == QLatin1String("-")) return conversion;
  const auto written =
      writeFileAtomically(task.output, conversion.bytes, plan.force ? IfExists::Replace : IfExists::Fail);
  if (!written) {
    conversion.report.error =
        Error{written.error().kind, QStringLiteral("%1: %2").arg(task.output, written.error().message)};
  }
  conversion.bytes.clear();
  return conversion;
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
  const ReadPlan read = readConvertPlan(arguments);
  if (!read.complaint.isEmpty()) return complain(Command::Convert, read.complaint);
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
  QThreadPool pool;
  // One more than are drawn at a time: another is being read or written meanwhile.
  pool.setMaxThreadCount(threadsWithinOpenFiles(plan.jobs > 1 ? plan.jobs + 1 : 1));
  const CancelToken cancel = interruption.token();
  const auto convertTask = [&](const ConvertTask& task) {
    return convertFile(service_, task, plan, input, cancel);
  };
  // A single file is not worth a thread.
  QFuture<Conversion> conversions = plan.tasks.size() == 1
                                        ? QtFuture::makeReadyFuture(convertTask(plan.tasks.first()))
                                        : QtConcurrent::mapped(&pool, plan.tasks, convertTask);
  const ExitCode code = reportConversions(plan, conversions);
  conversions.waitForFinished();
  return cancel.cancelled() ? ExitCode::Interrupted : code;
}

ExitCode Job::reportConversions(const ConvertPlan& plan, const QFuture<Conversion>& conversions) {
  QList<ExitCode> codes;
  QJsonArray objects;
  const qsizetype count = plan.tasks.size();
  for (qsizetype i = 0; i < count; ++i) {
    const ConvertTask& task = plan.tasks[i];
    if (!plan.quiet && count > 1) {
      console_.progress(QStringLiteral("%1 of %2: %3").arg(i + 1).arg(count).arg(task.file));
    }
    const Conversion conversion = conversions.resultAt(int(i));
    if (plan.json) objects.append(conversionObject(task, plan.options, conversion));
    codes << reportConversion(plan, task, conversion);
  }
  console_.progress({});
  if (const qsizetype undone = codes.count(ExitCode::Interrupted); undone > 0) {
    console_.message(
        QStringLiteral("norvex: interrupted; %1 of %2 files not converted").arg(undone).arg(count));
  }
  if (plan.json && !console_.write(jsonOutput(QJsonDocument(objects)))) {
    return fail(QStringLiteral("-"),
                {ErrorKind::CannotWrite, QStringLiteral("standard output cannot be written")});
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
