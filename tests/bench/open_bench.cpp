// From command to complete picture on screen: starts each program in turn on the same file, looks at the
// whole screen until it no longer changes, and tells when it changed last.
//
//   xvfb-run -s "-screen 0 1600x1100x24" open_bench FILE ROUNDS PROGRAM [PROGRAM…]
//
// Prints the median of each program in milliseconds and the ratio to the first one's. Run it with a window
// manager when the programs need one.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHash>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int stillMilliseconds = 1500;  // no change for so long: the picture is complete
constexpr int longestMilliseconds = 30000;

size_t screenHash() {
  const QImage image = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
  return qHashBits(image.constBits(), size_t(image.sizeInBytes()));
}

double millisecondsToCompletePicture(const QString& program, const QString& file) {
  size_t last = screenHash();
  QProcess process;
  QElapsedTimer clock;
  clock.start();
  process.start(program, {file});
  double changed = 0;
  while (clock.elapsed() < longestMilliseconds &&
         (changed == 0 || clock.elapsed() - changed < stillMilliseconds)) {
    const double now = double(clock.nsecsElapsed()) / 1e6;
    const size_t hash = screenHash();
    if (hash != last) changed = now;
    last = hash;
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
  const QStringList given = QGuiApplication::arguments();
  if (given.size() < 4) {
    std::fprintf(stderr, "usage: open_bench FILE ROUNDS PROGRAM [PROGRAM…]\n");
    return 2;
  }
  const QStringList programs = given.mid(3);
  QHash<QString, QList<double>> times;
  for (int round = 0; round < given[2].toInt(); ++round)
    for (const QString& program : programs)
      times[program] << millisecondsToCompletePicture(program, given[1]);
  double first = 0;
  for (const QString& program : programs) {
    QList<double> all = times[program];
    std::sort(all.begin(), all.end());
    const double median = all[all.size() / 2];
    if (first == 0) first = median;
    std::printf("%-40s %7.0f ms  %5.2f\n", qPrintable(program), median, median / first);
  }
  return 0;
}
