// The manual page and the other texts that are installed beside the program.
#include "cli/arguments/manual_page.h"

#include <QStandardPaths>
#include <QTemporaryDir>

#include "base/latin1_text.h"
#include "cli/arguments/command_table.h"
#include "cli/arguments/shell_completion.h"
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// As man shows it, without the marks of bold and underlined letters.
QString shownByMan(const QString& page, QByteArray* warnings = nullptr) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("norvex.1"));
  if (!file.open(QIODevice::WriteOnly)) return {};
  file.write(page.toUtf8());
  file.close();
  const kit::Ran ran = kit::run("man", {"--warnings", "-l", file.fileName()}, {}, 30,
                                {"MANWIDTH=100", "LC_ALL=C.UTF-8", "MANROFFSEQ=", "MAN_KEEP_FORMATTING="});
  if (warnings) *warnings = ran.err;
  return QString::fromUtf8(ran.out);
}

}  // namespace

class ManualPageTest : public QObject {
  Q_OBJECT
 private slots:
  void manReadsItWithoutAWarning() {
    if (QStandardPaths::findExecutable("man").isEmpty()) QSKIP("man is not installed");
    QByteArray warnings;
    const QString shown = shownByMan(manualPage(), &warnings);
    QCOMPARE(warnings, QByteArray());
    QVERIFY(shown.contains("EXIT STATUS"));
  }

  void itsFootNamesTheVersion() {
    QVERIFY(manualPage().startsWith(".TH NORVEX 1 \"\" \"norvex " NORVEX_VERSION "\" \"User Commands\"\n"));
  }

  void itNamesWhatItReadsOfTheEnvironment() {
    const QString environment = manualPage().section(".SH ENVIRONMENT", 1);
    for (const char* name : {"SOURCE_DATE_EPOCH", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
      QVERIFY2(environment.contains(name), name);
  }

  void itNamesEveryCommandAndOptionWithItsHelp() {
    if (QStandardPaths::findExecutable("man").isEmpty()) QSKIP("man is not installed");
    const QString shown = shownByMan(manualPage()).simplified();
    for (const CommandRow& row : commandTable)
      QVERIFY2(row.name.empty() || shown.contains("norvex " + latin1(row.name) + ' ' + latin1(row.operands)),
               row.name.data());
    for (const OptionRow& row : optionTable) {
      const QString forms = (row.letter ? QString("-%1, ").arg(row.letter) : QString()) + "--" +
                            latin1(row.name) + (row.value.empty() ? "" : " " + latin1(row.value));
      QVERIFY2(shown.contains(forms), qPrintable(forms));
      QVERIFY2(shown.contains(QString(latin1(row.help)).mid(1).simplified()), row.help.data());
    }
  }

  void whatStandsInAHelpTextIsNeverARequest() {
    for (const QString& line : manualPage().split('\n')) {
      if (!line.startsWith('.')) continue;
      static const QStringList known{".TH", ".SH", ".SS", ".TP", ".PP", ".br"};
      QVERIFY2(known.contains(line.section(' ', 0, 0)), qPrintable(line));
    }
  }

  void theProgramOfTheBuildWritesTheSame() {
    const QString program = QStringLiteral(NORVEX_BUILD_DIR "/norvex-command-texts");
    if (!QFile::exists(program)) QSKIP("it is not built");
    QCOMPARE(kit::run(program, {"man"}).out, manualPage().toUtf8());
    for (const char* shell : {"bash", "zsh", "fish"})
      QCOMPARE(kit::run(program, {shell}).out, completionScript(shell).toUtf8());
    QCOMPARE(kit::run(program, {"tcsh"}).exitCode, 2);
  }
};

NORVEX_TEST(ManualPageTest)
#include "manual_page_test.moc"
