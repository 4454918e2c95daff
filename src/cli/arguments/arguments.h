// The arguments of one run, read against the table.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "cli/arguments/command_table.h"

namespace norvex {

/// The request of a run. A value.
struct Arguments {
  Command command = Command::Main;
  QStringList files;  ///< as they were given; "-" is standard input
  QHash<Option, QString> values;

  QHash<Option, QStringList> lists;  ///< all values of the options that may be given more than once

  [[nodiscard]] bool has(Option option) const { return values.contains(option); }
  /// How often a picture would be read from standard input: the second name of a thumbnail is written.
  [[nodiscard]] qsizetype timesInputIsRead() const;
  /// True if the files are those of an archive: told by lists, trees or a state, or their results go to a
  /// folder by a command that does one file otherwise.
  [[nodiscard]] bool asksForArchive() const;
};

/// Arguments, or why they are wrong in one sentence.
struct ReadArguments {
  Arguments arguments;  ///< when wrong: the command alone
  QString complaint;    ///< empty: nothing is wrong
};

/// Reads the arguments behind the program's name. Options may stand before and behind files, "--" ends them.
[[nodiscard]] ReadArguments readArguments(const QStringList& given);

/// True if `first`, the argument behind the program's name, asks for the command line and not for a window: a
/// command, or something that begins with two dashes and is not an option of the window system.
[[nodiscard]] bool asksForCommandLine(const QString& first);

/// True if it is written as commands are, in letters alone. Where no file of that name is there, it is a
/// command that does not exist, and is answered as one.
[[nodiscard]] bool looksLikeCommand(const QString& first);

}  // namespace norvex
