// What was copied arrives in a program that others wrote, at its size, when this one has quit.
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

#include "kit/test_main.h"
#include "system/x_session.h"

using namespace norvex;
using kit::XSession;

namespace {

/// 300 × 200 points with a square of 100 in it.
const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\n1 0 0 setrgbcolor 0 0 300 200 "
    "rectfill 0 0 1 setrgbcolor 50 50 100 100 rectfill\n%%EOF\n";
/// The same as SVG.
const QByteArray kSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' width='300pt' height='200pt' viewBox='0 0 300 200'><path "
    "d='M0 0h300v200H0z' fill='red'/><path d='M50 50h100v100H50z' fill='blue'/></svg>";
const QByteArray kDrawing =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"900\" height=\"600\" viewBox=\"0 0 900 600\"/>";
constexpr double kPixelsPerPoint = 96.0 / 72;

/// The other program with its window, ended with this.
class Inkscape {
 public:
  Inkscape(const QString& display, const QString& home, const QString& file) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    environment.insert("HOME", home);
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
      environment.insert(QLatin1String(name), home);
    process_.setProcessEnvironment(environment);
    process_.start("inkscape", {file});
  }
  ~Inkscape() {
    process_.kill();
    process_.waitForFinished(5000);
  }

 private:
  QProcess process_;
};

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write");
}

/// Width and height of everything that is drawn and of each object, in pixels of CSS, as Inkscape measures.
QList<QSizeF> measured(const QString& path) {
  QProcess query;
  query.start("inkscape", {"--query-all", path});
  if (!query.waitForFinished(60000)) return {};
  QList<QSizeF> sizes;
  for (const QByteArray& line : query.readAllStandardOutput().split('\n'))
    if (const QList<QByteArray> parts = line.split(','); parts.size() == 5)
      sizes << QSizeF(parts.at(3).toDouble(), parts.at(4).toDouble());
  return sizes;
}

bool holds(const QList<QSizeF>& sizes, double width, double height) {
  return std::any_of(sizes.begin(), sizes.end(), [=](const QSizeF& each) {
    return std::abs(each.width() - width) < 0.5 && std::abs(each.height() - height) < 0.5;
  });
}

}  // namespace

class PasteTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    QString missing = XSession::missing();
    if (missing.isEmpty() && QStandardPaths::findExecutable("inkscape").isEmpty()) missing = "inkscape";
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + " is not installed: nothing can be pasted here"));
  }

  void vectorsArriveInInkscapeAtTheirSizeAfterQuitting_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("keys");
    QTest::newRow("an EPS") << "a.eps" << kEps << "ctrl+c";
    QTest::newRow("a part of an SVG") << "a.svg" << kSvg << "ctrl+shift+c";
  }
  void vectorsArriveInInkscapeAtTheirSizeAfterQuitting() {
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, keys);
    XSession session;
    const QTemporaryDir folder;
    write(folder.filePath(name), bytes);
    write(folder.filePath("drawing.svg"), kDrawing);
    QVERIFY(session.start({folder.filePath(name)}, name));
    session.waitUntilStill();
    session.key(keys);
    const auto offersSvg = [&] {
      return session.run("xclip", {"-selection", "clipboard", "-o", "-t", "TARGETS"})
          .out.contains("image/svg+xml");
    };
    QVERIFY(kit::waitUntil(offersSvg));
    session.key("ctrl+q");
    QVERIFY(kit::waitUntil([&] { return !session.isAlive(); }));
    QVERIFY(kit::waitUntil(offersSvg));

    const Inkscape other(session.display(), folder.path(), folder.filePath("drawing.svg"));
    QString window;
    QVERIFY(kit::waitUntil(
        [&] {
          window = QString::fromLatin1(
                       session.run("xdotool", {"search", "--onlyvisible", "--name", "drawing.svg"}).out)
                       .section(u'\n', 0, 0);
          return !window.isEmpty();
        },
        60));
    session.waitUntilStill(20);
    const auto arrived = [&] {
      session.xdo({"windowactivate", "--sync", window});
      session.key("ctrl+v");
      session.key("ctrl+s");
      return kit::waitUntil([&] { return contentOf(folder.filePath("drawing.svg")).contains("<path"); }, 5);
    };
    QVERIFY(kit::waitUntil(arrived, 40));
    const QList<QSizeF> sizes = measured(folder.filePath("drawing.svg"));
    QVERIFY2(holds(sizes, 300 * kPixelsPerPoint, 200 * kPixelsPerPoint), "the picture");
    QVERIFY2(holds(sizes, 100 * kPixelsPerPoint, 100 * kPixelsPerPoint), "the square in it");
    QVERIFY2(!contentOf(folder.filePath("drawing.svg")).contains("<image"), "vectors stay vectors");
  }
};

NORVEX_TEST(PasteTest)
#include "paste_test.moc"
