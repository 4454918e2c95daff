// The programs and their parts: where they are looked for, and what happens when one of them is not there.
#include <QImage>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTransform>

#include <cmath>

#include "kit/program.h"
#include "kit/test_main.h"
#include "system/x_session.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QStringList kParts{"norvex",
                         "norvex-worker",
                         "norvex-postscript",
                         "norvex-application.so",
                         "norvex-commands.so",
                         "norvex-engine-facts.so",
                         "norvex-engine-svg.so",
                         "norvex-engine-svg-pdf.so",
                         "norvex-engine-pages.so",
                         "norvex-engine-all.so",
                         "norvex-picture-facts",
                         "norvex-picture-svg",
                         "norvex-picture-svg-pdf",
                         "norvex-picture-pages",
                         "norvex-picture-all"};

}  // namespace

class PartsTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { folder_ = std::make_unique<QTemporaryDir>(); }

  void namesThatLieAreConverted_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("format");
    const QHash<QString, QString> names{
        {"lighthouse.svg", "a.pdf"}, {"lighthouse.pdf", "a.svg"}, {"lighthouse.eps", "a.svg"}};
    for (auto i = names.begin(); i != names.end(); ++i)
      for (const char* format : {"png", "pdf", "eps"})
        QTest::addRow("%s as %s to %s", qPrintable(i.key()), qPrintable(i.value()), format)
            << i.key() << i.value() << QString(format);
  }
  void namesThatLieAreConverted() {
    QFETCH(QString, sample);
    QFETCH(QString, name);
    QFETCH(QString, format);
    QVERIFY(QFile::copy(kit::sample(sample), path(name)));
    const Ran ran = kit::norvex({"convert", path(name), "-o", path("out." + format), "--quiet"});
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
    const Ran told = kit::norvex({"convert", kit::sample(sample), "-o", path("told." + format), "--quiet"});
    QCOMPARE(told.exitCode, 0);
    if (format == "png") QCOMPARE(bytesOf(path("out.png")), bytesOf(path("told.png")));
  }

  /// By what stands in for a function of cairo that Poppler calls: a part brings it.
  void gradientsOfFunctionsAreDrawnTurnedAndMirrored() {
    const QTransform turned = QTransform().translate(20, 20).rotate(45).scale(40, 40).translate(-0.5, -0.5);
    for (const QTransform& at :
         {turned, QTransform(0, 40, -40, 0, 40, 0), QTransform(40, 0, 0, -40, 0, 40)}) {
      QByteArray page =
          "/MediaBox [0 0 40 40] /Resources << /Shading << /S << /ShadingType 1 /Function 5 0 R "
          "/ColorSpace /DeviceRGB /Matrix [";
      for (const double value : {at.m11(), at.m12(), at.m21(), at.m22(), at.dx(), at.dy()})
        page += QByteArray::number(value, 'f', 6) + ' ';
      const QByteArray redAndGreen =
          kit::stream("{ 0 }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]");
      const QByteArray pdf = kit::onePage("/S sh", page + "] >> >> >>", {redAndGreen});
      QFile file(path("f.pdf"));
      QVERIFY(file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size());
      file.close();
      QCOMPARE(kit::norvex({"convert", file.fileName(), "-o", path("f.png"), "--force"}).exitCode, 0);
      const QRgb drawn = QImage(path("f.png")).pixel(12, 15);
      const QPointF expected = at.inverted().map(QPointF(12.5, 24.5)) * 255;
      QVERIFY(std::abs(qRed(drawn) - expected.x()) < 6 && std::abs(qGreen(drawn) - expected.y()) < 6);
    }
  }

  /// A unit that the page enlarges to all of it, with stripes.
  void gradientsOfFunctionsAreDividedAsTheyAreDrawn() {
    const QByteArray stripes = kit::stream("{ pop 6 mul dup floor sub dup dup }",
                                           "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]");
    const QByteArray pdf =
        kit::onePage("300 0 0 300 0 0 cm /S sh",
                     "/MediaBox [0 0 300 300] /Resources << /Shading << /S << /ShadingType 1 "
                     "/Function 5 0 R /ColorSpace /DeviceRGB >> >> >>",
                     {stripes});
    QFile file(path("s.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size());
    file.close();
    QCOMPARE(kit::norvex({"convert", file.fileName(), "-o", path("s.png"), "--force"}).exitCode, 0);
    const QImage drawn(path("s.png"));
    for (const int x : {20, 60, 110, 160, 220, 260})
      QVERIFY2(std::abs(qRed(drawn.pixel(x, 150)) - (x % 50) * 255 / 50) < 12,
               qPrintable(QString::number(x)));
  }

  /// As much ink as the line has, in the middle of a pixel; the thinnest is seen, and the one of no width is
  /// a whole pixel.
  void linesThinnerThanAPixelAreAsThinAsTheyAre() {
    const QByteArray pdf =
        kit::onePage("0.4 w 10.3 0 m 10.3 40 l S 0.01 w 20.3 0 m 20.3 40 l S 0 w 30.3 0 m 30.3 40 l S",
                     "/MediaBox [0 0 40 40]", {});
    QFile file(path("l.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size());
    file.close();
    QCOMPARE(kit::norvex({"convert", file.fileName(), "-o", path("l.png"), "--force"}).exitCode, 0);
    const QImage drawn(path("l.png"));
    const auto ink = [&](int x) { return qAlpha(drawn.pixel(x, 20)); };
    QVERIFY2(std::abs(ink(10) - 102) <= 2 && ink(9) == 0 && ink(11) == 0,
             qPrintable(QString::number(ink(10))));
    QVERIFY2(std::abs(ink(20) - 64) <= 2, qPrintable(QString::number(ink(20))));
    QCOMPARE(ink(30), 255);
  }

  void oneRunConvertsPicturesOfEveryKind() {
    const Ran ran =
        kit::norvex({"convert", sample("lighthouse.svg"), sample("lighthouse-preview.eps"),
                     sample("lighthouse-cs.ai"), "--format", "png", "--to", folder_->path(), "--quiet"});
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files).size(), 3);
  }

  /// Every library that is linked costs time before a small picture is drawn.
  void theyLinkNoMoreThanTheyMust() {
    for (const QString& part : kParts) {
      const QByteArray names = bytesOf(QStringLiteral(NORVEX_BUILD_DIR "/") + part);
      QVERIFY2(names.size() > 1000, qPrintable(part));
      if (part == "norvex") QVERIFY(!names.contains("libQt6"));
      if (part.startsWith("norvex-worker") || part.startsWith("norvex-engine") ||
          part.startsWith("norvex-picture"))
        QVERIFY2(!names.contains("libQt6Gui.so"), qPrintable(part));
      // Their names, to load them by, but no links to them.
      QVERIFY2(names.count("libcups.so") <= 1, qPrintable(part));
      if (!part.startsWith("norvex-engine")) QVERIFY2(names.count("libtiff.so") <= 1, qPrintable(part));
      if (part != "norvex-application.so") QVERIFY2(!names.contains("libQt6Widgets.so"), qPrintable(part));
    }
  }

  void theStepsOfAStartAreToldInTheirOrder_data() {
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QStringList>("ours");
    QTest::addColumn<QStringList>("theirs");
    const QStringList ours{"picture process started", "application loaded", "facts came", "first answer came",
                           "ended"};
    QTest::newRow("a program that forks")
        << "lighthouse.eps" << ours
        << QStringList{"norvex-worker linked", "norvex-worker has its engines",
                       "norvex-worker asked for a picture's process"};
    QTest::newRow("a process of its own") << "lighthouse.svg" << ours << QStringList{"norvex-picture linked"};
  }
  void theStepsOfAStartAreToldInTheirOrder() {
    QFETCH(QString, sample);
    QFETCH(QStringList, ours);
    QFETCH(QStringList, theirs);
    const QStringList arguments{"convert", kit::sample(sample), "-o", path("out.png"), "--quiet"};
    const Ran ran = kit::norvex(QStringList{"--trace-start"} + arguments);
    QCOMPARE(ran.exitCode, 0);
    static const QRegularExpression line("^trace ([0-9]+) ([0-9.]+) ms: (.+)$");
    QMap<QString, QStringList> steps;
    QMap<QString, double> last;
    for (const QByteArray& each : ran.err.trimmed().split('\n')) {
      const QRegularExpressionMatch told = line.match(QString::fromUtf8(each));
      QVERIFY2(told.hasMatch(), each.constData());
      QVERIFY(told.captured(2).toDouble() >= last.value(told.captured(1)));
      last[told.captured(1)] = told.captured(2).toDouble();
      steps[told.captured(1)] << told.captured(3);
    }
    QCOMPARE(steps.size(), 2);
    QVERIFY2(steps.values().contains(ours), ran.err.constData());
    QVERIFY2(steps.values().contains(theirs), ran.err.constData());
    QCOMPARE(kit::norvex(arguments + QStringList{"--force"}).err, QByteArray());
  }

  void aWindowSaysNothingOnTheTerminal() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_DEBUG_PLUGINS", "1");  // has Qt tell of every library that it looks at
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
      environment.insert(QLatin1String(name), path("home"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(kit::norvexProgram(), {kit::sample("lighthouse.svg")});
    QVERIFY(program.waitForStarted());
    const auto hasItsPlatform = [&] {
      QFile maps(QStringLiteral("/proc/%1/maps").arg(program.processId()));
      return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libqoffscreen");
    };
    QVERIFY(kit::waitUntil(hasItsPlatform));
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.readAll(), QByteArray());
  }

  void aMissingEngineIsToldInOneSentence_data() {
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("format");
    QTest::newRow("SVG to PNG") << "norvex-engine-svg.so"
                                << "lighthouse.svg"
                                << "png";
    QTest::newRow("SVG to PDF") << "norvex-engine-svg-pdf.so"
                                << "lighthouse.svg"
                                << "pdf";
    QTest::newRow("SVG to EPS") << "norvex-engine-all.so"
                                << "lighthouse.svg"
                                << "eps";
    QTest::newRow("PDF to PNG") << "norvex-engine-pages.so"
                                << "lighthouse.pdf"
                                << "png";
    QTest::newRow("EPS to PDF") << "norvex-engine-pages.so"
                                << "lighthouse.eps"
                                << "pdf";
  }
  void aMissingEngineIsToldInOneSentence() {
    QFETCH(QString, part);
    QFETCH(QString, sample);
    QFETCH(QString, format);
    copyPartsBut(part);
    const QString file = kit::sample(sample), out = path("out." + format);
    const Ran missing = kit::run(path("norvex"), {"convert", file, "-o", out}, {}, 30);
    const QByteArray told =
        "norvex: " + file.toUtf8() +
        ": the part of norvex that this picture needs is missing or damaged: " + part.toUtf8() + "\n";
    QCOMPARE(missing.err, told);
    QCOMPARE(missing.exitCode, 3);
    QVERIFY(!QFile::exists(out));
    QFile damaged(path(part));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no module");
    damaged.close();
    QCOMPARE(kit::run(path("norvex"), {"convert", file, "-o", out}, {}, 30).err, told);
  }

  void theOnlyPictureNeedsNoProgramThatForks() {
    copyPartsBut("norvex-worker");
    for (const char* name : {"lighthouse.svg", "lighthouse.pdf"}) {
      const Ran facts = kit::run(path("norvex"), {"info", sample(name)}, {}, 30);
      QCOMPARE(facts.err, QByteArray());
      QCOMPARE(facts.out, kit::norvex({"info", sample(name), sample(name)}).out.left(facts.out.size()));
      for (const char* format : {"png", "pdf", "eps"}) {
        const QString out = path(QStringLiteral("%1.%2").arg(name, format));
        const Ran ran = kit::run(path("norvex"), {"convert", sample(name), "-o", out, "--quiet"}, {}, 30);
        QCOMPARE(ran.err, QByteArray());
        QVERIFY(QFile::exists(out));
      }
    }
  }

  void withoutAProgramForItTheOnlyPictureIsForked_data() {
    QTest::addColumn<bool>("damaged");
    QTest::newRow("missing") << false;
    QTest::newRow("damaged") << true;
  }
  void withoutAProgramForItTheOnlyPictureIsForked() {
    QFETCH(bool, damaged);
    copyPartsBut("norvex-picture-svg");
    if (damaged) QVERIFY(QFile::copy("/bin/false", path("norvex-picture-svg")));
    const Ran ran = kit::run(path("norvex"),
                             {"convert", sample("lighthouse.svg"), "-o", path("a.png"), "--quiet"}, {}, 30);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
  }

  /// Such as a document provokes.
  void aPictureProcessThatIsKilledIsNotTriedAgain() {
    const Ran ran = convertWithPictureProgram("head -c 4 <&3 >/dev/null; kill -SEGV $$");
    QVERIFY2(ran.err.endsWith("the picture process ended without an answer. Details: signal 11\n"), ran.err);
    QCOMPARE(ran.exitCode, 3);
    QVERIFY(!QFile::exists(path("a.png")));
  }

  void aPictureProcessThatTheSystemKillsIsToldAsThat() {
    const Ran ran = convertWithPictureProgram("head -c 4 <&3 >/dev/null; kill -KILL $$");
    QVERIFY2(ran.err.contains("was killed by the system, which has probably run out of memory"), ran.err);
    QCOMPARE(ran.exitCode, 5);
    QVERIFY(!QFile::exists(path("a.png")));
  }

  void aPictureProcessThatEndsByItselfIsReplaced() {
    const Ran ran = convertWithPictureProgram("head -c 4 <&3 >/dev/null; exit 127");
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
  }

  void withoutItsOwnInterpreterPostScriptIsRunByGs_data() {
    QTest::addColumn<bool>("damaged");
    QTest::newRow("missing") << false;
    QTest::newRow("damaged") << true;
  }
  void withoutItsOwnInterpreterPostScriptIsRunByGs() {
    QFETCH(bool, damaged);
    copyPartsBut("norvex-postscript");
    if (damaged) QVERIFY(QFile::copy("/bin/false", path("norvex-postscript")));
    const QString file = kit::sample("lighthouse.eps");
    const Ran ran = kit::run(path("norvex"), {"convert", file, "-o", path("gs.png"), "--quiet"}, {}, 60);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, 0);
    const Ran forked =
        kit::run(NORVEX_BUILD_DIR "/norvex", {"convert", file, "-o", path("own.png"), "--quiet"}, {}, 60);
    QCOMPARE(forked.exitCode, 0);
    QCOMPARE(bytesOf(path("gs.png")), bytesOf(path("own.png")));
  }

  /// Its document has long been put behind its confinement and waits for it.
  void anInterpreterThatEndsWithoutHavingBegunIsReplacedByGs_data() {
    QTest::addColumn<QByteArray>("script");
    for (const char* end : {"exit 0", "exit 127", "kill -KILL $$"}) {
      QTest::addRow("at once, %s", end) << QByteArray(end);
      QTest::addRow("after a while, %s", end) << QByteArray("sleep 0.3\n") + end;
    }
  }
  void anInterpreterThatEndsWithoutHavingBegunIsReplacedByGs() {
    QFETCH(QByteArray, script);
    copyPartsBut("norvex-postscript");
    writeScript("norvex-postscript", script);
    const QString file = kit::sample("lighthouse.eps");
    for (const char* format : {"png", "pdf"}) {
      const QString out = path(QStringLiteral("a.") + format);
      const Ran ran = kit::run(path("norvex"), {"convert", file, "-o", out, "--quiet"}, {}, 60);
      QCOMPARE(ran.err, QByteArray());
      QCOMPARE(ran.exitCode, 0);
    }
  }

  void missingCommandsAreToldInOneSentence() {
    copyPartsBut("norvex-commands.so");
    const Ran ran =
        kit::run(path("norvex"), {"convert", sample("lighthouse.svg"), "-o", path("a.png")}, {}, 30);
    QVERIFY2(ran.err.startsWith("norvex: the application could not be loaded ("), ran.err);
    QCOMPARE(ran.err.count('\n'), 1);
    QCOMPARE(ran.exitCode, 1);
  }

  void whereTheCommandsCannotBeLinkedTheApplicationDoesTheirWork() {
    copyPartsBut("norvex-commands.so");
    QVERIFY(QFile::copy(NORVEX_BUILD_DIR "/norvex-worker", path("norvex-commands.so")));  // no library
    const Ran ran = kit::run(path("norvex"), {"info", sample("lighthouse.svg")}, {}, 30);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.out, kit::norvex({"info", sample("lighthouse.svg")}).out);
  }

  void commandsLoadNothingOfWindowsAndTexts() {
    const Ran libraries = kit::run("ldd", {NORVEX_BUILD_DIR "/norvex-commands.so"});
    QCOMPARE(libraries.exitCode, 0);
    if (libraries.out.contains("san.so")) QSKIP("a sanitized program has every library linked");
    QVERIFY(libraries.out.contains("/stand-ins/windows/"));
    for (const char* library : {"libGLdispatch", "libxcb", "libdbus", "libgraphite2", "libexpat"})
      QVERIFY2(!libraries.out.contains(library), library);
  }

  void theInstalledTreeWorks() {
    const Ran installed = kit::run("cmake", {"--install", NORVEX_BUILD_DIR, "--prefix", path("tree")});
    QVERIFY2(installed.exitCode == 0, installed.err);
    const QString program = path("tree/bin/norvex");
    for (const char* name : {"lighthouse.svg", "lighthouse.pdf", "lighthouse.eps"})
      for (const char* format : {"png", "pdf", "eps"}) {
        const QString out = path(QStringLiteral("%1.%2").arg(name, format));
        const Ran ran = kit::run(program, {"convert", sample(name), "-o", out, "--quiet"});
        QVERIFY2(ran.exitCode == 0, ran.err);
        QVERIFY(QFile::exists(out));
      }
    // Single pictures take a program of their own, which must be there as well.
    QVERIFY(QFile::remove(path("tree/libexec/norvex/norvex-worker")));
    for (const char* format : {"png", "pdf", "eps"}) {
      const Ran ran =
          kit::run(program, {"convert", sample("lighthouse.svg"), "-o", path("b." + QString(format))});
      QCOMPARE(ran.exitCode, 0);
    }
    QVERIFY(QFile::copy(NORVEX_BUILD_DIR "/norvex-worker", path("tree/libexec/norvex/norvex-worker")));
    const Ran printed = kit::run(program, {"print", sample("lighthouse.svg"), "-o", path("sheet.pdf")});
    QVERIFY2(printed.exitCode == 0, printed.err);
  }

 private:
  QString path(const QString& name) const { return folder_->filePath(name); }
  static QByteArray bytesOf(const QString& file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
  }
  /// Converts an SVG to a.png with a shell script in place of the program for single pictures.
  Ran convertWithPictureProgram(const QByteArray& script) {
    copyPartsBut("norvex-picture-svg");
    writeScript("norvex-picture-svg", script);
    return kit::run(path("norvex"), {"convert", sample("lighthouse.svg"), "-o", path("a.png"), "--quiet"}, {},
                    30);
  }
  void writeScript(const QString& name, const QByteArray& script) const {
    QFile program(path(name));
    if (!program.open(QIODevice::WriteOnly) || program.write("#!/bin/sh\n" + script + '\n') < 0)
      qFatal("cannot write a script");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
  }
  void copyPartsBut(const QString& missing) const {
    const QDir built = QFileInfo(norvexProgram()).dir();
    for (const QString& part : kParts)
      if (part != missing && !QFile::copy(built.filePath(part), path(part))) qFatal("cannot copy a part");
  }

  std::unique_ptr<QTemporaryDir> folder_;
};

NORVEX_TEST(PartsTest)
#include "parts_test.moc"
