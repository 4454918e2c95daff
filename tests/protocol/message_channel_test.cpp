#include "protocol/message_channel.h"
#include "protocol/limits.h"

#include <QDir>
#include <QtEndian>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <thread>

#include "kit/raw_message.h"
#include "kit/test_main.h"
#include "kit/test_programs.h"
#include "protocol/worker_protocol.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

struct Pair {
  MessageChannel ours;
  FileDescriptor theirs;  ///< a bare socket, to send what a channel never would
};

Pair makePair() {
  auto pair = MessageChannel::makePair();
  return {MessageChannel(std::move(pair->first)), std::move(pair->second)};
}

/// A byte with these descriptors; false if the kernel refuses it.
bool sendRawDescriptors(int socket, const QList<int>& descriptors) {
  char byte = 'x';
  iovec part = {&byte, 1};
  QByteArray room(qsizetype(CMSG_SPACE(size_t(descriptors.size()) * sizeof(int))), '\0');
  msghdr message = {};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = room.data();
  message.msg_controllen = size_t(room.size());
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(size_t(descriptors.size()) * sizeof(int));
  std::memcpy(CMSG_DATA(header), descriptors.constData(), size_t(descriptors.size()) * sizeof(int));
  return ::sendmsg(socket, &message, MSG_NOSIGNAL) == 1;
}

qsizetype openDescriptors() {
  return QDir(QStringLiteral("/proc/self/fd"))
      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
      .size();
}

constexpr int kNotRefused = 77, kTooManyOfOthers = 78;

