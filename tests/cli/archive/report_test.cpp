// Reports of a run: everything is told, nothing can be commanded by names, nothing else is overwritten.
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <sys/stat.h>

#include <atomic>

#include "cli/archive/kept_archive.h"
#include "cli/archive/report_page.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class ReportTest : public QObject {
  Q_OBJECT
 private slots:
  void reportsTellEveryEntryAndCannotBeCommandedByNames() {
    Kept kept;
    kept.put("in/<img src=x>\xFF.svg", "no picture");
    kept.put("in/b.svg");
    QCOMPARE(kept.run({"--report", kept.path("report.html")}), 1);
    const QByteArray page = kept.bytesAt("report.html");
    QVERIFY(page.startsWith("<!DOCTYPE html>"));
    QVERIFY(page.contains("&lt;img src=x&gt;\\xff.svg"));
    QVERIFY(!page.contains("<img src=x>"));
    QVERIFY(!page.contains("http://") && !page.contains("https://"));  // it needs no other file
    QCOMPARE(kept.go({"status", kept.path("state"), "--report", kept.path("report.jsonl")}), 0);
    const QList<QByteArray> lines = kept.bytesAt("report.jsonl").trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    const QJsonObject failed = QJsonDocument::fromJson(lines[0]).object();
    QCOMPARE(failed.value("outcome").toString(), "failed");
    QCOMPARE(failed.value("error").toString(), "it is no picture");
    QVERIFY(!failed.contains("output") && !failed.contains("becameImage"));
    QCOMPARE(QByteArray::fromBase64(failed.value("fileBytes").toString().toLatin1()),
             kept.at("in/<img src=x>\xFF.svg"));
    const QJsonObject done = QJsonDocument::fromJson(lines[1]).object();
    QCOMPARE(done.value("sha256").toString(), done.value("outputSha256").toString());
    QCOMPARE(done.value("sha256").toString().size(), 64);
    QVERIFY(!kept.filesBelow("").contains("report.jsonl.part"));
  }

  void aReportThatCannotBeWrittenLeavesTheOldOne() {
    Kept kept;
    kept.put("in/a.svg");
    const QString report = kept.path("r.jsonl");
    QCOMPARE(kept.run({"--report", report}), 0);
    const QByteArray before = kept.bytesAt("r.jsonl");
    (void)kept.folder("r.jsonl.part");  // where the new one would be made
    QCOMPARE(kept.go({"status", kept.path("state"), "--report", report}), 4);
    QVERIFY2(kept.console.messages.contains("the report cannot be written (Is a directory)"),
             qPrintable(kept.console.messages));
    QCOMPARE(kept.bytesAt("r.jsonl"), before);
  }

  void noNameOrSentenceIsStructureOfTheReport() {
    Kept kept;
    const QList<QByteArray> names{"<script>alert(1)<",
                                  "\" onerror=\"x.svg",
                                  "' x='.svg",
                                  "--><b>.svg",
                                  "&lt;b&gt;&#60;i>.svg",
                                  "a\nb<br>\rc\t.svg",
                                  "\x1B[31m\x7F.svg",
                                  "\xFF\xFE<u>.svg",
                                  "\xC0\xBCimg>.svg",
                                  "\xE2\x80\xAEgvs.exe",
                                  "\xE2\x81\xA6<\xE2\x80\xA9.svg",
                                  "]]><![CDATA[.svg",
                                  "{{7*7}}${x}.svg"};
    for (const QByteArray& name : names) kept.put("in/" + name, "no picture");
    kept.service.setPrepare([](MemoryPictureProcess& process) {
      static std::atomic<int> number = 0;  // each its own cause, so that all are told
      process.fail(PictureCall::Facts,
                   {ErrorKind::NotParsable, QStringLiteral("<b>\"'&%1</table>").arg(++number)});
    });
    for (int first = 0; first < int(names.size()); first += 6) {  // the report has room for ten causes
      QByteArray some;
      for (const QByteArray& name : names.mid(first, 6)) some += kept.at("in/" + name) + '\0';
      kept.put("list", some);
      const QString state = kept.path(QString("state%1").arg(first)),
                    report = kept.path(QString("report%1.html").arg(first));
      QCOMPARE(kept.convert(
                   {"--files-from", kept.path("list"), "--null", "--state", state, "--report", report, "-q"}),
               3);
      const QByteArray page = kept.contents(QString("report%1.html").arg(first));
      QVERIFY(page.isValidUtf8());
      // Of all that begins with < nothing is but what the page is made of.
      static const QRegularExpression tag(QStringLiteral("<([^>]*)"));
      QSet<QString> tags;
      for (auto match = tag.globalMatch(QString::fromUtf8(page)); match.hasNext();)
        tags << match.next().captured(1);
      const QString count = QString::number(names.mid(first, 6).size());
      const QSet<QString> ours{"!DOCTYPE html",
                               "html lang=en",
                               "meta charset=utf-8",
                               "meta name=generator content=\"Norvex\"",
                               "title",
                               "/title",
                               "meta name=viewport content=\"width=device-width\"",
                               "style",
                               "/style",
                               "h1",
                               "/h1",
                               "p class=quiet",
                               "p class=lead",
                               "/p",
                               "div class=bar",
                               "i class=failed style=\"flex-grow:" + count + "\"",
                               "i class=failed",
                               "/i",
                               "div",
                               "/div",
                               "ul class=key",
                               "li",
                               "/ul",
                               "dl class=facts",
                               "dt",
                               "dd",
                               "/dl",
                               "h2",
                               "/h2",
                               "table",
                               "/table",
                               "tr",
                               "td",
                               "td class=n",
                               "th",
                               "th class=n"};
      QVERIFY2((tags - ours).isEmpty(), qPrintable((tags - ours).values().join('|')));
      const QString rows = QString::fromUtf8(page).section("<h2>Failures</h2>", 1);
      QCOMPARE(rows.count("<tr><td class=n>1<td>"), qsizetype(names.mid(first, 6).size()));
      for (const QChar c : rows)
        QVERIFY2(c == u'\n' || (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format),
                 qPrintable(QString::number(c.unicode(), 16)));
    }
  }

  void theReportSaysHowFarTheRunIs() {
    Kept kept;
    (void)kept.folder("in");
    const auto page = [&] { return kept.bytesAt("report.html"); };
    QCOMPARE(kept.run({"--report", kept.path("report.html")}), 0);
    QVERIFY2(page().contains("There were no files.") && !page().contains("<h2>"),
             page().right(600).constData());
    kept.put("in/a.svg");
    QCOMPARE(kept.run({"--report", kept.path("report.html")}), 0);
    QVERIFY2(page().contains("The one file is done."), page().right(600).constData());
    for (int i = 0; i < 12; ++i) kept.put("in/b" + QByteArray::number(i) + ".svg", "no picture");
    std::atomic<int> number = 0;  // each its own cause, and the page has room for ten
    kept.service.setPrepare([&](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, QStringLiteral("cause %1").arg(++number)});
    });
    QCOMPARE(kept.run({"--report", kept.path("report.html")}), 1);
    QVERIFY2(page().contains("1 of 13 files done."), page().right(600).constData());
    QVERIFY2(page().contains("2 files failed for causes that are less common"),
             page().right(600).constData());
  }

  void failuresOfOtherCausesAreCounted() {
    StateSummary summary;
    summary.failed = 3;
    summary.setAside = 2;
    summary.failures = {{"it is no picture", 4, "/in/a.svg"}};
    const auto page = [&] { return reportPage("/kept/of/state", summary, {}); };
    QVERIFY2(page().contains("1 file failed for causes that are less common"), page().right(600).constData());
    summary.failures[0].count = 5;
    QVERIFY2(!page().contains("less common"), page().right(600).constData());
    QVERIFY(page().contains("<title>state</title>") && page().contains("<h1>state</h1>"));
    QVERIFY(page().contains("<p class=quiet>/kept/of/state</p>"));
  }

  void aReportIsRenewedAndOverwritesNothingElse() {
    Kept kept;
    kept.put("in/a.svg");
    const QString page = kept.path("r.html"), lines = kept.path("r.jsonl");
    for (const QString& report : {page, lines, page, lines}) QCOMPARE(kept.run({"--report", report}), 0);
    kept.put("mine.html", "<!DOCTYPE html>\n<p>mine"), kept.put("mine.jsonl", "{\"file\":1}\n");
    for (const QString& report : {kept.path("mine.html"), kept.path("mine.jsonl")}) {
      const QByteArray before = kept.bytesAt(QFileInfo(report).fileName().toUtf8());
      for (const QStringList& command :
           {QStringList{"status", kept.path("state")},
            QStringList{"info", kept.path("in/a.svg"), "--state", kept.path("other")}}) {
        QCOMPARE(kept.go(command + QStringList{"--report", report}), 4);
        QVERIFY(kept.console.messages.contains("exists already (--force overwrites it)"));
      }
      QCOMPARE(kept.bytesAt(QFileInfo(report).fileName().toUtf8()), before);
      QCOMPARE(kept.go({"status", kept.path("state"), "--report", report, "--force"}), 0);
      QVERIFY(kept.bytesAt(QFileInfo(report).fileName().toUtf8()) != before);
    }
    QVERIFY(!QFileInfo::exists(kept.path("other")));  // refused before the run
  }

  void aPipeIsNoReportAndNobodyWaitsForIt() {
    Kept kept;
    kept.put("in/a.svg");
    const QString pipe = kept.path("pipe.html");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(kept.run({"--report", pipe}), 4);
    QVERIFY(kept.console.messages.contains("pipe.html is no ordinary file"));
  }

  void theReportShowsWhatBecameAnImageBeforeAndAfter() {
    Kept kept;
    kept.put("in/a.pdf", emptyPdf({20, 10}));
    MemoryPicture picture;
    picture.report.regionsRasterised = 1;
    picture.report.rasterisedAreaShare = 0.25;
    kept.service.setPicture(picture);
    QCOMPARE(kept.go({"convert", "--recursive", kept.path("in"), "--to", kept.folder("out"), "--format",
                      "eps", "--state", kept.path("state"), "--report", kept.path("report.html")}),
             0);
    const QByteArray page = kept.bytesAt("report.html");
    QVERIFY2(page.contains("25.0 % became an image"), page.right(600).constData());
    QCOMPARE(page.count("data:image/png;base64,"), 2);
  }
};

NORVEX_TEST(ReportTest)
#include "report_test.moc"
