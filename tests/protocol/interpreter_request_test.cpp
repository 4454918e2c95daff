#include "protocol/interpreter_request.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "kit/raw_message.h"
#include "kit/test_main.h"
#include "kit/test_programs.h"

using namespace norvex;

namespace {

FileDescriptor somePipe(FileDescriptor& reading) {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) return {};
  reading.reset(ends[0]);
  return FileDescriptor(ends[1]);
}

InterpreterRequest someRequest(FileDescriptor (&reading)[4]) {
  InterpreterRequest request;
  request.limits.seconds = 7;
  request.limits.memoryMiB = 123;
  request.device = InterpreterDevice::Plates;
  request.program = somePipe(reading[0]);
  request.output = somePipe(reading[1]);
  request.messages = somePipe(reading[2]);
  request.outcome = somePipe(reading[3]);
  return request;
}

constexpr int kNotRefused = 77;

/// In a process of its own, of a user who has nothing else: more descriptors are under way than it may open
/// files, and nobody takes them. 0: a request ends with this error.
int askAmongManyDescriptors(ErrorKind expected, const CancelToken& cancel) {
  ::alarm(60);
  if (::geteuid() == 0 && ::setresuid(65533, 65533, 65533) != 0) return 1;
  auto connection = makeInterpreterConnection();
  FileDescriptor reading[4];
  const InterpreterRequest request = someRequest(reading);
  int crowd[2];
  if (!connection || ::socketpair(AF_UNIX, SOCK_STREAM, 0, crowd) != 0) return 2;
  const rlimit few = {64, 64};
  ::setrlimit(RLIMIT_NOFILE, &few);
  bool isRefused = false;
  for (int i = 0; i < 64 && !isRefused; ++i)
    isRefused = !kit::sendRaw(crowd[0], "x", {0, 0, 0, 0, 0, 0, 0, 0}) && errno == ETOOMANYREFS;
  if (!isRefused) return kNotRefused;
  const auto sent = sendInterpreterRequest(connection->asking.get(), request, cancel,
                                           QDeadlineTimer(expected == ErrorKind::Cancelled ? -1 : 20));
  return !sent && sent.error().kind == expected ? 0 : 3;
}

int askAndBeStopped(const QStringList& arguments) {
  const auto expected = ErrorKind(arguments.at(0).toInt());
  const CancelToken cancel;
  std::thread canceller([&] {
    ::usleep(20'000);
    if (expected == ErrorKind::Cancelled) cancel.cancel();
  });
  const int told = askAmongManyDescriptors(expected, cancel);
  canceller.join();
  return told;
}
const bool asking = kit::registerProgram("ask-and-be-stopped", askAndBeStopped);

}  // namespace

class InterpreterRequestTest : public QObject {
  Q_OBJECT
 private slots:
  void limitsAndDescriptorsArrive() {
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    FileDescriptor reading[4];
    QVERIFY(sendInterpreterRequest(connection->asking.get(), someRequest(reading)).ok());
    const auto request = receiveInterpreterRequest(connection->taking.get());
    QVERIFY(request.ok());
    QCOMPARE(request->asker, int(::getpid()));
    QCOMPARE(request->limits.seconds, 7);
    QCOMPARE(request->limits.memoryMiB, 123);
    QCOMPARE(request->device, InterpreterDevice::Plates);
    const FileDescriptor* arrived[4] = {&request->program, &request->output, &request->messages,
                                        &request->outcome};
    for (int i = 0; i < 4; ++i) {
      const char letter = char('a' + i);
      char read = 0;
      QCOMPARE(::write(arrived[i]->get(), &letter, 1), ssize_t(1));
      QCOMPARE(::read(reading[i].get(), &read, 1), ssize_t(1));
      QCOMPARE(read, letter);
    }
  }

  void theEndComesWhenTheLastAskerIsGone() {
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    FileDescriptor other(::dup(connection->asking.get()));
    connection->asking.reset();
    FileDescriptor reading[4];
    QVERIFY(sendInterpreterRequest(other.get(), someRequest(reading)).ok());
    QVERIFY(receiveInterpreterRequest(connection->taking.get()).ok());
    other.reset();
    QCOMPARE(receiveInterpreterRequest(connection->taking.get()).error().kind, ErrorKind::Died);
  }

  void whoeverAsksNobodyIsToldAtOnce() {
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    connection->taking.reset();
    FileDescriptor reading[4];
    QCOMPARE(sendInterpreterRequest(connection->asking.get(), someRequest(reading)).error().kind,
             ErrorKind::Died);
  }

