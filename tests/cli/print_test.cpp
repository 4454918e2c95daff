// `norvex print`: what it is asked and what it refuses. What it prints is tested with the whole program.
#include "cli/cli_files.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class PrintTest : public QObject {
  Q_OBJECT
 private slots:
  void wrongArgumentsAreToldInOneSentence_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const QStringList& arguments, const QString& sentence) {
      QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << sentence;
    };
    const QString where = "give either a printer (--printer NAME) or a file to write (-o OUT.pdf)";
    row({"a.eps"}, where);
    row({"a.eps", "--printer", "Office", "-o", "b.pdf"}, where);
    row({"a.eps", "-o", "b.pdf", "--landscape", "--portrait"}, "the paper cannot both lie and stand");
    row({"a.eps", "-o", "b.pdf", "--paper", "Napkin"},
        "there is no paper named Napkin; there are A4 A3 A5 A6 A2 A1 A0 Letter Legal Tabloid Executive B4 "
        "B5");
  }
  void wrongArgumentsAreToldInOneSentence() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    CommandLine line;
    QCOMPARE(line.run(QStringList{"print"} + arguments), 2);
    QCOMPARE(line.console.messages, "norvex: " + sentence + "; norvex print --help shows what there is\n");
    QCOMPARE(line.service.openCount(), 0);
  }

  void oneFileIsPrintedAtATime() {
    CommandLine line;
    QCOMPARE(line.run({"print", "a.eps", "b.eps", "-o", "c.pdf"}), 2);
    QCOMPARE(line.run({"print", "-o", "c.pdf"}), 2);
  }

  void withoutAPrintServiceTheFileIsNotEvenRead() {
    qputenv("CUPS_SERVER", "127.0.0.1:9");  // nobody is there
    CommandLine line;
    QCOMPARE(line.run({"print", line.write("a.eps", kEps), "--printer", "Office"}), 4);
    QCOMPARE(line.console.messages,
             "norvex: " + line.path("a.eps") + ": the print service cannot be reached\n");
    QCOMPARE(line.service.openCount(), 0);
    qunsetenv("CUPS_SERVER");
  }

  void theInputIsKept() {
    CommandLine line;
    const QString file = line.write("a.pdf", kPdf);
    QCOMPARE(line.run({"print", file, "-o", file, "--force"}), 4);
    QCOMPARE(line.console.messages, "norvex: " + file + ": the output would overwrite the input\n");
    QCOMPARE(line.contents("a.pdf"), kPdf);
  }

  void aFileThatCannotBeReadIsTold() {
    CommandLine line;
    QCOMPARE(line.run({"print", line.path("gone.eps"), "-o", line.path("a.pdf")}), 3);
    QVERIFY(line.console.messages.startsWith("norvex: " + line.path("gone.eps") + ": "));
    QCOMPARE(line.entries(), QStringList());
  }
};

NORVEX_TEST(PrintTest)
#include "print_test.moc"
