// The commands and options of the command line in one table: reading arguments, help and shell completion all
// follow it. A new command is a row of commandTable(), a new option a row of optionTable().
#pragma once

#include <QList>
#include <QString>

namespace norvex {

enum class Command { Main, Info, Source, Preview, Convert, Print };

/// What follows a command besides options.
struct CommandRow {
  Command id;
  const char* name;      ///< empty: the program without a command
  const char* operands;  ///< as the help shows them
  int fewestFiles;
  int mostFiles;  ///< -1: any number
  const char* help;
};

enum class Option {
  Help,
  Version,
  SandboxStatus,
  Completion,
  Json,
  Output,
  Folder,
  Format,
  Rotate,
  Crop,
  Page,
  Dpi,
  Background,
  Jobs,
  Timeout,
  Memory,
  Force,
  Quiet,
  Printer,
  Paper,
  Landscape,
  Portrait,
  HeaderFooter,
};

/// A command takes the options of its own rows.
struct OptionRow {
  Option id;
  QList<Command> commands;
  char letter;          ///< 0: no short form
  const char* name;     ///< without the two dashes
  const char* value;    ///< as the help shows it; null: a switch
  const char* choices;  ///< blank-separated values that are the only ones; null: any value
  const char* help;
};

[[nodiscard]] const QList<CommandRow>& commandTable();
[[nodiscard]] const QList<OptionRow>& optionTable();

[[nodiscard]] const CommandRow& rowOf(Command command);
[[nodiscard]] const OptionRow& rowOf(Option option);
/// The options of a command in the table's order.
[[nodiscard]] QList<OptionRow> optionsOf(Command command);

}  // namespace norvex