  void aRequestThatNobodyTookEndsItsPipes() {
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    FileDescriptor reading[4];
    QVERIFY(sendInterpreterRequest(connection->asking.get(), someRequest(reading)).ok());
    connection->taking.reset();
    char letter = 0;
    QCOMPARE(::read(reading[3].get(), &letter, 1), ssize_t(0));
  }

  void readinessIsToldOnceAndOutlivesWhoTellsIt() {
    auto readiness = makeReadinessPipe();
    QVERIFY(readiness.ok());
    QVERIFY(!hadInterpretersReady(readiness->hearing.get()));
    tellInterpretersReady(std::move(readiness->telling));
    QVERIFY(hadInterpretersReady(readiness->hearing.get()));
    QVERIFY(!hadInterpretersReady(readiness->hearing.get()));
    auto silent = makeReadinessPipe();
    QVERIFY(silent.ok());
    silent->telling.reset();
    QVERIFY(!hadInterpretersReady(silent->hearing.get()));
  }

  void aRequestThatMayNotBeSentEndsAtItsDeadlineOrWithACancel_data() {
    QTest::addColumn<ErrorKind>("expected");
    QTest::newRow("deadline") << ErrorKind::Died;
    QTest::newRow("cancel") << ErrorKind::Cancelled;
  }
  void aRequestThatMayNotBeSentEndsAtItsDeadlineOrWithACancel() {
    QFETCH(ErrorKind, expected);
    const kit::Ran ran = kit::runProgram("ask-and-be-stopped", {QString::number(int(expected))});
    QVERIFY(!ran.crashed);
    const int answer = ran.exitCode;
    if (answer == kNotRefused) QSKIP("this kernel bounds no descriptors under way");
    QCOMPARE(answer, 0);
  }

  void aRequestOfAnotherFormIsNoneAndItsDescriptorsAreClosed_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("descriptors");
    const QByteArray limits = encodeMessage(ForkRequest{});
    QTest::newRow("as it ought to be") << 'p' + limits << 4;
    QTest::newRow("another device") << 'x' + limits << 4;
    QTest::newRow("a descriptor less") << 'p' + limits << 3;
    QTest::newRow("a descriptor more") << 'p' + limits << 5;
    QTest::newRow("another message") << 'p' + encodeMessage(CancelRequest{1}) << 4;
    QTest::newRow("more than there is room for") << 'p' + limits + QByteArray(5000, 'x') << 4;
  }
  void aRequestOfAnotherFormIsNoneAndItsDescriptorsAreClosed() {
    QFETCH(QByteArray, bytes);
    QFETCH(int, descriptors);
    bytes[0] = bytes[0] == 'p' ? char(InterpreterDevice::Pdf) : bytes[0];
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    const int one = writing.get(), asking = connection->asking.get();
    const bool sent = descriptors == 3   ? kit::sendRaw(asking, bytes, {one, one, one})
                      : descriptors == 4 ? kit::sendRaw(asking, bytes, {one, one, one, one})
                                         : kit::sendRaw(asking, bytes, {one, one, one, one, one});
    QVERIFY(sent);
    writing.reset();
    const bool isOne = qstrcmp(QTest::currentDataTag(), "as it ought to be") == 0;
    {
      const auto request = receiveInterpreterRequest(connection->taking.get());
      QCOMPARE(request.ok(), isOne);
      if (!isOne) QCOMPARE(request.error().kind, ErrorKind::Protocol);
      if (!isOne) QCOMPARE(request.error().message, "this asks for no interpreter of PostScript");
    }
    char letter = 0;
    QCOMPARE(::read(reading.get(), &letter, 1), ssize_t(0));  // nobody holds the other end any more
  }

  void rubbishIsNoRequest_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("not CBOR") << QByteArray("rubbish");
    QTest::newRow("another message") << encodeMessage(CancelRequest{1});
    QTest::newRow("without descriptors") << encodeMessage(ForkRequest{});
    QTest::newRow("long") << QByteArray(100'000, 'x');
  }
  void rubbishIsNoRequest() {
    QFETCH(QByteArray, bytes);
    auto connection = makeInterpreterConnection();
    QVERIFY(connection.ok());
    QCOMPARE(::send(connection->asking.get(), bytes.constData(), size_t(bytes.size()), 0), bytes.size());
    QCOMPARE(receiveInterpreterRequest(connection->taking.get()).error().kind, ErrorKind::Protocol);
  }
};

NORVEX_TEST(InterpreterRequestTest)
#include "interpreter_request_test.moc"
