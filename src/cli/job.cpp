#include "cli/job.h"

#include "base/latin1_text.h"
#include "cli/arguments/help_text.h"
#include "cli/arguments/shell_completion.h"
#include "picture/told_error.h"

namespace norvex {

ExitCode Job::run(const QStringList& given) {
  const ReadArguments read = readArguments(given);
  if (read.complaint.isEmpty()) return dispatch(read.arguments);
  return complain(read.arguments.command, read.complaint);
}

ExitCode Job::complain(Command command, const QString& complaint) {
  const QString name = latin1(rowOf(command).name);
  const QString help =
      name.isEmpty() ? QStringLiteral("norvex --help") : QStringLiteral("norvex %1 --help").arg(name);
  console_.message(QStringLiteral("norvex: %1; %2 shows what there is").arg(complaint, help));
  return ExitCode::Usage;
}

std::optional<ReaderOptions> Job::readerOf(const Arguments& arguments) {
  Result<ReaderOptions> reader = readerOptions(arguments, [this] { return console_.input(); });
  if (reader) return std::move(*reader);
  complain(arguments.command, reader.error().message);
  return std::nullopt;
}

ExitCode Job::dispatch(const Arguments& arguments) {
  if (arguments.has(Option::Help)) return show(helpText(arguments.command));
  if (arguments.has(Option::Version)) return show(versionText());
  if (arguments.has(Option::Completion))
    return show(completionScript(arguments.values.value(Option::Completion)));
  if (arguments.has(Option::SandboxStatus)) return sandboxStatus();
  if (arguments.asksForArchive()) return archive(arguments);
  switch (arguments.command) {
    case Command::Info:
      return info(arguments);
    case Command::Source:
      return source(arguments);
    case Command::Text:
      return text(arguments);
    case Command::Preview:
      return preview(arguments);
    case Command::Convert:
      return convert(arguments);
    case Command::Check:
      return check(arguments);
    case Command::Repair:
      return repair(arguments);
    case Command::Inks:
      return inks(arguments);
    case Command::Print:
      return print(arguments);
    case Command::Status:
      return archive(arguments);
    case Command::Thumbnail:
      return thumbnail(arguments);
    case Command::Main:
      break;  // windows are not opened here
  }
  console_.message(QStringLiteral("norvex: no command is given; norvex --help shows what there is"));
  return ExitCode::Usage;
}

ExitCode Job::print(const Arguments&) {
  return complain(Command::Print, QStringLiteral("this program does not print"));
}

ExitCode Job::archive(const Arguments& arguments) {
  return complain(arguments.command, QStringLiteral("this program takes no archives"));
}

ExitCode Job::sandboxStatus() {
  // Alone, it is answered by the program that reads pictures: see norvex_main.cpp.
  console_.message(
      QStringLiteral("norvex: --sandbox-status stands alone, and needs the program that reads pictures"));
  return ExitCode::Usage;
}

ExitCode Job::show(const QString& text) {
  return console_.write(text.toUtf8()) ? ExitCode::Done : failToWrite();
}

ExitCode Job::failToWrite() {
  if (console_.isClosed()) return ExitCode::PipeClosed;
  console_.message(QStringLiteral("norvex: -: standard output cannot be written"));
  return ExitCode::CannotWrite;
}

void Job::remark(const QString& file, const QStringList& sentences) {
  if (sentences.isEmpty()) return;
  console_.message(QStringLiteral("norvex: %1: %2").arg(file, sentences.join(QStringLiteral("; "))));
}

ExitCode Job::fail(const QString& file, const Error& error) {
  const ToldError told = toldError(error);
  const QString details = told.details.isEmpty() ? QString() : QStringLiteral(". Details: ") + told.details;
  console_.message(QStringLiteral("norvex: %1: %2").arg(file, told.sentence + details));
  return exitCodeOf(error);
}

}  // namespace norvex
