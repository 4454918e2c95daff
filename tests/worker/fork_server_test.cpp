#include "worker/fork_server.h"

#include <QTemporaryDir>

#include <fcntl.h>

#include <algorithm>
#include <utility>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "protocol/process_end.h"
#include "worker/confinement/process_files.h"

using namespace norvex;

namespace {

/// A connection of which the server sends one end into a child.
struct Line {
  FileDescriptor ours, theirs;
};

Line makeLine() {
  auto pair = MessageChannel::makePair();
  return pair ? Line{std::move(pair->first), std::move(pair->second)} : Line{};
}

/// Runs a server in a process of its own; each child tells by one letter whether it was forked warm or cold.
/// `converse` talks to the server and gives what was heard; from `warmed` a letter can be read once the
/// server is warm. The server ends with the connection.
QByteArray heard(
    const std::function<QByteArray(MessageChannel& control, const FileDescriptor& warmed)>& converse) {
  const QTemporaryDir scratch;
  auto pair = MessageChannel::makePair();
  const Line warmed = makeLine();
  if (!pair || !scratch.isValid() || !warmed.ours.valid()) return "no connection";
  const pid_t pid = ::fork();
  if (pid == 0) {
    pair->first.reset();
    char state = 'c';
    const auto tell = [&](FileDescriptor socket, const ForkRequest&, const QString&) {
      if (::write(socket.get(), &state, 1) != 1) ::_exit(1);
    };
    ForkServer(std::move(pair->second), scratch.path().toLocal8Bit(), tell, [&] {
      state = 'w';
      if (::write(warmed.theirs.get(), &state, 1) != 1) ::_exit(1);
    }).run();
    ::_exit(0);
  }
  pair->second.reset();
  QByteArray letters;
  {
    MessageChannel control(std::move(pair->first));
    letters = converse(control, warmed.ours);
  }
  ::waitpid(pid, nullptr, 0);
  return letters;
}

char letterFrom(const FileDescriptor& socket) {
  char letter = '?';
  return ::read(socket.get(), &letter, 1) == 1 ? letter : '-';
}

bool ask(MessageChannel& control, Line& line) {
  const bool sent = control.send(encodeMessage(ForkRequest{}), line.theirs.get()).ok();
  line.theirs.reset();
  return sent;
}

}  // namespace

class ForkServerTest : public QObject {
  Q_OBJECT
 private slots:
  void theFirstTwoChildrenWaitForNothing() {
    const QByteArray letters = heard([](MessageChannel& control, const FileDescriptor&) -> QByteArray {
      Line lines[4] = {makeLine(), makeLine(), makeLine(), makeLine()};
      QByteArray result;
      // All are asked for before the first is answered, so that the server has no idle moment between them.
      for (Line& line : lines)
        if (!ask(control, line)) return "not sent";
      for (Line& line : lines) result += letterFrom(line.ours);
      return result;
    });
    QCOMPARE(letters, QByteArray("ccww"));
  }

  void anIdleServerWarmsUp() {
    const QByteArray letters = heard([](MessageChannel& control, const FileDescriptor& warmed) -> QByteArray {
      if (letterFrom(warmed) != 'w') return "not warmed";
      Line line = makeLine();
      if (!ask(control, line)) return "not sent";
      return QByteArray(1, letterFrom(line.ours));
    });
    QCOMPARE(letters, QByteArray("w"));
  }

  void aChildHasWhatWasPreparedForIt() {
    const Line shared = makeLine();
    const QByteArray letters = lettersWith(
        [&](const ForkRequest& request) { return request.postScript ? shared.theirs.get() : -1; });
    QCOMPARE(letters, QByteArray("+-"));
    QCOMPARE(letterFrom(shared.ours), 's');
  }

  void whatWasPreparedArrivesWhoeverHadItsNumber() {
    // The confinement's own files are opened in between, at any number.
    FileDescriptor low[6];
    for (FileDescriptor& one : low) one.reset(::open("/dev/null", O_RDWR | O_CLOEXEC));
    const bool isFree = std::any_of(std::begin(low), std::end(low), [](const FileDescriptor& one) {
      return one.get() == ForkServer::kSharedDescriptor;
    });
    if (!isFree) QSKIP("somebody else has that number here");
    const Line shared = makeLine();
    bool moved = false;
    const auto prepare = [&](const ForkRequest&) {
      openProcessFiles();
      if (!std::exchange(moved, true)) (void)moveProcessFiles(ForkServer::kSharedDescriptor);
      return shared.theirs.get();
    };
    QCOMPARE(lettersWith(prepare), QByteArray("++"));
    QCOMPARE(letterFrom(shared.ours), 's');
  }

