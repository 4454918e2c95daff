// The commands and options of the command line in one table: reading arguments, help, shell completion and
// the guess of the program that starts everything follow it. A new command is a row of commandTable, a new
// option a row of optionTable. Free of Qt, because it is also read before Qt is loaded.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/arguments/format_words.h"

namespace norvex {

enum class Command { Main, Info, Source, Preview, Convert, Print };

/// What follows a command besides options.
struct CommandRow {
  Command id;
  std::string_view name;      ///< empty: the program without a command
  std::string_view operands;  ///< as the help shows them
  int fewestFiles;
  int mostFiles;  ///< -1: any number
  bool isLight;   ///< takes neither windows nor printers
  std::string_view help;
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
  Quality,
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

/// Bits of commands.
using Commands = unsigned;
[[nodiscard]] constexpr Commands only(Command command) {
  return 1u << unsigned(command);
}
inline constexpr Commands everyCommand = (only(Command::Print) << 1) - 1;
/// Those that have a picture process open a document.
inline constexpr Commands openingCommands =
    only(Command::Info) | only(Command::Source) | only(Command::Convert) | only(Command::Print);

/// A command takes the options of its own rows.
struct OptionRow {
  Option id;
  Commands commands;
  char letter;               ///< 0: no short form
  std::string_view name;     ///< without the two dashes
  std::string_view value;    ///< as the help shows it; empty: a switch
  std::string_view choices;  ///< blank-separated values that are the only ones; empty: any value
  std::string_view help;
};

inline constexpr auto commandTable = std::to_array<CommandRow>({
    {Command::Main, "", "[FILE...]", 0, -1, false, "open each file in a window"},
    {Command::Info, "info", "FILE...", 1, -1, true,
     "show what is known about the files: header, boxes, pages"},
    {Command::Source, "source", "FILE", 1, 1, true, "write the decoded source text to standard output"},
    {Command::Preview, "preview", "FILE -o OUT", 1, 1, true, "write the embedded preview as PNG"},
    {Command::Convert, "convert", "FILE... (-o OUT | --to DIR)", 1, -1, true,
     "write the pictures in another format"},
    {Command::Print, "print", "FILE (--printer NAME | -o OUT.pdf)", 1, 1, false,
     "print the picture, as vectors"},
});

inline constexpr auto optionTable = std::to_array<OptionRow>({
    {Option::Json, only(Command::Info) | only(Command::Convert), 0, "json", "", "",
     "one JSON array with an object for each file"},
    {Option::Output, only(Command::Preview) | only(Command::Convert) | only(Command::Print), 'o', "output",
     "OUT", "", "the file to write; - is standard output"},
    {Option::Folder, only(Command::Convert), 0, "to", "DIR", "",
     "the folder to write each file to, under its own name"},
    {Option::Format, only(Command::Convert), 0, "format", "F", writtenFormatNames.text(),
     "the format; without it the extension of OUT decides"},
    {Option::Rotate, only(Command::Convert), 0, "rotate", "DEG", "",
     "turn the picture counter-clockwise, by any angle"},
    {Option::Crop, only(Command::Convert), 0, "crop", "X,Y,W,H", "",
     "this rectangle alone: points in the turned view, origin at its lower-left corner, y up"},
    {Option::Page, only(Command::Convert), 0, "page", "N", "", "the page of a PDF, from 1"},
    {Option::Dpi, only(Command::Convert), 0, "dpi", "N", "",
     "pixels an inch of the raster formats (72: one a point)"},
    {Option::Background, only(Command::Convert), 0, "background", "COLOR", "",
     "fills what the picture leaves unpainted, in the raster formats"},
    {Option::Quality, only(Command::Convert), 0, "quality", "N", "", qualityHelp.text()},
    {Option::Jobs, only(Command::Convert), 0, "jobs", "N", "",
     "files at a time (as many as there are cores)"},
    {Option::Timeout, openingCommands, 0, "timeout", "S", "", "seconds that a picture may take (120)"},
    {Option::Memory, openingCommands, 0, "memory", "MIB", "", "memory that a picture may take (1024)"},
    {Option::Force, only(Command::Preview) | only(Command::Convert) | only(Command::Print), 'f', "force", "",
     "", "overwrite a file that exists"},
    {Option::Quiet, only(Command::Convert), 'q', "quiet", "", "", "tell nothing but errors"},
    {Option::Printer, only(Command::Print), 0, "printer", "NAME", "", "the printer that prints it"},
    {Option::HeaderFooter, only(Command::Print), 0, "header-footer", "", "",
     "the date above the picture and the file's location below it, on every page"},
    {Option::Paper, only(Command::Print), 0, "paper", "NAME", "",
     "the paper: A4, Letter ... (what the locale says)"},
    {Option::Landscape, only(Command::Print), 0, "landscape", "", "", "the paper lies (this is the default)"},
    {Option::Portrait, only(Command::Print), 0, "portrait", "", "", "the paper stands"},
    {Option::SandboxStatus, only(Command::Main), 0, "sandbox-status", "", "",
     "show how picture processes are confined"},
    {Option::Completion, only(Command::Main), 0, "completion", "SHELL", "bash zsh fish",
     "write a completion script for a shell"},
    {Option::Version, only(Command::Main), 'v', "version", "", "", "show the version"},
    {Option::Help, everyCommand, 'h', "help", "", "", "show this help"},
});

[[nodiscard]] constexpr const CommandRow& rowOf(Command command) {
  size_t row = 0;
  while (commandTable[row].id != command) ++row;
  return commandTable[row];
}

[[nodiscard]] constexpr const OptionRow& rowOf(Option option) {
  size_t row = 0;
  while (optionTable[row].id != option) ++row;
  return optionTable[row];
}

/// Nothing for a name that no command has.
[[nodiscard]] constexpr std::optional<Command> commandNamed(std::string_view name) {
  for (const CommandRow& row : commandTable)
    if (!row.name.empty() && row.name == name) return row.id;
  return std::nullopt;
}

/// The options of a command in the table's order.
[[nodiscard]] inline std::vector<OptionRow> optionsOf(Command command) {
  std::vector<OptionRow> own;
  for (const OptionRow& row : optionTable)
    if (row.commands & only(command)) own.push_back(row);
  return own;
}

/// Whether a run whose first argument is `first` takes neither windows nor printers: it is a light command,
/// or an option about the program itself.
[[nodiscard]] constexpr bool asksForLightCommand(std::string_view first) {
  if (const auto command = commandNamed(first)) return rowOf(*command).isLight;
  if (!first.starts_with("--")) return false;
  for (const OptionRow& row : optionTable)
    if ((row.commands & only(Command::Main)) && row.name == first.substr(2)) return true;
  return false;
}

}  // namespace norvex
