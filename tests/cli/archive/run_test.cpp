// Commands over archives with pictures in memory: what is written where, what is told, what is tried again.
#include <QFileInfo>
#include <QJsonArray>
#include <QSet>

#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <new>
#include <thread>

#include "cli/archive/archive_files.h"
#include "cli/archive/archive_run.h"
#include "kit/test_main.h"
#include "protocol/page_contents.h"
#include "protocol/page_inks.h"

using namespace norvex;
using namespace norvex::testdata;

namespace {

/// Pictures in which there is nothing to find, drawn within their box.
MemoryPicture examinedPicture() {
  MemoryPicture picture;
  picture.examine = [](const ExamineRequest& request) {
    const QRectF ink(1, 1, 20, 30);
    PageContents contents;
    contents.size = {30, 40};
    return request.what == Examination::Drawn ? encodeDrawnInk({ink, ink, QRectF(0, 0, 30, 40), 0.1})
                                              : encodePageContents(contents);
  };
  return picture;
}

/// Lets the first picture wait until something was told of another.
class WaitingConsole : public Console {
 public:
  explicit WaitingConsole(MemoryPictureService& service) {
    service.setPrepare([this](MemoryPictureProcess& process) {
      const std::lock_guard lock(mutex_);
      if (process.bytes() != svg("slow")) return;
      slow_ = &process;
      process.hold(PictureCall::Facts);
    });
  }
  Result<QByteArray> input() override { return QByteArray(); }
  bool write(const QByteArray& bytes) override {
    const std::lock_guard lock(mutex_);
    output += bytes;
    if (++told_ == wanted && slow_) slow_->release(PictureCall::Facts);
    return true;
  }
  void message(const QString&) override {}
  void progress(const QString&) override {}
  [[nodiscard]] bool isClosed() const override { return false; }
  [[nodiscard]] bool isTerminal() const override { return false; }
  [[nodiscard]] bool showsProgress() const override { return true; }

  int wanted = 1;
  QByteArray output;

 private:
  std::mutex mutex_;
  MemoryPictureProcess* slow_ = nullptr;
  int told_ = 0;
};

/// Nobody looks at it, but what it is told is kept.
class LogConsole final : public Console {
 public:
  Result<QByteArray> input() override { return QByteArray(); }
  bool write(const QByteArray&) override { return true; }
  void message(const QString& line) override { lines << line; }
  void progress(const QString&) override {}
  [[nodiscard]] bool isClosed() const override { return false; }
  [[nodiscard]] bool isTerminal() const override { return false; }
  [[nodiscard]] bool showsProgress() const override { return false; }

  QStringList lines;
};

/// There is no memory for what it is told.
class FullConsole final : public Console {
 public:
  Result<QByteArray> input() override { return QByteArray(); }
  bool write(const QByteArray&) override { throw std::bad_alloc(); }
  void message(const QString&) override {}
  void progress(const QString&) override {}
  [[nodiscard]] bool isClosed() const override { return false; }
  [[nodiscard]] bool isTerminal() const override { return false; }
  [[nodiscard]] bool showsProgress() const override { return false; }
};

}  // namespace

class RunTest : public QObject {
  Q_OBJECT
 private slots:
  // ---- what is asked -------------------------------------------------------------------------------------