  /// And the server lives on: another picture needs no folder.
  void aFolderThatCannotBeMadeIsTold() {
    auto pair = MessageChannel::makePair();
    QVERIFY(pair.ok());
    const pid_t pid = ::fork();
    if (pid == 0) {
      pair->first.reset();
      const auto tell = [](FileDescriptor, const ForkRequest&, const QString&) {};
      ForkServer(std::move(pair->second), "/nowhere/at/all", tell, {}).run();
      ::_exit(0);
    }
    pair->second.reset();
    {
      MessageChannel control(std::move(pair->first));
      for (const bool postScript : {true, false}) {
        Line line = makeLine();
        ForkRequest request;
        request.postScript = postScript;
        QVERIFY(control.send(encodeMessage(request), line.theirs.get()).ok());
        const auto message = control.receive(QDeadlineTimer(60000));
        const auto reply = message ? decodeReply(message->cbor) : message.error();
        QVERIFY(reply.ok());
        const Error* error = std::get_if<Error>(&reply->body);
        QCOMPARE(error ? error->message : QString(),
                 postScript ? QString("no process for the picture could be started (No such file or "
                                      "directory)")
                            : QString());
      }
    }
    ::waitpid(pid, nullptr, 0);
  }

  /// One that ends well has told all that there is.
  void onlyAChildThatDiesIsTold() {
    const QTemporaryDir scratch;
    auto pair = MessageChannel::makePair();
    QVERIFY(pair.ok() && scratch.isValid());
    const pid_t pid = ::fork();
    if (pid == 0) {
      pair->first.reset();
      const auto end = [](FileDescriptor, const ForkRequest& request, const QString&) {
        if (request.postScript) ::_exit(kMemoryUsedUp);
      };
      ForkServer(std::move(pair->second), scratch.path().toLocal8Bit(), end, {}).run();
      ::_exit(0);
    }
    pair->second.reset();
    {
      MessageChannel control(std::move(pair->first));
      QStringList told;
      for (const bool dies : {false, true}) {
        Line line = makeLine();
        ForkRequest request;
        request.postScript = dies;
        QVERIFY(control.send(encodeMessage(request), line.theirs.get()).ok());
        line.theirs.reset();
        QCOMPARE(letterFrom(line.ours), '-');  // it has gone
      }
      for (int i = 0; i < 3; ++i) {
        const auto message = control.receive(QDeadlineTimer(60000));
        const auto reply = message ? decodeReply(message->cbor) : message.error();
        QVERIFY(reply.ok());
        const Error* error = std::get_if<Error>(&reply->body);
        told << (error ? error->message : QStringLiteral("begun"));
      }
      QCOMPARE(told, (QStringList{"begun", "begun", "the picture needs more memory than it is allowed"}));
    }
    ::waitpid(pid, nullptr, 0);
  }

  void whatAChildAsksForIsServed() {
    const Line shared = makeLine(), told = makeLine();
    ForkServer::Wish wish;
    wish.descriptor = [&] { return shared.ours.get(); };
    wish.serve = [&] {
      const char letter = letterFrom(shared.ours);
      if (::write(told.theirs.get(), &letter, 1) != 1) ::_exit(1);
    };
    const auto prepare = [&](const ForkRequest&) { return shared.theirs.get(); };
    // While the line is there: a server that ends need not look once more for what is wished.
    QCOMPARE(lettersWith(prepare, wish, &told.ours), QByteArray("+s+s"));
  }

 private:
  /// '+' for a child with a shared descriptor, to which it wrote, '-' for one without: of a request with
  /// postScript and of one without. Behind each what comes from `served`.
  static QByteArray lettersWith(const ForkServer::Prepare& prepare, const ForkServer::Wish& wish = {},
                                const FileDescriptor* served = nullptr) {
    const QTemporaryDir scratch;
    auto pair = MessageChannel::makePair();
    if (!pair || !scratch.isValid()) return "no connection";
    const pid_t pid = ::fork();
    if (pid == 0) {
      pair->first.reset();
      const auto tell = [](FileDescriptor socket, const ForkRequest&, const QString&) {
        const bool has = ::write(ForkServer::kSharedDescriptor, "s", 1) == 1;
        if (::write(socket.get(), has ? "+" : "-", 1) != 1) ::_exit(1);
      };
      ForkServer(std::move(pair->second), scratch.path().toLocal8Bit(), tell, {}, prepare, wish).run();
      ::_exit(0);
    }
    pair->second.reset();
    QByteArray letters;
    {
      MessageChannel control(std::move(pair->first));
      for (const bool postScript : {true, false}) {
        Line line = makeLine();
        ForkRequest request;
        request.postScript = postScript;
        if (!control.send(encodeMessage(request), line.theirs.get())) return "not sent";
        line.theirs.reset();
        letters += letterFrom(line.ours);
        if (served) letters += letterFrom(*served);
      }
    }
    ::waitpid(pid, nullptr, 0);
    return letters;
  }
};

NORVEX_TEST(ForkServerTest)
#include "fork_server_test.moc"
