#include "cli/arguments/shell_completion.h"

#include <QStringList>

#include <string_view>

#include "base/latin1_text.h"
#include "cli/arguments/command_table.h"

namespace norvex {
namespace {

QStringList commandNames() {
  QStringList names;
  for (const CommandRow& row : commandTable)
    if (!row.name.empty()) names << latin1(row.name);
  return names;
}

QStringList forms(const OptionRow& row) {
  QStringList all{QStringLiteral("--") + latin1(row.name)};
  if (row.letter) all.prepend(QStringLiteral("-") + QLatin1Char(row.letter));
  return all;
}

QString formsOf(Command command) {
  QStringList all;
  for (const OptionRow& row : optionsOf(command)) all += forms(row);
  return all.join(' ');
}

/// The help as it may stand between single quotes, and in zsh's descriptions.
QString quotable(std::string_view help) {
  return QString(latin1(help)).remove('\'').replace(':', ',');
}

// File names are left to the shell (-o default), which knows how to quote them: no word of the script's own
// may be split at blanks. Behind the program's name commands and files both can stand.
QString bash() {
  QString script = QStringLiteral(
      "_norvex_first() {\n"
      "  COMPREPLY=($(compgen -W \"$1\" -- \"$2\"))\n"
      "  [ ${#COMPREPLY[@]} -eq 0 ] && return\n"
      "  compopt -o filenames 2>/dev/null\n"
      "  local file\n"
      "  while IFS= read -r file; do COMPREPLY+=(\"$file\"); done < <(compgen -f -- \"$2\")\n"
      "}\n"
      "_norvex() {\n"
      "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} words=\n"
      "  COMPREPLY=()\n"
      "  case $before in\n");
  for (const OptionRow& row : optionTable)
    if (!row.choices.empty())
      script += QStringLiteral("    %1) COMPREPLY=($(compgen -W '%2' -- \"$word\")); return ;;\n")
                    .arg(forms(row).join('|'), latin1(row.choices));
  script += QStringLiteral("  esac\n  case ${COMP_WORDS[1]} in\n");
  for (const QString& name : commandNames()) {
    for (const CommandRow& row : commandTable)
      if (name == latin1(row.name))
        script += QStringLiteral("    %1) words='%2' ;;\n").arg(name, formsOf(row.id));
  }
  script += QStringLiteral("    *) words='%1' ;;\n  esac\n").arg(formsOf(Command::Main));
  script += QStringLiteral("  [ \"$COMP_CWORD\" -eq 1 ] && words='%1 %2'\n")
                .arg(commandNames().join(' '), formsOf(Command::Main));
  return script + QStringLiteral(
                      "  case $word in\n"
                      "    -*) COMPREPLY=($(compgen -W \"$words\" -- \"$word\")) ;;\n"
                      "    *) [ \"$COMP_CWORD\" -eq 1 ] && _norvex_first \"$words\" \"$word\" ;;\n"
                      "  esac\n"
                      "}\n"
                      "complete -o default -F _norvex norvex\n");
}

QString zshOption(const OptionRow& row) {
  QString value;
  if (!row.choices.empty())
    value = QStringLiteral(":%1:(%2)").arg(latin1(row.value), latin1(row.choices));
  else if (!row.value.empty())
    value = QStringLiteral(":%1:_files").arg(latin1(row.value));
  QString lines;
  for (const QString& form : forms(row))
    lines += QStringLiteral(" \\\n        '%1[%2]%3'").arg(form, quotable(row.help), value);
  return lines;
}

QString zshArguments(Command command) {
  QString lines = QStringLiteral("      _arguments");
  for (const OptionRow& row : optionsOf(command)) lines += zshOption(row);
  return lines + QStringLiteral(" \\\n        '*:file:_files' ;;\n");
}

QString zsh() {
  QString script = QStringLiteral("#compdef norvex\n_norvex() {\n  local -a commands\n  commands=(\n");
  for (const CommandRow& row : commandTable)
    if (!row.name.empty())
      script += QStringLiteral("    '%1:%2'\n").arg(latin1(row.name), quotable(row.help));
  script += QStringLiteral(
      "  )\n  if (( CURRENT == 2 )); then _describe command commands; fi\n  case $words[2] in\n");
  for (const CommandRow& row : commandTable)
    if (!row.name.empty())
      script += QStringLiteral("    %1) words=(\"${words[1]}\" \"${(@)words[3,-1]}\"); (( CURRENT-- ))\n%2")
                    .arg(latin1(row.name), zshArguments(row.id));
  script += QStringLiteral("    *)\n") + zshArguments(Command::Main);
  // The shell runs the file as the function itself when it finds it among its own, otherwise it is read.
  return script + QStringLiteral(
                      "  esac\n}\nif [[ $funcstack[1] == _norvex ]]; then _norvex \"$@\"; "
                      "else compdef _norvex norvex; fi\n");
}

QString fishOption(const OptionRow& row, const QString& condition) {
  QString line = QStringLiteral("complete -c norvex -n '%1' -l %2").arg(condition, latin1(row.name));
  if (row.letter) line += QStringLiteral(" -s %1").arg(QLatin1Char(row.letter));
  if (!row.choices.empty())
    line += QStringLiteral(" -x -a '%1'").arg(latin1(row.choices));
  else if (!row.value.empty())
    line += QStringLiteral(" -r");
  return line + QStringLiteral(" -d '%1'\n").arg(quotable(row.help));
}

QString fish() {
  QString script;
  for (const CommandRow& row : commandTable) {
    const bool main = row.name.empty();
    const QString condition =
        main ? QStringLiteral("not __fish_seen_subcommand_from %1").arg(commandNames().join(' '))
             : QStringLiteral("__fish_seen_subcommand_from %1").arg(latin1(row.name));
    if (!main)
      script += QStringLiteral("complete -c norvex -n __fish_use_subcommand -a %1 -d '%2'\n")
                    .arg(latin1(row.name), quotable(row.help));
    for (const OptionRow& option : optionsOf(row.id)) script += fishOption(option, condition);
  }
  return script;
}

}  // namespace

QString completionScript(const QString& shell) {
  if (shell == QLatin1String("bash")) return bash();
  if (shell == QLatin1String("zsh")) return zsh();
  if (shell == QLatin1String("fish")) return fish();
  return {};
}

}  // namespace norvex
