// `norvex repair`: an EPS file mended around its program, written whole or not at all.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/interruption.h"
#include "cli/files/input_file.h"
#include "cli/files/json_output.h"
#include "cli/files/output_file.h"
#include "cli/job.h"
#include "cli/value_reader.h"
#include "picture_check/repaired_picture.h"

namespace norvex {
namespace {

PreviewUse previewUse(const QString& word) {
  if (word == u"drop") return PreviewUse::Drop;
  return word == u"rebuild" ? PreviewUse::Rebuild : PreviewUse::Keep;
}

QByteArray jsonOf(const QString& file, const QString& output, const Result<RepairedPicture>& repaired) {
  QJsonObject object;
  insertName(object, QStringLiteral("file"), file);
  insertName(object, QStringLiteral("output"), output);
  if (repaired) {
    object.insert(QStringLiteral("changes"), QJsonArray::fromStringList(repaired->changes));
    object.insert(QStringLiteral("remaining"), QJsonArray::fromStringList(repaired->remaining));
  } else {
    insertError(object, repaired.error());
  }
  return jsonOutput(QJsonDocument(QJsonArray{object}));
}

/// What is wrong with the arguments; empty: nothing.
QString complaintAboutRepair(const QString& file, const QString& output, bool json) {
  if (json && output == QLatin1String("-"))
    return QStringLiteral("--json and -o - both need standard output");
  return wrongExtension(file, output, PictureFormat::Eps);
}

}  // namespace

ExitCode Job::repair(const Arguments& arguments) {
  ValueReader values(arguments);
  const PictureLimits limits = values.limits();
  const QString file = arguments.files.first(), output = arguments.values.value(Option::Output);
  const bool force = arguments.has(Option::Force), json = arguments.has(Option::Json);
  if (const QString wrong = complaintAboutRepair(file, output, json); !wrong.isEmpty())
    values.complain(wrong);
  if (!values.complaint().isEmpty()) return complain(Command::Repair, values.complaint());

  const Interruption interruption;
  const auto repair = [&]() -> Result<RepairedPicture> {
    // With --force a file may be mended in its place.
    if (const auto refusal = outputRefusal(force ? QString() : file, output, force)) return *refusal;
    const Result<QByteArray> bytes = readInput(console_, file);
    if (!bytes) return bytes.error();
    const PreviewUse preview = previewUse(arguments.values.value(Option::Preview));
    return repairedPicture(service_, *bytes, file, preview, limits, interruption.token());
  };
  const Result<RepairedPicture> repaired = repair();
  const ExitCode code = repaired ? writeOutput(output, repaired->bytes, force) : fail(file, repaired.error());
  if (json && !console_.write(jsonOf(file, output, repaired))) return failToWrite();
  if (code == ExitCode::Done && !arguments.has(Option::Quiet)) tellRepair(file, *repaired);
  return code;
}

void Job::tellRepair(const QString& file, const RepairedPicture& repaired) {
  for (const QString& change : repaired.changes) remark(file, {change});
  if (repaired.changes.isEmpty()) remark(file, {QStringLiteral("nothing had to be changed")});
  for (const QString& sentence : repaired.remaining)
    remark(file, {QStringLiteral("this stays as it is: %1").arg(sentence)});
}

}  // namespace norvex
