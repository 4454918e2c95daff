// A PostScript program that takes too long for whoever waits for it, in the shipped picture program.
#include <QThread>

#include <memory>
#include <thread>

#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_service.h"
#include "protocol/program_stop.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kProgram = QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker");

QByteArray eps(const QByteArray& program) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 10 50 30\n%%EndComments\n" + program +
         "\nshowpage\n%%EOF\n";
}

/// A pixel for each point of the picture.
RenderRequest picture(int page = 0) {
  RenderRequest request;
  request.page = page;
  request.pixelSize = QSize(40, 20);
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, 20);
  return request;
}

/// The longest that a machine may take until something is drawn; milliseconds.
constexpr int kLongest = 60'000;

}  // namespace

class StoppedProgramTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    runtime_ = std::make_unique<RuntimeFolder>();
    service_ = std::make_unique<WorkerService>(kProgram);
  }
  void cleanup() {
    service_.reset();
    QVERIFY(hasNoChildren());
    QCOMPARE(runtime_->entries(), QStringList());
    runtime_.reset();
  }

  void showsWhatItHadDrawn_data() {
    QTest::addColumn<QByteArray>("program");
    const QByteArray red = "1 0 0 setrgbcolor 10 10 20 20 rectfill\n";
    QTest::newRow("a loop that draws nothing") << red + "{} loop";
    QTest::newRow("a loop that draws") << red + "{ 1 0 0 setrgbcolor 15 15 9 9 rectfill } loop";
    QTest::newRow("a long program") << red + QByteArray(20 << 20, ' ') + "{} loop";
    QTest::newRow("a loop that stops errors") << red + "{ { {} loop } stopped pop } loop";
    // It begins without the picture's offset.
    QTest::newRow("a device that is a copy")
        << red + "currentdevice copydevice setdevice 1 0 0 setrgbcolor 0 0 20 30 rectfill {} loop";
  }
  void showsWhatItHadDrawn() {
    QFETCH(QByteArray, program);
    const auto process =
        std::dynamic_pointer_cast<WorkerClient>(service_->open(eps(program), PictureKind::Eps));
    QVERIFY(process && process->facts());
    Result<QImage> begun = Error{};
    for (int wait = 3500; wait < kLongest && !begun; wait *= 2) {
      QCOMPARE(stopAfter(*process, wait), ErrorKind::Cancelled);
      begun = process->render(picture(begunPage));
    }
    QVERIFY2(begun.ok(), begun ? "" : qPrintable(begun.error().message));
    QCOMPARE(begun->pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(begun->pixelColor(35, 10), QColor(Qt::white));
    // A try that is stopped before it could show more takes nothing away.
    QCOMPARE(stopAfter(*process, 100), ErrorKind::Cancelled);
    QVERIFY(process->render(picture(begunPage)).ok());
  }

  /// Who cannot show what was begun does not have a program run twice.
  void aDrawingThatNobodyLooksAtMeanwhileBeginsNothing() {
    const auto process = std::dynamic_pointer_cast<WorkerClient>(
        service_->open(eps("1 0 0 setrgbcolor 10 10 20 20 rectfill {} loop"), PictureKind::Eps));
    QVERIFY(process && process->facts());
    for (const RenderPurpose purpose : {RenderPurpose::Preview, RenderPurpose::Export}) {
      QCOMPARE(stopAfter(*process, 4000, purpose), ErrorKind::Cancelled);
      QVERIFY(!process->render(picture(begunPage)));
    }
  }

  void aProgramThatHasDrawnNothingShowsNothing() {
    const auto process =
        std::dynamic_pointer_cast<WorkerClient>(service_->open(eps("{} loop"), PictureKind::Eps));
    QVERIFY(process && process->facts());
    QVERIFY(!process->render(picture(begunPage)));
    QCOMPARE(stopAfter(*process, 3500), ErrorKind::Cancelled);
    QVERIFY(!process->render(picture(begunPage)));
  }

  /// What looks on while a program runs changes nothing: neither the picture nor what is left behind.
  void aProgramThatTakesLongIsDrawnAsAnyOther() {
    const QByteArray slow =
        "/until usertime 4000 add def { usertime until gt { exit } if } loop\n"
        "/Helvetica findfont 9 scalefont setfont 12 12 moveto (Hill) show 0 0 1 setrgbcolor 30 10 20 20 "
        "rectfill";
    const auto shown = service_->open(eps(slow), PictureKind::Eps);
    const auto image = shown->render(picture());  // is looked at
    QVERIFY2(image.ok(), image ? "" : qPrintable(image.error().message));
    QCOMPARE(image->pixelColor(35, 10), QColor(Qt::blue));
    QVERIFY(!shown->render(picture(begunPage)));
    const auto looked = shown->pdf({});
    const auto alone = service_->open(eps(slow), PictureKind::Eps)->pdf({});  // is not
    QVERIFY(looked && alone);
    QCOMPARE(looked->bytes, alone->bytes);
  }

 private:
  static ErrorKind stopAfter(PictureProcess& process, int milliseconds,
                             RenderPurpose purpose = RenderPurpose::View) {
    const CancelToken cancel;
    std::thread user([&] {
      QThread::msleep(ulong(milliseconds));
      cancel.cancel();
    });
    RenderRequest request = picture();
    request.purpose = purpose;
    const auto drawn = process.render(request, cancel);
    user.join();
    return drawn ? ErrorKind::Unsupported : drawn.error().kind;
  }

  std::unique_ptr<RuntimeFolder> runtime_;
  std::unique_ptr<WorkerService> service_;
};

NORVEX_TEST(StoppedProgramTest)
#include "stopped_program_test.moc"
