#include "cli/arguments/arguments.h"

#include <QCommandLineParser>

#include <algorithm>
#include <vector>

#include "base/latin1_text.h"
#include "cli/arguments/suggestion.h"

namespace norvex {
namespace {

/// The options that the window system's library takes off the arguments, with one dash or two.
bool isWindowSystemOption(const QString& argument) {
  static const QStringList names{"platform",        "platformpluginpath",
                                 "platformtheme",   "plugin",
                                 "qwindowgeometry", "qwindowicon",
                                 "qwindowtitle",    "reverse",
                                 "session",         "style",
                                 "stylesheet",      "display",
                                 "qmljsdebugger",   "widgetcount"};
  return names.contains(argument.mid(2).section(QLatin1Char('='), 0, 0));
}

std::optional<Command> commandOf(const QString& name) {
  return commandNamed(name.toStdString());
}

QCommandLineOption parserOption(const OptionRow& row) {
  QStringList names{latin1(row.name)};
  if (row.letter) names.prepend(QString(QLatin1Char(row.letter)));
  return row.value.empty() ? QCommandLineOption(names) : QCommandLineOption(names, {}, latin1(row.value));
}

QString wrongNumberOfFiles(const CommandRow& row, qsizetype count) {
  if (count > 0 && count < row.fewestFiles) return QStringLiteral("no output is given");
  if (count < row.fewestFiles) return QStringLiteral("no file is given");
  if (row.mostFiles >= 0 && count > row.mostFiles)
    return row.mostFiles == 1 ? QStringLiteral("only one file can be given")
                              : QStringLiteral("one file and one output can be given");
  return {};
}

QString perhaps(const std::optional<QString>& meant) {
  return meant ? QStringLiteral(", perhaps %1 is meant").arg(*meant) : QString();
}

QString unknownCommand(const QString& name) {
  QStringList names;
  for (const CommandRow& row : commandTable)
    if (!row.name.empty()) names << latin1(row.name);
  return QStringLiteral("there is no command %1, and no file of that name").arg(name) +
         perhaps(nearestName(name, names));
}

/// `name` comes without the dashes that it was given with.
QString unknownOption(const QString& name, const QStringList& given, const std::vector<OptionRow>& rows) {
  const QString dashed = QStringLiteral("--") + name;
  const bool isLong = std::any_of(given.begin(), given.end(), [&](const QString& argument) {
    return argument == dashed || argument.startsWith(dashed + u'=');
  });
  if (!isLong) return QStringLiteral("there is no option -%1").arg(name);
  QStringList names;
  for (const OptionRow& row : rows) names << QStringLiteral("--") + latin1(row.name);
  return QStringLiteral("there is no option %1").arg(dashed) + perhaps(nearestName(dashed, names));
}

QString complaintOf(const QCommandLineParser& parser, const QStringList& given,
                    const std::vector<OptionRow>& rows) {
  const QStringList unknown = parser.unknownOptionNames();
  if (!unknown.isEmpty()) return unknownOption(unknown.first(), given, rows);
  QString text = parser.errorText();
  if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text.left(1).toLower() + text.mid(1);
}

QString wrongValue(const OptionRow& row, const QString& value) {
  if (row.choices.empty() || QString(latin1(row.choices)).split(' ').contains(value)) return {};
  return QStringLiteral("--%1 is one of: %2").arg(latin1(row.name), latin1(row.choices));
}

/// Of two values one would be passed over in silence.
QString givenTwice(const QCommandLineParser& parser, const std::vector<OptionRow>& rows) {
  for (const OptionRow& row : rows)
    if (!row.value.empty() && !row.repeats && parser.values(latin1(row.name)).size() > 1)
      return QStringLiteral("--%1 is given more than once").arg(latin1(row.name));
  return {};
}

bool takesFolder(Command command) {
  return (rowOf(Option::Folder).commands & only(command)) != 0;
}

/// Help and version are answered whatever else is missing.
bool standsAlone(const Arguments& arguments) {
  for (const Option option : {Option::Help, Option::Version, Option::SandboxStatus, Option::Completion})
    if (arguments.has(option)) return true;
  return false;
}

/// The first option that makes the run one over an archive, with its dashes.
QString archiveOptionOf(const Arguments& arguments) {
  for (const OptionRow& row : optionTable)
    if (isAboutArchives(row.id) && arguments.has(row.id)) return QStringLiteral("--") + latin1(row.name);
  return QStringLiteral("--to");
}

/// No file has an empty name; where a variable of a script is empty, that is not what is meant.
QString emptyName(const Arguments& arguments) {
  if (arguments.files.contains(QString())) return QStringLiteral("a file's name is empty");
  for (const Option option : {Option::Output, Option::Folder, Option::FilesFrom, Option::Recursive,
                              Option::Plates, Option::Profile, Option::Base, Option::State, Option::Report})
    if (arguments.has(option) && arguments.values.value(option).isEmpty())
      return QStringLiteral("the name that follows --%1 is empty").arg(latin1(rowOf(option).name));
  if (arguments.lists.value(Option::Merge).contains(QString()))
    return QStringLiteral("the name that follows --merge is empty");
  return {};
}

/// Names come from elsewhere, and go elsewhere than one output.
QString complaintAboutArchive(const Arguments& arguments) {
  const bool listed = arguments.has(Option::FilesFrom), tree = arguments.has(Option::Recursive);
  if (!listed && !tree && arguments.files.isEmpty()) return QStringLiteral("no file is given");
  if (arguments.files.contains(QStringLiteral("-")))
    return QStringLiteral("standard input is not one of the files of an archive (--files-from - lists them)");
  if (arguments.values.value(Option::PasswordFile) == QLatin1String("-"))
    return QStringLiteral("the password of an archive comes from a file, not from standard input");
  if (arguments.has(Option::Output) && takesFolder(arguments.command))
    return QStringLiteral("-o does not go with %1: the results go to a folder (--to DIR)")
        .arg(archiveOptionOf(arguments));
  if (arguments.has(Option::Pages))
    return QStringLiteral("--pages does not go with %1: an archive has one result for each file")
        .arg(archiveOptionOf(arguments));
  if (arguments.has(Option::Plates))
    return QStringLiteral("--plates does not go with %1: files of one name would share theirs")
        .arg(archiveOptionOf(arguments));
  if (arguments.has(Option::Json)) return QStringLiteral("an archive is told line by line: --json-lines");
  if (arguments.has(Option::Null) && !listed) return QStringLiteral("--null goes with --files-from");
  if (!tree && (arguments.has(Option::Include) || arguments.has(Option::Exclude)))
    return QStringLiteral("--include and --exclude go with --recursive");
  if (arguments.has(Option::ShardBy) && !arguments.has(Option::Shard))
    return QStringLiteral("--shard-by goes with --shard");
  if (!arguments.has(Option::State) && (arguments.has(Option::RetryFailed) || arguments.has(Option::Report)))
    return QStringLiteral("--retry-failed and --report go with --state");
  return {};
}

QString complaintAboutStatus(const Arguments& arguments) {
  if (arguments.files.size() > 1 && !arguments.has(Option::Merge))
    return QStringLiteral("only one state is told of (--merge takes others into it)");
  return {};
}

QString complaintAbout(const Arguments& arguments) {
  for (auto it = arguments.values.begin(); it != arguments.values.end(); ++it)
    if (const QString wrong = wrongValue(rowOf(it.key()), it.value()); !wrong.isEmpty()) return wrong;
  if (standsAlone(arguments)) return {};
  if (const QString empty = emptyName(arguments); !empty.isEmpty()) return empty;
  if (arguments.command == Command::Status && !arguments.files.isEmpty())
    return complaintAboutStatus(arguments);
  if (arguments.asksForArchive()) return complaintAboutArchive(arguments);
  if (const QString wrong = wrongNumberOfFiles(rowOf(arguments.command), arguments.files.size());
      !wrong.isEmpty())
    return wrong;
  if (arguments.timesInputIsRead() > 1) return QStringLiteral("standard input can be read only once");
  const bool writes = arguments.command == Command::Preview || arguments.command == Command::Repair;
  if (writes && !arguments.has(Option::Output))
    return QStringLiteral("no output is given (-o OUT or --to DIR)");
  const bool takesJobs = arguments.command == Command::Convert || arguments.command == Command::Check;
  if (!takesJobs && arguments.has(Option::Jobs))
    return QStringLiteral("--jobs goes with --files-from, --recursive or --state");
  return {};
}

}  // namespace

qsizetype Arguments::timesInputIsRead() const {
  const QStringList read = command == Command::Thumbnail ? files.mid(0, 1) : files;
  return read.count(QStringLiteral("-"));
}

bool Arguments::asksForArchive() const {
  if (command == Command::Status) return false;
  // Results in a folder are what archives are made of; convert does several files at once by itself.
  if (command != Command::Convert && has(Option::Folder)) return true;
  return std::any_of(values.keyBegin(), values.keyEnd(), isAboutArchives);
}

ReadArguments readArguments(const QStringList& given) {
  ReadArguments read;
  QStringList rest = given;
  if (const auto command = given.isEmpty() ? std::nullopt : commandOf(given.first())) {
    read.arguments.command = *command;
    rest.removeFirst();
  } else if (!given.isEmpty() && !given.first().startsWith(u'-')) {
    read.complaint = unknownCommand(given.first());
    return read;
  }
  QCommandLineParser parser;
  const std::vector<OptionRow> rows = optionsOf(read.arguments.command);
  for (const OptionRow& row : rows) parser.addOption(parserOption(row));
  if (!parser.parse(QStringList{QStringLiteral("norvex")} + rest)) {
    read.complaint = complaintOf(parser, rest, rows);
    return read;
  }
  Arguments full{read.arguments.command, parser.positionalArguments(), {}, {}};
  for (const OptionRow& row : rows)
    if (const QString name = latin1(row.name); parser.isSet(name)) {
      full.values.insert(row.id, parser.value(name));
      if (row.repeats) full.lists.insert(row.id, parser.values(name));
    }
  read.complaint = complaintAbout(full);
  if (read.complaint.isEmpty() && !standsAlone(full)) read.complaint = givenTwice(parser, rows);
  if (read.complaint.isEmpty()) read.arguments = full;
  return read;
}

bool asksForCommandLine(const QString& first) {
  if (asksForDesktopService(first.toStdString())) return false;
  if (commandOf(first)) return true;
  for (const OptionRow& row : optionsOf(Command::Main))
    if (row.letter && first == QStringLiteral("-") + QLatin1Char(row.letter)) return true;
  return first.startsWith(QLatin1String("--")) && first.size() > 2 && !isWindowSystemOption(first);
}

bool looksLikeCommand(const QString& first) {
  return !first.isEmpty() && std::all_of(first.begin(), first.end(), [](QChar c) { return c.isLetter(); });
}

}  // namespace norvex
