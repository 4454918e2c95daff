// EPS that becomes EPS with a preview or EPSI draws the same, to the pixel; and what pictures say about
// themselves is never run.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/real_files.h"

using namespace norvex;

namespace {

/// As Ghostscript draws it, one pixel for two points; null where it does not.
QImage drawn(const QString& path) {
  const QTemporaryDir folder;
  const QString png = folder.filePath("drawn.png");
  outside::run(
      "gs",
      {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-q", "-dEPSCrop", "-sDEVICE=png16m", "-r36", "-o", png, path}, {},
      60);
  return QImage(png);
}

/// Each `step`th EPS of a folder of real files.
QStringList sources(const char* folder, int step) {
  QStringList files, all = real::files(folder);
  all.removeIf([](const QString& file) { return real::formatOf(file) != "eps"; });
  for (qsizetype i = 0; i < all.size(); i += step) files << all[i];
  return files;
}

/// What became of a source whose conversion told itself in `object`.
QString outcomeOf(const QString& file, const QJsonObject& object) {
  if (object.contains("error")) return "refused: " + object["error"].toString();
  const QImage source = drawn(file);
  if (source.isNull()) return QStringLiteral("Ghostscript does not draw the source");
  return drawn(object["output"].toString()) == source ? QStringLiteral("the same")
                                                      : QStringLiteral("DIFFERENT");
}

const QByteArray kPayload("(RAN) = flush quit");

}  // namespace

class EpsSamenessTest : public QObject {
  Q_OBJECT
 public:
  EpsSamenessTest() {
    // All of them take long and are no hang.
    if (qEnvironmentVariableIsSet("NORVEX_EPS_SAMENESS")) qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
  }

 private slots:
  void resultsDrawAsTheirSourcesDo_data() {
    QTest::addColumn<QString>("format");
    QTest::newRow("with preview") << "eps-preview";
    QTest::newRow("EPSI") << "epsi";
  }
  /// A sample; NORVEX_EPS_SAMENESS=1 asks for all, 5 for every fifth.
  void resultsDrawAsTheirSourcesDo() {
    QFETCH(QString, format);
    if (kit::corpusFolder().isEmpty())
      QSKIP("there is no folder of real files here (NORVEX_CORPUS names one)");
    const int step = std::max(qEnvironmentVariableIntValue("NORVEX_EPS_SAMENESS"), 0);
    QMap<QString, int> counts;
    QStringList different;
    int total = 0;
    for (const char* kind : {"eps_text", "eps_binary", "epsi", "ai_ps", "found", "edge"}) {
      const QStringList files = sources(kind, step > 0 ? step : 16);
      const QTemporaryDir folder;
      const kit::Ran ran = kit::norvex(QStringList{"convert", "--json", "--quiet", "--format", format,
                                                   "--timeout", "60", "--jobs", "2", "--to", folder.path()} +
                                           files,
                                       {}, 1800);
      QVERIFY(!ran.crashed);
      const QJsonArray all = QJsonDocument::fromJson(ran.out).array();
      QCOMPARE(all.size(), files.size());
      const QStringList outcomes = outcomesOf(files, all);
      for (qsizetype i = 0; i < files.size(); ++i) {
        ++total;
        ++counts[outcomes[i]];
        if (outcomes[i] == "DIFFERENT") different << files[i];
      }
    }
    for (auto it = counts.begin(); it != counts.end(); ++it)
      std::printf("  %-12s %4d  %s\n", qPrintable(format), *it, qPrintable(it.key()));
    std::fflush(stdout);
    QVERIFY2(different.isEmpty(), qPrintable(different.join('\n')));
    QVERIFY(counts["the same"] > total / 2);
  }

  void bytesOfOtherEncodingsAreShownAsBefore_data() {
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("Latin-1 that passes for Shift JIS") << QByteArray("\xC4pfel");
    QTest::newRow("Shift JIS") << QByteArray("\x93\xFA\x96{");
    QTest::newRow("no encoding at all") << QByteArray("\xFF\x80\xFD\xA0\xFF");
  }
  void bytesOfOtherEncodingsAreShownAsBefore() {
    QFETCH(QByteArray, shown);
    const QTemporaryDir folder;
    const QString from = folder.filePath("a.eps");
    write(from, "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 60\n%%Title: " + shown +
                    "\n%%EndComments\n/L /Helvetica findfont dup length dict copy dup /Encoding "
                    "ISOLatin1Encoding put "
                    "definefont 40 scalefont setfont 5 15 moveto (" +
                    shown + ") show showpage\n%%EOF\n");
    for (const QString format : {"eps-preview", "epsi"}) {
      const QString to = folder.filePath(format + ".eps");
      QCOMPARE(kit::norvex({"convert", from, "-o", to, "--format", format}).exitCode, 0);
      QVERIFY(!drawn(from).isNull());
      QCOMPARE(drawn(to), drawn(from));
      QCOMPARE(kit::norvex({"info", to}).exitCode, 0);
    }
  }

  void whatAPictureSaysIsNotRun() {
    const QTemporaryDir folder;
    const QString svg = folder.filePath("a.svg"), pdf = folder.filePath("a.pdf");
    write(svg, "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'><title>a&#10;" + kPayload +
                   "&#x2028;" + kPayload + "</title><desc>b&#13;" + kPayload +
                   "</desc><rect width='9' height='9'/></svg>");
    QCOMPARE(kit::norvex({"convert", svg, "-o", pdf}).exitCode, 0);  // its title comes along
    for (const QString& from : {svg, pdf})
      for (const char* format : {"eps", "eps-preview", "epsi"})
        for (const QStringList& more : {QStringList(), QStringList{"--crop", "0,0,5,5"}}) {
          const QString to = folder.filePath("b.eps");
          QCOMPARE(kit::norvex(QStringList{"convert", from, "-o", to, "--force", "--format", format} + more)
                       .exitCode,
                   0);
          const kit::Ran ran =
              kit::run("gs", {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-q", "-sDEVICE=nullpage", to}, {}, 60);
          QCOMPARE(ran.out + ran.err, QByteArray());
          QCOMPARE(ran.exitCode, 0);
          QVERIFY(read(to).contains("%%Title: a " + kPayload));
        }
  }

 private:
  static QStringList outcomesOf(const QStringList& files, const QJsonArray& objects) {
    QThreadPool pool;
    pool.setMaxThreadCount(2);
    QList<qsizetype> places(files.size());
    std::iota(places.begin(), places.end(), 0);
    return QtConcurrent::blockingMapped<QStringList>(
        &pool, places, [&](qsizetype i) { return outcomeOf(files[i], objects[i].toObject()); });
  }

  static void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write test data");
  }
  static QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

NORVEX_TEST(EpsSamenessTest)
#include "eps_sameness_test.moc"
