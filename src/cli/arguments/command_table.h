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

enum class Command {
  Main,
  Info,
  Source,
  Preview,
  Convert,
  Print,
  Status,
  Thumbnail,
  Check,
  Repair,
  Text,
  Inks
};

/// The arguments of a command besides options.
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
  Profile,
  Preview,
  Plates,
  Overprint,
  Output,
  Folder,
  Format,
  Rotate,
  Crop,
  Page,
  Pages,
  Dpi,
  Background,
  Quality,
  Colour,
  KeepActions,
  KeepText,
  PasswordFile,
  Layers,
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
  // Of runs over archives: see asksForArchive().
  FilesFrom,
  Null,
  Recursive,
  Include,
  Exclude,
  Base,
  JsonLines,
  Unordered,
  State,
  RetryFailed,
  MemoryTotal,
  Shard,
  ShardBy,
  Report,
  Merge,
  Size,
  Uri,
  DBusService,
};

/// Bits of commands.
using Commands = unsigned;
[[nodiscard]] constexpr Commands only(Command command) {
  return 1u << unsigned(command);
}
inline constexpr Commands everyCommand = ~Commands(0);
/// Those that have a picture process read a document or its preview.
inline constexpr Commands openingCommands = only(Command::Info) | only(Command::Source) |
                                            only(Command::Preview) | only(Command::Convert) |
                                            only(Command::Check) | only(Command::Repair) |
                                            only(Command::Inks) | only(Command::Print) | only(Command::Text);
/// Those that open a document whole, as a reader of it would.
inline constexpr Commands readingCommands =
    only(Command::Info) | only(Command::Convert) | only(Command::Check) | only(Command::Print) |
    only(Command::Thumbnail) | only(Command::Text) | only(Command::Inks);
/// Those that do one thing with each file. A run over an archive is such a command for each of its files, so
/// that a command gets lists, trees, states and the rest by standing here.
inline constexpr Commands archiveCommands = only(Command::Info) | only(Command::Preview) |
                                            only(Command::Convert) | only(Command::Check) |
                                            only(Command::Repair) | only(Command::Inks);

/// A command takes the options of its own rows.
struct OptionRow {
  Option id;
  Commands commands;
  char letter;               ///< 0: no short form
  std::string_view name;     ///< without the two dashes
  std::string_view value;    ///< as the help shows it; empty: a switch
  std::string_view choices;  ///< blank-separated values that are the only ones; empty: any value
  std::string_view help;
  bool repeats = false;  ///< may be given more than once, and all values count
};

inline constexpr auto commandTable = std::to_array<CommandRow>({
    {Command::Main, "", "[FILE...]", 0, -1, false, "open each file in a window"},
    {Command::Info, "info", "FILE...", 1, -1, true,
     "show what is known about the files: header, boxes, pages"},
    {Command::Source, "source", "FILE", 1, 1, true, "write the decoded source text to standard output"},
    {Command::Preview, "preview", "FILE... (-o OUT | --to DIR)", 1, 1, true,
     "write the embedded preview as PNG"},
    {Command::Text, "text", "FILE", 1, 1, true, "write the words of the picture to standard output"},
    {Command::Convert, "convert", "FILE... (-o OUT | --to DIR)", 1, -1, true,
     "write the pictures in another format"},
    {Command::Check, "check", "FILE...", 1, -1, true,
     "tell what is wrong with the files, and what is in them for print"},
    {Command::Repair, "repair", "FILE... (-o OUT | --to DIR)", 1, 1, true,
     "mend an EPS file around its program: boxes, comments, preview"},
    {Command::Inks, "inks", "FILE", 1, 1, true,
     "list the process and spot inks of a page, and write their plates"},
    {Command::Print, "print", "FILE (--printer NAME | -o OUT.pdf)", 1, 1, false,
     "print the picture, as vectors"},
    {Command::Status, "status", "STATE", 1, -1, true, "tell how far a run with --state has come"},
    {Command::Thumbnail, "thumbnail", "FILE OUT", 2, 2, true, "write a small PNG, as file managers show it"},
});

