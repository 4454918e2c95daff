// check, repair and inks over real files, and over what is none: one sentence, its exit code, nothing lost.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <algorithm>
#include <cstdio>

#include "check/check_files.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/real_files.h"

using namespace norvex;
using namespace norvex::checkfiles;

namespace {

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write test data");
}

/// On a sheet that holds everything, whatever boxes say; nothing where Ghostscript does not draw it.
QByteArray pixelsOf(const QString& file) {
  const kit::Ran ran = outside::run(
      "gs",
      {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dParseDSCComments=false", "-sDEVICE=ppmraw", "-r36",
       "-g800x800", "-sOutputFile=-", "-c", "<</Install {300 300 translate}>> setpagedevice", "-f", file},
      {}, 60);
  return ran.exitCode == 0 && !ran.crashed ? ran.out : QByteArray();
}

QStringList errorsOf(const QString& file) {
  const kit::Ran ran = kit::norvex({"check", "--json", file});
  QStringList errors;
  const QJsonArray findings = QJsonDocument::fromJson(ran.out)[0]["findings"].toArray();
  for (const QJsonValue& one : findings)
    if (one["severity"].toString() == "error" && one["identifier"].toString().startsWith("eps."))
      errors << one["sentence"].toString();
  return errors;
}

/// What became of mending `file`.
QString outcomeOf(const QString& file, const QString& result) {
  const QByteArray before = contentsOf(file);
  const kit::Ran ran = kit::norvex({"repair", "--force", "--timeout", "60", file, "-o", result}, {}, 200);
  if (contentsOf(file) != before) return "the source was TOUCHED";
  if (ran.exitCode != 0)
    return ran.err.count('\n') == 1 ? QString("refused") : "no sentence: " + QString::fromUtf8(ran.err);
  if (const QStringList errors = errorsOf(result); !errors.isEmpty()) return "ERRORS: " + errors.join("; ");
  const QByteArray source = pixelsOf(file);
  if (source.isEmpty()) return "Ghostscript does not draw the source";
  return pixelsOf(result) == source ? "the same" : "DIFFERENT";
}

}  // namespace

class CheckCommandsTest : public QObject {
  Q_OBJECT
 public:
  CheckCommandsTest() {
    // All of them take long and are no hang.
    if (qEnvironmentVariableIsSet("NORVEX_REPAIRS")) qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
  }

 private slots:
  /// A sample; NORVEX_REPAIRS=1 asks for all, 5 for every fifth.
  void realFilesThatAreMendedPassTheCheckAndDrawTheSame() {
    if (kit::corpusFolder().isEmpty())
      QSKIP("there is no folder of real files here (NORVEX_CORPUS names one)");
    const int asked = qEnvironmentVariableIntValue("NORVEX_REPAIRS"), step = asked > 0 ? asked : 24;
    const QTemporaryDir folder;
    QMap<QString, int> counts;
    QStringList wrong;
    int total = 0;
    for (const char* kind : {"eps_text", "eps_binary", "epsi", "ai_ps", "found", "edge"}) {
      QStringList files = real::files(kind);
      files.removeIf([](const QString& file) { return real::formatOf(file) != "eps"; });
      for (qsizetype i = 0; i < files.size(); i += step, ++total) {
        const QString outcome = outcomeOf(files[i], folder.filePath("mended.eps"));
        ++counts[outcome];
        if (outcome != outcome.toLower() && !outcome.startsWith("Ghostscript"))
          wrong << files[i] + ": " + outcome;
      }
    }
    for (auto it = counts.begin(); it != counts.end(); ++it)
      std::printf("  %4d  %s\n", *it, qPrintable(it.key()));
    std::fflush(stdout);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    QVERIFY(counts["the same"] > total / 2);
  }

