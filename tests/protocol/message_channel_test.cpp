#include "protocol/message_channel.h"
#include "protocol/limits.h"

#include <QDir>
#include <QtEndian>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <thread>

#include "kit/raw_message.h"
#include "kit/test_main.h"
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

qsizetype openDescriptors() {
  return QDir(QStringLiteral("/proc/self/fd"))
      .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
      .size();
}

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
    QCOMPARE(pair.ours.receive().error().kind, ErrorKind::Died);
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
    QCOMPARE(pair.ours.receive().error().kind, ErrorKind::Protocol);
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

  void sendingStopsAtTheDeadline() {
    Pair pair = makePair();
    const QByteArray large(limits::maximumMessageBytes, 'y');
    QVERIFY(!pair.ours.send(large, -1, QDeadlineTimer(20)).ok());
  }
};

NORVEX_TEST(MessageChannelTest)
#include "message_channel_test.moc"