/// Of a user other than root other programs may keep too many descriptors under way, until they are taken.
bool sendCrowd(int socket) {
  for (int tries = 0; tries < 4000; ++tries) {
    if (sendRawDescriptors(socket, QList<int>(200, 0))) return true;
    if (errno != ETOOMANYREFS) return false;
    ::usleep(5'000);
  }
  return false;
}

/// In a process of its own that is not root: with more descriptors under way than it may open files, a
/// message with one is sent while another thread takes them. 0: it arrived.
int sendAmongManyDescriptors(const QStringList&) {
  if (::geteuid() == 0 && ::setresuid(65534, 65534, 65534) != 0) return 1;
  const rlimit few = {64, 64};
  ::setrlimit(RLIMIT_NOFILE, &few);
  int crowd[2], refused[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM, 0, crowd) != 0 ||
      ::socketpair(AF_UNIX, SOCK_STREAM, 0, refused) != 0)
    return 2;
  if (!sendCrowd(crowd[0])) return errno == ETOOMANYREFS ? kTooManyOfOthers : 3;
  if (sendRawDescriptors(refused[0], {0})) return kNotRefused;
  auto pair = MessageChannel::makePair();
  MessageChannel ours(std::move(pair->first)), theirs(std::move(pair->second));
  std::thread taker([&] {
    ::usleep(50'000);
    ::close(crowd[1]);
  });
  const bool sent = ours.send("message", 0, QDeadlineTimer(20'000)).ok();
  taker.join();
  const auto got = theirs.receive(QDeadlineTimer(20'000));
  return sent && got && got->cbor == "message" && got->descriptor.valid() ? 0 : 4;
}
const bool sending = registerProgram("send-among-many-descriptors", sendAmongManyDescriptors);

}  // namespace

class MessageChannelTest : public QObject {
  Q_OBJECT
 private slots:
  void messagesArriveInOrder() {
    auto pair = MessageChannel::makePair();
    MessageChannel a(std::move(pair->first)), b(std::move(pair->second));
    QVERIFY(a.send("one").ok());
    QVERIFY(a.send(QByteArray(1000, 'x')).ok());
    QVERIFY(b.send("back").ok());
    QCOMPARE(b.receive()->cbor, QByteArray("one"));
    QCOMPARE(b.receive()->cbor, QByteArray(1000, 'x'));
    QCOMPARE(a.receive()->cbor, QByteArray("back"));
  }

  void aMessageOfTheLargestSizeArrives() {
    auto pair = MessageChannel::makePair();
    MessageChannel a(std::move(pair->first)), b(std::move(pair->second));
    const QByteArray large(limits::maximumMessageBytes, 'y');
    std::thread sender([&] { QVERIFY(a.send(large).ok()); });
    const auto message = b.receive();
    sender.join();
    QVERIFY(message.ok());
    QVERIFY(message->cbor == large);
    QVERIFY(!a.send(large + 'z').ok());
  }

  void aDescriptorArrivesWithItsMessage() {
    auto pair = MessageChannel::makePair();
    MessageChannel a(std::move(pair->first)), b(std::move(pair->second));
    int pipe[2] = {-1, -1};
    QCOMPARE(::pipe2(pipe, O_CLOEXEC), 0);
    FileDescriptor readEnd(pipe[0]), writeEnd(pipe[1]);
    QVERIFY(a.send("bare").ok());
    QVERIFY(a.send("with", readEnd.get()).ok());
    QVERIFY(!b.receive()->descriptor.valid());
    auto message = b.receive();
    QVERIFY(message->descriptor.valid());
    QCOMPARE(::fcntl(message->descriptor.get(), F_GETFD), FD_CLOEXEC);
    QCOMPARE(::write(writeEnd.get(), "!", 1), ssize_t(1));
    char got = 0;
    QCOMPARE(::read(message->descriptor.get(), &got, 1), ssize_t(1));
    QCOMPARE(got, '!');
  }

  void aMessageMayArriveByteByByte() {
    Pair pair = makePair();
    const QByteArray wire = framed("slowly");
    for (qsizetype i = 0; i < wire.size(); ++i) {
      const auto early = pair.ours.receive(QDeadlineTimer(0));
      QVERIFY(!early.ok());
      QCOMPARE(early.error().kind, ErrorKind::TimedOut);
      QCOMPARE(early.error().message, "the picture process did not answer in time");
      QVERIFY(sendRaw(pair.theirs.get(), wire.mid(i, 1)));
    }
    QCOMPARE(pair.ours.receive(QDeadlineTimer(0))->cbor, QByteArray("slowly"));
  }

  void anInterruptionEndsTheWaitAndTheChannelStaysUsable() {
    Pair pair = makePair();
    const FileDescriptor wake(::eventfd(1, EFD_CLOEXEC));
    QVERIFY(sendRaw(pair.theirs.get(), framed("whole").left(6)));
    const auto early = pair.ours.receive(QDeadlineTimer(QDeadlineTimer::Forever), wake.get());
    QVERIFY(!early.ok());
    QCOMPARE(early.error().kind, ErrorKind::Cancelled);
    QCOMPARE(early.error().message, "the answer is no longer waited for");
    QVERIFY(sendRaw(pair.theirs.get(), framed("whole").mid(6)));
    QCOMPARE(pair.ours.receive(QDeadlineTimer(QDeadlineTimer::Forever), wake.get())->cbor,
             QByteArray("whole"));
  }

  void theOtherSideCloses() {
    Pair pair = makePair();
    QVERIFY(pair.ours.isConnected());
    QVERIFY(sendRaw(pair.theirs.get(), framed("half").left(6)));
    pair.theirs.reset();
    QVERIFY(!pair.ours.isConnected());
    const Error ended = pair.ours.receive().error();
    QCOMPARE(ended.kind, ErrorKind::Died);
    QCOMPARE(ended.message, "the picture process ended without an answer");
    QCOMPARE(pair.ours.send("no signal kills us").error().kind, ErrorKind::Died);
  }

  void lengthsOutOfRangeAreRefused_data() {
    QTest::addColumn<quint32>("length");
    QTest::newRow("0") << 0u;
    QTest::newRow("limit + 1") << limits::maximumMessageBytes + 1;
    QTest::newRow("2 GiB") << 0x80000000u;
    QTest::newRow("4 GiB - 1") << 0xffffffffu;
  }
  void lengthsOutOfRangeAreRefused() {
    QFETCH(quint32, length);
    Pair pair = makePair();
    QByteArray wire(4, '\0');
    qToLittleEndian(length, wire.data());
    QVERIFY(sendRaw(pair.theirs.get(), wire));
    const Error refused = pair.ours.receive().error();
    QCOMPARE(refused.kind, ErrorKind::Protocol);
    QCOMPARE(refused.message, "the picture process sent something that is not a message");
  }

  void twoDescriptorsAreRefusedAndClosed_data() {
    QTest::addColumn<int>("count");
    QTest::newRow("2") << 2;
    QTest::newRow("3") << 3;
    QTest::newRow("8") << 8;
  }
  void twoDescriptorsAreRefusedAndClosed() {
    QFETCH(int, count);
    Pair pair = makePair();
    const qsizetype before = openDescriptors();
    if (count == 2) QVERIFY(sendRaw(pair.theirs.get(), framed("x"), {0, 0}));
    if (count == 3) QVERIFY(sendRaw(pair.theirs.get(), framed("x"), {0, 0, 0}));
    if (count == 8) QVERIFY(sendRaw(pair.theirs.get(), framed("x"), {0, 0, 0, 0, 0, 0, 0, 0}));
    QCOMPARE(pair.ours.receive().error().kind, ErrorKind::Protocol);
    QCOMPARE(openDescriptors(), before);
  }

  void aDescriptorAfterTheLengthIsRefusedAndClosed() {
    for (int at : {4, 6}) {
      Pair pair = makePair();
      const qsizetype before = openDescriptors();
      const QByteArray wire = framed("abcdef");
      QVERIFY(sendRaw(pair.theirs.get(), wire.left(at)));
      QVERIFY(sendRaw(pair.theirs.get(), wire.mid(at), {0}));
      QCOMPARE(pair.ours.receive().error().kind, ErrorKind::Protocol);
      QCOMPARE(openDescriptors(), before);
    }
  }

  void anUnwantedDescriptorIsClosedWithItsMessage() {
    Pair pair = makePair();
    const qsizetype before = openDescriptors();
    QVERIFY(sendRaw(pair.theirs.get(), framed("x"), {0}));
    {
      const auto message = pair.ours.receive();
      QVERIFY(message->descriptor.valid());
      QCOMPARE(openDescriptors(), before + 1);
    }
    QCOMPARE(openDescriptors(), before);
  }

  void aMessageWaitsUntilDescriptorsThatOthersHaveUnderWayAreTaken() {
    const Ran ran = runProgram("send-among-many-descriptors", {});
    QVERIFY(!ran.crashed);
    if (ran.exitCode == kNotRefused) QSKIP("this kernel bounds no descriptors under way");
    if (ran.exitCode == kTooManyOfOthers) QSKIP("other programs keep too many descriptors under way");
    QCOMPARE(ran.exitCode, 0);
  }

  void sendingStopsAtTheDeadline() {
    Pair pair = makePair();
    const QByteArray large(limits::maximumMessageBytes, 'y');
    QVERIFY(!pair.ours.send(large, -1, QDeadlineTimer(20)).ok());
  }
};

NORVEX_TEST(MessageChannelTest)
#include "message_channel_test.moc"