  /// It has neither a first line nor a box. The check takes it for EPS and says that repair mends it.
  void aProgramThatOnlyItsNameCallsEpsIsMended() {
    const QTemporaryDir folder;
    const QByteArray program = "newpath 20 30 moveto 60 30 lineto 60 50 lineto fill\nshowpage\n";
    write(folder.filePath("a.eps"), program);
    write(folder.filePath("a.txt"), program);
    const QString mended = folder.filePath("mended.eps");
    QVERIFY(!errorsOf(folder.filePath("a.eps")).isEmpty());
    QCOMPARE(kit::norvex({"repair", folder.filePath("a.txt"), "-o", mended}).exitCode, 3);
    QVERIFY(!QFile::exists(mended));
    QCOMPARE(outcomeOf(folder.filePath("a.eps"), mended), "the same");
    QVERIFY(contentsOf(mended).contains("%%BoundingBox: 20 30 60 50\n"));
    QVERIFY(contentsOf(mended).contains(program));
  }

  void whatCannotBeReadOrWrittenIsOneSentence_data() {
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    for (const QString command : {"check %1", "repair %1 -o new.eps", "inks %1"})
      for (const char* input : {"nowhere.eps", "folder", "pipe", "/dev/zero", "empty.eps", "dangling.eps"})
        QTest::addRow("%s, %s", qPrintable(command), input) << command.arg(input) << 3;
    for (const char* output : {"folder", "pipe", "a.eps", "link.eps", "nowhere/b.eps", "/dev/full"}) {
      QTest::addRow("repair to %s", output) << QString("repair a.eps -o %1").arg(output) << 4;
      if (QByteArray(output) != "a.eps" && QByteArray(output) != "link.eps")
        QTest::addRow("repair --force to %s", output)
            << QString("repair --force a.eps -o %1").arg(output) << 4;
    }
    for (const char* plates : {"text", "pipe", "dangling.eps", "/dev/null"})
      QTest::addRow("plates in %s", plates) << QString("inks a.eps --plates %1").arg(plates) << 4;
    for (const char* profile : {"bad.toml", "folder", "pipe", "/dev/zero", "nowhere"})
      QTest::addRow("profile %s", profile) << QString("check a.eps --profile %1").arg(profile) << 2;
    for (const char* command : {"check a.eps", "check --json a.eps", "inks a.eps", "inks --json a.eps",
                                "repair --preview drop a.eps -o -"})
      for (const char* out : {">/dev/full", ">&-"})
        QTest::addRow("%s %s", command, out) << QString("%1 %2").arg(command, out) << 4;
  }
  void whatCannotBeReadOrWrittenIsOneSentence() {
    QFETCH(QString, arguments);
    QFETCH(int, code);
    const QTemporaryDir folder;
    // With something to mend.
    const QByteArray program = changed(kEps, " EPSF-3.0", "");
    write(folder.filePath("a.eps"), program);
    write(folder.filePath("empty.eps"), {});
    write(folder.filePath("text"), "mine");
    write(folder.filePath("bad.toml"), "[limits]\ncolour-dpi = many\n");
    QVERIFY(QDir(folder.path()).mkdir("folder"));
    QVERIFY(QFile::link("a.eps", folder.filePath("link.eps")));
    QVERIFY(QFile::link("nothing", folder.filePath("dangling.eps")));
    QCOMPARE(::mkfifo(folder.filePath("pipe").toLocal8Bit().constData(), 0600), 0);
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::System, QDir::Name);
    const kit::Ran ran = kit::run(
        "sh", {"-c", QString("cd '%1' && exec '%2' %3").arg(folder.path(), kit::norvexProgram(), arguments)});
    QVERIFY2(!ran.crashed && ran.exitCode == code, ran.err.constData());
    const QList<QByteArray> lines = ran.err.trimmed().split('\n');
    QVERIFY2(lines.size() == 1 && lines[0].startsWith("norvex: ") && lines[0].size() > 20,
             ran.err.constData());
    QCOMPARE(contentsOf(folder.filePath("a.eps")), program);
    QCOMPARE(contentsOf(folder.filePath("text")), "mine");
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System, QDir::Name), before);
    QVERIFY(QFileInfo(folder.filePath("link.eps")).isSymLink());
  }
};

NORVEX_TEST(CheckCommandsTest)
#include "check_commands_test.moc"
