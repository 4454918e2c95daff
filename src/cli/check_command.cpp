// `norvex check`: what is wrong with the files, in the order of the files.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <algorithm>

#include "base/interruption.h"
#include "base/latin1_text.h"
#include "cli/files/input_file.h"
#include "cli/files/json_output.h"
#include "cli/job.h"
#include "cli/reader/reader_options.h"
#include "cli/value_reader.h"
#include "cli/work_in_order.h"
#include "picture_check/picture_check.h"

namespace norvex {
namespace {

/// A place is one of a page.
QString sentenceOf(const Finding& one) {
  if (one.page == 0 || !one.rect) return one.sentence;
  return QStringLiteral("page %1: ").arg(one.page) + one.sentence;
}

QJsonObject objectOf(const Finding& one) {
  QJsonObject object{{"identifier", latin1(one.rule->identifier)},
                     {"severity", nameOf(one.severity)},
                     {"sentence", sentenceOf(one)},
                     {"source", latin1(one.rule->source)}};
  if (!one.rule->mend.empty()) object.insert("mend", latin1(one.rule->mend));
  if (one.page > 0) object.insert("page", one.page);
  if (one.line) object.insert("line", *one.line);
  if (!one.object.isEmpty()) object.insert("object", one.object);
  if (one.rect) object.insert("rectangle", jsonArray(*one.rect));
  return object;
}

QByteArray jsonOf(const QString& file, const CheckedPicture& checked) {
  QJsonArray findings;
  for (const Finding& one : checked.findings) findings.append(objectOf(one));
  QJsonObject object{{"findings", findings}};
  insertName(object, QStringLiteral("file"), file);
  if (checked.error) insertError(object, *checked.error);
  return jsonOutput(QJsonDocument(object)).trimmed();
}

/// A line a finding: FILE: error: sentence, where (identifier).
QByteArray linesOf(const QString& file, const CheckedPicture& checked) {
  QString text;
  for (const Finding& one : checked.findings) {
    QString line = QStringLiteral("%1:").arg(file);
    if (one.line) line += QStringLiteral("%1:").arg(*one.line);
    line += u' ' + nameOf(one.severity) + QStringLiteral(": ") + sentenceOf(one);
    if (one.rect)
      line += QStringLiteral(", at %1 %2")
                  .arg(qRound(one.rect->center().x()))
                  .arg(qRound(one.rect->center().y()));
    text += visible(line + QStringLiteral(" (") + latin1(one.rule->identifier) + u')') + u'\n';
  }
  return text.toUtf8();
}

}  // namespace

ExitCode Job::codeOf(const QString& file, const CheckedPicture& checked) {
  if (checked.error) return fail(file, *checked.error);
  const auto worst = std::find_if(checked.findings.begin(), checked.findings.end(),
                                  [](const Finding& one) { return one.severity == Severity::Error; });
  if (worst == checked.findings.end()) return ExitCode::Done;
  noteFault(worst->sentence);
  return ExitCode::SomeFailed;
}

ExitCode Job::reportChecks(const Arguments& arguments, WorkInOrder<CheckedPicture>& checks) {
  const bool json = arguments.has(Option::Json);
  QList<ExitCode> codes;
  bool written = !json || console_.write("[\n");
  for (qsizetype i = 0; i < arguments.files.size(); ++i) {
    const QString& file = arguments.files[i];
    const CheckedPicture checked = checks.take(i);
    codes << codeOf(file, checked);
    const QByteArray end = i + 1 < arguments.files.size() ? ",\n" : "\n]\n";
    written = written && console_.write(json ? jsonOf(file, checked) + end : linesOf(file, checked));
  }
  if (written) return exitCodeOfAll(codes);
  return failToWrite();
}

ExitCode Job::check(const Arguments& arguments) {
  ValueReader values(arguments);
  CheckRequest common;
  common.limits = values.limits();
  const int jobs = values.integer(Option::Jobs, std::max(1, QThread::idealThreadCount()), 1, 1024);
  if (!values.complaint().isEmpty()) return complain(Command::Check, values.complaint());
  const std::optional<ReaderOptions> reader = readerOf(arguments);
  if (!reader) return ExitCode::Usage;
  common.password = reader->password;
  if (arguments.has(Option::Profile)) {
    const QString name = arguments.values.value(Option::Profile);
    Result<Profile> profile = profileNamed(name);
    if (!profile) return complain(Command::Check, QStringLiteral("--profile: ") + profile.error().message);
    common.profile = *profile;
  }
  const QString standardInput = QStringLiteral("-");
  const Result<QByteArray> input =
      arguments.files.contains(standardInput) ? readInput(console_, standardInput) : Result(QByteArray());
  service_.openOnlyFor(PictureUse::WholePdf);
  const Interruption interruption;
  const CancelToken cancel = interruption.token();
  const auto checkFile = [&](qsizetype index) {
    const QString& file = arguments.files[index];
    const bool isInput = file == standardInput;
    const Result<QByteArray> bytes = isInput ? input : readInputFile(file);
    if (!bytes) return CheckedPicture{{}, bytes.error()};
    CheckRequest request = common;
    request.bytes = *bytes;
    request.fileName = isInput ? QString() : file;
    return checkPicture(service_, request, cancel);
  };
  WorkInOrder<CheckedPicture> checks(arguments.files.size(), jobs, checkFile, [](const Error& error) {
    return CheckedPicture{{}, error};
  });
  const ExitCode code = reportChecks(arguments, checks);
  return cancel.cancelled() ? ExitCode::Interrupted : code;
}

}  // namespace norvex
