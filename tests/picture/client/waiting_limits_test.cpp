// How long a picture process and its program are waited for: what does not end by itself is ended.
#include <QFile>
#include <QTemporaryDir>

#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_service.h"
#include "picture/client/worker_starter.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kStub = QStringLiteral(NORVEX_BUILD_DIR "/norvex-stub-worker");

}  // namespace

class WaitingLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    runtime_ = std::make_unique<RuntimeFolder>();
    service_ = std::make_unique<WorkerService>(kStub);
  }
  void cleanup() {
    service_.reset();
    QVERIFY(hasNoChildren());
    QCOMPARE(runtime_->entries(), QStringList());
    runtime_.reset();
  }

  /// What serves no document has few seconds, whatever a document may have.
  void aPreviewThatIsNeverReadyEndsWithItsTime() {
    QCOMPARE(toolLimits().seconds, limits::toolSeconds);
    PictureLimits few = toolLimits();
    few.seconds = 1;
    const auto bitmap = service_->decodePreview("hang", {}, few);
    QCOMPARE(bitmap.error().kind, ErrorKind::TimedOut);
    QVERIFY(eventually([&] { return childrenOf(service_->programProcessId()).isEmpty(); }));
    QCOMPARE(service_->decodePreview("abc")->data, QByteArray("abc"));
  }

  /// Engines that watch the time themselves have a little longer, to say so; one that does not is killed.
  void aProcessThatLetsItsTimeGoByIsKilled() {
    QVERIFY(limits::answerGrace > 0);
    const auto process = service_->open("sleepy", PictureKind::Pdf, PictureLimits{1, 256, 10});
    QVERIFY(process->facts().ok());
    const qint64 pid = static_cast<WorkerClient&>(*process).processId();
    RenderRequest request;
    request.pixelSize = QSize(4, 3);
    const auto image = process->render(request);
    QCOMPARE(image.error().kind, ErrorKind::TimedOut);
    QVERIFY2(image.error().message.contains("was not ready within the time"),
             qPrintable(image.error().message));
    QVERIFY(eventually([&] { return stateOf(pid) == 0; }));
  }

  /// The line to it is closed: that is all that it is told.
  void aProgramThatDoesNotEndWithItsLineIsKilled() {
    QVERIFY(limits::programFarewell > 0);
    QTemporaryDir folder;
    QFile script(folder.filePath("worker"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\ntrap '' HUP INT TERM PIPE\nexec sleep 1000\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    qint64 pid = 0;
    {
      WorkerStarter starter(script.fileName());
      QVERIFY(starter.start().ok());
      pid = starter.pid();
      QVERIFY(pid > 0 && stateOf(pid) != 0);
    }
    QCOMPARE(int(stateOf(pid)), 0);
  }

 private:
  std::unique_ptr<RuntimeFolder> runtime_;
  std::unique_ptr<WorkerService> service_;
};

NORVEX_TEST(WaitingLimitsTest)
#include "waiting_limits_test.moc"
