// InterpreterProgram: norvex-postscript as the picture process starts it, once for all of its documents.
#pragma once

#include <string>

#include "base/file_descriptor.h"
#include "protocol/control_descriptor.h"

namespace norvex {

/// Where the program tells that it is ready (ReadinessPipe::telling).
inline constexpr int interpreterReadiness = controlDescriptor + 1;
/// Where the program finds /proc, when it is started from within a view of the files that has none.
inline constexpr int interpreterProcessFiles = controlDescriptor + 2;

/// Words to the program, behind the folder.
inline constexpr const char* interpreterReadsPdf = "pdf";
inline constexpr const char* interpreterIsForOne = "lone";

/// The interpreter's program in the folder of `program`, of which the whole path is told. Empty where it is
/// not: what lies in the folder that somebody happens to work in is never started.
[[nodiscard]] std::string interpreterBeside(const std::string& program);

/// What its documents will be.
struct InterpreterOutlook {
  bool pdf = false;  ///< PDF, which takes a fifth more of its start; PostScript can be asked for nevertheless
  bool lone = false;  ///< there is one: nothing is made ready that it may not need
};

/// Single-threaded. The program ends with us and with all who inherited asking(); it is not waited for
/// before.
class InterpreterProgram {
 public:
  /// `program`: empty for norvex-postscript beside the running program. `scratchRoot`: where it makes the
  /// folders of its documents.
  explicit InterpreterProgram(std::string scratchRoot, InterpreterOutlook outlook = {},
                              std::string program = {});
  InterpreterProgram(const InterpreterProgram&) = delete;
  InterpreterProgram& operator=(const InterpreterProgram&) = delete;
  ~InterpreterProgram() { stop(); }

  /// Starts it unless it runs, and does not wait until it is ready. From within a view of the files it shares
  /// that view, otherwise it makes one of its own. After it has ended some times, or two
  /// times without ever having been ready, it is not started any more.
  void start();
  /// Makes a place where interpreters can be asked for; the program is started when somebody does, for which
  /// whoever calls this must listen at waitingRequests().
  void expect();
  /// Readable once somebody asks for an interpreter and the program has yet to be started; -1: nobody can.
  [[nodiscard]] int waitingRequests() const { return taking_.get(); }
  /// Ends it with all that it has forked.
  void stop();
  /// Where interpreters are asked for (protocol/interpreter_request.h); -1: the program neither runs
  /// nor is expected to. Not ready is no failure, a program that cannot run is noticed by whoever asks.
  [[nodiscard]] int asking() const { return asking_.get(); }
  /// Process number; 0: it does not run.
  [[nodiscard]] int pid() const { return pid_; }

 private:
  [[nodiscard]] bool runs();
  [[nodiscard]] bool canStart() const;
  [[nodiscard]] bool makeConnection();
  std::string scratchRoot_, program_;
  InterpreterOutlook outlook_;
  FileDescriptor asking_;
  FileDescriptor taking_;   ///< until the program has it
  FileDescriptor hearing_;  ///< that the program is ready; never a document's
  int pid_ = 0;
  int starts_ = 0;
};

}  // namespace norvex
