// `norvex info`: every file's facts, found out on all cores and told in the order of the files.
#include <QJsonDocument>
#include <QThread>

#include "base/open_files.h"
#include "cli/files/input_file.h"
#include "cli/files/json_output.h"
#include "cli/info_report.h"
#include "cli/job.h"
#include "cli/value_reader.h"
#include "cli/work_in_order.h"

namespace norvex {
namespace {

/// A file's part of the output with its end.
struct Finding {
  QByteArray output;
  std::optional<Error> error;
};

Finding findingOf(const DocumentInfo& info, bool json) {
  if (json) return {jsonOutput(QJsonDocument(infoObject(info))).trimmed(), info.error};
  const bool silent = info.error && info.header.isEmpty();  // nothing to tell but what is wrong
  return {silent ? QByteArray() : infoText(info).toUtf8(), info.error};
}

}  // namespace

ExitCode Job::info(const Arguments& arguments) {
  const bool json = arguments.has(Option::Json);
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  if (!values.complaint().isEmpty()) return complain(Command::Info, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  // Standard input is read here: it can be read once, and a terminal may take its time.
  const bool fromInput = arguments.files.contains(QStringLiteral("-"));
  const Result<QByteArray> input =
      fromInput ? readInput(console_, QStringLiteral("-")) : Result(QByteArray());
  service_.openOnlyFor(PictureUse::Facts);
  const auto find = [&](qsizetype index) {
    const QString& file = arguments.files[index];
    const bool isInput = file == QLatin1String("-");
    return findingOf(documentInfo(service_, file, isInput ? input : readInputFile(file), limits, *reader),
                     json);
  };
  // Most of the time each of them waits for a picture's process to be made and to answer.
  const int threads = threadsWithinOpenFiles(2 * QThread::idealThreadCount());
  WorkInOrder<Finding> findings(arguments.files.size(), threads, find, [](const Error& error) {
    return Finding{{}, error};
  });

  QList<ExitCode> codes;
  bool written = !json || console_.write("[\n");
  for (qsizetype i = 0; i < arguments.files.size(); ++i) {
    const Finding finding = findings.take(i);
    codes << (finding.error ? fail(arguments.files[i], *finding.error) : ExitCode::Done);
    const bool last = i + 1 == arguments.files.size();
    const QByteArray end = json ? (last ? "\n" : ",\n") : "";
    written = written && console_.write(finding.output + end);
  }
  written = written && (!json || console_.write("]\n"));
  if (written) return exitCodeOfAll(codes);
  return failToWrite();
}

}  // namespace norvex
