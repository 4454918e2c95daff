// From command to complete picture on screen: starts each program in turn on the same file, looks at the
// whole screen until it no longer changes, and tells when it changed last. A blinking cursor and a title's
// icon are no change. Programs that show an empty window and draw for longer than it waits (1,500 ms) would
// seem ready with that: --still tells how long.
//
//   xvfb-run -s "-screen 0 1600x1100x24" open_bench [--samples] [--still MS] FILE ROUNDS PROGRAM [PROGRAM…]
//
// Prints the median of each program in milliseconds and the ratio to the first one's; with --samples a line
// for each program: its name and the milliseconds of each round, with tabs between them. Run it with a window
// manager when the programs need one.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr int longestMilliseconds = 30000;
constexpr int smallestChange = 600;  // pixels

QImage screenImage() {
  return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

bool differs(const QImage& one, const QImage& other) {
  if (one.size() != other.size() || one.format() != other.format()) return true;
  int pixels = 0;
  for (int y = 0; y < one.height(); ++y) {
    const auto* a = reinterpret_cast<const QRgb*>(one.constScanLine(y));
    const auto* b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
    if (std::equal(a, a + one.width(), b)) continue;
    for (int x = 0; x < one.width(); ++x) pixels += a[x] != b[x] ? 1 : 0;
    if (pixels > smallestChange) return true;
  }
  return false;
}

/// No change for `still` milliseconds: the picture is complete.
double millisecondsToCompletePicture(const QString& program, const QString& file, int still) {
  QImage last = screenImage();
  QProcess process;
  QElapsedTimer clock;
  clock.start();
  process.start(program, {file});
  double changed = 0;
  while (clock.elapsed() < longestMilliseconds && (changed == 0 || clock.elapsed() - changed < still)) {
    const double now = double(clock.nsecsElapsed()) / 1e6;
    const QImage image = screenImage();
    if (differs(image, last)) {
      changed = now;
      last = image;
    }
    QThread::msleep(4);
  }
  process.terminate();
  if (!process.waitForFinished(3000)) process.kill();
  process.waitForFinished();
  QThread::msleep(300);
  return changed;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  QStringList given = QGuiApplication::arguments();
  const bool samples = given.removeAll(QStringLiteral("--samples")) > 0;
  int still = 1500;
  if (const qsizetype at = given.indexOf(QStringLiteral("--still")); at > 0 && at + 1 < given.size()) {
    still = given[at + 1].toInt();
    given.remove(at, 2);
  }
  if (given.size() < 4 || still <= 0) {
    std::fprintf(stderr, "usage: open_bench [--samples] [--still MS] FILE ROUNDS PROGRAM [PROGRAM…]\n");
    return 2;
  }
  const QStringList programs = given.mid(3);
  QHash<QString, QList<double>> times;
  for (int round = 0; round < given[2].toInt(); ++round)
    for (const QString& program : programs)
      times[program] << millisecondsToCompletePicture(program, given[1], still);
  double first = 0;
  for (const QString& program : programs) {
    QList<double> all = times[program];
    if (samples) {
      std::printf("%s", qPrintable(program));
      for (const double each : std::as_const(all)) std::printf("\t%.1f", each);
      std::printf("\n");
      continue;
    }
    std::sort(all.begin(), all.end());
    const double median = all[all.size() / 2];
    if (first == 0) first = median;
    std::printf("%-40s %7.0f ms  %5.2f\n", qPrintable(program), median, median / first);
  }
  return 0;
}
