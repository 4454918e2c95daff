#include "cli/arguments/command_table.h"

#include <algorithm>

namespace norvex {

const QList<CommandRow>& commandTable() {
  static const QList<CommandRow> rows{
      {Command::Main, "", "[FILE...]", 0, -1, "open each file in a window"},
      {Command::Info, "info", "FILE...", 1, -1, "show what is known about the files: header, boxes, pages"},
      {Command::Source, "source", "FILE", 1, 1, "write the decoded source text to standard output"},
      {Command::Preview, "preview", "FILE -o OUT", 1, 1, "write the embedded preview as PNG"},
      {Command::Convert, "convert", "FILE... (-o OUT | --to DIR)", 1, -1,
       "write the pictures in another format"},
      {Command::Print, "print", "FILE (--printer NAME | -o OUT.pdf)", 1, 1, "print the picture, as vectors"},
  };
  return rows;
}

const QList<OptionRow>& optionTable() {
  static const QList<Command> every{Command::Main,    Command::Info,    Command::Source,
                                    Command::Preview, Command::Convert, Command::Print};
  static const QList<Command> main{Command::Main};
  static const QList<Command> convert{Command::Convert};
  static const QList<Command> print{Command::Print};
  static const QList<OptionRow> rows{
      {Option::Json,
       {Command::Info, Command::Convert},
       0,
       "json",
       nullptr,
       nullptr,
       "one JSON array with an object for each file"},
      {Option::Output,
       {Command::Preview, Command::Convert, Command::Print},
       'o',
       "output",
       "OUT",
       nullptr,
       "the file to write; - is standard output"},
      {Option::Folder, convert, 0, "to", "DIR", nullptr,
       "the folder to write each file to, under its own name"},
      {Option::Format, convert, 0, "format", "F", "eps eps-preview epsi pdf svg svgz tiff png jpeg gif",
       "the format; without it the extension of OUT decides"},
      {Option::Rotate, convert, 0, "rotate", "DEG", nullptr,
       "turn the picture counter-clockwise, by any angle"},
      {Option::Crop, convert, 0, "crop", "X,Y,W,H", nullptr,
       "this rectangle alone: points in the turned view, origin at its lower-left corner, y up"},
      {Option::Page, convert, 0, "page", "N", nullptr, "the page of a PDF, from 1"},
      {Option::Dpi, convert, 0, "dpi", "N", nullptr,
       "pixels an inch of the raster formats (72: one a point)"},
      {Option::Background, convert, 0, "background", "COLOR", nullptr,
       "fills what the picture leaves unpainted, in the raster formats"},
      {Option::Jobs, convert, 0, "jobs", "N", nullptr, "files at a time (as many as there are cores)"},
      {Option::Timeout, convert, 0, "timeout", "S", nullptr, "seconds that a picture may take (120)"},
      {Option::Memory, convert, 0, "memory", "MIB", nullptr, "memory that a picture may take (1024)"},
      {Option::Force,
       {Command::Preview, Command::Convert, Command::Print},
       'f',
       "force",
       nullptr,
       nullptr,
       "overwrite a file that exists"},
      {Option::Quiet, convert, 'q', "quiet", nullptr, nullptr, "tell nothing but errors"},
      {Option::Printer, print, 0, "printer", "NAME", nullptr, "the printer that prints it"},
      {Option::HeaderFooter, print, 0, "header-footer", nullptr, nullptr,
       "the date above the picture and the file's location below it, on every page"},
      {Option::Paper, print, 0, "paper", "NAME", nullptr, "the paper: A4, Letter ... (what the locale says)"},
      {Option::Landscape, print, 0, "landscape", nullptr, nullptr, "the paper lies (this is the default)"},
      {Option::Portrait, print, 0, "portrait", nullptr, nullptr, "the paper stands"},
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
