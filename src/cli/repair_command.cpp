// `norvex repair`: an EPS file mended around its program, written whole or not at all.
#include "base/file_name.h"
#include "base/interruption.h"
#include "cli/input_file.h"
#include "cli/job.h"
#include "cli/value_reader.h"
#include "picture_check/repaired_picture.h"

namespace norvex {
namespace {

PreviewUse previewUse(const QString& word) {
  if (word == u"drop") return PreviewUse::Drop;
  return word == u"rebuild" ? PreviewUse::Rebuild : PreviewUse::Keep;
}

}  // namespace

ExitCode Job::repair(const Arguments& arguments) {
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  if (!values.complaint().isEmpty()) return complain(Command::Repair, values.complaint());
  const QString file = arguments.files.first(), output = arguments.values.value(Option::Output);
  const bool force = arguments.has(Option::Force);
  if (output != QLatin1String("-") && !force) {
    if (const auto error = overwritesInput(file, output)) return fail(file, *error);
    if (fileExists(output))
      return fail(output,
                  {ErrorKind::CannotWrite, QStringLiteral("it exists already (--force overwrites it)")});
  }
  const Result<QByteArray> bytes = readInput(console_, file);
  if (!bytes) return fail(file, bytes.error());
  const Interruption interruption;
  const Result<RepairedPicture> repaired = repairedPicture(
      service_, *bytes, previewUse(arguments.values.value(Option::Preview)), limits, interruption.token());
  if (!repaired) return fail(file, repaired.error());
  const ExitCode code = writeOutput(output, repaired->bytes, force);
  if (code != ExitCode::Done) return code;
  if (arguments.has(Option::Quiet)) return code;
  for (const QString& change : repaired->changes)
    console_.message(QStringLiteral("norvex: %1: %2").arg(file, change));
  if (repaired->changes.isEmpty())
    console_.message(QStringLiteral("norvex: %1: nothing had to be changed").arg(file));
  for (const QString& sentence : repaired->remaining)
    console_.message(QStringLiteral("norvex: %1: this stays as it is: %2").arg(file, sentence));
  return code;
}

}  // namespace norvex
