// The Flatpak's manifest: what can be known of it without building it.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QVersionNumber>

#include "kit/test_main.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");
const QString kPackaging = kRoot + "packaging/";
const QString kFlatpak = kPackaging + "flatpak/";

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the first group matches, everywhere in the text.
QStringList allOf(const QString& pattern, const QString& text) {
  const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
  QStringList found;
  for (auto match = expression.globalMatch(text); match.hasNext();) found << match.next().captured(1);
  return found;
}

QString manifest() {
  return textOf(kFlatpak + "com.norvex.Norvex.yaml");
}
QString readMe() {
  return textOf(kFlatpak + "README.md");
}

/// The value of a key of the outermost level; it stands there once.
QString valueOf(const QString& key) {
  const QStringList values = allOf("^" + key + ": '?([^'\\n]+)'?$", manifest());
  return values.size() == 1 ? values.first() : QString();
}

struct Archive {
  QString url, sum;
};

/// In the manifest's order. A sum stands in the line below its address.
QList<Archive> archives() {
  static const QRegularExpression source(QStringLiteral("^ +url: (\\S+)$(?:\\n +sha256: (\\S*)$)?"),
                                         QRegularExpression::MultilineOption);
  QList<Archive> found;
  for (auto match = source.globalMatch(manifest()); match.hasNext();) {
    const QRegularExpressionMatch one = match.next();
    found << Archive{one.captured(1), one.captured(2)};
  }
  return found;
}

/// The names by which the build looks for libraries.
QStringList librariesOfTheBuild() {
  const QString build = textOf(kRoot + "CMakeLists.txt");
  QStringList names;
  for (const QString& modules : allOf("^pkg_check_modules\\(\\w+ REQUIRED IMPORTED_TARGET ([^)]+)\\)", build))
    names << modules.split(' ');
  names << allOf("^find_library\\(\\w+ (\\w+) REQUIRED\\)", build);
  names << allOf("^find_package\\((\\w+) [^)]*REQUIRED", build)
        << allOf("^find_package\\((\\w+) REQUIRED\\)", build);
  names.removeAll("PkgConfig");
  return names;
}

}  // namespace

class FlatpakTest : public QObject {
  Q_OBJECT
 private slots:
  void itsNameIsThatOfEverythingInstalled() {
    const QString id = valueOf("id");
    QCOMPARE(id, QStringLiteral("com.norvex.Norvex"));
    const QString entry = textOf(kPackaging + id + ".desktop");
    const QString catalogue = textOf(kPackaging + id + ".metainfo.xml.in");
    QCOMPARE(allOf("^Icon=(.*)$", entry), QStringList{id});
    QCOMPARE(allOf("<id>(.*)</id>", catalogue), QStringList{id});
    QCOMPARE(allOf("<launchable type=\"desktop-id\">(.*)</launchable>", catalogue),
             QStringList{id + ".desktop"});
    QCOMPARE(allOf("^Name=(.*)$", textOf(kPackaging + id + ".service.in")), QStringList{id});
    for (const char* icon : {".svg", "-symbolic.svg"})
      QVERIFY(QFile::exists(kPackaging + "icons/" + id + icon));
    QVERIFY(textOf(kPackaging + "CMakeLists.txt").contains("RENAME " + id + ".png"));
  }

  void itsCommandIsThatOfTheDesktopEntry() {
    const QStringList lines = allOf("^Exec=(\\S+)", textOf(kPackaging + "com.norvex.Norvex.desktop"));
    QVERIFY(!lines.isEmpty());
    for (const QString& program : lines) QCOMPARE(program, valueOf("command"));
  }

  void itsRuntimeHasAQtThatTheBuildAccepts() {
    QCOMPARE(valueOf("runtime"), QStringLiteral("org.kde.Platform"));
    QCOMPARE(valueOf("sdk"), QStringLiteral("org.kde.Sdk"));
    const auto offered = QVersionNumber::fromString(valueOf("runtime-version"));
    const QStringList asked =
        allOf("^find_package\\(Qt6 ([\\d.]+) REQUIRED", textOf(kRoot + "CMakeLists.txt"));
    QCOMPARE(asked.size(), 1);
    const auto least = QVersionNumber::fromString(asked.first());
    QCOMPARE(offered.majorVersion(), least.majorVersion());
    QVERIFY(offered >= least);
  }

