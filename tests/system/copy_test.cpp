// The built program in a real X server: a rectangle is selected with the mouse, copied, and other programs
// take every format of it from the clipboard.
#include <QFile>
#include <QSet>

#include <cmath>

#include "kit/test_main.h"
#include "system/outside_programs.h"
#include "system/x_session.h"

using namespace norvex;
using namespace norvex::outside;
using kit::XSession;

namespace {

/// Four quarters, each in its colour, of 300 × 200 points (400 × 266.7 pixels of SVG).
const QByteArray kQuartersSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' width='300pt' height='200pt' viewBox='0 0 300 200'>"
    "<rect width='150' height='100' fill='#d02020'/><rect x='150' width='150' height='100' fill='#20a020'/>"
    "<rect y='100' width='150' height='100' fill='#2030d0'/><rect x='150' y='100' width='150' height='100' "
    "fill='#e0c020'/></svg>";
const QByteArray kQuartersEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\n"
    "0.816 0.125 0.125 setrgbcolor 0 100 150 100 rectfill\n0.125 0.627 0.125 setrgbcolor 150 100 150 100 "
    "rectfill\n"
    "0.125 0.188 0.816 setrgbcolor 0 0 150 100 rectfill\n0.878 0.753 0.125 setrgbcolor 150 0 150 100 "
    "rectfill\n%%EOF\n";
const QSize kSelected(100, 60);

struct Target {
  const char* name;
  const char* format;  ///< as outside_programs.h names it
};
const QList<Target> kTargets{{"image/svg+xml", "svg"},
                             {"application/pdf", "pdf"},
                             {"image/x-eps", "eps"},
                             {"application/postscript", "eps"},
                             {"image/x-e-postscript", "eps"},
                             {"application/eps", "eps"},
                             {"image/png", "png"},
                             {"image/tiff", "tiff"}};

const QList<QRgb> kColours{0xd02020, 0x20a020, 0x2030d0, 0xe0c020};

/// Which of the four colours this is; -1: none.
int colourOf(QRgb at) {
  for (int i = 0; i < kColours.size(); ++i)
    if (std::abs(qRed(at) - qRed(kColours[i])) < 24 && std::abs(qGreen(at) - qGreen(kColours[i])) < 24 &&
        std::abs(qBlue(at) - qBlue(kColours[i])) < 24)
      return i;
  return -1;
}

/// Where the colours are.
QRect coloured(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (colourOf(image.pixel(x, y)) >= 0) box |= QRect(x, y, 1, 1);
  return box;
}

/// A window that shows a file of the test's own.
class Shown {
 public:
  Shown(const QByteArray& bytes, const QString& name) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
      qFatal("cannot write the test's file");
    file.close();
    isThere = session.start({file.fileName()}, name);
  }
  QStringList targets() {
    const Ran ran = session.run("xclip", {"-selection", "clipboard", "-o", "-t", "TARGETS"});
    return QString::fromLatin1(ran.out).split('\n', Qt::SkipEmptyParts);
  }
  /// Selects kSelected points around the middle of the picture, by two drags, and copies them.
  bool copySelection() {
    QRect seen;
    // The picture is shown in its own size, a point a pixel.
    if (!kit::waitUntil([&] { return (seen = coloured(session.screen())).width() >= 298; })) return false;
    const QPoint middle(seen.left() + seen.width() / 2, seen.top() + seen.height() / 2);
    const QPoint half(kSelected.width() / 2, kSelected.height() / 2);
    session.drag(middle, middle - half);
    session.drag(middle, middle + half);
    session.key("ctrl+shift+c");
    return kit::waitUntil([this] { return targets().contains("image/tiff"); });
  }
  /// The file with what the clipboard has under that name.
  QString pasted(const QString& target, const QString& format) {
    const Ran ran = session.run("xclip", {"-selection", "clipboard", "-o", "-t", target});
    const QString path = folder.filePath("pasted." + format);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ran.out) != ran.out.size()) return {};
    return path;
  }

  QTemporaryDir folder;
  XSession session;
  bool isThere = false;
};

