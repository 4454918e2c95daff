#include "cli/arguments/manual_page.h"

#include <QStringList>

#include <array>
#include <utility>

#include "base/latin1_text.h"
#include "cli/arguments/command_table.h"

namespace norvex {
namespace {

/// `text` as it may stand within a line of roff: what would begin a request or an escape, or become a
/// typographic hyphen, is kept as it was written.
QString roff(QString text) {
  text.replace('\\', QLatin1String("\\e")).replace('-', QLatin1String("\\-"));
  text.replace('\'', QLatin1String("\\(aq"));
  return text.startsWith('.') ? QLatin1String("\\&") + text : text;
}

QString roff(std::string_view text) {
  return roff(QString(latin1(text)));
}

QString strong(const QString& text) {
  return QStringLiteral("\\fB%1\\fR").arg(text);
}

/// A sentence: it begins with a capital letter and ends with a full stop.
QString sentence(std::string_view help) {
  QString text = latin1(help);
  text[0] = text[0].toUpper();
  return roff(text) + '.';
}

QString usageOf(const CommandRow& row) {
  QString line = strong(QStringLiteral("norvex"));
  if (!row.name.empty()) line += ' ' + strong(roff(row.name));
  return line + ' ' + roff(row.operands);
}

QString formsOf(const OptionRow& row) {
  QString forms = strong(roff("--" + std::string(row.name)));
  if (row.letter) forms.prepend(strong(QStringLiteral("\\-%1").arg(QLatin1Char(row.letter))) + ", ");
  if (!row.value.empty()) forms += QStringLiteral(" \\fI%1\\fR").arg(roff(row.value));
  return forms;
}

QString optionsText(Command command) {
  QString text;
  for (const OptionRow& row : optionsOf(command)) {
    text += QStringLiteral(".TP\n%1\n%2\n").arg(formsOf(row), sentence(row.help));
    if (row.choices.empty()) continue;
    const QString choices = QString(latin1(row.choices)).replace(' ', ", ");
    text += QStringLiteral("One of: %1.\n").arg(roff(choices));
  }
  return text;
}

QString commandsText() {
  QString text;
  for (const CommandRow& row : commandTable) {
    if (row.name.empty()) continue;
    text += QStringLiteral(".SS norvex %1\n%2\n.PP\n%3\n")
                .arg(roff(row.name), usageOf(row) + QStringLiteral(" [options]"), sentence(row.help));
    text += optionsText(row.id);
  }
  return text;
}

using Entry = std::pair<const char*, const char*>;

template <size_t count>
QString entries(const std::array<Entry, count>& all) {
  QString text;
  for (const auto& [name, meaning] : all)
    text += QStringLiteral(".TP\n%1\n%2\n")
                .arg(strong(roff(std::string_view(name))), roff(std::string_view(meaning)));
  return text;
}

constexpr std::array<Entry, 9> exitCodes{{
    {"0", "All is done."},
    {"1", "Some file failed and the others were done, or a file has not what was asked for."},
    {"2", "The arguments are wrong."},
    {"3", "A file cannot be read or parsed."},
    {"4", "A file cannot be written."},
    {"5", "A limit of time, memory or size was reached."},
    {"6", "No sandbox could be set up."},
    {"130", "The run was interrupted."},
    {"141", "Nobody reads standard output any more."},
}};

constexpr std::array<Entry, 4> environment{{
    {"SOURCE_DATE_EPOCH", "Seconds since 1970: the same input gives the same bytes."},
    {"XDG_RUNTIME_DIR", "Where picture processes have their temporary files; otherwise in /tmp."},
    {"XDG_STATE_HOME", "Where the program remembers windows and files; otherwise in ~/.local/state."},
    {"XDG_CONFIG_HOME", "Where its settings are; otherwise in ~/.config."},
}};

QString examples() {
  return QStringLiteral(
      ".TP\nA figure as PDF, turned upright:\nnorvex convert \\-\\-rotate 90 figure.eps \\-o figure.pdf\n"
      ".TP\nA folder of drawings as PNG with 300 dots an inch:\n"
      "norvex convert \\-\\-dpi 300 \\-\\-to pictures \\-\\-format png *.eps *.svg\n"
      ".TP\nWhat is known about a file, for a program:\nnorvex info \\-\\-json figure.ai\n");
}

}  // namespace

QString manualPage() {
  QString page = QStringLiteral(".TH NORVEX 1 \"\" \"norvex %1\" \"User Commands\"\n")
                     .arg(QLatin1String(NORVEX_VERSION));
  page += QStringLiteral(
      ".SH NAME\nnorvex \\- view EPS, Illustrator, PDF and SVG pictures and hand parts of them on as "
      "vectors\n.SH SYNOPSIS\n");
  for (const CommandRow& row : commandTable) page += usageOf(row) + QStringLiteral("\n.br\n");
  page +=
      QStringLiteral(".SH DESCRIPTION\n") +
      QStringLiteral(
          "Without a command the files are opened in windows, each in its own; without files a panel asks "
          "for one.\nWith a command nothing needs a display.\n.PP\n"
          "Documents are read by a process of their own that the system confines before it reads the "
          "first byte.\n.PP\n\\fIFILE\\fR and \\fIOUT\\fR may be a single hyphen: standard input or "
          "output.\nData goes to "
          "standard output, messages go to standard error.\nOutput appears whole or not at all.\n");
  page += QStringLiteral(".SH OPTIONS\n") + optionsText(Command::Main);
  page += QStringLiteral(".SH COMMANDS\n") + commandsText();
  page += QStringLiteral(".SH EXIT STATUS\n") + entries(exitCodes);
  page += QStringLiteral(".SH ENVIRONMENT\n") + entries(environment);
  page += QStringLiteral(".SH EXAMPLES\n") + examples();
  return page +
         QStringLiteral(".SH SEE ALSO\n\\fBgs\\fR(1), \\fBpdftocairo\\fR(1), \\fBrsvg\\-convert\\fR(1)\n");
}

}  // namespace norvex
