// Ghostscript as a process for one document: started or forked for us, fed on its standard input, read from
// its standard output, ended.
#pragma once

#include <QByteArray>
#include <QList>

#include <functional>
#include <memory>

#include "base/file_descriptor.h"
#include "base/result.h"
#include "protocol/interpreter_request.h"
#include "worker/engine/engine.h"
#include "worker/postscript/program_feed.h"

namespace norvex::engine {

/// Called again and again while a program runs. True: it wants to be called soon.
using ProgramLook = std::function<bool(const EngineContext& context)>;

struct GhostscriptOutput {
  QByteArray output;    ///< what came on standard output
  QByteArray messages;  ///< what came on standard error, at most its last 64 KiB
  int exitStatus = 0;
};

/// One run of gs. A started child initialises itself (about 100 ms) and then waits for its input, so it can
/// be started before its document is there. It gets a process group of its own, ends with this process and
/// inherits its limits and its confinement, and seals itself as sealStartedProgram() says; the destructor
/// kills the group. What it writes goes through a pipe, plates into memory, because their device goes back to
/// what it has written, and so do the pixels of a canvas, which are looked at meanwhile. What it needs
/// besides: fork, execve of gs, prctl, setpgid, pidfd_send_signal, wait4. Single-threaded. Sets SIGPIPE to be
/// ignored in this process.
class GhostscriptChild {
 public:
  /// `arguments` follow the program's name; `seconds` of wall time will be granted. TMPDIR is the context's
  /// scratch folder; the environment is empty besides. Fails with Unsupported when gs cannot be started.
  [[nodiscard]] static Result<std::shared_ptr<GhostscriptChild>> start(
      const QList<QByteArray>& arguments, const QString& scratchFolder, int seconds = 120,
      InterpreterDevice device = InterpreterDevice::Pdf);
  /// The same from norvex-postscript, which has it initialised and gives it limits, a confinement and a
  /// scratch folder of its own. `interpreters` is asked for it, see
  /// protocol/interpreter_request.h. It takes no fork and no execve here. Never waits. Fails with Died when
  /// nobody listens there.
  [[nodiscard]] static Result<std::shared_ptr<GhostscriptChild>> fork(
      int interpreters, const PictureLimits& limits, InterpreterDevice device = InterpreterDevice::Pdf,
      const CancelToken& cancel = {});
  GhostscriptChild(const GhostscriptChild&) = delete;
  GhostscriptChild& operator=(const GhostscriptChild&) = delete;
  ~GhostscriptChild();

  [[nodiscard]] bool isForked() const { return outcome_ >= 0; }
  /// Feeds `input`, piece after piece, and collects until gs ends; `look` is called all
  /// the while. Once only. Fails with TimedOut (limits.seconds), Cancelled, Limit (more output than
  /// limits.memoryMiB, or killed for what it used up) or NotParsable (gs crashed); a forked one with
  /// Unsupported when there never was one, and with NoSandbox when it could not be confined, in which cases
  /// nobody has read the input.
  [[nodiscard]] Result<GhostscriptOutput> run(const QList<QByteArray>& input, const EngineContext& context,
                                              const ProgramLook& look = {});

  /// The same piece by piece, by who does not wait for the end: begin(), then again and again step(), which
  /// waits so many milliseconds at most and keeps at most `maximum` bytes of a pipe's output. False: there is
  /// no talking to gs.
  void begin(QList<QByteArray> input);
  bool step(int milliseconds, qsizetype maximum = 0);
  /// Where it writes plates or pixels; -1: it writes into a pipe.
  [[nodiscard]] int memory() const { return memory_.get(); }

 private:
  GhostscriptChild() = default;
  void talkThrough(InterpreterDevice device, int input, int output, int messages);
  [[nodiscard]] Result<void> pump(qint64 deadline, const EngineContext& context, const ProgramLook& look);
  /// Its status as waitpid() gives it.
  [[nodiscard]] Result<int> reap(qint64 deadline, const EngineContext& context);
  /// What has been written so far into memory_; 0 without it.
  [[nodiscard]] qint64 memorySize() const;
  [[nodiscard]] Result<int> awaitOutcome(qint64 deadline, const EngineContext& context);
  void end();
  int pid_ = -1;            ///< of a started one
  int outcome_ = -1;        ///< of a forked one: the pipe that tells its status, and its life line
  FileDescriptor process_;  ///< of pid_: a confined process signals nobody by number
  int input_ = -1;
  int output_ = -1;  ///< a pipe, or:
  FileDescriptor memory_;
  int messages_ = -1;
  ProgramFeed feed_;
  GhostscriptOutput collected_;
};

}  // namespace norvex::engine