/// How many processes keep the clipboard of that display.
int keepersOf(const QString& display) {
  int found = 0;
  for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    QFile command(QStringLiteral("/proc/%1/cmdline").arg(entry));
    QFile environment(QStringLiteral("/proc/%1/environ").arg(entry));
    if (entry.toLongLong() == 0 || !command.open(QIODevice::ReadOnly) ||
        !environment.open(QIODevice::ReadOnly))
      continue;
    if (command.readAll().split('\0').first().endsWith("/norvex-clipboard") &&
        environment.readAll().split('\0').contains("DISPLAY=" + display.toLatin1()))
      ++found;
  }
  return found;
}

/// How many of the four colours the picture shows.
int quartersIn(const QImage& image) {
  QSet<int> seen;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) seen << colourOf(image.pixel(x, y));
  seen.remove(-1);
  return int(seen.size());
}

}  // namespace

class CopyTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    qputenv("SOURCE_DATE_EPOCH", "1000000000");
    QString missing = XSession::missing();
    for (const char* program :
         {"qpdf", "gs", "rsvg-convert", "tiffinfo", "pngcheck", "pdftocairo", "convert", "identify"})
      if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) missing = QLatin1String(program);
    if (!missing.isEmpty()) QSKIP(qPrintable("not installed: " + missing));
  }

  void otherProgramsPasteTheSelectedRectangle_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("svg");
    QTest::newRow("SVG") << kQuartersSvg << "quarters.svg" << true;
    QTest::newRow("EPS") << kQuartersEps << "quarters.eps" << false;
  }
  void otherProgramsPasteTheSelectedRectangle() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(bool, svg);
    Shown f(bytes, name);
    QVERIFY(f.isThere);
    QVERIFY(f.copySelection());
    const QStringList offered = f.targets();
    QImage first;
    for (const Target& target : kTargets) {
      if (!svg && target.format == QLatin1String("svg")) {
        if (!offered.contains(target.name)) continue;  // where the picture process makes none
      }
      QVERIFY2(offered.contains(target.name), target.name);
      const QString path = f.pasted(target.name, target.format);
      const QString complaint = complaintAbout(path, target.format);
      QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
      const QImage drawn = drawnOutside(path, target.format);
      QVERIFY2(
          std::abs(drawn.width() - kSelected.width()) <= 2 &&
              std::abs(drawn.height() - kSelected.height()) <= 2,
          qPrintable(QStringLiteral("%1: %2 × %3").arg(target.name).arg(drawn.width()).arg(drawn.height())));
      QCOMPARE(quartersIn(drawn), 4);  // the middle of the picture is in it
      if (first.isNull()) first = drawn;
      QVERIFY2(difference(first, drawn) < 0.05, target.name);
    }
    if (svg) {
      // What is copied of an SVG is cut out of it: its own elements, and no pixels.
      QFile cut(f.pasted("image/svg+xml", "svg"));
      QVERIFY(cut.open(QIODevice::ReadOnly));
      const QByteArray text = cut.readAll();
      QVERIFY2(text.contains("fill='#e0c020'") && !text.contains("<image"), text);
    }
    QVERIFY(offered.contains("com.adobe.pdf") && offered.contains("com.adobe.encapsulated-postscript"));
  }

  /// Without a selection what is seen is copied: all of the picture, in its own size.
  void whatIsCopiedIsWhatConvertWritesOfThatPart_data() { otherProgramsPasteTheSelectedRectangle_data(); }
  void whatIsCopiedIsWhatConvertWritesOfThatPart() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(bool, svg);
    Shown f(bytes, name);
    QVERIFY(f.isThere);
    QVERIFY(kit::waitUntil([&] { return coloured(f.session.screen()).width() >= 298; }));
    f.session.key("ctrl+shift+c");
    QVERIFY(kit::waitUntil([&] { return f.targets().contains("image/tiff"); }));
    for (const Target& target : kTargets) {
      const QString format = QLatin1String(target.format);
      if (format == "png" || (format == "svg" && !svg)) continue;
      const QString written = f.folder.filePath("written." + format);
      const Ran ran = f.session.run(kit::norvexProgram(), {"convert", f.folder.filePath(name), "--crop",
                                                           "0,0,300,200", "--force", "-o", written});
      QVERIFY2(ran.exitCode == 0, ran.err);
      QFile wanted(written), copied(f.pasted(target.name, format));
      QVERIFY(wanted.open(QIODevice::ReadOnly) && copied.open(QIODevice::ReadOnly));
      QVERIFY2(wanted.readAll() == copied.readAll(), target.name);
    }
  }

  void whatWasCopiedOutlivesTheProgram() {
    Shown f(kQuartersEps, "quarters.eps");
    QVERIFY(f.isThere);
    QVERIFY(f.copySelection());
    const QStringList before = f.targets();
    f.session.key("ctrl+q");
    QVERIFY(kit::waitUntil([&] { return !f.session.isAlive(); }));
    QVERIFY(kit::waitUntil([&] { return f.targets().contains("image/tiff"); }, 5));
    const QStringList after = f.targets();
    for (const Target& target : kTargets) {
      QCOMPARE(after.contains(target.name), before.contains(target.name));
      if (!after.contains(target.name)) continue;
      const QString path = f.pasted(target.name, target.format);
      QCOMPARE(complaintAbout(path, target.format), QString());
      QCOMPARE(quartersIn(drawnOutside(path, target.format)), 4);
    }
    // The keeper is there for what is on the clipboard, and for nothing else.
    const QString display = f.session.display();
    QCOMPARE(keepersOf(display), 1);
    f.session.run("xclip",
                  {"-selection", "clipboard", "-i", QStringLiteral(NORVEX_SOURCE_DIR "/CMakeLists.txt")});
    QVERIFY(kit::waitUntil([&] { return keepersOf(display) == 0; }, 5));
    QVERIFY(f.targets().contains("UTF8_STRING"));
  }

  void theKeeperGoesWithItsDisplay() {
    QString display;
    {
      Shown f(kQuartersEps, "quarters.eps");
      QVERIFY(f.isThere);
      QVERIFY(f.copySelection());
      display = f.session.display();
      f.session.key("ctrl+q");
      QVERIFY(kit::waitUntil([&] { return !f.session.isAlive(); }));
      QVERIFY(kit::waitUntil([&] { return keepersOf(display) == 1; }, 5));
    }
    QVERIFY(kit::waitUntil([&] { return keepersOf(display) == 0; }, 10));
  }

  void aPictureProcessThatDiesCostsNothing() {
    Shown f(kQuartersEps, "quarters.eps");
    QVERIFY(f.isThere);
    QVERIFY(f.copySelection());
    for (const qint64 id : kit::descendants(f.session.id(), "norvex-worker")) ::kill(pid_t(id), SIGKILL);
    f.session.key("ctrl+a");
    f.session.key("ctrl+shift+c");
    // What was copied before stays until the new copy, of the whole picture, is there: another process made
    // it.
    QImage pasted;
    const auto wholeIsPasted = [&] {
      pasted = drawnOutside(f.pasted("application/pdf", "pdf"), "pdf");
      return std::abs(pasted.width() - 300) <= 2 && std::abs(pasted.height() - 200) <= 2;
    };
    QVERIFY2(kit::waitUntil(wholeIsPasted), qPrintable(QString::number(pasted.width())));
    QVERIFY(f.session.isAlive());
    QCOMPARE(quartersIn(pasted), 4);
    QCOMPARE(complaintAbout(f.pasted("application/pdf", "pdf"), "pdf"), QString());
  }

  void aPictureThatCannotBeShownIsNotCopied() {
    Shown f("%!PS-Adobe-3.0 EPSF-3.0\n%%Title: no box\n%%EndComments\n", "broken.eps");
    QVERIFY(f.isThere);
    f.session.run("xclip",
                  {"-selection", "clipboard", "-i", QStringLiteral(NORVEX_SOURCE_DIR "/CMakeLists.txt")});
    QVERIFY(kit::waitUntil([&] { return f.targets().contains("UTF8_STRING"); }));
    const QString before = f.session.selection("clipboard");
    f.session.key("ctrl+shift+c");
    f.session.key("ctrl+c");
    QThread::msleep(500);
    QVERIFY(f.session.isAlive());
    QCOMPARE(f.session.selection("clipboard"), before);
  }
};

NORVEX_TEST(CopyTest)
#include "copy_test.moc"
