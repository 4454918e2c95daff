#include "worker/postscript/ghostscript.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include "protocol/interpreter_request.h"
#include "protocol/limits.h"
#include "protocol/process_end.h"
#include "protocol/shared_errors.h"
#include "worker/confinement/process_group.h"
#include "worker/confinement/sandbox.h"
#include "worker/confinement/scratch_watch.h"

namespace norvex::engine {
namespace {

constexpr int kLookMilliseconds = 50;       // how often the cancel token is looked at
constexpr int kLookMillisecondsForTwo = 5;  // and another child, which reads a program as well

struct Pipe {
  int end[2] = {-1, -1};
  [[nodiscard]] bool open() { return ::pipe2(end, O_CLOEXEC) == 0; }
  /// For the output of the device: of pixels both ends are one file in memory.
  [[nodiscard]] bool openFor(InterpreterDevice device) {
    if (device == InterpreterDevice::Pdf) return open();
    end[1] = ::memfd_create("pixels", MFD_CLOEXEC);
    end[0] = end[1] < 0 ? -1 : ::fcntl(end[1], F_DUPFD_CLOEXEC, 0);
    return end[0] >= 0;
  }
  void close(int which) {
    if (end[which] >= 0) ::close(end[which]);
    end[which] = -1;
  }
  int take(int which) { return std::exchange(end[which], -1); }
  ~Pipe() { close(0), close(1); }
};

const char* program() {
  for (const char* path : {NORVEX_PACKAGES_PREFIX "/bin/gs", "/usr/local/bin/gs"})
    if (::access(path, X_OK) == 0) return path;
  return nullptr;
}

int descriptorLimit() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return 1024;
  return int(std::min<rlim_t>(limit.rlim_cur, 4096));
}

// Runs between fork and exec: nothing here may allocate or lock.
[[noreturn]] void becomeGhostscript(const char* path, char* const* arguments, char* const* environment,
                                    const std::array<int, 3>& standard, int descriptors, pid_t parent,
                                    int seconds) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(127);
  for (int i = 0; i < 3; ++i)
    if (::dup2(standard[size_t(i)], i) < 0) ::_exit(127);
  for (int descriptor = 3; descriptor < descriptors; ++descriptor) ::close(descriptor);
  ::signal(SIGPIPE, SIG_DFL);
  if (!sealStartedProgram(seconds)) ::_exit(127);
  ::execve(path, arguments, environment);
  ::_exit(127);
}

