// The rooms of src/ and tests/: how much stands in one, and that the page that draws them is up to date.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>

#include "kit/test_main.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");
constexpr int kLargestRoom = 35;

QMap<QString, int> filesByFolder(const QString& below) {
  QMap<QString, int> counts;
  QDirIterator it(kRoot + below, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) ++counts[QDir(kRoot).relativeFilePath(QFileInfo(it.next()).path())];
  return counts;
}

/// The header of the first #include line, with its quotes or brackets.
QString firstInclude(const QString& path) {
  static const QRegularExpression include(QStringLiteral("^#include (\\S+)"),
                                          QRegularExpression::MultilineOption);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return include.match(QString::fromUtf8(file.readAll())).captured(1);
}

}  // namespace

class RoomsTest : public QObject {
  Q_OBJECT
 private slots:
  void noRoomIsAWarehouse() {
    QStringList wrong;
    for (const char* tree : {"src", "tests"}) {
      const QMap<QString, int> counts = filesByFolder(tree);
      QVERIFY(counts.size() > 20);
      for (auto it = counts.begin(); it != counts.end(); ++it)
        if (it.value() > kLargestRoom) wrong << QStringLiteral("%1: %2 files").arg(it.key()).arg(it.value());
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  /// It is how a build without precompiled headers shows that the header needs nothing before it.
  void everySourceIncludesItsOwnHeaderFirst() {
    QStringList wrong;
    int pairs = 0;
    QDirIterator it(kRoot + "src", {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
      const QString source = it.next();
      const QString header = source.chopped(4) + ".h";
      if (!QFileInfo::exists(header)) continue;
      ++pairs;
      const QString name = '"' + QDir(kRoot + "src").relativeFilePath(header) + '"';
      if (firstInclude(source) != name) wrong << source;
    }
    QVERIFY(pairs > 100);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

  void thePageOfTheArchitectureShowsTheFoldersAsTheyAre() {
    QProcess drawing;
    drawing.start(kRoot + "scripts/draw-folders", {"--check"});
    QVERIFY(drawing.waitForFinished(-1));
    const QByteArray said = drawing.readAllStandardError();
    QVERIFY2(drawing.exitStatus() == QProcess::NormalExit && drawing.exitCode() == 0, said.constData());
  }

  void theFilesThatThePagesNameAreThere() {
    static const QRegularExpression named(
        QStringLiteral("`((?:src|tests|scripts|docs|cmake|\\.ci)/[a-z0-9_/.-]+)`"));
    QStringList wrong;
    int seen = 0;
    for (const char* page : {"ARCHITECTURE.md", "CONTRIBUTING.md", "README.md"}) {
      QFile file(kRoot + page);
      QVERIFY(file.open(QIODevice::ReadOnly));
      auto matches = named.globalMatch(QString::fromUtf8(file.readAll()));
      for (; matches.hasNext(); ++seen)
        if (const QString path = matches.next().captured(1); !QFileInfo::exists(kRoot + path))
          wrong << page + QStringLiteral(": ") + path;
    }
    QVERIFY(seen > 30);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }
};

NORVEX_TEST(RoomsTest)
#include "rooms_test.moc"