  void everyArchiveHasAnAddressAndASumOrIsToldAsMissing() {
    static const QRegularExpression sum(QStringLiteral("\\A[0-9a-f]{64}\\z"));
    QCOMPARE(archives().size(), allOf("^ +- type: (archive)$", manifest()).size());
    QVERIFY(archives().size() >= 5);
    QSet<QString> sums;
    QStringList wrong;
    for (const Archive& archive : archives()) {
      const bool isTold = readMe().contains("missing: " + archive.url);
      const bool isSummed =
          sum.match(archive.sum).hasMatch() && QSet(archive.sum.begin(), archive.sum.end()).size() > 8;
      if (!archive.url.startsWith("https://") || isSummed == isTold) wrong << archive.url;
      if (isSummed) sums << archive.sum;
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    QCOMPARE(sums.size() + readMe().count("missing: http"), archives().size());
  }

  void thePageSaysWhereEverySumComesFrom() {
    const QString page = readMe().section("## Sums", 1).section("\n## ", 0, 0);
    QCOMPARE(allOf("^\\| .* \\| (.*(?:computed|published|missing).*) \\|$", page).size(), archives().size());
    for (const Archive& archive : archives())
      QVERIFY2(page.contains(archive.url.section('/', -1) + " |"), qPrintable(archive.url));
  }

  void everyLibraryOfTheBuildComesFromSomewhere() {
    const QStringList modules = allOf("^  - name: (\\S+)$", manifest());
    QHash<QString, QString> origins;
    static const QRegularExpression row(QStringLiteral("^\\| ([^|]+) \\| (runtime|module [^|]+) \\|$"),
                                        QRegularExpression::MultilineOption);
    for (auto match = row.globalMatch(readMe()); match.hasNext();) {
      const QRegularExpressionMatch one = match.next();
      for (const QString& name : one.captured(1).split(", ")) origins[name] = one.captured(2);
    }
    const QStringList libraries = librariesOfTheBuild();
    QVERIFY(libraries.size() > 20);
    for (const QString& library : libraries) QVERIFY2(origins.contains(library), qPrintable(library));
    QSet<QString> named;
    for (const QString& origin : std::as_const(origins))
      if (origin.startsWith("module ")) named << origin.section(QRegularExpression("[ ,]+"), 1, 1);
    for (const QString& module : std::as_const(named)) QVERIFY2(modules.contains(module), qPrintable(module));
    // Our own, and what belongs to Poppler, are told elsewhere.
    QCOMPARE(QSet(modules.begin(), modules.end()) - named, QSet<QString>({"norvex", "poppler-data"}));
  }

  void theBuildIsToldWhereTheModulesPutThingsAndItsSourcesStayAsTheyAre() {
    QCOMPARE(allOf("^ +- type: (patch)$", manifest()), QStringList());
    QCOMPARE(allOf("^ +- -DNORVEX_PACKAGES_PREFIX=(\\S+)$", manifest()), QStringList{"/app"});
    QCOMPARE(allOf("^set\\(NORVEX_PACKAGES_PREFIX (\\S+) CACHE STRING", textOf(kRoot + "CMakeLists.txt")),
             QStringList{"/usr"});
  }

  /// Every file and folder that the programs know by name and that the modules bring: below the prefix that
  /// the build is told, nowhere below /usr.
  void whatTheModulesBringIsLookedForWhereItIs() {
    QStringList below, fixed;
    QDirIterator files(kRoot + "src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      const QString text = textOf(files.next());
      below << allOf("NORVEX_PACKAGES_PREFIX\\s+\"([^\"]*)\"", text);
      fixed << allOf("\"(/usr/(?:share/(?:poppler|ghostscript|color)|bin/gs)[^\"]*)\"", text);
    }
    QCOMPARE(fixed, QStringList());
    for (const char* path :
         {"/lib", "/bin/gs", "/share/fonts", "/share/poppler", "/share/ghostscript", "/share/color"})
      QVERIFY2(below.contains(QLatin1String(path)), path);
    const QStringList profiles = below.filter(QRegularExpression("\\.icc$"));
    QVERIFY(!profiles.isEmpty());
    for (const QString& profile : profiles)
      QVERIFY2(manifest().contains("/app" + profile), qPrintable(profile));
  }

  /// Its own program names every key that it does not know.
  void flatpaksOwnProgramTakesItWithoutRemarks() {
    if (QStandardPaths::findExecutable("flatpak-builder").isEmpty())
      QSKIP("flatpak-builder is not installed");
    QProcess builder;
    builder.start("flatpak-builder", {"--show-manifest", kFlatpak + "com.norvex.Norvex.yaml"});
    QVERIFY(builder.waitForFinished());
    QCOMPARE(builder.readAllStandardError(), QByteArray());
    QCOMPARE(builder.exitCode(), 0);
    const QJsonObject shown = QJsonDocument::fromJson(builder.readAllStandardOutput()).object();
    QCOMPARE(shown["id"].toString(), valueOf("id"));
    QCOMPARE(shown["modules"].toArray().size(), allOf("^  - (name): ", manifest()).size());
  }

  void itMayTouchNoMoreThanThePageTells() {
    const QStringList all = allOf("^  - (--\\S+)$", manifest());
    const QSet<QString> permitted{"--socket=wayland",        "--socket=fallback-x11", "--share=ipc",
                                  "--socket=cups",           "--filesystem=home",     "--filesystem=/media",
                                  "--filesystem=/run/media", "--filesystem=/mnt"};
    QCOMPARE(QSet(all.begin(), all.end()), permitted);
  }
};

NORVEX_TEST(FlatpakTest)
#include "flatpak_test.moc"
