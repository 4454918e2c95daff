// InterpreterServer: the loop of norvex-postscript, which gives every request a process of its own.
#pragma once

#include <QByteArray>

#include <poll.h>

#include <optional>
#include <vector>

#include "protocol/interpreter_request.h"
#include "worker/confinement/scratch_watch.h"
#include "worker/interpreter/postscript_interpreter.h"

namespace norvex {

/// Reads no byte of a document, has one thread, ends when nobody can ask any more. An interpreter is killed
/// when nobody waits for its outcome any more or when its folder holds too much, and its scratch folder is
/// removed, whichever way it ended. It yields to others once the process that asked for it does.
class InterpreterServer {
 public:
  /// `taking`: of an InterpreterConnection. Scratch folders are made inside `scratchRoot`, which exists and
  /// is private to the user.
  /// `telling`: of a ReadinessPipe; closed once serve() has told that it takes requests.
  InterpreterServer(FileDescriptor taking, FileDescriptor telling, QByteArray scratchRoot);

  /// Returns in the forked processes only: confined, with the request's descriptors as standard streams and
  /// no other. Gives what it is to do.
  PostScriptInterpreter::Task serve();

 private:
  struct Child {
    int pid = 0;
    FileDescriptor pidfd, outcome;
    QByteArray scratchFolder;
    ScratchWatch scratch;
    int asker = 0;
    int nice = 0;  ///< as setpriority(2) has it
  };
  /// True if nobody has as many as there may be.
  [[nodiscard]] bool hasRoomFor(int asker) const;
  /// In a forked process what it is to do; nothing in the server.
  std::optional<PostScriptInterpreter::Task> takeRequest();
  std::optional<PostScriptInterpreter::Task> fork(InterpreterRequest request);
  static void becomeInterpreter(int parent, const InterpreterRequest& request,
                                const QByteArray& scratchFolder);
  static void yieldWithAsker(Child& child);
  /// Ends it. `told`: what whoever waits is told in place of its status.
  static void bury(Child& child, std::optional<InterpreterOutcome> told = std::nullopt);
  /// Those that have ended, that nobody waits for, or that fill the disk. `polls`: two for each child, behind
  /// the first.
  void buryWhoMustGo(const std::vector<pollfd>& polls);

  FileDescriptor taking_, telling_;
  QByteArray scratchRoot_;
  std::vector<Child> children_;
  bool isAtRest_ = false;  ///< nothing is left to be done until a document comes
};

}  // namespace norvex
