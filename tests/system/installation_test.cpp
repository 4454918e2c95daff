// The program as it is installed: another place than it was built in, without the build folder, the way the
// desktop finds and starts it.
#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <utility>

#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

QString missing(const char* program) {
  return QStandardPaths::findExecutable(QLatin1String(program)).isEmpty() ? QLatin1String(program)
                                                                          : QString();
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// As a file manager starts a thumbnailer: nothing in the environment, no home, no session bus.
Ran runBare(const QStringList& command, const QString& programs, int seconds = 30) {
  return kit::run("env", QStringList{"-i", "PATH=" + programs + ":/usr/bin:/bin"} + command, {}, seconds);
}

}  // namespace

class InstallationTest : public QObject {
  Q_OBJECT

  QTemporaryDir root_;
  QTemporaryDir work_;

  QString installed(const QString& path) const { return root_.filePath("usr/" + path); }
  QString out(const QString& name) const { return work_.filePath(name); }

  /// The line of the thumbnailer's entry with its fields filled in.
  QStringList thumbnailCommand(const QString& file, const QString& output) const {
    QStringList command;
    for (const QByteArray& line : bytesOf(installed("share/thumbnailers/norvex.thumbnailer")).split('\n'))
      if (line.startsWith("Exec=")) command = QString::fromUtf8(line.mid(5)).split(' ');
    command.replaceInStrings("%s", "256").replaceInStrings("%i", file).replaceInStrings("%o", output);
    return command.replaceInStrings("%u", QUrl::fromLocalFile(file).toEncoded());
  }

 private slots:
  void initTestCase() {
    const Ran ran = kit::run("cmake", {"--install", NORVEX_BUILD_DIR, "--prefix", installed("")}, {}, 120);
    QVERIFY2(ran.exitCode == 0, ran.err.constData());
  }

  void aPrefixKeepsEverythingBelowIt() {
    const QStringList folders = QDir(root_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QCOMPARE(folders, QStringList{"usr"});
    QCOMPARE(QDir(installed("")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList({"bin", "libexec", "share"}));
  }

  void noProgramLooksIntoTheBuildFolder() {
    const QStringList parts = QDir(installed("libexec/norvex")).entryList(QDir::Files);
    QVERIFY(parts.size() >= 12);
    for (const QString& part : parts) {
      const Ran dynamic = kit::run("readelf", {"-d", installed("libexec/norvex/" + part)});
      QCOMPARE(dynamic.exitCode, 0);
      QVERIFY2(!dynamic.out.contains(NORVEX_BUILD_DIR), qPrintable(part));
    }
  }

  void commandsFindWhatStandsInForLibraries() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("a sanitized program has every library linked");
#endif
    const Ran libraries = kit::run("ldd", {installed("libexec/norvex/norvex-commands.so")});
    QCOMPARE(libraries.exitCode, 0);
    QVERIFY2(libraries.out.contains(installed("libexec/norvex/stand-ins/windows").toUtf8()), libraries.out);
  }

  void theInterpreterFindsWhatStandsInForLibrariesAndFiles() {
    const Ran libraries = kit::run("ldd", {installed("libexec/norvex/norvex-postscript")});
    QCOMPARE(libraries.exitCode, 0);
    for (const char* name : {"libX11.so.6", "libXt.so.6", "libcups.so.2", "libtiff.so.6"})
      QVERIFY2(libraries.out.contains(installed("libexec/norvex/stand-ins/").toUtf8() + name), name);
    const QStringList files =
        QDir(QStringLiteral(NORVEX_SOURCE_DIR "/src/resources/without-pdf")).entryList({"*.ps"});
    QVERIFY(!files.isEmpty());
    QCOMPARE(QDir(installed("libexec/norvex/without-pdf")).entryList(QDir::Files), files);
  }

  void itConvertsEveryKind_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("format");
    for (const char* sample : {"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps", "lighthouse-cs.ai"})
      for (const char* format : {"png", "pdf", "eps"})
        QTest::addRow("%s to %s", sample, format) << QString(sample) << QString(format);
  }
  void itConvertsEveryKind() {
    QFETCH(QString, sample);
    QFETCH(QString, format);
    const QString file = out("converted." + format);
    const Ran ran = runBare({"norvex", "convert", "--force", "--quiet", kit::sample(sample), "-o", file},
                            installed("bin"), 120);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
    QVERIFY(QFileInfo(file).size() > 100);
  }

  void itIsFoundThroughALink() {
    QVERIFY(QFile::link(installed("bin/norvex"), out("viewer")));
    const Ran ran = kit::run(out("viewer"), {"info", kit::sample("lighthouse.svg")});
    QCOMPARE(ran.exitCode, 0);
    QVERIFY(ran.out.contains("lighthouse"));
  }

