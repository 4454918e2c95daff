// How long the window's thread is held up by copying and by Save To, and how frames come while other programs
// take every format from the clipboard at once.
//
// usage: copy_bench FILE [--worker PROGRAM] [--rounds N]
//
// Needs an X server and xclip. Prints for each step the wall time and the processor time of the window's
// thread (the one to look at when the machine has other work), both in milliseconds; for the frames median,
// 99th percentile and maximum.
#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

#include "document/document.h"
#include "picture/client/worker_service.h"
#include "picture/image_rep.h"
#include "types/uniform_type.h"
#include "ui/panels/qt_pasteboard.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/main_window_controller.h"

using namespace norvex;

namespace {

constexpr int kPatience = 60000;  // milliseconds

double threadMilliseconds() {
  timespec used = {};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

struct Cost {
  double wall = 0, processor = 0;
};

Cost costOf(const std::function<void()>& work) {
  QElapsedTimer timer;
  timer.start();
  const double before = threadMilliseconds();
  work();
  return {double(timer.nsecsElapsed()) / 1e6, threadMilliseconds() - before};
}

QString text(const char* what, const Cost& cost) {
  return QString::asprintf("%-34s wall %7.2f   processor %7.2f\n", what, cost.wall, cost.processor);
}

/// The picture is turned a little at each tick of a screen's clock, and every turn of the event loop is
/// measured.
class Frames {
 public:
  explicit Frames(MainWindowController& controller) : controller_(controller) {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] { frame(); });
  }
  void runWhile(const std::function<bool()>& going) {
    wall_.clear();
    processor_.clear();
    between_.clear();
    processorSince_ = threadMilliseconds();
    timer_.start(16);
    QElapsedTimer patience;
    patience.start();
    while (going() && patience.elapsed() < kPatience)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    timer_.stop();
  }
  [[nodiscard]] QString told(const char* what) {
    return QString::asprintf("%-34s %4zu frames", what, wall_.size()) + quantiles("   drawn in", wall_) +
           quantiles(", processor", processor_) + quantiles("   loop between, processor", between_) + u'\n';
  }

 private:
  void frame() {
    between_.push_back(threadMilliseconds() - processorSince_);
    degrees_ += 1;
    const Cost cost = costOf([this] {
      controller_.rotateChange(degrees_);
      controller_.viewWidget()->repaint();
    });
    wall_.push_back(cost.wall);
    processor_.push_back(cost.processor);
    processorSince_ = threadMilliseconds();
  }
  static QString quantiles(const char* what, std::vector<double> all) {
    if (all.empty()) return {};
    std::sort(all.begin(), all.end());
    return QString::asprintf("%s median %.2f p99 %.2f max %.2f", what, all[all.size() / 2],
                             all[all.size() * 99 / 100], all.back());
  }

  MainWindowController& controller_;
  QTimer timer_;
  double processorSince_ = 0, degrees_ = 0;
  std::vector<double> wall_, processor_, between_;
};

/// Takes everything that is on the clipboard, all formats at once.
class Clients {
 public:
  void start() {
    QStringList names;
    for (const UTType& type :
         {UTTypeSVG(), UTTypePDF(), *UTType::typeWithIdentifier(NorvexEPSType), UTTypePNG(), UTTypeTIFF()})
      names << clipboardTargets(type.identifier()) << type.identifier();
    for (const QString& name : names) {
      auto client = std::make_unique<QProcess>();
      client->start("xclip", {"-selection", "clipboard", "-o", "-t", name});
      clients_.push_back(std::move(client));
    }
  }
  [[nodiscard]] bool areTaking() const {
    return std::any_of(clients_.begin(), clients_.end(),
                       [](const auto& client) { return client->state() != QProcess::NotRunning; });
  }
  [[nodiscard]] qint64 bytes() const {
    qint64 sum = 0;
    for (const auto& client : clients_) sum += client->bytesAvailable();
    return sum;
  }
  [[nodiscard]] size_t count() const { return clients_.size(); }

 private:
  std::vector<std::unique_ptr<QProcess>> clients_;
};

void measure(MainWindowController& controller) {
  QTextStream out(stdout);
  Frames frames(controller);
  bool copied = false;
  const auto connection =
      QObject::connect(&controller, &MainWindowController::copied, [&] { copied = true; });
  out << text("Copy", costOf([&] { controller.doCopy(); }));
  frames.runWhile([&] { return !copied; });
  out << frames.told("  while its bytes are made");
  Clients clients;
  clients.start();
  frames.runWhile([&] { return clients.areTaking(); });
  out << frames.told("  while all are taken");
  out << QString::asprintf("    (%zu clients, %lld bytes)\n", clients.count(), clients.bytes());
  QObject::disconnect(connection);
  out << text("Save To", costOf([&] {
                controller.doSaveTo();
                QCoreApplication::processEvents();
              }));
  QElapsedTimer filling;
  filling.start();
  frames.runWhile([&] { return filling.elapsed() < 3000; });
  out << frames.told("  while its sheet is filled");
  for (QWidget* sheet : QApplication::topLevelWidgets())
    if (sheet->isModal()) sheet->close();
  QCoreApplication::processEvents();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QCommandLineParser options;
  options.addPositionalArgument("file", "picture to show", "FILE");
  options.addOptions(
      {{"worker", "picture process to use", "program"}, {"rounds", "how often", "number", "3"}});
  options.addHelpOption();
  options.process(application);
  if (options.positionalArguments().isEmpty()) options.showHelp(2);
  const QFileInfo file(options.positionalArguments().first());
  const auto type = UTType::typeWithFilenameExtension(file.suffix());
  WorkerService service(options.value("worker"));
  Document document(service, [] { return std::make_unique<MainWindowController>(); });
  document.setFileURL(QUrl::fromLocalFile(file.absoluteFilePath()));
  document.setFileType(type ? type->identifier() : QString());
  document.makeWindowControllers();
  auto& controller = *static_cast<MainWindowController*>(document.windowController());
  controller.showWindow();
  const auto isSharp = [&] {
    return !controller.isReading() && controller.view()->imageRep() &&
           controller.view()->imageRep()->isSharp();
  };
  if (!QTest::qWaitFor(isSharp, kPatience)) {
    QTextStream(stderr) << "copy_bench: the picture is not shown\n";
    return 1;
  }
  for (int round = 0; round < options.value("rounds").toInt(); ++round) measure(controller);
  controller.window()->hide();
  return 0;
}
