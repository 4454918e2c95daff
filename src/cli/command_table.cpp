#include "cli/command_table.h"

#include <algorithm>

namespace norvex {

const QList<CommandRow>& commandTable() {
  static const QList<CommandRow> rows{
      {Command::Main, "", "[FILE...]", 0, -1, "open each file in a window"},
      {Command::Info, "info", "FILE...", 1, -1, "show what is known about the files: header, boxes, pages"},
      {Command::Source, "source", "FILE", 1, 1, "write the decoded source text to standard output"},
      {Command::Preview, "preview", "FILE -o OUT", 1, 1, "write the embedded preview as PNG"},
  };
  return rows;
}

const QList<OptionRow>& optionTable() {
  static const QList<Command> every{Command::Main, Command::Info, Command::Source, Command::Preview};
  static const QList<Command> main{Command::Main};
  static const QList<OptionRow> rows{
      {Option::Json,
       {Command::Info},
       0,
       "json",
       nullptr,
       nullptr,
       "one JSON array with an object for each file"},
      {Option::Output,
       {Command::Preview},
       'o',
       "output",
       "OUT",
       nullptr,
       "the file to write; - is standard output"},
      {Option::Force, {Command::Preview}, 'f', "force", nullptr, nullptr, "overwrite a file that exists"},
      {Option::SandboxStatus, main, 0, "sandbox-status", nullptr, nullptr,
       "show how picture processes are confined"},
      {Option::Completion, main, 0, "completion", "SHELL", "bash zsh fish",
       "write a completion script for a shell"},
      {Option::Version, main, 'v', "version", nullptr, nullptr, "show the version"},
      {Option::Help, every, 'h', "help", nullptr, nullptr, "show this help"},
  };
  return rows;
}

const CommandRow& rowOf(Command command) {
  const auto& rows = commandTable();
  return *std::find_if(rows.begin(), rows.end(), [&](const CommandRow& row) { return row.id == command; });
}

const OptionRow& rowOf(Option option) {
  const auto& rows = optionTable();
  return *std::find_if(rows.begin(), rows.end(), [&](const OptionRow& row) { return row.id == option; });
}

QList<OptionRow> optionsOf(Command command) {
  QList<OptionRow> own;
  for (const OptionRow& row : optionTable())
    if (row.commands.contains(command)) own.append(row);
  return own;
}

}  // namespace norvex
