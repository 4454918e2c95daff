// Real files by many producers, where a folder of them stands beside the project: each is told about, drawn
// and, when it is asked for, converted into everything and back.
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <random>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/real_files.h"

using namespace norvex;

namespace {

/// How often each thing was seen, by the kind of file.
using Counts = QMap<QString, QMap<QString, int>>;

QString kindOf(const QString& file) {
  return QFileInfo(QFileInfo(file).path()).fileName();
}

QStringList kinds() {
  return real::folders().keys();
}

void print(const QString& line) {
  std::printf("%s\n", qPrintable(line));
}

void print(const QString& title, const Counts& counts) {
  print(title);
  for (auto kind = counts.begin(); kind != counts.end(); ++kind)
    for (auto what = kind->begin(); what != kind->end(); ++what)
      print(QString("  %1 %2  %3").arg(kind.key(), -12).arg(what.value(), 5).arg(what.key()));
  std::fflush(stdout);
}

/// For each other program: it may have to share a busy machine.
constexpr int kSeconds = 60;

/// A sentence without what differs from file to file, so that it can be counted.
QString reason(QString sentence) {
  static const QRegularExpression number("[0-9]+");
  static const QRegularExpression path("/\\S+");
  return sentence.replace(path, "…").replace(number, "#").left(110);
}

QJsonArray objectsIn(const QByteArray& json) {
  return QJsonDocument::fromJson(json).array();
}

bool isOneSentence(const QString& text) {
  return !text.trimmed().isEmpty() && !text.contains(u'\n');
}

}  // namespace

class CorpusTest : public QObject {
  Q_OBJECT
 public:
  CorpusTest() {
    // Neither a large sample nor the round trip is a hang, however long it takes.
    if (qEnvironmentVariableIsSet("NORVEX_ROUND_TRIP") || qEnvironmentVariableIsSet("NORVEX_SAMPLE"))
      qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
  }

 private slots:
  void init() {
    if (kit::corpusFolder().isEmpty())
      QSKIP("there is no folder of real files here (NORVEX_CORPUS names one)");
  }

  void everyFileIsKnownOrToldWhyNot() {
    const QStringList files = allFiles();
    const kit::Ran ran = kit::norvex(QStringList{"info", "--json"} + files, {}, 240);
    QVERIFY(!ran.crashed);
    QVERIFY(ran.exitCode == 0 || ran.exitCode == 1);
    const QJsonArray all = objectsIn(ran.out);
    QCOMPARE(all.size(), files.size());
    Counts counts;
    const QStringList known{"SVG", "EPS", "Illustrator", "PDF", "other"};
    for (qsizetype i = 0; i < files.size(); ++i) {
      const QJsonObject object = all[i].toObject();
      QCOMPARE(object["file"].toString(), files[i]);
      const QString error = object["error"].toString();
      QVERIFY2(object.contains("error") ? isOneSentence(error) : known.contains(object["kind"].toString()),
               qPrintable(files[i]));
      QVERIFY2(!error.contains("process"), qPrintable(files[i] + ": " + error));
      ++counts[kindOf(files[i])][error.isEmpty() ? "known as " + object["kind"].toString() : reason(error)];
    }
    print("information:", counts);
  }

  void everyFileIsDrawnOrToldWhyNot() {
    Counts counts;
    QStringList died;
    for (const QString& kind : kinds()) {
      const QStringList files = real::files(kind);
      QTemporaryDir folder;
      const kit::Ran ran =
          kit::norvex(QStringList{"convert", "--json", "--quiet", "--format", "png", "--dpi", "24",
                                  "--timeout", "10", "--jobs", "2", "--to", folder.path()} +
                          files,
                      {}, 280);
      QVERIFY(!ran.crashed);
      const QJsonArray all = objectsIn(ran.out);
      QCOMPARE(all.size(), files.size());
      int failed = 0;
      for (qsizetype i = 0; i < files.size(); ++i) {
        const QJsonObject object = all[i].toObject();
        const QString error = object["error"].toString();
        const QByteArray png = firstBytes(object["output"].toString());
        QVERIFY2(error.isEmpty() ? png.startsWith("\x89PNG") : png.isEmpty(), qPrintable(files[i]));
        ++counts[kind][error.isEmpty() ? QStringLiteral("drawn") : reason(error)];
        if (error.isEmpty()) continue;
        ++failed;
        QVERIFY2(isOneSentence(error), qPrintable(files[i]));
        if (error.contains("process")) died << files[i] + ": " + error;
      }
      // One line a failure, no other word.
      QCOMPARE(ran.err.count('\n'), failed);
    }
    print("drawn:", counts);
    QVERIFY2(died.isEmpty(), qPrintable(died.join("\n")));
  }

