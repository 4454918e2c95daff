// Arguments, help, completion: everything that follows the table.
#include "cli/arguments/arguments.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "base/latin1_text.h"
#include "cli/arguments/help_text.h"
#include "cli/arguments/shell_completion.h"
#include "cli/arguments/suggestion.h"
#include "cli/cli_files.h"
#include "cli/command_line.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class ArgumentsTest : public QObject {
  Q_OBJECT
 private slots:
  void filesAndOptionsMayStandInAnyOrder() {
    const ReadArguments read = readArguments({"info", "a", "--json", "b", "--", "--json"});
    QCOMPARE(read.complaint, "");
    QCOMPARE(read.arguments.command, Command::Info);
    QCOMPARE(read.arguments.files, QStringList({"a", "b", "--json"}));
    QVERIFY(read.arguments.has(Option::Json));
  }

  void valuesInTheirForms() {
    for (const QStringList& given :
         {QStringList{"preview", "f", "-o", "x"}, QStringList{"preview", "f", "-ox"},
          QStringList{"preview", "--output", "x", "f"}, QStringList{"preview", "f", "--output=x"}}) {
      const ReadArguments read = readArguments(given);
      QCOMPARE(read.complaint, "");
      QCOMPARE(read.arguments.values.value(Option::Output), "x");
      QCOMPARE(read.arguments.files, QStringList{"f"});
    }
  }

  void someOptionsMayBeGivenMoreThanOnce() {
    const ReadArguments read =
        readArguments({"info", "--recursive", "d", "--include", "*.a", "--include=*.b", "--exclude", "c"});
    QCOMPARE(read.complaint, "");
    QCOMPARE(read.arguments.lists.value(Option::Include), QStringList({"*.a", "*.b"}));
    QCOMPARE(read.arguments.lists.value(Option::Exclude), QStringList({"c"}));
    QVERIFY(read.arguments.asksForArchive());
    QVERIFY(!readArguments({"info", "d"}).arguments.asksForArchive());
  }

  void wrongUsage_data() {
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("unknown option") << QStringList{"info", "f", "--bogus"} << "there is no option --bogus";
    QTest::newRow("option of another command")
        << QStringList{"source", "f", "--json"} << "there is no option --json";
    QTest::newRow("mistyped option") << QStringList{"convert", "f", "--fromat=pdf"}
                                     << "there is no option --fromat, perhaps --format is meant";
    QTest::newRow("unknown letter") << QStringList{"info", "-d", "f"} << "there is no option -d";
    QTest::newRow("unknown long option of one letter")
        << QStringList{"info", "--d", "f"} << "there is no option --d";
    QTest::newRow("value of a switch")
        << QStringList{"info", "f", "--json=yes"} << "unexpected value after '--json'";
    QTest::newRow("output twice") << QStringList{"convert", "f", "-o", "a.pdf", "--output=b.pdf"}
                                  << "--output is given more than once";
    QTest::newRow("mistyped command")
        << QStringList{"convret", "f", "-o", "g.pdf"}
        << "there is no command convret, and no file of that name, perhaps convert is meant";
    QTest::newRow("no command") << QStringList{"frobnicate", "f"}
                                << "there is no command frobnicate, and no file of that name";
    QTest::newRow("no file") << QStringList{"info"} << "no file is given";
    QTest::newRow("two files") << QStringList{"source", "a", "b"} << "only one file can be given";
    QTest::newRow("no output") << QStringList{"preview", "a"} << "no output is given (-o OUT or --to DIR)";
    QTest::newRow("no value") << QStringList{"preview", "a", "-o"} << "missing value after '-o'";
    QTest::newRow("no such shell") << QStringList{"--completion", "tcsh"}
                                   << "--completion is one of: bash zsh fish";
    QTest::newRow("input twice") << QStringList{"info", "-", "-"} << "standard input can be read only once";
  }
  void wrongUsage() {
    QFETCH(QStringList, given);
    QFETCH(QString, complaint);
    QCOMPARE(readArguments(given).complaint, complaint);
    CommandLine line;
    QCOMPARE(line.run(given), 2);
    QVERIFY(line.console.output.isEmpty());
    QVERIFY2(line.console.messages.startsWith("norvex: " + complaint + "; norvex "),
             qPrintable(line.console.messages));
    QCOMPARE(line.console.messages.count('\n'), 1);
  }

  void whatAsksForTheCommandLine_data() {
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<bool>("expected");
    QTest::newRow("nothing") << QStringList{} << false;
    QTest::newRow("file") << QStringList{"a.eps"} << false;
    QTest::newRow("missing file") << QStringList{"/nowhere/a"} << false;
    QTest::newRow("mistyped command") << QStringList{"convret", "a.eps"} << true;
    QTest::newRow("address") << QStringList{"file:///a"} << false;
    QTest::newRow("file named like a command") << QStringList{"./info"} << false;
    QTest::newRow("end of options") << QStringList{"--", "info"} << false;
    QTest::newRow("window system") << QStringList{"-platform", "xcb"} << false;
    QTest::newRow("window system, long") << QStringList{"--platform=xcb", "a.eps"} << false;
    QTest::newRow("info") << QStringList{"info", "a.eps"} << true;
    QTest::newRow("source") << QStringList{"source"} << true;
    QTest::newRow("preview") << QStringList{"preview"} << true;
    QTest::newRow("version") << QStringList{"--version"} << true;
    QTest::newRow("help") << QStringList{"--help"} << true;
    QTest::newRow("short help") << QStringList{"-h"} << true;
    QTest::newRow("sandbox") << QStringList{"--sandbox-status"} << true;
    QTest::newRow("completion") << QStringList{"--completion", "bash"} << true;
    QTest::newRow("started by the bus") << QStringList{"--dbus-service"} << false;
    QTest::newRow("mistyped") << QStringList{"--verison"} << true;
  }
  void whatAsksForTheCommandLine() {
    QFETCH(QStringList, given);
    QFETCH(bool, expected);
    QList<QByteArray> bytes{"norvex"};
    for (const QString& argument : given) bytes << argument.toUtf8();
    QList<char*> pointers;
    for (QByteArray& argument : bytes) pointers << argument.data();
    QCOMPARE(isCommandLine(int(pointers.size()), pointers.data()), expected);
  }

  void optionsOfTheWindowSystemOpenAWindow() {
    for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry",
                             "qwindowicon", "qwindowtitle", "reverse", "session", "style", "stylesheet",
                             "display", "qmljsdebugger", "widgetcount"}) {
      QVERIFY2(!asksForCommandLine(QString("--") + name), name);
      QVERIFY2(!asksForCommandLine(QString("--%1=a=b").arg(name)), name);
      QVERIFY2(asksForCommandLine(QString("--%1x").arg(name)), name);
    }
  }

  void aFileNamedLikeNoCommandIsAFile() {
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QFile file("picture");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray program("norvex"), name("picture"), missing("pictures");
    char* there[] = {program.data(), name.data()};
    char* notThere[] = {program.data(), missing.data()};
    QVERIFY(!isCommandLine(2, there));
    QVERIFY(isCommandLine(2, notThere));
    QDir::setCurrent(before);
  }

  void theNearestNameIsSuggested() {
    const QStringList names{"info", "source", "preview", "convert", "print"};
    QCOMPARE(nearestName("convret", names), "convert");
    QCOMPARE(nearestName("Convert", names), "convert");
    QCOMPARE(nearestName("inf", names), "info");
    QCOMPARE(nearestName("soruce", names), "source");
    QCOMPARE(nearestName("previwe", names), "preview");
    QCOMPARE(nearestName("inof", names), "info");  // two letters that changed places are one mistake
    QVERIFY(!nearestName("inxx", names));
    QVERIFY(!nearestName("open", names));
    QVERIFY(!nearestName("in", names));
    QVERIFY(!nearestName("", names));
    QVERIFY(!nearestName(QString(100'000, 'x'), names));
  }

  void helpNamesEveryCommandAndOption() {
    const QString main = helpText(Command::Main);
    for (const CommandRow& row : commandTable)
      QVERIFY(main.contains(QString("norvex %1").arg(latin1(row.name)).trimmed()));
    for (const CommandRow& row : commandTable)
      for (const OptionRow& option : optionsOf(row.id))
        QVERIFY(helpText(row.id).contains(QString("--%1").arg(latin1(option.name))));
    for (const CommandRow& row : commandTable)
      for (const QString& textLine : helpText(row.id).split('\n'))
        QVERIFY2(textLine.size() <= 100, qPrintable(textLine));
  }

  void helpTellsWhichNamesAreStandardInputAndOutput_data() {
    QTest::addColumn<Command>("command");
    QTest::addColumn<QString>("told");
    QTest::newRow("all commands") << Command::Main << "\nFILE and OUT may be -: standard input or output.\n";
    QTest::newRow("output") << Command::Convert << "\nFILE and OUT may be -: standard input or output.\n";
    QTest::newRow("two names") << Command::Thumbnail
                               << "\nFILE and OUT may be -: standard input or output.\n";
    QTest::newRow("no output") << Command::Info << "\nFILE may be -: standard input.\n";
    QTest::newRow("neither") << Command::Status << "";
  }
  void helpTellsWhichNamesAreStandardInputAndOutput() {
    QFETCH(Command, command);
    QFETCH(QString, told);
    const QString help = helpText(command);
    QCOMPARE(help.count("may be -:"), told.isEmpty() ? 0 : 1);
    QVERIFY(help.contains(told));
  }

  void everyFormatThatIsWrittenIsOfferedEverywhere() {
    QFile file(QStringLiteral(NORVEX_SOURCE_DIR "/README.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString readme = QString::fromUtf8(file.readAll());
    QStringList texts{helpText(Command::Convert),
                      readme.mid(readme.indexOf("`convert` writes")).section("\n\n", 0, 0)};
    for (const char* shell : {"bash", "zsh", "fish"}) texts << completionScript(shell);
    int offered = 0;
    for (const FormatRow& row : formatTable) {
      if (!isWritten(row)) continue;
      ++offered;
      const QRegularExpression word(QString("(?<![-\\w])%1(?![-\\w])").arg(latin1(row.name)));
      for (const QString& text : texts)
        QVERIFY2(text.contains(word), qPrintable(latin1(row.name) + " in " + text));
    }
    QVERIFY(offered > 5);
    QVERIFY(readArguments({"convert", "f", "-o", "g", "--format", "ai"})
                .complaint.startsWith("--format is one of: eps "));
  }

  void noCommandAndNoOptionIsToldTwice() {
    QSet<QString> names;
    for (const CommandRow& row : commandTable) {
      QVERIFY2(!names.contains(latin1(row.name)), row.name.data());
      names << latin1(row.name);
      QSet<QString> options;
      for (const OptionRow& option : optionsOf(row.id)) {
        QStringList forms{latin1(option.name)};
        if (option.letter) forms << QString(QLatin1Char(option.letter));
        for (const QString& form : forms) {
          QVERIFY2(!options.contains(form), qPrintable(form));
          options << form;
        }
      }
    }
  }

  void aCommandLineTakesACommand() {
    CommandLine line;
    QCOMPARE(line.run({}), 2);
    QCOMPARE(line.console.messages,
             QString("norvex: no command is given; norvex --help shows what there is\n"));
  }

  void whatAnotherProgramDoesIsToldByThisOne() {
    MemoryConsole console;
    MemoryPictureService service;
    const auto told = [&](const QStringList& given) {
      console.messages.clear();
      return Job(console, service).run(given) == ExitCode::Usage ? console.messages : QString();
    };
    QCOMPARE(told({"print", "a.eps", "-o", "b.pdf"}),
             QString("norvex: this program does not print; norvex print --help shows what there is\n"));
    QCOMPARE(told({"convert", "--recursive", "d", "--to", "e", "--format", "pdf"}),
             QString("norvex: this program takes no archives; norvex convert --help shows what there is\n"));
    QCOMPARE(told({"--sandbox-status"}),
             QString("norvex: --sandbox-status stands alone, and needs the program that reads pictures\n"));
  }

  void helpAndVersionGoToStandardOutput() {
    CommandLine line;
    QCOMPARE(line.run({"--help"}), 0);
    QCOMPARE(line.console.output, helpText(Command::Main).toUtf8());
    QCOMPARE(line.run({"preview", "--help"}), 0);
    QVERIFY(line.console.output.startsWith(
        "Usage: norvex preview FILE... (-o OUT | --to DIR) [options]\nWrite the embedded"));
    QCOMPARE(line.run({"--version"}), 0);
    QCOMPARE(line.console.output, QByteArray("norvex " NORVEX_VERSION "\n"));
    QVERIFY(line.console.messages.isEmpty());
  }

  void everyOptionAndCommandIsCompleted() {
    for (const QString& shell : {QString("bash"), QString("zsh"), QString("fish")}) {
      const QString script = completionScript(shell);
      for (const OptionRow& option : optionTable)
        QVERIFY2(script.contains(latin1(option.name)), option.name.data());
      for (const CommandRow& row : commandTable) QVERIFY2(script.contains(latin1(row.name)), row.name.data());
      CommandLine line;
      QCOMPARE(line.run({"--completion", shell}), 0);
      QCOMPARE(line.console.output, script.toUtf8());
    }
    QVERIFY(completionScript("tcsh").isEmpty());
  }

  void bashCompletesFromTheScript() {
    const QString bash = QStandardPaths::findExecutable("bash");
    if (bash.isEmpty()) QSKIP("there is no bash");
    const QTemporaryDir empty;  // names of files are offered too
    const auto complete = [&](const QString& words, int index) {
      QProcess shell;
      shell.setWorkingDirectory(empty.path());
      shell.start(bash, {"--norc", "-c",
                         completionScript("bash") +
                             QString("COMP_WORDS=(%1); COMP_CWORD=%2; _norvex; echo \"${COMPREPLY[@]}\"")
                                 .arg(words)
                                 .arg(index)});
      shell.waitForFinished();
      return QString::fromUtf8(shell.readAllStandardOutput()).trimmed();
    };
    QCOMPARE(complete("norvex in", 1), "info inks");
    QCOMPARE(complete("norvex info --j", 2), "--json --jobs --json-lines");
    QCOMPARE(complete("norvex source --j", 2), "");
    QCOMPARE(complete("norvex --completion z", 2), "zsh");
    QCOMPARE(complete("norvex --sand", 1), "--sandbox-status");
    QCOMPARE(complete("norvex info a", 2), "");  // files are the shell's own business
    QVERIFY(completionScript("bash").endsWith("complete -o default -F _norvex norvex\n"));
  }

  void bashKeepsNamesWithBlanksWhole() {
    const QString bash = QStandardPaths::findExecutable("bash");
    if (bash.isEmpty()) QSKIP("there is no bash");
    const QTemporaryDir folder;
    for (const char* name : {"in my hand.eps", "in * two.eps", "other.eps"}) {
      QFile file(folder.filePath(name));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QProcess shell;
    shell.setWorkingDirectory(folder.path());
    shell.start(
        bash,
        {"--norc", "-c",
         completionScript("bash") +
             "COMP_WORDS=(norvex in); COMP_CWORD=1; _norvex; printf '<%s>' \"${COMPREPLY[@]}\" | sort"});
    QVERIFY(shell.waitForFinished());
    const QString reply = QString::fromUtf8(shell.readAllStandardOutput()).trimmed();
    QCOMPARE(shell.readAllStandardError(), QByteArray());
    QCOMPARE(reply.count('<'), 4);
    QVERIFY(reply.contains("<info>") && reply.contains("<inks>") && reply.contains("<in my hand.eps>") &&
            reply.contains("<in * two.eps>"));
  }
};

NORVEX_TEST(ArgumentsTest)
#include "arguments_test.moc"
