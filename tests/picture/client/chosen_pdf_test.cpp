// A PDF as its reader chose to see it, made by a process of its own; and what is final about an opening.
#include <csignal>

#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_service.h"
#include "picture/process/reader_choices.h"
#include "protocol/every_page.h"
#include "protocol/shared_errors.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kStub = QStringLiteral(NORVEX_BUILD_DIR "/norvex-stub-worker");
const QString kMisbehaving = QStringLiteral(NORVEX_BUILD_DIR "/norvex-misbehaving-worker");

/// Kills the program behind the service, so that whoever asks it again starts another one.
qint64 killedProgram(const WorkerService& service) {
  const qint64 program = service.programProcessId();
  ::kill(pid_t(program), SIGKILL);
  return eventually([&] { return stateOf(program) == 'Z' || stateOf(program) == 0; }) ? program : -1;
}

}  // namespace

class ChosenPdfTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { runtime_ = std::make_unique<RuntimeFolder>(); }
  void cleanup() {
    QVERIFY(hasNoChildren());
    runtime_.reset();
  }

  void aProcessOfItsOwnMakesItAndEnds() {
    WorkerService service(kStub);
    const auto made = service.chosenPdf("ok", {}, PictureLimits{1, 256, 10});
    QVERIFY2(made.ok(), made.ok() ? "" : qPrintable(made.error().message));
    QCOMPARE(made->bytes, "PDF " + QByteArray::number(everyPage));
    QVERIFY(eventually([&] { return childrenOf(service.programProcessId()).isEmpty(); }));
  }

  void itsFailuresAreThoseOfOpeningAndOfMaking() {
    WorkerService stub(kStub);
    QCOMPARE(stub.chosenPdf("refuse", {}).error().kind, ErrorKind::Encrypted);
    QCOMPARE(stub.chosenPdf("crash", {}).error().kind, ErrorKind::Died);
    CancelToken cancel;
    cancel.cancel();
    QCOMPARE(stub.chosenPdf("hang-cancellable", {}, {}, cancel).error().kind, ErrorKind::Cancelled);
    WorkerService lying(kMisbehaving);
    for (const char* mode : {"at-open wrong-type", "wrong-type", "negative-dpi", "unsealed-memory"})
      QCOMPARE(lying.chosenPdf(mode, {}).error().kind, ErrorKind::Protocol);
  }

  void itHasTheTimeOfItsLimits() {
    WorkerService lying(kMisbehaving);
    // Its answer takes more than a second.
    QVERIFY(isInterpreterLost(lying.chosenPdf("lost-slowly", {}, PictureLimits{60, 256, 10}).error()));
    QCOMPARE(lying.chosenPdf("hang", {}, PictureLimits{1, 256, 10}).error().kind, ErrorKind::TimedOut);
  }

  void whatADocumentIsRefusedForIsFinal() {
    WorkerService service(kStub);
    const auto document = service.open("refuse", PictureKind::Pdf);
    QCOMPARE(document->facts().error().kind, ErrorKind::Encrypted);
    const qint64 program = killedProgram(service);
    QCOMPARE(document->facts().error().kind, ErrorKind::Encrypted);
    QCOMPARE(service.programProcessId(), program);
  }

  void anotherProcessIsAskedWhereOneLied() {
    WorkerService service(kMisbehaving);
    const auto document = service.open("at-open wrong-type", PictureKind::Pdf);
    QCOMPARE(document->facts().error().kind, ErrorKind::Protocol);
    const qint64 program = killedProgram(service);
    QCOMPARE(document->facts().error().kind, ErrorKind::Protocol);
    QVERIFY(program > 0 && service.programProcessId() != program);
  }

 private:
  std::unique_ptr<RuntimeFolder> runtime_;
};

NORVEX_TEST(ChosenPdfTest)
#include "chosen_pdf_test.moc"