  void theThumbnailersLineDrawsEveryKind_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<bool>("isPreview");
    for (const char* sample : {"lighthouse.eps", "lighthouse.pdf", "lighthouse.svg", "lighthouse.svgz",
                               "lighthouse-cs.ai", "lighthouse-8.ai"})
      QTest::newRow(sample) << QString(sample) << false;
    for (const char* sample : {"lighthouse-preview.eps", "lighthouse.epsi"})
      QTest::newRow(sample) << QString(sample) << true;
  }
  void theThumbnailersLineDrawsEveryKind() {
    QFETCH(QString, sample);
    QFETCH(bool, isPreview);
    const QString file = out(QString::fromUtf8("ä ") + sample);
    QVERIFY(QFile::copy(kit::sample(sample), file));
    const QString png = out("thumbnail.png");
    QFile::remove(png);
    const Ran ran = runBare(thumbnailCommand(file, png), installed("bin"));
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
    const QImage image(png, "PNG");
    const int side = std::max(image.width(), image.height());
    QVERIFY2(isPreview ? side > 1 && side <= 256 : side == 256, qPrintable(QString::number(side)));
    QCOMPARE(image.text("Thumb::URI"), QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded()));
  }

  void aDamagedFileLeavesNoThumbnail() {
    const QByteArray whole = bytesOf(kit::sample("lighthouse.pdf"));
    QFile damaged(out("damaged.pdf"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write(whole.left(300));
    damaged.close();
    const Ran ran = runBare(thumbnailCommand(damaged.fileName(), out("none.png")), installed("bin"));
    QCOMPARE(ran.exitCode, 3);
    QCOMPARE(ran.err.count('\n'), 1);
    QVERIFY(!QFile::exists(out("none.png")));
  }

  void aProgramWithoutAnEndIsStoppedAndTold() {
    QFile endless(out("endless.eps"));
    QVERIFY(endless.open(QIODevice::WriteOnly));
    endless.write("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n%%EndComments\n{} loop\nshowpage\n");
    endless.close();
    const Ran ran = runBare(thumbnailCommand(endless.fileName(), out("none.png")), installed("bin"));
    QCOMPARE(ran.exitCode, 5);
    QVERIFY(!QFile::exists(out("none.png")));
  }

  void theDesktopsOwnCheckersAgree() {
    const QString desktop = installed("share/applications/com.norvex.Norvex.desktop");
    const QString catalogue = installed("share/metainfo/com.norvex.Norvex.metainfo.xml");
    if (!missing("desktop-file-validate").isEmpty()) QSKIP("desktop-file-validate is not installed");
    const Ran entry = kit::run("desktop-file-validate", {"--warn-kde", desktop});
    QCOMPARE(entry.out + entry.err, QByteArray());
    QCOMPARE(entry.exitCode, 0);
    if (!missing("appstreamcli").isEmpty()) QSKIP("appstreamcli is not installed");
    const Ran told = kit::run("appstreamcli", {"validate", "--no-net", catalogue});
    QVERIFY2(told.exitCode == 0, told.out.constData());
  }

  void theKindsOfFilesAreKnownByTheirFirstBytes() {
    if (!missing("update-mime-database").isEmpty()) QSKIP("update-mime-database is not installed");
    const Ran ran = kit::run("update-mime-database", {"-n", installed("share/mime")});
    QCOMPARE(ran.exitCode, 0);
    QVERIFY(bytesOf(installed("share/mime/globs")).contains("image/x-eps:*.epi"));
    QVERIFY(bytesOf(installed("share/mime/magic")).contains("Adobe Illustrator"));
  }

  void theBusStartsItAndHandsItTheFile() {
    for (const char* program : {"dbus-run-session", "gdbus"})
      if (!missing(program).isEmpty()) QSKIP(program);
    const QString file = out("opened.svg"), home = out("home");
    QVERIFY(QFile::copy(kit::sample("lighthouse.svg"), file) && QDir().mkpath(home));
    // The program has the file open when its bus ends, and no display with which it would end.
    const QString call = QStringLiteral(
        "end() { kill $(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus "
        "--method org.freedesktop.DBus.GetConnectionUnixProcessID com.norvex.Norvex | sed 's/.*uint32 //; "
        "s/,.*//'); }; trap end EXIT; "
        "gdbus call --session --dest com.norvex.Norvex --object-path /com/norvex/Norvex --method "
        "org.freedesktop.Application.Open \"['file://$1']\" '{}' && for i in $(seq 100); do grep -qs "
        "opened.svg "
        "-r \"$HOME\" && exit 0; sleep .1; done; exit 1");
    const Ran ran =
        kit::run("dbus-run-session", {"--", "bash", "-c", call, "bash", file}, {}, 60,
                 {"XDG_DATA_DIRS=" + installed("share"), "QT_QPA_PLATFORM=offscreen", "HOME=" + home,
                  "XDG_CONFIG_HOME=" + home, "XDG_STATE_HOME=" + home, "XDG_DATA_HOME=" + home});
    QVERIFY2(ran.exitCode == 0, ran.err.constData());
  }
};

NORVEX_TEST(InstallationTest)
#include "installation_test.moc"
