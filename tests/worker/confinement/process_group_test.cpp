#include "worker/confinement/process_group.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "base/file_descriptor.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Two ends of a pipe: whoever holds the second keeps the first from ending.
struct Pipe {
  Pipe() {
    int ends[2] = {-1, -1};
    if (::pipe(ends) == 0) first = FileDescriptor(ends[0]), second = FileDescriptor(ends[1]);
  }
  FileDescriptor first, second;
};

bool isOver(const FileDescriptor& pipe) {
  char byte = 0;
  pollfd ended = {pipe.get(), POLLIN, 0};
  return ::poll(&ended, 1, 20'000) == 1 && ::read(pipe.get(), &byte, 1) == 0;
}

}  // namespace

class ProcessGroupTest : public QObject {
  Q_OBJECT
 private slots:
  void whomItHasForkedEndsWithIt() {
    Pipe begun, alive;
    const pid_t leader = ::fork();
    if (leader == 0) {
      ::setpgid(0, 0);
      if (::fork() == 0) (void)::write(begun.second.get(), "x", 1);
      while (true) ::pause();
    }
    QVERIFY(leader > 0);
    alive.second.reset();
    char byte = 0;
    QCOMPARE(::read(begun.first.get(), &byte, 1), ssize_t(1));
    const int status = endProcessGroup(leader);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGKILL);
    QVERIFY(isOver(alive.first));
  }

  void oneThatLeadsNoGroupYetEndsAlone() {
    const pid_t leader = ::fork();
    if (leader == 0)
      while (true) ::pause();
    QVERIFY(leader > 0);
    const int status = endProcessGroup(leader);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(::waitpid(leader, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
  }

  void theStatusOfOneThatHasEndedByItselfIsItsOwn() {
    Pipe alive;
    const pid_t leader = ::fork();
    if (leader == 0) ::_exit(7);
    QVERIFY(leader > 0);
    alive.second.reset();
    QVERIFY(isOver(alive.first));
    const int status = endProcessGroup(leader);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 7);
  }
};

NORVEX_TEST(ProcessGroupTest)
#include "process_group_test.moc"