  /// Eight files; NORVEX_SAMPLE=60 takes sixty, NORVEX_SEED others. Everybody who knows a format accepts
  /// what is made of them, or refuses the source too.
  void aSampleInEveryFormatIsAcceptedByOtherPrograms() {
    const int wanted =
        qEnvironmentVariableIsSet("NORVEX_SAMPLE") ? qEnvironmentVariableIntValue("NORVEX_SAMPLE") : 8;
    std::mt19937 chance(quint32(qEnvironmentVariableIntValue("NORVEX_SEED")) + 1);
    RoundTrip trip;
    trip.looks = false;
    const QStringList all = drawnKinds();
    for (qsizetype k = 0; k < all.size(); ++k) {
      QStringList files = real::files(all[k]);
      std::shuffle(files.begin(), files.end(), chance);
      // As many of each kind, and one more of the first ones.
      files.resize(std::min(files.size(), (wanted + all.size() - 1 - k) / all.size()));
      if (!files.isEmpty()) convertIntoAll(all[k], files, trip);
    }
    QVERIFY(trip.written >= wanted);
    tell(trip);
    QVERIFY2(trip.refused.isEmpty(), qPrintable(trip.refused.join("\n")));
  }

  /// Takes long: NORVEX_ROUND_TRIP=1 asks for it, NORVEX_ROUND_TRIP=5 for every fifth file of each kind.
  /// Prints; fails on results that other programs do not accept.
  void everyFileBecomesEveryFormat() {
    const int step = qEnvironmentVariableIntValue("NORVEX_ROUND_TRIP");
    if (step < 1) QSKIP("takes long: NORVEX_ROUND_TRIP=1 asks for it");
    RoundTrip trip;
    for (const QString& kind : drawnKinds()) {
      QStringList files;
      const QStringList all = real::files(kind);
      for (qsizetype i = 0; i < all.size(); i += step) files << all[i];
      convertIntoAll(kind, files, trip);
    }
    tell(trip);
    print(QString("%1 results look unlike their source (mean difference above 3 %, of a GIF above 5 %):")
              .arg(trip.unlike.size()));
    for (const QString& line : trip.unlike) print("  " + line);
    std::fflush(stdout);
    QCOMPARE(trip.refused.size(), 0);
  }

 private:
  struct RoundTrip {
    bool looks = true;  ///< sources and results are drawn and compared
    Counts counts;
    int written = 0;
    QStringList refused, unlike;
  };
  static void tell(const RoundTrip& trip) {
    print("conversions:", trip.counts);
    print(QString("%1 results, %2 of them not accepted:").arg(trip.written).arg(trip.refused.size()));
    for (const QString& line : trip.refused) print("  " + line);
    std::fflush(stdout);
  }
  /// Without the files that were made to be refused.
  static QStringList drawnKinds() {
    QStringList all = kinds();
    all.removeAll("hostile");
    return all;
  }
  void convertIntoAll(const QString& kind, const QStringList& files, RoundTrip& trip) {
    for (const QString& format : outside::writtenFormats()) convertAll(kind, files, format, trip);
  }

  struct Outcome {
    QString complaint;
    double different = 0;
    bool compared = false;
    double finer = 0;  ///< of what is unlike at 72 pixels an inch, the difference at 288
  };

  static QStringList allFiles() {
    QStringList files;
    for (const QString& kind : kinds()) files += real::files(kind);
    return files;
  }

