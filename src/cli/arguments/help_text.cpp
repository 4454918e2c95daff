#include "cli/arguments/help_text.h"

#include <QStringList>

#include "base/latin1_text.h"

namespace norvex {
namespace {

constexpr char kEnd[] =
    "\nExit codes: 0 all done, 1 some file failed, 2 wrong usage, 3 cannot read or parse,\n"
    "4 cannot write, 5 a limit was reached, 6 no sandbox could be set up, 130 interrupted,\n"
    "141 nobody reads standard output any more.\n";

/// `help` beside a column of names, broken at blanks so that lines stay narrow.
QString besideNames(const QString& names, int column, const QString& help) {
  constexpr int widest = 96;
  QString text = QStringLiteral("  %1").arg(names, -column);
  qsizetype used = text.size();
  for (const QString& word : help.split(QLatin1Char(' '))) {
    if (used + 1 + word.size() > widest) {
      text += QLatin1Char('\n') + QString(column + 2, QLatin1Char(' '));
      used = column + 2;
    }
    text += QLatin1Char(' ') + word;
    used += 1 + word.size();
  }
  return text + QLatin1Char('\n');
}

/// Which names may stand for standard input and output.
QString standardStreamsOf(const CommandRow& row) {
  if (row.id == Command::Main || row.operands.find("OUT") != std::string_view::npos)
    return QStringLiteral("\nFILE and OUT may be -: standard input or output.\n");
  if (row.operands.find("FILE") != std::string_view::npos)
    return QStringLiteral("\nFILE may be -: standard input.\n");
  return {};
}

QString usageOf(const CommandRow& row) {
  QString line = QStringLiteral("norvex");
  if (!row.name.empty()) line += QLatin1Char(' ') + latin1(row.name);
  return line + QLatin1Char(' ') + latin1(row.operands);
}

QString formsOf(const OptionRow& row) {
  QString forms = row.letter ? QStringLiteral("-%1, ").arg(QLatin1Char(row.letter)) : QStringLiteral("    ");
  forms += QStringLiteral("--%1").arg(latin1(row.name));
  if (!row.value.empty()) forms += QLatin1Char(' ') + latin1(row.value);
  return forms;
}

QString optionLines(Command command) {
  QString lines = QStringLiteral("\nOptions:\n");
  for (const OptionRow& row : optionsOf(command)) {
    QString help = latin1(row.help);
    if (!row.choices.empty())
      help += QStringLiteral(" (%1)").arg(QString(latin1(row.choices)).replace(' ', ", "));
    lines += besideNames(formsOf(row), 24, help);
  }
  return lines;
}

}  // namespace

QString helpText(Command command) {
  QString text;
  if (command != Command::Main) {
    const CommandRow& row = rowOf(command);
    text = QStringLiteral("Usage: %1 [options]\n%2.\n").arg(usageOf(row), latin1(row.help));
    text[text.indexOf('\n') + 1] = text[text.indexOf('\n') + 1].toUpper();
    return text + optionLines(command) + standardStreamsOf(row) + QLatin1String(kEnd);
  }
  text = QStringLiteral(
      "Norvex shows EPS, Illustrator, PDF and SVG pictures and hands out parts of them as vectors.\n\n");
  text += QStringLiteral("Usage:\n");
  for (const CommandRow& row : commandTable) text += besideNames(usageOf(row), 28, latin1(row.help));
  text += optionLines(command);
  text += QStringLiteral("\nnorvex COMMAND --help shows the options of a command.\n");
  return text + standardStreamsOf(rowOf(command)) + QLatin1String(kEnd);
}

QString versionText() {
  return QStringLiteral("norvex %1\n").arg(QLatin1String(NORVEX_VERSION));
}

}  // namespace norvex