  void wrongArgumentsAreToldBeforeAnythingIsDone_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const QStringList& arguments, const QString& sentence) {
      QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << sentence;
    };
    row({"info", "--json-lines"}, "no file is given");
    row({"info", "--files-from", "l", "--json"}, "an archive is told line by line: --json-lines");
    row({"info", "a", "--null", "--json-lines"}, "--null goes with --files-from");
    row({"info", "a", "--include", "*", "--json-lines"}, "--include and --exclude go with --recursive");
    row({"info", "a", "--retry-failed"}, "--retry-failed and --report go with --state");
    row({"info", "a", "--report", "r.html"}, "--retry-failed and --report go with --state");
    row({"info", "a", "--state", "s", "--report", "r.txt"}, "a report ends in .html or .jsonl");
    row({"info", "-", "--json-lines"},
        "standard input is not one of the files of an archive (--files-from - lists them)");
    row({"info", "a", "--state", "./s.html", "--report", "s.html"},
        "--state and --report name the same file");
    row({"info", "a", "--shard", "3/2"}, "--shard is I/N: part I of N, from 1");
    row({"info", "a", "--shard", "half"}, "--shard is I/N: part I of N, from 1");
    row({"info", "a", "--shard-by", "name"}, "--shard-by goes with --shard");
    row({"info", "a", "--shard", "1/2", "--shard-by", "size"}, "--shard-by is one of: name content");
    row({"info", "a", "--jobs", "2"}, "--jobs goes with --files-from, --recursive or --state");
    row({"info", "a", "--memory-total", "500"},
        "--memory-total is less than one picture may take (--memory, 1024)");
    row({"info", "a", "--json-lines", "--timeout", "0"}, "--timeout is a number from 1 to 10000000");
    row({"preview", "--recursive", "d"}, "--to DIR is needed");
    row({"convert", "--recursive", "d", "--format", "pdf"}, "--to DIR is needed");
    row({"convert", "--recursive", "d", "--to", "e"}, "no format is given (--format)");
    row({"convert", "--recursive", "d", "-o", "e"},
        "-o does not go with --recursive: the results go to a folder (--to DIR)");
    row({"convert", "a", "--json-lines", "-o", "e"},
        "-o does not go with --json-lines: the results go to a folder (--to DIR)");
    row({"preview", "a", "--to", "d", "-o", "e"},
        "-o does not go with --to: the results go to a folder (--to DIR)");
    row({"repair", "--files-from", "l"}, "--to DIR is needed");
    row({"inks", "a", "--json-lines", "--plates", "d"},
        "--plates does not go with --json-lines: files of one name would share theirs");
    row({"check", "--files-from", "l", "--profile", "nowhere"},
        "--profile: there is no profile nowhere, and no file of that name; profiles are: archive, journal, "
        "print, "
        "web");
    row({"convert", "a", "--to", "d", "--format", "png", "--pages", "all", "--json-lines"},
        "--pages does not go with --json-lines: an archive has one result for each file");
    row({"convert", "--recursive", "d", "--to", "e", "--format", "png", "--dpi", "0"},
        "--dpi is a number from 1 to 9600");
    row({"status"}, "no file is given");
    row({"status", "a", "b"}, "only one state is told of (--merge takes others into it)");
    row({"source", "a", "--files-from", "l"}, "there is no option --files-from");
  }
  void wrongArgumentsAreToldBeforeAnythingIsDone() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    Archive archive;
    QCOMPARE(archive.go(arguments), 2);
    QVERIFY2(archive.console.messages.startsWith("norvex: " + sentence + "; norvex "),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.console.messages.count('\n'), 1);
    QCOMPARE(archive.service.openCount(), 0);
  }

  // ---- where results go ----------------------------------------------------------------------------------

  void theTreeIsMadeAgainBelowTheFolderOfTheResults() {
    Archive archive;
    for (const char* name : {"in/a.svg", "in/b/c.d.svg", "in/b/e/f.svg", "in/b/note.txt"}) archive.put(name);
    QCOMPARE(archive.convertTree({}), 0);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a.svg", "b/c.d.svg", "b/e/f.svg"}));
    QCOMPARE(archive.console.messages, "norvex: 3 done\n");
  }

  void aMissingFolderOfResultsIsNotMade() {
    Archive archive;
    archive.put("in/b/a.svg");
    const QString gone = archive.path("gone");
    QCOMPARE(archive.go({"convert", "--recursive", archive.path("in"), "--to", gone, "--format", "png"}), 4);
    QVERIFY2(archive.console.messages.contains("the folder to write to does not exist"),
             qPrintable(archive.console.messages));
    QVERIFY(!QFileInfo::exists(gone));
  }

  void twentyCollisionsAreToldAndAllAreCounted() {
    Archive archive;
    for (int i = 0; i < 22; ++i)
      for (const char* extension : {".svg", ".svgz"}) archive.put("in/" + QByteArray::number(i) + extension);
    QCOMPARE(archive.convertTree({}), 2);
    QCOMPARE(archive.console.messages.count("more than one file would become"), 20);
    QVERIFY(archive.console.messages.endsWith("norvex: 22 names collide; nothing is written\n"));
  }

  void namesThatWouldBecomeOneAreToldBeforeAnythingIsWritten() {
    Archive archive;
    archive.put("in/a.svg"), archive.put("in/a.svgz"), archive.put("in/b.svg");
    QCOMPARE(archive.convertTree({}), 2);
    QVERIFY2(
        archive.console.messages.contains("more than one file would become " + archive.path("out/a.svg")),
        qPrintable(archive.console.messages));
    QVERIFY(archive.console.messages.endsWith("norvex: 1 name collides with another; nothing is written\n"));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>());
    QCOMPARE(archive.service.openCount(), 0);
    archive.put("list", archive.at("in/a.svg") + '\n' + archive.at("in/a.svgz") + '\n');
    QCOMPARE(archive.convert({"--files-from", archive.path("list")}), 2);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>());
  }

  void namesThatComeThroughAPipeAndWouldBecomeOneAreFailuresOfTheirOwn() {
    Archive archive;
    archive.put("in/a.svg"), archive.put("in/b/a.svg");
    QCOMPARE(::mkfifo(archive.at("pipe").constData(), 0600), 0);
    std::thread writer(
        [&] { archive.put("pipe", archive.at("in/a.svg") + '\n' + archive.at("in/b/a.svg") + '\n'); });
    QCOMPARE(archive.convert({"--files-from", archive.path("pipe"), "--json-lines", "--force"}), 1);
    writer.join();
    QCOMPARE(archive.told("outcome"), QStringList({"done", "not-written"}));
    QVERIFY(archive.told("error").last().startsWith("more than one file would become "));
  }

  void resultsAreNotTakenForPicturesToRead() {
    Archive archive;
    archive.put("in/a.ai");
    const QString in = archive.path("in");
    const QStringList arguments{"convert", "--recursive", in, "--to", in + "/.", "--format", "svg"};
    QCOMPARE(archive.go(arguments), 2);
    QVERIFY2(archive.console.messages.startsWith("norvex: --to is the folder that is read"),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.filesBelow("in"), QList<QByteArray>({"a.ai"}));
    for (int i = 0; i < 2; ++i)
      QCOMPARE(archive.go(arguments + QStringList{"--exclude", "*.svg", "--state", archive.path("state")}),
               0);
    QCOMPARE(archive.filesBelow("in"), QList<QByteArray>({"a.ai", "a.svg"}));
  }

  void listedFilesKeepTheirFoldersBelowTheBase() {
    Archive archive;
    archive.put("list", archive.put("in/x/a.svg") + '\n' + archive.put("in/y/a.svg") + '\n');
    QCOMPARE(archive.convert({"--files-from", archive.path("list"), "--base", archive.path("in")}), 0);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"x/a.svg", "y/a.svg"}));
  }

  void namesAmongTheArgumentsLieBelowTheBaseAsWell() {
    Archive archive;
    const QString within = fileNameText(archive.put("in/x/a.svg"));
    const QString beside = fileNameText(archive.put("other/b.svg"));
    QCOMPARE(archive.convert({within, beside, "--base", archive.path("in"), "--state", archive.path("s")}),
             1);
    QVERIFY2(archive.console.messages.contains("it does not lie below the folder of --base"),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>{"x/a.svg"});
  }

  void namesAreBytes() {
    Archive archive;
    const QByteArray longest = QByteArray(251, 'l') + ".svg";
    const QList<QByteArray> names{"-", "bad\xFF\xE2\x82.svg", longest, "line\nfeed.svg", "\xC3\xBC.svg"};
    QByteArray list;
    for (const QByteArray& name : names) list += archive.put("in/" + name) + '\0';
    archive.put("list", list);
    QCOMPARE(archive.convert({"--files-from", archive.path("list"), "--null", "--json-lines"}), 0);
    QList<QByteArray> expected = names;
    expected[0] = "-.svg";
    std::sort(expected.begin(), expected.end());
    QCOMPARE(archive.filesBelow("out"), expected);
    QCOMPARE(archive.lines().size(), 5);
    QCOMPARE(QByteArray::fromBase64(archive.lines()[1].value("fileBytes").toString().toLatin1()),
             archive.at("in/bad\xFF\xE2\x82.svg"));
    QVERIFY(!archive.lines()[0].contains("fileBytes"));
    QCOMPARE(archive.console.output.count('\n'), 5);
  }

  void previewsGoIntoTheTreeAsWell() {
    Archive archive;
    archive.put("in/a/b.epsi", kEpsi);
    QCOMPARE(archive.go({"preview", "--recursive", archive.path("in"), "--to", archive.folder("out")}), 0);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a/b.png"}));
    QVERIFY(archive.bytesAt("out/a/b.png").startsWith("\x89PNG"));
  }

  void previewsOfSeveralFilesGoIntoAFolder() {
    Archive archive;
    QStringList files{"preview", "--to", archive.folder("out")};
    for (const char* name : {"in/a.epsi", "in/b.epsi"}) files << fileNameText(archive.put(name, kEpsi));
    QCOMPARE(archive.go(files), 0);
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a.png", "b.png"}));
    QCOMPARE(archive.go(files.mid(0, 4)), 4);  // nothing is overwritten
  }

  void anArchiveIsChecked() {
    Archive archive;
    archive.service.setPicture(examinedPicture());
    archive.put("in/good.svg");
    archive.put("in/bad.eps", "%!PS-Adobe-3.0 EPSF-3.0\n%%EndComments\nshowpage\n");
    const QStringList run{"check", "--recursive", archive.folder("in"), "--state", archive.path("state")};
    QCOMPARE(archive.go(run + QStringList{"--json-lines"}), 1);
    QJsonObject bad;
    for (const QJsonObject& line : archive.lines()) {
      const bool isBad = line.value("file").toString().endsWith("bad.eps");
      QCOMPARE(line.value("outcome").toString(), isBad ? "failed" : "done");
      if (isBad) bad = line;
    }
    QVERIFY(!bad.value("findings").toArray().isEmpty());
    const QString sentence = bad.value("error").toString();
    QVERIFY2(!sentence.isEmpty(), archive.console.output.constData());
    QCOMPARE(archive.go(run), 1);  // what was found is known, and is still a failure
    QVERIFY(archive.console.messages.endsWith("1 unchanged, 1 failed before\n"));
    QCOMPARE(archive.go({"status", archive.path("state")}), 0);
    QVERIFY2(archive.console.output.contains("1 x " + sentence.toUtf8() + ", for example "),
             archive.console.output.constData());
    QCOMPARE(archive.go(run + QStringList{"--profile", "web"}), 1);  // is judged anew
    QVERIFY(archive.console.messages.endsWith("1 done, 1 failed\n"));
  }

  void aProfileThatChangesIsAnotherOne() {
    Archive archive;
    archive.service.setPicture(examinedPicture());
    archive.put("in/a.svg"), archive.put("p.toml", "[limits]\nrgb = true\n");
    const QStringList run{
        "check",     "--recursive",         archive.folder("in"), "--state", archive.path("state"),
        "--profile", archive.path("p.toml")};
    QCOMPARE(archive.go(run), 0);
    QCOMPARE(archive.go(run), 0);
    QVERIFY(archive.console.messages.endsWith("1 unchanged\n"));
    archive.put("p.toml", "[limits]\nrgb = false\n");
    QCOMPARE(archive.go(run), 0);
    QVERIFY(archive.console.messages.endsWith("1 done\n"));
  }

  void theInksOfATreeAreTold() {
    Archive archive;
    MemoryPicture picture;
    picture.examine = [](const ExamineRequest&) {
      PageInks page;
      for (const char* name : {"Cyan", "Magenta", "Yellow", "Black"}) page.inks << Ink{name, false, {}, 0, 0};
      page.inks << Ink{"Gold", true, ProcessInks{0, 0, 255, 0}, 0.5, 0.5};
      page.plates = QByteArray(5, '\x40');
      return encodePageInks(page);
    };
    archive.service.setPicture(picture);
    archive.put("in/a/b.EPS", kEps), archive.put("in/c.pdf", kPdf), archive.put("in/d.svg");
    const QStringList run{"inks",    "--recursive",         archive.path("in"),
                          "--state", archive.path("state"), "--json-lines"};
    QCOMPARE(archive.go(run), 0);
    QCOMPARE(archive.lines().size(), 2);  // an SVG has no inks
    for (const QJsonObject& line : archive.lines()) {
      QCOMPARE(line.value("outcome").toString(), "done");
      QCOMPARE(line.value("inks").toArray().size(), 5);
      QCOMPARE(line.value("inks").toArray().last().toObject().value("name").toString(), "Gold");
    }
    QCOMPARE(archive.go(run), 0);
    QVERIFY(archive.console.messages.endsWith("2 unchanged\n"));
    QCOMPARE(archive.go({"inks", "--recursive", archive.path("in")}), 0);
    const QList<QByteArray> told = archive.console.output.split('\n');
    QCOMPARE(told.size(), 2 * 7 + 1);
    QCOMPARE(QSet<QByteArray>({told.at(0), told.at(7)}),
             QSet<QByteArray>({archive.at("in/a/b.EPS") + ':', archive.at("in/c.pdf") + ':'}));
    QVERIFY(told.at(1).startsWith("Cyan "));
    QVERIFY(told.at(13).startsWith("most ink in one place: "));
  }

  void anArchiveIsRepairedIntoATreeOfTheSameNames() {
    Archive archive;
    archive.service.setPicture(examinedPicture());
    archive.put("in/a/b.EPS", kEps), archive.put("in/c.epsf", kPdf), archive.put("in/d.pdf", kPdf);
    QCOMPARE(archive.go({"repair", "--recursive", archive.path("in"), "--to", archive.folder("out"),
                         "--json-lines", "-q"}),
             1);
    QCOMPARE(archive.lines().size(), 2);  // what is named as PDF is no file to be repaired
    for (const QJsonObject& line : archive.lines()) {
      const bool isSound = line.value("file").toString().endsWith("b.EPS");
      QCOMPARE(line.value("outcome").toString(), isSound ? "done" : "failed");
      QCOMPARE(line.value("changes").toArray().isEmpty(), !isSound);
    }
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a/b.EPS"}));
    QVERIFY(archive.bytesAt("out/a/b.EPS").startsWith("%!PS-Adobe-3.0 EPSF-3.0"));
  }

  void nothingButErrorsIsToldQuietly() {
    Archive archive;
    archive.put("in/a.svg");
    QCOMPARE(archive.go({"info", "--recursive", archive.path("in"), "-q"}), 0);
    QCOMPARE(archive.console.messages, QString());
    QVERIFY(archive.console.output.contains("a.svg"));
  }

  // ---- what is told --------------------------------------------------------------------------------------

  void everyNameIsAnsweredInItsPlace() {
    Archive archive;
    QByteArray list;
    for (int i = 0; i < 300; ++i)
      list += archive.put("in/" + QByteArray::number(i) + ".svg") + '\n' + (i == 7 ? "/nowhere.svg\n" : "");
    archive.put("list", list);
    QCOMPARE(archive.go({"info", "--files-from", archive.path("list"), "--json-lines"}), 1);
    const QList<QByteArray> names = list.trimmed().split('\n');
    QCOMPARE(archive.lines().size(), 301);
    for (int i = 0; i < 301; ++i) {
      QCOMPARE(archive.lines()[i].value("file").toString().toUtf8(), names[i]);
      QCOMPARE(archive.lines()[i].value("line").toInt(), i + 1);
      QCOMPARE(archive.lines()[i].value("outcome").toString(), i == 8 ? "failed" : "done");
    }
    QVERIFY(archive.lines()[8].contains("error"));
    QCOMPARE(archive.lines()[0].value("kind").toString(), "SVG");
  }

  void withoutOrderFilesThatTakeLongDoNotHoldUpOthers() {
    Archive archive;
    QByteArray list = archive.put("in/slow.svg", svg("slow")) + '\n';
    for (int i = 0; i < 50; ++i) list += archive.put("in/" + QByteArray::number(i) + ".svg") + '\n';
    archive.put("list", list);
    WaitingConsole console(archive.service);
    console.wanted = 50;  // all others are told while it is being drawn
    QCOMPARE(int(ArchiveJob<Job>(console, archive.service)
                     .run({"info", "--files-from", archive.path("list"), "--json-lines", "--unordered",
                           "--jobs", "2"})),
             0);
    QVERIFY(console.output.trimmed().split('\n').last().contains("slow.svg"));
  }

  void slowFilesGiveTheirPlacesUp() {
    Archive archive;
    QByteArray list = archive.put("in/slow.svg", svg("slow")) + '\n';
    for (int i = 0; i < 5; ++i) list += archive.put("in/" + QByteArray::number(i) + ".svg") + '\n';
    archive.put("list", list);
    WaitingConsole console(archive.service);
    console.wanted = 5;
    const ReadArguments read = readArguments(
        {"info", "--files-from", archive.path("list"), "--json-lines", "--unordered", "--jobs", "1"});
    const ReadArchivePlan plan = readArchivePlan(read.arguments);
    RunSizes sizes;
    sizes.slowAfter = std::chrono::milliseconds(5);
    // There is one place; with it held the others would never be told.
    QCOMPARE(int(ArchiveRun(console, archive.service, plan.plan, CancelToken(), sizes).run()), 0);
    QVERIFY(console.output.trimmed().split('\n').last().contains("slow.svg"));
  }

  void whatIsPassedOverIsToldAndCountedAndIsNoFailure() {
    Archive archive;
    archive.put("in/a.svg");
    QCOMPARE(::symlink("a.svg", archive.at("in/b.svg").constData()), 0);
    QCOMPARE(archive.convertTree({}), 0);
    QCOMPARE(archive.console.messages,
             QString("norvex: %1: it is a link, which is not followed; passed over\n"
                     "norvex: 1 done, 1 passed over\n")
                 .arg(archive.path("in/b.svg")));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a.svg"}));
  }

  void aClosedOutputEndsTheRun() {
    Archive archive;
    QByteArray list;
    for (int i = 0; i < 100; ++i) list += archive.put("in/" + QByteArray::number(i) + ".svg") + '\n';
    archive.put("list", list);
    archive.console.full = true;
    QCOMPARE(archive.go({"info", "--files-from", archive.path("list"), "--json-lines"}), 4);
    QVERIFY(archive.console.messages.contains("norvex: -: standard output cannot be written\n"));
  }

  void aReaderThatHasGoneEndsTheRunWithoutAWord() {
    Archive archive;
    QByteArray list;
    for (int i = 0; i < 100; ++i) list += archive.put("in/" + QByteArray::number(i) + ".svg") + '\n';
    archive.put("list", list);
    archive.console.closed = true;
    QCOMPARE(archive.go({"info", "--files-from", archive.path("list"), "--json-lines"}), 141);
    QCOMPARE(archive.console.messages, QString());
  }

  void theProgressTellsRateAndTimeLeft() {
    using namespace std::chrono_literals;
    const RunTally::Time begin{};
    RunTally tally(100, begin);
    for (int i = 0; i < 50; ++i) tally.count(FileResult());
    QCOMPARE(tally.progress(begin + 10s), "50 of 100 files, 5.0 a second, 10 s left");
    for (int i = 0; i < 25; ++i) tally.count(FileResult());
    QCOMPARE(tally.progress(begin + 20s), "75 of 100 files, 3.8 a second, 7 s left");
    // What is long ago does not count: nothing has come for two stretches.
    (void)tally.progress(begin + 40s);
    QCOMPARE(tally.progress(begin + 50s), "75 of 100 files");
    RunTally unknown(std::nullopt, begin);
    FileResult failed;
    failed.verdict = Verdict::Failed;
    unknown.count(failed);
    QCOMPARE(unknown.progress(begin + 1s), "1 file, 1 failed, 1.0 a second");
  }

  void aRunThatIsInterruptedWhileItCountsBeginsNothing() {
    Archive archive;
    for (int i = 0; i < 3; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    LogConsole console;
    const ReadArguments read =
        readArguments({"convert", "--recursive", archive.path("in"), "--to", archive.folder("out"),
                       "--format", "svg", "--state", archive.path("state")});
    const ReadArchivePlan plan = readArchivePlan(read.arguments);
    const CancelToken cancel;
    cancel.cancel();
    QCOMPARE(int(ArchiveRun(console, archive.service, plan.plan, cancel).run()), 130);
    QCOMPARE(console.lines, QStringList("norvex: interrupted; nothing is written"));
    QVERIFY(!QFileInfo::exists(archive.path("state")));
  }

  void whoeverCannotTellForWantOfMemoryEndsTheRun() {
    Archive archive;
    for (int i = 0; i < 20; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    FullConsole console;
    const ReadArguments read = readArguments({"info", "--recursive", archive.path("in"), "--json-lines"});
    const ReadArchivePlan plan = readArchivePlan(read.arguments);
    RunSizes sizes;
    sizes.window.openNumbers = 2;  // the others wait for it
    ArchiveRun run(console, archive.service, plan.plan, CancelToken(), sizes);
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc, (void)run.run());
  }

  void aLogHoldsALineAMinute() {
    Archive archive;
    for (int i = 0; i < 3; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    const auto toldWith = [&](const RunSizes& sizes, const char* out) {
      LogConsole console;
      const ReadArguments read = readArguments(
          {"convert", "--recursive", archive.path("in"), "--to", archive.folder(out), "--format", "svg"});
      const ReadArchivePlan plan = readArchivePlan(read.arguments);
      (void)ArchiveRun(console, archive.service, plan.plan, CancelToken(), sizes).run();
      return console.lines;
    };
    RunSizes sizes;
    QCOMPARE(sizes.logEvery, std::chrono::minutes(1));
    QCOMPARE(toldWith(sizes, "out"), QStringList("norvex: 3 done"));
    sizes.logEvery = std::chrono::milliseconds(0);
    const QStringList lines = toldWith(sizes, "out2");
    QVERIFY(lines.size() > 1);
    QVERIFY2(lines.first().startsWith("norvex: ") && lines.first().contains(" of 3 files"),
             qPrintable(lines.first()));
    QVERIFY(archive.console.progressLines.isEmpty());
  }

  // ---- parts ---------------------------------------------------------------------------------------

  void partsOfAnArchiveAreAllOfIt_data() {
    QTest::addColumn<QString>("by");
    QTest::newRow("name") << "name";
    QTest::newRow("content") << "content";
  }
  void partsOfAnArchiveAreAllOfIt() {
    QFETCH(QString, by);
    Archive archive;
    for (int i = 0; i < 40; ++i) {
      const QByteArray number = QByteArray::number(i);
      archive.put("in/" + number + ".svg", svg(number));
    }
    QStringList seen;
    for (const char* part : {"1/3", "2/3", "3/3"}) {
      QCOMPARE(archive.go({"info", "--recursive", archive.path("in"), "--json-lines", "--shard", part,
                           "--shard-by", by}),
               0);
      QVERIFY(!archive.lines().isEmpty());
      seen += archive.told("file");
    }
    QCOMPARE(seen.size(), 40);
    QCOMPARE(QSet<QString>(seen.begin(), seen.end()).size(), 40);
  }

  void equalFilesAreInOnePartByTheirContent() {
    Archive archive;
    for (int i = 0; i < 10; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    QList<qsizetype> sizes;
    for (const char* part : {"1/3", "2/3", "3/3"}) {
      QCOMPARE(archive.go({"info", "--recursive", archive.path("in"), "--json-lines", "--shard", part,
                           "--shard-by", "content"}),
               0);
      sizes << archive.lines().size();
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, QList<qsizetype>({0, 0, 10}));
  }
};

NORVEX_TEST(RunTest)
#include "run_test.moc"