  static QByteArray firstBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(8) : QByteArray();
  }

  /// How other programs draw the files of the corpus; each is asked once.
  const QHash<QString, QImage>& drawnSources(const QStringList& files) {
    QStringList missing;
    for (const QString& file : files)
      if (!sources_.contains(file)) missing << file;
    if (missing.isEmpty()) return sources_;
    sources_.clear();
    const auto images = QtConcurrent::blockingMapped<QList<QImage>>(&pool_, missing, [](const QString& file) {
      return outside::drawnOutside(file, real::formatOf(file), kSeconds);
    });
    for (qsizetype i = 0; i < missing.size(); ++i) sources_.insert(missing[i], images[i]);
    return sources_;
  }

  /// What those that judge the result say of the source.
  static QString complaintAboutSource(const QString& file, const QString& format,
                                      const QString& resultFormat) {
    if (format == "eps" && resultFormat == "eps-preview")
      if (const QString refused = outside::complaintOf("epstool", {"--quiet", "--test-eps", file}, kSeconds);
          !refused.isEmpty())
        return refused;
    return outside::complaintAbout(file, format, kSeconds);
  }

  void convertAll(const QString& kind, const QStringList& files, const QString& format, RoundTrip& trip) {
    pool_.setMaxThreadCount(2);
    QTemporaryDir folder;
    const kit::Ran ran = kit::norvex(QStringList{"convert", "--json", "--quiet", "--format", format,
                                                 "--timeout", "20", "--jobs", "2", "--to", folder.path()} +
                                         files,
                                     {}, 3600);
    QVERIFY(!ran.crashed);
    const QJsonArray all = objectsIn(ran.out);
    QCOMPARE(all.size(), files.size());
    const auto& sources = drawnSources(trip.looks ? files : QStringList());
    QList<qsizetype> places(files.size());
    std::iota(places.begin(), places.end(), 0);
    const auto outcomes = QtConcurrent::blockingMapped<QList<Outcome>>(&pool_, places, [&](qsizetype i) {
      const QJsonObject object = all[i].toObject();
      Outcome outcome;
      if (object.contains("error")) return outcome;
      // What is handed on as it is may have the source's own faults.
      const QString to = object["output"].toString();
      const QString complaint = outside::complaintAbout(to, format, kSeconds);
      if (!complaint.isEmpty() && complaintAboutSource(files[i], real::formatOf(files[i]), format).isEmpty())
        outcome.complaint = complaint;
      if (sources.value(files[i]).isNull() || hasNoPostScript(object)) return outcome;
      outcome.compared = true;
      outcome.different =
          outside::difference(sources.value(files[i]), outside::drawnOutside(to, format, kSeconds));
      if (isUnlike(outcome, format)) outcome.finer = finerDifference(files[i], to, format);
      return outcome;
    });
    for (qsizetype i = 0; i < files.size(); ++i) {
      const QString error = all[i].toObject()["error"].toString();
      QString what = error.isEmpty() ? QStringLiteral("written") : reason(error);
      if (hasNoPostScript(all[i].toObject())) what = QStringLiteral("written without PostScript");
      ++trip.counts[kind + " → " + format][what];
      if (!error.isEmpty()) continue;
      ++trip.written;
      const QString name = kind + '/' + QFileInfo(files[i]).fileName() + " → " + format + ": ";
      if (!outcomes[i].complaint.isEmpty() && !hasNoPostScript(all[i].toObject()))
        trip.refused << name + outcomes[i].complaint;
      if (!outcomes[i].compared) continue;
      ++trip.counts[kind + " → " + format]["compared"];
      if (!isUnlike(outcomes[i], format)) continue;
      trip.unlike << name + QString("%1 %, at 288: %2 %")
                                .arg(outcomes[i].different * 100, 0, 'f', 1)
                                .arg(outcomes[i].finer * 100, 0, 'f', 1);
      print("  " + trip.unlike.last());
    }
    if (trip.looks) print(QString("%1 → %2 done").arg(kind, format));
    std::fflush(stdout);
  }

  static bool isUnlike(const Outcome& outcome, const QString& format) {
    return outcome.different > (format == "gif" ? 0.05 : 0.03);
  }

  /// Edges weigh less the finer a picture is drawn; what is another picture stays as far away.
  static double finerDifference(const QString& file, const QString& result, const QString& format) {
    const QTemporaryDir folder;
    QString fine = result;
    if (isRaster(formatNamed(format.toStdString()).value())) {
      fine = folder.filePath("fine." + format);
      kit::norvex({"convert", file, "-o", fine, "--format", format, "--dpi", "288", "--timeout", "60"});
    }
    return outside::difference(outside::drawnOutside(file, real::formatOf(file), 60, 288),
                               outside::drawnOutside(fine, format, 60, 288));
  }

  static bool hasNoPostScript(const QJsonObject& object) {
    for (const QJsonValue& warning : object["warnings"].toArray())
      if (warning.toString().contains("no PostScript")) return true;
    return false;
  }

  QThreadPool pool_;
  QHash<QString, QImage> sources_;
};

NORVEX_TEST(CorpusTest)
#include "corpus_test.moc"