std::vector<char*> pointers(QList<QByteArray>& texts) {
  std::vector<char*> result;
  for (QByteArray& text : texts) result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

void closeDescriptor(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

// Reads what is there; false at the end of the stream.
bool readInto(int descriptor, QByteArray& target, qsizetype maximum) {
  char buffer[65536];
  const ssize_t got = ::read(descriptor, buffer, sizeof buffer);
  if (got < 0) return errno == EINTR || errno == EAGAIN;
  target.append(buffer, std::min<qsizetype>(got, std::max<qsizetype>(0, maximum - target.size())));
  return got > 0;
}

// From its beginning, wherever it is written at.
QByteArray contentsOf(const FileDescriptor& memory, qint64 size) {
  QByteArray bytes(size, Qt::Uninitialized);
  qint64 read = 0;
  while (read < size) {
    const ssize_t got = ::pread(memory.get(), bytes.data() + read, size_t(size - read), read);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    read += got;
  }
  bytes.truncate(read);
  return bytes;
}

qint64 milliseconds() {
  QElapsedTimer timer;
  timer.start();
  return timer.msecsSinceReference();
}

// Nothing while work may go on.
Result<void> checkPatience(qint64 deadline, const EngineContext& context) {
  if (context.cancel.cancelled())
    return Error{ErrorKind::Cancelled, QStringLiteral("the work was cancelled")};
  if (milliseconds() >= deadline)
    return Error{ErrorKind::TimedOut,
                 QStringLiteral("the PostScript did not end within %1 seconds").arg(context.limits.seconds)};
  return {};
}

}  // namespace

Result<std::shared_ptr<GhostscriptChild>> GhostscriptChild::start(const QList<QByteArray>& arguments,
                                                                  const QString& scratchFolder, int seconds,
                                                                  InterpreterDevice device) {
  const char* path = program();
  if (!path) return Error{ErrorKind::Unsupported, QStringLiteral("Ghostscript (gs) is not installed")};
  const Error failed{ErrorKind::Unsupported, QStringLiteral("Ghostscript (gs) cannot be started")};
  Pipe input;
  Pipe output;
  Pipe messages;
  if (!input.open() || !output.openFor(device) || !messages.open()) return failed;
  QList<QByteArray> argumentTexts{QByteArrayLiteral("gs")};
  argumentTexts += arguments;
  QList<QByteArray> environmentTexts{"TMPDIR=" + QFile::encodeName(scratchFolder), "LC_ALL=C",
                                     "PATH=/usr/bin:/bin"};
  const std::vector<char*> argv = pointers(argumentTexts);
  const std::vector<char*> environment = pointers(environmentTexts);
  const int descriptors = descriptorLimit();
  const pid_t parent = ::getpid();
  ::signal(SIGPIPE, SIG_IGN);
  prepareToSealPrograms();
  const pid_t pid = ::fork();
  if (pid == 0)
    becomeGhostscript(path, argv.data(), environment.data(), {input.end[0], output.end[1], messages.end[1]},
                      descriptors, parent, seconds);
  if (pid < 0) return failed;
  ::setpgid(pid, pid);  // both sides do it: whoever comes first
  std::shared_ptr<GhostscriptChild> child(new GhostscriptChild);
  child->pid_ = pid;
  child->process_.reset(int(::syscall(SYS_pidfd_open, pid, 0)));
  child->talkThrough(device, input.take(1), output.take(0), messages.take(0));
  return child;
}

GhostscriptChild::~GhostscriptChild() {
  end();
}

void GhostscriptChild::end() {
  closeDescriptor(input_);
  closeDescriptor(output_);
  closeDescriptor(messages_);
  closeDescriptor(outcome_);
  if (pid_ < 0) return;
  if (process_.valid()) ::syscall(SYS_pidfd_send_signal, process_.get(), SIGKILL, nullptr, 0);
  endProcessGroup(pid_);
  pid_ = -1;
}

Result<std::shared_ptr<GhostscriptChild>> GhostscriptChild::fork(int interpreters,
                                                                 const PictureLimits& limits,
                                                                 InterpreterDevice device,
                                                                 const CancelToken& cancel) {
  Pipe input, output, messages, outcome;
  if (!input.open() || !output.openFor(device) || !messages.open() || !outcome.open())
    return Error{ErrorKind::Died, QStringLiteral("there is no way to talk to Ghostscript")};
  const InterpreterRequest request{limits,
                                   device,
                                   FileDescriptor(input.take(0)),
                                   FileDescriptor(output.take(1)),
                                   FileDescriptor(messages.take(1)),
                                   FileDescriptor(outcome.take(1))};
  if (const Result<void> sent = sendInterpreterRequest(interpreters, request, cancel); !sent)
    return sent.error();
  ::signal(SIGPIPE, SIG_IGN);
  std::shared_ptr<GhostscriptChild> child(new GhostscriptChild);
  child->talkThrough(device, input.take(1), output.take(0), messages.take(0));
  child->outcome_ = outcome.take(0);
  return child;
}

void GhostscriptChild::talkThrough(InterpreterDevice device, int input, int output, int messages) {
  const bool isMemory = device != InterpreterDevice::Pdf;
  input_ = input;
  output_ = isMemory ? -1 : output;
  memory_.reset(isMemory ? output : -1);
  messages_ = messages;
  for (const int descriptor : {input_, output_, messages_})
    if (descriptor >= 0) ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
}

qint64 GhostscriptChild::memorySize() const {
  struct stat facts {};
  return memory_.valid() && ::fstat(memory_.get(), &facts) == 0 ? facts.st_size : 0;
}

Result<GhostscriptOutput> GhostscriptChild::run(const QList<QByteArray>& input, const EngineContext& context,
                                                const ProgramLook& look) {
  const qint64 deadline = milliseconds() + 1000LL * context.limits.seconds;
  begin(input);
  const Result<void> pumped = pump(deadline, context, look);
  if (!pumped) return end(), pumped.error();
  GhostscriptOutput collected = std::move(collected_);
  const bool wasForked = isForked();
  const Result<int> status = wasForked ? awaitOutcome(deadline, context) : reap(deadline, context);
  end();
  if (!status) return status.error();
  if (wasForked && WIFEXITED(*status) && WEXITSTATUS(*status) == kInterpreterNotConfined)
    return Error{ErrorKind::NoSandbox, QStringLiteral("the interpreter of PostScript could not be confined")};
  if (const Error end = errorOfEnd(*status); end.kind == ErrorKind::Limit) return end;
  if (WIFEXITED(*status)) {
    collected.exitStatus = WEXITSTATUS(*status);
    if (memory_.valid()) collected.output = contentsOf(memory_, memorySize());
    return collected;
  }
  if (WTERMSIG(*status) == SIGXFSZ) return tooManyScratchFiles();
  // A started program gets nothing else when its processor time is used up; a forked one is told of that.
  if (wasForked && WTERMSIG(*status) == SIGKILL) return killedBySystem();
  if (WTERMSIG(*status) == SIGKILL)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the PostScript used up the time or memory that it was granted")};
  return Error{ErrorKind::NotParsable, QStringLiteral("Ghostscript failed on the PostScript")};
}

void GhostscriptChild::begin(QList<QByteArray> input) {
  feed_ = ProgramFeed(std::move(input));
  collected_ = {};
}

bool GhostscriptChild::step(int milliseconds, qsizetype maximum) {
  if (feed_.done()) closeDescriptor(input_);
  pollfd watched[3] = {{input_, POLLOUT, 0}, {output_, POLLIN, 0}, {messages_, POLLIN, 0}};
  const int ready = ::poll(watched, 3, milliseconds);
  if (ready <= 0) return ready == 0 || errno == EINTR;
  if (watched[0].revents != 0 && !feed_.writeTo(input_)) closeDescriptor(input_);
  if (watched[1].revents != 0 && !readInto(output_, collected_.output, maximum)) closeDescriptor(output_);
  if (watched[2].revents != 0 &&
      !readInto(messages_, collected_.messages, 2 * limits::maximumProgramMessages))
    closeDescriptor(messages_);
  // A document may print as much as it likes; how it ended comes last.
  if (collected_.messages.size() > limits::maximumProgramMessages)
    collected_.messages.remove(0, collected_.messages.size() - limits::maximumProgramMessages);
  return true;
}

Result<void> GhostscriptChild::pump(qint64 deadline, const EngineContext& context, const ProgramLook& look) {
  const qsizetype maximum = qsizetype(context.limits.memoryMiB) << 20;
  ScratchWatch scratch(context.scratchFolder);
  while (output_ >= 0 || messages_ >= 0) {
    if (const Result<void> patience = checkPatience(deadline, context); !patience) return patience;
    if (const Result<void> room = scratch.look(); !room) return room;
    const bool isSoon = look && look(context);
    if (!step(isSoon ? kLookMillisecondsForTwo : kLookMilliseconds, maximum))
      return Error{ErrorKind::Unsupported, QStringLiteral("Ghostscript cannot be talked to")};
    if (std::max<qint64>(collected_.output.size(), memorySize()) >= maximum)
      return Error{ErrorKind::Limit,
                   QStringLiteral("the picture is larger than the memory that it was granted")};
  }
  return {};
}

// Its pipes are closed, so it is as good as gone; a child of its own that kept them open would not be waited
// for.
Result<int> GhostscriptChild::reap(qint64 deadline, const EngineContext& context) {
  int status = 0;
  for (;;) {
    const pid_t got = ::waitpid(pid_, &status, WNOHANG);
    if (got == pid_) return pid_ = -1, status;
    if (got < 0 && errno != EINTR)
      return Error{ErrorKind::Unsupported, QStringLiteral("Ghostscript cannot be waited for")};
    if (const Result<void> patience = checkPatience(deadline, context); !patience) return patience.error();
    ::poll(nullptr, 0, 1);
  }
}

// Both messages are told in one piece each, into a pipe that nobody else writes to.
Result<int> GhostscriptChild::awaitOutcome(qint64 deadline, const EngineContext& context) {
  QByteArray told;
  constexpr qsizetype kAll = sizeof kInterpreterBegun + sizeof(InterpreterOutcome);
  while (told.size() < kAll) {
    if (const Result<void> patience = checkPatience(deadline, context); !patience) return patience.error();
    pollfd watched = {outcome_, POLLIN, 0};
    if (::poll(&watched, 1, kLookMilliseconds) <= 0) continue;
    if (!readInto(outcome_, told, kAll)) break;
  }
  InterpreterOutcome status = 0;
  if (told.isEmpty())
    return Error{ErrorKind::Unsupported, QStringLiteral("there is no interpreter of PostScript")};
  if (told.size() < kAll) return interpreterLost();
  std::memcpy(&status, told.constData() + sizeof kInterpreterBegun, sizeof status);
  return status;
}

}  // namespace norvex::engine
