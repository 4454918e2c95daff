// How long a frame takes while a picture is scrolled, zoomed and turned, and how long until it is sharp
// again.
//
// usage: frame_bench [FILE] [--only GESTURE] [--width PIXELS] [--height PIXELS] [--worker PROGRAM]
//
// FILE is opened by the picture process; without one a synthetic picture is shown whose every rendering takes
// long. Prints one line a gesture: median, 99th percentile and maximum of the frames' milliseconds, and the
// same percentile of the processor time that this program used meanwhile, on all its threads (the one to look
// at when the machine has other work).
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QTextStream>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
#include <memory>

#include "picture/client/worker_service.h"
#include "picture/document_file.h"
#include "picture/open_picture.h"
#include "picture/process/memory_picture_service.h"
#include "types/type_identification.h"

using namespace norvex;

namespace {

constexpr int kFrames = 300;
constexpr double kBudget = 8;  // milliseconds
constexpr int kSharpMilliseconds = 60000;

/// 60 × 40 cm of test pattern; a rendering takes 200 ms besides its pixels.
MemoryPicture heavyPicture() {
  MemoryPicture picture;
  picture.facts.pageBounds = {QRectF(0, 0, 1700, 1134)};
  picture.paint = [](const RenderRequest& request) {
    QThread::msleep(200);
    return testPattern(request, QSizeF(1700, 1134));
  };
  return picture;
}

double processorMilliseconds() {
  timespec used = {};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

struct View {
  double scale = 1;
  double degrees = 0;
  QPointF offset;  ///< of the picture's middle from the frame's, pixels
};

class Bench {
 public:
  Bench(NSImageRep& rep, const QSize& size, const QString& only)
      : rep_(rep), frame_(size, QImage::Format_RGB32), only_(only) {}

  void run(const char* name, const std::function<View(double part)>& gesture) {
    if (!QString(name).startsWith(only_)) return;
    waitUntilSharp(gesture(0));
    QList<double> times;
    QList<double> processorTimes;
    for (int i = 0; i < kFrames; ++i) {
      const double before = processorMilliseconds();
      times << drawFrame(gesture(double(i) / kFrames));
      processorTimes << processorMilliseconds() - before;
      QCoreApplication::processEvents();
      QThread::msleep(4);  // the rest of a frame's time belongs to others
    }
    QElapsedTimer timer;
    timer.start();
    const bool sharp = waitUntilSharp(gesture(double(kFrames - 1) / kFrames));
    std::sort(times.begin(), times.end());
    std::sort(processorTimes.begin(), processorTimes.end());
    const double worst = times.at(kFrames * 99 / 100);
    QTextStream(stdout)
        << QString(name).leftJustified(16)
        << QString::asprintf("median %6.2f   p99 %6.2f   max %6.2f   processor p99 %6.2f   %s   sharp after ",
                             times.at(kFrames / 2), worst, times.last(),
                             processorTimes.at(kFrames * 99 / 100),
                             worst <= kBudget ? "within 8 ms" : "OVER 8 ms")
        << (sharp ? QString::number(timer.elapsed()) + " ms" : QString("more than a minute")) << '\n';
  }

 private:
  double drawFrame(const View& view) {
    QElapsedTimer timer;
    timer.start();
    frame_.fill(Qt::white);
    QPainter painter(&frame_);
    painter.translate(frame_.width() / 2.0 + view.offset.x(), frame_.height() / 2.0 + view.offset.y());
    painter.scale(view.scale, -view.scale);
    painter.rotate(view.degrees);
    painter.translate(-rep_.size().width() / 2, -rep_.size().height() / 2);
    rep_.draw(painter);
    painter.end();
    return double(timer.nsecsElapsed()) / 1e6;
  }

  bool waitUntilSharp(const View& view) {
    QElapsedTimer timer;
    timer.start();
    drawFrame(view);
    while (!rep_.isSharp() && !rep_.renderingError() && timer.elapsed() < kSharpMilliseconds) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
      QThread::msleep(1);
    }
    if (const auto error = rep_.renderingError())
      QTextStream(stderr) << "frame_bench: " << error->message << '\n';
    return rep_.isSharp();
  }

  NSImageRep& rep_;
  QImage frame_;
  QString only_;
};

void runAll(NSImageRep& rep, const QSize& size, const QString& only) {
  Bench bench(rep, size, only);
  const double fit = std::min(size.width() / rep.size().width(), size.height() / rep.size().height());
  bench.run("scroll 100%", [&](double part) { return View{1, 0, {part * 400, part * -300}}; });
  bench.run("scroll 400%", [&](double part) { return View{4, 0, {part * 3000 - 1500, part * 900}}; });
  bench.run("scroll 400% 30°", [&](double part) { return View{4, 30, {part * 3000 - 1500, part * 900}}; });
  bench.run("zoom in", [&](double part) { return View{fit * std::pow(16, part), 0, {}}; });
  bench.run("zoom out", [&](double part) { return View{fit * std::pow(16, 1 - part), 10, {}}; });
  bench.run("turn, fitted", [&](double part) { return View{fit, part * 360, {}}; });
  bench.run("turn 400%", [&](double part) { return View{4, part * 360, {200, 100}}; });
  bench.run("still", [&](double) { return View{fit, 0, {}}; });
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QCommandLineParser options;
  options.addPositionalArgument("file", "picture to show", "[FILE]");
  options.addOptions({{"width", "of the frame", "pixels", "1400"},
                      {"height", "of the frame", "pixels", "1000"},
                      {"only", "gestures whose name begins so", "gesture"},
                      {"worker", "picture process to use", "program"}});
  options.addHelpOption();
  options.process(application);

  std::unique_ptr<PictureService> service;
  Result<std::shared_ptr<NSImageRep>> opened = Error{};
  QElapsedTimer timer;
  timer.start();
  if (options.positionalArguments().isEmpty()) {
    service = std::make_unique<MemoryPictureService>(heavyPicture());
    opened = openPicture(*service, {"%PDF-1.7\n", "com.adobe.pdf", {}, 0});
  } else {
    auto worker = std::make_unique<WorkerService>(options.value("worker"));
    worker->yieldToWindows();
    service = std::move(worker);
    const QString path = options.positionalArguments().first();
    const Result<QByteArray> bytes = readDocumentFile(path);
    if (bytes)
      opened = openPicture(*service,
                           {*bytes, identifyType(*bytes, path).identifier(), QUrl::fromLocalFile(path), 0});
    else
      opened = bytes.error();
  }
  if (!opened) {
    QTextStream(stderr) << "frame_bench: " << opened.error().message << '\n';
    return 1;
  }
  const QSize size(options.value("width").toInt(), options.value("height").toInt());
  QTextStream(stdout) << QString::asprintf(
      "%d x %d frame, picture of %.0f x %.0f points, loaded in %lld ms\n", size.width(), size.height(),
      (*opened)->size().width(), (*opened)->size().height(), timer.elapsed());
  runAll(**opened, size, options.value("only"));
  return 0;
}