inline constexpr auto optionTable = std::to_array<OptionRow>({
    {Option::Profile, only(Command::Check), 0, "profile", "P", "",
     "limits and severities: print, journal, web, archive, or a TOML file"},
    {Option::Preview, only(Command::Repair), 0, "preview", "USE", "keep drop rebuild",
     "what becomes of the preview (keep)"},
    {Option::Json,
     only(Command::Info) | only(Command::Convert) | only(Command::Check) | only(Command::Repair) |
         only(Command::Inks),
     0, "json", "", "", "one JSON array with an object for each file"},
    {Option::Json, only(Command::Status), 0, "json", "", "", "one JSON object"},
    {Option::Plates, only(Command::Inks), 0, "plates", "DIR", "",
     "write a grey PNG for each ink into this folder: black is all of the ink"},
    {Option::Overprint, only(Command::Inks), 0, "overprint", "", "",
     "simulate overprinting, as a press does that is told to"},
    {Option::Output,
     only(Command::Preview) | only(Command::Convert) | only(Command::Repair) | only(Command::Print), 'o',
     "output", "OUT", "", "the file to write; - is standard output"},
    {Option::Folder, only(Command::Convert) | only(Command::Preview) | only(Command::Repair), 0, "to", "DIR",
     "", "the folder to write each file to, under its own name"},
    {Option::Format, only(Command::Convert), 0, "format", "F", writtenFormatNames.text(),
     "the format; without it the extension of OUT decides"},
    {Option::Rotate, only(Command::Convert), 0, "rotate", "DEG", "",
     "turn the picture counter-clockwise, by any angle"},
    {Option::Crop, only(Command::Convert), 0, "crop", "X,Y,W,H", "",
     "this rectangle alone: points in the turned view, origin at its lower-left corner, y up"},

    {Option::Pages, only(Command::Convert), 0, "pages", "LIST", "",
     "these pages of a PDF, each to a file with its number in its name: all, or 1,3-5,8-"},
    {Option::Page, only(Command::Convert) | only(Command::Inks) | only(Command::Text) | only(Command::Print),
     0, "page", "N", "", "the page of a PDF, from 1"},
    {Option::Dpi, only(Command::Convert) | only(Command::Inks), 0, "dpi", "N", "",
     "pixels an inch: of the raster formats (72: one a point), of plates (144)"},
    {Option::Background, only(Command::Convert), 0, "background", "COLOR", "",
     "fills what the picture leaves unpainted, in the raster formats"},
    {Option::Quality, only(Command::Convert), 0, "quality", "N", "", qualityHelp.text()},
    {Option::Colour, only(Command::Convert), 0, "colour", "C", "rgb grey cmyk",
     "colours of the pixels: grey in tiff, png and jpeg, cmyk in tiff and jpeg (rgb)"},
    {Option::KeepActions, only(Command::Convert), 0, "keep-actions", "", "",
     "keep the scripts and actions of a PDF in the PDF made of it"},
    {Option::KeepText, only(Command::Convert), 0, "text", "", "",
     "in svg and svgz, keep text as text with the fonts that it is shown in (it becomes outlines)"},
    {Option::Jobs, archiveCommands, 0, "jobs", "N", "", "files at a time (as many as there are cores)"},
    {Option::PasswordFile, readingCommands, 0, "password-file", "FILE", "",
     "its first line opens PDFs that want a password; - is standard input"},
    {Option::Layers, only(Command::Convert) | only(Command::Inks) | only(Command::Print), 0, "layers", "LIST",
     "", "show and hide layers of a PDF: LAYER=on,LAYER=off, by name or number (norvex info lists them)"},
    {Option::Timeout, openingCommands, 0, "timeout", "S", "", "seconds that a picture may take (120)"},
    {Option::Memory, openingCommands, 0, "memory", "MIB", "", "memory that a picture may take (1024)"},
    {Option::Force,
     only(Command::Preview) | only(Command::Convert) | only(Command::Repair) | only(Command::Print) |
         only(Command::Status) | only(Command::Thumbnail) | only(Command::Inks),
     'f', "force", "", "", "overwrite a file that exists"},
    {Option::Quiet, archiveCommands, 'q', "quiet", "", "", "tell nothing but errors"},
    {Option::Printer, only(Command::Print), 0, "printer", "NAME", "", "the printer that prints it"},
    {Option::HeaderFooter, only(Command::Print), 0, "header-footer", "", "",
     "the date above the picture and the file's location below it, on every page"},
    {Option::Paper, only(Command::Print), 0, "paper", "NAME", "",
     "the paper: A4, Letter ... (what the locale says)"},
    {Option::Landscape, only(Command::Print), 0, "landscape", "", "", "the paper lies (this is the default)"},
    {Option::Portrait, only(Command::Print), 0, "portrait", "", "", "the paper stands"},
    {Option::FilesFrom, archiveCommands, 0, "files-from", "LIST", "",
     "take the names of files from a list, one a line; - is standard input"},
    {Option::Null, archiveCommands, 0, "null", "", "", "the names of --files-from end with a NUL"},
    {Option::Recursive, archiveCommands, 0, "recursive", "DIR", "",
     "take the pictures below a folder, whose folders are made again below --to"},
    {Option::Include, archiveCommands, 0, "include", "GLOB", "",
     "of --recursive: these names alone (those of pictures); may be given more than once", true},
    {Option::Exclude, archiveCommands, 0, "exclude", "GLOB", "",
     "of --recursive: not these names, and nothing below folders of these names", true},
    {Option::Base, archiveCommands, 0, "base", "DIR", "",
     "files that are listed lie below this folder and keep their folders below --to"},
    {Option::JsonLines, archiveCommands, 0, "json-lines", "", "",
     "a JSON object a file, on a line of its own, as soon as it is done"},
    {Option::Unordered, archiveCommands, 0, "unordered", "", "",
     "tell of each file when it is done and not in the order of the names"},
    {Option::State, archiveCommands, 0, "state", "FILE", "",
     "keep what is done in this file, and do only what it does not hold"},
    {Option::RetryFailed, archiveCommands, 0, "retry-failed", "", "", "do what has failed again"},
    {Option::MemoryTotal, archiveCommands, 0, "memory-total", "MIB", "",
     "memory that all pictures together may take"},
    {Option::Shard, archiveCommands, 0, "shard", "I/N", "", "do part I of N alone, from 1"},
    {Option::ShardBy, archiveCommands, 0, "shard-by", "WHAT", "name content",
     "what puts a file into a part: its name, or what it holds"},
    {Option::Report, archiveCommands | only(Command::Status), 0, "report", "FILE", "",
     "write what the state holds: .html for people, .jsonl for programs"},
    {Option::Merge, only(Command::Status), 0, "merge", "STATE", "",
     "take what another state holds into this one; may be given more than once", true},
    {Option::Size, only(Command::Thumbnail), 's', "size", "N", "", "pixels of the longer side (128)"},
    {Option::Uri, only(Command::Thumbnail), 0, "uri", "URI", "",
     "the file's address, which is noted in the PNG with the time of its last change"},
    {Option::SandboxStatus, only(Command::Main), 0, "sandbox-status", "", "",
     "show how picture processes are confined"},
    {Option::Completion, only(Command::Main), 0, "completion", "SHELL", "bash zsh fish",
     "write a completion script for a shell"},
    {Option::DBusService, only(Command::Main), 0, "dbus-service", "", "",
     "wait for the files that the desktop sends (the session bus starts it so)"},
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

/// An option that makes a run go over an archive: file by file, as a stream.
[[nodiscard]] constexpr bool isAboutArchives(Option option) {
  return option >= Option::FilesFrom && option <= Option::Report;
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

/// True if `first`, the first argument, makes a program with windows that shows none before it is asked to.
[[nodiscard]] constexpr bool asksForDesktopService(std::string_view first) {
  return first.starts_with("--") && first.substr(2) == rowOf(Option::DBusService).name;
}

/// True if a run whose first argument is `first` takes neither windows nor printers: it is a light command,
/// or an option about the program itself.
[[nodiscard]] constexpr bool asksForLightCommand(std::string_view first) {
  if (const auto command = commandNamed(first)) return rowOf(*command).isLight;
  if (!first.starts_with("--") || asksForDesktopService(first)) return false;
  for (const OptionRow& row : optionTable)
    if ((row.commands & only(Command::Main)) && row.name == first.substr(2)) return true;
  return false;
}

}  // namespace norvex
